#include "Workbench/Design/FileAdditions.h"
#include "Tests/Support/PlatformFacts.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Design/SessionFolder.h"
#include "Workbench/Design/DesignSession.h"

#include <QtTest/QSignalSpy>

using namespace Zorvane;
using namespace Zorvane::Testing;
using namespace Zorvane::Workbench;

class FileAdditionsTest : public TestCase, private SessionFolder
{
    Q_OBJECT

private Q_SLOTS:
    void init() { renew(); }

    void kindsAreToldByEndings_data();
    void kindsAreToldByEndings();
    void namesComeFromFiles_data();
    void namesComeFromFiles();
    void addsFilesAndSaves();
    void addsAllFilesOrNone();
    void addedObjectsMayBeRenamed();
    void whatIsAddedAndTakenOutLeavesNoChange();
    void keepsAddedFilesOnConflict();
};

void FileAdditionsTest::kindsAreToldByEndings_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("kind");
    QTest::newRow("stl") << QStringLiteral("a.STL") << int(FileKind::Mesh);
    QTest::newRow("obj") << QStringLiteral("a.obj") << int(FileKind::Mesh);
    QTest::newRow("ply") << QStringLiteral("a.ply") << int(FileKind::Mesh);
    QTest::newRow("mat") << QStringLiteral("a.mat") << int(FileKind::Material);
    QTest::newRow("mtb") << QStringLiteral("a.MTB") << int(FileKind::Material);
    QTest::newRow("csv") << QStringLiteral("a.csv") << int(FileKind::Result);
    QTest::newRow("dsg") << QStringLiteral("a.Dsg") << int(FileKind::Design);
    QTest::newRow("txt") << QStringLiteral("a.txt") << int(FileKind::Document);
    QTest::newRow("any other") << QStringLiteral("a.step") << int(FileKind::Other);
    QTest::newRow("none") << QStringLiteral("csv") << int(FileKind::Other);
}

void FileAdditionsTest::kindsAreToldByEndings()
{
    QFETCH(QString, file);
    QTEST(int(FileAdditions::kindOf(file)), "kind");
}

void FileAdditionsTest::namesComeFromFiles_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << QStringLiteral("door.csv") << QStringLiteral("door");
    QTest::newRow("several dots") << QStringLiteral("door.v2.csv") << QStringLiteral("door.v2");
    QTest::newRow("ending alone") << QStringLiteral(".csv") << QStringLiteral(".csv");
    QTest::newRow("two lines") << QStringLiteral("a\nb.csv") << QStringLiteral("a b");
    QTest::newRow("blanks") << QStringLiteral("  .csv") << QStringLiteral("File");
}

void FileAdditionsTest::namesComeFromFiles()
{
    QFETCH(QString, file);
    if (!mayBeFileName(file))
        QSKIP("no file can have such a name on this platform");
    openSmallDesign();
    const QString added = writeFile(m_folder->filePath(file), "1");
    QVERIFY(m_session->addFiles(id(1), {added}).empty());
    QTEST(m_session->name(m_session->findObject(id(1), added)), "name");
}

void FileAdditionsTest::addsFilesAndSaves()
{
    const QString file = openSmallDesign();
    const QString mesh = writeFile(path("geometry/new.stl"), "solid");
    const QString table = writeFile(path("forces.csv"), "1");
    const QSignalSpy changed(m_session.get(), &DesignSession::changed);
    QVERIFY(m_session->addFiles(id(1), {mesh, table}).empty());
    QCOMPARE(changed.count(), 1);
    const Design& design = m_session->designs().at(0);
    QCOMPARE(design.files.size(), std::size_t(4));
    QCOMPARE(design.files.at(2).path, QStringLiteral("geometry/new.stl"));
    QCOMPARE(design.files.at(3).kind, FileKind::Result);
    QCOMPARE(design.parts.back().geometry, design.files.at(2).id);
    QVERIFY(m_session->isModified(design.files.at(3).id));
    QVERIFY(!m_session->isModified(id(40)));
    QCOMPARE(readFile(file), toText(smallDesign()));
    QVERIFY(m_session->save().empty());
    QVERIFY(!m_session->isModified());
    DesignSession other;
    other.open({file});
    QCOMPARE(other.designs().at(0).files.at(3).id, design.files.at(3).id);
    QCOMPARE(other.findObject(id(1), mesh), design.parts.back().id);
    QCOMPARE(other.findObject(id(1), table), design.files.at(3).id);
    QVERIFY(other.findObject(id(1), path("nowhere.csv")).isNull());
}

