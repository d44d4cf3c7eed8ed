#pragma once

#include "UiToolsExport.h"

#include <QtCore/QtGlobal>

#include <functional>
#include <sys/stat.h>
#include <sys/types.h>

namespace Zorvane {

/**
 * Every call to the system that copying makes, so that tests can let each of them fail, be
 * interrupted, fall short or be preceded by somebody else's doing. Results and `errno` are those
 * of the functions of the same name; where a system lacks one, its entry fails with ENOSYS.
 */
struct ZORVANE_UITOOLS_EXPORT SystemCalls
{
    std::function<int(int folder, const char* path, int flags, mode_t mode)> openAt;
    std::function<int(int file)> close;
    std::function<ssize_t(int file, void* buffer, size_t size)> read;
    std::function<ssize_t(int file, const void* buffer, size_t size)> write;
    /** From the present position of one file to that of the other, inside the kernel. */
    std::function<ssize_t(int from, int to, size_t size)> copyRange;

    std::function<int(int file, struct stat& status)> status;
    std::function<int(int folder, const char* path, struct stat& status, int flags)> statusAt;
    std::function<int(int file, mode_t mode)> setMode;
    std::function<int(int file, const timespec times[2])> setTimes;
    std::function<int(int file, off_t size)> setSize;

    /** Begins to write a range to disk. A hint: it makes nothing durable. */
    std::function<int(int file, off_t offset, off_t size)> startWriteback;
    /** Waits for what `startWriteback` began, size 0 meaning to the end; reports its errors. */
    std::function<int(int file, off_t offset, off_t size)> finishWriteback;
    std::function<int(int file)> flush;
    /** Makes everything on the file system of `file` durable. */
    std::function<int(int file)> flushFileSystem;
    /** 1 where `flushFileSystem` on the file system of `file` is as good as flushing each file. */
    std::function<int(int file)> flushFileSystemCounts;
    /** Bytes of the whole machine that wait to be written; -1 where that is not known. */
    std::function<qint64()> unwrittenBytes;

    std::function<int(int folder, const char* from, const char* to)> rename;
    std::function<int(int folder, const char* from, const char* to)> renameNoReplace;
    std::function<int(int folder, const char* from, const char* to)> link;
    /** Gives a file opened with `unnamedFileFlags` a name that nothing has. */
    std::function<int(int file, int folder, const char* to)> linkUnnamed;
    std::function<int(int folder, const char* name)> unlink;

    std::function<long(int folder)> mostNameBytes;
    std::function<qint64()> milliseconds; /**< Of a clock that only goes forward. */
    std::function<quint32()> random;

    /** Flags of `openAt` for a file without a name in the folder; 0 where there are none such. */
    int unnamedFileFlags = 0;

    static const SystemCalls& real();
};

} // namespace Zorvane
