#pragma once

#include "Host/Widgets/ZVTreeViewItem.h"
#include "Host/Widgets/ZVTreeViewModel.h"
#include "Host/Widgets/ZVTreeViewRefresh.h"

#include <QtCore/QHash>
#include <QtCore/QScopedValueRollback>

#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Zorvane {

/** The child rows of one row. */
struct ZVTreeViewItemChildren
{
    using Rows = std::vector<ZVTreeViewItem*>;

    int count() const { return static_cast<int>(rows.size()); }
    int rowOf(const ZVTreeViewItem* child) const;
    void insert(int index, ZVTreeViewItem* const* added, int count);
    void erase(int index, int count);
    /** The rows from `first` on have other numbers now; they get them when asked for. */
    void renumber(std::size_t first);

    Rows rows;
    /** The model whose tree the parent is in: a row finds it without a way up. */
    ZVTreeViewModelPrivate* owner = nullptr;
    std::uint64_t shownSerial = 0;
    /** So many rows are known to carry the right number. */
    mutable std::size_t numbered = 0;
    /** Where a refresh gathers the changed values of these rows; -1 for nowhere yet. */
    int changeGroup = -1;
};

/** What a model knows besides its rows, and how its changes are announced. */
class ZVTreeViewModelPrivate
{
public:
    using Rows = ZVTreeViewItemChildren::Rows;

    /** Stands for all roles, as flags belong to none. */
    static constexpr int AnyRole = -2;

    explicit ZVTreeViewModelPrivate(ZVTreeViewModel* model);
    ~ZVTreeViewModelPrivate();

    QModelIndex indexOf(const ZVTreeViewItem* row, int column = 0) const;
    void valueChanged(const ZVTreeViewItem* row, int column, int role);

    /** False, with a warning, while views are about to hear of another change. */
    bool canChangeStructure() const;
    /** Announces one change of a list and does it. */
    template <typename Change>
    void insertRows(const ZVTreeViewItem* parent, int first, int count, Change change);
    template <typename Change>
    void removeRow(const ZVTreeViewItem* parent, int row, Change change);

    bool isRefreshing() const { return m_refreshes > 0; }
    void beginRefresh() { ++m_refreshes; }
    void endRefresh();
    void apply(ZVTreeViewPlan& plan);
    void whenDone(std::function<void()> task) { m_tasks.push_back(std::move(task)); }
    bool isLeaving(const ZVTreeViewItem* row);

    ZVTreeViewModel* const q;
    QVector<QHash<int, QVariant>> headers{1};
    ZVTreeViewItem root;
    bool isExact = false;

private:
    /**
     * The changed values among the children of one row: one range around all of them. A sorted
     * proxy looks a row's place up among its siblings, so it must not meet a changed value that
     * has not been announced yet.
     */
    struct ChangedValues
    {
        ZVTreeViewItem* parent;
        int firstRow;
        int lastRow;
        int firstColumn;
        int lastColumn;
        std::vector<int> roles;
    };
    struct RowRange
    {
        int first;
        int count;
    };
    /** How a list's change is announced. */
    enum class How
    {
        ByRanges,
        AroundLayout,
        ByLayout
    };
    struct ListChange
    {
        ZVTreeViewItem* parent;
        int kept;
        /** The whole list as it shall be; behind it what leaves, unless the layout removes it. */
        Rows after;
        Rows arriving;
        Rows leaving;
        std::vector<RowRange> removed;
        std::vector<RowRange> inserted;
        bool isReordered = false;
        How how = How::ByRanges;
    };

    // Values.
    void record(const ZVTreeViewItem* row, int column, int role);
    void announceValues();
    void announce(const ChangedValues& changed);

    // Lists.
    static ListChange changeOf(const ZVTreeViewPlan::List& list);
    void chooseHow(std::vector<ListChange>& changes) const;
    void writeTexts(const std::vector<ZVTreeViewPlan::Text>& texts);
    void arrange(std::vector<ListChange>& changes);
    void removeRanges(ListChange& change);
    void insertRanges(ListChange& change);
    void appendArriving(ListChange& change);
    void changeLayout(std::vector<ListChange>& changes);
    void mapIndexes(const QModelIndexList& indexes);
    void removeLeaving(ListChange& change);
    void bury(ZVTreeViewItem* row);

    /** Emits signals; after an exception of a slot nothing more until the reset is complete. */
    template <typename Emission>
    void announce(Emission emission);
    void startOver(const char* reason);
    /** Emits `aboutToPublish`, once a refresh. */
    void publish(const std::vector<ListChange>& changes);

    int m_refreshes = 0;
    /** Rows stand somewhere between the old order and the new one, or are about to leave it. */
    bool m_isArranging = false;
    /** A slot threw: a reset was announced, which is complete when the refresh is. */
    bool m_isResetting = false;
    bool m_isPublished = false;
    std::vector<ChangedValues> m_changed;
    /** During `aboutToPublish`; `m_leaving` is made of it, sorted, when that is first asked for. */
    const std::vector<ListChange>* m_publishedChanges = nullptr;
    std::vector<const ZVTreeViewItem*> m_leaving;
    /** Deleted at the end: slots may still have their pointers. */
    std::vector<std::unique_ptr<ZVTreeViewItem>> m_buried;
    std::vector<std::function<void()>> m_tasks;
};

template <typename Emission>
void ZVTreeViewModelPrivate::announce(Emission emission)
{
    if (m_isResetting)
        return;
    try {
        emission();
    } catch (const std::exception& error) {
        startOver((std::string(": ") + error.what()).c_str());
    } catch (...) {
        startOver("");
    }
}

template <typename Change>
void ZVTreeViewModelPrivate::insertRows(const ZVTreeViewItem* parent, int first, int count,
                                        Change change)
{
    {
        const QScopedValueRollback<bool> locked(m_isArranging, true);
        q->beginInsertRows(indexOf(parent), first, first + count - 1);
        change();
    }
    q->endInsertRows();
}

template <typename Change>
void ZVTreeViewModelPrivate::removeRow(const ZVTreeViewItem* parent, int row, Change change)
{
    {
        const QScopedValueRollback<bool> locked(m_isArranging, true);
        q->beginRemoveRows(indexOf(parent), row, row);
        change();
    }
    q->endRemoveRows();
}

} // namespace Zorvane
