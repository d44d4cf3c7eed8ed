#include "FileDialogs/NativeFileDialog.h"

namespace Zorvane {

std::unique_ptr<NativeFileDialogDriver> createPlatformFileDialogDriver()
{
    return nullptr;
}

} // namespace Zorvane
