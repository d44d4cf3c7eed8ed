#pragma once

#include "UiToolsExport.h"

#include <QtCore/QStringList>

namespace Zorvane {

/** Texts that the dialogs of copying share. Translated in the context "FileCopyUtility". */
ZORVANE_UITOOLS_EXPORT QString leafForDisplay(const QString& path);
ZORVANE_UITOOLS_EXPORT QString folderForDisplay(const QString& path);
/**
 * For each path its leaf name, after as many folders as it takes to know it from the other paths:
 * "left/door.stl" and "right/door.stl".
 */
ZORVANE_UITOOLS_EXPORT QStringList distinctNamesForDisplay(const QStringList& paths);
/** Such as "1.2 MiB". */
ZORVANE_UITOOLS_EXPORT QString sizeForDisplay(qint64 bytes);
/** Such as "About 3 minutes left". */
ZORVANE_UITOOLS_EXPORT QString timeLeftForDisplay(qint64 seconds);

} // namespace Zorvane
