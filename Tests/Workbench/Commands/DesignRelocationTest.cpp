#include "Workbench/Commands/DesignRelocation.h"

#include "Files/CopyCollisionDialog.h"
#include "Tests/Support/ExpectedModals.h"
#include "Tests/Support/PlatformCopies.h"
#include "Tests/Support/PlatformFacts.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Tree/TreeFixture.h"
#include "Workbench/Commands/DesignCopy.h"
#include "Workbench/Design/DesignWriter.h"

#include <QtCore/QDir>
#include <QtWidgets/QPushButton>

#include <filesystem>

namespace Zorvane::Workbench {

using Testing::objectId;

/**
 * The small design refers to a door in a folder of its own, which refers to a mesh and to a handle
 * in a folder of its own.
 */
class DesignRelocationTest : public Testing::TestCase
{
    Q_OBJECT

private:
    const DesignSession& session() const { return m_opened->session; }
    const Design& small() const { return *session().findDesign(objectId(1)); }
    QString target(const char* name) const { return m_target->filePath(QString::fromUtf8(name)); }
    QString source(const char* name) const { return m_opened->path(QString::fromUtf8(name)); }
    bool isThere(const char* name) const { return QFile::exists(target(name)); }
    void expectCollision(Testing::ExpectedModals& modals, CopyDecision decision) const;
    /** Writes the copy, too, when its files are there. */
    std::optional<Problem> relocate();
    /** The copy with what it refers to, read from the disk. */
    std::unique_ptr<DesignSession> relocated() const;
    /** That the copy came whole: all three designs, and every file that they refer to. */
    void expectAllDesignsWithTheirFiles() const;
    bool linkDoor(const char* target, const char* link);

