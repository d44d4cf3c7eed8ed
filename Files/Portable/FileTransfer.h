#pragma once

#include "Files/Portable/SystemCalls.h"
#include "UiToolsExport.h"

#include <QtCore/QtGlobal>

#include <deque>
#include <functional>
#include <vector>

namespace Zorvane {

/** How the copying of one file's content ended. */
struct TransferResult
{
    enum class End
    {
        Complete,
        Cancelled,
        SourceError,
        TargetError
    };
    End end = End::Complete;
    int error = 0;
};

/**
 * Copies contents in slices that take 10 to 40 ms each, whatever the speed of the disks.
 * What large files have written is pushed to disk on the way, so that flushing them at the end
 * takes no time in which the user could not cancel, and unwritten data doesn't pile up in memory.
 */
class FileTransfer
{
public:
    /** `advance` is called with the bytes of each slice or hole; false cancels. */
    FileTransfer(const SystemCalls& calls, std::function<bool(qint64 bytes)> advance);

    /**
     * Copies from the beginning to where reading ends, which the size in `source` need not say:
     * file systems of other programs and of the kernel may have sizes of 0. Holes stay holes.
     */
    TransferResult run(int from, int to, const struct stat& source);

    /** Bytes that the last run wrote: without holes. */
    qint64 bytesWritten() const { return m_written; }

private:
    struct Range
    {
        qint64 begin;
        qint64 size;
    };

    TransferResult copyRanges(int from, int to);
    TransferResult copyUntil(int from, int to, qint64 end);
    TransferResult skipHole(int from, int to, qint64 end);
    ssize_t copySlice(int from, int to, size_t size, TransferResult& result);
    ssize_t copyThroughBuffer(int from, int to, size_t size, TransferResult& result);
    int pushToDisk(int to, qint64 begin, qint64 size);
    int waitForOldest(int to);
    TransferResult waitForRest(int to);

    const SystemCalls& m_calls;
    std::function<bool(qint64)> m_advance;
    std::vector<char> m_buffer;
    size_t m_sliceSize;
    qint64 m_size = 0; // as the source has it
    qint64 m_done = 0; // where both files are
    qint64 m_written = 0;
    bool m_copiesRanges = false;
    std::deque<Range> m_onTheirWay;
};

/** The size of the next slice after one that took so long. */
ZORVANE_UITOOLS_EXPORT size_t nextSliceSize(size_t size, qint64 milliseconds);

} // namespace Zorvane
