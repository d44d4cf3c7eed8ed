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
        SourceTooShort,
        SourceError,
        TargetError
    };
    End end = End::Complete;
    int error = 0;
};

/**
 * Copies contents in slices that take 10 to 40 ms each, whatever the speed of the disks.
 * What large files have written is pushed to disk on the way, so that flushing them at the end
 * takes no time in which nobody could cancel, and unwritten data doesn't pile up in memory.
 */
class FileTransfer
{
public:
    /** `advance` is told the bytes of each slice; false cancels. */
    FileTransfer(const SystemCalls& calls, std::function<bool(qint64 bytes)> advance);

    /** Copies `size` bytes from the present positions on. */
    TransferResult run(int from, int to, qint64 size);

private:
    ssize_t copySlice(int from, int to, size_t size, TransferResult& result);
    ssize_t copyThroughBuffer(int from, int to, size_t size, TransferResult& result);
    int pushToDisk(int to, qint64 begin, qint64 size);
    int waitForOldest(int to);
    TransferResult waitForRest(int to);

    struct Range
    {
        qint64 begin;
        qint64 size;
    };

    const SystemCalls& m_calls;
    std::function<bool(qint64)> m_advance;
    std::vector<char> m_buffer;
    size_t m_sliceSize;
    bool m_copiesRanges = false;
    std::deque<Range> m_onTheirWay;
};

/** The size of the next slice after one that took so long. */
ZORVANE_UITOOLS_EXPORT size_t nextSliceSize(size_t size, qint64 milliseconds);

} // namespace Zorvane
