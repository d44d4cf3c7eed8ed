#pragma once

#include "Workbench/Meshes/TriangleMesh.h"

#include <QtCore/QString>

namespace Zorvane::Workbench {

/** A closed block of this size in millimetres, its lowest corner at the origin. */
TriangleMesh blockMesh(const QVector3D& size);
/** A sheet with ripples, open at its border, of about this many triangles. */
TriangleMesh rippledSheet(int triangles);
/** Writes "part-0001.stl" and so on, blocks and sheets of many sizes; false on failure. */
bool writeManyMeshes(const QString& folder, int count);

} // namespace Zorvane::Workbench
