#include "Host/Resources/IconPathProvider.h"

#include <utility>

namespace Zorvane::Resources {

namespace {

std::shared_ptr<IconPathProvider>& registered()
{
    static auto s_provider = std::make_shared<IconPathProvider>();
    return s_provider;
}

} // namespace

IconPathProvider::IconPathProvider() = default;
IconPathProvider::IconPathProvider(const IconPathProvider&) = default;
IconPathProvider& IconPathProvider::operator=(const IconPathProvider&) = default;
IconPathProvider::~IconPathProvider() = default;

std::shared_ptr<IconPathProvider>
IconPathProvider::registerInstance(std::shared_ptr<IconPathProvider> instance)
{
    if (!instance)
        instance = std::make_shared<IconPathProvider>();
    return std::exchange(registered(), std::move(instance));
}

QString IconPathProvider::getOverviewIconPath() const
{
    return QStringLiteral(":/Icons/Ribbon/view_overview.svg");
}

QString IconPathProvider::getProductCoordinatesIconPath() const
{
    return QStringLiteral(":/Icons/Ribbon/view_product_coords");
}

std::shared_ptr<IconPathProvider> getIconPathProvider()
{
    return registered();
}

void registerIconPathProvider(std::shared_ptr<IconPathProvider> provider)
{
    IconPathProvider::registerInstance(std::move(provider));
}

} // namespace Zorvane::Resources
