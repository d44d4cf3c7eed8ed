#include "FileDialogs/Windows/WindowPlacement.h"

#include "FileDialogs/DialogPlacement.h"
#include "FileDialogs/ScreenScale.h"

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

void place(HWND window, FileDialogConfiguration* configuration)
{
    // With the window the dialog's call has ended, and perhaps the configuration's life.
    if (!isWindowOfThisThread(window))
        return;
    const QRect rect = inScreenPixels(dialogPlacement(*configuration), scaledScreens());
    if (IsWindowVisible(window))
        moveTo(window, rect);
    else
        placeWindowSoon(window, configuration);
}

} // namespace

void placeWindowSoon(HWND window, FileDialogConfiguration* configuration)
{
    QTimer::singleShot(s_dialogPlacementDelay,
                       [window, configuration] { place(window, configuration); });
}

} // namespace Zorvane
