#pragma once

#include "FileDialogs/FileDialogDriver.h"
#include "FileDialogs/Windows/GeometryHook.h"
#include "UiToolsExport.h"

#include <windows.h>

#include <objbase.h>

namespace Zorvane {

/**
 * Shows the common item dialog, the system's own since Windows Vista. Fails, so that the caller
 * shows another dialog, also where the thread has been made a multi-threaded one of COM, and for
 * folders.
 */
class ZORVANE_UITOOLS_EXPORT CommonItemDialogDriver final : public FileDialogDriver
{
public:
    using SetAwareness = DPI_AWARENESS_CONTEXT WINAPI(DPI_AWARENESS_CONTEXT);

    /** `shellLibrary` has the shell's functions. Without `setAwareness` the system's is taken. */
    explicit CommonItemDialogDriver(const wchar_t* shellLibrary = L"shell32.dll",
                                    const WindowEventFunctions& windowEvents = {},
                                    SetAwareness* setAwareness = nullptr);
    ~CommonItemDialogDriver() override;

    FileDialogResult run(const FileDialogRequest& request) override;

private:
    const wchar_t* m_shellLibrary;
    WindowEventFunctions m_windowEvents;
    SetAwareness* m_setAwareness;
};

} // namespace Zorvane
