#include "Tests/Support/TestCase.h"
#include "Workbench/Design/DesignSession.h"
#include "Workbench/Meshes/MeshFacts.h"
#include "Workbench/Meshes/MeshReader.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtGui/QVector2D>

using namespace Zorvane;
using namespace Zorvane::Workbench;

namespace {

QString sample(const QString& path)
{
    return QStringLiteral(ZORVANE_SAMPLES_FOLDER) + QLatin1Char('/') + path;
}

} // namespace

class SamplesTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void designsOpenWithoutProblems_data();
    void designsOpenWithoutProblems();
    void onlyTheSpringbackResultIsMissing();
    void meshesAreSoundAndOfTheirSize_data();
    void meshesAreSoundAndOfTheirSize();
    void sheetsFaceUpWithoutFolds_data();
    void sheetsFaceUpWithoutFolds();
    void everyMeshFileIsPartOfItsDesign();
    void bothStlFormatsOccur();
    void toolsFitThePart();
};

void SamplesTest::designsOpenWithoutProblems_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("operations");
    QTest::newRow("cup") << QStringLiteral("drawn-cup") << QStringLiteral("Drawn cup") << 1;
    QTest::newRow("door") << QStringLiteral("door-panel") << QStringLiteral("Door panel") << 3;
}

void SamplesTest::designsOpenWithoutProblems()
{
    QFETCH(QString, folder);
    QFETCH(QString, name);
    QFETCH(int, operations);
    DesignSession session;
    session.open({sample(folder)});
    QVERIFY(session.problems().empty());
    const Design& design = session.designs().at(0);
    QCOMPARE(design.name, name);
    QCOMPARE(int(design.operations.size()), operations);
    QVERIFY(design.blank);
    QVERIFY(design.findGeometry(design.blank->id) != nullptr);
    for (const Part& part : design.parts)
        QVERIFY(design.findGeometry(part.id) != nullptr);
    for (const Operation& operation : design.operations) {
        QCOMPARE(operation.tools.size(), std::size_t(3));
        for (const Tool& tool : operation.tools)
            QVERIFY(design.findGeometry(tool.id) != nullptr);
    }
}

void SamplesTest::onlyTheSpringbackResultIsMissing()
{
    DesignSession session;
    session.open({sample(QStringLiteral("drawn-cup")), sample(QStringLiteral("door-panel"))});
    QStringList missing;
    for (const Design& design : session.designs()) {
        for (const FileReference& file : design.files) {
            if (file.state != FileState::Exists)
                missing.append(file.path);
        }
    }
    QCOMPARE(missing, QStringList(QStringLiteral("results/springback.csv")));
}

void SamplesTest::meshesAreSoundAndOfTheirSize_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("watertight");
    QTest::addColumn<int>("fewest");
    QTest::addColumn<int>("most");
    QTest::addColumn<QVector3D>("size");
    const auto row = [](const char* file, bool watertight, int fewest, int most,
                        const QVector3D& size) {
        QTest::newRow(file) << QString::fromUtf8(file) << watertight << fewest << most << size;
    };
    // clang-format off
    row("drawn-cup/geometry/cup.stl",             true,   3000,  8000, {124, 124, 47});
    row("drawn-cup/geometry/draw-die.stl",        true,   1000,  8000, {190, 190, 74});
    row("drawn-cup/geometry/punch.stl",           true,   1000,  8000, {80, 80, 90});
    row("drawn-cup/geometry/binder.stl",          true,    500,  8000, {190, 190, 25});
    row("drawn-cup/geometry/blank.stl",           true,    200,  8000, {170, 170, 1});
    row("door-panel/geometry/drawn-panel.stl",    false, 20000, 40000, {});
    row("door-panel/geometry/trimmed-panel.stl",  false, 10000, 40000, {});
    row("door-panel/geometry/flanged-panel.stl",  false, 10000, 40000, {});
    row("door-panel/geometry/draw-die.stl",       true,  20000, 40000, {});
    row("door-panel/geometry/draw-punch.stl",     true,  20000, 40000, {});
    row("door-panel/geometry/draw-binder.stl",    true,   2000, 40000, {});
    row("door-panel/geometry/trim-post.stl",      true,  10000, 40000, {});
    row("door-panel/geometry/trim-pad.stl",       true,  10000, 40000, {});
    row("door-panel/geometry/trim-steel.stl",     true,   1000, 40000, {});
    row("door-panel/geometry/flange-post.stl",    true,  10000, 40000, {});
    row("door-panel/geometry/flange-pad.stl",     true,  10000, 40000, {});
    row("door-panel/geometry/flange-steel.stl",   true,   1000, 40000, {});
    row("door-panel/geometry/blank.stl",          true,   1000, 40000, {});
    // clang-format on
}

