#pragma once

#include "UiToolsExport.h"

#include <QtCore/QString>

namespace Zorvane {

/** Texts that the dialogs of copying share. Translated in the context "FileCopyUtility". */
ZORVANE_UITOOLS_EXPORT QString leafForDisplay(const QString& path);
ZORVANE_UITOOLS_EXPORT QString folderForDisplay(const QString& path);
/** Such as "1.2 MiB". */
ZORVANE_UITOOLS_EXPORT QString sizeForDisplay(qint64 bytes);
/** Such as "About 3 minutes left". */
ZORVANE_UITOOLS_EXPORT QString timeLeftForDisplay(qint64 seconds);

} // namespace Zorvane
