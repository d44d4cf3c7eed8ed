#include "FileDialogs/Windows/CommonItemDialogDriver.h"

#include "FileDialogs/Windows/CommonItemDialog.h"
#include "Files/Windows/ComApartment.h"

namespace Zorvane {

namespace {

using Run = HRESULT (CommonItemDialog::*)(QStringList&) const;

NativeFileDialogResult runDialog(const wchar_t* shellLibrary,
                                 const WindowEventFunctions& windowEvents,
                                 DpiAwarenessScope::SetContext* setAwareness,
                                 const NativeFileDialogRequest& request, Run run)
{
    NativeFileDialogResult result;
    const ComApartment apartment;
    result.code = apartment.result();
    if (FAILED(result.code))
        return result;
    const ShellFunctions shell(shellLibrary);
    const SystemLibrary user(L"user32.dll");
    if (!setAwareness)
        setAwareness = user.find<DpiAwarenessScope::SetContext>("SetThreadDpiAwarenessContext");
    const DpiAwarenessScope dpiAwareness(setAwareness);
    const CommonItemDialog dialog(shell, windowEvents, request);
    result.code = shell.createItem ? (dialog.*run)(result.paths) : E_FAIL;
    if (FAILED(result.code))
        result.paths.clear();
    return result;
}

} // namespace

CommonItemDialogDriver::CommonItemDialogDriver(const wchar_t* shellLibrary,
                                               const WindowEventFunctions& windowEvents,
                                               DpiAwarenessScope::SetContext* setAwareness)
    : m_shellLibrary(shellLibrary)
    , m_windowEvents(windowEvents)
    , m_setAwareness(setAwareness)
{}

CommonItemDialogDriver::~CommonItemDialogDriver() = default;

NativeFileDialogResult CommonItemDialogDriver::open(const NativeFileDialogRequest& request)
{
    return runDialog(m_shellLibrary, m_windowEvents, m_setAwareness, request,
                     &CommonItemDialog::open);
}

NativeFileDialogResult CommonItemDialogDriver::save(const NativeFileDialogRequest& request)
{
    return runDialog(m_shellLibrary, m_windowEvents, m_setAwareness, request,
                     &CommonItemDialog::save);
}

} // namespace Zorvane
