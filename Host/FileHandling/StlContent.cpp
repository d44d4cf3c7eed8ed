#include "Host/FileHandling/StlContent.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QtEndian>

namespace Zorvane {

bool isBinaryStl(const FileName& fileName)
{
    constexpr int textLength = 80;
    constexpr int headLength = textLength + 4;
    constexpr qint64 triangleLength = 50;

    QFile file(fileName.toQString());
    // A pipe would wait for its writer.
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray head = file.read(headLength);
    if (head.size() < headLength)
        return false;
    const qint64 triangles = qFromLittleEndian<quint32>(head.constData() + textLength);
    return file.size() == headLength + triangles * triangleLength;
}

} // namespace Zorvane