    Testing::PlatformCopies m_copies;
    std::unique_ptr<Testing::OpenedDesign> m_opened;
    std::unique_ptr<QTemporaryDir> m_target;

private Q_SLOTS:
    void init();
    void cleanup();
    void allFilesComeAlong();
    void filesStayInTheSameFolder();
    void filesStayInTheSameFolderSpelledOtherwise();
    void missingFilesDontCount();
    void bothCanBeOpenAtOnce();
    void designsComeAlongAsTheyAreShown();
    void designsThatAreNotOpenComeAlongAsFiles();
    void circlesEnd();
    void filesReferredToTwiceComeOnce();
    void filesSpelledInTwoWaysComeOnce();
    void designsSpelledOtherwiseComeAsTheyAreShown();
    void namesThatAreTakenAreAskedAbout_data();
    void namesThatAreTakenAreAskedAbout();
    void designsFollowFilesWithOtherNames();
    void designsWhoseNamesAreTakenAreKept();
    void designsMayGoWhileQuestionsAreAsked();
    void designsMayComeBackWhileQuestionsAreAsked();
    void folderThatCannotBeMadeIsTold();
    void nothingTakesThePlaceOfTheDesign();
    void openDesignsAreNotReplaced();
    void protectedDesignsComeAlong();
    void designsBehindLinksStandWhereTheLinksStand();
    void designsReferredToByLinksAsWellComeOnce();
    void designsOutOfReachAreTold();
    void filesOfTheSamePlaceAreTold();
    void linksInTheNewFolderAreTold_data();
    void linksInTheNewFolderAreTold();
};

void DesignRelocationTest::init()
{
    const QString design = QStringLiteral("design");
    m_opened = std::make_unique<Testing::OpenedDesign>();
    m_target = std::make_unique<QTemporaryDir>();
    Testing::writeFile(source("door/geometry/door.stl"), Testing::binaryStl(Testing::cube(2)));
    Testing::writeFile(source("door/handle/grip.txt"), "grip");
    Testing::writeFile(
        source("door/handle/handle.dsg"),
        Testing::toText(Testing::designWithFiles(
            70, QStringLiteral("Handle"),
            {Testing::fileEntry(71, QStringLiteral("Grip"), QStringLiteral("document"),
                                QStringLiteral("grip.txt"))})));
    Testing::writeFile(
        source("door/door.dsg"),
        Testing::toText(Testing::designWithFiles(
            60, QStringLiteral("Door"),
            {Testing::fileEntry(61, QStringLiteral("Door mesh"), QStringLiteral("mesh"),
                                QStringLiteral("geometry/door.stl")),
             Testing::fileEntry(62, QStringLiteral("The handle"), design,
                                QStringLiteral("handle/handle.dsg"))})));
    QVERIFY(m_opened->session.addFiles(objectId(1), {source("door/door.dsg")}).empty());
    QCOMPARE(session().designs().size(), std::size_t(3));
}

void DesignRelocationTest::cleanup()
{
    m_opened.reset();
    m_target.reset();
    TestCase::cleanup();
}

void DesignRelocationTest::expectCollision(Testing::ExpectedModals& modals,
                                           CopyDecision decision) const
{
    modals.expectDialog<CopyCollisionDialog>(
        QStringLiteral("collision"),
        [decision](CopyCollisionDialog& dialog) { dialog.button(decision)->click(); });
}

std::optional<Problem> DesignRelocationTest::relocate()
{
    Design copy = DesignCopy::of(small(), target("moved.dsg"));
    const std::optional<Problem> problem =
        DesignRelocation(nullptr, small().file, copy.file, session().designs()).bringFilesOf(copy);
    return problem ? problem : DesignWriter::write(copy);
}

std::unique_ptr<DesignSession> DesignRelocationTest::relocated() const
{
    auto other = std::make_unique<DesignSession>();
    other->open({target("moved.dsg")});
    return other;
}

void DesignRelocationTest::nothingTakesThePlaceOfTheDesign()
{
    QVERIFY(QFile::copy(source("door/handle/handle.dsg"), source("moved.dsg")));
    QVERIFY(QFile::copy(source("door/handle/grip.txt"), source("grip.txt")));
    QVERIFY(m_opened->session.addFiles(objectId(1), {source("moved.dsg")}).empty());
    const std::optional<Problem> problem = relocate();
    QVERIFY(problem);
    QCOMPARE(problem->file, source("moved.dsg"));
    QVERIFY(problem->reason.contains(QStringLiteral("the name that the design shall get")));
    QVERIFY(!isThere("moved.dsg"));
}

void DesignRelocationTest::openDesignsAreNotReplaced()
{
    const QByteArray other =
        Testing::toText(Testing::designWithFiles(90, QStringLiteral("Other door"), {}));
    const QString file = Testing::writeFile(target("door/door.dsg"), other);
    m_opened->session.open({file});
    const std::optional<Problem> problem = relocate();
    QVERIFY(problem);
    QCOMPARE(problem->file, QFileInfo(file).canonicalFilePath());
    QVERIFY(problem->reason.contains(QStringLiteral("is open here")));
    QCOMPARE(Testing::readFile(file), other);
}

void DesignRelocationTest::protectedDesignsComeAlong()
{
    QVERIFY(QFile::setPermissions(source("door/door.dsg"), QFile::ReadOwner));
    QVERIFY(!relocate());
    QVERIFY(QFileInfo(target("door/door.dsg")).isWritable());
    QVERIFY(relocated()->problems().empty());
}

/** In the small design instead of the door; false where a program may make no links. */
void DesignRelocationTest::expectAllDesignsWithTheirFiles() const
{
    const std::unique_ptr<DesignSession> moved = relocated();
    QVERIFY(moved->problems().empty());
    QCOMPARE(moved->designs().size(), std::size_t(3));
    for (const Design& design : moved->designs())
        for (const FileReference& file : design.files)
            QCOMPARE(int(file.state), int(FileState::Exists));
}

bool DesignRelocationTest::linkDoor(const char* target, const char* link)
{
    m_opened->session.take(objectId(1), {small().files.back().id});
    return Testing::makeLink(source(target), source(link)) &&
           m_opened->session.addFiles(objectId(1), {source(link)}).empty();
}

void DesignRelocationTest::designsBehindLinksStandWhereTheLinksStand()
{
    if (!linkDoor("door/door.dsg", "linked.dsg"))
        QSKIP("programs may not make links on this platform");
    const QByteArray door = Testing::readFile(source("door/door.dsg"));
    QVERIFY(!relocate());
    QVERIFY(!QFileInfo(target("linked.dsg")).isSymLink());
    QCOMPARE(Testing::readFile(target("geometry/door.stl")),
             Testing::readFile(source("door/geometry/door.stl")));
    QVERIFY(isThere("handle/handle.dsg"));
    QVERIFY(isThere("handle/grip.txt"));
    QVERIFY(!isThere("door"));
    QCOMPARE(Testing::readFile(source("door/door.dsg")), door);
    expectAllDesignsWithTheirFiles();
}

void DesignRelocationTest::designsReferredToByLinksAsWellComeOnce()
{
    if (!Testing::makeLink(source("door/door.dsg"), source("linked.dsg")))
        QSKIP("programs may not make links on this platform");
    // Adding it would find that it is there by its own name.
    QJsonArray files;
    for (const char* name : {"linked.dsg", "door/door.dsg", "./linked.dsg"})
        files.append(Testing::fileEntry(90 + files.size(), QStringLiteral("Door"),
                                        QStringLiteral("design"), QString::fromLatin1(name)));
    m_opened->session.close();
    Testing::writeFile(source("small.dsg"), Testing::toText(Testing::designWithFiles(
                                                1, QStringLiteral("Small"), files)));
    m_opened->session.open({source("small.dsg")});
    QCOMPARE(session().designs().size(), std::size_t(3));
    QVERIFY(!relocate());
    const std::unique_ptr<DesignSession> moved = relocated();
    QVERIFY(moved->problems().empty());
    QCOMPARE(moved->designs().size(), std::size_t(3));
    for (const FileReference& file : moved->designs().front().files)
        QCOMPARE(file.design, moved->designs().at(1).id);
    QCOMPARE(moved->designs().front().files.back().path, QStringLiteral("./linked.dsg"));
}

void DesignRelocationTest::designsOutOfReachAreTold()
{
    // The door refers to the handle, too, which stands above it then.
    if (!Testing::makeLink(source("door/handle/handle.dsg"), source("linked.dsg")))
        QSKIP("programs may not make links on this platform");
    const QJsonArray files{Testing::fileEntry(90, QStringLiteral("Handle"),
                                              QStringLiteral("design"),
                                              QStringLiteral("linked.dsg")),
                           Testing::fileEntry(91, QStringLiteral("Door"), QStringLiteral("design"),
                                              QStringLiteral("door/door.dsg"))};
    m_opened->session.close();
    Testing::writeFile(source("small.dsg"), Testing::toText(Testing::designWithFiles(
                                                1, QStringLiteral("Small"), files)));
    m_opened->session.open({source("small.dsg")});
    const std::optional<Problem> problem = relocate();
    QVERIFY(problem);
    QCOMPARE(problem->file, source("door/handle/handle.dsg"));
    QCOMPARE(problem->reason, QStringLiteral("comes along by a link, out of reach from Door"));
    QVERIFY(!isThere("moved.dsg"));
}

void DesignRelocationTest::filesOfTheSamePlaceAreTold()
{
    Testing::writeFile(source("geometry/door.stl"), Testing::binaryStl(Testing::cube(3)));
    QVERIFY(m_opened->session.addFiles(objectId(1), {source("geometry/door.stl")}).empty());
    m_opened->session.take(objectId(1), {small().files.at(2).id});
    if (!Testing::makeLink(source("door/door.dsg"), source("linked.dsg")))
        QSKIP("programs may not make links on this platform");
    QVERIFY(m_opened->session.addFiles(objectId(1), {source("linked.dsg")}).empty());
    const std::optional<Problem> problem = relocate();
    QVERIFY(problem);
    QCOMPARE(problem->file, source("door/geometry/door.stl"));
    QCOMPARE(problem->reason, QStringLiteral("has the name of another file that comes along"));
    QCOMPARE(Testing::readFile(target("geometry/door.stl")),
             Testing::readFile(source("geometry/door.stl")));
}

void DesignRelocationTest::linksInTheNewFolderAreTold_data()
{
    QTest::addColumn<bool>("toTheFiles");
    QTest::addColumn<QString>("reason");
    QTest::newRow("to where the files are")
        << true << QStringLiteral("is a link to the folder that the files come from");
    QTest::newRow("elsewhere") << false
                               << QStringLiteral(
                                      "is a link that leads out of the design's new folder");
}

void DesignRelocationTest::linksInTheNewFolderAreTold()
{
    QFETCH(bool, toTheFiles);
    QFETCH(QString, reason);
    const QTemporaryDir elsewhere;
    const QString to = toTheFiles ? source("geometry") : elsewhere.path();
    if (!Testing::makeLink(to, target("geometry")))
        QSKIP("programs may not make links on this platform");
    const QStringList before = QDir(to).entryList(QDir::Files);
    const std::optional<Problem> problem = relocate();
    QVERIFY(problem);
    QCOMPARE(problem->file, target("geometry"));
    QCOMPARE(problem->reason, reason);
    QCOMPARE(QDir(to).entryList(QDir::Files), before);
    QVERIFY(!isThere("moved.dsg"));
}

void DesignRelocationTest::allFilesComeAlong()
{
    QVERIFY(!relocate());
    for (const char* name :
         {"geometry/die.stl", "steel.json", "door/geometry/door.stl", "door/handle/grip.txt"}) {
        QCOMPARE(Testing::readFile(target(name)), Testing::readFile(source(name)));
        QVERIFY(!Testing::readFile(source(name)).isEmpty());
    }
    expectAllDesignsWithTheirFiles();
}

void DesignRelocationTest::filesStayInTheSameFolder()
{
    const QStringList before = QDir(m_opened->folder.path()).entryList();
    Design copy = DesignCopy::of(small(), source("b.dsg"));
    QVERIFY(!DesignRelocation(nullptr, small().file, copy.file, session().designs())
                 .bringFilesOf(copy));
    QCOMPARE(QDir(m_opened->folder.path()).entryList(), before);
}

void DesignRelocationTest::filesStayInTheSameFolderSpelledOtherwise()
{
    if (Testing::doesCaseOfNamesCount())
        QSKIP("a folder has one spelling where the case of letters counts");
    const QDir folder(m_opened->folder.path());
    const QStringList before = folder.entryList();
    const QString capitals = folder.path().toUpper() + QStringLiteral("/b.dsg");
    Design copy = DesignCopy::of(small(), capitals);
    QVERIFY(
        !DesignRelocation(nullptr, small().file, capitals, session().designs()).bringFilesOf(copy));
    QCOMPARE(folder.entryList(), before);
}

void DesignRelocationTest::missingFilesDontCount()
{
    QVERIFY(QFile::remove(source("steel.json")));
    QVERIFY(QFile::remove(source("door/handle/grip.txt")));
    m_opened->session.save();
    m_opened->session.reload();
    QVERIFY(!relocate());
    QVERIFY(isThere("geometry/die.stl"));
    QVERIFY(isThere("door/handle/handle.dsg"));
    QVERIFY(!isThere("steel.json"));
    QVERIFY(!isThere("door/handle/grip.txt"));
}

void DesignRelocationTest::bothCanBeOpenAtOnce()
{
    QVERIFY(!relocate());
    m_opened->session.open({target("moved.dsg")});
    QCOMPARE(session().designs().size(), std::size_t(6));
    QVERIFY(session().problems().empty());
}

void DesignRelocationTest::designsComeAlongAsTheyAreShown()
{
    m_opened->session.rename(objectId(70), QStringLiteral("Long handle"));
    QVERIFY(!relocate());
    QCOMPARE(relocated()->designs().back().name, QStringLiteral("Long handle"));
    QVERIFY(session().isModified(objectId(70)));
    QVERIFY(!Testing::readFile(source("door/handle/handle.dsg")).contains("Long handle"));
}

void DesignRelocationTest::designsThatAreNotOpenComeAlongAsFiles()
{
    Testing::writeFile(source("broken.dsg"), "no design");
    QVERIFY(m_opened->session.addFiles(objectId(1), {source("broken.dsg")}).empty());
    QVERIFY(!relocate());
    QCOMPARE(Testing::readFile(target("broken.dsg")), QByteArray("no design"));
}

void DesignRelocationTest::circlesEnd()
{
    const QString design = QStringLiteral("design");
    Testing::writeFile(source("back.dsg"),
                       Testing::toText(Testing::designWithFiles(
                           80, QStringLiteral("Back"),
                           {Testing::fileEntry(81, QStringLiteral("The small one"), design,
                                               QStringLiteral("small.dsg"))})));
    QVERIFY(m_opened->session.addFiles(objectId(1), {source("back.dsg")}).empty());
    QVERIFY(!relocate());
    QVERIFY(!isThere("small.dsg"));
    // It refers to the design under its new name.
    QVERIFY(Testing::readFile(target("back.dsg")).contains("\"moved.dsg\""));
    QCOMPARE(relocated()->designs().size(), std::size_t(4));
}

void DesignRelocationTest::filesReferredToTwiceComeOnce()
{
    QVERIFY(m_opened->session
                .addFiles(objectId(1),
                          {source("door/geometry/door.stl"), source("door/handle/handle.dsg")})
                .empty());
    const Testing::ExpectedModals none;
    QVERIFY(!relocate());
    QVERIFY(relocated()->problems().empty());
    QCOMPARE(QDir(target("door/geometry")).entryList(QDir::Files).size(), 1);
    QCOMPARE(QDir(target("door/handle")).entryList(QDir::Files).size(), 2);
}

void DesignRelocationTest::filesSpelledInTwoWaysComeOnce()
{
    // Where the case of letters counts, two names of one file stand in for two spellings.
    if (Testing::doesCaseOfNamesCount())
        std::filesystem::create_hard_link(source("steel.json").toStdU16String(),
                                          source("STEEL.json").toStdU16String());
    const QString kind = QStringLiteral("document");
    const QJsonArray files{
        Testing::fileEntry(90, QStringLiteral("Card"), kind, QStringLiteral("steel.json")),
        Testing::fileEntry(91, QStringLiteral("Card, too"), kind, QStringLiteral("STEEL.json"))};
    m_opened->session.close();
    Testing::writeFile(source("small.dsg"), Testing::toText(Testing::designWithFiles(
                                                1, QStringLiteral("Small"), files)));
    m_opened->session.open({source("small.dsg")});
    const Testing::ExpectedModals none;
    QVERIFY(!relocate());
    QCOMPARE(QDir(m_target->path()).entryList({QStringLiteral("*.json")}).size(), 1);
    const std::unique_ptr<DesignSession> moved = relocated();
    for (const FileReference& file : moved->designs().front().files)
        QCOMPARE(int(file.state), int(FileState::Exists));
}

void DesignRelocationTest::designsSpelledOtherwiseComeAsTheyAreShown()
{
    if (Testing::doesCaseOfNamesCount())
        std::filesystem::create_hard_link(source("door/door.dsg").toStdU16String(),
                                          source("door/DOOR.DSG").toStdU16String());
    m_opened->session.close();
    Testing::writeFile(source("small.dsg"),
                       Testing::toText(Testing::designWithFiles(
                           1, QStringLiteral("Small"),
                           {Testing::fileEntry(90, QStringLiteral("Door"), QStringLiteral("design"),
                                               QStringLiteral("door/DOOR.DSG"))})));
    m_opened->session.open({source("door/door.dsg"), source("small.dsg")});
    m_opened->session.rename(objectId(60), QStringLiteral("Back door"));
    QVERIFY(!relocate());
    const std::unique_ptr<DesignSession> moved = relocated();
    QVERIFY(moved->problems().empty());
    QCOMPARE(moved->designs().size(), std::size_t(3));
    QCOMPARE(moved->designs().at(1).name, QStringLiteral("Back door"));
}

void DesignRelocationTest::namesThatAreTakenAreAskedAbout_data()
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

void DesignRelocationTest::namesThatAreTakenAreAskedAbout()
{
    if (!Testing::PlatformCopies::askByOurDialog())
        QSKIP("the system asks about names that are taken, by windows of its own");
    QFETCH(int, decision);
    QFETCH(bool, done);
    QFETCH(bool, sameName);
    const QString taken = Testing::writeFile(target("steel.json"), "old");
    Testing::ExpectedModals modals;
    expectCollision(modals, CopyDecision(decision));
    const std::optional<Problem> problem = relocate();
    QVERIFY(modals.allMet());
    QCOMPARE(!problem, done);
    QTEST(Testing::readFile(taken), "taken");
    QCOMPARE(isThere("moved.dsg"), done);
    if (problem) {
        QCOMPARE(problem->reason, QStringLiteral("was not copied"));
        return;
    }
    const std::unique_ptr<DesignSession> moved = relocated();
    const Design& copy = moved->designs().front();
    const FileReference& steel = *copy.findFile(copy.materials.front().file);
    QCOMPARE(steel.path == QLatin1String("steel.json"), sameName);
    QCOMPARE(Testing::readFile(steel.file), QByteArray("{}"));
}

void DesignRelocationTest::designsFollowFilesWithOtherNames()
{
    Testing::writeFile(target("door/handle/grip.txt"), "old");
    Testing::ExpectedModals modals;
    // The engine that stands in for a shell keeps both by itself.
    if (Testing::PlatformCopies::askByOurDialog())
        expectCollision(modals, CopyDecision::KeepBoth);
    QVERIFY(!relocate());
    QVERIFY(modals.allMet());
    QCOMPARE(Testing::readFile(target("door/handle/grip.txt")), QByteArray("old"));
    const std::unique_ptr<DesignSession> moved = relocated();
    const FileReference& grip = moved->designs().back().files.front();
    QVERIFY(grip.path != QStringLiteral("grip.txt"));
    QCOMPARE(Testing::readFile(grip.file), QByteArray("grip"));
}

void DesignRelocationTest::designsWhoseNamesAreTakenAreKept()
{
    const QString taken = Testing::writeFile(target("door/door.dsg"), "another design");
    Testing::ExpectedModals modals;
    if (Testing::PlatformCopies::askByOurDialog())
        expectCollision(modals, CopyDecision::KeepBoth);
    QVERIFY(!relocate());
    QVERIFY(modals.allMet());
    QCOMPARE(Testing::readFile(taken), QByteArray("another design"));
    QVERIFY(relocated()->problems().empty());
    QCOMPARE(relocated()->designs().size(), std::size_t(3));
}

void DesignRelocationTest::designsMayGoWhileQuestionsAreAsked()
{
    if (!Testing::PlatformCopies::askByOurDialog())
        QSKIP("the system asks about names that are taken, by windows of its own");
    if (!linkDoor("door/door.dsg", "linked.dsg"))
        QSKIP("programs may not make links on this platform");
    Testing::writeFile(source("note.txt"), "note");
    Testing::writeFile(
        source("other.dsg"),
        Testing::toText(Testing::designWithFiles(
            80, QStringLiteral("Other"),
            {Testing::fileEntry(81, QStringLiteral("The door"), QStringLiteral("design"),
                                QStringLiteral("door/door.dsg")),
             Testing::fileEntry(82, QStringLiteral("Note"), QStringLiteral("document"),
                                QStringLiteral("note.txt"))})));
    QVERIFY(m_opened->session.addFiles(objectId(1), {source("other.dsg")}).empty());
    Testing::writeFile(target("note.txt"), "old");
    Testing::ExpectedModals modals;
    modals.expectDialog<CopyCollisionDialog>(QStringLiteral("collision"),
                                             [this](CopyCollisionDialog& dialog) {
                                                 QVERIFY(QFile::remove(source("door/door.dsg")));
                                                 dialog.button(CopyDecision::KeepBoth)->click();
                                             });
    QVERIFY(!relocate());
    QVERIFY(modals.allMet());
    QVERIFY(relocated()->problems().empty());
    QCOMPARE(relocated()->designs().size(), std::size_t(4));
}

void DesignRelocationTest::designsMayComeBackWhileQuestionsAreAsked()
{
    if (!Testing::PlatformCopies::askByOurDialog())
        QSKIP("the system asks about names that are taken, by windows of its own");
    // Asked about before the door's folder is.
    Testing::writeFile(target("steel.json"), "old");
    m_opened->session.rename(objectId(60), QStringLiteral("Back door"));
    const QByteArray door = Testing::readFile(source("door/door.dsg"));
    QVERIFY(QFile::remove(source("door/door.dsg")));
    Testing::ExpectedModals modals;
    modals.expectDialog<CopyCollisionDialog>(QStringLiteral("collision"),
                                             [this, &door](CopyCollisionDialog& dialog) {
                                                 Testing::writeFile(source("door/door.dsg"), door);
                                                 dialog.button(CopyDecision::KeepBoth)->click();
                                             });
    QVERIFY(!relocate());
    QVERIFY(modals.allMet());
    QVERIFY(relocated()->problems().empty());
    QCOMPARE(relocated()->designs().at(1).name, QStringLiteral("Back door"));
}

void DesignRelocationTest::folderThatCannotBeMadeIsTold()
{
    Testing::writeFile(target("geometry"), "a file in the way");
    const std::optional<Problem> problem = relocate();
    QVERIFY(problem);
    QCOMPARE(problem->reason, QStringLiteral("cannot be made a folder"));
    QCOMPARE(problem->file, target("geometry"));
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::DesignRelocationTest;

ZORVANE_TEST(DesignRelocationTest)
#include "DesignRelocationTest.moc"
