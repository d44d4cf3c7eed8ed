#include "Host/FileHandling/FileUtilities.h"

#include "Host/FileHandling/PathSyntax.h"

#include <QtCore/QDir>

#include <filesystem>
#include <system_error>

namespace Zorvane {

namespace {

QString tidied(const FileName& file)
{
    return QDir::cleanPath(QDir().absoluteFilePath(file.toQString()));
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
    std::error_code failure;
    return !file.isEmpty() &&
           std::filesystem::exists(std::filesystem::u8path(file.toString()), failure);
}

bool FileUtilities::isEquivalent(const FileName& left, const FileName& right)
{
    if (left.isEmpty() || right.isEmpty())
        return left == right;
    if (!exists(left) || !exists(right))
        return isSpelledAlike(left, right);
    std::error_code failure;
    return std::filesystem::equivalent(std::filesystem::u8path(left.toString()),
                                       std::filesystem::u8path(right.toString()), failure);
}

} // namespace Zorvane
