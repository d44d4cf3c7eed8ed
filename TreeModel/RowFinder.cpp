#include "TreeModel/RowFinder.h"

#include "Host/Widgets/ZVTreeViewItem.h"

#include <QtCore/QVariant>
#include <QtCore/QtAlgorithms>

#include <algorithm>
#include <typeinfo>

namespace Zorvane::GenericTreeViewModelHandling {

namespace {

constexpr std::size_t BitsPerWord = 64;

/** So many rows are walked over rather than indexed. */
constexpr int ShortList = 24;

/** The typed id of a row whose class cannot answer `data()` otherwise. */
const IDCombiner* typedId(const ZVTreeViewItem* row, int column, int role)
{
    return column == 0 && typeid(*row) == typeid(ZVTreeViewItem) ? row->id(role) : nullptr;
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

void RowFinder::WaitingRows::reset(std::size_t count)
{
    m_count = count;
    m_words.assign(count / BitsPerWord + 1, ~std::uint64_t(0));
    m_words.back() = (std::uint64_t(1) << (count % BitsPerWord)) - 1;
    // A Fenwick tree over the words: entry i counts the words (i - lowest bit of i, i].
    m_tree.assign(m_words.size() + 1, 0);
    for (std::size_t i = 1; i < m_tree.size(); ++i) {
        m_tree[i] += std::uint32_t(qPopulationCount(quint64(m_words[i - 1])));
        const std::size_t above = i + (i & (~i + 1));
        if (above < m_tree.size())
            m_tree[above] += m_tree[i];
    }
}

bool RowFinder::WaitingRows::contains(std::size_t slot) const
{
    return (m_words[slot / BitsPerWord] >> (slot % BitsPerWord)) & 1U;
}

void RowFinder::WaitingRows::remove(std::size_t slot)
{
    m_words[slot / BitsPerWord] &= ~(std::uint64_t(1) << (slot % BitsPerWord));
    for (std::size_t i = slot / BitsPerWord + 1; i < m_tree.size(); i += i & (~i + 1))
        --m_tree[i];
}

std::size_t RowFinder::WaitingRows::countBefore(std::size_t slot) const
{
    const std::uint64_t below = (std::uint64_t(1) << (slot % BitsPerWord)) - 1;
    std::size_t count = qPopulationCount(quint64(m_words[slot / BitsPerWord] & below));
    for (std::size_t i = slot / BitsPerWord; i > 0; i &= i - 1)
        count += m_tree[i];
    return count;
}

std::size_t RowFinder::WaitingRows::next(std::size_t slot) const
{
    std::size_t word = slot / BitsPerWord;
    std::uint64_t bits = m_words[word] & (~std::uint64_t(0) << (slot % BitsPerWord));
    while (bits == 0 && ++word < m_words.size())
        bits = m_words[word];
    return bits == 0 ? m_count : word * BitsPerWord + qCountTrailingZeroBits(quint64(bits));
}

RowFinder::RowFinder(const ZVTreeViewItem* parent, int column, int role)
    : m_parent(parent)
    , m_column(column)
    , m_role(role)
    , m_walkAllowance(ShortList + parent->childCount())
{}

bool RowFinder::readId(const ZVTreeViewItem* row, int column, int role, IDCombiner& id)
{
    if (const IDCombiner* typed = typedId(row, column, role)) {
        id = *typed;
        return true;
    }
    QVariant value = row->data(column, role);
    if (!value.isValid())
        return false;
    const int type = qMetaTypeId<IDCombiner>();
    const bool readable = value.userType() == type || value.convert(type);
    id = readable ? *static_cast<const IDCombiner*>(value.constData()) : IDCombiner();
    return true;
}

const IDCombiner* RowFinder::idAt(int position, IDCombiner& buffer) const
{
    const ZVTreeViewItem* row = m_parent->child(position);
    if (const IDCombiner* typed = typedId(row, m_column, m_role))
        return typed;
    return readId(row, m_column, m_role, buffer) ? &buffer : nullptr;
}

int RowFinder::find(int front, const IDCombiner& id)
{
    if (!m_indexed) {
        IDCombiner buffer;
        const IDCombiner* first = idAt(front, buffer);
        if (first && *first == id)
            return front;
        if (m_walkAllowance > 0)
            return scan(front, id);
        buildIndex(front);
    }
    m_firstWaiting = m_waiting.next(m_firstWaiting);
    const int slot = slotOf(id);
    if (slot == None)
        return -1;
    m_found = static_cast<std::size_t>(slot);
    return positionOf(front, m_found);
}

int RowFinder::scan(int front, const IDCombiner& id)
{
    const int count = m_parent->childCount();
    IDCombiner buffer;
    for (int position = front + 1; position < count; ++position) {
        const IDCombiner* candidate = idAt(position, buffer);
        if (!candidate || *candidate != id)
            continue;
        m_walkAllowance -= position - front;
        return position;
    }
    m_walkAllowance -= count - front;
    return -1;
}

void RowFinder::placed(int front, int position)
{
    if (!m_indexed)
        return;
    m_lastFound = position == front ? m_firstWaiting : m_found;
    m_waiting.remove(m_lastFound);
}

int RowFinder::positionOf(int front, std::size_t slot)
{
    if (slot == m_firstWaiting)
        return front;
    return front + static_cast<int>(m_waiting.countBefore(slot));
}

void RowFinder::buildIndex(int front)
{
    const int count = m_parent->childCount();
    m_slots.resize(static_cast<std::size_t>(count - front));
    for (std::size_t slot = 0; slot < m_slots.size(); ++slot) {
        IDCombiner buffer;
        const IDCombiner* id = idAt(front + static_cast<int>(slot), buffer);
        // An id that was read into the buffer has to outlive it.
        m_slots[slot] = {id == &buffer ? &m_readIds.emplace_front(buffer) : id, None};
    }
    m_buckets.assign(bucketCount(m_slots.size()), {0, None});
    for (std::size_t slot = m_slots.size(); slot-- > 0;) {
        if (!m_slots[slot].id)
            continue;
        Bucket& bucket = bucketOf(*m_slots[slot].id);
        m_slots[slot].nextSameId = bucket.slot;
        m_hasDuplicates = m_hasDuplicates || bucket.slot != None;
        bucket = {tagOf(*m_slots[slot].id), static_cast<std::int32_t>(slot)};
    }
    m_waiting.reset(m_slots.size());
    m_indexed = true;
}

RowFinder::Bucket& RowFinder::bucketOf(const IDCombiner& id)
{
    const std::uint32_t tag = tagOf(id);
    const std::size_t mask = m_buckets.size() - 1;
    std::size_t place = tag & mask;
    while (m_buckets[place].slot != None &&
           (m_buckets[place].tag != tag ||
            *m_slots[static_cast<std::size_t>(m_buckets[place].slot)].id != id))
        place = (place + 1) & mask;
    return m_buckets[place];
}

int RowFinder::slotOf(const IDCombiner& id)
{
    const auto isAt = [&](std::size_t slot) {
        return slot < m_slots.size() && m_slots[slot].id && *m_slots[slot].id == id;
    };
    if (isAt(m_firstWaiting))
        return static_cast<int>(m_firstWaiting);
    if (!m_hasDuplicates) {
        // Rows mostly move in runs: the one behind the last one found is the likely one.
        const std::size_t next = m_waiting.next(m_lastFound);
        if (isAt(next))
            return static_cast<int>(next);
    }
    Bucket& bucket = bucketOf(id);
    std::int32_t slot = bucket.slot;
    while (slot != None && !m_waiting.contains(static_cast<std::size_t>(slot)))
        slot = m_slots[static_cast<std::size_t>(slot)].nextSameId;
    // Rows that were placed meanwhile are passed once; the last one stays, to keep its bucket.
    if (slot != None)
        bucket.slot = slot;
    return slot;
}

} // namespace Zorvane::GenericTreeViewModelHandling
