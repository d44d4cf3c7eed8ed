#include "TreeModel/ModelRoot.h"

#include "TreeModel/ModelItemWalk.h"

#include <iterator>
#include <utility>

namespace Zorvane::GenericTreeViewModelHandling {

void ModelRoot::addTopLevelItems(const std::vector<std::shared_ptr<ModelItem>>& items)
{
    // A copy first: the argument may be this root's own list, which grows meanwhile.
    if (!items.empty())
        addTopLevelItems(std::vector<std::shared_ptr<ModelItem>>(items));
}

void ModelRoot::addTopLevelItems(std::vector<std::shared_ptr<ModelItem>>&& items)
{
    if (items.empty()) {
        m_topLevelItems.clear();
        return;
    }
    m_topLevelItems.insert(m_topLevelItems.end(), std::make_move_iterator(items.begin()),
                           std::make_move_iterator(items.end()));
    items.clear();
}

std::uint64_t ModelRoot::totalItemCount() const
{
    std::uint64_t count = 0;
    forEachSiblingList(m_topLevelItems, [&count](const auto& items) { count += items.size(); });
    return count;
}

} // namespace Zorvane::GenericTreeViewModelHandling
