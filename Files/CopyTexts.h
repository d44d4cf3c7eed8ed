#pragma once

#include <QtCore/QString>

namespace Zorvane {

/** Texts that the dialogs of copying share. Translated in the context "FileCopyUtility". */
QString leafForDisplay(const QString& path);
QString folderForDisplay(const QString& path);
/** Such as "1.2 MiB". */
QString sizeForDisplay(qint64 bytes);
/** Such as "About 3 minutes left". */
QString timeLeftForDisplay(qint64 seconds);

} // namespace Zorvane
