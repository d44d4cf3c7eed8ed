#include "TreeModel/RowFinder.h"

#include "Host/Widgets/ZVTreeViewItem.h"

#include <QtCore/QVariant>

#include <algorithm>
#include <array>
#include <typeinfo>

namespace Zorvane::GenericTreeViewModelHandling {

namespace {

/** So many rows are walked over rather than indexed. */
constexpr int ShortList = 24;

/**
 * So many items are looked up at once: their rows lie scattered in memory, and a short loop waits
 * for many of them together where the whole refresh would wait for each.
 */
constexpr std::size_t LookAhead = 64;

/** So many searches in a row without a run show that the rows really are scattered. */
constexpr int ManyStrayed = 8;

/** The typed id of a row whose class cannot answer `data()` otherwise. */
const IDCombiner* typedId(const ZVTreeViewItem* row, RowFinder::IdPlace place)
{
    const bool plain = place.column == 0 && typeid(*row) == typeid(ZVTreeViewItem);
    return plain ? row->id(place.role) : nullptr;
}

std::uint32_t tagOf(const IDCombiner& id)
{
    // The hash's low bits alone are not mixed well enough for a table.
    return static_cast<std::uint32_t>((std::hash<IDCombiner>()(id) * 0x9e3779b97f4a7c15U) >> 32U);
}

std::size_t bucketCount(std::size_t rows)
{
    std::size_t count = 16;
    while (count < 2 * rows)
        count *= 2;
    return count;
}

} // namespace

void RowFinder::Index::reset(std::size_t rows)
{
    slots.resize(rows);
    buckets.assign(bucketCount(rows), None);
    readIds.clear();
    waiting = WaitingSlots(rows);
    hasDuplicates = false;
    ahead.clear();
    aheadFrom = 0;
    found = 0;
    strayed = 0;
}

RowFinder::RowFinder(const ZVTreeViewItem* parent, const Items& items, IdPlace place,
                     SpareIndexes& spareIndexes)
    : m_parent(parent)
    , m_items(items)
    , m_place(place)
    , m_spareIndexes(spareIndexes)
    , m_walkAllowance(ShortList + parent->childCount())
{}

RowFinder::~RowFinder()
{
    if (m_index)
        m_spareIndexes.push_back(std::move(m_index));
}

bool RowFinder::readId(const ZVTreeViewItem* row, IdPlace place, IDCombiner& id)
{
    if (const IDCombiner* typed = typedId(row, place)) {
        id = *typed;
        return true;
    }
    QVariant value = row->data(place.column, place.role);
    if (!value.isValid())
        return false;
    const int type = qMetaTypeId<IDCombiner>();
    const bool readable = value.userType() == type || value.convert(type);
    id = readable ? *static_cast<const IDCombiner*>(value.constData()) : IDCombiner();
    return true;
}

const IDCombiner& RowFinder::idOfItem(int item) const
{
    return m_items[static_cast<std::size_t>(item)]->getId();
}

const IDCombiner* RowFinder::idOf(const ZVTreeViewItem* row, IDCombiner& buffer) const
{
    if (const IDCombiner* typed = typedId(row, m_place))
        return typed;
    return readId(row, m_place, buffer) ? &buffer : nullptr;
}

bool RowFinder::hasId(const ZVTreeViewItem* row, const IDCombiner& id) const
{
    if (const IDCombiner* typed = typedId(row, m_place))
        return *typed == id;
    IDCombiner stored;
    return readId(row, m_place, stored) && stored == id;
}

int RowFinder::find(int front)
{
    if (!m_index) {
        if (m_walkAllowance > 0)
            return scan(front);
        buildIndex(front);
    }
    const int slot = slotOf(front);
    if (slot == Index::None)
        return -1;
    m_index->found = static_cast<std::size_t>(slot);
    return front + static_cast<int>(m_index->waiting.countBefore(m_index->found));
}

int RowFinder::scan(int front)
{
    const IDCombiner& id = idOfItem(front);
    const int count = m_parent->childCount();
    int position = front;
    while (position < count && !hasId(m_parent->child(position), id))
        ++position;
    m_walkAllowance -= position - front;
    return position < count ? position : -1;
}

void RowFinder::placed(int front, int position)
{
    if (!m_index)
        return;
    if (position == front)
        m_index->waiting.takeFirst();
    else
        m_index->waiting.take(m_index->found);
}

void RowFinder::buildIndex(int front)
{
    if (m_spareIndexes.empty())
        m_spareIndexes.push_back(std::make_unique<Index>());
    m_index = std::move(m_spareIndexes.back());
    m_spareIndexes.pop_back();
    m_index->reset(static_cast<std::size_t>(m_parent->childCount() - front));
    std::vector<Index::Slot>& slots = m_index->slots;
    for (std::size_t slot = 0; slot < slots.size(); ++slot) {
        IDCombiner buffer;
        const IDCombiner* id = idOf(m_parent->child(front + static_cast<int>(slot)), buffer);
        // An id that was read into the buffer has to outlive it.
        if (id == &buffer)
            id = &m_index->readIds.emplace_front(buffer);
        slots[slot] = {id, id ? tagOf(*id) : 0, Index::None};
    }
    for (std::size_t slot = slots.size(); slot-- > 0;) {
        if (!slots[slot].id)
            continue;
        std::int32_t& first = bucketOf(*slots[slot].id, slots[slot].tag);
        slots[slot].nextSameId = first;
        m_index->hasDuplicates = m_index->hasDuplicates || first != Index::None;
        first = static_cast<std::int32_t>(slot);
    }
}

/** The first slot of the id as far as it is known yet, to be read or written. */
std::int32_t& RowFinder::bucketOf(const IDCombiner& id, std::uint32_t tag)
{
    std::vector<std::int32_t>& buckets = m_index->buckets;
    const std::size_t mask = buckets.size() - 1;
    const auto isOther = [&](std::int32_t first) {
        if (first == Index::None)
            return false;
        const Index::Slot& slot = m_index->slotAt(first);
        return slot.tag != tag || *slot.id != id;
    };
    std::size_t place = tag & mask;
    while (isOther(buckets[place]))
        place = (place + 1) & mask;
    return buckets[place];
}

int RowFinder::firstWaitingWith(const IDCombiner& id)
{
    std::int32_t& first = bucketOf(id, tagOf(id));
    std::int32_t slot = first;
    while (slot != Index::None && !m_index->waiting.contains(static_cast<std::size_t>(slot)))
        slot = m_index->slotAt(slot).nextSameId;
    // Rows that were placed meanwhile are passed once; the last one stays, to keep its bucket.
    if (slot != Index::None)
        first = slot;
    return slot;
}

/**
 * The slots of the next items, for rows whose ids differ. Three short loops, so that the waiting
 * for memory is for many items at once: buckets, then slots, then the rows' ids.
 */
void RowFinder::lookAhead(int item)
{
    const int end = std::min(item + static_cast<int>(LookAhead), static_cast<int>(m_items.size()));
    const auto count = static_cast<std::size_t>(end - item);
    std::array<std::uint32_t, LookAhead> tags;
    std::array<const IDCombiner*, LookAhead> stored;
    std::vector<std::int32_t>& ahead = m_index->ahead;
    ahead.resize(count);
    m_index->aheadFrom = item;
    const std::size_t mask = m_index->buckets.size() - 1;
    for (std::size_t i = 0; i < count; ++i)
        tags[i] = tagOf(idOfItem(item + static_cast<int>(i)));
    for (std::size_t i = 0; i < count; ++i)
        ahead[i] = m_index->buckets[tags[i] & mask];
    for (std::size_t i = 0; i < count; ++i)
        stored[i] = ahead[i] == Index::None ? nullptr : m_index->slotAt(ahead[i]).id;
    for (std::size_t i = 0; i < count; ++i) {
        const IDCombiner& id = idOfItem(item + static_cast<int>(i));
        if (stored[i] && *stored[i] != id)
            ahead[i] = bucketOf(id, tags[i]);
    }
}

/** The row of an item, by way of looking up those behind it as well. */
int RowFinder::lookedAhead(int item)
{
    const auto place = [this](int other) {
        return static_cast<std::size_t>(other - m_index->aheadFrom);
    };
    if (place(item) >= m_index->ahead.size())
        lookAhead(item);
    const std::int32_t slot = m_index->ahead[place(item)];
    const bool waits =
        slot != Index::None && m_index->waiting.contains(static_cast<std::size_t>(slot));
    return waits ? slot : Index::None;
}

bool RowFinder::waitsAt(std::size_t slot, const IDCombiner& id) const
{
    return slot < m_index->slots.size() && m_index->waiting.contains(slot) &&
           m_index->slots[slot].id && *m_index->slots[slot].id == id;
}

int RowFinder::slotOf(int item)
{
    const IDCombiner& id = idOfItem(item);
    if (m_index->hasDuplicates)
        return firstWaitingWith(id);
    // Rows mostly move in runs: a neighbour of the one found last is the likely one.
    for (const std::size_t slot : {m_index->found + 1, m_index->found - 1}) {
        if (waitsAt(slot, id)) {
            m_index->strayed = 0;
            return static_cast<int>(slot);
        }
    }
    return ++m_index->strayed > ManyStrayed ? lookedAhead(item) : firstWaitingWith(id);
}

} // namespace Zorvane::GenericTreeViewModelHandling
