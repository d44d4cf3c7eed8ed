#include "Workbench/MeshView/MeshSides.h"

#include "Tests/Support/TestCase.h"

namespace Zorvane::Workbench {

class MeshSidesTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void allOfAMeshIsTheMeshItself();
    void aSideHasTheTrianglesWhoseMiddleIsThere();
    void theMirrorImageIsSeenFromOutsideToo();
    void noSideIsAnEmptyMesh();

private:
    /** One triangle on each side, facing up, and one across with most of it on the secondary. */
    static std::shared_ptr<const TriangleMesh> mesh()
    {
        auto mesh = std::make_shared<TriangleMesh>();
        mesh->points = {{0, 1, 0},  {1, 1, 0}, {0, 2, 0},  {0, -1, 0}, {0, -2, 0},
                        {1, -1, 0}, {0, 1, 5}, {0, -3, 5}, {1, -3, 5}};
        mesh->triangles = {{0, 1, 2}, {3, 4, 5}, {6, 7, 8}};
        return mesh;
    }
};

void MeshSidesTest::allOfAMeshIsTheMeshItself()
{
    const auto whole = mesh();
    QCOMPARE(sidesOf(whole, {}), whole);
    QCOMPARE(sidesOf(nullptr, {false, true, false}), nullptr);
}

void MeshSidesTest::aSideHasTheTrianglesWhoseMiddleIsThere()
{
    const auto primary = sidesOf(mesh(), {true, false, false});
    QCOMPARE(int(primary->triangles.size()), 1);
    QCOMPARE(primary->triangles[0], (TriangleMesh::Triangle{0, 1, 2}));
    QCOMPARE(int(sidesOf(mesh(), {false, true, false})->triangles.size()), 2);
}

void MeshSidesTest::theMirrorImageIsSeenFromOutsideToo()
{
    const auto mirrored = sidesOf(mesh(), {true, false, true});
    QCOMPARE(int(mirrored->triangles.size()), 2);
    const auto normal = [&mirrored](std::size_t triangle) {
        const TriangleMesh::Triangle& corners = mirrored->triangles[triangle];
        return QVector3D::normal(mirrored->points[corners[0]], mirrored->points[corners[1]],
                                 mirrored->points[corners[2]]);
    };
    QCOMPARE(normal(0), normal(1));
    QCOMPARE(mirrored->points[mirrored->triangles[1][0]], QVector3D(0, -1, 0));
}

void MeshSidesTest::noSideIsAnEmptyMesh()
{
    QVERIFY(sidesOf(mesh(), {false, false, true})->isEmpty());
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::MeshSidesTest;
ZORVANE_TEST(MeshSidesTest)
#include "MeshSidesTest.moc"
