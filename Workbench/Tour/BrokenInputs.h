#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace Zorvane::Workbench {

/**
 * Writes everything that must not bring the Workbench down into `folder`: two broken meshes, a mesh
 * file of 2 GB of nothing, a design cut in the middle, one that refers outside and to a missing
 * file, two that refer to each other, and a good mesh. Returns the paths to open; empty on failure.
 */
QStringList writeBrokenInputs(const QString& folder);

} // namespace Zorvane::Workbench
