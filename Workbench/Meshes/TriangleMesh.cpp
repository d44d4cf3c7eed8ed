#include "Workbench/Meshes/TriangleMesh.h"

#include <algorithm>

namespace Zorvane::Workbench {

BoundingBox boundingBox(const TriangleMesh& mesh)
{
    if (mesh.points.empty())
        return {};
    BoundingBox box{mesh.points.front(), mesh.points.front()};
    for (const QVector3D& point : mesh.points) {
        for (int axis = 0; axis < 3; ++axis) {
            box.lowest[axis] = std::min(box.lowest[axis], point[axis]);
            box.highest[axis] = std::max(box.highest[axis], point[axis]);
        }
    }
    return box;
}

} // namespace Zorvane::Workbench
