#pragma once

#include "Files/Portable/CopyContext.h"

#include <vector>

namespace Zorvane {

/**
 * Makes groups of complete files durable. Flushing many small files at one stroke costs a small
 * part of flushing each; the size of a group adapts so that it takes 25 to 50 ms. Where it takes
 * much longer all the same, since other programs write too, the next groups are flushed file by
 * file, so that the user can cancel in between.
 */
class GroupFlush
{
public:
    explicit GroupFlush(CopyContext& context);

    /** Whether so many files with so many bytes are to be flushed now. */
    bool isDue(std::size_t items, qint64 bytes) const;
    /** Items that cannot be made durable fail; cancelling leaves the rest as it is. */
    void flush(const std::vector<CopyItem*>& items);

private:
    bool flushTogether(const std::vector<CopyItem*>& items);
    void flushEach(const std::vector<CopyItem*>& items);
    void adaptSize(qint64 milliseconds);

    CopyContext& m_context;
    std::size_t m_largestItems;
    std::size_t m_mostItems;
    qint64 m_mostBytes;
    int m_groupsToFlushEach = 0;
    int m_groupsAfterNextDelay = 1;
};

} // namespace Zorvane
