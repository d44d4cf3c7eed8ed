#include "FileDialogs/DialogPaths.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <algorithm>

namespace Zorvane {

int fileEndingIndex(const QString& path)
{
    const int separator =
        std::max(path.lastIndexOf(QLatin1Char('/')), path.lastIndexOf(QLatin1Char('\\')));
    const int dot = path.lastIndexOf(QLatin1Char('.'));
    return dot >= 1 && separator < dot ? dot : -1;
}

QString suffixOfFilter(const QString& filter)
{
    const int star = filter.indexOf(QLatin1Char('*'));
    return star < 0 ? QString() : filter.mid(star + 1).remove(QLatin1Char(')'));
}

DialogStart dialogStart(const QString& path)
{
    const QFileInfo info(path);
    if (info.isDir())
        return {QDir::toNativeSeparators(path), QString()};
    return {QDir::toNativeSeparators(info.absolutePath()), info.fileName()};
}

QString fileBeside(const QString& path, const QString& fileName)
{
    const QFileInfo info(path);
    QString folder = path;
    if (info.isDir())
        folder = path;
    else if (info.isFile())
        folder = info.absolutePath();
    else if (fileEndingIndex(path) > 0)
        folder = info.path();
    return QFileInfo(QDir(folder), fileName).absoluteFilePath();
}

} // namespace Zorvane
