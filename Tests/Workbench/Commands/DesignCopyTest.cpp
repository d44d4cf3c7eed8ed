#include "Workbench/Commands/DesignCopy.h"

#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Tree/TreeFixture.h"
#include "Workbench/Design/DesignReader.h"
#include "Workbench/Design/DesignWriter.h"

#include <QtCore/QDir>

#include <set>

namespace Zorvane::Workbench {

class DesignCopyTest : public Testing::TestCase
{
    Q_OBJECT

private:
    static const Design& designOf(const Testing::OpenedDesign& opened)
    {
        return opened.session.designs().front();
    }

private Q_SLOTS:
    void hasIdentifiersOfItsOwn();
    void refersToItsOwnPieces();
    void canBeOpenBesideTheOther();
    void keepsWhatIsNotUnderstood();
    void proposesNamesThatAreFree();
    void longNamesAreProposedShortened();
};

void DesignCopyTest::hasIdentifiersOfItsOwn()
{
    const Testing::OpenedDesign opened;
    const Design copy = DesignCopy::of(designOf(opened), QStringLiteral("/x/copy.dsg"));
    QCOMPARE(copy.file, QStringLiteral("/x/copy.dsg"));
    const std::vector<GUIdentifier> before = designOf(opened).allIds();
    const std::vector<GUIdentifier> after = copy.allIds();
    QCOMPARE(after.size(), before.size());
    std::set<GUIdentifier> all(before.begin(), before.end());
    all.insert(after.begin(), after.end());
    QCOMPARE(all.size(), 2 * before.size());
}

void DesignCopyTest::refersToItsOwnPieces()
{
    const Testing::OpenedDesign opened;
    const Design copy = DesignCopy::of(designOf(opened), QStringLiteral("/x/copy.dsg"));
    QCOMPARE(copy.name, designOf(opened).name);
    const Tool& tool = copy.operations.front().tools.front();
    QVERIFY(copy.findFile(tool.geometry));
    QCOMPARE(copy.findFile(tool.geometry)->path, QStringLiteral("geometry/die.stl"));
    QVERIFY(copy.findFile(copy.materials.front().file));
    QCOMPARE(copy.blank->material, copy.materials.front().id);
    QVERIFY(copy.findFile(copy.parts.front().geometry));
    Design design = designOf(opened);
    design.parts.front().material = design.materials.front().id;
    const Design ofSteel = DesignCopy::of(design, QStringLiteral("/x/copy.dsg"));
    QCOMPARE(ofSteel.parts.front().material, ofSteel.materials.front().id);
    // A reference to nothing stays one.
    const std::vector<Tool>& before = designOf(opened).operations.front().tools;
    for (std::size_t i = 0; i < before.size(); ++i)
        QCOMPARE(copy.operations.front().tools[i].geometry.isNull(), before[i].geometry.isNull());
}

void DesignCopyTest::canBeOpenBesideTheOther()
{
    Testing::OpenedDesign opened;
    const QString file = opened.path(QStringLiteral("second.dsg"));
    QVERIFY(!DesignWriter::write(DesignCopy::of(designOf(opened), file)));
    opened.session.open({file});
    QCOMPARE(int(opened.session.designs().size()), 2);
    QVERIFY(opened.session.problems().empty());
}

void DesignCopyTest::keepsWhatIsNotUnderstood()
{
    QJsonObject design = Testing::smallDesign();
    design[QStringLiteral("colour")] = QStringLiteral("red");
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("a.dsg"));
    Testing::writeFile(file, Testing::toText(design));
    const DesignReading reading = DesignReader().read(file);
    QVERIFY(reading.design);
    const QByteArray written = DesignWriter::toJson(DesignCopy::of(*reading.design, file));
    QVERIFY(written.contains("\"colour\": \"red\""));
}

void DesignCopyTest::proposesNamesThatAreFree()
{
    const QTemporaryDir folder;
    const QString design = folder.filePath(QStringLiteral("door.v2.dsg"));
    QCOMPARE(DesignCopy::proposedFile(design), folder.filePath(QStringLiteral("door.v2 copy.dsg")));
    Testing::writeFile(folder.filePath(QStringLiteral("door.v2 copy.dsg")), "x");
    QCOMPARE(DesignCopy::proposedFile(design),
             folder.filePath(QStringLiteral("door.v2 copy 2.dsg")));
    Testing::writeFile(folder.filePath(QStringLiteral("door.v2 copy 2.dsg")), "x");
    QCOMPARE(DesignCopy::proposedFile(design),
             folder.filePath(QStringLiteral("door.v2 copy 3.dsg")));
    // But for what not every dialog takes.
    QCOMPARE(DesignCopy::proposedFile(folder.filePath(QStringLiteral("12\" blank.dsg"))),
             folder.filePath(QStringLiteral("12'' blank copy.dsg")));
    QCOMPARE(DesignCopy::typableName(folder.filePath(QStringLiteral("12\" blank.dsg"))),
             QStringLiteral("12'' blank.dsg"));
    // Names are taken as they are.
    Testing::writeFile(folder.filePath(QStringLiteral("50%1 copy.dsg")), "x");
    QCOMPARE(DesignCopy::proposedFile(folder.filePath(QStringLiteral("50%1.dsg"))),
             folder.filePath(QStringLiteral("50%1 copy 2.dsg")));
}

void DesignCopyTest::longNamesAreProposedShortened()
{
    const QTemporaryDir folder;
    const QString design = folder.filePath(QString(251, QLatin1Char('x')) + QStringLiteral(".dsg"));
    for (const char* end : {"x copy.dsg", "x copy 2.dsg", "x copy 3.dsg"}) {
        const QString proposed = DesignCopy::proposedFile(design);
        QCOMPARE(QFileInfo(proposed).fileName().size(), 248);
        QVERIFY(proposed.endsWith(QLatin1String(end)));
        Testing::writeFile(proposed, "x");
    }
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::DesignCopyTest;

ZORVANE_TEST(DesignCopyTest)
#include "DesignCopyTest.moc"
