#include "Tests/Support/TestCase.h"
#include "Workbench/Meshes/GeneratedMeshes.h"
#include "Workbench/Meshes/MeshFacts.h"
#include "Workbench/Meshes/MeshReader.h"
#include "Workbench/Tour/BrokenInputs.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>

namespace Zorvane::Workbench {

class TourInputsTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void blocksAreClosedAndHaveTheirSize();
    void sheetsAreOpenAndHaveAboutTheTrianglesAskedFor();
    void manyMeshesCanBeReadBack();
    void brokenMeshesAreRefusedAndTheGoodOneIsNot();
    void aFolderThatIsNotThereIsTold();
};

void TourInputsTest::blocksAreClosedAndHaveTheirSize()
{
    const MeshFacts facts = meshFacts(blockMesh({3, 4, 5}));
    QCOMPARE(facts.triangles, std::size_t(12));
    QVERIFY(facts.watertight);
    QCOMPARE(facts.box.size(), QVector3D(3, 4, 5));
    QCOMPARE(facts.surface, 94.0);
}

void TourInputsTest::sheetsAreOpenAndHaveAboutTheTrianglesAskedFor()
{
    const MeshFacts facts = meshFacts(rippledSheet(100'000));
    QVERIFY(facts.triangles >= 100'000 && facts.triangles < 102'000);
    QVERIFY(!facts.watertight);
}

void TourInputsTest::manyMeshesCanBeReadBack()
{
    const QTemporaryDir folder;
    QVERIFY(writeManyMeshes(folder.path(), 10));
    const QStringList files = QDir(folder.path()).entryList(QDir::Files);
    QCOMPARE(files.size(), 10);
    for (const QString& file : files)
        QVERIFY(MeshReader::read(folder.filePath(file)).mesh.has_value());
}

void TourInputsTest::brokenMeshesAreRefusedAndTheGoodOneIsNot()
{
    const QTemporaryDir folder;
    QVERIFY(!writeBrokenInputs(folder.path()).isEmpty());
    QVERIFY(MeshReader::read(folder.filePath(QStringLiteral("good.stl"))).mesh.has_value());
    for (const char* name : {"truncated.stl", "shopping-list.stl", "sparse.stl"}) {
        const MeshReading reading = MeshReader::read(folder.filePath(QLatin1String(name)));
        QVERIFY2(!reading.mesh && !reading.problem.reason.isEmpty(), name);
    }
}

void TourInputsTest::aFolderThatIsNotThereIsTold()
{
    const QTemporaryDir folder;
    QVERIFY(writeBrokenInputs(folder.filePath(QStringLiteral("nowhere"))).isEmpty());
    QVERIFY(!writeManyMeshes(folder.filePath(QStringLiteral("nowhere")), 1));
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::TourInputsTest;
ZORVANE_TEST(TourInputsTest)
#include "TourInputsTest.moc"
