#pragma once

#include "Host/HostExport.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace Zorvane {

/**
 * How paths are written. The rules are plain functions of texts, so those of every system can be
 * tried on any. Paths are UTF-8 and, where not said otherwise, written with forward slashes.
 */
enum class PathSyntax
{
    Posix,   /**< The slash separates; a backslash is an ordinary letter of a name. */
    Windows, /**< Both separate; drives, "//server/share" and "//?/" start absolute paths. */
};

/** The syntax of the system that the program runs on. */
ZORVANE_HOST_EXPORT PathSyntax nativePathSyntax();

/** The path with every separator turned into a forward slash. */
ZORVANE_HOST_EXPORT std::string withForwardSlashes(std::string path, PathSyntax syntax);
/** The path with the separators that the system itself writes. */
ZORVANE_HOST_EXPORT std::string withNativeSeparators(std::string path, PathSyntax syntax);

/**
 * The number of leading characters that name where the path starts: "/", "C:/", "C:" (the drive's
 * current folder), "//server/share", "//?/C:/", "//?/UNC/server/share"; 0 for a relative path.
 */
ZORVANE_HOST_EXPORT std::size_t rootLength(std::string_view path, PathSyntax syntax);

/** The path without its last name; "." for a bare name; empty for a root and for an empty path. */
ZORVANE_HOST_EXPORT std::string parentOf(std::string_view path, PathSyntax syntax);
/** The last name; empty for a root. Separators at the end do not count. */
ZORVANE_HOST_EXPORT std::string leafOf(std::string_view path, PathSyntax syntax);
/** What follows the leaf's last dot. A leaf that starts with its only dot has no extension. */
ZORVANE_HOST_EXPORT std::string extensionOf(std::string_view path, PathSyntax syntax);

} // namespace Zorvane
