#pragma once

#include "Host/Widgets/ZVTreeViewItem.h"

#include <QtCore/QVector>

#include <cstdint>
#include <memory>
#include <vector>

namespace Zorvane {

/**
 * The child rows of one row: as callers left them, and, while a batch is open, as views still see
 * them ("shown").
 *
 * Staged, the shown rows are frozen and the present order is told by two parts: rows placed at
 * the front in new order, then those shown rows that still wait where they were. A caller that
 * works through the list from the front, taking rows from anywhere behind, pays next to nothing
 * a row; any other order of operations is right as well.
 */
class ZVTreeViewItemChildren
{
public:
    using Rows = std::vector<ZVTreeViewItem*>;

    int count() const;
    ZVTreeViewItem* at(int index) const;
    int rowOf(const ZVTreeViewItem* child) const;
    void insert(int index, ZVTreeViewItem* child);
    void append(const QVector<ZVTreeViewItem*>& children);
    ZVTreeViewItem* take(int index);

    int shownCount() const { return static_cast<int>(shown().size()); }
    ZVTreeViewItem* shownAt(int index) const { return shown()[static_cast<std::size_t>(index)]; }
    int shownRowOf(const ZVTreeViewItem* child) const;

    bool isStaged() const { return m_stage != nullptr; }
    /** Freezes what is shown; the rows' numbers stay those of the shown list. */
    void stage();
    /** The rows as they are now, in one list; further changes start from it. */
    const Rows& arranged();
    /** What views see changes; the caller announces it. */
    Rows& editShown() { return m_stage->shown; }
    /** Numbers the shown rows from `first` on. */
    void numberShown(std::size_t first = 0);
    /** Views have been told: what is shown is what is. */
    void unstage();
    /** Changed since `arranged()` was asked for. */
    bool isDirty() const { return m_stage && m_stage->dirty; }
    /** Hands over all children, for good. */
    Rows release();

    /** Where the batch keeps this list's changed values; -1 for none. */
    int changeGroup = -1;

private:
    /** The shown rows that still wait in place, one bit each, counted block by block. */
    class Waiting
    {
    public:
        explicit Waiting(std::size_t count);
        std::size_t count() const { return m_count; }
        bool contains(std::size_t slot) const;
        void remove(std::size_t slot);
        std::size_t first();
        std::size_t nth(std::size_t n) const;

    private:
        static constexpr std::size_t WordsPerBlock = 32;

        std::vector<std::uint64_t> m_words;
        std::vector<std::uint32_t> m_blockCounts;
        std::size_t m_count;
        std::size_t m_firstWord = 0;
        mutable std::size_t m_cursorBlock = 0;
        mutable std::size_t m_waitingBeforeCursor = 0;
    };

    struct Stage
    {
        explicit Stage(Rows&& rows)
            : shown(std::move(rows))
            , waiting(shown.size())
        {}

        Rows shown;
        Rows placed;
        Waiting waiting;
        bool dirty = true;
    };

    const Rows& shown() const { return m_stage ? m_stage->shown : m_rows; }
    void placeWaiting(std::size_t count);
    static int rowIn(const Rows& rows, const ZVTreeViewItem* child, std::size_t& numbered);

    Rows m_rows;
    std::unique_ptr<Stage> m_stage;
    /** So many rows of the shown list are known to carry the right number. */
    mutable std::size_t m_numbered = 0;
};

} // namespace Zorvane
