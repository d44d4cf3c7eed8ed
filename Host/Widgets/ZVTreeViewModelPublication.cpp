// How the changes that a batch has gathered are announced to views.
//
// Values come first, in the old structure: a sorted proxy that learns of a value after the rows
// have moved goes out of step. Rows follow, either as a handful of exact ranges or, since every
// range costs each proxy and each persistent index, by one change of layout.

#include "Host/Widgets/ZVTreeViewModelPrivate.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace Zorvane {

namespace {

/** So many ranges, over the whole batch, are announced exactly. */
constexpr std::size_t MostExactRanges = 8;

/**
 * A list of more cells than this keeps its row count during a change of layout, or has a guard:
 * selection models take a selection of all of it for "everything" and would select what is new,
 * too, or forget all when the list gets shorter.
 */
constexpr int MostCellsOfVaryingList = 1000;

/** False when a slot threw; what there is to be known of it is told as a warning. */
template <typename Emitter>
bool guarded(Emitter emitter)
{
    try {
        emitter();
        return true;
    } catch (const std::exception& error) {
        qWarning("A slot threw while a tree model announced changes: %s", error.what());
    } catch (...) {
        qWarning("A slot threw while a tree model announced changes");
    }
    return false;
}

} // namespace

void ZVTreeViewModelPrivate::publish()
{
    if (m_publishing) {
        // A slot deletes a row that views may know; only a reset leaves none of them behind.
        startOver();
        return;
    }
    m_publishing = true;
    ++m_openBatches;
    dropUnchanged();
    // Slots of the last signals may change rows, too.
    while (hasGathered())
        publishGathered();
    letGoOfHeld();
    --m_openBatches;
    m_publishing = false;
    deleteRetired();
}

void ZVTreeViewModelPrivate::dropUnchanged()
{
    const auto isUnchanged = [](ZVTreeViewItem* parent) {
        ZVTreeViewItemChildren& children = *parent->m_children;
        if (children.arranged() != children.editShown())
            return false;
        children.unstage();
        return true;
    };
    m_staged.erase(std::remove_if(m_staged.begin(), m_staged.end(), isUnchanged), m_staged.end());
}

void ZVTreeViewModelPrivate::publishGathered()
{
    const bool whole = guarded([this] { publishRounds(); });
    if (!whole)
        startOver();
    // Nothing is half told any more: a slot may delete rows like everybody else.
    m_publishing = false;
    guarded([this] { Q_EMIT q->published(); });
    m_publishing = true;
}

void ZVTreeViewModelPrivate::publishRounds()
{
    Q_EMIT q->aboutToPublish();
    // Slots may change rows; what they gather is announced in a further round.
    while (hasGathered()) {
        while (!m_changes.empty())
            announceValues();
        m_plannedEdits = m_edits;
        m_plannedResets = m_resets;
        Plan plan = makePlan();
        const bool done = isExact(plan) ? announceExactly(plan) : announceByLayout(plan);
        if (m_resets == m_plannedResets)
            finish(plan, done);
    }
}

void ZVTreeViewModelPrivate::announceValues()
{
    const std::vector<ChangeGroup> changes = std::exchange(m_changes, {});
    for (const ChangeGroup& group : changes) {
        if (group.parent)
            group.parent->m_children->changeGroup = -1;
    }
    const unsigned resets = m_resets;
    for (const ChangeGroup& group : changes) {
        if (group.parent && isAttached(group.parent))
            announceGroup(group);
        if (resets != m_resets)
            return;
    }
}

