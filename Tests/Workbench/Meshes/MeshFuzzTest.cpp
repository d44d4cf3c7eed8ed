#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Meshes/MeshFiles.h"
#include "Workbench/Meshes/MeshFacts.h"
#include "Workbench/Meshes/MeshReader.h"

#include <rapidcheck.h>

#include <cmath>

using namespace Zorvane::Testing;
using namespace Zorvane::Workbench;

namespace {

QByteArray damaged(QByteArray content)
{
    const int changes = *rc::gen::inRange(1, 6);
    for (int i = 0; i < changes && !content.isEmpty(); ++i) {
        const int at = *rc::gen::inRange(0, content.size());
        const int length = *rc::gen::inRange(1, 60);
        switch (*rc::gen::inRange(0, 4)) {
        case 0:
            content[at] = static_cast<char>(*rc::gen::inRange(0, 256));
            break;
        case 1:
            content.remove(at, length);
            break;
        case 2:
            content.insert(at, content.mid(*rc::gen::inRange(0, content.size()), length));
            break;
        default:
            content.truncate(at);
            break;
        }
    }
    return content;
}

/** A mesh that can be used, or a problem that tells why not. */
bool isSound(const MeshReading& reading, const QString& file)
{
    if (!reading.mesh)
        return reading.problem.file == file && !reading.problem.reason.isEmpty();
    const TriangleMesh& mesh = *reading.mesh;
    for (const TriangleMesh::Triangle& triangle : mesh.triangles) {
        for (const std::uint32_t corner : triangle) {
            if (corner >= mesh.points.size())
                return false;
        }
    }
    return !mesh.isEmpty() && std::isfinite(meshFacts(mesh).surface);
}

} // namespace

class MeshFuzzTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyCutGivesMeshOrProblem_data() { formats(); }
    void everyCutGivesMeshOrProblem();
    void damagedFileGivesMeshOrProblem_data() { formats(); }
    void damagedFileGivesMeshOrProblem();

private:
    static void formats();
};

void MeshFuzzTest::formats()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    const auto row = [](const char* rule, const char* name, const QByteArray& content) {
        QTest::newRow(rule) << QString::fromUtf8(name) << content;
    };
    row("ASCII STL", "a.stl", asciiStl(cube()));
    row("binary STL", "a.stl", binaryStl(cube(), "solid"));
    row("OBJ", "a.obj", obj(cube()));
    row("ASCII PLY", "a.ply", asciiPly(cube()));
    row("binary PLY", "a.ply", binaryPly(cube(), false));
}

void MeshFuzzTest::everyCutGivesMeshOrProblem()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    const QString file = QStringLiteral("/parts/") + name;
    for (int length = 0; length < content.size(); ++length) {
        const MeshReading reading = MeshReader::parse(content.left(length), file);
        QVERIFY2(isSound(reading, file), qPrintable(QString::number(length)));
    }
}

void MeshFuzzTest::damagedFileGivesMeshOrProblem()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    const QString file = QStringLiteral("/parts/") + name;
    QVERIFY(
        rc::check([&] { RC_ASSERT(isSound(MeshReader::parse(damaged(content), file), file)); }));
}

ZORVANE_TEST(MeshFuzzTest)
#include "MeshFuzzTest.moc"
