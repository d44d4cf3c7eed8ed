#include "Workbench/Window/RecentPaths.h"

#include <QtCore/QFileInfo>
#include <QtCore/QSettings>

namespace Zorvane::Workbench {

namespace {

const QString s_key = QStringLiteral("Workbench/RecentPaths");
constexpr int s_most = 10;

} // namespace

QStringList RecentPaths::paths()
{
    return QSettings().value(s_key).toStringList();
}

void RecentPaths::add(const QString& path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    QStringList all = paths();
    all.removeAll(absolute);
    all.prepend(absolute);
    QSettings().setValue(s_key, QStringList(all.mid(0, s_most)));
}

void RecentPaths::clear()
{
    QSettings().remove(s_key);
}

} // namespace Zorvane::Workbench
