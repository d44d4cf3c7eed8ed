#pragma once

#include "Workbench/Meshes/TriangleMesh.h"

#include <QtCore/QByteArray>

namespace Zorvane::Testing {

/** A cube with a corner at the origin, 8 points and 12 triangles. */
Workbench::TriangleMesh cube(float size = 10);
/** The cube without its top. */
Workbench::TriangleMesh openBox(float size = 10);

/** Written here, byte by byte, without the program's writer. */
QByteArray asciiStl(const Workbench::TriangleMesh& mesh);
QByteArray binaryStl(const Workbench::TriangleMesh& mesh, const QByteArray& header = {});
QByteArray obj(const Workbench::TriangleMesh& mesh);
QByteArray asciiPly(const Workbench::TriangleMesh& mesh);
QByteArray binaryPly(const Workbench::TriangleMesh& mesh, bool bigEndian);

} // namespace Zorvane::Testing
