#include "Workbench/Import/FileImport.h"
#include "Files/CopyCollisionDialog.h"
#include "Tests/Support/ExpectedModals.h"
#include "Tests/Support/PlatformCopies.h"
#include "Tests/Support/PlatformFacts.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Import/ImportFixture.h"
#include "Workbench/Design/SessionDesign.h"

#include <QtCore/QFileInfo>
#include <QtWidgets/QPushButton>

#include <memory>

namespace Zorvane::Workbench {

using Testing::ExpectedModals;
using Testing::objectId;

class FileImportTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void copiesAMeshNextToTheDesignAndMakesAPart();
    void tablesAndOtherFilesBecomeReferences();
    void anImportIsSavedAndReadAgain();
    void anImportIsDroppedByReverting();
    void decliningChangesNothing();
    void aTakenNameIsAskedAbout_data();
    void aTakenNameIsAskedAbout();
    void sourceRemovedWhileAsked_isReported();
    void whatIsReplacedIsReferredToOnce();
    void filesInTheDesignsFolderAreUsedWhereTheyLie();
    void aFileThatIsReferredToIsNotAddedTwice();
    void aDesignIsOpenedWithItsNewReference();
    void oneFileThatCannotBeImportedKeepsAllOut_data();
    void oneFileThatCannotBeImportedKeepsAllOut();
    void theDesignItselfIsRefused();
    void aLinkThatLeadsOutIsRefused();
    void aDesignWhoseFileIsGoneIsNotImportedInto();
    void withoutDesignThereIsNoImport();
    void theLibrarySeesTheDesign();

private:
    ImportOutcome run(const QStringList& files)
    {
        return FileImport(m_files->session, nullptr).run(objectId(1), files);
    }
    bool isUnchanged() const
    {
        return !m_files->session.isModified() && m_files->entries() == m_entries &&
               m_files->designPaths().size() == 2 && m_files->partNames().size() == 1;
    }

    Testing::PlatformCopies m_copies;
    std::unique_ptr<Testing::ImportFixture> m_files;
    QStringList m_entries;
};

void FileImportTest::init()
{
    m_files = std::make_unique<Testing::ImportFixture>();
    m_entries = m_files->entries();
}

void FileImportTest::cleanup()
{
    m_files.reset();
    TestCase::cleanup();
}

void FileImportTest::copiesAMeshNextToTheDesignAndMakesAPart()
{
    const QString source = m_files->outsideMesh(QStringLiteral("door outer.stl"));
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("^Copy File$"), QMessageBox::Yes);
    const ImportOutcome outcome = run({source});
    QVERIFY(modals.allMet());
    QVERIFY(outcome.problems.empty());
    const QString copy = m_files->path(QStringLiteral("door outer.stl"));
    QCOMPARE(outcome.files, QStringList{copy});
    QCOMPARE(Testing::readFile(copy), Testing::readFile(source));
    QCOMPARE(m_files->designPaths().last(), QStringLiteral("door outer.stl"));
    QCOMPARE(m_files->partNames().last(), QStringLiteral("door outer"));
    const GUIdentifier part = m_files->session.findObject(objectId(1), copy);
    QCOMPARE(m_files->session.name(part), QStringLiteral("door outer"));
    QCOMPARE(m_files->session.geometryFile(part), copy);
    QVERIFY(m_files->session.isModified(part));
    QVERIFY(m_files->session.meshFiles().contains(copy));
}

void FileImportTest::tablesAndOtherFilesBecomeReferences()
{
    const QStringList sources{m_files->outside(QStringLiteral("forces.csv"), "t;f\n"),
                              m_files->outside(QStringLiteral("dc04.mat"), "m"),
                              m_files->outside(QStringLiteral("notes.txt"), "n"),
                              m_files->outside(QStringLiteral("README"), "r"),
                              m_files->outside(QStringLiteral("sheet.pdf"), "p")};
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("^Copy Files$"), QMessageBox::Yes);
    QVERIFY(run(sources).problems.empty());
    const std::vector<FileReference>& files = m_files->design().files;
    QCOMPARE(files.size(), std::size_t(7));
    const FileKind kinds[] = {FileKind::Result, FileKind::Material, FileKind::Document,
                              FileKind::Other, FileKind::Other};
    for (std::size_t i = 0; i < 5; ++i) {
        QCOMPARE(files[i + 2].kind, kinds[i]);
        QCOMPARE(files[i + 2].state, FileState::Exists);
    }
    QCOMPARE(m_files->partNames().size(), 1);
}

void FileImportTest::anImportIsSavedAndReadAgain()
{
    const QString source = m_files->outsideMesh(QStringLiteral("door.stl"));
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Copy File"), QMessageBox::Yes);
    run({source});
    QCOMPARE(Testing::readFile(m_files->designFile()), Testing::toText(Testing::smallDesign()));
    QVERIFY(m_files->session.save().empty());
    QVERIFY(!m_files->session.isModified());
    DesignSession other;
    other.open({m_files->designFile()});
    QVERIFY(other.problems().empty());
    QCOMPARE(other.designs().front().parts.back().id, m_files->design().parts.back().id);
    QCOMPARE(other.geometryFile(m_files->design().parts.back().id),
             m_files->path(QStringLiteral("door.stl")));
}

