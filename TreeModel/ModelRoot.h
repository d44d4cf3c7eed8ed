#pragma once

#include "TreeModel/ModelItem.h"
#include "UiToolsExport.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace Zorvane::GenericTreeViewModelHandling {

/**
 * The top-level items of one tree, in display order. Handed around by shared pointer; shares its
 * items with whoever else holds them.
 *
 * Not supported: null items.
 */
class ZORVANE_UITOOLS_EXPORT ModelRoot
{
public:
    ModelRoot() = default;

    /** Appends the items in their order. An empty list changes nothing. */
    void addTopLevelItems(const std::vector<std::shared_ptr<ModelItem>>& items);
    /**
     * Appends the items in their order and leaves `items` empty. Unlike above, giving an empty list
     * away replaces what the root holds: it is empty then.
     */
    void addTopLevelItems(std::vector<std::shared_ptr<ModelItem>>&& items);

    const std::vector<std::shared_ptr<ModelItem>>& getTopLevelItems() const
    {
        return m_topLevelItems;
    }
    bool empty() const { return m_topLevelItems.empty(); }
    /**
     * The number of items at all levels; one that occurs twice counts twice. Meant for reserving:
     * it walks the tree once, at any depth, and allocates nothing (see `forEachSiblingList` for
     * the one exception).
     */
    std::uint64_t totalItemCount() const;

private:
    std::vector<std::shared_ptr<ModelItem>> m_topLevelItems;
};

} // namespace Zorvane::GenericTreeViewModelHandling
