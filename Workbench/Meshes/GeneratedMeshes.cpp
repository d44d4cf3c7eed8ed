#include "Workbench/Meshes/GeneratedMeshes.h"

#include "Workbench/Meshes/MeshWriter.h"

#include <QtCore/QDir>

#include <cmath>

namespace Zorvane::Workbench {

TriangleMesh blockMesh(const QVector3D& size)
{
    TriangleMesh mesh;
    for (int corner = 0; corner < 8; ++corner)
        mesh.points.push_back({corner & 1 ? size.x() : 0.f, corner & 2 ? size.y() : 0.f,
                               corner & 4 ? size.z() : 0.f});
    mesh.triangles = {{0, 2, 1}, {1, 2, 3}, {4, 5, 6}, {5, 7, 6}, {0, 1, 4}, {1, 5, 4},
                      {2, 6, 3}, {3, 6, 7}, {0, 4, 2}, {2, 4, 6}, {1, 3, 5}, {3, 7, 5}};
    return mesh;
}

TriangleMesh rippledSheet(int triangles)
{
    TriangleMesh mesh;
    const auto cells = std::uint32_t(std::ceil(std::sqrt(double(triangles) / 2)));
    constexpr double length = 400;
    for (std::uint32_t row = 0; row <= cells; ++row) {
        for (std::uint32_t column = 0; column <= cells; ++column) {
            const double x = length * (double(column) / cells - 0.5);
            const double y = length * (double(row) / cells - 0.5);
            const double away = std::hypot(x, y) / 22;
            mesh.points.push_back(
                {float(x), float(y), float(36 * std::cos(away) / (1 + away / 3))});
        }
    }
    for (std::uint32_t row = 0; row < cells; ++row) {
        for (std::uint32_t column = 0; column < cells; ++column) {
            const std::uint32_t corner = row * (cells + 1) + column;
            const std::uint32_t above = corner + cells + 1;
            mesh.triangles.push_back({corner, corner + 1, above + 1});
            mesh.triangles.push_back({corner, above + 1, above});
        }
    }
    return mesh;
}

bool writeManyMeshes(const QString& folder, int count)
{
    for (int number = 1; number <= count; ++number) {
        const QString name = QStringLiteral("part-%1.stl").arg(number, 4, 10, QLatin1Char('0'));
        const float length = 20 + float(number % 37) * 3;
        const TriangleMesh mesh = number % 5 == 0 ? rippledSheet(200 + number * 4)
                                                  : blockMesh({length, 15 + float(number % 11), 8});
        if (writeStl(mesh, QDir(folder).filePath(name), StlFormat::Binary))
            return false;
    }
    return true;
}

} // namespace Zorvane::Workbench
