#include "Files/Portable/LocalPath.h"

#include "Files/PathText.h"

#include <QtCore/QFile>

namespace Zorvane {

std::string localPathBytes(const QString& path)
{
    if (isAscii(path))
        return pathToBytes(path);
    const QByteArray encoded = QFile::encodeName(path);
    return QFile::decodeName(encoded) == path ? encoded.toStdString() : pathToBytes(path);
}

} // namespace Zorvane
