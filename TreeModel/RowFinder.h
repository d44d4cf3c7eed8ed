#pragma once

#include "Host/Identifiers/IDCombiner.h"
#include "Host/Widgets/ZVTreeViewItem.h"
#include "TreeModel/ModelItem.h"
#include "TreeModel/SameIdChains.h"

#include <array>
#include <cstdint>
#include <memory>
#include <typeinfo>
#include <vector>

namespace Zorvane::GenericTreeViewModelHandling {

/**
 * Finds the rows of one parent that show given items, while the parent's list is put in order from
 * the front: item by item, each row found is moved to the item's position, or a new one inserted.
 *
 * The rule is plain: of the rows that have not been placed yet, the first with an equal id. Short
 * searches walk the list; when more are needed, an index of all rows that are left is built, so
 * that no list costs the square of its length. Rows in place are best recognised by `hasId`
 * before anything is searched for.
 *
 * A row found carries the id at that moment. One that takes an item's id only after the index was
 * built, as a row of an own class may, can be missed.
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
    bool hasId(const ZVTreeViewItem* row, const IDCombiner& id) const
    {
        const IDCombiner* typed = typedId(row, m_place);
        return typed ? *typed == id : readsAs(row, id);
    }
    /** The first row at position `front` or behind with the id of item `front`, else null. */
    ZVTreeViewItem* find(int front);
    /** The row that was at position `front` stays there, as that of item `front`. */
    void stays()
    {
        if (m_index)
            placeFirst();
    }
    /** The row found last is moved to the front. */
    void moves()
    {
        if (m_index)
            placeFound();
    }

    /** A row's id: false when none is stored. One that cannot be read counts as the default id. */
    static bool readId(const ZVTreeViewItem* row, IdPlace place, IDCombiner& id);

private:
    /** Of the index's hash table: the first slot of an id. */
    struct Bucket
    {
        std::uint32_t tag;
        std::int32_t slot;
    };

    /** The typed id of a row whose class cannot answer `data()` otherwise. */
    static const IDCombiner* typedId(const ZVTreeViewItem* row, IdPlace place)
    {
        const bool plain = place.column == 0 && typeid(*row) == typeid(ZVTreeViewItem);
        return plain ? row->id(place.role) : nullptr;
    }
    bool readsAs(const ZVTreeViewItem* row, const IDCombiner& id) const;
    const IDCombiner& idOfItem(int item) const
    {
        return m_items[static_cast<std::size_t>(item)]->getId();
    }

    int walk(int front, int last);
    void buildIndex(int front);
    void enter(std::int32_t slot, const IDCombiner& id);
    Bucket& bucketOf(const IDCombiner& id, std::uint32_t tag);
    std::int32_t slotOf(int item);
    std::int32_t firstWaitingWith(const IDCombiner& id);
    std::int32_t lookedAhead(int item);
    void lookAhead(int item);
    void placeFirst();
    void placeFound();

    const ZVTreeViewItem* const m_parent;
    const Items& m_items;
    const IdPlace m_place;
    SpareIndexes& m_spareIndexes;
    /** How many more rows may be walked over before the index pays. */
    int m_walkAllowance;
    std::unique_ptr<Index> m_index;
};

/** The rows that were left when it was built, in slots in their order, and by id. */
struct RowFinder::Index
{
    static constexpr std::int32_t None = SameIdChains::None;
    /**
     * So many items are looked up at once: their rows lie scattered in memory, and a short loop
     * waits for many of them together where the whole refresh would wait for each. Instructions
     * are the same without; but shuffling 100,000 rows then takes 2.7 times as long.
     */
    static constexpr std::size_t LookAhead = 64;

    /** Forgets everything but the memory it has. */
    void reset(std::size_t count);
    ZVTreeViewItem* rowAt(std::int32_t slot) const { return rows[std::size_t(slot)]; }
    bool isWaiting(std::int32_t slot) const
    {
        // A negative slot is a very large one here.
        return std::size_t(slot) < placed.size() && !placed[std::size_t(slot)];
    }
    std::size_t place(std::uint32_t tag) const { return tag & (buckets.size() - 1); }
    void take(std::int32_t slot) { placed[std::size_t(slot)] = true; }

    std::vector<ZVTreeViewItem*> rows;
    std::vector<bool> placed;
    /** A hash table, by tags. */
    std::vector<Bucket> buckets;
    SameIdChains chains;
    /** No slot before this one waits. */
    std::int32_t front = 0;
    std::int32_t found = 0;
    /** The first row of each of the next items, looked up some ahead. */
    std::array<std::int32_t, LookAhead> ahead;
    int aheadFrom = 0;
    int aheadEnd = 0;
    /** How many searches in a row led far away from the one before. */
    int strayed = 0;
};

} // namespace Zorvane::GenericTreeViewModelHandling
