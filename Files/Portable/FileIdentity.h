#pragma once

#include <sys/stat.h>

namespace Zorvane {

inline bool isSameFile(const struct stat& left, const struct stat& right)
{
    return left.st_dev == right.st_dev && left.st_ino == right.st_ino;
}

inline bool isSameTime(const timespec& left, const timespec& right)
{
    return left.tv_sec == right.tv_sec && left.tv_nsec == right.tv_nsec;
}

/**
 * The same file, as far as can be known without reading it also with the same content. Programs
 * can set the modification time back, but not the time of the last change.
 */
inline bool isUnchanged(const struct stat& before, const struct stat& now)
{
    return isSameFile(before, now) && before.st_size == now.st_size &&
           (before.st_mode & S_IFMT) == (now.st_mode & S_IFMT) &&
           isSameTime(before.st_mtim, now.st_mtim) && isSameTime(before.st_ctim, now.st_ctim);
}

} // namespace Zorvane
