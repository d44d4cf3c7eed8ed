#pragma once

#include <QtGui/QVector3D>

#include <array>
#include <cstdint>
#include <vector>

namespace Zorvane::Workbench {

/** Triangles over shared corner points, in millimetres, in the design's coordinate system. */
struct TriangleMesh
{
    using Triangle = std::array<std::uint32_t, 3>;

    std::vector<QVector3D> points;
    /** Indices into `points`, counter-clockwise seen from outside. */
    std::vector<Triangle> triangles;

    bool isEmpty() const { return triangles.empty(); }
};

/** The smallest box along the axes around the points. */
struct BoundingBox
{
    QVector3D lowest;
    QVector3D highest;

    QVector3D size() const { return highest - lowest; }
    QVector3D centre() const { return (lowest + highest) / 2; }
};

/** A box of no size at the origin for a mesh without points. */
BoundingBox boundingBox(const TriangleMesh& mesh);

} // namespace Zorvane::Workbench
