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
    /** A row that views of a model still see does not go below a row of another. */
    static void prepareMove(const ZVTreeViewItem* row, ZVTreeViewItem* newParent);
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
