#include "Workbench/Import/FileExport.h"
#include "Files/CopyCollisionDialog.h"
#include "Tests/Support/ExpectedModals.h"
#include "Tests/Support/PlatformCopies.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Import/ImportFixture.h"

#include <QtWidgets/QPushButton>

#include <memory>

namespace Zorvane::Workbench {

using Testing::ExpectedModals;
using Testing::objectId;

class FileExportTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_files = std::make_unique<Testing::ImportFixture>(); }

    void findsTheFilesOfAnObject_data();
    void findsTheFilesOfAnObject();
    void findsTheFileOfALoosePart();
    void copiesTheFiles();
    void aTakenNameIsAskedAbout_data();
    void aTakenNameIsAskedAbout();
    void aMissingFileKeepsAllFromIt();
    void theFilesOwnFolderIsRefused();
    void whatIsNoFolderIsRefused();

private:
    QString target(const char* name = "") const
    {
        return QDir::cleanPath(m_files->elsewhere.filePath(QString::fromUtf8(name)));
    }

    Testing::PlatformCopies m_copies;
    std::unique_ptr<Testing::ImportFixture> m_files;
};

void FileExportTest::findsTheFilesOfAnObject_data()
{
    QTest::addColumn<int>("object");
    QTest::addColumn<QStringList>("files");
    const QStringList die{QStringLiteral("geometry/die.stl")};
    const QStringList steel{QStringLiteral("steel.json")};
    QTest::newRow("part") << 10 << die;
    QTest::newRow("blank") << 2 << die;
    QTest::newRow("tool") << 21 << die;
    QTest::newRow("tool without mesh") << 22 << QStringList();
    QTest::newRow("operation: its tools") << 20 << die;
    QTest::newRow("material") << 30 << steel;
    QTest::newRow("mesh file") << 40 << die;
    QTest::newRow("other file") << 41 << steel;
    QTest::newRow("design") << 1 << QStringList();
    QTest::newRow("nothing") << 999 << QStringList();
}

void FileExportTest::findsTheFilesOfAnObject()
{
    QFETCH(int, object);
    QFETCH(QStringList, files);
    for (QString& file : files)
        file = m_files->path(file);
    QCOMPARE(FileExport::filesOf(m_files->session, objectId(object)), files);
}

void FileExportTest::findsTheFileOfALoosePart()
{
    const QString file = m_files->outsideMesh(QStringLiteral("door.stl"));
    m_files->session.open({file});
    QCOMPARE(FileExport::filesOf(m_files->session, m_files->session.looseParts().front().id),
             QStringList{file});
}

void FileExportTest::copiesTheFiles()
{
    const QStringList files{m_files->path(QStringLiteral("geometry/die.stl")),
                            m_files->path(QStringLiteral("steel.json"))};
    ExpectedModals modals;
    const ExportOutcome outcome = FileExport::run(nullptr, files, target());
    QVERIFY(outcome.problems.empty());
    QCOMPARE(outcome.copies.size(), 2);
    QCOMPARE(QDir::fromNativeSeparators(outcome.copies.at(0)), target("die.stl"));
    QCOMPARE(QDir::fromNativeSeparators(outcome.copies.at(1)), target("steel.json"));
    QCOMPARE(Testing::readFile(target("die.stl")), Testing::readFile(files.first()));
    QCOMPARE(Testing::readFile(target("steel.json")), QByteArray("{}"));
    QVERIFY(!m_files->session.isModified());
}

void FileExportTest::aTakenNameIsAskedAbout_data()
{
    QTest::addColumn<int>("decision");
    QTest::addColumn<int>("copies");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("replace") << int(CopyDecision::Replace) << 1 << QByteArray("{}");
    QTest::newRow("keep both") << int(CopyDecision::KeepBoth) << 1 << QByteArray("old");
    QTest::newRow("skip") << int(CopyDecision::Skip) << 0 << QByteArray("old");
    QTest::newRow("cancel") << int(CopyDecision::Cancel) << 0 << QByteArray("old");
}

void FileExportTest::aTakenNameIsAskedAbout()
{
    if (!Testing::PlatformCopies::askByOurDialog())
        QSKIP("the system asks about names that are taken, by windows of its own");
    QFETCH(int, decision);
    m_files->outside(QStringLiteral("steel.json"), "old");
    ExpectedModals modals;
    modals.expectDialog<CopyCollisionDialog>(
        QStringLiteral("collision"), [decision](CopyCollisionDialog& dialog) {
            dialog.button(static_cast<CopyDecision>(decision))->click();
        });
    const ExportOutcome outcome =
        FileExport::run(nullptr, {m_files->path(QStringLiteral("steel.json"))}, target());
    QVERIFY(modals.allMet());
    QVERIFY(outcome.problems.empty());
    QTEST(int(outcome.copies.size()), "copies");
    QTEST(Testing::readFile(target("steel.json")), "content");
}

void FileExportTest::aMissingFileKeepsAllFromIt()
{
    const QString missing = m_files->path(QStringLiteral("geometry/die.stl"));
    QVERIFY(QFile::remove(missing));
    ExpectedModals modals;
    const ExportOutcome outcome =
        FileExport::run(nullptr, {m_files->path(QStringLiteral("steel.json")), missing}, target());
    QCOMPARE(outcome.problems, Problems({{missing, {}, QStringLiteral("is missing")}}));
    QVERIFY(outcome.copies.isEmpty());
    QVERIFY(QDir(target()).isEmpty());
}

void FileExportTest::theFilesOwnFolderIsRefused()
{
    const QString file = m_files->path(QStringLiteral("steel.json"));
    const QStringList before = m_files->entries();
    ExpectedModals modals;
    const ExportOutcome outcome = FileExport::run(nullptr, {file}, m_files->folder.path());
    QCOMPARE(outcome.problems,
             Problems({{file, {}, QStringLiteral("lies in that folder already")}}));
    QCOMPARE(m_files->entries(), before);
}

void FileExportTest::whatIsNoFolderIsRefused()
{
    ExpectedModals modals;
    const QString nowhere = target("nowhere");
    const ExportOutcome outcome =
        FileExport::run(nullptr, {m_files->path(QStringLiteral("steel.json"))}, nowhere);
    QCOMPARE(outcome.problems, Problems({{nowhere, {}, QStringLiteral("is not a folder")}}));
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::FileExportTest;
ZORVANE_TEST(FileExportTest)
#include "FileExportTest.moc"
