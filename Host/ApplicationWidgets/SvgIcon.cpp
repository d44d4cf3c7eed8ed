#include "Host/ApplicationWidgets/SvgIcon.h"

#include "Host/ApplicationWidgets/SvgIconEngine.h"

#include <utility>

namespace Zorvane {

namespace {

std::shared_ptr<IconFactory>& registeredIconFactory()
{
    static auto s_instance = std::make_shared<IconFactory>();
    return s_instance;
}

} // namespace

IconFactory::IconFactory() = default;
IconFactory::IconFactory(const IconFactory&) = default;
IconFactory& IconFactory::operator=(const IconFactory&) = default;
IconFactory::~IconFactory() = default;

std::shared_ptr<IconFactory> IconFactory::registerInstance(std::shared_ptr<IconFactory> instance)
{
    if (!instance)
        instance = std::make_shared<IconFactory>();
    return std::exchange(registeredIconFactory(), std::move(instance));
}

QIcon IconFactory::createIcon(const QString& path) const
{
    return path.isEmpty() ? QIcon() : QIcon(new SvgIconEngine(path, SvgIconEngine::OneDrawing));
}

QIcon IconFactory::createTwoSizeIcon(const QString& path) const
{
    return path.isEmpty() ? QIcon()
                          : QIcon(new SvgIconEngine(path, SvgIconEngine::SmallAndLargeDrawing));
}

QIcon createSvgIcon(const QString& path)
{
    const std::shared_ptr<const IconFactory> factory = registeredIconFactory();
    return factory->createIcon(path);
}

QIcon createTwoSizeSvgIcon(const QString& path)
{
    const std::shared_ptr<const IconFactory> factory = registeredIconFactory();
    return factory->createTwoSizeIcon(path);
}

} // namespace Zorvane
