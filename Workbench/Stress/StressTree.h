#pragma once

#include "TreeModel/ModelItem.h"
#include "TreeModel/ModelRoot.h"

#include <cstdint>
#include <memory>
#include <random>
#include <vector>

namespace Zorvane::Workbench {

enum class StressShape
{
    /** All rows are siblings. */
    Flat,
    /** Ten rows a level. */
    Deep
};

enum class StressEdit
{
    Insert,
    Remove,
    Move,
    Rename,
    /** A whole list of siblings in another order. */
    Shuffle
};

/**
 * A tree of made-up rows, edited at random. The same seed gives the same tree and the same edits.
 *
 * Ids are never used twice. Lists never become empty, so a row that had children keeps some;
 * inserting does nothing once there are twice as many rows as at first.
 */
class StressTree
{
public:
    /** At least one row. */
    StressTree(StressShape shape, int rowCount, std::uint32_t seed);

    /** The tree as it is now; what was handed out before does not change. */
    std::shared_ptr<GenericTreeViewModelHandling::ModelRoot> root() const;
    int rowCount() const { return m_rowCount; }

    /** So many edits, each of a kind chosen at random; none without kinds. */
    void edit(const std::vector<StressEdit>& kinds, int count);
    /** Sorted ids of the rows that the last call of `edit` took away. */
    const std::vector<IDCombiner>& removed() const { return m_removed; }

private:
    using ModelItem = GenericTreeViewModelHandling::ModelItem;
    using Items = std::vector<std::shared_ptr<ModelItem>>;

    int below(std::size_t bound);
    std::shared_ptr<ModelItem> createItem(int rowsBelow);
    Items createItems(int rowCount);
    void editSomewhere(Items& items, StressEdit kind);
    void editBelow(std::shared_ptr<ModelItem>& item, StressEdit kind);
    void editList(Items& items, StressEdit kind);
    void insert(Items& items);
    void remove(Items& items);
    void move(Items& items);
    void rename(std::shared_ptr<ModelItem>& item);
    void shuffle(Items& items);
    void noteRemoved(const ModelItem& item);

    const StressShape m_shape;
    const int m_mostRows;
    std::mt19937 m_random;
    std::uint64_t m_lastId = 0;
    int m_lastName = 0;
    int m_rowCount = 0;
    Items m_items;
    std::vector<IDCombiner> m_removed;
};

} // namespace Zorvane::Workbench
