#include "Workbench/Meshes/MeshReader.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Design/DesignFiles.h"
#include "Tests/Workbench/Meshes/MeshFiles.h"
#include "Workbench/Meshes/MeshFacts.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QLocale>
#include <QtCore/QTemporaryDir>

#include <limits>

using namespace Zorvane::Testing;
using namespace Zorvane::Workbench;

namespace {

/** A binary STL cube with another count in its header. */
QByteArray withCount(quint32 count)
{
    QByteArray content = binaryStl(cube());
    for (int i = 0; i < 4; ++i)
        content[80 + i] = static_cast<char>(count >> (8 * i) & 0xff);
    return content;
}

TriangleMesh cubeWith(float coordinate)
{
    TriangleMesh mesh = cube();
    mesh.points[5].setY(coordinate);
    return mesh;
}

} // namespace

class MeshReaderTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale(QLocale::English)); }
    void readsEveryFormatAlike_data();
    void readsEveryFormatAlike();
    void asciiAndBinaryGiveTheSameMesh();
    void cutsPolygonsIntoTriangles_data();
    void cutsPolygonsIntoTriangles();
    void refuses_data();
    void refuses();
    void refusesSparseFileOfTwoGigabytes_data();
    void refusesSparseFileOfTwoGigabytes();
    void refusesWhatIsNoFile();
    void neverOpensFilesThatMeshRefersTo();
    void knowsMeshFilesByTheirNames();
};

void MeshReaderTest::readsEveryFormatAlike_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    const auto row = [](const char* rule, const char* name, const QByteArray& content) {
        QTest::newRow(rule) << QString::fromUtf8(name) << content;
    };
    const TriangleMesh mesh = cube();
    row("ASCII STL", "a.stl", asciiStl(mesh));
    row("ASCII STL of one line", "a.stl",
        asciiStl(mesh).simplified().replace("test facet", "test\nfacet"));
    row("ASCII STL with CRLF", "a.stl", asciiStl(mesh).replace("\n", "\r\n"));
    row("ASCII STL in capitals", "a.stl", asciiStl(mesh).toUpper());
    row("ASCII STL without end of line", "a.stl", asciiStl(mesh).trimmed());
    row("ASCII STL of two solids", "a.stl",
        asciiStl(mesh).replace("endfacet\n  facet normal 0 0 0\n    outer loop\n      vertex 0 0 "
                               "0\n      vertex 10 0 0\n",
                               "endfacet\nendsolid a\nsolid b\n  facet normal 0 0 0\n    outer "
                               "loop\n      vertex 0 0 0\n      vertex 10 0 0\n"));
    row("binary STL", "a.stl", binaryStl(mesh));
    row("binary STL that begins like ASCII", "a.stl", binaryStl(mesh, "solid cube"));
    row("ending in capitals", "A.STL", binaryStl(mesh));
    row("OBJ", "a.obj", obj(mesh));
    row("ASCII PLY", "a.ply", asciiPly(mesh));
    row("little-endian PLY", "a.ply", binaryPly(mesh, false));
    row("big-endian PLY", "a.ply", binaryPly(mesh, true));
}

void MeshReaderTest::readsEveryFormatAlike()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    const QTemporaryDir folder;
    const MeshReading reading = MeshReader::read(writeFile(folder.filePath(name), content));
    QVERIFY2(reading.mesh, qPrintable(reading.problem.text()));
    QCOMPARE(reading.mesh->points.size(), std::size_t(8));
    const MeshFacts facts = meshFacts(*reading.mesh);
    QCOMPARE(facts.triangles, std::size_t(12));
    QCOMPARE(facts.box.size(), QVector3D(10, 10, 10));
    QCOMPARE(facts.surface, 600.0);
    QVERIFY(facts.watertight);
}