void FileAdditionsTest::addsAllFilesOrNone()
{
    openSmallDesign();
    const QString table = writeFile(path("forces.csv"), "1");
    const QTemporaryDir elsewhere;
    const QString outside = writeFile(elsewhere.filePath(QStringLiteral("a.csv")), "1");
    const QSignalSpy changed(m_session.get(), &DesignSession::changed);
    const Problems problems = m_session->addFiles(id(1), {table, outside, path("missing.csv")});
    QCOMPARE(problems.size(), std::size_t(2));
    QCOMPARE(problems.at(0).file, outside);
    QCOMPARE(problems.at(1).file, path("missing.csv"));
    QCOMPARE(changed.count(), 0);
    QVERIFY(!m_session->isModified());
    QCOMPARE(m_session->designs().at(0).files.size(), std::size_t(2));
    QCOMPARE(m_session->addFiles(id(99), {table}).size(), std::size_t(1));
}

void FileAdditionsTest::addedObjectsMayBeRenamed()
{
    const QString file = openSmallDesign();
    const QString table = writeFile(path("forces.csv"), "1");
    m_session->addFiles(id(1), {table});
    const GUIdentifier added = m_session->findObject(id(1), table);
    QCOMPARE(m_session->rename(added, QStringLiteral("Other")), QString());
    QCOMPARE(m_session->rename(added, QStringLiteral("forces")), QString());
    QVERIFY(m_session->isModified(added));
    m_session->revert(id(1));
    QVERIFY(!m_session->isModified());
    QVERIFY(m_session->findObject(id(1), table).isNull());
    QCOMPARE(readFile(file), toText(smallDesign()));
}

void FileAdditionsTest::whatIsAddedAndTakenOutLeavesNoChange()
{
    openSmallDesign();
    const QString mesh = writeFile(path("rib.stl"), "solid");
    QVERIFY(m_session->addFiles(id(1), {mesh}).empty());
    const GUIdentifier part = m_session->findObject(id(1), mesh);
    const GUIdentifier file = m_session->findDesign(id(1))->files.back().id;
    QCOMPARE(m_session->rename(part, QStringLiteral("Other")), QString());
    QCOMPARE(m_session->setQuantity(part, Quantity::Thickness, 3), QString());
    const TakenObjects taken = m_session->take(id(1), {part});
    QVERIFY2(!m_session->areQuantitiesModified(id(1)), "nothing has the value any more");
    const TakenObjects takenFile = m_session->take(id(1), {file});
    QVERIFY(!m_session->isModified());
    // What comes back is as much of a change as it was.
    QVERIFY(m_session->putBack(takenFile));
    QVERIFY(m_session->putBack(taken));
    QVERIFY(m_session->areQuantitiesModified(id(1)));
    QCOMPARE(m_session->setQuantity(part, Quantity::Thickness, noValue), QString());
    QVERIFY(!m_session->areQuantitiesModified(id(1)));
    QCOMPARE(m_session->rename(part, QStringLiteral("rib")), QString());
    m_session->take(id(1), {part, file});
    QVERIFY(!m_session->isModified());
}

void FileAdditionsTest::keepsAddedFilesOnConflict()
{
    const QString file = openSmallDesign();
    const QString table = writeFile(path("forces.csv"), "1");
    m_session->addFiles(id(1), {table});
    QJsonObject theirs = smallDesign();
    theirs[QLatin1String("name")] = QStringLiteral("Theirs");
    replaceFile(file, toText(theirs));
    QTRY_VERIFY(m_session->hasConflict(id(1)));
    QVERIFY(!m_session->findObject(id(1), table).isNull());
    QCOMPARE(m_session->save().size(), std::size_t(1));
    QVERIFY(readFile(file).contains("Theirs"));
}

ZORVANE_TEST(FileAdditionsTest)
#include "FileAdditionsTest.moc"
