#include "FileDialogs/NativeFileDialog.h"

#include <utility>

namespace Zorvane {

namespace {

NativeFileDialogFactory& currentFactory()
{
    static NativeFileDialogFactory factory = createPlatformFileDialogDriver;
    return factory;
}

} // namespace

NativeFileDialogDriver::NativeFileDialogDriver() = default;
NativeFileDialogDriver::~NativeFileDialogDriver() = default;

std::unique_ptr<NativeFileDialogDriver> createNativeFileDialogDriver()
{
    return currentFactory()();
}

NativeFileDialogReplacement::NativeFileDialogReplacement(NativeFileDialogFactory factory)
    : m_previous(std::exchange(currentFactory(), std::move(factory)))
{}

NativeFileDialogReplacement::~NativeFileDialogReplacement()
{
    currentFactory() = std::move(m_previous);
}

} // namespace Zorvane