void ZVTreeViewModelPrivate::announceGroup(const ChangeGroup& group)
{
    const ZVTreeViewItemChildren& children = *group.parent->m_children;
    // Where all of them are about to be announced gone, nobody needs their values any more.
    int staying = group.firstRow;
    while (staying <= group.lastRow && !isAttached(children.shownAt(staying)))
        ++staying;
    const int lastColumn = std::min(group.lastColumn, headers.size() - 1);
    if (staying > group.lastRow || group.firstColumn > lastColumn)
        return;
    Q_EMIT q->dataChanged(
        q->createIndex(group.firstRow, group.firstColumn, children.shownAt(group.firstRow)),
        q->createIndex(group.lastRow, lastColumn, children.shownAt(group.lastRow)), group.roles);
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
    const std::vector<int>& from = parent->m_children->arrangedFrom();
    for (std::size_t i = 0; i < list.target.size(); ++i) {
        const int before = from[i];
        if (before < 0) {
            list.arriving.push_back(list.target[i]);
            extend(list.inserted, static_cast<int>(i));
            continue;
        }
        stays[static_cast<std::size_t>(before)] = true;
        list.reordered = list.reordered || before < lastRow;
        lastRow = before;
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
    const QModelIndex parent = shownIndex(list.parent);
    ZVTreeViewItemChildren& children = *list.parent->m_children;
    for (auto range = list.removed.rbegin(); range != list.removed.rend(); ++range) {
        q->beginRemoveRows(parent, range->first, range->first + range->count - 1);
        if (m_resets != m_plannedResets)
            return false;
        Rows& shown = children.editShown();
        const auto first = shown.begin() + range->first;
        std::for_each(first, first + range->count, [this](auto* row) { leaveViews(row); });
        shown.erase(first, first + range->count);
        children.renumberShown(static_cast<std::size_t>(range->first));
        q->endRemoveRows();
        if (!isAsPlanned())
            return false;
    }
    return true;
}

bool ZVTreeViewModelPrivate::announceInserted(ListPlan& list)
{
    const QModelIndex parent = shownIndex(list.parent);
    ZVTreeViewItemChildren& children = *list.parent->m_children;
    for (const RowRange& range : list.inserted) {
        const auto source = list.target.begin() + range.first;
        q->beginInsertRows(parent, range.first, range.first + range.count - 1);
        if (!canInsert())
            return false;
        Rows& shown = children.editShown();
        shown.insert(shown.begin() + range.first, source, source + range.count);
        children.renumberShown(static_cast<std::size_t>(range.first));
        children.welcome(range.first, range.count);
        q->endInsertRows();
        if (!isAsPlanned())
            return false;
    }
    return true;
}

bool ZVTreeViewModelPrivate::canInsert()
{
    if (isAsPlanned())
        return true;
    // A slot may have taken the very rows whose insertion has just been told to views.
    if (m_resets == m_plannedResets)
        startOver();
    return false;
}

bool ZVTreeViewModelPrivate::announceByLayout(Plan& plan)
{
    // A row that changes its parent cannot be shown twice meanwhile, so then all counts vary.
    for (ListPlan& list : plan) {
        const auto rows = std::max(list.target.size(), list.parent->m_children->editShown().size());
        const bool isLong = static_cast<int>(rows) * headers.size() > MostCellsOfVaryingList;
        list.keepsCount = isLong && m_relocated.empty();
        if (!list.attached || !isLong)
            continue;
        if (!(list.keepsCount ? appendArriving(list) : appendGuard(list)))
            return false;
    }
    if (!changeLayout(plan))
        return false;
    return std::all_of(plan.begin(), plan.end(), [this](ListPlan& list) {
        return !list.attached || !list.keepsCount || removeLeaving(list);
    });
}

bool ZVTreeViewModelPrivate::appendArriving(ListPlan& list)
{
    if (list.arriving.empty())
        return true;
    ZVTreeViewItemChildren& children = *list.parent->m_children;
    const int first = children.shownCount();
    q->beginInsertRows(shownIndex(list.parent), first,
                       first + static_cast<int>(list.arriving.size()) - 1);
    if (!canInsert())
        return false;
    Rows& shown = children.editShown();
    shown.insert(shown.end(), list.arriving.begin(), list.arriving.end());
    children.renumberShown(static_cast<std::size_t>(first));
    children.welcome(first, static_cast<int>(list.arriving.size()));
    q->endInsertRows();
    return isAsPlanned();
}

bool ZVTreeViewModelPrivate::appendGuard(ListPlan& list)
{
    // With a further row, selected by nobody, no selection is taken for "everything".
    auto guard = std::make_unique<ZVTreeViewItem>();
    ZVTreeViewItemChildren& children = *list.parent->m_children;
    const int row = children.shownCount();
    q->beginInsertRows(shownIndex(list.parent), row, row);
    if (!canInsert())
        return false;
    guard->addState(ZVTreeViewItem::Taken);
    guard->m_parent = list.parent;
    children.editShown().push_back(guard.get());
    children.renumberShown(static_cast<std::size_t>(row));
    list.leaving.push_back(guard.get());
    retire(guard.release());
    q->endInsertRows();
    return isAsPlanned();
}

bool ZVTreeViewModelPrivate::changeLayout(Plan& plan)
{
    // No parents named: a sorted proxy only follows a change of layout that may be anywhere.
    Q_EMIT q->layoutAboutToBeChanged();
    if (m_resets != m_plannedResets)
        return false;
    if (!isAsPlanned()) {
        // A slot has changed rows: nothing moves this time, and the plan is made anew.
        Q_EMIT q->layoutChanged();
        return false;
    }
    const QModelIndexList before = q->persistentIndexList();
    markLeaving(plan);
    // Asked while rows are still where views see them: afterwards nothing tells them apart.
    const SortedRows gone = rowsThatLeave(before);
    showAll(plan);
    mapIndexes(before, gone);
    Q_EMIT q->layoutChanged();
    return isAsPlanned();
}

void ZVTreeViewModelPrivate::markLeaving(const Plan& plan)
{
    for (const ListPlan& list : plan) {
        for (ZVTreeViewItem* row : list.leaving) {
            if (!list.keepsCount && list.attached && !isAttached(row))
                row->addState(ZVTreeViewItem::Leaving);
        }
    }
}

ZVTreeViewModelPrivate::SortedRows
ZVTreeViewModelPrivate::rowsThatLeave(const QModelIndexList& indexes) const
{
    SortedRows gone;
    for (const QModelIndex& index : indexes) {
        const auto* row = static_cast<const ZVTreeViewItem*>(index.internalPointer());
        if (leavesWithLayout(row))
            gone.push_back(row);
    }
    std::sort(gone.begin(), gone.end());
    return gone;
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

void ZVTreeViewModelPrivate::showAll(Plan& plan)
{
    for (ListPlan& list : plan)
        showTarget(list);
    forgetRelocations();
    for (const ListPlan& list : plan)
        leaveWithLayout(list);
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
    list.parent->m_children->renumberShown();
}

void ZVTreeViewModelPrivate::leaveWithLayout(const ListPlan& list)
{
    if (!list.attached || list.keepsCount)
        return;
    for (ZVTreeViewItem* row : list.leaving) {
        row->dropState(ZVTreeViewItem::Leaving);
        if (row->hasState(ZVTreeViewItem::Taken) && row->m_parent == list.parent)
            leaveViews(row);
    }
}

void ZVTreeViewModelPrivate::mapIndexes(const QModelIndexList& indexes, const SortedRows& gone)
{
    QModelIndexList from;
    QModelIndexList to;
    for (const QModelIndex& index : indexes) {
        const auto* row = static_cast<const ZVTreeViewItem*>(index.internalPointer());
        const bool leaves = std::binary_search(gone.begin(), gone.end(), row);
        const QModelIndex now = leaves ? QModelIndex() : shownIndex(row, index.column());
        if (now != index) {
            from.append(index);
            to.append(now);
        }
    }
    q->changePersistentIndexList(from, to);
}

bool ZVTreeViewModelPrivate::removeLeaving(const ListPlan& list)
{
    if (list.leaving.empty())
        return true;
    ZVTreeViewItemChildren& children = *list.parent->m_children;
    q->beginRemoveRows(shownIndex(list.parent), static_cast<int>(list.target.size()),
                       children.shownCount() - 1);
    if (m_resets != m_plannedResets)
        return false;
    children.editShown().resize(list.target.size());
    for (ZVTreeViewItem* row : list.leaving)
        leaveViews(row);
    q->endRemoveRows();
    return isAsPlanned();
}

void ZVTreeViewModelPrivate::finish(const Plan& plan, bool done)
{
    std::vector<ZVTreeViewItem*> stillStaged(
        m_staged.begin() + static_cast<std::ptrdiff_t>(plan.size()), m_staged.end());
    for (const ListPlan& list : plan) {
        ZVTreeViewItemChildren& children = *list.parent->m_children;
        if (showing(list.parent) != this) {
            forgetHome(list.parent);
            settle(list.parent);
        } else if (done && !children.isDirty()) {
            children.unstage();
        } else {
            children.restage();
            stillStaged.push_back(list.parent);
        }
        widenChanges(children);
    }
    m_staged = std::move(stillStaged);
    for (ChangeGroup& group : m_changes) {
        if (!group.parent || showing(group.parent) == this)
            continue;
        group.parent->m_children->changeGroup = -1;
        group.parent = nullptr;
    }
}

void ZVTreeViewModelPrivate::forgetHome(ZVTreeViewItem* parent)
{
    // A slot has moved these out of what views no longer see: they are new where they are.
    for (ZVTreeViewItem* row : parent->m_children->editShown()) {
        const auto home = m_relocated.find(row);
        if (home != m_relocated.end() && home->second == parent)
            leaveViews(row);
    }
}

void ZVTreeViewModelPrivate::widenChanges(const ZVTreeViewItemChildren& children)
{
    if (children.changeGroup < 0)
        return;
    // Slots have told these while the rows were moving: any row of the list may be meant.
    ChangeGroup& group = m_changes[static_cast<std::size_t>(children.changeGroup)];
    group.firstRow = 0;
    group.lastRow = children.shownCount() - 1;
}

void ZVTreeViewModelPrivate::settle(ZVTreeViewItem* parent)
{
    ZVTreeViewItemChildren& children = *parent->m_children;
    const Rows& arranged = children.arranged();
    for (ZVTreeViewItem* row : children.editShown()) {
        if (row->hasState(ZVTreeViewItem::Taken) && row->m_parent == parent)
            leaveViews(row);
    }
    children.editShown() = arranged;
    children.renumberShown();
    for (ZVTreeViewItem* row : arranged)
        row->dropState(ZVTreeViewItem::Fresh);
    children.unstage();
}

void ZVTreeViewModelPrivate::settleAll()
{
    for (const ChangeGroup& group : std::exchange(m_changes, {})) {
        if (group.parent)
            group.parent->m_children->changeGroup = -1;
    }
    for (ZVTreeViewItem* parent : std::exchange(m_staged, {}))
        settle(parent);
    forgetRelocations();
    letGoOfHeld();
}

void ZVTreeViewModelPrivate::startOver()
{
    ++m_resets;
    // The reset: views have been told half of a change and there is no way to tell the rest.
    guarded([this] { q->beginResetModel(); });
    settleAll();
    guarded([this] { q->endResetModel(); });
}

} // namespace Zorvane
