#include "TreeModel/RowIndex.h"

#include <QtCore/QVariant>

namespace Zorvane::GenericTreeViewModelHandling {

bool readId(const ZVTreeViewItem* row, IdPlace place, IDCombiner& id)
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

bool hasId(const ZVTreeViewItem* row, IdPlace place, const IDCombiner& id)
{
    if (const IDCombiner* typed = typedId(row, place))
        return *typed == id;
    IDCombiner stored;
    return readId(row, place, stored) && stored == id;
}

RowIndex::RowIndex(const ZVTreeViewItem* parent, int first, IdPlace place)
    : m_first(first)
    , m_entries(static_cast<std::size_t>(parent->childCount() - first))
{
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        const ZVTreeViewItem* row = parent->child(first + static_cast<int>(i));
        m_entries[i].hasId = readId(row, place, m_entries[i].id);
        m_entries[i].isLeaf = row->childCount() == 0;
    }
}

int RowIndex::take(const IDCombiner& id)
{
    if (isEmpty())
        return None;
    const auto front = static_cast<std::int32_t>(m_front);
    const bool isInPlace = entry(front).hasId && entry(front).id == id;
    const std::int32_t found = isInPlace ? front : find(id);
    if (found == None)
        return None;
    entry(found).isLeft = false;
    m_next = found + 1;
    while (!isEmpty() && !m_entries[m_front].isLeft)
        ++m_front;
    return m_first + found;
}

std::int32_t RowIndex::find(const IDCombiner& id)
{
    if (m_buckets.empty())
        buildBuckets();
    // Rows mostly move along with their neighbours; without twins, the one that fits is the first.
    if (!m_hasTwins && m_next < static_cast<std::int32_t>(m_entries.size())) {
        const Entry& next = entry(m_next);
        if (next.isLeft && next.hasId && next.id == id)
            return m_next;
    }
    std::int32_t& bucket = bucketOf(id);
    // Those taken are passed once.
    while (bucket != None && !entry(bucket).isLeft && entry(bucket).next != None)
        bucket = entry(bucket).next;
    return bucket != None && entry(bucket).isLeft ? bucket : None;
}

/** Where the id is, or would be. */
std::int32_t& RowIndex::bucketOf(const IDCombiner& id)
{
    const std::size_t mask = m_buckets.size() - 1;
    std::size_t place = id.quickHash() & mask;
    while (m_buckets[place] != None && entry(m_buckets[place]).id != id)
        place = (place + 1) & mask;
    return m_buckets[place];
}

void RowIndex::buildBuckets()
{
    std::size_t count = 16;
    while (count < 2 * m_entries.size())
        count *= 2;
    m_buckets.assign(count, None);
    // From the back, so that chains of equal ids run forward.
    for (std::size_t i = m_entries.size(); i-- > m_front;) {
        if (!m_entries[i].hasId)
            continue;
        std::int32_t& bucket = bucketOf(m_entries[i].id);
        m_entries[i].next = bucket;
        m_hasTwins = m_hasTwins || bucket != None;
        bucket = static_cast<std::int32_t>(i);
    }
}

} // namespace Zorvane::GenericTreeViewModelHandling
