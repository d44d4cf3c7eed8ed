#include "TreeModel/ZVTreeItemDataProviderManager.h"

#include <algorithm>
#include <utility>

namespace Zorvane::GenericTreeViewModelHandling {

void ZVTreeItemDataProviderManager::addProvider(
    std::shared_ptr<ZVTreeItemDataProviderInterface> provider)
{
    m_providers.push_back(provider);
    provider->registerUpdateCallback(m_life.guarded([this] { onChildProviderChanged(); }));
}

Qt::ItemFlags ZVTreeItemDataProviderManager::getItemFlags()
{
    Qt::ItemFlags flags = Qt::NoItemFlags;
    for (const auto& provider : m_providers)
        flags |= provider->getItemFlags();
    return flags;
}

void ZVTreeItemDataProviderManager::addDataTo(const RowList& rows)
{
    for (const auto& provider : m_providers)
        provider->addDataTo(rows);
}

void ZVTreeItemDataProviderManager::updateDataOf(const RowList& rows)
{
    for (const auto& provider : m_providers)
        provider->updateDataOf(rows);
}

bool ZVTreeItemDataProviderManager::isUpdateDue() const
{
    return std::any_of(m_providers.begin(), m_providers.end(), [](const auto& provider) {
        return GenericTreeViewModelHandling::isUpdateDue(*provider);
    });
}

void ZVTreeItemDataProviderManager::registerUpdateCallback(std::function<void()> callback)
{
    m_updateFunction = std::move(callback);
}

void ZVTreeItemDataProviderManager::onChildProviderChanged()
{
    callUpdateFunction();
}

void ZVTreeItemDataProviderManager::callUpdateFunction()
{
    // A copy: the callback may register another one or let go of this manager.
    if (const auto updateFunction = m_updateFunction)
        updateFunction();
}

} // namespace Zorvane::GenericTreeViewModelHandling
