#pragma once

#include "TreeModel/ModelItem.h"

#include <boost/container/small_vector.hpp>

#include <algorithm>
#include <iterator>
#include <memory>
#include <tuple>
#include <utility>
#include <vector>

namespace Zorvane::GenericTreeViewModelHandling {

/**
 * Calls `visit` with the given list and with the children of each item below that has some, once
 * per occurrence; a list comes before those below it, the order is otherwise not told.
 *
 * Only what still has to be walked is remembered, so that neither depth nor width uses memory:
 * nothing is allocated unless over 500 levels, one inside the other, each have several branches.
 */
template <typename Visitor>
void forEachSiblingList(const std::vector<std::shared_ptr<ModelItem>>& items, Visitor visit)
{
    using Position = std::vector<std::shared_ptr<ModelItem>>::const_iterator;
    const auto nextWithChildren = [](Position from, Position end) {
        return std::find_if(from, end, [](const auto& item) { return item->hasChildren(); });
    };

    boost::container::small_vector<std::pair<Position, Position>, 512> pending;
    visit(items);
    Position item = nextWithChildren(items.begin(), items.end());
    Position end = items.end();
    while (item != end || !pending.empty()) {
        if (item == end) {
            std::tie(item, end) = pending.back();
            pending.pop_back();
        }
        const auto& children = (*item)->getChildren();
        visit(children);
        const Position next = nextWithChildren(std::next(item), end);
        if (next != end)
            pending.emplace_back(next, end);
        item = nextWithChildren(children.begin(), children.end());
        end = children.end();
    }
}

} // namespace Zorvane::GenericTreeViewModelHandling
