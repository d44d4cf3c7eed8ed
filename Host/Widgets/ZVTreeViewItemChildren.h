#pragma once

#include "Host/Widgets/WaitingSlots.h"
#include "Host/Widgets/ZVTreeViewItem.h"

#include <QtCore/QVector>

#include <memory>
#include <vector>

namespace Zorvane {

/**
 * The child rows of one row: as callers left them, and, while a batch is open, as views still see
 * them ("shown").
 *
 * Staged, the shown rows are frozen and the present order is told by two parts: rows placed at
 * the front in new order, then those that still wait where they were. A caller that works through
 * the list from the front, taking rows from anywhere behind, pays next to nothing a row, also the
 * second time and after rows were appended: once shifting placed rows has cost enough, all of them
 * wait again. Any other order of operations is right as well.
 */
class ZVTreeViewItemChildren
{
public:
    using Rows = std::vector<ZVTreeViewItem*>;

    int count() const;
    /** Null when the index is out of range. */
    ZVTreeViewItem* find(int index) const
    {
        // A negative index is a very large one here.
        const auto place = static_cast<std::size_t>(index);
        if (!m_stage)
            return place < m_rows.size() ? m_rows[place] : nullptr;
        return findStaged(place);
    }
    int rowOf(const ZVTreeViewItem* child) const;
    void insert(int index, ZVTreeViewItem* child);
    void append(const QVector<ZVTreeViewItem*>& children);
    ZVTreeViewItem* take(int index);
    /** Without asking where it stands, which costs more while changes are gathered. */
    void take(const ZVTreeViewItem* child);

    int shownCount() const { return static_cast<int>(shown().size()); }
    ZVTreeViewItem* shownAt(int index) const { return shown()[static_cast<std::size_t>(index)]; }
    int shownRowOf(const ZVTreeViewItem* child) const;

    bool isStaged() const { return m_stage != nullptr; }
    /**
     * Freezes what is shown; the rows' numbers stay those of the shown list. Every change until
     * `unstage()` is counted in `edits`.
     */
    void stage(unsigned& edits);
    /** The rows as they are now, in one list; further changes start from it. */
    const Rows& arranged();
    /** The shown rows of those above, -1 for rows that views do not know below this parent. */
    const std::vector<int>& arrangedFrom() const { return m_stage->placedFrom; }
    /** What views see changes; the caller announces it. */
    Rows& editShown() { return m_stage->shown; }
    /** The shown rows from `first` on have other numbers now; they get them when asked for. */
    void renumberShown(std::size_t first = 0);
    /** Views have been told of these shown rows. */
    void welcome(int first, int count);
    /** Views have been told: what is shown is what is. */
    void unstage();
    /** Views have been told, but rows have changed meanwhile: further changes are gathered. */
    void restage();
    /** Changed since `arranged()` was asked for. */
    bool isDirty() const { return m_stage && m_stage->dirty; }
    /** Hands over all children, for good. */
    Rows release();

    /** Where the batch keeps this list's changed values; -1 for none. */
    int changeGroup = -1;

private:
    /** The rows that wait, in their order, once it is not the shown one any more. */
    struct Queue
    {
        Rows rows;
        /** Their shown rows, as in `arrangedFrom()`. */
        std::vector<int> from;
        /** The slots here of the shown rows, -1 for none. */
        std::vector<int> slotOfShown;
    };

    struct Stage
    {
        Stage(Rows&& rows, unsigned& counter)
            : shown(std::move(rows))
            , waiting(shown.size())
            , edits(counter)
        {}

        void edit()
        {
            dirty = true;
            ++edits;
        }

        Rows shown;
        Rows placed;
        /** Their shown rows, as in `arrangedFrom()`: rows lie scattered, so asking them is slow. */
        std::vector<int> placedFrom;
        /** Null as long as the rows that wait are shown ones, in the shown order. */
        std::unique_ptr<Queue> queue;
        const Rows* queued = &shown;
        /** Those of the queued rows that still are where they were. */
        WaitingSlots waiting;
        /** The row taken last mostly is the one put back next. */
        const ZVTreeViewItem* lastTaken = nullptr;
        int lastTakenFrom = -1;
        /** So many rows were shifted or looked at one by one. */
        std::size_t effort = 0;
        /** With more effort than this, all rows are made to wait again. */
        std::size_t mostEffort = 0;
        bool dirty = true;
        unsigned& edits;
    };

    const Rows& shown() const { return m_stage ? m_stage->shown : m_rows; }
    ZVTreeViewItem* findStaged(std::size_t place) const;
    ZVTreeViewItem* takePlaced(std::size_t index);
    ZVTreeViewItem* takeWaiting(std::size_t slot);
    std::size_t slotOf(const ZVTreeViewItem* child) const;
    std::size_t slotInQueue(const ZVTreeViewItem* child) const;
    void allowEffort();
    void queueAgain();
    int shownRowIfKnown(const ZVTreeViewItem* child) const;
    void placeWaiting(std::size_t count);
    static int rowIn(const Rows& rows, const ZVTreeViewItem* child, std::size_t& numbered);

    Rows m_rows;
    std::unique_ptr<Stage> m_stage;
    /** So many rows of the shown list are known to carry the right number. */
    mutable std::size_t m_numbered = 0;
};

} // namespace Zorvane
