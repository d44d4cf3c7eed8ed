#pragma once

#include "UiToolsExport.h"

#include <QtCore/QHash>
#include <QtCore/QString>

#include <vector>

namespace Zorvane {

/**
 * Tells in which folder a file dialog opens and which folders it offers as places, by scope: a
 * short name of what the dialog is for, such as "Design", "Import" or "Presses". Nothing here
 * fails: an unknown scope has the user's documents folder. Which separators a path has depends on
 * where it comes from; a dialog that needs native ones converts them.
 *
 * Implementations may override each operation by itself; the others call it.
 */
class ZORVANE_UITOOLS_EXPORT PathProvider
{
public:
    PathProvider();
    PathProvider(const PathProvider& other);
    PathProvider& operator=(const PathProvider& other);
    virtual ~PathProvider();

    /** The folder that the suite is set up with for the scope. */
    virtual QString getDefaultPathFromScope(const QString& scope) = 0;
    /** The folder used last in the scope, also in an earlier run of the application. */
    virtual QString getLastPathFromScope(const QString& scope) = 0;
    /** Where a dialog of the scope opens. */
    virtual QString getPathFromScope(const QString& scope) = 0;
    /** Remembers the file or folder that the user chose; an empty path is not remembered. */
    virtual void setPathToScope(const QString& path, const QString& scope) = 0;
    /** The folders to offer as places, in order; the same folder may stand there twice. */
    virtual std::vector<QString> getPlacesFromScope(const QString& scope) = 0;

protected:
    /** The default folder of each scope that has one; filled at its first use, then left alone. */
    static QHash<QString, QString>& getDefaultPathes();
    /** The folder of an existing file, and any other path itself, with native separators. */
    static QString getDirectoryName(const QString& path);
};

} // namespace Zorvane