void FileImportTest::anImportIsDroppedByReverting()
{
    const QString source = m_files->outsideMesh(QStringLiteral("door.stl"));
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Copy File"), QMessageBox::Yes);
    run({source});
    m_files->session.revert(objectId(1));
    QVERIFY(!m_files->session.isModified());
    QCOMPARE(m_files->partNames().size(), 1);
    QVERIFY(QFile::exists(m_files->path(QStringLiteral("door.stl"))));
}

void FileImportTest::decliningChangesNothing()
{
    const QString source = m_files->outsideMesh(QStringLiteral("door.stl"));
    const QString inside = Testing::writeFile(m_files->path(QStringLiteral("in.csv")), "1");
    m_entries = m_files->entries();
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Copy File"), QMessageBox::No);
    const ImportOutcome outcome = run({inside, source});
    QVERIFY(outcome.files.isEmpty());
    QVERIFY(outcome.problems.empty());
    QVERIFY(isUnchanged());
}

void FileImportTest::aTakenNameIsAskedAbout_data()
{
    QTest::addColumn<int>("decision");
    QTest::addColumn<bool>("imported");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("replace") << int(CopyDecision::Replace) << true << QByteArray("new");
    QTest::newRow("keep both") << int(CopyDecision::KeepBoth) << true << QByteArray("old");
    QTest::newRow("skip") << int(CopyDecision::Skip) << false << QByteArray("old");
    QTest::newRow("cancel") << int(CopyDecision::Cancel) << false << QByteArray("old");
}

void FileImportTest::sourceRemovedWhileAsked_isReported()
{
    const QString source = m_files->outside(QStringLiteral("forces.csv"), "new");
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Copy File"), [&](QMessageBox& box) {
        QFile::remove(source);
        box.button(QMessageBox::Yes)->click();
    });
    const ImportOutcome outcome = run({source});
    QVERIFY(modals.allMet());
    QCOMPARE(outcome.problems.size(), std::size_t(1));
    QVERIFY(outcome.problems.front().text().contains(QStringLiteral("missing now")));
    QVERIFY(isUnchanged());
}

void FileImportTest::aTakenNameIsAskedAbout()
{
    if (!Testing::PlatformCopies::askByOurDialog())
        QSKIP("the system asks about names that are taken, by windows of its own");
    QFETCH(int, decision);
    QFETCH(bool, imported);
    const QString taken = Testing::writeFile(m_files->path(QStringLiteral("forces.csv")), "old");
    m_entries = m_files->entries();
    const QString source = m_files->outside(QStringLiteral("forces.csv"), "new");
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Copy File"), QMessageBox::Yes);
    modals.expectDialog<CopyCollisionDialog>(
        QStringLiteral("collision"), [decision](CopyCollisionDialog& dialog) {
            dialog.button(static_cast<CopyDecision>(decision))->click();
        });
    const ImportOutcome outcome = run({source});
    QVERIFY(modals.allMet());
    QVERIFY(outcome.problems.empty());
    QTEST(Testing::readFile(taken), "content");
    QCOMPARE(Testing::readFile(source), QByteArray("new"));
    if (imported)
        QCOMPARE(Testing::readFile(m_files->design().files.back().file), QByteArray("new"));
    else
        QVERIFY(isUnchanged());
}

void FileImportTest::whatIsReplacedIsReferredToOnce()
{
    if (!Testing::PlatformCopies::askByOurDialog())
        QSKIP("the system asks about names that are taken, by windows of its own");
    const QString source = m_files->outside(QStringLiteral("steel.json"), "{\"new\": 1}");
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Copy File"), QMessageBox::Yes);
    modals.expectDialog<CopyCollisionDialog>(
        QStringLiteral("collision"),
        [](CopyCollisionDialog& dialog) { dialog.button(CopyDecision::Replace)->click(); });
    const ImportOutcome outcome = run({source});
    QCOMPARE(outcome.files, QStringList{m_files->path(QStringLiteral("steel.json"))});
    QVERIFY(isUnchanged());
    QCOMPARE(m_files->session.findObject(objectId(1), outcome.files.first()), objectId(41));
}

void FileImportTest::filesInTheDesignsFolderAreUsedWhereTheyLie()
{
    const QStringList files{
        Testing::writeFile(m_files->path(QStringLiteral("beside.csv")), "1"),
        Testing::writeFile(m_files->path(QStringLiteral("results/deep/forces.csv")), "2")};
    ExpectedModals modals;
    QCOMPARE(run(files).files, files);
    QCOMPARE(
        m_files->designPaths().mid(2),
        QStringList({QStringLiteral("beside.csv"), QStringLiteral("results/deep/forces.csv")}));
}

