#pragma once

#include "Workbench/MeshView/Rasterizer.h"

namespace Zorvane::Workbench {

/** The colours of meshes on light and on dark windows. */
MeshColours meshColours(bool dark);
/** The same with the outside in a colour of its own, and the inside in a pale one like it. */
MeshColours meshColours(bool dark, const QColor& outside);

} // namespace Zorvane::Workbench
