#pragma once

#include <sys/stat.h>

namespace Zorvane {

inline bool isSameFile(const struct stat& left, const struct stat& right)
{
    return left.st_dev == right.st_dev && left.st_ino == right.st_ino;
}

/** The same file, as far as can be told without reading it also with the same content. */
inline bool isUnchanged(const struct stat& before, const struct stat& now)
{
    return isSameFile(before, now) && before.st_size == now.st_size &&
           (before.st_mode & S_IFMT) == (now.st_mode & S_IFMT) &&
           before.st_mtim.tv_sec == now.st_mtim.tv_sec &&
           before.st_mtim.tv_nsec == now.st_mtim.tv_nsec;
}

} // namespace Zorvane
