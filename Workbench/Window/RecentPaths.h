#pragma once

#include <QtCore/QStringList>

namespace Zorvane::Workbench {

/**
 * The paths opened last, newest first, kept in the application's settings; at most ten. Changes
 * return false if they could not be stored.
 */
class RecentPaths
{
public:
    static QStringList paths();
    static bool add(const QString& path);
    static bool clear();
};

} // namespace Zorvane::Workbench
