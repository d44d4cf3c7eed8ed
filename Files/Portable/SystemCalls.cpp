#include "Files/Portable/SystemCalls.h"

#include <QtCore/QRandomGenerator>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <limits.h>
#include <string>
#include <sys/file.h>
#include <sys/statfs.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace Zorvane {

namespace {

ssize_t copyRange(int from, int to, size_t size)
{
    return ::copy_file_range(from, nullptr, to, nullptr, size, 0);
}

int startWriteback(int file, off_t offset, off_t size)
{
    return ::sync_file_range(file, offset, size, SYNC_FILE_RANGE_WRITE);
}

int finishWriteback(int file, off_t offset, off_t size)
{
    return ::sync_file_range(file, offset, size,
                             SYNC_FILE_RANGE_WAIT_BEFORE | SYNC_FILE_RANGE_WRITE |
                                 SYNC_FILE_RANGE_WAIT_AFTER);
}

int flushFileSystem(int file)
{
    return ::syncfs(file);
}

/** Network and user-space file systems may answer syncfs without having flushed anything. */
bool isFileSystemFlushReliable(int file)
{
    constexpr std::array<unsigned long, 5> kinds{
        0xEF53UL,     // ext2, ext3, ext4
        0x58465342UL, // XFS
        0x9123683EUL, // Btrfs
        0xF2F52010UL, // F2FS
        0x01021994UL, // tmpfs
    };
    struct statfs facts
    {};
    if (::fstatfs(file, &facts) != 0)
        return false;
    const unsigned long kind = static_cast<unsigned long>(facts.f_type) & 0xFFFFFFFFUL;
    return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
}

qint64 unwrittenBytes()
{
    const int file = ::open("/proc/meminfo", O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return -1;
    std::array<char, 2048> text{};
    const ssize_t length = ::read(file, text.data(), text.size() - 1);
    ::close(file);
    const std::string facts(text.data(), length > 0 ? static_cast<size_t>(length) : 0);
    const size_t line = facts.find("\nDirty:");
    long long kibibytes = -1;
    if (line == std::string::npos ||
        std::sscanf(facts.c_str() + line, "\nDirty: %lld", &kibibytes) != 1)
        return -1;
    return kibibytes * 1024;
}

int renameNoReplace(int folder, const char* from, const char* to)
{
    return ::renameat2(folder, from, folder, to, RENAME_NOREPLACE);
}

int linkUnnamed(int file, int folder, const char* to)
{
    // Older kernels allow the short way to privileged processes only, and say "no such file".
    if (::linkat(file, "", folder, to, AT_EMPTY_PATH) == 0)
        return 0;
    if (errno != ENOENT && errno != EPERM && errno != EINVAL)
        return -1;
    const std::string from = "/proc/self/fd/" + std::to_string(file);
    return ::linkat(AT_FDCWD, from.c_str(), folder, to, AT_SYMLINK_FOLLOW);
}

bool isAppendOnly(int folder)
{
    struct statx facts
    {};
    return ::statx(folder, "", AT_EMPTY_PATH, 0, &facts) == 0 &&
           (facts.stx_attributes & STATX_ATTR_APPEND) != 0;
}

int visitNames(int folder, const std::function<bool(const char*)>& visit)
{
    // Reading moves a position, which an opening of its own keeps to itself.
    const int file = ::openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    DIR* const stream = file < 0 ? nullptr : ::fdopendir(file);
    if (!stream)
        return -1;
    const dirent* entry = ::readdir(stream);
    while (entry && visit(entry->d_name))
        entry = ::readdir(stream);
    return ::closedir(stream);
}

std::string pathOf(int folder)
{
    std::array<char, PATH_MAX> path{};
    const std::string link = "/proc/self/fd/" + std::to_string(folder);
    const ssize_t length = ::readlink(link.c_str(), path.data(), path.size());
    return std::string(path.data(), length > 0 ? static_cast<size_t>(length) : 0);
}

qint64 freeBytes(int folder)
{
    struct statvfs facts
    {};
    // File systems without a size of their own say that they have no blocks at all.
    if (::fstatvfs(folder, &facts) != 0 || facts.f_blocks == 0)
        return -1;
    return static_cast<qint64>(facts.f_bavail) * static_cast<qint64>(facts.f_frsize);
}

constexpr int s_unnamedFileFlags = O_TMPFILE | O_RDWR;

qint64 milliseconds()
{
    using namespace std::chrono;
    return duration_cast<std::chrono::milliseconds>(steady_clock::now().time_since_epoch()).count();
}

SystemCalls makeReal()
{
    SystemCalls calls;
    calls.openAt = [](int folder, const char* path, int flags, mode_t mode) {
        return ::openat(folder, path, flags, mode);
    };
    calls.close = ::close;
    calls.read = ::read;
    calls.write = ::write;
    calls.copyRange = copyRange;
    calls.seek = ::lseek;
    calls.status = [](int file, struct stat& status) { return ::fstat(file, &status); };
    calls.statusAt = [](int folder, const char* path, struct stat& status, int flags) {
        return ::fstatat(folder, path, &status, flags);
    };
    calls.setMode = ::fchmod;
    calls.setTimes = ::futimens;
    calls.setSize = ::ftruncate;
    calls.startWriteback = startWriteback;
    calls.finishWriteback = finishWriteback;
    calls.flush = ::fsync;
    calls.flushFileSystem = flushFileSystem;
    calls.isFileSystemFlushReliable = isFileSystemFlushReliable;
    calls.unwrittenBytes = unwrittenBytes;
    calls.rename = [](int folder, const char* from, const char* to) {
        return ::renameat(folder, from, folder, to);
    };
    calls.renameNoReplace = renameNoReplace;
    calls.link = [](int folder, const char* from, const char* to) {
        return ::linkat(folder, from, folder, to, 0);
    };
    calls.linkUnnamed = linkUnnamed;
    calls.unlink = [](int folder, const char* name) { return ::unlinkat(folder, name, 0); };
    calls.lock = [](int file) { return ::flock(file, LOCK_EX | LOCK_NB); };
    calls.isAppendOnly = isAppendOnly;
    calls.visitNames = visitNames;
    calls.pathOf = pathOf;
    calls.freeBytes = freeBytes;
    calls.mostOpenFiles = [] { return ::sysconf(_SC_OPEN_MAX); };
    calls.mostNameBytes = [](int folder) { return ::fpathconf(folder, _PC_NAME_MAX); };
    calls.milliseconds = milliseconds;
    calls.random = [] { return QRandomGenerator::system()->generate(); };
    calls.unnamedFileFlags = s_unnamedFileFlags;
    return calls;
}

} // namespace

const SystemCalls& SystemCalls::real()
{
    static const SystemCalls calls = makeReal();
    return calls;
}

} // namespace Zorvane
