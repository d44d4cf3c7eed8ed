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
    registered() = provider ? std::move(provider) : std::make_shared<IconPathProvider>();
}

} // namespace Zorvane::Resources
