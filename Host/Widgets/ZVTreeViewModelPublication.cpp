// How the changes that a batch has gathered are announced to views.
//
// Values come first, in the old structure: a sorted proxy that learns of a value after the rows
// have moved goes out of step. Rows follow, either as a handful of exact ranges or, since every
// range costs each proxy and each persistent index, by one change of layout.

#include "Host/Widgets/ZVTreeViewModelPrivate.h"

#include <algorithm>
#include <utility>

namespace Zorvane {

namespace {

/** So many ranges, over the whole batch, are announced exactly. */
constexpr std::size_t MostExactRanges = 8;

/**
 * A list of more cells than this keeps its row count during a change of layout: selection models
 * take a selection of all of it for "everything" and would select what is new, too.
 */
constexpr int MostCellsOfVaryingList = 1000;

} // namespace

void ZVTreeViewModelPrivate::publish()
{
    if (m_publishing) {
        // A slot deletes a row that is just being announced; only a reset leaves no view behind.
        startOver();
        return;
    }
    m_publishing = true;
    ++m_openBatches;
    if (hasGathered()) {
        try {
            publishRounds();
        } catch (const std::exception& error) {
            startOver();
            qWarning("A slot threw while a tree model announced changes: %s", error.what());
        } catch (...) {
            startOver();
            qWarning("A slot threw while a tree model announced changes");
        }
    }
    --m_openBatches;
    m_publishing = false;
    deleteRetired();
}

void ZVTreeViewModelPrivate::publishRounds()
{
    Q_EMIT q->aboutToPublish();
    // Slots may change rows, too; what they gather is announced in a further round.
    while (hasGathered()) {
        const unsigned resets = m_resets;
        announceValues();
        Plan plan = makePlan();
        const bool done =
            resets == m_resets && (isExact(plan) ? announceExactly(plan) : announceByLayout(plan));
        if (done)
            finish(plan);
    }
    Q_EMIT q->published();
}

void ZVTreeViewModelPrivate::announceValues()
{
    const std::vector<ChangeGroup> changes = std::exchange(m_changes, {});
    for (const ChangeGroup& group : changes)
        group.parent->m_children->changeGroup = -1;
    const unsigned resets = m_resets;
    for (const ChangeGroup& group : changes) {
        if (!isAttached(group.parent))
            continue;
        const ZVTreeViewItemChildren& children = *group.parent->m_children;
        for (const ValueRange& range : group.ranges) {
            const QModelIndex first =
                q->createIndex(range.firstRow, range.firstColumn, children.shownAt(range.firstRow));
            const QModelIndex last =
                q->createIndex(range.lastRow, range.lastColumn, children.shownAt(range.lastRow));
            Q_EMIT q->dataChanged(first, last, range.roles);
            if (resets != m_resets)
                return;
        }
    }
}

ZVTreeViewModelPrivate::Plan ZVTreeViewModelPrivate::makePlan() const
{
    Plan plan;
    plan.reserve(m_staged.size());
    for (ZVTreeViewItem* parent : m_staged)
        plan.push_back(planFor(parent));
    return plan;
}

ZVTreeViewModelPrivate::ListPlan ZVTreeViewModelPrivate::planFor(ZVTreeViewItem* parent) const
{
    const auto extend = [](std::vector<RowRange>& ranges, int row) {
        if (!ranges.empty() && ranges.back().first + ranges.back().count == row)
            ++ranges.back().count;
        else
            ranges.push_back({row, 1});
    };
    ListPlan list{};
    list.parent = parent;
    list.attached = isAttached(parent);
    list.target = parent->m_children->arranged();
    const Rows& shown = parent->m_children->editShown();
    std::vector<bool> stays(shown.size(), false);
    int lastRow = -1;
    for (std::size_t i = 0; i < list.target.size(); ++i) {
        ZVTreeViewItem* row = list.target[i];
        const auto before = static_cast<std::size_t>(row->m_row);
        const bool known = !row->hasState(ZVTreeViewItem::Fresh | ZVTreeViewItem::Relocated) &&
                           before < shown.size() && shown[before] == row;
        if (!known) {
            list.arriving.push_back(row);
            extend(list.inserted, static_cast<int>(i));
            continue;
        }
        stays[before] = true;
        list.reordered = list.reordered || row->m_row < lastRow;
        lastRow = row->m_row;
    }
    for (std::size_t i = 0; i < shown.size(); ++i) {
        if (stays[i])
            continue;
        list.leaving.push_back(shown[i]);
        extend(list.removed, static_cast<int>(i));
    }
    return list;
}

bool ZVTreeViewModelPrivate::isExact(const Plan& plan) const
{
    std::size_t ranges = 0;
    for (const ListPlan& list : plan) {
        if (!list.attached)
            continue;
        ranges += list.removed.size() + list.inserted.size();
        if (list.reordered || ranges > MostExactRanges)
            return false;
    }
    return m_relocated.empty();
}

bool ZVTreeViewModelPrivate::announceExactly(Plan& plan)
{
    for (ListPlan& list : plan) {
        if (list.attached && (!announceRemoved(list) || !announceInserted(list)))
            return false;
    }
    return true;
}

bool ZVTreeViewModelPrivate::announceRemoved(ListPlan& list)
{
    const unsigned resets = m_resets;
    const QModelIndex parent = shownIndex(list.parent);
    ZVTreeViewItemChildren& children = *list.parent->m_children;
    for (auto range = list.removed.rbegin(); range != list.removed.rend(); ++range) {
        q->beginRemoveRows(parent, range->first, range->first + range->count - 1);
        if (resets != m_resets)
            return false;
        Rows& shown = children.editShown();
        const auto first = shown.begin() + range->first;
        shown.erase(first, first + range->count);
        children.numberShown(static_cast<std::size_t>(range->first));
        q->endRemoveRows();
        if (resets != m_resets)
            return false;
    }
    return true;
}

bool ZVTreeViewModelPrivate::announceInserted(ListPlan& list)
{
    const unsigned resets = m_resets;
    const QModelIndex parent = shownIndex(list.parent);
    ZVTreeViewItemChildren& children = *list.parent->m_children;
    for (const RowRange& range : list.inserted) {
        q->beginInsertRows(parent, range.first, range.first + range.count - 1);
        if (resets != m_resets)
            return false;
        Rows& shown = children.editShown();
        const auto source = list.target.begin() + range.first;
        shown.insert(shown.begin() + range.first, source, source + range.count);
        std::for_each(source, source + range.count,
                      [](auto* row) { row->dropState(ZVTreeViewItem::Fresh); });
        children.numberShown(static_cast<std::size_t>(range.first));
        q->endInsertRows();
        if (resets != m_resets)
            return false;
    }
    return true;
}

bool ZVTreeViewModelPrivate::announceByLayout(Plan& plan)
{
    // A row that changes its parent cannot be shown twice meanwhile, so then all counts vary.
    for (ListPlan& list : plan) {
        const auto rows = std::max(list.target.size(), list.parent->m_children->editShown().size());
        list.keepsCount =
            m_relocated.empty() && static_cast<int>(rows) * headers.size() > MostCellsOfVaryingList;
        if (list.attached && list.keepsCount && !appendArriving(list))
            return false;
    }
    if (!changeLayout(plan))
        return false;
    const unsigned resets = m_resets;
    for (ListPlan& list : plan) {
        if (list.attached && list.keepsCount)
            removeLeaving(list);
        if (resets != m_resets)
            return false;
    }
    return true;
}

bool ZVTreeViewModelPrivate::appendArriving(ListPlan& list)
{
    if (list.arriving.empty())
        return true;
    const unsigned resets = m_resets;
    ZVTreeViewItemChildren& children = *list.parent->m_children;
    const int first = children.shownCount();
    q->beginInsertRows(shownIndex(list.parent), first,
                       first + static_cast<int>(list.arriving.size()) - 1);
    if (resets != m_resets)
        return false;
    Rows& shown = children.editShown();
    shown.insert(shown.end(), list.arriving.begin(), list.arriving.end());
    for (ZVTreeViewItem* row : list.arriving)
        row->dropState(ZVTreeViewItem::Fresh);
    children.numberShown(static_cast<std::size_t>(first));
    q->endInsertRows();
    return resets == m_resets;
}

bool ZVTreeViewModelPrivate::changeLayout(Plan& plan)
{
    const unsigned resets = m_resets;
    // No parents named: a sorted proxy only follows a change of layout that may be anywhere.
    Q_EMIT q->layoutAboutToBeChanged();
    if (resets != m_resets)
        return false;
    const QModelIndexList before = q->persistentIndexList();
    for (ListPlan& list : plan) {
        for (ZVTreeViewItem* row : list.leaving) {
            if (!list.keepsCount && list.attached && !isAttached(row))
                row->addState(ZVTreeViewItem::Leaving);
        }
    }
    std::vector<const ZVTreeViewItem*> gone;
    for (const QModelIndex& index : before) {
        const auto* row = static_cast<const ZVTreeViewItem*>(index.internalPointer());
        if (leavesWithLayout(row))
            gone.push_back(row);
    }
    std::sort(gone.begin(), gone.end());
    for (ListPlan& list : plan)
        showTarget(list);
    forgetRelocations();
    QModelIndexList from;
    QModelIndexList to;
    for (const QModelIndex& index : before) {
        const auto* row = static_cast<const ZVTreeViewItem*>(index.internalPointer());
        const bool leaves = std::binary_search(gone.begin(), gone.end(), row);
        const QModelIndex now = leaves ? QModelIndex() : shownIndex(row, index.column());
        if (now != index) {
            from.append(index);
            to.append(now);
        }
    }
    q->changePersistentIndexList(from, to);
    Q_EMIT q->layoutChanged();
    return resets == m_resets;
}

bool ZVTreeViewModelPrivate::leavesWithLayout(const ZVTreeViewItem* row) const
{
    if (!m_relocated.empty())
        return !isAttached(row);
    for (; row; row = row->m_parent) {
        if (row->hasState(ZVTreeViewItem::Leaving))
            return true;
    }
    return false;
}

void ZVTreeViewModelPrivate::showTarget(ListPlan& list) const
{
    if (!list.attached)
        return;
    Rows& shown = list.parent->m_children->editShown();
    shown = list.target;
    for (ZVTreeViewItem* row : list.arriving)
        row->dropState(ZVTreeViewItem::Fresh);
    if (list.keepsCount)
        shown.insert(shown.end(), list.leaving.begin(), list.leaving.end());
    list.parent->m_children->numberShown();
}

void ZVTreeViewModelPrivate::removeLeaving(ListPlan& list)
{
    if (list.leaving.empty())
        return;
    const unsigned resets = m_resets;
    ZVTreeViewItemChildren& children = *list.parent->m_children;
    q->beginRemoveRows(shownIndex(list.parent), static_cast<int>(list.target.size()),
                       children.shownCount() - 1);
    if (resets != m_resets)
        return;
    children.editShown().resize(list.target.size());
    q->endRemoveRows();
}

void ZVTreeViewModelPrivate::finish(Plan& plan)
{
    std::vector<ZVTreeViewItem*> stillStaged(
        m_staged.begin() + static_cast<std::ptrdiff_t>(plan.size()), m_staged.end());
    for (ListPlan& list : plan) {
        settle(list);
        if (list.parent->m_children->isDirty())
            stillStaged.push_back(list.parent);
        else
            list.parent->m_children->unstage();
    }
    m_staged = std::move(stillStaged);
}

void ZVTreeViewModelPrivate::settle(ListPlan& list) const
{
    if (!list.attached) {
        list.parent->m_children->editShown() = list.target;
        list.parent->m_children->numberShown();
        for (ZVTreeViewItem* row : list.arriving)
            row->dropState(ZVTreeViewItem::Fresh);
    }
    for (ZVTreeViewItem* row : list.leaving) {
        row->dropState(ZVTreeViewItem::Leaving);
        if (!row->hasState(ZVTreeViewItem::Taken) || row->m_parent != list.parent)
            continue;
        letGo(row);
    }
}

void ZVTreeViewModelPrivate::startOver()
{
    ++m_resets;
    m_changes.clear();
    Plan plan = makePlan();
    // The reset: views have been told half of a change and there is no way to tell the rest.
    q->beginResetModel();
    for (ListPlan& list : plan) {
        list.attached = false;
        list.parent->m_children->changeGroup = -1;
    }
    forgetRelocations();
    finish(plan);
    q->endResetModel();
}

} // namespace Zorvane
