#pragma once

#include "UiToolsExport.h"

#include <QtCore/QtGlobal>

#include <string>

namespace Zorvane {

/**
 * The name of a temporary file: ".zvcopy-", eight characters for this machine, "-", and thirteen
 * random ones; ASCII letters and digits. A temporary file is locked as long as a copy uses it.
 * Locks need not reach other machines, but on its own machine a file of such a name without a lock
 * is one that no copy uses any more.
 */
ZORVANE_UITOOLS_EXPORT std::string temporaryCopyName(quint64 random);

/** Whether this machine gave a temporary file the name. */
ZORVANE_UITOOLS_EXPORT bool isTemporaryCopyName(const std::string& name);

} // namespace Zorvane
