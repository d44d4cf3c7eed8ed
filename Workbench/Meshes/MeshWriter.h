#pragma once

#include "Workbench/Meshes/TriangleMesh.h"
#include "Workbench/Texts/Problem.h"

#include <QtCore/QString>

#include <optional>

namespace Zorvane::Workbench {

enum class StlFormat
{
    Ascii,
    Binary
};

/**
 * Writes the mesh as an STL file in one step. Returns a problem on failure; the file is as
 * before. A mesh without triangles is refused. May be used in any thread.
 */
std::optional<Problem> writeStl(const TriangleMesh& mesh, const QString& path, StlFormat format);

} // namespace Zorvane::Workbench
