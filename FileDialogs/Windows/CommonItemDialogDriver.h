#pragma once

#include "FileDialogs/NativeFileDialog.h"
#include "FileDialogs/Windows/DpiAwarenessScope.h"
#include "FileDialogs/Windows/GeometryHook.h"
#include "UiToolsExport.h"

#include <windows.h>

#include <objbase.h>

namespace Zorvane {

/**
 * Shows the common item dialog, the system's own since Windows Vista. Fails, so that the caller
 * shows another dialog, also where the thread has been made a multi-threaded one of COM.
 */
class ZORVANE_UITOOLS_EXPORT CommonItemDialogDriver final : public NativeFileDialogDriver
{
public:
    /** `shellLibrary` has the shell's functions. Without `setAwareness` the system's is taken. */
    explicit CommonItemDialogDriver(const wchar_t* shellLibrary = L"shell32.dll",
                                    const WindowEventFunctions& windowEvents = {},
                                    DpiAwarenessScope::SetContext* setAwareness = nullptr);
    ~CommonItemDialogDriver() override;

    NativeFileDialogResult open(const NativeFileDialogRequest& request) override;
    NativeFileDialogResult save(const NativeFileDialogRequest& request) override;

private:
    const wchar_t* m_shellLibrary;
    WindowEventFunctions m_windowEvents;
    DpiAwarenessScope::SetContext* m_setAwareness;
};

} // namespace Zorvane
