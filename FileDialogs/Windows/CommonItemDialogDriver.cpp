#include "FileDialogs/Windows/CommonItemDialogDriver.h"

#include "FileDialogs/Windows/CommonItemDialog.h"
#include "FileDialogs/Windows/DpiAwarenessScope.h"
#include "Files/Windows/ComApartment.h"

namespace Zorvane {

namespace {

using Run = HRESULT (CommonItemDialog::*)(QStringList&) const;

NativeFileDialogResult runDialog(const wchar_t* shellLibrary,
                                 const NativeFileDialogRequest& request, Run run)
{
    NativeFileDialogResult result;
    const ComApartment apartment;
    result.code = apartment.result();
    if (FAILED(result.code))
        return result;
    const ShellFunctions shell(shellLibrary);
    const SystemLibrary user(L"user32.dll");
    const DpiAwarenessScope dpiAwareness(
        user.find<DpiAwarenessScope::SetContext>("SetThreadDpiAwarenessContext"));
    result.code = shell.createItem ? (CommonItemDialog(shell, request).*run)(result.paths) : E_FAIL;
    if (FAILED(result.code))
        result.paths.clear();
    return result;
}

} // namespace

CommonItemDialogDriver::CommonItemDialogDriver(const wchar_t* shellLibrary)
    : m_shellLibrary(shellLibrary)
{}

CommonItemDialogDriver::~CommonItemDialogDriver() = default;

NativeFileDialogResult CommonItemDialogDriver::open(const NativeFileDialogRequest& request)
{
    return runDialog(m_shellLibrary, request, &CommonItemDialog::open);
}

NativeFileDialogResult CommonItemDialogDriver::save(const NativeFileDialogRequest& request)
{
    return runDialog(m_shellLibrary, request, &CommonItemDialog::save);
}

} // namespace Zorvane
