#pragma once

#include "Host/Widgets/ZVTreeViewItem.h"
#include "Host/Widgets/ZVTreeViewItemChildren.h"
#include "Host/Widgets/ZVTreeViewModel.h"

#include <QtCore/QHash>

#include <memory>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace Zorvane {

// While a batch is open, views go on seeing each list of children that changes as it was: the list
// is staged. The state of each row tells where it is and where views see it; that follows from
// `m_parent` and three flags of the row. What a row's ancestors do is told of them alone.
//
// State    | Flags             | m_parent         | Views see it             | Also in
// ---------+-------------------+------------------+--------------------------+-------------
// free     |                   | null             | nowhere: a caller has it |
// settled  |                   | its parent       | there, if they see that  |
// new      | Fresh             | its parent       | nowhere                  |
// out      | Taken             | the one it had   | there                    |
// moved    | Relocated         | its parent       | below another            | m_relocated
// away     | Relocated + Taken | the root         | below another            | m_relocated
// held     | Fresh + Taken     | the root         | nowhere: a caller has it | m_held
//
// "There" and "below another" are the row's home. What becomes of a row:
//
// State    | inserted, or put | put back below | put below a row       | taken out  | published
//          | below a row that | its home       | that views do not see |            |
//          | views see        |                |                       |            |
// ---------+------------------+----------------+-----------------------+------------+-----------
// free     | new              | -              | settled               | -          | free
// settled  | -                | -              | -                     | out (1)    | settled
// new      | -                | -              | -                     | free (2)   | settled
// out      | moved            | settled        | moved                 | -          | held (3)
// moved    | -                | -              | -                     | away       | settled
// away     | moved            | settled        | moved                 | -          | held (3)
// held     | new              | -              | settled               | -          | free (4)
//
// (1) From a list that views do not see: like a new one.
// (2) Held as long as any row is moved or away, which may lie below it, and during announcements.
// (3) Held until all is announced, so that a slot which puts it back meanwhile inserts a new row.
//     One that a slot has put back between plan and announcement is new at once.
// (4) At the end of `publish`. A row of which only its deletion is left to announce (`retire`) is
//     deleted then.
//
// What always holds, also while slots run:
// - The way up by `m_parent` ends at the root for every row in a model's care: so `owning` finds
//   the model of rows that are out, too. It goes in no circles: a row that is out becomes one that
//   is away as soon as another goes below it, which may be the very parent it had (`prepareMove`).
// - Only the topmost row that views do not see is new; those below it are settled.
// - A staged list shows what views have been told, and changes only between the two halves of an
//   announcement. A row's number, `m_row`, is that of the shown list it is in; rows in none use
//   theirs otherwise, which is why the list checks each.
// - `Leaving` marks rows during one change of layout, `Counted` during one check of a list of rows.

/** What a model knows besides its rows: headers, and the changes that an open batch gathers. */
class ZVTreeViewModelPrivate
{
public:
    /** The invisible row; the only one that knows its model. */
    class Root : public ZVTreeViewItem
    {
    public:
        explicit Root(ZVTreeViewModelPrivate* owner);

        ZVTreeViewModelPrivate* const model;
    };

    explicit ZVTreeViewModelPrivate(ZVTreeViewModel* model);
    ~ZVTreeViewModelPrivate();

    /** The model whose tree the row is in or, taken out inside a batch, was in; else null. */
    static ZVTreeViewModelPrivate* owning(const ZVTreeViewItem* row);
    /** The model whose views see the row, else null. */
    static ZVTreeViewModelPrivate* showing(const ZVTreeViewItem* row);
    /**
     * The model that has to announce a change of the row's children at once, else null. Inside a
     * batch, the children of a row that views see are staged for the change.
     */
    static ZVTreeViewModelPrivate* announcing(ZVTreeViewItem* row);
    /** The parent that views see. */
    static ZVTreeViewItem* shownParent(const ZVTreeViewItem* row);
    /**
     * A row that views of a model still see does not go below a row of another: what has been
     * gathered is announced before. True if so, since slots may have changed anything then.
     */
    static bool prepareMove(const ZVTreeViewItem* row, ZVTreeViewItem* newParent);
    /** In the tree as callers left it. */
    static bool isAttached(const ZVTreeViewItem* row);

    QModelIndex shownIndex(const ZVTreeViewItem* row, int column = 0) const;

    // Announcing one change at once.
    void beginInsert(const ZVTreeViewItem* parent, int first, int count);
    void endInsert() { q->endInsertRows(); }
    void beginRemove(const ZVTreeViewItem* parent, int row);
    void endRemove() { q->endRemoveRows(); }