void MeshReaderTest::asciiAndBinaryGiveTheSameMesh()
{
    TriangleMesh mesh = cube();
    for (std::size_t i = 0; i < mesh.points.size(); ++i)
        mesh.points[i] = mesh.points[i] * 0.1234567F + QVector3D(1.0F / 3, -1e-3F, 12345.678F);
    const QTemporaryDir folder;
    const MeshReading ascii =
        MeshReader::read(writeFile(folder.filePath(QStringLiteral("ascii.stl")), asciiStl(mesh)));
    const MeshReading binary =
        MeshReader::read(writeFile(folder.filePath(QStringLiteral("binary.stl")), binaryStl(mesh)));
    QCOMPARE(ascii.mesh->triangles, binary.mesh->triangles);
    QCOMPARE(ascii.mesh->points.size(), binary.mesh->points.size());
    for (std::size_t i = 0; i < ascii.mesh->points.size(); ++i)
        QVERIFY((ascii.mesh->points[i] - binary.mesh->points[i]).length() <= 1e-3F);
    QVERIFY(meshFacts(*ascii.mesh).watertight);
    QVERIFY(meshFacts(*binary.mesh).watertight);
}

void MeshReaderTest::cutsPolygonsIntoTriangles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("OBJ") << QStringLiteral("a.obj")
                         << QByteArray("v 0 0 0\nv 4 0 0\nv 4 4 0\nv 0 4 0\nf 1/1/1 2/2/2 3 4\n");
    QTest::newRow("OBJ counted backwards")
        << QStringLiteral("a.obj")
        << QByteArray("v 0 0 0\nv 4 0 0\nv 4 4 0\nv 0 4 0\nf -4 -3 -2 -1");
    QTest::newRow("OBJ continued in the next line")
        << QStringLiteral("a.obj")
        << QByteArray("v 0 0 0\nv 4 0 0\nv 4 4 0\nv 0 4 0\nf 1 2 \\\n3 4\n");
    QTest::newRow("OBJ with face first")
        << QStringLiteral("a.obj") << QByteArray("f 1 2 3 4\nv 0 0 0\nv 4 0 0\nv 4 4 0\nv 0 4 0\n");
    QTest::newRow("PLY with more properties")
        << QStringLiteral("a.ply")
        << QByteArray("ply\nformat ascii 1.0\nelement vertex 4\nproperty double x\n"
                      "property double y\nproperty double z\nproperty uchar red\nelement face 1\n"
                      "property uchar flag\nproperty list uchar uint vertex_index\n"
                      "element edge 1\nproperty int a\nend_header\n"
                      "0 0 0 9\n4 0 0 9\n4 4 0 9\n0 4 0 9\n1 4 0 1 2 3\n7\n");
}

void MeshReaderTest::cutsPolygonsIntoTriangles()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    const QTemporaryDir folder;
    const MeshReading reading = MeshReader::read(writeFile(folder.filePath(name), content));
    QVERIFY2(reading.mesh, qPrintable(reading.problem.text()));
    QCOMPARE(reading.mesh->triangles.size(), std::size_t(2));
    QCOMPARE(meshFacts(*reading.mesh).surface, 16.0);
}

