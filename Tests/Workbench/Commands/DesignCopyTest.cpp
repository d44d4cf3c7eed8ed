#include "Workbench/Commands/DesignCopy.h"

#include "Files/CopyCollisionDialog.h"
#include "Tests/Support/ExpectedModals.h"
#include "Tests/Support/PlatformCopies.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Tree/TreeFixture.h"
#include "Workbench/Design/DesignReader.h"
#include "Workbench/Design/DesignWriter.h"

#include <QtCore/QDir>
#include <QtWidgets/QPushButton>

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
    void filesComeAlong();
    void filesStayInTheSameFolder();
    void missingFilesDontCount();
    void namesThatAreTakenAreAskedAbout_data();
    void namesThatAreTakenAreAskedAbout();
    void copiesOfOtherNamesAreReferredTo();
    void folderThatCannotBeMadeIsTold();

private:
    Testing::PlatformCopies m_copies;
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

void DesignCopyTest::filesComeAlong()
{
    const Testing::OpenedDesign opened;
    const QTemporaryDir target;
    Design copy = DesignCopy::of(designOf(opened), target.filePath(QStringLiteral("a.dsg")));
    QVERIFY(!DesignCopy::bringFiles(nullptr, copy, designOf(opened).folder()));
    for (const char* name : {"geometry/die.stl", "steel.json"}) {
        const QString path = QString::fromLatin1(name);
        QCOMPARE(Testing::readFile(target.filePath(path)), Testing::readFile(opened.path(path)));
        QVERIFY(QFile::exists(opened.path(path)));
    }
}

void DesignCopyTest::filesStayInTheSameFolder()
{
    const Testing::OpenedDesign opened;
    const QStringList before = QDir(opened.folder.path()).entryList();
    Design copy = DesignCopy::of(designOf(opened), opened.path(QStringLiteral("b.dsg")));
    QVERIFY(!DesignCopy::bringFiles(nullptr, copy, designOf(opened).folder()));
    QCOMPARE(QDir(opened.folder.path()).entryList(), before);
}

void DesignCopyTest::missingFilesDontCount()
{
    Testing::OpenedDesign opened;
    QVERIFY(QFile::remove(opened.path(QStringLiteral("steel.json"))));
    opened.session.reload();
    const QTemporaryDir target;
    Design copy = DesignCopy::of(designOf(opened), target.filePath(QStringLiteral("a.dsg")));
    QVERIFY(!DesignCopy::bringFiles(nullptr, copy, designOf(opened).folder()));
    QVERIFY(QFile::exists(target.filePath(QStringLiteral("geometry/die.stl"))));
    QVERIFY(!QFile::exists(target.filePath(QStringLiteral("steel.json"))));
}

void DesignCopyTest::namesThatAreTakenAreAskedAbout_data()
{
    QTest::addColumn<int>("decision");
    QTest::addColumn<QByteArray>("taken");
    QTest::addColumn<bool>("done");
    QTest::addColumn<bool>("sameName");
    QTest::newRow("replace") << int(CopyDecision::Replace) << QByteArray("{}") << true << true;
    QTest::newRow("keep both") << int(CopyDecision::KeepBoth) << QByteArray("old") << true << false;
    QTest::newRow("skip") << int(CopyDecision::Skip) << QByteArray("old") << false << true;
    QTest::newRow("cancel") << int(CopyDecision::Cancel) << QByteArray("old") << false << true;
}

void DesignCopyTest::namesThatAreTakenAreAskedAbout()
{
    if (!Testing::PlatformCopies::askByOurDialog())
        QSKIP("the system asks about names that are taken, by windows of its own");
    QFETCH(int, decision);
    QFETCH(bool, done);
    QFETCH(bool, sameName);
    const Testing::OpenedDesign opened;
    const QTemporaryDir target;
    const QString taken = Testing::writeFile(target.filePath(QStringLiteral("steel.json")), "old");
    Testing::ExpectedModals modals;
    modals.expectDialog<CopyCollisionDialog>(QStringLiteral("collision"),
                                             [decision](CopyCollisionDialog& dialog) {
                                                 dialog.button(CopyDecision(decision))->click();
                                             });
    Design copy = DesignCopy::of(designOf(opened), target.filePath(QStringLiteral("a.dsg")));
    const auto problem = DesignCopy::bringFiles(nullptr, copy, designOf(opened).folder());
    QVERIFY(modals.allMet());
    QCOMPARE(!problem, done);
    if (problem)
        QCOMPARE(problem->reason, QStringLiteral("was not copied"));
    QTEST(Testing::readFile(taken), "taken");
    const FileReference& steel = *copy.findFile(copy.materials.front().file);
    QCOMPARE(steel.path == QLatin1String("steel.json"), sameName);
    if (done)
        QCOMPARE(Testing::readFile(target.filePath(steel.path)), QByteArray("{}"));
}

void DesignCopyTest::copiesOfOtherNamesAreReferredTo()
{
    const Testing::OpenedDesign opened;
    const QTemporaryDir target;
    Testing::writeFile(target.filePath(QStringLiteral("steel.json")), "old");
    Testing::ExpectedModals modals;
    // The engine that stands in for a shell keeps both by itself.
    if (Testing::PlatformCopies::askByOurDialog())
        modals.expectDialog<CopyCollisionDialog>(
            QStringLiteral("collision"),
            [](CopyCollisionDialog& dialog) { dialog.button(CopyDecision::KeepBoth)->click(); });
    Design copy = DesignCopy::of(designOf(opened), target.filePath(QStringLiteral("a.dsg")));
    QVERIFY(!DesignCopy::bringFiles(nullptr, copy, designOf(opened).folder()));
    QVERIFY(modals.allMet());
    const QString referred = copy.findFile(copy.materials.front().file)->path;
    QVERIFY(referred != QLatin1String("steel.json"));
    QCOMPARE(Testing::readFile(target.filePath(referred)), QByteArray("{}"));
    QCOMPARE(Testing::readFile(target.filePath(QStringLiteral("steel.json"))), QByteArray("old"));
}

void DesignCopyTest::folderThatCannotBeMadeIsTold()
{
    const Testing::OpenedDesign opened;
    const QTemporaryDir target;
    Testing::writeFile(target.filePath(QStringLiteral("geometry")), "a file in the way");
    Design copy = DesignCopy::of(designOf(opened), target.filePath(QStringLiteral("a.dsg")));
    const std::optional<Problem> problem =
        DesignCopy::bringFiles(nullptr, copy, designOf(opened).folder());
    QVERIFY(problem);
    QCOMPARE(problem->reason, QStringLiteral("cannot be made a folder"));
    QCOMPARE(problem->file, target.filePath(QStringLiteral("geometry")));
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::DesignCopyTest;

ZORVANE_TEST_MAIN(DesignCopyTest)
#include "DesignCopyTest.moc"