    // Gathering changes for later.
    bool isGathering() const { return m_openBatches > 0; }
    bool isPublishing() const { return m_publishing; }
    void openBatch() { ++m_openBatches; }
    void closeBatch();
    void stage(ZVTreeViewItem* parent);
    void valueChanged(ZVTreeViewItem* row, int column, const QVector<int>& roles);
    bool hasRelocated() const { return !m_relocated.empty(); }
    /** A row taken out stays in the batch's care: views see it, or rows that may be below it. */
    void hold(ZVTreeViewItem* row);
    /** A row in the batch's care is put below `parent`. */
    void putBack(ZVTreeViewItem* row, ZVTreeViewItem* parent, bool asShownRow);
    void retire(ZVTreeViewItem* row) { m_retired.push_back(row); }
    /** Announces what has been gathered so far. */
    void publish();

    ZVTreeViewModel* const q;
    QVector<QHash<int, QVariant>> headers{1};
    Root root;

private:
    using Rows = ZVTreeViewItemChildren::Rows;

    /**
     * The changed values among the children of one row: one range around all of them. A sorted
     * proxy looks a row's place up among its siblings, so it must not meet a changed value that
     * has not been announced yet.
     */
    struct ChangeGroup
    {
        ZVTreeViewItem* parent;
        int firstRow;
        int lastRow;
        int firstColumn;
        int lastColumn;
        /** None at all means every role. */
        QVector<int> roles;
    };
    struct RowRange
    {
        int first;
        int count;
    };
    /** What becomes of the children of one row. */
    struct ListPlan
    {
        ZVTreeViewItem* parent;
        Rows target;
        Rows leaving;
        Rows arriving;
        std::vector<RowRange> removed;
        std::vector<RowRange> inserted;
        bool attached;
        bool reordered = false;
        bool keepsCount = false;
    };
    using Plan = std::vector<ListPlan>;
    using SortedRows = std::vector<const ZVTreeViewItem*>;

    static void record(ChangeGroup& group, int row, int column, const QVector<int>& roles);
    bool hasGathered() const { return !m_changes.empty() || !m_staged.empty(); }
    void dropUnchanged();
    void publishGathered();
    void publishRounds();
    void announceValues();
    void announceGroup(const ChangeGroup& group);
    ListPlan planFor(ZVTreeViewItem* parent) const;
    Plan makePlan() const;
    bool isExact(const Plan& plan) const;
    // These are false when a slot has interfered: the rest is planned anew, or views start over.
    bool announceExactly(Plan& plan);
    bool announceRemoved(ListPlan& list);
    bool announceInserted(ListPlan& list);
    bool announceByLayout(Plan& plan);
    bool appendArriving(ListPlan& list);
    bool appendGuard(ListPlan& list);
    bool changeLayout(Plan& plan);
    static void markLeaving(const Plan& plan);
    SortedRows rowsThatLeave(const QModelIndexList& indexes) const;
    void showAll(Plan& plan);
    void mapIndexes(const QModelIndexList& indexes, const SortedRows& gone);
    bool removeLeaving(const ListPlan& list);
    bool isAsPlanned() const { return m_edits == m_plannedEdits && m_resets == m_plannedResets; }
    bool canInsert();
    bool leavesWithLayout(const ZVTreeViewItem* row) const;
    void leaveWithLayout(const ListPlan& list);
    void showTarget(ListPlan& list) const;
    /** Views no longer see the row; one that a slot has put back meanwhile is new to them. */
    void leaveViews(ZVTreeViewItem* row);
    void finish(const Plan& plan, bool done);
    void forgetHome(ZVTreeViewItem* parent);
    void widenChanges(const ZVTreeViewItemChildren& children);
    /** Makes the children of a row that no view sees, or will see anew, what they are. */
    void settle(ZVTreeViewItem* parent);
    void settleAll();
    void startOver();
    void relocate(ZVTreeViewItem* row);
    void forgetRelocations();
    void letGoOfHeld();
    static void letGo(ZVTreeViewItem* row);
    void deleteRetired();

    int m_openBatches = 0;
    bool m_publishing = false;
    /** Counts the resets, so that an announcement under way notices one. */
    unsigned m_resets = 0;
    /** Counts the changes of rows that views see, for the same purpose. */
    unsigned m_edits = 0;
    unsigned m_plannedResets = 0;
    unsigned m_plannedEdits = 0;
    std::vector<ZVTreeViewItem*> m_staged;
    std::vector<ChangeGroup> m_changes;
    /** Rows below another parent than the one under which views still see them: the latter. */
    std::unordered_map<const ZVTreeViewItem*, ZVTreeViewItem*> m_relocated;
    std::vector<ZVTreeViewItem*> m_retired;
    /**
     * Rows that views do not know, taken out while rows that views do know were elsewhere or
     * while changes were announced; kept in the batch's care until all is told.
     */
    std::unordered_set<ZVTreeViewItem*> m_held;
};

} // namespace Zorvane
