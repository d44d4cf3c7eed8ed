#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

namespace Zorvane::Workbench {

/** Names of files that the Workbench reads and writes. */
class FileNames
{
    Q_DECLARE_TR_FUNCTIONS(Zorvane::Workbench::FileNames)

public:
    /** Whether the path ends as those of designs do. */
    static bool isDesign(const QString& path);
    /** Why no file can have the name here, translated, to follow it; empty if one can. */
    static QString obstacle(const QString& name);
    /**
     * The stem, shortened where the system demands it, and the ending. Leaves room for what a file
     * that is being written has behind its name.
     */
    static QString fitted(const QString& stem, const QString& ending);
    /**
     * Whether both absolute paths, spelled alike or differing in the case of letters where that
     * doesn't count, name one file or folder.
     */
    static bool areSame(const QString& left, const QString& right);
    /** Whether every name of a path, written with slashes and without a root, can be a file's. */
    static bool arePossible(const QString& relativePath);
};

} // namespace Zorvane::Workbench
