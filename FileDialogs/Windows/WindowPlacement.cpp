#include "FileDialogs/Windows/WindowPlacement.h"

#include "FileDialogs/DialogPlacement.h"
#include "FileDialogs/ScreenScale.h"
#include "FileDialogs/Windows/DialogGuard.h"

#include <QtCore/QTimer>

namespace Zorvane {

namespace {

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
        const QRect rect = inScreenPixels(dialogPlacement(*configuration), scaledScreens());
        if (IsWindowVisible(window))
            moveTo(window, rect);
        else
            placeWindowSoon(window, configuration, guard);
    });
}

} // namespace

void placeWindowSoon(HWND window, FileDialogConfiguration* configuration,
                     const std::weak_ptr<DialogGuard>& guard)
{
    QTimer::singleShot(s_dialogPlacementDelay,
                       [window, configuration, guard] { place(window, configuration, guard); });
}

} // namespace Zorvane
