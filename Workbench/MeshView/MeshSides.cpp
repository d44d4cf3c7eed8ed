#include "Workbench/MeshView/MeshSides.h"

#include <utility>

namespace Zorvane::Workbench {

namespace {

bool isShown(const TriangleMesh& mesh, const TriangleMesh::Triangle& triangle,
             const MeshSides& sides)
{
    const float middle =
        mesh.points[triangle[0]].y() + mesh.points[triangle[1]].y() + mesh.points[triangle[2]].y();
    return middle < 0 ? sides.secondary : sides.primary;
}

void addMirrorImage(TriangleMesh& mesh)
{
    const auto count = std::uint32_t(mesh.points.size());
    mesh.points.reserve(mesh.points.size() * 2);
    for (std::uint32_t i = 0; i < count; ++i) {
        const QVector3D point = mesh.points[i];
        mesh.points.emplace_back(point.x(), -point.y(), point.z());
    }
    const std::size_t triangles = mesh.triangles.size();
    mesh.triangles.reserve(triangles * 2);
    for (std::size_t i = 0; i < triangles; ++i) {
        const TriangleMesh::Triangle original = mesh.triangles[i];
        // The other way round, so that outside stays outside.
        mesh.triangles.push_back({original[0] + count, original[2] + count, original[1] + count});
    }
}

} // namespace

std::shared_ptr<const TriangleMesh> sidesOf(const std::shared_ptr<const TriangleMesh>& mesh,
                                            const MeshSides& sides)
{
    if (!mesh || sides.isAll())
        return mesh;
    auto shown = std::make_shared<TriangleMesh>();
    shown->points = mesh->points;
    for (const TriangleMesh::Triangle& triangle : mesh->triangles)
        if (isShown(*mesh, triangle, sides))
            shown->triangles.push_back(triangle);
    if (sides.mirrored)
        addMirrorImage(*shown);
    return shown;
}

} // namespace Zorvane::Workbench
