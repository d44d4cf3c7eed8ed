#include "TreeModel/MergedModelProvider.h"

#include <cstddef>
#include <utility>

namespace Zorvane::GenericTreeViewModelHandling {

void MergedModelProvider::addSubModelProvider(
    const std::vector<std::shared_ptr<ModelProviderInterface>>& providers)
{
    m_subModelProviders.insert(m_subModelProviders.end(), providers.begin(), providers.end());
    if (!m_updateCallback)
        return;
    for (const auto& provider : providers)
        provider->registerUpdateCallback(m_updateCallback);
}

std::shared_ptr<ModelRoot> MergedModelProvider::provideModel()
{
    std::vector<std::shared_ptr<ModelRoot>> roots;
    roots.reserve(m_subModelProviders.size());
    std::size_t count = 0;
    for (const auto& provider : m_subModelProviders) {
        if (auto root = provider->provideModel()) {
            count += root->getTopLevelItems().size();
            roots.push_back(std::move(root));
        }
    }

    std::vector<std::shared_ptr<ModelItem>> items;
    items.reserve(count);
    for (const auto& root : roots)
        items.insert(items.end(), root->getTopLevelItems().begin(), root->getTopLevelItems().end());

    auto merged = std::make_shared<ModelRoot>();
    merged->addTopLevelItems(std::move(items));
    return merged;
}

void MergedModelProvider::registerUpdateCallback(std::function<void()> callback)
{
    m_updateCallback = std::move(callback);
    if (!m_updateCallback)
        return;
    for (const auto& provider : m_subModelProviders)
        provider->registerUpdateCallback(m_updateCallback);
}

} // namespace Zorvane::GenericTreeViewModelHandling
