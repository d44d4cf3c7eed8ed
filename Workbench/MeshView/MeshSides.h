#pragma once

#include "Workbench/Meshes/TriangleMesh.h"

#include <memory>

namespace Zorvane::Workbench {

/**
 * What is shown of a mesh that is symmetric to the plane y = 0: the primary side lies towards
 * positive y, the secondary one towards negative y.
 */
struct MeshSides
{
    bool primary = true;
    bool secondary = true;
    /** Adds the mirror image. */
    bool mirrored = false;

    bool isAll() const { return primary && secondary && !mirrored; }
};

/**
 * A mesh of those triangles that are shown; the same mesh where that is all of it. A triangle
 * belongs to the side of its middle.
 */
std::shared_ptr<const TriangleMesh> sidesOf(const std::shared_ptr<const TriangleMesh>& mesh,
                                            const MeshSides& sides);

} // namespace Zorvane::Workbench
