#include "FileDialogs/Windows/CommonItemDialogDriver.h"

#include "FileDialogs/Windows/CommonItemDialog.h"
#include "Files/Windows/ComApartment.h"
#include "Files/Windows/SystemLibrary.h"

namespace Zorvane {

namespace {

/** The common item dialog came with version 6; a system without a known version counts as older. */
bool hasCommonItemDialog()
{
    using GetVersion = BOOL WINAPI(OSVERSIONINFOW*);
    // By name, since headers call it outdated: it returns no version newer than a program names.
    const SystemLibrary kernel(L"kernel32.dll");
    GetVersion* getVersion = kernel.find<GetVersion>("GetVersionExW");
    OSVERSIONINFOW version{};
    version.dwOSVersionInfoSize = sizeof version;
    return getVersion && getVersion(&version) && version.dwMajorVersion >= 6;
}

/**
 * While it lives, this thread's new windows are drawn for the screen that they are on, as the
 * system's dialogs can do and a whole application may not. Does nothing where the system is older
 * than that, or refuses.
 */
class DpiAwarenessScope
{
public:
    /** The system's `SetThreadDpiAwarenessContext`; null where it has none. */
    explicit DpiAwarenessScope(CommonItemDialogDriver::SetAwareness* set)
        : m_set(set)
        , m_previous(set ? set(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2) : nullptr)
    {}
    ~DpiAwarenessScope()
    {
        // Null is a change that was refused: there is nothing to restore.
        if (m_previous)
            m_set(m_previous);
    }

    DpiAwarenessScope(const DpiAwarenessScope&) = delete;
    DpiAwarenessScope& operator=(const DpiAwarenessScope&) = delete;

private:
    CommonItemDialogDriver::SetAwareness* m_set;
    DPI_AWARENESS_CONTEXT m_previous;
};

/** Only the low 16 bits say whether it was a cancel. */
FileDialogResult resultOf(HRESULT code, const QStringList& paths)
{
    FileDialogResult result =
        FAILED(code) ? FileDialogResult::failed(code) : FileDialogResult::accepted(paths);
    if (HRESULT_CODE(code) == ERROR_CANCELLED)
        result = FileDialogResult::cancelled();
    result.nativeCode = code;
    return result;
}

} // namespace

CommonItemDialogDriver::CommonItemDialogDriver(const wchar_t* shellLibrary,
                                               const WindowEventFunctions& windowEvents,
                                               SetAwareness* setAwareness)
    : m_shellLibrary(shellLibrary)
    , m_windowEvents(windowEvents)
    , m_setAwareness(setAwareness)
{}

CommonItemDialogDriver::~CommonItemDialogDriver() = default;

FileDialogResult CommonItemDialogDriver::run(const FileDialogRequest& request)
{
    if (request.purpose == FileDialogPurpose::Folder)
        return resultOf(E_NOTIMPL, {});
    const ComApartment apartment;
    if (FAILED(apartment.result()))
        return resultOf(apartment.result(), {});
    const ShellFunctions shell(m_shellLibrary);
    if (!shell.createItem)
        return resultOf(E_FAIL, {});
    // A window that is created only now is the application's, not one for the dialog's awareness.
    const HWND owner = request.owner ? reinterpret_cast<HWND>(request.owner->winId()) : nullptr;
    const SystemLibrary user(L"user32.dll");
    const DpiAwarenessScope dpiAwareness(
        m_setAwareness ? m_setAwareness : user.find<SetAwareness>("SetThreadDpiAwarenessContext"));
    QStringList paths;
    const HRESULT code = CommonItemDialog(shell, m_windowEvents, request, owner).run(paths);
    return resultOf(code, paths);
}

std::unique_ptr<FileDialogDriver> createPlatformFileDialogDriver()
{
    if (!hasCommonItemDialog())
        return nullptr;
    return std::make_unique<CommonItemDialogDriver>();
}

} // namespace Zorvane
