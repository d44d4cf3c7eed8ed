#pragma once

#include "Files/Portable/CopyItem.h"

#include <functional>
#include <vector>

namespace Zorvane {

/** Why no further file is copied. */
enum class CopyStop
{
    No,
    Cancelled,
    Fatal
};

/** What the parts of one copy share. */
struct CopyContext
{
    const SystemCalls& calls;
    TargetFolder& folder;
    QString folderPath;
    CopyDecisions& decisions;
    std::function<bool()> goOn; /**< False cancels. */
    CopyStop stop = CopyStop::No;

    /** Marks the item; trouble that the next file would meet as well stops the copy. */
    void failOnTarget(CopyItem& item, int error);
    void fail(CopyItem& item, const QString& reason) const;
    /** Lets go of what the item has staged. */
    void discard(CopyItem& item) const;
};

/**
 * Complete files that wait to be made durable and then get their names. Flushing many small files
 * at one stroke costs a small part of flushing each; the size of a group adapts so that it takes
 * 25 to 50 ms. Where it takes much longer all the same, since other programs write too, the next
 * groups are flushed file by file, so that one can cancel in between.
 */
class CopyGroup
{
public:
    explicit CopyGroup(CopyContext& context);

    bool isEmpty() const { return m_items.empty(); }
    /** The item must be staged and outlive the group. */
    void add(CopyItem& item);
    bool isFull() const;
    bool hasPublished() const { return !m_published.empty(); }
    /** Flushes, then publishes one after the other. Empties the group in every case. */
    void commit();

private:
    void flushAll();
    bool flushTogether();
    void flushEach();
    void publish(CopyItem& item);
    int tryPublish(CopyItem& item);
    bool resolveCollision(CopyItem& item);
    void recogniseOwnCopy(CopyItem& item) const;
    void adaptSize(qint64 milliseconds);

    CopyContext& m_context;
    std::vector<CopyItem*> m_items;
    std::vector<const CopyItem*> m_published;
    qint64 m_bytes = 0;
    std::size_t m_mostItems;
    qint64 m_mostBytes;
    int m_groupsToFlushEach = 0;
    int m_groupsAfterNextDelay = 1;
};

} // namespace Zorvane
