#include "Workbench/Window/RecentPaths.h"

#include "Workbench/Writing/SettingsFile.h"

#include <QtCore/QFileInfo>

namespace Zorvane::Workbench {

namespace {

const QString recentPathsKey = QStringLiteral("Workbench/RecentPaths");
constexpr int s_most = 10;

} // namespace

QStringList RecentPaths::paths()
{
    return QSettings().value(recentPathsKey).toStringList();
}

bool RecentPaths::add(const QString& path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    QStringList all = paths();
    all.removeAll(absolute);
    all.prepend(absolute);
    return storeSetting(recentPathsKey, QStringList(all.mid(0, s_most)));
}

bool RecentPaths::clear()
{
    return storeSetting(recentPathsKey, QStringList());
}

} // namespace Zorvane::Workbench
