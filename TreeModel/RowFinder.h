#pragma once

#include "Host/Identifiers/IDCombiner.h"

#include <cstdint>
#include <forward_list>
#include <vector>

namespace Zorvane {
class ZVTreeViewItem;
}

namespace Zorvane::GenericTreeViewModelHandling {

/**
 * Finds the rows of one parent by id while the parent's list is put in order from the front.
 *
 * The rule is plain: of the rows that have not been placed yet, the first with an equal id. Rows
 * in place are found by one comparison. A few searches walk the list; when more are needed, an
 * index of all rows that are left is built, so that no list costs the square of its length.
 *
 * The caller tells each step with `placed`: the row found stands at the front of the rest now. New
 * rows that come to stand there need no telling.
 */
class RowFinder
{
public:
    RowFinder(const ZVTreeViewItem* parent, int column, int role);

    /** The position of the first row at `front` or behind that has the id, else -1. */
    int find(int front, const IDCombiner& id);
    /** The row found at `position` stands at the front of the rest now, and is settled. */
    void placed(int front, int position);

    /** A row's id: false when none is stored. One that cannot be read counts as the default id. */
    static bool readId(const ZVTreeViewItem* row, int column, int role, IDCombiner& id);

private:
    /** How many rows before a given one are still waiting, as rows leave from anywhere. */
    class WaitingRows
    {
    public:
        void reset(std::size_t count);
        bool contains(std::size_t slot) const;
        void remove(std::size_t slot);
        std::size_t countBefore(std::size_t slot) const;
        /** The first waiting row at `slot` or behind; the end when there is none. */
        std::size_t next(std::size_t slot) const;

    private:
        std::size_t m_count = 0;
        std::vector<std::uint64_t> m_words;
        std::vector<std::uint32_t> m_tree;
    };

    struct Slot
    {
        const IDCombiner* id;
        std::int32_t nextSameId;
    };
    struct Bucket
    {
        std::uint32_t tag;
        std::int32_t slot;
    };

    const IDCombiner* idAt(int position, IDCombiner& buffer) const;
    int scan(int front, const IDCombiner& id);
    void buildIndex(int front);
    Bucket& bucketOf(const IDCombiner& id);
    int slotOf(const IDCombiner& id);
    int positionOf(int front, std::size_t slot);

    static constexpr std::int32_t None = -1;

    const ZVTreeViewItem* const m_parent;
    const int m_column;
    const int m_role;
    /** How many more rows may be walked over before the index pays. */
    int m_walkAllowance = 0;
    bool m_indexed = false;
    bool m_hasDuplicates = false;
    std::vector<Slot> m_slots;
    std::vector<Bucket> m_buckets;
    std::forward_list<IDCombiner> m_readIds;
    WaitingRows m_waiting;
    std::size_t m_firstWaiting = 0;
    std::size_t m_lastFound = 0;
    std::size_t m_found = 0;
};

} // namespace Zorvane::GenericTreeViewModelHandling
