#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>

namespace Zorvane {

/** What the file system says about a path; links are followed. */
struct PathFacts
{
    bool exists = false;
    bool isFolder = false;
    QString canonicalPath;   /**< Absolute, without links; empty where nothing exists. */
    QString canonicalFolder; /**< The folder of the canonical path. */
};

/**
 * Asks the platform. Never fails: what cannot be looked at does not exist. Remembers the folders
 * that it has seen, so one probe serves one check and is thrown away.
 */
class PathProbe
{
public:
    PathFacts look(const QString& path);

private:
    QHash<QString, QString> m_canonicalFolders;
};

} // namespace Zorvane
