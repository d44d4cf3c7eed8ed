#include "Tests/Workbench/Meshes/MeshFiles.h"

#include <QtCore/QDataStream>
#include <QtCore/QIODevice>

using Zorvane::Workbench::TriangleMesh;

namespace Zorvane::Testing {

namespace {

QByteArray text(const QVector3D& point)
{
    QByteArray result;
    for (int axis = 0; axis < 3; ++axis)
        result += ' ' + QByteArray::number(static_cast<double>(point[axis]), 'g', 9);
    return result;
}

/** Single precision, in little-endian order. */
void prepare(QDataStream& stream)
{
    stream.setByteOrder(QDataStream::LittleEndian);
    stream.setFloatingPointPrecision(QDataStream::SinglePrecision);
}

void put(QDataStream& stream, const QVector3D& point)
{
    stream << point.x() << point.y() << point.z();
}

QByteArray plyHeader(const TriangleMesh& mesh, const QByteArray& format)
{
    return "ply\nformat " + format + " 1.0\ncomment made by a test\nelement vertex " +
           QByteArray::number(int(mesh.points.size())) +
           "\nproperty float x\nproperty float y\nproperty float z\nelement face " +
           QByteArray::number(int(mesh.triangles.size())) +
           "\nproperty list uchar int vertex_indices\nend_header\n";
}

} // namespace

TriangleMesh cube(float size)
{
    TriangleMesh mesh;
    for (int i = 0; i < 8; ++i)
        mesh.points.emplace_back(i & 1 ? size : 0.0F, i & 2 ? size : 0.0F, i & 4 ? size : 0.0F);
    mesh.triangles = {{0, 2, 3}, {0, 3, 1}, {0, 1, 5}, {0, 5, 4}, {1, 3, 7}, {1, 7, 5},
                      {3, 2, 6}, {3, 6, 7}, {2, 0, 4}, {2, 4, 6}, {4, 5, 7}, {4, 7, 6}};
    return mesh;
}

TriangleMesh openBox(float size)
{
    TriangleMesh mesh = cube(size);
    mesh.triangles.resize(10);
    return mesh;
}

QByteArray asciiStl(const TriangleMesh& mesh)
{
    QByteArray result = "solid test\n";
    for (const TriangleMesh::Triangle& triangle : mesh.triangles) {
        result += "  facet normal 0 0 0\n    outer loop\n";
        for (const std::uint32_t corner : triangle)
            result += "      vertex" + text(mesh.points[corner]) + '\n';
        result += "    endloop\n  endfacet\n";
    }
    return result + "endsolid test\n";
}

QByteArray binaryStl(const TriangleMesh& mesh, const QByteArray& header)
{
    QByteArray result = header.leftJustified(80, '\0', true);
    QDataStream stream(&result, QIODevice::Append);
    prepare(stream);
    stream << quint32(mesh.triangles.size());
    for (const TriangleMesh::Triangle& triangle : mesh.triangles) {
        put(stream, QVector3D());
        for (const std::uint32_t corner : triangle)
            put(stream, mesh.points[corner]);
        stream << quint16(0);
    }
    return result;
}

QByteArray obj(const TriangleMesh& mesh)
{
    QByteArray result = "# made by a test\nmtllib none.mtl\no test\n";
    for (const QVector3D& point : mesh.points)
        result += 'v' + text(point) + '\n';
    for (const TriangleMesh::Triangle& triangle : mesh.triangles) {
        result += 'f';
        for (const std::uint32_t corner : triangle)
            result += ' ' + QByteArray::number(corner + 1) + "//1";
        result += '\n';
    }
    return result;
}

QByteArray asciiPly(const TriangleMesh& mesh)
{
    QByteArray result = plyHeader(mesh, "ascii");
    for (const QVector3D& point : mesh.points)
        result += text(point).trimmed() + '\n';
    for (const TriangleMesh::Triangle& triangle : mesh.triangles) {
        result += '3';
        for (const std::uint32_t corner : triangle)
            result += ' ' + QByteArray::number(corner);
        result += '\n';
    }
    return result;
}

QByteArray binaryPly(const TriangleMesh& mesh, bool bigEndian)
{
    QByteArray result = plyHeader(mesh, bigEndian ? "binary_big_endian" : "binary_little_endian");
    QDataStream stream(&result, QIODevice::Append);
    prepare(stream);
    if (bigEndian)
        stream.setByteOrder(QDataStream::BigEndian);
    for (const QVector3D& point : mesh.points)
        put(stream, point);
    for (const TriangleMesh::Triangle& triangle : mesh.triangles) {
        stream << quint8(3);
        for (const std::uint32_t corner : triangle)
            stream << qint32(corner);
    }
    return result;
}

} // namespace Zorvane::Testing
