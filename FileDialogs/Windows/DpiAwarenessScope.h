#pragma once

#include "UiToolsExport.h"

#include <windows.h>

namespace Zorvane {

/**
 * While it lives, this thread's new windows are drawn for the screen that they are on, as the
 * system's dialogs can do and a whole application may not. Does nothing where the system is older
 * than that, or refuses.
 */
class ZORVANE_UITOOLS_EXPORT DpiAwarenessScope
{
public:
    using SetContext = DPI_AWARENESS_CONTEXT WINAPI(DPI_AWARENESS_CONTEXT);

    /** The system's `SetThreadDpiAwarenessContext`; null where it has none. */
    explicit DpiAwarenessScope(SetContext* set);
    ~DpiAwarenessScope();

    DpiAwarenessScope(const DpiAwarenessScope&) = delete;
    DpiAwarenessScope& operator=(const DpiAwarenessScope&) = delete;

private:
    SetContext* m_set;
    DPI_AWARENESS_CONTEXT m_previous = nullptr;
};

} // namespace Zorvane
