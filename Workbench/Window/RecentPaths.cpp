#include "Workbench/Window/RecentPaths.h"

#include <QtCore/QFileInfo>
#include <QtCore/QSettings>

namespace Zorvane::Workbench {

namespace {

const QString recentPathsKey = QStringLiteral("Workbench/RecentPaths");
constexpr int s_most = 10;

} // namespace

QStringList RecentPaths::paths()
{
    return QSettings().value(recentPathsKey).toStringList();
}

void RecentPaths::add(const QString& path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    QStringList all = paths();
    all.removeAll(absolute);
    all.prepend(absolute);
    QSettings().setValue(recentPathsKey, QStringList(all.mid(0, s_most)));
}

void RecentPaths::clear()
{
    QSettings().remove(recentPathsKey);
}

} // namespace Zorvane::Workbench
