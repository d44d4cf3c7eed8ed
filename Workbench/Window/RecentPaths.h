#pragma once

#include <QtCore/QStringList>

namespace Zorvane::Workbench {

/** The paths opened last, newest first, kept in the application's settings; at most ten. */
class RecentPaths
{
public:
    static QStringList paths();
    static void add(const QString& path);
    static void clear();
};

} // namespace Zorvane::Workbench
