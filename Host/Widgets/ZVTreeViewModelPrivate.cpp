// Rows and their numbers, and how values are announced; for lists see ZVTreeViewModelArranging.cpp.

#include "Host/Widgets/ZVTreeViewModelPrivate.h"

#include <QtCore/QPointer>

#include <algorithm>
#include <climits>
#include <utility>

namespace Zorvane {

namespace {

/** As views hear of them: an empty list means every role. */
QVector<int> announcedRoles(const std::vector<int>& stored)
{
    QVector<int> roles;
    for (const int role : stored) {
        if (role == ZVTreeViewModelPrivate::AnyRole)
            return {};
        roles.append(role);
        // One value under two roles.
        if (role == Qt::DisplayRole)
            roles.append(Qt::EditRole);
    }
    return roles;
}

/** Calls something of others; what it throws is a warning. */
template <typename Task>
void callGuarded(const Task& task, const char* what)
{
    try {
        task();
    } catch (const std::exception& error) {
        qWarning("%s threw: %s", what, error.what());
    } catch (...) {
        qWarning("%s threw", what);
    }
}

} // namespace

int ZVTreeViewItemChildren::rowOf(const ZVTreeViewItem* child) const
{
    const auto claimed = static_cast<std::size_t>(child->m_row);
    if (claimed < rows.size() && rows[claimed] == child)
        return child->m_row;
    for (; numbered < rows.size(); ++numbered)
        rows[numbered]->m_row = static_cast<int>(numbered);
    return child->m_row;
}

void ZVTreeViewItemChildren::insert(int index, ZVTreeViewItem* const* added, int count)
{
    const auto first = static_cast<std::size_t>(index);
    // Rows behind the others get their numbers at once: they are at hand.
    if (first == rows.size() && numbered == first)
        numbered += static_cast<std::size_t>(count);
    renumber(first + static_cast<std::size_t>(count));
    rows.insert(rows.begin() + index, added, added + count);
    for (int row = 0; row < count; ++row)
        added[row]->m_row = index + row;
}

void ZVTreeViewItemChildren::erase(int index, int count)
{
    rows.erase(rows.begin() + index, rows.begin() + index + count);
    renumber(static_cast<std::size_t>(index));
}

void ZVTreeViewItemChildren::renumber(std::size_t first)
{
    numbered = std::min(numbered, first);
}

ZVTreeViewModelPrivate::ZVTreeViewModelPrivate(ZVTreeViewModel* model)
    : q(model)
{
    root.children().owner = this;
}

ZVTreeViewModelPrivate::~ZVTreeViewModelPrivate()
{
    Q_ASSERT_X(!isRefreshing(), "ZVTreeViewModel", "a model is deleted while it is refreshed");
    root.deleteSubtree();
}

QModelIndex ZVTreeViewModelPrivate::indexOf(const ZVTreeViewItem* row, int column) const
{
    if (!row || !row->parent())
        return {};
    // The index carries the row itself; callers change rows, so it is not const there.
    return q->createIndex(row->row(), column, const_cast<ZVTreeViewItem*>(row));
}

bool ZVTreeViewModelPrivate::canChangeStructure() const
{
    if (!isRefreshing() && !m_isArranging)
        return true;
    qWarning("Rows cannot be inserted or taken while the tree model announces other changes");
    return false;
}

void ZVTreeViewModelPrivate::endRefresh()
{
    if (m_refreshes == 1) {
        announceValues();
        if (std::exchange(m_isResetting, false))
            callGuarded([this] { q->endResetModel(); }, "A slot of a tree model's reset");
    }
    if (--m_refreshes > 0)
        return;
    // From here on, rows that are deleted and slots may do anything, also to the model.
    const QPointer<ZVTreeViewModel> model = q;
    const auto tasks = std::exchange(m_tasks, {});
    std::exchange(m_buried, {}).clear();
    if (model && std::exchange(m_isPublished, false))
        callGuarded([this] { Q_EMIT q->published(); }, "A slot of a refreshed tree model");
    for (const auto& task : tasks) {
        if (model)
            callGuarded(task, "What was put off until a tree model was refreshed");
    }
}

void ZVTreeViewModelPrivate::startOver(const char* reason)
{
    qWarning("A slot threw while a tree model announced changes%s", reason);
    m_isResetting = true;
    // The reset: views have got half of a change, and the rest cannot be announced.
    callGuarded([this] { q->beginResetModel(); }, "A slot of a tree model's reset");
}

void ZVTreeViewModelPrivate::valueChanged(const ZVTreeViewItem* row, int column, int role)
{
    if (column >= headers.size())
        return;
    if (isRefreshing()) {
        record(row, column, role);
        return;
    }
    const QModelIndex index = indexOf(row, column);
    Q_EMIT q->dataChanged(index, index, announcedRoles({role}));
}

void ZVTreeViewModelPrivate::record(const ZVTreeViewItem* row, int column, int role)
{
    ZVTreeViewItem* parent = row->parent();
    int& group = parent->m_children->changeGroup;
    if (group < 0) {
        group = static_cast<int>(m_changed.size());
        m_changed.push_back({parent, row->row(), row->row(), column, column, {role}});
    }
    ChangedValues& changed = m_changed[static_cast<std::size_t>(group)];
    // While rows are on their way, any row of the list may be meant at the end.
    changed.firstRow = m_isArranging ? 0 : std::min(changed.firstRow, row->row());
    changed.lastRow = m_isArranging ? INT_MAX : std::max(changed.lastRow, row->row());
    changed.firstColumn = std::min(changed.firstColumn, column);
    changed.lastColumn = std::max(changed.lastColumn, column);
    if (std::find(changed.roles.begin(), changed.roles.end(), role) == changed.roles.end())
        changed.roles.push_back(role);
}

void ZVTreeViewModelPrivate::announceValues()
{
    if (!m_changed.empty())
        publish({});
    // Slots may write further values.
    while (!m_changed.empty()) {
        const auto all = std::exchange(m_changed, {});
        for (const ChangedValues& changed : all)
            changed.parent->m_children->changeGroup = -1;
        for (const ChangedValues& changed : all)
            announce(changed);
    }
}

void ZVTreeViewModelPrivate::announce(const ChangedValues& changed)
{
    const ZVTreeViewItemChildren& list = *changed.parent->m_children;
    if (list.owner != this || list.rows.empty())
        return;
    const int last = std::min(changed.lastRow, list.count() - 1);
    const int first = changed.firstRow;
    const QModelIndex from =
        q->createIndex(first, changed.firstColumn, changed.parent->child(first));
    const QModelIndex to = q->createIndex(last, changed.lastColumn, changed.parent->child(last));
    announce([&] { Q_EMIT q->dataChanged(from, to, announcedRoles(changed.roles)); });
}

} // namespace Zorvane
