#include "Files/Portable/GroupFlush.h"

#include "Files/Portable/CopyErrors.h"

#include <algorithm>

namespace Zorvane {

namespace {

constexpr std::size_t s_firstSize = 64;
constexpr std::size_t s_largestSize = 512;
constexpr std::size_t s_fewItems = 8;
// Each item holds a file open; the rest of the program needs some as well meanwhile.
constexpr long s_partOfOpenFiles = 4;
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

std::size_t largestSize(long mostOpenFiles)
{
    if (mostOpenFiles <= 0)
        return s_largestSize;
    return std::clamp(static_cast<std::size_t>(mostOpenFiles / s_partOfOpenFiles), s_fewItems,
                      s_largestSize);
}

} // namespace

GroupFlush::GroupFlush(CopyContext& context)
    : m_context(context)
    , m_largestItems(largestSize(context.calls.mostOpenFiles()))
    , m_mostItems(std::min(s_firstSize, m_largestItems))
    , m_mostBytes(s_manyBytes)
{}

bool GroupFlush::isDue(std::size_t items, qint64 bytes) const
{
    return items >= m_mostItems || bytes >= m_mostBytes;
}

void GroupFlush::flush(const std::vector<CopyItem*>& items)
{
    if (items.size() >= s_fewItems && flushTogether(items))
        return;
    const qint64 start = m_context.calls.milliseconds();
    flushEach(items);
    if (m_context.calls.milliseconds() - start < s_veryFast)
        m_mostBytes = std::min(m_mostBytes * 2, s_manyBytes);
}

bool GroupFlush::flushTogether(const std::vector<CopyItem*>& items)
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
    // Older kernels keep write errors from syncfs. Each file reports its own, but only once.
    for (CopyItem* item : items) {
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

void GroupFlush::adaptSize(qint64 milliseconds)
{
    if (milliseconds > s_tooSlow) {
        m_mostItems = std::max(m_mostItems / 2, s_fewItems);
        m_mostBytes = std::max(m_mostBytes / 2, s_fewBytes);
    } else if (milliseconds < s_veryFast) {
        m_mostItems = std::min(m_mostItems * 2, m_largestItems);
        m_mostBytes = std::min(m_mostBytes * 2, s_manyBytes);
    }
    if (milliseconds <= s_delay) {
        m_groupsAfterNextDelay = 1;
        return;
    }
    m_groupsToFlushEach = m_groupsAfterNextDelay;
    m_groupsAfterNextDelay = std::min(m_groupsAfterNextDelay * 2, s_mostGroupsToFlushEach);
}

void GroupFlush::flushEach(const std::vector<CopyItem*>& items)
{
    for (CopyItem* item : items) {
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

} // namespace Zorvane
