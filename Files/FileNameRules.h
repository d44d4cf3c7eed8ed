#pragma once

#include "Host/FileHandling/PathSyntax.h"
#include "UiToolsExport.h"

#include <QtCore/QString>

namespace Zorvane {

/** Names longer than this are taken by no file system of today. */
constexpr int s_longestFileName = 255;

/** Why no file can have a name. */
enum class FileNameFault
{
    None,
    Empty,
    Folder, /**< "." and "..". */
    Letter, /**< A separator, a NUL; on Windows also a control letter, and any of <>:"|?*. */
    Device, /**< On Windows "CON", "NUL", "COM1" and the like, also with an ending. */
    End,    /**< On Windows a dot or a blank at the end, which would get lost. */
    Length
};

/**
 * Whether a file may have the name, which has no folders, by the rules of the system that is meant.
 * A file system may have further rules of its own. Not supported: names by "\\?\" on Windows, which
 * follow other rules there and which hardly any program can open.
 */
ZORVANE_UITOOLS_EXPORT FileNameFault faultOfFileName(const QString& name,
                                                     PathSyntax syntax = nativePathSyntax());

/** As the limit of names counts it: in UTF-16 units on Windows, else in bytes. */
ZORVANE_UITOOLS_EXPORT int fileNameLength(const QString& name,
                                          PathSyntax syntax = nativePathSyntax());

/**
 * The stem with the ending behind it. Where that is longer than `most`, the stem loses whole
 * characters at its end, all but the first, and then blanks and dots there, and what would leave a
 * device's name.
 */
ZORVANE_UITOOLS_EXPORT QString fittedFileName(const QString& stem, const QString& ending,
                                              int most = s_longestFileName,
                                              PathSyntax syntax = nativePathSyntax());

} // namespace Zorvane
