#pragma once

#include "UiToolsExport.h"

#include <QtCore/QString>

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

/** An existing folder is the folder; of anything else the last part is the file's name. */
ZORVANE_UITOOLS_EXPORT DialogStart dialogStart(const QString& path);

/** `fileName` in the folder that `path` is, or that holds the file that `path` is or looks like. */
ZORVANE_UITOOLS_EXPORT QString fileBeside(const QString& path, const QString& fileName);

} // namespace Zorvane
