#include "Dialogs/FileConverterConfigurationInterface.h"

#include "Files/LastPathProvider.h"

namespace Zorvane {

FileConverterConfigurationInterface::FileConverterConfigurationInterface() = default;
FileConverterConfigurationInterface::FileConverterConfigurationInterface(
    const FileConverterConfigurationInterface&) = default;
FileConverterConfigurationInterface& FileConverterConfigurationInterface::operator=(
    const FileConverterConfigurationInterface&) = default;
FileConverterConfigurationInterface::~FileConverterConfigurationInterface() = default;

PathProvider* FileConverterConfigurationInterface::getPathProvider()
{
    return LastPathProvider::getInstance();
}

} // namespace Zorvane
