#include "Host/Configuration/VanTrelConfiguration.h"

#include <utility>

namespace Zorvane {

namespace {

std::shared_ptr<VanTrelConfiguration>& registeredProgramSettings()
{
    static std::shared_ptr<VanTrelConfiguration> s_instance;
    return s_instance;
}

} // namespace

VanTrelConfiguration::VanTrelConfiguration() = default;
VanTrelConfiguration::VanTrelConfiguration(const VanTrelConfiguration&) = default;
VanTrelConfiguration& VanTrelConfiguration::operator=(const VanTrelConfiguration&) = default;
VanTrelConfiguration::~VanTrelConfiguration() = default;

std::shared_ptr<VanTrelConfiguration> VanTrelConfiguration::getRegisteredInstance()
{
    return registeredProgramSettings();
}

std::shared_ptr<VanTrelConfiguration>
VanTrelConfiguration::registerInstance(std::shared_ptr<VanTrelConfiguration> instance)
{
    return std::exchange(registeredProgramSettings(), std::move(instance));
}

bool VanTrelConfiguration::getDisableExportWithoutStandard() const
{
    return m_disableExportWithoutStandard;
}

void VanTrelConfiguration::setDisableExportWithoutStandard(bool disable)
{
    m_disableExportWithoutStandard = disable;
}

} // namespace Zorvane
