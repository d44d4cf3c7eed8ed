#include "FileDialogs/PreviewEditorInterface.h"

namespace Zorvane {

PreviewEditorInterface::PreviewEditorInterface() = default;
PreviewEditorInterface::PreviewEditorInterface(const PreviewEditorInterface& other) = default;
PreviewEditorInterface&
PreviewEditorInterface::operator=(const PreviewEditorInterface& other) = default;
PreviewEditorInterface::~PreviewEditorInterface() = default;

} // namespace Zorvane
