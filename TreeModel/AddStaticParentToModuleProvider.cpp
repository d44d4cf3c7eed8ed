#include "TreeModel/AddStaticParentToModuleProvider.h"

#include "TreeModel/ModelItemWalk.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace Zorvane::GenericTreeViewModelHandling {

namespace {

std::uint64_t leafCount(const ModelRoot& root)
{
    std::uint64_t count = 0;
    forEachSiblingList(root.getTopLevelItems(), [&count](const auto& items) {
        count += static_cast<std::uint64_t>(std::count_if(
            items.begin(), items.end(), [](const auto& item) { return !item->hasChildren(); }));
    });
    return count;
}

} // namespace

AddStaticParentToModuleProvider::AddStaticParentToModuleProvider(const IDCombiner& parentId,
                                                                 const std::string& parentName)
    : m_parentId(parentId)
    , m_parentName(parentName)
{}

void AddStaticParentToModuleProvider::setInputModelProvider(
    std::shared_ptr<ModelProviderInterface> provider)
{
    m_inputModelProvider = std::move(provider);
    if (m_inputModelProvider && m_updateCallback)
        m_inputModelProvider->registerUpdateCallback(m_updateCallback);
}

std::shared_ptr<ModelRoot> AddStaticParentToModuleProvider::provideModel()
{
    auto result = std::make_shared<ModelRoot>();
    const auto input = m_inputModelProvider ? m_inputModelProvider->provideModel() : nullptr;
    if (!m_addParentForEmptyChildTree && (!input || input->empty()))
        return result;

    auto parent = std::make_shared<ModelItem>(m_parentId, parentNameFor(input.get()));
    if (input)
        parent->setChildren(input->getTopLevelItems());
    result->addTopLevelItems({parent});
    return result;
}

void AddStaticParentToModuleProvider::registerUpdateCallback(std::function<void()> callback)
{
    m_updateCallback = std::move(callback);
    if (m_inputModelProvider)
        m_inputModelProvider->registerUpdateCallback(m_updateCallback);
}

std::string AddStaticParentToModuleProvider::parentNameFor(const ModelRoot* input) const
{
    if (!m_appendNumberOfChildren || !input)
        return m_parentName;
    return m_parentName + " (" + std::to_string(leafCount(*input)) + ")";
}

} // namespace Zorvane::GenericTreeViewModelHandling
