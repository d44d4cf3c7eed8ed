#include "Files/Portable/CopyGroup.h"

#include "Files/PathText.h"
#include "Files/Portable/CopyErrors.h"
#include "Files/Portable/FileIdentity.h"

#include <algorithm>

namespace Zorvane {

namespace {

constexpr std::size_t s_firstSize = 64;
// Each item holds a file open, and processes may often open no more than 1024.
constexpr std::size_t s_largestSize = 512;
constexpr std::size_t s_fewItems = 8;
constexpr qint64 s_mebibyte = 1024 * 1024;
constexpr qint64 s_fewBytes = s_mebibyte;
constexpr qint64 s_manyBytes = 16 * s_mebibyte;
// In milliseconds.
constexpr qint64 s_delay = 100;
constexpr qint64 s_tooSlow = 50;
constexpr qint64 s_veryFast = 25;
// Flushing the file system writes what other programs left unwritten as well.
constexpr qint64 s_mostUnwritten = 512 * s_mebibyte;
constexpr int s_mostGroupsToFlushEach = 16;
constexpr int s_mostCollisions = 100;

} // namespace

void CopyContext::failOnTarget(CopyItem& item, int error)
{
    fail(item, describeTargetError(error));
    if (concernsEveryFile(error))
        stop = CopyStop::Fatal;
}

void CopyContext::fail(CopyItem& item, const QString& reason) const
{
    discard(item);
    item.outcome->fate = CopyFate::Failed;
    item.outcome->reason = reason;
}

void CopyContext::discard(CopyItem& item) const
{
    // The window lives on while a large file goes.
    if (item.staged)
        item.staged->giveUpContent([this] { goOn(); });
    item.staged.reset();
}

CopyGroup::CopyGroup(CopyContext& context)
    : m_context(context)
    , m_mostItems(s_firstSize)
    , m_mostBytes(s_manyBytes)
{}

void CopyGroup::add(CopyItem& item)
{
    m_items.push_back(&item);
    m_bytes += item.source.st_size;
}

bool CopyGroup::isFull() const
{
    return m_items.size() >= m_mostItems || m_bytes >= m_mostBytes;
}

void CopyGroup::commit()
{
    if (m_context.stop != CopyStop::Cancelled)
        flushAll();
    for (CopyItem* item : m_items) {
        if (!m_context.goOn())
            m_context.stop = CopyStop::Cancelled;
        if (item->staged && m_context.stop != CopyStop::Cancelled)
            publish(*item);
        m_context.discard(*item);
    }
    m_items.clear();
    m_bytes = 0;
}

void CopyGroup::flushAll()
{
    if (m_items.size() >= s_fewItems && flushTogether())
        return;
    const qint64 start = m_context.calls.milliseconds();
    flushEach();
    if (m_context.calls.milliseconds() - start < s_veryFast)
        m_mostBytes = std::min(m_mostBytes * 2, s_manyBytes);
}

bool CopyGroup::flushTogether()
{
    if (!m_context.folder.flushesTogether())
        return false;
    if (m_groupsToFlushEach > 0) {
        --m_groupsToFlushEach;
        return false;
    }
    const SystemCalls& calls = m_context.calls;
    const qint64 unwritten = calls.unwrittenBytes();
    if (unwritten < 0 || unwritten > s_mostUnwritten)
        return false;
    const qint64 start = calls.milliseconds();
    const int folder = m_context.folder.descriptor();
    bool durable = errorOf([&] { return calls.flushFileSystem(folder); }) == 0;
    // Older kernels keep write errors from syncfs. Each file tells its own, but only once.
    for (CopyItem* item : m_items) {
        const int file = item->staged->descriptor();
        const int error = errorOf([&] { return calls.finishWriteback(file, 0, 0); });
        if (isMissingFeature(error))
            durable = false;
        else if (error != 0)
            m_context.failOnTarget(*item, error);
    }
    adaptSize(calls.milliseconds() - start);
    return durable;
}

void CopyGroup::adaptSize(qint64 milliseconds)
{
    if (milliseconds > s_tooSlow) {
        m_mostItems = std::max(m_mostItems / 2, s_fewItems);
        m_mostBytes = std::max(m_mostBytes / 2, s_fewBytes);
    } else if (milliseconds < s_veryFast) {
        m_mostItems = std::min(m_mostItems * 2, s_largestSize);
        m_mostBytes = std::min(m_mostBytes * 2, s_manyBytes);
    }
    if (milliseconds <= s_delay) {
        m_groupsAfterNextDelay = 1;
        return;
    }
    m_groupsToFlushEach = m_groupsAfterNextDelay;
    m_groupsAfterNextDelay = std::min(m_groupsAfterNextDelay * 2, s_mostGroupsToFlushEach);
}

void CopyGroup::flushEach()
{
    for (CopyItem* item : m_items) {
        if (!item->staged)
            continue;
        const int file = item->staged->descriptor();
        const int error = errorOf([&] { return m_context.calls.flush(file); });
        if (error != 0)
            m_context.failOnTarget(*item, error);
        if (!m_context.goOn()) {
            m_context.stop = CopyStop::Cancelled;
            return;
        }
    }
}

void CopyGroup::publish(CopyItem& item)
{
    for (int attempt = 0; attempt < s_mostCollisions; ++attempt) {
        const int error = tryPublish(item);
        if (error == 0) {
            const bool renamed = item.order.leaf != item.candidate.leaf;
            item.outcome->fate = renamed ? CopyFate::CopiedUnderOtherName : CopyFate::Copied;
            item.outcome->target = pathInFolder(m_context.folderPath, item.order.leaf);
            m_published.push_back(&item);
            return;
        }
        if (error != EEXIST) {
            m_context.failOnTarget(item, error);
            return;
        }
        if (!resolveCollision(item))
            return;
    }
    m_context.failOnTarget(item, EEXIST);
}

int CopyGroup::tryPublish(CopyItem& item)
{
    if (item.order.action != CopyOrder::Action::Replace)
        return item.staged->publishNew(item.order.leaf);
    struct stat now
    {};
    const int error = m_context.folder.entry(item.order.leaf, now);
    if (error == ENOENT)
        return item.staged->publishNew(item.order.leaf);
    if (error != 0)
        return error;
    // The user's word was about the file that was there then.
    const bool asDecided = item.replaced && isUnchanged(*item.replaced, now);
    return asDecided ? item.staged->publishReplacing(item.order.leaf) : EEXIST;
}

/** Where the case of letters doesn't count, an earlier copy's name may be spelled otherwise. */
void CopyGroup::recogniseOwnCopy(CopyItem& item) const
{
    const std::string folded = foldedName(item.candidate.leaf);
    for (const CopyItem* other : m_published) {
        struct stat entry
        {};
        if (foldedName(other->order.leaf) == folded &&
            m_context.folder.entry(other->order.leaf, entry) == 0 &&
            isSameFile(entry, *item.replaced)) {
            item.candidate.existingKind = CollisionKind::WithinBatch;
            item.candidate.existing = other->candidate.source;
            return;
        }
    }
}

bool CopyGroup::resolveCollision(CopyItem& item)
{
    if (item.order.keepsBoth) {
        item.order.leaf = m_context.decisions.anotherName(item.candidate.leaf);
        return true;
    }
    if (const int error = lookForCollision(item, m_context.folder, m_context.folderPath)) {
        m_context.failOnTarget(item, error);
        return false;
    }
    if (!item.candidate.existing)
        return true; // gone again
    recogniseOwnCopy(item);
    const std::optional<CopyOrder> order = m_context.decisions.decideLate(item.candidate);
    if (!order) {
        m_context.stop = CopyStop::Cancelled;
        return false;
    }
    item.order = *order;
    if (order->action == CopyOrder::Action::CopyNew || order->action == CopyOrder::Action::Replace)
        return true;
    const bool same = order->action == CopyOrder::Action::SameFile;
    item.outcome->fate = same ? CopyFate::SameFile : CopyFate::Skipped;
    return false;
}

} // namespace Zorvane
