#include "Workbench/MeshView/DrawableMesh.h"

#include <algorithm>
#include <cmath>

namespace Zorvane::Workbench {

namespace {

constexpr float s_cosineOfFold = 0.866f;
constexpr float s_heightOfSliver = 0.02f;
constexpr std::size_t s_mostTrianglesToRefine = 2'000'000;
constexpr std::size_t s_mostTrianglesToCompare = 64;

struct Side
{
    std::uint32_t from;
    std::uint32_t to;
    std::uint32_t triangle;
};

bool operator<(const Side& left, const Side& right)
{
    return left.from != right.from ? left.from < right.from : left.to < right.to;
}

bool isSameEdge(const Side& left, const Side& right)
{
    return left.from == right.from && left.to == right.to;
}

QVector3D unit(const QVector3D& vector)
{
    // QVector3D::normalized gives zero for lengths that a small radius in millimetres can have.
    const double length = std::sqrt(vector.lengthSquared());
    return length > 0 && std::isfinite(length) ? vector * float(1 / length) : QVector3D();
}

/** Twice the area long. */
QVector3D areaNormal(const TriangleMesh& mesh, const TriangleMesh::Triangle& corners)
{
    const QVector3D& origin = mesh.points[corners[0]];
    return QVector3D::crossProduct(mesh.points[corners[1]] - origin,
                                   mesh.points[corners[2]] - origin);
}

/** Which triangles meet in a point: entries start[p] to start[p + 1] of `triangles`. */
struct TrianglesOfPoints
{
    std::vector<std::uint32_t> start;
    std::vector<std::uint32_t> triangles;

    explicit TrianglesOfPoints(const TriangleMesh& mesh)
        : start(mesh.points.size() + 1)
        , triangles(mesh.triangles.size() * 3)
    {
        for (const TriangleMesh::Triangle& corners : mesh.triangles)
            for (const std::uint32_t point : corners)
                ++start[point + 1];
        for (std::size_t point = 1; point < start.size(); ++point)
            start[point] += start[point - 1];
        std::vector<std::uint32_t> next(start.begin(), start.end() - 1);
        for (std::uint32_t triangle = 0; triangle < mesh.triangles.size(); ++triangle)
            for (const std::uint32_t point : mesh.triangles[triangle])
                triangles[next[point]++] = triangle;
    }
};

void smoothNormals(DrawableMesh& drawable, const std::vector<QVector3D>& areaNormals)
{
    const TrianglesOfPoints around(*drawable.mesh);
    for (std::size_t triangle = 0; triangle < drawable.normals.size(); ++triangle) {
        const QVector3D flat = drawable.normals[triangle][0];
        for (std::size_t corner = 0; corner < 3; ++corner) {
            const std::uint32_t point = drawable.mesh->triangles[triangle][corner];
            if (around.start[point + 1] - around.start[point] > s_mostTrianglesToCompare)
                continue;
            QVector3D sum;
            for (std::uint32_t i = around.start[point]; i < around.start[point + 1]; ++i) {
                const QVector3D& other = areaNormals[around.triangles[i]];
                if (QVector3D::dotProduct(flat, other) > s_cosineOfFold * other.length())
                    sum += other;
            }
            const QVector3D smooth = unit(sum);
            if (!smooth.isNull())
                drawable.normals[triangle][corner] = smooth;
        }
    }
}

std::vector<Side> sortedSides(const TriangleMesh& mesh)
{
    std::vector<Side> sides;
    sides.reserve(mesh.triangles.size() * 3);
    for (std::uint32_t triangle = 0; triangle < mesh.triangles.size(); ++triangle) {
        const TriangleMesh::Triangle& corners = mesh.triangles[triangle];
        for (std::size_t corner = 0; corner < 3; ++corner) {
            const auto ends = std::minmax(corners[corner], corners[(corner + 1) % 3]);
            sides.push_back({ends.first, ends.second, triangle});
        }
    }
    std::sort(sides.begin(), sides.end());
    return sides;
}

/** Where a triangle points to is a matter of rounding once it is this much longer than high. */
bool isSliver(const TriangleMesh& mesh, const TriangleMesh::Triangle& corners, float twiceTheArea)
{
    float longest = 0;
    for (std::size_t corner = 0; corner < 3; ++corner) {
        const QVector3D side =
            mesh.points[corners[(corner + 1) % 3]] - mesh.points[corners[corner]];
        longest = std::max(longest, side.lengthSquared());
    }
    return twiceTheArea < s_heightOfSliver * longest;
}

bool isFold(const TriangleMesh& mesh, const std::vector<QVector3D>& areaNormals, std::uint32_t left,
            std::uint32_t right)
{
    const float leftArea = areaNormals[left].length();
    const float rightArea = areaNormals[right].length();
    return QVector3D::dotProduct(areaNormals[left], areaNormals[right]) <
               s_cosineOfFold * leftArea * rightArea &&
           !isSliver(mesh, mesh.triangles[left], leftArea) &&
           !isSliver(mesh, mesh.triangles[right], rightArea);
}

void findEdges(DrawableMesh& drawable, const std::vector<QVector3D>& areaNormals)
{
    const std::vector<Side> sides = sortedSides(*drawable.mesh);
    for (std::size_t first = 0; first < sides.size();) {
        std::size_t end = first + 1;
        while (end < sides.size() && isSameEdge(sides[first], sides[end]))
            ++end;
        const bool inside = end - first == 2;
        if (!inside ||
            isFold(*drawable.mesh, areaNormals, sides[first].triangle, sides[first + 1].triangle))
            drawable.edges.push_back({sides[first].from, sides[first].to});
        first = end;
    }
}

} // namespace

DrawableMesh prepareForDrawing(std::shared_ptr<const TriangleMesh> mesh)
{
    DrawableMesh drawable;
    drawable.mesh = std::move(mesh);
    if (drawable.isEmpty())
        return drawable;
    drawable.box = boundingBox(*drawable.mesh);
    const std::size_t count = drawable.mesh->triangles.size();
    std::vector<QVector3D> areaNormals;
    areaNormals.reserve(count);
    drawable.normals.reserve(count);
    for (const TriangleMesh::Triangle& corners : drawable.mesh->triangles) {
        areaNormals.push_back(areaNormal(*drawable.mesh, corners));
        const QVector3D flat = unit(areaNormals.back());
        drawable.normals.push_back({flat, flat, flat});
    }
    if (count <= s_mostTrianglesToRefine) {
        smoothNormals(drawable, areaNormals);
        findEdges(drawable, areaNormals);
    }
    return drawable;
}

} // namespace Zorvane::Workbench
