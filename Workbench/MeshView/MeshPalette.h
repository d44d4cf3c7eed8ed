#pragma once

#include "Workbench/MeshView/Rasterizer.h"

namespace Zorvane::Workbench {

/** The colours of meshes on light and on dark windows. */
MeshColours meshColours(bool dark);

} // namespace Zorvane::Workbench
