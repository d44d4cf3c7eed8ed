#include "Dialogs/FileConverterLogInterface.h"

namespace Zorvane {

FileConverterLogInterface::FileConverterLogInterface() = default;
FileConverterLogInterface::FileConverterLogInterface(const FileConverterLogInterface&) = default;
FileConverterLogInterface&
FileConverterLogInterface::operator=(const FileConverterLogInterface&) = default;
FileConverterLogInterface::~FileConverterLogInterface() = default;

} // namespace Zorvane
