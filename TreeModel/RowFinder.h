#pragma once

#include "Host/Containers/WaitingSlots.h"
#include "Host/Identifiers/IDCombiner.h"
#include "TreeModel/ModelItem.h"

#include <cstdint>
#include <forward_list>
#include <memory>
#include <vector>

namespace Zorvane {
class ZVTreeViewItem;
}

namespace Zorvane::GenericTreeViewModelHandling {

/**
 * Finds the rows of one parent that show given items, while the parent's list is put in order from
 * the front: item by item, each row found is moved to the item's position, or a new one inserted.
 *
 * The rule is plain: of the rows that have not been placed yet, the first with an equal id. A few
 * searches walk the list; when more are needed, an index of all rows that are left is built, so
 * that no list costs the square of its length. Rows in place are best recognised by `hasId`
 * before anything is searched for.
 */
class RowFinder
{
public:
    using Items = std::vector<std::shared_ptr<ModelItem>>;
    struct Index;
    /** Indexes that are not in use, kept for their memory: asking for it anew costs more. */
    using SpareIndexes = std::vector<std::unique_ptr<Index>>;

    /** Where rows carry their id. */
    struct IdPlace
    {
        int column;
        int role;
    };

    /** Items and spare indexes have to outlive the finder. */
    RowFinder(const ZVTreeViewItem* parent, const Items& items, IdPlace place,
              SpareIndexes& spareIndexes);
    RowFinder(const RowFinder&) = delete;
    RowFinder& operator=(const RowFinder&) = delete;
    ~RowFinder();

    /** Whether the row carries this id. */
    bool hasId(const ZVTreeViewItem* row, const IDCombiner& id) const;
    /** The position of the first row at `front` or behind with the id of item `front`, else -1. */
    int find(int front);
    /** The row found stands at `front` now; it may have been there, at `position` == `front`. */
    void placed(int front, int position);

    /** A row's id: false when none is stored. One that cannot be read counts as the default id. */
    static bool readId(const ZVTreeViewItem* row, IdPlace place, IDCombiner& id);

private:
    const IDCombiner& idOfItem(int item) const;
    const IDCombiner* idOf(const ZVTreeViewItem* row, IDCombiner& buffer) const;
    int scan(int front);
    void buildIndex(int front);
    std::int32_t& bucketOf(const IDCombiner& id, std::uint32_t tag);
    bool waitsAt(std::size_t slot, const IDCombiner& id) const;
    int firstWaitingWith(const IDCombiner& id);
    void lookAhead(int item);
    int lookedAhead(int item);
    int slotOf(int item);

    const ZVTreeViewItem* const m_parent;
    const Items& m_items;
    const IdPlace m_place;
    SpareIndexes& m_spareIndexes;
    /** How many more rows may be walked over before the index pays. */
    int m_walkAllowance;
    std::unique_ptr<Index> m_index;
};

/** The rows that were left when it was built, by id. */
struct RowFinder::Index
{
    static constexpr std::int32_t None = -1;

    struct Slot
    {
        const IDCombiner* id;
        std::uint32_t tag;
        std::int32_t nextSameId;
    };

    /** Forgets everything but the memory it has. */
    void reset(std::size_t rows);
    const Slot& slotAt(std::int32_t slot) const { return slots[static_cast<std::size_t>(slot)]; }

    std::vector<Slot> slots;
    /** A hash table: the first slot of an id each. */
    std::vector<std::int32_t> buckets;
    std::forward_list<IDCombiner> readIds;
    WaitingSlots waiting;
    bool hasDuplicates = false;
    /** The first row of each of the next items, looked up some ahead. */
    std::vector<std::int32_t> ahead;
    int aheadFrom = 0;
    std::size_t found = 0;
    /** How many searches in a row led far away from the one before. */
    int strayed = 0;
};

} // namespace Zorvane::GenericTreeViewModelHandling
