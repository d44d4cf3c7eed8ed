#pragma once

#include "TreeModel/ModelProviderInterface.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Zorvane::Testing {

using Items = std::vector<std::shared_ptr<GenericTreeViewModelHandling::ModelItem>>;

inline IDCombiner idOf(std::uint64_t number)
{
    return IDCombiner(Identifier(number));
}

inline std::shared_ptr<GenericTreeViewModelHandling::ModelItem> makeItem(std::uint64_t number,
                                                                         const Items& children = {})
{
    auto item = std::make_shared<GenericTreeViewModelHandling::ModelItem>(
        Identifier(number), "item " + std::to_string(number));
    item->addChildren(children);
    return item;
}

inline std::shared_ptr<GenericTreeViewModelHandling::ModelRoot> makeRoot(const Items& items)
{
    auto root = std::make_shared<GenericTreeViewModelHandling::ModelRoot>();
    root->addTopLevelItems(items);
    return root;
}

/** One item a level, as many levels as told. */
inline std::shared_ptr<GenericTreeViewModelHandling::ModelItem> makeChain(std::uint64_t levels)
{
    auto item = makeItem(levels);
    for (std::uint64_t level = levels - 1; level > 0; --level)
        item = makeItem(level, {item});
    return item;
}

/** Gives one root again and again; remembers what was registered with it. */
class FixedModelProvider : public GenericTreeViewModelHandling::ModelProviderInterface
{
public:
    explicit FixedModelProvider(const Items& items = {})
        : root(makeRoot(items))
    {}

    std::shared_ptr<GenericTreeViewModelHandling::ModelRoot> provideModel() override
    {
        return root;
    }
    void registerUpdateCallback(std::function<void()> newCallback) override
    {
        callback = std::move(newCallback);
        ++registrations;
    }

    std::shared_ptr<GenericTreeViewModelHandling::ModelRoot> root;
    std::function<void()> callback;
    int registrations = 0;
};

} // namespace Zorvane::Testing
