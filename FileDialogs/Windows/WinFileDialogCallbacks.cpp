#include "FileDialogs/Windows/WinFileDialogCallbacks.h"

#include "FileDialogs/ScreenScale.h"
#include "FileDialogs/Windows/WindowPlacement.h"

#include <utility>

#include <oleidl.h>

namespace Zorvane {

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
                      scaledScreens());
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