void MeshReaderTest::refuses_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* rule, const char* name, const QByteArray& content,
                        const char* text) {
        QTest::newRow(rule) << QString::fromUtf8(name) << content << QString::fromUtf8(text);
    };
    const QByteArray binary = binaryStl(cube());
    const QByteArray ascii = asciiStl(cube());
    const float infinite = std::numeric_limits<float>::infinity();
    const float noNumber = std::numeric_limits<float>::quiet_NaN();
    const auto ply = [](const QByteArray& rest) { return "ply\nformat ascii 1.0\n" + rest; };
    const QByteArray xyz = "property float x\nproperty float y\nproperty float z\n";

    // clang-format off
    row("empty file",                      "a.stl", "",                     "is empty");
    row("another ending",                  "a.txt", binary,                 "its name must end with");
    row("no ending",                       "a",     binary,                 "its name must end with");
    row("binary STL cut off",              "a.stl", binary.left(400),       "is cut off: 12 triangles take 684 bytes, but it has 400");
    row("binary STL cut by one byte",      "a.stl", binary.left(683),       "is cut off: 12 triangles");
    row("binary STL with something behind","a.stl", binary + '\0',          "is longer than it says");
    row("binary STL of forged count",      "a.stl", withCount(0xffffffff),  "is cut off: 4,294,967,295 triangles take 214,748,364,834 bytes");
    row("binary STL cut in its header",    "a.stl", binary.left(60),        "is too short");
    row("binary STL without triangles",    "a.stl", binaryStl({}),          "has no triangles that can be read");
    row("OBJ of a comment",                "a.obj", "# nothing\n",          "has no triangles that can be read");
    row("text named .stl",                 "a.stl", "Dear colleague,\n",    "is a text but no STL");
    row("HTML named .stl",                 "a.stl", "<html>\n<body>solid",  "is a text but no STL");
    row("text that begins with solid",     "a.stl", "solid ground\nis nice\n", "line 2: has \"is\" where \"facet\" should stand");
    row("ASCII STL cut off in a number",   "a.stl", ascii.left(ascii.indexOf("vertex 10") + 7), "line 6: is cut off: ends where a number should stand");
    row("ASCII STL without its end",       "a.stl", ascii.left(ascii.indexOf("endsolid")), "is cut off: ends where \"facet\" should stand");
    row("ASCII STL of four-cornered facet","a.stl", QByteArray(ascii).replace("vertex 10 10 0\n    endloop", "vertex 10 10 0\n vertex 1 1 1\n    endloop"), "has \"vertex\" where \"endloop\" should stand");
    row("ASCII STL with word for number",  "a.stl", QByteArray(ascii).replace("10 10 0", "10 ten 0"), "has \"ten\" where a number should stand");
    row("ASCII STL with decimal comma",    "a.stl", QByteArray(ascii).replace("10 10 0", "10,5 10 0"), "has \"10,5\"");
    row("ASCII STL without triangles",     "a.stl", "solid a\nendsolid a\n", "");
    row("infinite in binary STL",          "a.stl", binaryStl(cubeWith(infinite)), "infinite or no numbers");
    row("NaN in binary STL",               "a.stl", binaryStl(cubeWith(noNumber)), "infinite or no numbers");
    row("NaN in ASCII STL",                "a.stl", asciiStl(cubeWith(noNumber)),  "infinite or no numbers");
    row("infinite in ASCII STL",           "a.stl", asciiStl(cubeWith(infinite)),  "infinite or no numbers");
    row("too large for a float",           "a.stl", QByteArray(ascii).replace("10 10 0", "1e99 10 0"), "infinite or no numbers");
    row("NaN in OBJ",                      "a.obj", obj(cubeWith(noNumber)), "infinite or no numbers");
    row("NaN in PLY",                      "a.ply", binaryPly(cubeWith(noNumber), false), "infinite or no numbers");
    row("OBJ without faces",               "a.obj", "v 0 0 0\nv 1 0 0\nv 0 1 0\n", "");
    row("OBJ with face out of range",      "a.obj", "v 0 0 0\nv 1 0 0\nv 0 1 0\nf 1 2 4\n", "line 4: has a face with point 4, but only 3 points");
    row("OBJ with point 0",                "a.obj", "v 0 0 0\nv 1 0 0\nv 0 1 0\nf 0 1 2\n", "line 4: has a face with a point that doesn't exist");
    row("OBJ counting back too far",       "a.obj", "v 0 0 0\nv 1 0 0\nv 0 1 0\nf -4 -1 -2\n", "line 4: has a face with a point that doesn't exist");
    row("OBJ with face of two",            "a.obj", "v 0 0 0\nv 1 0 0\nf 1 2\n", "line 3: has a face of fewer than three points");
    row("OBJ with half a point",           "a.obj", "v 0 0\n",                  "line 1: has a point that isn't three numbers");
    row("OBJ that is binary",              "a.obj", binary,                     "");
    row("PLY that is none",                "a.ply", ascii,                      "line 1: is no PLY file");
    row("PLY cut in its header",           "a.ply", ply("element vertex 3\n"),  "is cut off in its header");
    row("PLY without format",              "a.ply", "ply\nelement vertex 0\n" + xyz + "end_header\n", "doesn't tell its format");
    row("PLY without coordinates",         "a.ply", ply("element vertex 1\nproperty float x\nend_header\n1\n"), "has no points with x, y and z");
    row("PLY with many empty entries",     "a.ply", ply("element vertex 1\n" + xyz + "element none 4000000000\nend_header\n1 1 1\n"), "entries without content");
    row("PLY with forged count",           "a.ply", ply("element vertex 4000000000\n" + xyz + "end_header\n1 1 1\n"), "is cut off");
    row("PLY with negative count",         "a.ply", ply("element vertex -1\n" + xyz + "end_header\n"), "isn't understood");
    row("PLY cut off",                     "a.ply", asciiPly(cube()).chopped(4), "is cut off");
    row("binary PLY cut off",              "a.ply", binaryPly(cube(), true).chopped(1), "is cut off");
    row("PLY with face out of range",      "a.ply", asciiPly(cube()).replace("3 0 2 3", "3 0 2 8"), "has a face with point 9, but only 8 points");
    row("PLY with negative point",         "a.ply", asciiPly(cube()).replace("3 0 2 3", "3 0 2 -3"), "a point that doesn't exist");
    row("PLY with point between two",      "a.ply", asciiPly(cube()).replace("3 0 2 3", "3 0 2.5 3"), "a point that doesn't exist");
    row("PLY with list of broken length",  "a.ply", asciiPly(cube()).replace("3 0 2 3", "3.5 0 2 3"), "no sensible length");
    row("PLY with list of no end",         "a.ply", asciiPly(cube()).replace("3 0 2 3", "1e18 0 2 3"), "no sensible length");
    row("PLY without faces",               "a.ply", asciiPly({cube().points, {}}), "");
    // clang-format on
}

