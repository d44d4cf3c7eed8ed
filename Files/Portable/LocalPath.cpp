#include "Files/Portable/LocalPath.h"

#include "Files/PathText.h"
#include "Files/Portable/FileIdentity.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <filesystem>

namespace Zorvane {

std::string localPathBytes(const QString& path)
{
    if (isAscii(path))
        return pathToBytes(path);
    const QByteArray encoded = QFile::encodeName(path);
    return QFile::decodeName(encoded) == path ? encoded.toStdString() : pathToBytes(path);
}

std::string fullPathBytes(const std::string& path)
{
    // QDir would read the current folder's name as text, which not every name is.
    std::error_code error;
    const std::string full = std::filesystem::absolute(path, error).native();
    if (error)
        return path;
    const std::string tidy = pathToBytes(QDir::cleanPath(pathFromBytes(full)));
    struct stat meant
    {};
    struct stat found
    {};
    // The text doesn't know that ".." behind a link leads out of what the link leads to.
    const bool same = ::stat(full.c_str(), &meant) == 0 && ::stat(tidy.c_str(), &found) == 0 &&
                      isSameFile(meant, found);
    return same ? tidy : full;
}

} // namespace Zorvane
