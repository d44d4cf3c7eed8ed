#include "Workbench/MeshView/DrawableMesh.h"

#include "Tests/Support/TestCase.h"

#include <cmath>

namespace Zorvane::Workbench {

namespace {

using Mesh = std::shared_ptr<TriangleMesh>;

Mesh makeMesh(std::vector<QVector3D> points, std::vector<TriangleMesh::Triangle> triangles)
{
    return std::make_shared<TriangleMesh>(TriangleMesh{std::move(points), std::move(triangles)});
}

/** Two squares of two triangles each, folded along y by `degrees`. */
Mesh foldedSheet(double degrees)
{
    const double angle = degrees * 3.14159265358979 / 180;
    const float x = float(std::cos(angle));
    const float z = float(std::sin(angle));
    return makeMesh({{-1, 0, 0}, {-1, 1, 0}, {0, 0, 0}, {0, 1, 0}, {x, 0, z}, {x, 1, z}},
                    {{0, 2, 3}, {0, 3, 1}, {2, 4, 5}, {2, 5, 3}});
}

bool hasEdge(const DrawableMesh& mesh, std::uint32_t from, std::uint32_t to)
{
    for (const auto& edge : mesh.edges)
        if (edge[0] == from && edge[1] == to)
            return true;
    return false;
}

} // namespace

class DrawableMeshTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void nothingAndAMeshWithoutTrianglesAreEmpty();
    void bordersAreEdgesAndFlatInsidesAreNot();
    void sharpFoldsAreEdges();
    void shallowFoldsAreSmoothed();
    void sharpFoldsKeepFlatNormals();
    void trianglesWithoutAreaHaveNoNormal();
    void everyTriangleAroundOnePointIsDrawn();
};

void DrawableMeshTest::nothingAndAMeshWithoutTrianglesAreEmpty()
{
    QVERIFY(prepareForDrawing(nullptr).isEmpty());
    const DrawableMesh mesh = prepareForDrawing(makeMesh({{1, 2, 3}}, {}));
    QVERIFY(mesh.isEmpty());
    QVERIFY(mesh.edges.empty());
}

void DrawableMeshTest::bordersAreEdgesAndFlatInsidesAreNot()
{
    const DrawableMesh mesh = prepareForDrawing(foldedSheet(0));
    QCOMPARE(mesh.edges.size(), std::size_t(6));
    QVERIFY(hasEdge(mesh, 0, 1));
    QVERIFY(!hasEdge(mesh, 0, 3));
    QVERIFY(!hasEdge(mesh, 2, 3));
}

void DrawableMeshTest::sharpFoldsAreEdges()
{
    const DrawableMesh mesh = prepareForDrawing(foldedSheet(60));
    QCOMPARE(mesh.edges.size(), std::size_t(7));
    QVERIFY(hasEdge(mesh, 2, 3));
}

void DrawableMeshTest::shallowFoldsAreSmoothed()
{
    const DrawableMesh mesh = prepareForDrawing(foldedSheet(20));
    QVERIFY(!hasEdge(mesh, 2, 3));
    const QVector3D onFold = mesh.normals[0][1];
    QVERIFY(onFold.x() < -0.05f && onFold.z() > 0.9f);
    QVERIFY(std::abs(onFold.length() - 1) < 1e-4f);
    QVERIFY((mesh.normals[0][0] - QVector3D(0, 0, 1)).length() < 1e-4f);
}

void DrawableMeshTest::sharpFoldsKeepFlatNormals()
{
    const DrawableMesh mesh = prepareForDrawing(foldedSheet(60));
    QVERIFY((mesh.normals[0][1] - QVector3D(0, 0, 1)).length() < 1e-4f);
}

void DrawableMeshTest::trianglesWithoutAreaHaveNoNormal()
{
    const DrawableMesh mesh =
        prepareForDrawing(makeMesh({{0, 0, 0}, {1, 0, 0}, {2, 0, 0}}, {{0, 1, 2}, {1, 1, 1}}));
    QVERIFY(mesh.normals[0][0].isNull());
    QVERIFY(mesh.normals[1][2].isNull());
}

void DrawableMeshTest::everyTriangleAroundOnePointIsDrawn()
{
    const Mesh fan = makeMesh({{0, 0, 5}}, {});
    constexpr std::uint32_t count = 20000;
    for (std::uint32_t i = 0; i < count; ++i) {
        const double angle = 2 * 3.14159265358979 * i / count;
        fan->points.push_back({float(100 * std::cos(angle)), float(100 * std::sin(angle)), 0});
        fan->triangles.push_back({0, i + 1, (i + 1) % count + 1});
    }
    const DrawableMesh mesh = prepareForDrawing(fan);
    QCOMPARE(mesh.normals.size(), std::size_t(count));
    QCOMPARE(mesh.edges.size(), std::size_t(count));
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::DrawableMeshTest;
ZORVANE_TEST(DrawableMeshTest)
#include "DrawableMeshTest.moc"