void MeshReaderTest::refuses()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QFETCH(QString, text);
    const QTemporaryDir folder;
    const QString file = writeFile(folder.filePath(name), content);
    const MeshReading reading = MeshReader::read(file);
    QVERIFY(!reading.mesh);
    QCOMPARE(reading.problem.file, file);
    QVERIFY(!reading.problem.reason.isEmpty());
    QVERIFY2(reading.problem.text().contains(text), qPrintable(reading.problem.text()));
}

void MeshReaderTest::refusesSparseFileOfTwoGigabytes_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"a.stl", "a.obj", "a.ply"})
        QTest::newRow(name) << QString::fromUtf8(name);
}

void MeshReaderTest::refusesSparseFileOfTwoGigabytes()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    QFile file(folder.filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.resize(2LL * 1024 * 1024 * 1024));
    const MeshReading reading = MeshReader::read(file.fileName());
    QVERIFY(!reading.mesh);
    QCOMPARE(reading.problem.reason,
             QStringLiteral("is too large for a mesh file: 2.00 GiB, the limit is 256.00 MiB"));
}

void MeshReaderTest::refusesWhatIsNoFile()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("folder.stl")));
    QCOMPARE(MeshReader::read(folder.filePath(QStringLiteral("folder.stl"))).problem.reason,
             QStringLiteral("is no file"));
    QCOMPARE(MeshReader::read(folder.filePath(QStringLiteral("none.stl"))).problem.reason,
             QStringLiteral("doesn't exist"));
}

void MeshReaderTest::neverOpensFilesThatMeshRefersTo()
{
    // A material library that cannot be parsed would be told, were it looked at.
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("none.mtl")));
    const QString file = writeFile(folder.filePath(QStringLiteral("a.obj")),
                                   obj(cube()).replace("o test", "usemtl steel"));
    QVERIFY(MeshReader::read(file).mesh);
}

void MeshReaderTest::knowsMeshFilesByTheirNames()
{
    QVERIFY(MeshReader::isMeshFile(QStringLiteral("/a/b.stl")));
    QVERIFY(MeshReader::isMeshFile(QStringLiteral("B.Obj")));
    QVERIFY(!MeshReader::isMeshFile(QStringLiteral("stl")));
    QVERIFY(!MeshReader::isMeshFile(QStringLiteral("a.stl.txt")));
    QCOMPARE(
        MeshReader::nameFilters(),
        QStringList({QStringLiteral("*.stl"), QStringLiteral("*.obj"), QStringLiteral("*.ply")}));
}

ZORVANE_TEST(MeshReaderTest)
#include "MeshReaderTest.moc"
