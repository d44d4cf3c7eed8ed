#pragma once

#include "Host/Identifiers/IDCombiner.h"
#include "Host/Widgets/ZVTreeViewItem.h"

#include <cstddef>
#include <cstdint>
#include <typeinfo>
#include <vector>

namespace Zorvane::GenericTreeViewModelHandling {

/** Where rows carry their id. */
struct IdPlace
{
    int column;
    int role;
};

/** A row's id: false when none is stored. One that cannot be read counts as the default id. */
bool readId(const ZVTreeViewItem* row, IdPlace place, IDCombiner& id);

/** The typed id of a row whose class cannot answer `data()` otherwise, else null. */
inline const IDCombiner* typedId(const ZVTreeViewItem* row, IdPlace place)
{
    return typeid(*row) == typeid(ZVTreeViewItem) ? row->id(place.role) : nullptr;
}

/** Whether the row carries this id. */
bool hasId(const ZVTreeViewItem* row, IdPlace place, const IDCombiner& id);

/**
 * The children of a row from some position on, found by id: of those that have not been taken, the
 * first that carries it. Each row is asked for its id once.
 */
class RowIndex
{
public:
    RowIndex(const ZVTreeViewItem* parent, int first, IdPlace place);

    static constexpr int None = -1;

    /** No row is left. */
    bool isEmpty() const { return m_front == m_entries.size(); }
    /** The position in the parent of the row that is left first. */
    int front() const { return m_first + static_cast<int>(m_front); }
    /** The position of the row with this id, which is taken, else `None`. */
    int take(const IDCombiner& id);
    /** Whether the row has no children; without a look at the row, which may be far away. */
    bool isLeaf(int position) const
    {
        return m_entries[static_cast<std::size_t>(position - m_first)].isLeaf;
    }

private:
    struct Entry
    {
        IDCombiner id;
        /** The next one with the same id. */
        std::int32_t next = None;
        bool isLeft = true;
        bool hasId = false;
        bool isLeaf = false;
    };

    std::int32_t find(const IDCombiner& id);
    std::int32_t& bucketOf(const IDCombiner& id);
    Entry& entry(std::int32_t place) { return m_entries[static_cast<std::size_t>(place)]; }
    void buildBuckets();

    const int m_first;
    std::size_t m_front = 0;
    /** Behind the one taken last. */
    std::int32_t m_next = 0;
    bool m_hasTwins = false;
    std::vector<Entry> m_entries;
    /** A hash table of the first entry of each id; made when a row is not the next one. */
    std::vector<std::int32_t> m_buckets;
};

} // namespace Zorvane::GenericTreeViewModelHandling
