#pragma once

#include "UiToolsExport.h"

#include <windows.h>

namespace Zorvane {

class FileDialogConfiguration;

/**
 * While it lives, the rectangle of a window whose move, resize or dialog ends is stored in a
 * configuration. All windows count, not only the dialog's. Several hooks may live at a time, as
 * dialogs may be opened from dialogs. Where the system gives no hook, nothing is stored.
 */
class ZORVANE_UITOOLS_EXPORT GeometryHook
{
public:
    /** The configuration is used as long as this lives. */
    explicit GeometryHook(FileDialogConfiguration& configuration);
    ~GeometryHook();

    GeometryHook(const GeometryHook&) = delete;
    GeometryHook& operator=(const GeometryHook&) = delete;

private:
    HWINEVENTHOOK m_hook;
};

} // namespace Zorvane
