#pragma once

#include <QtCore/QString>

namespace Zorvane {

inline const QLatin1String s_designScope("Design");

/** The setting that holds the scope's last path. */
inline QString lastPathKey(const QString& scope)
{
    return QStringLiteral("LastFile/") + scope;
}

} // namespace Zorvane
