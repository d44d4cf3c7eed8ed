#include "Host/Widgets/ZVTreeViewModelPrivate.h"

#include <algorithm>
#include <utility>

namespace Zorvane {

ZVTreeViewModelPrivate::Root::Root(ZVTreeViewModelPrivate* owner)
    : model(owner)
{
    addState(IsRoot);
}

ZVTreeViewModelPrivate::ZVTreeViewModelPrivate(ZVTreeViewModel* model)
    : q(model)
    , root(this)
{}

ZVTreeViewModelPrivate::~ZVTreeViewModelPrivate()
{
    // Rows that callers have taken out are theirs, whether or not that has been announced.
    settleAll();
    root.deleteSubtree();
    while (!m_retired.empty())
        deleteRetired();
}

ZVTreeViewModelPrivate* ZVTreeViewModelPrivate::owning(const ZVTreeViewItem* row)
{
    while (row->m_parent)
        row = row->m_parent;
    return row->hasState(ZVTreeViewItem::IsRoot) ? static_cast<const Root*>(row)->model : nullptr;
}

ZVTreeViewItem* ZVTreeViewModelPrivate::shownParent(const ZVTreeViewItem* row)
{
    if (!row->hasState(ZVTreeViewItem::Relocated))
        return row->m_parent;
    return owning(row)->m_relocated.at(row);
}

ZVTreeViewModelPrivate* ZVTreeViewModelPrivate::showing(const ZVTreeViewItem* row)
{
    for (; row; row = shownParent(row)) {
        if (row->hasState(ZVTreeViewItem::Fresh))
            return nullptr;
        if (row->hasState(ZVTreeViewItem::IsRoot))
            return static_cast<const Root*>(row)->model;
    }
    return nullptr;
}

ZVTreeViewModelPrivate* ZVTreeViewModelPrivate::announcing(ZVTreeViewItem* row)
{
    if (row->m_children && row->m_children->isStaged())
        return nullptr;
    ZVTreeViewModelPrivate* model = showing(row);
    if (!model || !model->isGathering())
        return model;
    model->stage(row);
    return nullptr;
}

bool ZVTreeViewModelPrivate::isAttached(const ZVTreeViewItem* row)
{
    while (row && !row->hasState(ZVTreeViewItem::IsRoot))
        row = row->parent();
    return row != nullptr;
}

void ZVTreeViewModelPrivate::prepareMove(const ZVTreeViewItem* row, ZVTreeViewItem* newParent)
{
    if (!row->hasState(ZVTreeViewItem::Taken) || row->m_parent == newParent)
        return;
    ZVTreeViewModelPrivate* model = owning(row);
    if (model != owning(newParent)) {
        model->publish();
        return;
    }
    ZVTreeViewItem* top = newParent;
    while (ZVTreeViewItem* above = top->parent())
        top = above;
    // Its former parent may now come to be below it: the way to the root must not go in circles.
    if (top->hasState(ZVTreeViewItem::Taken) &&
        !top->hasState(ZVTreeViewItem::Fresh | ZVTreeViewItem::Relocated))
        model->hold(top);
}

void ZVTreeViewModelPrivate::hold(ZVTreeViewItem* row)
{
    const bool known = row->hasState(ZVTreeViewItem::Taken | ZVTreeViewItem::Relocated);
    if (known && !row->hasState(ZVTreeViewItem::Relocated))
        relocate(row);
    if (!known) {
        row->addState(ZVTreeViewItem::Fresh);
        m_held.insert(row);
    }
    row->addState(ZVTreeViewItem::Taken);
    row->m_parent = &root;
}

void ZVTreeViewModelPrivate::putBack(ZVTreeViewItem* row, ZVTreeViewItem* parent, bool asShownRow)
{
    row->dropState(ZVTreeViewItem::Taken);
    if (row->hasState(ZVTreeViewItem::Fresh)) {
        m_held.erase(row);
        if (!asShownRow)
            row->dropState(ZVTreeViewItem::Fresh);
    } else if (!row->hasState(ZVTreeViewItem::Relocated)) {
        if (row->m_parent != parent)
            relocate(row);
    } else if (m_relocated.at(row) == parent) {
        m_relocated.erase(row);
        row->dropState(ZVTreeViewItem::Relocated);
        // Home again; below a new row it carried another number.
        row->m_row = parent->m_children->shownRowOf(row);
    }
}

void ZVTreeViewModelPrivate::leaveViews(ZVTreeViewItem* row)
{
    if (m_relocated.erase(row) > 0)
        row->dropState(ZVTreeViewItem::Relocated);
    if (row->hasState(ZVTreeViewItem::Taken)) {
        row->addState(ZVTreeViewItem::Fresh);
        row->m_parent = &root;
        m_held.insert(row);
    } else if (showing(row->m_parent)) {
        row->addState(ZVTreeViewItem::Fresh);
    }
}

QModelIndex ZVTreeViewModelPrivate::shownIndex(const ZVTreeViewItem* row, int column) const
{
    const ZVTreeViewItem* parent = shownParent(row);
    if (!parent)
        return {};
    // The index carries the row itself; callers change rows, so it is not const there.
    return q->createIndex(parent->m_children->shownRowOf(row), column,
                          const_cast<ZVTreeViewItem*>(row));
}

void ZVTreeViewModelPrivate::beginInsert(const ZVTreeViewItem* parent, int first, int count)
{
    q->beginInsertRows(shownIndex(parent), first, first + count - 1);
}

void ZVTreeViewModelPrivate::beginRemove(const ZVTreeViewItem* parent, int row)
{
    q->beginRemoveRows(shownIndex(parent), row, row);
}

void ZVTreeViewModelPrivate::closeBatch()
{
    // The outermost batch still counts as open while it is announced: what slots do joins it,
    // and so does what the end of deleted rows does.
    while (m_openBatches == 1 && !m_publishing && (hasGathered() || !m_retired.empty()))
        publish();
    --m_openBatches;
}

void ZVTreeViewModelPrivate::stage(ZVTreeViewItem* parent)
{
    ++m_edits;
    parent->children().stage(m_edits);
    m_staged.push_back(parent);
}

void ZVTreeViewModelPrivate::relocate(ZVTreeViewItem* row)
{
    m_relocated.emplace(row, row->m_parent);
    row->addState(ZVTreeViewItem::Relocated);
}

void ZVTreeViewModelPrivate::forgetRelocations()
{
    for (const auto& entry : std::exchange(m_relocated, {})) {
        auto* row = const_cast<ZVTreeViewItem*>(entry.first);
        row->dropState(ZVTreeViewItem::Relocated);
        if (row->hasState(ZVTreeViewItem::Taken)) {
            row->addState(ZVTreeViewItem::Fresh);
            m_held.insert(row);
        }
    }
}

void ZVTreeViewModelPrivate::letGoOfHeld()
{
    for (ZVTreeViewItem* row : std::exchange(m_held, {}))
        letGo(row);
}

void ZVTreeViewModelPrivate::letGo(ZVTreeViewItem* row)
{
    row->dropState(ZVTreeViewItem::Taken);
    row->dropState(ZVTreeViewItem::Fresh);
    row->m_parent = nullptr;
    row->m_row = -1;
}

void ZVTreeViewModelPrivate::valueChanged(ZVTreeViewItem* row, int column,
                                          const QVector<int>& roles)
{
    if (!isGathering()) {
        const QModelIndex index = shownIndex(row, column);
        if (column < headers.size())
            Q_EMIT q->dataChanged(index, index, roles);
        return;
    }
    if (column >= headers.size())
        return;
    ZVTreeViewItem* parent = shownParent(row);
    int& group = parent->m_children->changeGroup;
    if (group < 0) {
        group = static_cast<int>(m_changes.size());
        m_changes.push_back({parent, {}});
    }
    record(m_changes[static_cast<std::size_t>(group)], parent->m_children->shownRowOf(row), column,
           roles);
}

void ZVTreeViewModelPrivate::record(ChangeGroup& group, int row, int column,
                                    const QVector<int>& roles)
{
    constexpr std::size_t mostRanges = 8;
    for (auto range = group.ranges.rbegin(); range != group.ranges.rend(); ++range) {
        const bool sameCells =
            range->firstColumn <= column && column <= range->lastColumn && range->roles == roles;
        if (!sameCells || row < range->firstRow - 1 || row > range->lastRow + 1)
            continue;
        range->firstRow = std::min(range->firstRow, row);
        range->lastRow = std::max(range->lastRow, row);
        return;
    }
    group.ranges.push_back({row, row, column, column, roles});
    if (group.ranges.size() > mostRanges)
        mergeRanges(group);
}

void ZVTreeViewModelPrivate::joinNeighbours(ChangeGroup& group)
{
    auto& ranges = group.ranges;
    for (auto range = ranges.begin(); range != ranges.end();) {
        const auto touches = [range](const ValueRange& other) {
            return other.firstColumn == range->firstColumn &&
                   other.lastColumn == range->lastColumn && other.roles == range->roles &&
                   other.firstRow <= range->lastRow + 1 && range->firstRow <= other.lastRow + 1;
        };
        const auto other = std::find_if(ranges.begin(), range, touches);
        if (other == range) {
            ++range;
            continue;
        }
        other->firstRow = std::min(other->firstRow, range->firstRow);
        other->lastRow = std::max(other->lastRow, range->lastRow);
        // Grown, it may touch others in turn.
        ranges.erase(range);
        range = ranges.begin();
    }
}

void ZVTreeViewModelPrivate::mergeRanges(ChangeGroup& group)
{
    ValueRange merged = group.ranges.front();
    for (const ValueRange& range : group.ranges) {
        merged.firstRow = std::min(merged.firstRow, range.firstRow);
        merged.lastRow = std::max(merged.lastRow, range.lastRow);
        merged.firstColumn = std::min(merged.firstColumn, range.firstColumn);
        merged.lastColumn = std::max(merged.lastColumn, range.lastColumn);
        // No roles at all means every role, and stays so.
        if (range.roles.isEmpty())
            merged.roles.clear();
        for (int role : range.roles) {
            if (!merged.roles.isEmpty() && !merged.roles.contains(role))
                merged.roles.append(role);
        }
    }
    group.ranges.assign(1, merged);
}

void ZVTreeViewModelPrivate::deleteRetired()
{
    // The end of a row may retire further ones, of which views have to be told first.
    for (ZVTreeViewItem* row : std::exchange(m_retired, {})) {
        row->m_parent = nullptr;
        row->m_state = 0;
        delete row;
    }
}

} // namespace Zorvane
