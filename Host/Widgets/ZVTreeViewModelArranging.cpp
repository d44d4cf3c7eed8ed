// How a plan is applied. Everything that can fail comes first; from the first signal on only slots
// can throw, and then the rest is done in silence inside a reset.

#include "Host/Widgets/ZVTreeViewModelPrivate.h"

#include <algorithm>
#include <typeinfo>
#include <utility>

namespace Zorvane {

namespace {

/** A list whose rows keep their order is announced by so many ranges at most. */
constexpr std::size_t fewRanges = 8;

/**
 * Each signal makes Qt look at every persistent index, of which a view has one for each row that is
 * expanded. With more looks than this, the layout change alone is cheaper: measured in
 * Docs/Architecture.md.
 */
constexpr std::size_t mostLooks = 100000;
/** What a signal costs besides. */
constexpr std::size_t leastLooks = 1000;

/**
 * A list of more cells than this keeps its row count during the layout change: selection models
 * take a selection of all of it for "everything" and would select what is new, too.
 */
constexpr std::size_t cellsOfShortList = 1000;

template <typename Ranges>
void extend(Ranges& ranges, int row)
{
    if (!ranges.empty() && ranges.back().first + ranges.back().count == row)
        ++ranges.back().count;
    else
        ranges.push_back({row, 1});
}

} // namespace

void ZVTreeViewModelPrivate::apply(ZVTreeViewPlan& plan)
{
    if (m_refreshes != 1 || m_isArranging) {
        qWarning("A plan for a tree model is ignored: another refresh is running");
        return;
    }
    std::vector<ListChange> changes;
    changes.reserve(plan.lists.size());
    for (const ZVTreeViewPlan::List& list : plan.lists)
        changes.push_back(changeOf(list));
    chooseHow(changes);
    std::size_t leaving = 0;
    for (const ListChange& change : changes)
        leaving += change.leaving.size();
    m_buried.reserve(m_buried.size() + leaving);
    writeTexts(plan.texts);
    if (!m_changed.empty() || !changes.empty())
        publish(changes);
    announceValues();
    for (ZVTreeViewPlan::List& list : plan.lists) {
        for (auto& row : list.created)
            row.release();
    }
    const QScopedValueRollback<bool> arranging(m_isArranging, true);
    arrange(changes);
}

ZVTreeViewModelPrivate::ListChange
ZVTreeViewModelPrivate::changeOf(const ZVTreeViewPlan::List& list)
{
    ZVTreeViewItemChildren& children = list.parent->children();
    const Rows& before = children.rows;
    const auto kept = static_cast<std::size_t>(list.kept);
    ListChange change;
    change.parent = list.parent;
    change.kept = list.kept;
    change.after.reserve(before.size() + list.created.size());
    change.after.assign(before.begin(), before.begin() + list.kept);
    std::vector<bool> stays(before.size(), false);
    int last = -1;
    for (const int from : list.rest) {
        if (from == ZVTreeViewPlan::Created) {
            extend(change.inserted, static_cast<int>(change.after.size()));
            change.arriving.push_back(list.created[change.arriving.size()].get());
            change.after.push_back(change.arriving.back());
            continue;
        }
        const auto place = static_cast<std::size_t>(from);
        Q_ASSERT(place >= kept && place < before.size() && !stays[place]);
        stays[place] = true;
        change.isReordered = change.isReordered || from < last;
        last = from;
        change.after.push_back(before[place]);
    }
    for (std::size_t place = kept; place < before.size(); ++place) {
        if (stays[place])
            continue;
        extend(change.removed, static_cast<int>(place));
        change.leaving.push_back(before[place]);
    }
    children.rows.reserve(before.size() + list.created.size());
    return change;
}

void ZVTreeViewModelPrivate::chooseHow(std::vector<ListChange>& changes) const
{
    std::size_t signalCount = 0;
    for (ListChange& change : changes) {
        const std::size_t ranges = change.removed.size() + change.inserted.size();
        const bool byRanges = !change.isReordered && ranges <= fewRanges;
        change.how = byRanges ? How::ByRanges : How::AroundLayout;
        const std::size_t around =
            (change.arriving.empty() ? 0 : 1) + (change.leaving.empty() ? 0 : 1);
        signalCount += byRanges ? ranges : around;
    }
    if (isExact || signalCount <= fewRanges)
        return;
    const auto indexes = static_cast<std::size_t>(q->persistentIndexList().size());
    if (signalCount * std::max(indexes, leastLooks) <= mostLooks)
        return;
    const auto columns = static_cast<std::size_t>(headers.size());
    for (ListChange& change : changes) {
        const std::size_t most = change.after.size() + change.leaving.size();
        if (most * columns <= cellsOfShortList)
            change.how = How::ByLayout;
    }
}

void ZVTreeViewModelPrivate::writeTexts(const std::vector<ZVTreeViewPlan::Text>& texts)
{
    for (const auto& [row, text] : texts) {
        // A class of its own may want to see the value.
        if (typeid(*row) != typeid(ZVTreeViewItem)) {
            row->setData(0, Qt::DisplayRole, QString::fromStdString(*text));
            continue;
        }
        if (row->hasText(*text))
            continue;
        row->storeText(*text);
        record(row, 0, Qt::DisplayRole);
    }
}

void ZVTreeViewModelPrivate::arrange(std::vector<ListChange>& changes)
{
    const auto goesBy = [](How how) {
        return [how](const ListChange& change) { return change.how == how; };
    };
    for (ListChange& change : changes) {
        if (change.how == How::ByRanges) {
            removeRanges(change);
            insertRanges(change);
        } else if (change.how == How::AroundLayout) {
            appendArriving(change);
        }
    }
    if (!std::all_of(changes.begin(), changes.end(), goesBy(How::ByRanges)))
        changeLayout(changes);
    for (ListChange& change : changes) {
        if (change.how == How::AroundLayout)
            removeLeaving(change);
    }
}

void ZVTreeViewModelPrivate::removeRanges(ListChange& change)
{
    const QModelIndex parent = indexOf(change.parent);
    ZVTreeViewItemChildren& children = *change.parent->m_children;
    for (auto range = change.removed.rbegin(); range != change.removed.rend(); ++range) {
        const int first = range->first;
        const int last = first + range->count - 1;
        announce([&] { q->beginRemoveRows(parent, first, last); });
        const auto begin = children.rows.begin() + first;
        std::for_each(begin, begin + range->count, [this](ZVTreeViewItem* row) { bury(row); });
        children.erase(first, range->count);
        announce([&] { q->endRemoveRows(); });
    }
}

void ZVTreeViewModelPrivate::insertRanges(ListChange& change)
{
    const QModelIndex parent = indexOf(change.parent);
    for (const RowRange& range : change.inserted) {
        const int last = range.first + range.count - 1;
        announce([&] { q->beginInsertRows(parent, range.first, last); });
        ZVTreeViewItem* const* rows = change.after.data() + range.first;
        change.parent->m_children->insert(range.first, rows, range.count);
        std::for_each(rows, rows + range.count, [&](auto* row) { change.parent->adopt(row); });
        announce([this] { q->endInsertRows(); });
    }
}

void ZVTreeViewModelPrivate::appendArriving(ListChange& change)
{
    if (change.arriving.empty())
        return;
    ZVTreeViewItemChildren& children = *change.parent->m_children;
    const int first = children.count();
    const auto count = static_cast<int>(change.arriving.size());
    announce([&] { q->beginInsertRows(indexOf(change.parent), first, first + count - 1); });
    children.insert(first, change.arriving.data(), count);
    for (ZVTreeViewItem* row : change.arriving)
        change.parent->adopt(row);
    announce([this] { q->endInsertRows(); });
}

void ZVTreeViewModelPrivate::changeLayout(std::vector<ListChange>& changes)
{
    // No parents named: a sorted proxy only follows a change of layout that may be anywhere.
    announce([this] { Q_EMIT q->layoutAboutToBeChanged(); });
    const QModelIndexList indexes = m_isResetting ? QModelIndexList() : q->persistentIndexList();
    for (ListChange& change : changes) {
        if (change.how == How::ByRanges)
            continue;
        ZVTreeViewItemChildren& children = *change.parent->m_children;
        const bool staysLong = change.how == How::AroundLayout;
        if (staysLong)
            change.after.insert(change.after.end(), change.leaving.begin(), change.leaving.end());
        children.rows.swap(change.after);
        children.renumber(static_cast<std::size_t>(change.kept));
        if (staysLong)
            continue;
        for (ZVTreeViewItem* row : change.arriving)
            change.parent->adopt(row);
        for (ZVTreeViewItem* row : change.leaving)
            bury(row);
    }
    mapIndexes(indexes);
    announce([this] { Q_EMIT q->layoutChanged(); });
}

void ZVTreeViewModelPrivate::mapIndexes(const QModelIndexList& indexes)
{
    QModelIndexList from;
    QModelIndexList to;
    for (const QModelIndex& index : indexes) {
        const auto* row = static_cast<const ZVTreeViewItem*>(index.internalPointer());
        const QModelIndex now = row->owner() == this ? indexOf(row, index.column()) : QModelIndex();
        if (now != index) {
            from.append(index);
            to.append(now);
        }
    }
    q->changePersistentIndexList(from, to);
}

void ZVTreeViewModelPrivate::removeLeaving(ListChange& change)
{
    if (change.leaving.empty())
        return;
    ZVTreeViewItemChildren& children = *change.parent->m_children;
    const auto count = static_cast<int>(change.leaving.size());
    const int first = children.count() - count;
    announce([&] { q->beginRemoveRows(indexOf(change.parent), first, first + count - 1); });
    children.erase(first, count);
    for (ZVTreeViewItem* row : change.leaving)
        bury(row);
    announce([this] { q->endRemoveRows(); });
}

void ZVTreeViewModelPrivate::bury(ZVTreeViewItem* row)
{
    row->letGo();
    m_buried.emplace_back(row);
}

void ZVTreeViewModelPrivate::publish(const std::vector<ListChange>& changes)
{
    if (std::exchange(m_isPublished, true))
        return;
    m_publishedChanges = &changes;
    announce([this] { Q_EMIT q->aboutToPublish(); });
    m_publishedChanges = nullptr;
    m_leaving.clear();
}

bool ZVTreeViewModelPrivate::isLeaving(const ZVTreeViewItem* row)
{
    // Only who is to keep a place asks for it.
    if (m_publishedChanges) {
        for (const ListChange& change : *std::exchange(m_publishedChanges, nullptr))
            m_leaving.insert(m_leaving.end(), change.leaving.begin(), change.leaving.end());
        std::sort(m_leaving.begin(), m_leaving.end());
    }
    while (row && !std::binary_search(m_leaving.begin(), m_leaving.end(), row))
        row = row->parent();
    return row != nullptr;
}

} // namespace Zorvane