void FileImportTest::aFileThatIsReferredToIsNotAddedTwice()
{
    const QString file = m_files->path(QStringLiteral("geometry/../geometry/die.stl"));
    const QString fresh = Testing::writeFile(m_files->path(QStringLiteral("new.csv")), "1");
    ExpectedModals modals;
    QVERIFY(run({file}).problems.empty());
    QVERIFY(!m_files->session.isModified());
    QCOMPARE(m_files->session.findObject(objectId(1), file), objectId(10));
    QVERIFY(run({fresh, fresh}).problems.empty());
    QCOMPARE(m_files->designPaths().size(), 3);
}

void FileImportTest::aDesignIsOpenedWithItsNewReference()
{
    const QString inner = Testing::writeFile(
        m_files->path(QStringLiteral("inner/inner.dsg")),
        Testing::toText(Testing::designWithFiles(100, QStringLiteral("Inner"), {})));
    ExpectedModals modals;
    QVERIFY(run({inner}).problems.empty());
    QCOMPARE(m_files->session.designs().size(), std::size_t(2));
    QCOMPARE(m_files->session.findDesign(objectId(1))->files.back().design, objectId(100));
}

void FileImportTest::oneFileThatCannotBeImportedKeepsAllOut_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << QStringLiteral("missing.stl");
    QTest::newRow("a folder") << QStringLiteral("sub");
    QTest::newRow("backslash") << QStringLiteral("a\\b.csv");
    QTest::newRow("drive") << QStringLiteral("C:b.csv");
}

void FileImportTest::oneFileThatCannotBeImportedKeepsAllOut()
{
    QFETCH(QString, name);
    if (name.endsWith(QLatin1String("b.csv")) && !Testing::mayBeFileName(name))
        QSKIP("no file can have such a name on this platform");
    const QString good = m_files->outsideMesh(QStringLiteral("sub/good.stl"));
    const QString bad = m_files->elsewhere.filePath(name);
    if (name.endsWith(QLatin1String("b.csv")))
        m_files->outside(name, "1");
    ExpectedModals modals;
    const ImportOutcome outcome = run({good, bad});
    QCOMPARE(outcome.problems.size(), std::size_t(1));
    QCOMPARE(outcome.problems.front().file, bad);
    QVERIFY(!outcome.problems.front().reason.isEmpty());
    QVERIFY(isUnchanged());
}

void FileImportTest::theDesignItselfIsRefused()
{
    ExpectedModals modals;
    const ImportOutcome outcome = run({m_files->designFile()});
    QCOMPARE(outcome.problems.size(), std::size_t(1));
    QCOMPARE(outcome.problems.front().reason, QStringLiteral("is the design itself"));
    QVERIFY(isUnchanged());
}

void FileImportTest::aLinkThatLeadsOutIsRefused()
{
    const QString target = m_files->outside(QStringLiteral("forces.csv"), "1");
    const QString link = m_files->path(QStringLiteral("link.csv"));
    if (!Testing::makeLink(target, link))
        QSKIP("programs may not make links on this platform");
    m_entries = m_files->entries();
    ExpectedModals modals;
    const ImportOutcome outcome = run({link});
    QCOMPARE(outcome.problems.size(), std::size_t(1));
    QCOMPARE(outcome.problems.front().file, link);
    QVERIFY(isUnchanged());
}

void FileImportTest::aDesignWhoseFileIsGoneIsNotImportedInto()
{
    const QString source = m_files->outsideMesh(QStringLiteral("door.stl"));
    QVERIFY(QFile::remove(m_files->designFile()));
    m_entries = m_files->entries();
    ExpectedModals modals;
    const ImportOutcome outcome = run({source});
    QCOMPARE(outcome.problems.size(), std::size_t(1));
    QCOMPARE(outcome.problems.front().file, m_files->designFile());
    QVERIFY(isUnchanged());
}

void FileImportTest::withoutDesignThereIsNoImport()
{
    const QString source = m_files->outsideMesh(QStringLiteral("door.stl"));
    m_files->session.close();
    ExpectedModals modals;
    QCOMPARE(run({source}).problems.size(), std::size_t(1));
    QCOMPARE(m_files->entries(), m_entries);
}

void FileImportTest::theLibrarySeesTheDesign()
{
    const SessionDesign design(m_files->session, objectId(1));
    QCOMPARE(design.getFileName().toQString(), m_files->designFile());
    QVERIFY(!design.isNew());
    QVERIFY(!design.hasSimulationResults());
    QCOMPARE(design.getModificationCount(0), 0);
    const QString table = Testing::writeFile(m_files->path(QStringLiteral("forces.csv")), "1");
    QVERIFY(m_files->session.addFiles(objectId(1), {table}).empty());
    QVERIFY(design.hasSimulationResults());
    QCOMPARE(design.getModificationCount(0), 1);
    m_files->session.close();
    QVERIFY(design.isNew());
    QVERIFY(design.getFileName().isEmpty());
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::FileImportTest;
ZORVANE_TEST(FileImportTest)
#include "FileImportTest.moc"
