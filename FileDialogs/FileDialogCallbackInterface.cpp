#include "FileDialogs/FileDialogCallbackInterface.h"

namespace Zorvane {

FileDialogCallbackInterface::FileDialogCallbackInterface() = default;
FileDialogCallbackInterface::FileDialogCallbackInterface(const FileDialogCallbackInterface& other) =
    default;
FileDialogCallbackInterface&
FileDialogCallbackInterface::operator=(const FileDialogCallbackInterface& other) = default;
FileDialogCallbackInterface::~FileDialogCallbackInterface() = default;

} // namespace Zorvane
