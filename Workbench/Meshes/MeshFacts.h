#pragma once

#include "Workbench/Meshes/TriangleMesh.h"

#include <QtCore/QMetaType>

#include <cstddef>

namespace Zorvane::Workbench {

/** What is worth knowing about a mesh without looking at it. */
struct MeshFacts
{
    std::size_t triangles = 0;
    /** In millimetres. */
    BoundingBox box;
    /** In square millimetres. */
    double surface = 0;
    /**
     * Whether the surface encloses a volume: every edge belongs to exactly two triangles, which run
     * along it in opposite directions. Triangles with a corner twice are not counted. Not
     * supported: finding surfaces that cut through themselves.
     */
    bool watertight = false;
};

MeshFacts meshFacts(const TriangleMesh& mesh);

} // namespace Zorvane::Workbench

Q_DECLARE_METATYPE(Zorvane::Workbench::MeshFacts)
