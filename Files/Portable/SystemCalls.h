#pragma once

#include "UiToolsExport.h"

#include <QtCore/QtGlobal>

#include <functional>
#include <string>
#include <sys/stat.h>
#include <sys/types.h>

namespace Zorvane {

/**
 * Every call to the system that copying makes, so that tests can let each of them fail, be
 * interrupted, fall short or be preceded by another program's. An entry answers and sets
 * `errno` as the function named beside it. Not supported: systems other than Linux; Windows copies
 * by its shell.
 */
struct ZORVANE_UITOOLS_EXPORT SystemCalls
{
    /** `openat` */
    std::function<int(int folder, const char* path, int flags, mode_t mode)> openAt;
    /** `close` */
    std::function<int(int file)> close;
    /** `read` */
    std::function<ssize_t(int file, void* buffer, size_t size)> read;
    /** `write` */
    std::function<ssize_t(int file, const void* buffer, size_t size)> write;
    /** `copy_file_range`, from the present position of one file to that of the other. */
    std::function<ssize_t(int from, int to, size_t size)> copyRange;

    /** `lseek` */
    std::function<off_t(int file, off_t offset, int whence)> seek;

    /** `fstat` */
    std::function<int(int file, struct stat& status)> status;
    /** `fstatat` */
    std::function<int(int folder, const char* path, struct stat& status, int flags)> statusAt;
    /** `fchmod` */
    std::function<int(int file, mode_t mode)> setMode;
    /** `futimens` */
    std::function<int(int file, const timespec times[2])> setTimes;
    /** `ftruncate` */
    std::function<int(int file, off_t size)> setSize;

    /** `sync_file_range` that begins to write a range. A hint: it makes nothing durable. */
    std::function<int(int file, off_t offset, off_t size)> startWriteback;
    /** `sync_file_range` that waits for that, size 0 meaning to the end; reports its errors. */
    std::function<int(int file, off_t offset, off_t size)> finishWriteback;
    /** `fsync` */
    std::function<int(int file)> flush;
    /** `syncfs`: makes everything on the file system of `file` durable. */
    std::function<int(int file)> flushFileSystem;
    /** Whether `flushFileSystem` there is as good as flushing each file. By `fstatfs`. */
    std::function<bool(int file)> isFileSystemFlushReliable;
    /** Bytes of the whole machine that wait to be written; -1 where that is not known. */
    std::function<qint64()> unwrittenBytes;

    /** `renameat` inside one folder; replaces. */
    std::function<int(int folder, const char* from, const char* to)> rename;
    /** `renameat2` with `RENAME_NOREPLACE`, inside one folder. */
    std::function<int(int folder, const char* from, const char* to)> renameNoReplace;
    /** `linkat` inside one folder; never replaces. */
    std::function<int(int folder, const char* from, const char* to)> link;
    /** `linkat` that gives a file opened with `unnamedFileFlags` a name that nothing has. */
    std::function<int(int file, int folder, const char* to)> linkUnnamed;
    /** `unlinkat` of a file. */
    std::function<int(int folder, const char* name)> unlink;

    /** `flock` that takes the file for this opening alone, or fails at once. */
    std::function<int(int file)> lock;
    /** Whether names in the folder can only be added. By `statx`. */
    std::function<bool(int folder)> isAppendOnly;
    /** Reads the folder; what `visit` answers stops it by false. */
    std::function<int(int folder, const std::function<bool(const char* name)>& visit)> visitNames;
    /** The full path that the system knows an open folder by now; empty if it cannot say. */
    std::function<std::string(int folder)> pathOf;
    /** Bytes that this program may write to the folder's file system; -1 where not known. */
    std::function<qint64(int folder)> freeBytes;
    /** How many files this program may have open. */
    std::function<long()> mostOpenFiles;
    /** `fpathconf` with `_PC_NAME_MAX` */
    std::function<long(int folder)> mostNameBytes;
    /** Of a clock that only goes forward. */
    std::function<qint64()> milliseconds;
    std::function<quint32()> random;

    /** Flags of `openAt` for a file without a name in the folder; 0 where there are none such. */
    int unnamedFileFlags = 0;

    static const SystemCalls& real();
};

} // namespace Zorvane
