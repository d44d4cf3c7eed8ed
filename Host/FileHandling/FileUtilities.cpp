#include "Host/FileHandling/FileUtilities.h"

#include "Host/FileHandling/PathSyntax.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <exception>
#include <filesystem>
#include <system_error>

namespace Zorvane {

namespace {

QString tidied(const FileName& file)
{
    return QDir::cleanPath(QDir().absoluteFilePath(file.toQString()));
}

std::filesystem::path pathOf(const FileName& file)
{
    try {
        return std::filesystem::u8path(file.toString());
    } catch (const std::exception&) {
        // Where names are text, there is no file whose name is none.
        return {};
    }
}

bool isSameCanonically(const FileName& left, const FileName& right)
{
    const QString canonical = QFileInfo(left.toQString()).canonicalFilePath();
    return !canonical.isEmpty() && canonical == QFileInfo(right.toQString()).canonicalFilePath();
}

bool isSpelledAlike(const FileName& left, const FileName& right)
{
    const bool foldsCase = nativePathSyntax() == PathSyntax::Windows;
    return tidied(left).compare(tidied(right),
                                foldsCase ? Qt::CaseInsensitive : Qt::CaseSensitive) == 0;
}

} // namespace

bool FileUtilities::exists(const FileName& file)
{
    // Qt knows of paths longer than Windows takes by itself, the standard library of names that
    // are no text.
    std::error_code failure;
    return !file.isEmpty() &&
           (QFileInfo::exists(file.toQString()) || std::filesystem::exists(pathOf(file), failure));
}

bool FileUtilities::isEquivalent(const FileName& left, const FileName& right)
{
    if (left.isEmpty() || right.isEmpty())
        return left == right;
    if (!exists(left) || !exists(right))
        return isSpelledAlike(left, right);
    std::error_code failure;
    return isSameCanonically(left, right) ||
           std::filesystem::equivalent(pathOf(left), pathOf(right), failure);
}

} // namespace Zorvane
