#include "Workbench/Meshes/MeshFacts.h"

#include <algorithm>
#include <cmath>
#include <tuple>
#include <vector>

namespace Zorvane::Workbench {

namespace {

/** An edge by its two points, the lower first, and whether a triangle runs along it upwards. */
struct EdgeUse
{
    std::uint32_t low = 0;
    std::uint32_t high = 0;
    bool upwards = false;

    bool sameEdge(const EdgeUse& other) const { return low == other.low && high == other.high; }
    friend bool operator<(const EdgeUse& left, const EdgeUse& right)
    {
        return std::tie(left.low, left.high, left.upwards) <
               std::tie(right.low, right.high, right.upwards);
    }
};

bool hasCornerTwice(const TriangleMesh::Triangle& triangle)
{
    return triangle[0] == triangle[1] || triangle[1] == triangle[2] || triangle[2] == triangle[0];
}

std::vector<EdgeUse> sortedEdgeUses(const TriangleMesh& mesh)
{
    std::vector<EdgeUse> uses;
    uses.reserve(mesh.triangles.size() * 3);
    for (const TriangleMesh::Triangle& triangle : mesh.triangles) {
        if (hasCornerTwice(triangle))
            continue;
        for (std::size_t i = 0; i < 3; ++i) {
            const std::uint32_t from = triangle[i];
            const std::uint32_t to = triangle[(i + 1) % 3];
            uses.push_back({std::min(from, to), std::max(from, to), from < to});
        }
    }
    std::sort(uses.begin(), uses.end());
    return uses;
}

bool isWatertight(const TriangleMesh& mesh)
{
    const std::vector<EdgeUse> uses = sortedEdgeUses(mesh);
    if (uses.empty() || uses.size() % 2 != 0)
        return false;
    for (std::size_t i = 0; i < uses.size(); i += 2) {
        const bool pair = uses[i].sameEdge(uses[i + 1]) && uses[i].upwards != uses[i + 1].upwards;
        if (!pair || (i > 0 && uses[i].sameEdge(uses[i - 1])))
            return false;
    }
    return true;
}

struct Vector
{
    double x, y, z;
};

/** In double precision: far from the origin, floats lose the difference. */
Vector between(const QVector3D& from, const QVector3D& to)
{
    const auto distance = [](float a, float b) {
        return static_cast<double>(b) - static_cast<double>(a);
    };
    return {distance(from.x(), to.x()), distance(from.y(), to.y()), distance(from.z(), to.z())};
}

double surface(const TriangleMesh& mesh)
{
    double twice = 0;
    for (const TriangleMesh::Triangle& triangle : mesh.triangles) {
        const QVector3D& corner = mesh.points[triangle[0]];
        const Vector a = between(corner, mesh.points[triangle[1]]);
        const Vector b = between(corner, mesh.points[triangle[2]]);
        twice += std::hypot(a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x);
    }
    return twice / 2;
}

} // namespace

MeshFacts meshFacts(const TriangleMesh& mesh)
{
    return {mesh.triangles.size(), boundingBox(mesh), surface(mesh), isWatertight(mesh)};
}

} // namespace Zorvane::Workbench
