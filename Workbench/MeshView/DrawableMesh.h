#pragma once

#include "Workbench/Meshes/TriangleMesh.h"

#include <QtGui/QVector3D>

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

namespace Zorvane::Workbench {

/**
 * A mesh with what is computed once before it is drawn many times: normals for smooth shading,
 * and the edges that show a shape. A plain value; the mesh itself is shared.
 */
struct DrawableMesh
{
    std::shared_ptr<const TriangleMesh> mesh;
    BoundingBox box;
    /** One unit normal for each corner of each triangle; zero for triangles without area. */
    std::vector<std::array<QVector3D, 3>> normals;
    /** Borders and folds, as pairs of indices into the mesh's points. */
    std::vector<std::array<std::uint32_t, 2>> edges;

    bool isEmpty() const { return !mesh || mesh->isEmpty(); }
};

/**
 * Smooths over angles below 30 degrees and takes larger ones for folds. Meshes of more than two
 * million triangles are left flat and without edges, to be shown at once all the same.
 */
DrawableMesh prepareForDrawing(std::shared_ptr<const TriangleMesh> mesh);

} // namespace Zorvane::Workbench
