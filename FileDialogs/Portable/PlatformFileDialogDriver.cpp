#include "FileDialogs/FileDialogDriver.h"

namespace Zorvane {

std::unique_ptr<FileDialogDriver> createPlatformFileDialogDriver()
{
    return nullptr;
}

} // namespace Zorvane
