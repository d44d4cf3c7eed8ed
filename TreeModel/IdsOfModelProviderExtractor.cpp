#include "TreeModel/IdsOfModelProviderExtractor.h"

#include "TreeModel/ModelItemWalk.h"

#include <algorithm>
#include <utility>

namespace Zorvane::GenericTreeViewModelHandling {

IdsOfModelProviderExtractor::IdsOfModelProviderExtractor()
    : m_collection(std::make_shared<std::vector<IDCombiner>>())
{}

IdsOfModelProviderExtractor::IdsOfModelProviderExtractor(const IdsOfModelProviderExtractor& other)
    : ModelProviderInterface(other)
    , m_updateCallback(other.m_updateCallback)
    , m_inputModelProvider(other.m_inputModelProvider)
    , m_collection(std::make_shared<std::vector<IDCombiner>>(*other.m_collection))
{}

IdsOfModelProviderExtractor&
IdsOfModelProviderExtractor::operator=(const IdsOfModelProviderExtractor& other)
{
    ModelProviderInterface::operator=(other);
    m_updateCallback = other.m_updateCallback;
    m_inputModelProvider = other.m_inputModelProvider;
    *m_collection = *other.m_collection;
    return *this;
}

void IdsOfModelProviderExtractor::setInputModelProvider(
    std::shared_ptr<ModelProviderInterface> provider)
{
    m_inputModelProvider = std::move(provider);
    if (m_inputModelProvider && m_updateCallback)
        m_inputModelProvider->registerUpdateCallback(m_updateCallback);
}

std::shared_ptr<ModelRoot> IdsOfModelProviderExtractor::provideModel()
{
    m_collection->clear();
    if (!m_inputModelProvider)
        return nullptr;
    auto root = m_inputModelProvider->provideModel();
    if (!root)
        return nullptr;

    m_collection->reserve(root->totalItemCount());
    forEachSiblingList(root->getTopLevelItems(), [this](const auto& items) {
        for (const auto& item : items)
            m_collection->push_back(item->getId());
    });
    std::sort(m_collection->begin(), m_collection->end());
    return root;
}

void IdsOfModelProviderExtractor::registerUpdateCallback(std::function<void()> callback)
{
    m_updateCallback = std::move(callback);
    if (m_inputModelProvider)
        m_inputModelProvider->registerUpdateCallback(m_updateCallback);
}

} // namespace Zorvane::GenericTreeViewModelHandling