void SamplesTest::meshesAreSoundAndOfTheirSize()
{
    QFETCH(QString, file);
    QFETCH(bool, watertight);
    QFETCH(int, fewest);
    QFETCH(int, most);
    QFETCH(QVector3D, size);
    const MeshReading reading = MeshReader::read(sample(file));
    QVERIFY2(reading.mesh, qPrintable(reading.problem.text()));
    const MeshFacts facts = meshFacts(*reading.mesh);
    QCOMPARE(facts.watertight, watertight);
    QVERIFY2(int(facts.triangles) >= fewest && int(facts.triangles) <= most,
             qPrintable(QString::number(facts.triangles)));
    if (size.isNull())
        QVERIFY(facts.box.size().x() > 900 && facts.box.size().x() < 1600);
    else
        QVERIFY((facts.box.size() - size).length() < 0.5F);
}

void SamplesTest::sheetsFaceUpWithoutFolds_data()
{
    QTest::addColumn<QString>("file");
    for (const char* file : {"drawn-panel.stl", "trimmed-panel.stl"})
        QTest::newRow(file) << QStringLiteral("door-panel/geometry/") + QLatin1String(file);
}

void SamplesTest::sheetsFaceUpWithoutFolds()
{
    QFETCH(QString, file);
    const MeshReading reading = MeshReader::read(sample(file));
    const std::vector<QVector3D>& points = reading.mesh->points;
    for (const TriangleMesh::Triangle& triangle : reading.mesh->triangles) {
        const QVector3D normal =
            QVector3D::normal(points[triangle[0]], points[triangle[1]], points[triangle[2]]);
        QVERIFY(normal.z() > 0);
    }
}

void SamplesTest::everyMeshFileIsPartOfItsDesign()
{
    DesignSession session;
    session.open({sample(QStringLiteral("drawn-cup")), sample(QStringLiteral("door-panel"))});
    QStringList known = session.meshFiles();
    known.sort();
    QStringList present;
    for (const QString& folder : {QStringLiteral("drawn-cup"), QStringLiteral("door-panel")}) {
        const QDir geometry(sample(folder + QStringLiteral("/geometry")));
        for (const QFileInfo& info : geometry.entryInfoList(QDir::Files))
            present.append(info.canonicalFilePath());
    }
    present.sort();
    QCOMPARE(known, present);
}

void SamplesTest::bothStlFormatsOccur()
{
    const auto firstWord = [](const char* path) {
        QFile file(sample(QString::fromUtf8(path)));
        return file.open(QIODevice::ReadOnly) ? file.read(6) : QByteArray();
    };
    QCOMPARE(firstWord("drawn-cup/geometry/cup.stl"), QByteArray("solid "));
    QCOMPARE(firstWord("drawn-cup/geometry/punch.stl"), QByteArray("punch "));
}

void SamplesTest::toolsFitThePart()
{
    const auto box = [](const char* path) {
        return boundingBox(*MeshReader::read(sample(QString::fromUtf8(path))).mesh);
    };
    // The punch fills the cup, the binder lies on the flange.
    QCOMPARE(box("drawn-cup/geometry/punch.stl").lowest.z(), 0.0F);
    QCOMPARE(box("drawn-cup/geometry/binder.stl").lowest.z(),
             box("drawn-cup/geometry/cup.stl").highest.z());
    const BoundingBox panel = box("door-panel/geometry/trimmed-panel.stl");
    const BoundingBox punch = box("door-panel/geometry/draw-punch.stl");
    QVERIFY((panel.size() - punch.size()).toVector2D().length() < 0.5F);
    QVERIFY(panel.highest.z() - punch.highest.z() < 0.5F);
}

ZORVANE_TEST(SamplesTest)
#include "SamplesTest.moc"
