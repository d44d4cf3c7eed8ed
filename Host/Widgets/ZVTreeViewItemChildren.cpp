#include "Host/Widgets/ZVTreeViewItemChildren.h"

#include <algorithm>
#include <utility>

namespace Zorvane {

namespace {

/**
 * Making all rows wait again costs as much as shifting each of them so many times: done less often
 * than that, it at most doubles what the shifting costs.
 */
constexpr std::size_t ShiftsPerQueueing = 16;

std::size_t position(int index)
{
    return static_cast<std::size_t>(index);
}

ZVTreeViewItemChildren::Rows::const_iterator iteratorAt(const ZVTreeViewItemChildren::Rows& rows,
                                                        std::size_t index)
{
    return rows.begin() + static_cast<std::ptrdiff_t>(index);
}

} // namespace

int ZVTreeViewItemChildren::count() const
{
    const std::size_t size =
        m_stage ? m_stage->placed.size() + m_stage->waiting.count() : m_rows.size();
    return static_cast<int>(size);
}

ZVTreeViewItem* ZVTreeViewItemChildren::findStaged(std::size_t place) const
{
    const Rows& placed = m_stage->placed;
    if (place < placed.size())
        return placed[place];
    const std::size_t waiting = place - placed.size();
    if (waiting >= m_stage->waiting.count())
        return nullptr;
    return (*m_stage->queued)[m_stage->waiting.nth(waiting)];
}

int ZVTreeViewItemChildren::rowIn(const Rows& rows, const ZVTreeViewItem* child,
                                  std::size_t& numbered)
{
    const auto claimed = static_cast<std::size_t>(child->m_row);
    if (claimed < rows.size() && rows[claimed] == child)
        return child->m_row;
    for (; numbered < rows.size(); ++numbered)
        rows[numbered]->m_row = static_cast<int>(numbered);
    const auto renumbered = static_cast<std::size_t>(child->m_row);
    if (renumbered < rows.size() && rows[renumbered] == child)
        return child->m_row;
    // Moved below a new row inside a batch: the number it carries is the one it has there.
    return static_cast<int>(std::find(rows.begin(), rows.end(), child) - rows.begin());
}

int ZVTreeViewItemChildren::rowOf(const ZVTreeViewItem* child) const
{
    if (!m_stage)
        return rowIn(m_rows, child, m_numbered);
    // The row's number is the shown one, so its present position has to be looked for.
    const Rows& placed = m_stage->placed;
    const auto found = std::find(placed.begin(), placed.end(), child);
    m_stage->effort += static_cast<std::size_t>(found - placed.begin());
    if (found != placed.end())
        return static_cast<int>(found - placed.begin());
    int row = static_cast<int>(placed.size());
    std::size_t slot = 0;
    for (; (*m_stage->queued)[slot] != child; ++slot)
        row += m_stage->waiting.contains(slot) ? 1 : 0;
    m_stage->effort += slot;
    return row;
}

int ZVTreeViewItemChildren::shownRowOf(const ZVTreeViewItem* child) const
{
    return rowIn(shown(), child, m_numbered);
}

void ZVTreeViewItemChildren::insert(int index, ZVTreeViewItem* child)
{
    if (!m_stage) {
        m_rows.insert(iteratorAt(m_rows, position(index)), child);
        child->m_row = index;
        m_numbered = std::min(m_numbered, position(index));
        if (position(index) + 1 == m_rows.size() && m_numbered == position(index))
            ++m_numbered;
        return;
    }
    m_stage->edit();
    if (position(index) < m_stage->placed.size() && m_stage->effort > m_stage->mostEffort)
        queueAgain();
    Rows& placed = m_stage->placed;
    if (position(index) > placed.size())
        placeWaiting(position(index) - placed.size());
    m_stage->effort += placed.size() - position(index);
    placed.insert(iteratorAt(placed, position(index)), child);
    std::vector<int>& from = m_stage->placedFrom;
    from.insert(from.begin() + index, shownRowIfKnown(child));
}

void ZVTreeViewItemChildren::append(const QVector<ZVTreeViewItem*>& children)
{
    if (m_stage) {
        m_stage->edit();
        placeWaiting(m_stage->waiting.count());
        for (ZVTreeViewItem* child : children) {
            m_stage->placed.push_back(child);
            m_stage->placedFrom.push_back(shownRowIfKnown(child));
        }
        return;
    }
    m_rows.reserve(m_rows.size() + position(children.size()));
    for (ZVTreeViewItem* child : children) {
        child->m_row = static_cast<int>(m_rows.size());
        if (m_numbered == m_rows.size())
            ++m_numbered;
        m_rows.push_back(child);
    }
}

ZVTreeViewItem* ZVTreeViewItemChildren::take(int index)
{
    if (!m_stage) {
        m_numbered = std::min(m_numbered, position(index));
        ZVTreeViewItem* child = m_rows[position(index)];
        m_rows.erase(iteratorAt(m_rows, position(index)));
        return child;
    }
    if (position(index) < m_stage->placed.size() && m_stage->effort > m_stage->mostEffort)
        queueAgain();
    const std::size_t placed = m_stage->placed.size();
    if (position(index) < placed)
        return takePlaced(position(index));
    return takeWaiting(m_stage->waiting.nth(position(index) - placed));
}

void ZVTreeViewItemChildren::take(const ZVTreeViewItem* child)
{
    if (m_stage) {
        const std::size_t slot = slotOf(child);
        if (m_stage->waiting.contains(slot)) {
            takeWaiting(slot);
            return;
        }
    }
    take(rowOf(child));
}

/** Where the child is in the queue, in which it need not wait any more; else a slot behind it. */
std::size_t ZVTreeViewItemChildren::slotOf(const ZVTreeViewItem* child) const
{
    if (m_stage->queue)
        return slotInQueue(child);
    const bool isShown = !child->hasState(ZVTreeViewItem::Fresh | ZVTreeViewItem::Relocated);
    return isShown ? position(rowIn(m_stage->shown, child, m_numbered)) : m_stage->shown.size();
}

std::size_t ZVTreeViewItemChildren::slotInQueue(const ZVTreeViewItem* child) const
{
    const Queue& queue = *m_stage->queue;
    std::size_t slot = queue.rows.size();
    if (child->hasState(ZVTreeViewItem::Fresh)) {
        // Without a number among the shown rows, it carries its slot instead.
        slot = position(child->m_row);
    } else if (!child->hasState(ZVTreeViewItem::Relocated)) {
        const std::size_t shownRow = position(rowIn(m_stage->shown, child, m_numbered));
        if (shownRow < queue.slotOfShown.size())
            slot = position(queue.slotOfShown[shownRow]);
    }
    const bool isThere = slot < queue.rows.size() && queue.rows[slot] == child;
    return isThere ? slot : queue.rows.size();
}

/** All rows wait, in their present order; those placed are none. */
void ZVTreeViewItemChildren::queueAgain()
{
    placeWaiting(m_stage->waiting.count());
    auto queue = std::make_unique<Queue>();
    queue->rows = std::exchange(m_stage->placed, {});
    queue->from = std::exchange(m_stage->placedFrom, {});
    queue->slotOfShown.assign(m_stage->shown.size(), -1);
    for (std::size_t slot = 0; slot < queue->rows.size(); ++slot) {
        // While views are being told, they may see fewer rows already; -1 is a large one here.
        const std::size_t shownRow = position(queue->from[slot]);
        if (shownRow < queue->slotOfShown.size())
            queue->slotOfShown[shownRow] = static_cast<int>(slot);
        else if (queue->rows[slot]->hasState(ZVTreeViewItem::Fresh))
            queue->rows[slot]->m_row = static_cast<int>(slot);
    }
    m_stage->waiting = WaitingSlots(queue->rows.size());
    m_stage->queue = std::move(queue);
    m_stage->queued = &m_stage->queue->rows;
    allowEffort();
}

void ZVTreeViewItemChildren::allowEffort()
{
    m_stage->mostEffort = m_stage->effort + ShiftsPerQueueing * position(count());
}

ZVTreeViewItem* ZVTreeViewItemChildren::takePlaced(std::size_t index)
{
    Rows& placed = m_stage->placed;
    std::vector<int>& from = m_stage->placedFrom;
    ZVTreeViewItem* child = placed[index];
    m_stage->edit();
    m_stage->lastTaken = child;
    m_stage->lastTakenFrom = from[index];
    m_stage->effort += placed.size() - index;
    placed.erase(iteratorAt(placed, index));
    from.erase(from.begin() + static_cast<std::ptrdiff_t>(index));
    return child;
}

ZVTreeViewItem* ZVTreeViewItemChildren::takeWaiting(std::size_t slot)
{
    const Queue* queue = m_stage->queue.get();
    ZVTreeViewItem* child = (*m_stage->queued)[slot];
    m_stage->edit();
    m_stage->lastTaken = child;
    m_stage->lastTakenFrom = queue ? queue->from[slot] : static_cast<int>(slot);
    m_stage->waiting.take(slot);
    return child;
}

int ZVTreeViewItemChildren::shownRowIfKnown(const ZVTreeViewItem* child) const
{
    if (child->hasState(ZVTreeViewItem::Fresh | ZVTreeViewItem::Relocated))
        return -1;
    if (child == m_stage->lastTaken)
        return m_stage->lastTakenFrom;
    const int row = rowIn(m_stage->shown, child, m_numbered);
    return position(row) < m_stage->shown.size() ? row : -1;
}

void ZVTreeViewItemChildren::placeWaiting(std::size_t count)
{
    Rows& placed = m_stage->placed;
    std::vector<int>& from = m_stage->placedFrom;
    std::size_t next = placed.size();
    placed.resize(next + count);
    from.resize(next + count);
    const Queue* queue = m_stage->queue.get();
    m_stage->waiting.takeFirst(count, [&, &queued = *m_stage->queued](std::size_t slot) {
        placed[next] = queued[slot];
        from[next++] = queue ? queue->from[slot] : static_cast<int>(slot);
    });
}

void ZVTreeViewItemChildren::stage(unsigned& edits)
{
    m_stage = std::make_unique<Stage>(std::move(m_rows), edits);
    m_rows.clear();
    allowEffort();
}

const ZVTreeViewItemChildren::Rows& ZVTreeViewItemChildren::arranged()
{
    m_stage->placed.reserve(position(count()));
    m_stage->placedFrom.reserve(position(count()));
    placeWaiting(m_stage->waiting.count());
    m_stage->dirty = false;
    return m_stage->placed;
}

void ZVTreeViewItemChildren::renumberShown(std::size_t first)
{
    m_numbered = std::min(m_numbered, first);
}

void ZVTreeViewItemChildren::welcome(int first, int count)
{
    for (int row = first; row < first + count; ++row) {
        ZVTreeViewItem* child = m_stage->shown[position(row)];
        child->dropState(ZVTreeViewItem::Fresh);
        // Each is at hand here; numbered later they would all have to be visited once more.
        child->m_row = row;
    }
}

void ZVTreeViewItemChildren::restage()
{
    const Rows& shown = m_stage->shown;
    for (; m_numbered < shown.size(); ++m_numbered)
        shown[m_numbered]->m_row = static_cast<int>(m_numbered);
    // The shown rows that are told of those in the queue hold no longer.
    placeWaiting(m_stage->waiting.count());
    m_stage->lastTaken = nullptr;
    for (std::size_t i = 0; i < m_stage->placed.size(); ++i) {
        const ZVTreeViewItem* row = m_stage->placed[i];
        const auto claimed = static_cast<std::size_t>(row->m_row);
        const bool known = claimed < shown.size() && shown[claimed] == row;
        m_stage->placedFrom[i] = known ? row->m_row : -1;
    }
}

void ZVTreeViewItemChildren::unstage()
{
    m_rows = std::move(m_stage->shown);
    m_stage.reset();
}

ZVTreeViewItemChildren::Rows ZVTreeViewItemChildren::release()
{
    Rows rows;
    if (m_stage) {
        arranged();
        rows = std::move(m_stage->placed);
        m_stage.reset();
    }
    rows.insert(rows.end(), m_rows.begin(), m_rows.end());
    m_rows.clear();
    m_numbered = 0;
    return rows;
}

} // namespace Zorvane
