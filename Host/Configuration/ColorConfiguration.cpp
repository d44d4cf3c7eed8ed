#include "Host/Configuration/ColorConfiguration.h"

#include <utility>

namespace Zorvane {

namespace {

constexpr ColorConfiguration::Color s_unknownColor{0.5F, 0.5F, 0.5F};

std::shared_ptr<ColorConfiguration>& registered()
{
    static auto s_instance = std::make_shared<ColorConfiguration>();
    return s_instance;
}

float bounded(float component)
{
    // Written so that a NaN, which is not above 0, becomes 0.
    if (!(component > 0.0F))
        return 0.0F;
    return component < 1.0F ? component : 1.0F;
}

} // namespace

ColorConfiguration::ColorConfiguration() = default;
ColorConfiguration::ColorConfiguration(const ColorConfiguration&) = default;
ColorConfiguration& ColorConfiguration::operator=(const ColorConfiguration&) = default;
ColorConfiguration::~ColorConfiguration() = default;

std::shared_ptr<ColorConfiguration> ColorConfiguration::getRegisteredInstance()
{
    return registered();
}

std::shared_ptr<ColorConfiguration>
ColorConfiguration::registerInstance(std::shared_ptr<ColorConfiguration> instance)
{
    if (!instance)
        instance = std::make_shared<ColorConfiguration>();
    return std::exchange(registered(), std::move(instance));
}

ColorConfiguration::Color ColorConfiguration::getColor(int id) const
{
    const auto color = m_colors.find(id);
    return color == m_colors.end() ? s_unknownColor : color->second;
}

bool ColorConfiguration::hasColor(int id) const
{
    return m_colors.count(id) != 0;
}

void ColorConfiguration::setColor(int id, const Color& color)
{
    m_colors[id] = {bounded(color.red), bounded(color.green), bounded(color.blue)};
}

} // namespace Zorvane
