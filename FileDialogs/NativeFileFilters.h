#pragma once

#include "UiToolsExport.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace Zorvane {

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

/**
 * The filter of a `QFileDialog` in the form of the system's dialogs; `filter` may separate its
 * types by ";;" or, where there is no ";;", by line feeds. An empty one is all files. A
 * `selectedFilter` (null or empty: none) that is one of the types preselects the first such.
 */
ZORVANE_UITOOLS_EXPORT NativeFileFilters nativeFileFilters(const QString& filter,
                                                           const QString* selectedFilter);

} // namespace Zorvane
