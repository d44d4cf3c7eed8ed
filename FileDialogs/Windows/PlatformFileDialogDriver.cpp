#include "FileDialogs/Windows/CommonItemDialogDriver.h"

namespace Zorvane {

namespace {

/** The common item dialog came with version 6; what can't tell its version hasn't got it. */
bool hasCommonItemDialog()
{
    OSVERSIONINFOW version{};
    version.dwOSVersionInfoSize = sizeof version;
    return GetVersionExW(&version) && version.dwMajorVersion >= 6;
}

} // namespace

std::unique_ptr<NativeFileDialogDriver> createPlatformFileDialogDriver()
{
    if (!hasCommonItemDialog())
        return nullptr;
    return std::make_unique<CommonItemDialogDriver>();
}

} // namespace Zorvane
