#include "Workbench/Meshes/MeshFacts.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Meshes/MeshFiles.h"

#include <cmath>

using namespace Zorvane::Testing;
using namespace Zorvane::Workbench;

class MeshFactsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cubeIsWatertight();
    void openBoxIsNot();
    void aGapOrATurnedTriangleIsNotWatertight_data();
    void aGapOrATurnedTriangleIsNotWatertight();
    void nothingHasNoFacts();
    void surfaceIsExactFarFromTheOrigin();
};

Q_DECLARE_METATYPE(TriangleMesh)

void MeshFactsTest::cubeIsWatertight()
{
    const MeshFacts facts = meshFacts(cube(10));
    QCOMPARE(facts.triangles, std::size_t(12));
    QCOMPARE(facts.box.lowest, QVector3D(0, 0, 0));
    QCOMPARE(facts.box.highest, QVector3D(10, 10, 10));
    QCOMPARE(facts.surface, 600.0);
    QVERIFY(facts.watertight);
}

void MeshFactsTest::openBoxIsNot()
{
    const MeshFacts facts = meshFacts(openBox(10));
    QCOMPARE(facts.triangles, std::size_t(10));
    QCOMPARE(facts.surface, 500.0);
    QVERIFY(!facts.watertight);
}

void MeshFactsTest::aGapOrATurnedTriangleIsNotWatertight_data()
{
    QTest::addColumn<TriangleMesh>("mesh");
    QTest::addColumn<bool>("watertight");

    TriangleMesh turned = cube();
    std::swap(turned.triangles[3][0], turned.triangles[3][1]);
    QTest::newRow("one triangle turned over") << turned << false;

    TriangleMesh insideOut = cube();
    for (TriangleMesh::Triangle& triangle : insideOut.triangles)
        std::swap(triangle[0], triangle[1]);
    QTest::newRow("all turned over") << insideOut << true;

    TriangleMesh degenerate = cube();
    degenerate.triangles.push_back({1, 1, 5});
    degenerate.triangles.push_back({2, 2, 2});
    QTest::newRow("with triangles of no size") << degenerate << true;

    TriangleMesh fin = cube();
    fin.points.emplace_back(50.0F, 0.0F, 0.0F);
    fin.triangles.push_back({0, 1, 8});
    QTest::newRow("with a fin") << fin << false;

    TriangleMesh twice = cube();
    twice.triangles.insert(twice.triangles.end(), twice.triangles.begin(), twice.triangles.end());
    QTest::newRow("every triangle twice") << twice << false;

    TriangleMesh two = cube();
    for (const QVector3D& point : cube().points)
        two.points.push_back(point + QVector3D(100, 0, 0));
    for (const TriangleMesh::Triangle& triangle : cube().triangles)
        two.triangles.push_back({triangle[0] + 8, triangle[1] + 8, triangle[2] + 8});
    QTest::newRow("two bodies") << two << true;

    TriangleMesh flat;
    flat.points = cube().points;
    flat.triangles = {{0, 0, 1}};
    QTest::newRow("only triangles of no size") << flat << false;
}

void MeshFactsTest::aGapOrATurnedTriangleIsNotWatertight()
{
    QFETCH(TriangleMesh, mesh);
    QFETCH(bool, watertight);
    QCOMPARE(meshFacts(mesh).watertight, watertight);
}

void MeshFactsTest::nothingHasNoFacts()
{
    const MeshFacts facts = meshFacts(TriangleMesh());
    QCOMPARE(facts.triangles, std::size_t(0));
    QCOMPARE(facts.surface, 0.0);
    QCOMPARE(facts.box.size(), QVector3D());
    QVERIFY(!facts.watertight);
}

void MeshFactsTest::surfaceIsExactFarFromTheOrigin()
{
    TriangleMesh mesh = cube(16);
    for (QVector3D& point : mesh.points)
        point += QVector3D(1048576, 0, 0);
    QCOMPARE(meshFacts(mesh).surface, 6 * 16.0 * 16.0);
    TriangleMesh huge;
    huge.points = {{0, 0, 0}, {1e25F, 0, 0}, {0, 1e25F, 0}};
    huge.triangles = {{0, 1, 2}};
    QVERIFY(std::abs(meshFacts(huge).surface / 5e49 - 1) < 1e-6);
}

ZORVANE_TEST(MeshFactsTest)
#include "MeshFactsTest.moc"
