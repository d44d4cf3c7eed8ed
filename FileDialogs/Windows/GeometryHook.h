#pragma once

#include "UiToolsExport.h"

#include <windows.h>

namespace Zorvane {

class DialogGuard;
class FileDialogConfiguration;

/** By what the system's events of windows are heard. */
struct WindowEventFunctions
{
    decltype(&SetWinEventHook) hook = &SetWinEventHook;
    decltype(&UnhookWinEvent) unhook = &UnhookWinEvent;
};

/**
 * While it lives, the rectangle of a window whose move, resize or dialog ends is stored in a
 * configuration. All windows count, not only the dialog's. Several hooks may live at a time, as
 * dialogs may be opened from dialogs. Where the system gives no hook, nothing is stored. What a
 * configuration throws goes to the guard.
 */
class ZORVANE_UITOOLS_EXPORT GeometryHook
{
public:
    /** Configuration and guard are used as long as this lives. */
    GeometryHook(FileDialogConfiguration& configuration, DialogGuard& guard,
                 const WindowEventFunctions& windowEvents);
    ~GeometryHook();

    GeometryHook(const GeometryHook&) = delete;
    GeometryHook& operator=(const GeometryHook&) = delete;

private:
    WindowEventFunctions m_windowEvents;
    HWINEVENTHOOK m_hook;
};

} // namespace Zorvane
