#include "Files/Portable/FileTransfer.h"

#include "Files/Portable/CopyErrors.h"
#include "Files/Portable/Descriptor.h"

#include <algorithm>
#include <limits>
#include <unistd.h>

namespace Zorvane {

namespace {

constexpr size_t s_kibibyte = 1024;
constexpr size_t s_smallestSlice = 256 * s_kibibyte;
constexpr size_t s_firstSlice = 1024 * s_kibibyte;
constexpr size_t s_largestSlice = 8192 * s_kibibyte;
constexpr size_t s_bufferSize = 256 * s_kibibyte;
constexpr qint64 s_largeFile = 4096 * s_kibibyte;
// So many slices the disk may have to do at a time; it sorts them better than we could.
constexpr size_t s_mostOnTheirWay = 16;
constexpr qint64 tooSlowPiece = 40;
constexpr qint64 veryFastPiece = 10;
// What `st_blocks` counts.
constexpr qint64 s_block = 512;
constexpr qint64 s_endOfFile = std::numeric_limits<qint64>::max();

bool hasHoles(const struct stat& source)
{
    return source.st_blocks * s_block < source.st_size;
}

} // namespace

size_t nextSliceSize(size_t size, qint64 milliseconds)
{
    if (milliseconds > tooSlowPiece)
        return std::max(size / 2, s_smallestSlice);
    if (milliseconds < veryFastPiece)
        return std::min(size * 2, s_largestSlice);
    return size;
}

FileTransfer::FileTransfer(const SystemCalls& calls, std::function<bool(qint64)> advance)
    : m_calls(calls)
    , m_advance(std::move(advance))
    , m_buffer(s_bufferSize)
    , m_sliceSize(s_firstSlice)
{}

TransferResult FileTransfer::run(int from, int to, const struct stat& source)
{
    m_size = source.st_size;
    m_done = 0;
    m_written = 0;
    m_copiesRanges = m_size >= s_largeFile;
    m_onTheirWay.clear();
    const TransferResult result =
        hasHoles(source) ? copyRanges(from, to) : copyUntil(from, to, s_endOfFile);
    return result.end == TransferResult::End::Complete ? waitForRest(to) : result;
}

TransferResult FileTransfer::copyRanges(int from, int to)
{
    for (;;) {
        const off_t data = m_calls.seek(from, m_done, SEEK_DATA);
        if (data < 0 && errno == ENXIO)
            break;
        if (data < 0)
            return copyUntil(from, to, s_endOfFile); // the file system doesn't know its holes
        const off_t hole = m_calls.seek(from, data, SEEK_HOLE);
        TransferResult result = skipHole(from, to, data);
        if (result.end == TransferResult::End::Complete)
            result = copyUntil(from, to, hole < 0 ? s_endOfFile : hole);
        if (result.end != TransferResult::End::Complete || m_done < hole || hole < 0)
            return result; // with success that is where reading ends
    }
    if (m_done >= m_size)
        return {};
    const int error = errorOf([&] { return m_calls.setSize(to, m_size); });
    if (error != 0)
        return {TransferResult::End::TargetError, error};
    return skipHole(from, to, m_size);
}

TransferResult FileTransfer::skipHole(int from, int to, qint64 end)
{
    if (m_calls.seek(from, end, SEEK_SET) < 0)
        return {TransferResult::End::SourceError, errno};
    if (m_calls.seek(to, end, SEEK_SET) < 0)
        return {TransferResult::End::TargetError, errno};
    const qint64 size = end - m_done;
    m_done = end;
    if (m_advance(size))
        return {};
    return {TransferResult::End::Cancelled, 0};
}

TransferResult FileTransfer::copyUntil(int from, int to, qint64 end)
{
    TransferResult result;
    while (m_done < end) {
        const bool large = std::max(m_size, m_done) >= s_largeFile;
        const qint64 start = large ? m_calls.milliseconds() : 0;
        const qint64 wanted = std::min<qint64>(end - m_done, static_cast<qint64>(m_sliceSize));
        const ssize_t copied = copySlice(from, to, static_cast<size_t>(wanted), result);
        if (copied <= 0)
            return result;
        if (large) {
            if (const int error = pushToDisk(to, m_done, copied))
                return {TransferResult::End::TargetError, error};
            m_sliceSize = nextSliceSize(m_sliceSize, m_calls.milliseconds() - start);
        }
        m_done += copied;
        m_written += copied;
        if (!m_advance(copied))
            return {TransferResult::End::Cancelled, 0};
    }
    return result;
}

ssize_t FileTransfer::copySlice(int from, int to, size_t size, TransferResult& result)
{
    if (m_copiesRanges) {
        const ssize_t copied = uninterrupted([&] { return m_calls.copyRange(from, to, size); });
        if (copied > 0)
            return copied;
        // Unable, at the end, or in trouble: reading and writing tells which, and on which side.
        m_copiesRanges = false;
    }
    return copyThroughBuffer(from, to, size, result);
}

ssize_t FileTransfer::copyThroughBuffer(int from, int to, size_t size, TransferResult& result)
{
    const size_t wanted = std::min(size, m_buffer.size());
    const ssize_t length =
        uninterrupted([&] { return m_calls.read(from, m_buffer.data(), wanted); });
    if (length < 0) {
        result = {TransferResult::End::SourceError, errno};
        return -1;
    }
    for (ssize_t written = 0; written < length;) {
        const ssize_t count = uninterrupted([&] {
            return m_calls.write(to, m_buffer.data() + written,
                                 static_cast<size_t>(length - written));
        });
        if (count <= 0) {
            result = {TransferResult::End::TargetError, count < 0 ? errno : EIO};
            return -1;
        }
        written += count;
    }
    return length;
}

int FileTransfer::pushToDisk(int to, qint64 begin, qint64 size)
{
    const int error = errorOf([&] { return m_calls.startWriteback(to, begin, size); });
    if (error != 0)
        return isMissingFeature(error) ? 0 : error;
    m_onTheirWay.push_back({begin, size});
    return m_onTheirWay.size() > s_mostOnTheirWay ? waitForOldest(to) : 0;
}

int FileTransfer::waitForOldest(int to)
{
    const Range range = m_onTheirWay.front();
    m_onTheirWay.pop_front();
    const int error = errorOf([&] { return m_calls.finishWriteback(to, range.begin, range.size); });
    return isMissingFeature(error) ? 0 : error;
}

/** Piece by piece, so that the user can still cancel; the flush then has little left to do. */
TransferResult FileTransfer::waitForRest(int to)
{
    while (!m_onTheirWay.empty()) {
        if (const int error = waitForOldest(to))
            return {TransferResult::End::TargetError, error};
        if (!m_advance(0))
            return {TransferResult::End::Cancelled, 0};
    }
    return {};
}

} // namespace Zorvane
