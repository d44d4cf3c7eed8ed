#pragma once

#include "UiToolsExport.h"

#include <QtCore/QStringList>

#include <optional>

namespace Zorvane {

class CopyProgress;

/** The code of `FileCopyUtility::check`, with a progress; nothing if that cancelled. */
ZORVANE_UITOOLS_EXPORT std::optional<int>
checkCopy(const QStringList& sourceFiles, const QString& targetFolder, CopyProgress& progress);

} // namespace Zorvane
