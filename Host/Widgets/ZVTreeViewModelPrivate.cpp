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

bool ZVTreeViewModelPrivate::prepareMove(const ZVTreeViewItem* row, ZVTreeViewItem* newParent)
{
    if (!row->hasState(ZVTreeViewItem::Taken) || row->m_parent == newParent)
        return false;
    ZVTreeViewModelPrivate* model = owning(row);
    if (model != owning(newParent)) {
        model->publish();
        return true;
    }
    ZVTreeViewItem* top = newParent;
    while (ZVTreeViewItem* above = top->parent())
        top = above;
    // Its former parent may now come to be below it: the way to the root must not go in circles.
    if (top->hasState(ZVTreeViewItem::Taken) &&
        !top->hasState(ZVTreeViewItem::Fresh | ZVTreeViewItem::Relocated))
        model->hold(top);
    return false;
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
    const int shownRow = parent->m_children->shownRowOf(row);
    int& group = parent->m_children->changeGroup;
    if (group < 0) {
        group = static_cast<int>(m_changes.size());
        m_changes.push_back({parent, shownRow, shownRow, column, column, roles});
    }
    record(m_changes[static_cast<std::size_t>(group)], shownRow, column, roles);
}

void ZVTreeViewModelPrivate::record(ChangeGroup& group, int row, int column,
                                    const QVector<int>& roles)
{
    group.firstRow = std::min(group.firstRow, row);
    group.lastRow = std::max(group.lastRow, row);
    group.firstColumn = std::min(group.firstColumn, column);
    group.lastColumn = std::max(group.lastColumn, column);
    if (group.roles == roles)
        return;
    if (roles.isEmpty())
        group.roles.clear();
    for (int role : roles) {
        if (!group.roles.isEmpty() && !group.roles.contains(role))
            group.roles.append(role);
    }
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
