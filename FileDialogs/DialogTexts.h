#pragma once

#include "UiToolsExport.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

/*
 * Names, paths and filters as the texts that go into dialogs and come out of them.
 */
namespace Zorvane {

/** The index of the dot of the last name's ending, or -1; a dot in first place is none. */
ZORVANE_UITOOLS_EXPORT int fileEndingIndex(const QString& path);

/**
 * What a filter appends to a name without an ending: all that stands behind its first "*", but for
 * closing brackets; "Design (*.dsg)" gives ".dsg". Nothing where there is no "*".
 */
ZORVANE_UITOOLS_EXPORT QString suffixOfFilter(const QString& filter);

/** A start path as dialogs take it. */
struct DialogStart
{
    /** With native separators. */
    QString folder;
    QString fileName;
};

/**
 * An existing folder is the folder; of anything else the last part is the file's name. An empty
 * path gives neither.
 */
ZORVANE_UITOOLS_EXPORT DialogStart dialogStart(const QString& path);

/** `fileName` in the folder that `path` is, or that holds the file that `path` is or looks like. */
ZORVANE_UITOOLS_EXPORT QString fileBeside(const QString& path, const QString& fileName);

/** The names in a dialog's file name box: `"a b.stl" "c.stl"`, or a single one without quotes. */
ZORVANE_UITOOLS_EXPORT QStringList namesInFileNameBox(const QString& text);

/**
 * `paths` in the order in which their names stand in the file name box; a name that stands there
 * twice counts at its later place. Paths whose names are not in the box follow in their own order.
 */
ZORVANE_UITOOLS_EXPORT QStringList inOrderOfFileNameBox(const QStringList& paths,
                                                        const QString& text);

/**
 * The file types of a filter, which may separate them by ";;" or, where there is no ";;", by line
 * feeds. An empty one is all files.
 */
ZORVANE_UITOOLS_EXPORT QStringList filterTypes(const QString& filter);

/** File types as the system's dialogs take them: names and patterns of the same count. */
struct NativeFileFilters
{
    /** What the user reads, such as "Meshes (*.stl *.obj)". */
    QStringList names;
    /** What is filtered by, such as "*.stl;*.obj". */
    QStringList patterns;
    /** The pattern of the type selected first; a null string when none is. */
    QString preselectedPattern;
};

/** A `selectedFilter` that is one of the filter's types preselects the first such. */
ZORVANE_UITOOLS_EXPORT NativeFileFilters nativeFileFilters(const QString& filter,
                                                           const QString& selectedFilter);

} // namespace Zorvane
