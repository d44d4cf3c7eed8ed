#include "FileDialogs/Windows/CommonItemDialogDriver.h"
#include "Files/Windows/SystemLibrary.h"

namespace Zorvane {

namespace {

/** The common item dialog came with version 6; what can't tell its version hasn't got it. */
bool hasCommonItemDialog()
{
    using GetVersion = BOOL WINAPI(OSVERSIONINFOW*);
    // By name, since headers call it outdated: it tells programs no version newer than they know.
    const SystemLibrary kernel(L"kernel32.dll");
    GetVersion* getVersion = kernel.find<GetVersion>("GetVersionExW");
    OSVERSIONINFOW version{};
    version.dwOSVersionInfoSize = sizeof version;
    return getVersion && getVersion(&version) && version.dwMajorVersion >= 6;
}

} // namespace

std::unique_ptr<NativeFileDialogDriver> createPlatformFileDialogDriver()
{
    if (!hasCommonItemDialog())
        return nullptr;
    return std::make_unique<CommonItemDialogDriver>();
}

} // namespace Zorvane
