#include "Workbench/Meshes/MeshWriter.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Design/DesignFiles.h"
#include "Tests/Workbench/Meshes/MeshFiles.h"
#include "Workbench/Meshes/MeshFacts.h"
#include "Workbench/Meshes/MeshReader.h"

#include <QtCore/QTemporaryDir>

#include <cmath>

using namespace Zorvane::Testing;
using namespace Zorvane::Workbench;

Q_DECLARE_METATYPE(StlFormat)

class MeshWriterTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void writesWhatReaderReads_data();
    void writesWhatReaderReads();
    void writesNormals();
    void failureLeavesTheOldFile();
};

void MeshWriterTest::writesWhatReaderReads_data()
{
    QTest::addColumn<StlFormat>("format");
    QTest::newRow("ASCII") << StlFormat::Ascii;
    QTest::newRow("binary") << StlFormat::Binary;
}

void MeshWriterTest::writesWhatReaderReads()
{
    QFETCH(StlFormat, format);
    const QTemporaryDir folder;
    TriangleMesh mesh = openBox(1.0F / 3);
    mesh.points[3] += QVector3D(1e-4F, 1234.5678F, -7);
    const QString file = folder.filePath(QStringLiteral("box.stl"));
    QVERIFY(!writeStl(mesh, file, format));
    const MeshReading reading = MeshReader::read(file);
    QVERIFY2(reading.mesh, qPrintable(reading.problem.text()));
    QCOMPARE(readFile(file).startsWith("solid"), format == StlFormat::Ascii);
    const MeshFacts before = meshFacts(mesh);
    const MeshFacts after = meshFacts(*reading.mesh);
    QCOMPARE(after.triangles, before.triangles);
    QCOMPARE(reading.mesh->points.size(), mesh.points.size());
    QCOMPARE(after.box.lowest, before.box.lowest);
    QCOMPARE(after.box.highest, before.box.highest);
    QVERIFY(std::abs(after.surface / before.surface - 1) < 1e-5);
}

void MeshWriterTest::writesNormals()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("cube.stl"));
    QVERIFY(!writeStl(cube(), file, StlFormat::Ascii));
    QVERIFY(readFile(file).contains("facet normal 0 0 1"));
}

void MeshWriterTest::failureLeavesTheOldFile()
{
    const QTemporaryDir folder;
    const QString file = writeFile(folder.filePath(QStringLiteral("a.stl")), "old");
    const std::optional<Problem> empty = writeStl({}, file, StlFormat::Binary);
    QVERIFY(empty);
    QCOMPARE(empty->file, file);
    QCOMPARE(readFile(file), QByteArray("old"));
    const QString nowhere = folder.filePath(QStringLiteral("none/a.stl"));
    QVERIFY(writeStl(cube(), nowhere, StlFormat::Binary)
                ->reason.startsWith(QStringLiteral("cannot be written: ")));
}

ZORVANE_TEST(MeshWriterTest)
#include "MeshWriterTest.moc"
