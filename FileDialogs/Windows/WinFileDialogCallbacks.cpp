#include "FileDialogs/Windows/WinFileDialogCallbacks.h"

#include "FileDialogs/ScreenGeometry.h"
#include "FileDialogs/Windows/DialogGuard.h"

#include <QtCore/QTimer>

#include <utility>

#include <oleidl.h>

namespace Zorvane {

namespace {

/** The milliseconds after which a dialog is placed, or looked at again while it is not visible. */
constexpr int windowPlacementDelay = 5;

void placeWindowSoon(HWND window, FileDialogConfiguration* configuration,
                     const std::weak_ptr<DialogGuard>& guard);

bool isWindowOfThisThread(HWND window)
{
    return IsWindow(window) && GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId();
}

void moveTo(HWND window, const QRect& rect)
{
    if (IsZoomed(window))
        ShowWindow(window, SW_SHOWNORMAL);
    MoveWindow(window, rect.left(), rect.top(), rect.width(), rect.height(), TRUE);
}

void place(HWND window, FileDialogConfiguration* configuration,
           const std::weak_ptr<DialogGuard>& guard)
{
    // With the window or the dialog's call, the configuration's life may have ended.
    const std::shared_ptr<DialogGuard> living = guard.lock();
    if (!living || !isWindowOfThisThread(window))
        return;
    living->run([&] {
        const QRect rect = inScreenPixels(dialogPlacement(*configuration), currentScreens());
        if (IsWindowVisible(window))
            moveTo(window, rect);
        else
            placeWindowSoon(window, configuration, guard);
    });
}

/** The configuration must live as long as the dialog's guard, which is given what it throws. */
void placeWindowSoon(HWND window, FileDialogConfiguration* configuration,
                     const std::weak_ptr<DialogGuard>& guard)
{
    QTimer::singleShot(windowPlacementDelay,
                       [window, configuration, guard] { place(window, configuration, guard); });
}

} // namespace

WinFileDialogCallbacks::WinFileDialogCallbacks(IUnknown* dialog, std::weak_ptr<DialogGuard> guard)
    : m_dialog(dialog)
    , m_guard(std::move(guard))
{}

WinFileDialogCallbacks::~WinFileDialogCallbacks() = default;

void WinFileDialogCallbacks::setControlState(int controlId, int state) const
{
    ComPointer<IFileDialogCustomize> customize;
    if (m_dialog && SUCCEEDED(m_dialog->QueryInterface(IID_PPV_ARGS(customize.put()))))
        customize->SetControlState(DWORD(controlId), CDCONTROLSTATEF(state));
}

void WinFileDialogCallbacks::placeDialog(FileDialogConfiguration* configuration) const
{
    const HWND dialogWindow = window();
    if (dialogWindow && configuration)
        placeWindowSoon(dialogWindow, configuration, m_guard);
}

QRect WinFileDialogCallbacks::getDialogGeometry() const
{
    const HWND dialogWindow = window();
    RECT rect;
    if (!dialogWindow || !GetWindowRect(dialogWindow, &rect))
        return {};
    return inQtPixels(QRect(QPoint(rect.left, rect.top), QPoint(rect.right - 1, rect.bottom - 1)),
                      currentScreens());
}

HWND WinFileDialogCallbacks::window() const
{
    ComPointer<IOleWindow> oleWindow;
    HWND found = nullptr;
    if (!m_dialog || FAILED(m_dialog->QueryInterface(IID_PPV_ARGS(oleWindow.put()))) ||
        FAILED(oleWindow->GetWindow(&found)))
        return nullptr;
    return found;
}

} // namespace Zorvane
