#include "Workbench/Design/DesignSession.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Design/SessionFolder.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <QtTest/QSignalSpy>

#include <set>
#include <vector>

using namespace Zorvane;
using namespace Zorvane::Testing;
using namespace Zorvane::Workbench;

namespace {

QByteArray namedDesign(const QString& name)
{
    QJsonObject design = smallDesign();
    design.insert(QStringLiteral("name"), name);
    return toText(design);
}

QString allProblems(const DesignSession& session)
{
    QStringList texts;
    for (const Problem& problem : session.problems())
        texts.append(problem.text());
    return texts.join(QLatin1Char('\n'));
}

} // namespace

class DesignSessionTest : public TestCase, private SessionFolder
{
    Q_OBJECT

private Q_SLOTS:
    void init() { renew(); }

    void opensDesignFile();
    void opensFolderWithDesigns();
    void opensMeshFile();
    void opensFolderOfMeshFilesByName();
    void opensManyMeshFilesWithStableIds();
    void refusesPath_data();
    void refusesPath();
    void badPathDoesNotKeepOthersFromOpening();
    void opensNothingTwice();
    void closeForgetsAll();
    void closesOneOfTwoDesigns();
    void closesWhatOnlyTheClosedOneRefersTo();
    void replacingIsToldOnce();

    void opensDesignsReferredTo();
    void opensDesignReferredToTwiceOnce();
    void findsCircle_data();
    void findsCircle();
    void stopsAtEndlessChain();
    void twoDesignsWithTheSameIdentifiers();
    void neverLooksOutside();

    void renamesAndSaves();
    void refusesName_data();
    void refusesName();
    void renamingBackIsNoModification();
    void loosePartsAreNamedByTheirFiles();
    void renamesInDesignReferredTo();
    void failedSaveStaysModified();

    void followsRewritingInPlace();
    void followsReplacementByRename();
    void keepsLastGoodStateWhileBroken();
    void keepsDesignWhoseFileIsGone();
    void opensDesignOnceItIsMended();
    void keepsUnsavedChangesOnConflict();
    void savingRefusesToOverwriteSilently();
    void savingMayOverwrite();
    void revertTakesTheirs();
    void conflictEndsWhenTheFileIsAsItWas();
    void ownSaveIsNoChange();
    void followsFilesReferredTo();
    void followsFolderOfMeshFiles();
    void followsNewReferenceToDesign();
    void keepsModifiedDesignNoLongerReferredTo();

private:
    QString designName() const { return m_session->designs().at(0).name; }
};

void DesignSessionTest::opensDesignFile()
{
    const QSignalSpy changed(m_session.get(), &DesignSession::changed);
    writeFile(path("geometry/die.stl"), "solid");
    openSmallDesign();
    QCOMPARE(changed.count(), 1);
    QVERIFY(m_session->problems().empty());
    QCOMPARE(designName(), QStringLiteral("Small"));
    QCOMPARE(m_session->name(id(21)), QStringLiteral("Die"));
    QVERIFY(m_session->findDesign(id(21))->id == id(1));
    QCOMPARE(m_session->geometryFile(id(21)), path("geometry/die.stl"));
    QCOMPARE(m_session->geometryState(id(21)), FileState::Exists);
    QCOMPARE(m_session->geometryFile(id(22)), QString());
    QCOMPARE(m_session->meshFiles(), QStringList(path("geometry/die.stl")));
    QVERIFY(m_session->findDesign(id(99)) == nullptr);
    QCOMPARE(m_session->name(id(99)), QString());
}

void DesignSessionTest::opensFolderWithDesigns()
{
    writeFile(path("b.dsg"), toText(designWithFiles(100, QStringLiteral("B"), {})));
    writeFile(path("a.dsg"), toText(designWithFiles(200, QStringLiteral("A"), {})));
    writeFile(path("c.stl"), "solid");
    m_session->open({m_folder->path()});
    QCOMPARE(m_session->designs().size(), std::size_t(2));
    QCOMPARE(designName(), QStringLiteral("A"));
    QVERIFY(m_session->looseParts().empty());
}

void DesignSessionTest::opensMeshFile()
{
    const QString file = writeFile(path("Cup.STL"), "solid");
    m_session->open({file});
    const Part& part = m_session->looseParts().at(0);
    QCOMPARE(part.name, QStringLiteral("Cup.STL"));
    QCOMPARE(part.file, file);
    QVERIFY(!part.id.isNull());
    QCOMPARE(m_session->geometryFile(part.id), file);
    QCOMPARE(m_session->name(part.id), part.name);
}

void DesignSessionTest::opensFolderOfMeshFilesByName()
{
    for (const char* name : {"part10.stl", "Part2.obj", "part1.ply", "notes.txt", ".hidden.stl"})
        writeFile(path(name), "x");
    writeFile(path("sub/deep.stl"), "x");
    m_session->open({m_folder->path()});
    QStringList names;
    for (const Part& part : m_session->looseParts())
        names.append(part.name);
    QCOMPARE(names, QStringList({QStringLiteral("part1.ply"), QStringLiteral("Part2.obj"),
                                 QStringLiteral("part10.stl")}));
}

void DesignSessionTest::opensManyMeshFilesWithStableIds()
{
    for (int i = 0; i < 500; ++i)
        writeFile(path(QStringLiteral("p%1.stl").arg(i)), "solid");
    m_session->open({m_folder->path()});
    QCOMPARE(m_session->looseParts().size(), std::size_t(500));
    std::set<GUIdentifier> ids;
    for (const Part& part : m_session->looseParts())
        ids.insert(part.id);
    QCOMPARE(ids.size(), std::size_t(500));
    DesignSession other;
    other.open({path("p7.stl")});
    QVERIFY(other.looseParts().at(0).id == m_session->looseParts().at(7).id);
}

void DesignSessionTest::refusesPath_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* rule, const char* name, const char* reason) {
        QTest::newRow(rule) << QString::fromUtf8(name) << QString::fromUtf8(reason);
    };
    row("not there", "none.stl", "doesn't exist");
    row("another kind of file", "notes.txt", "is neither a design file");
    row("folder with neither", "empty", "holds neither");
    row("design cut in the middle", "cut.dsg", "is no complete JSON");
}

void DesignSessionTest::refusesPath()
{
    QFETCH(QString, name);
    QFETCH(QString, reason);
    writeFile(path("notes.txt"), "x");
    writeFile(path("empty/notes.txt"), "x");
    const QByteArray whole = toText(smallDesign());
    writeFile(path("cut.dsg"), whole.left(whole.size() / 2));
    m_session->open({path(name)});
    QVERIFY(m_session->designs().empty());
    QVERIFY(m_session->looseParts().empty());
    const Problems problems = m_session->problems();
    QCOMPARE(problems.size(), std::size_t(1));
    QCOMPARE(problems.front().file, path(name));
    QVERIFY2(problems.front().reason.contains(reason), qPrintable(problems.front().text()));
    // Asking again doesn't pile up messages.
    m_session->open({path(name)});
    QCOMPARE(m_session->problems().size(), std::size_t(1));
}

void DesignSessionTest::badPathDoesNotKeepOthersFromOpening()
{
    writeFile(path("small.dsg"), toText(smallDesign()));
    writeFile(path("a.stl"), "solid");
    m_session->open({path("none"), path("small.dsg"), QString(), path("a.stl")});
    QCOMPARE(m_session->designs().size(), std::size_t(1));
    QCOMPARE(m_session->looseParts().size(), std::size_t(1));
    QCOMPARE(m_session->problems().size(), std::size_t(2));
}

void DesignSessionTest::opensNothingTwice()
{
    const QString design = writeFile(path("d/small.dsg"), toText(smallDesign()));
    const QString mesh = writeFile(path("m/a.stl"), "solid");
    m_session->open({design, path("d"), design, mesh, path("m"), path("m/../m/a.stl")});
    QCOMPARE(m_session->designs().size(), std::size_t(1));
    QCOMPARE(m_session->looseParts().size(), std::size_t(1));
    QVERIFY(m_session->problems().empty());
}

void DesignSessionTest::closeForgetsAll()
{
    openSmallDesign();
    m_session->open({path("none"), writeFile(path("a.stl"), "solid")});
    m_session->rename(id(21), QStringLiteral("Other"));
    m_session->close();
    QVERIFY(m_session->designs().empty());
    QVERIFY(m_session->looseParts().empty());
    QVERIFY(m_session->problems().empty());
    QVERIFY(!m_session->isModified());
}

void DesignSessionTest::closesOneOfTwoDesigns()
{
    openSmallDesign();
    m_session->open(
        {writeFile(path("other.dsg"), toText(designWithFiles(100, QStringLiteral("Other"), {})))});
    m_session->rename(id(21), QStringLiteral("Upper die"));
    const QSignalSpy changed(m_session.get(), &DesignSession::changed);
    m_session->close(id(1));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(m_session->designs().size(), std::size_t(1));
    QCOMPARE(designName(), QStringLiteral("Other"));
    QVERIFY2(!m_session->isModified(), "its changes are gone with it");
    m_session->close(id(99));
    QCOMPARE(changed.count(), 1);
}

void DesignSessionTest::closesWhatOnlyTheClosedOneRefersTo()
{
    const QString small = openSmallDesign();
    const auto referring = [&](int first, const char* file, const QString& name) {
        const QJsonArray files{fileEntry(first + 1, QStringLiteral("Small"),
                                         QStringLiteral("design"), QStringLiteral("small.dsg"))};
        return writeFile(path(file), toText(designWithFiles(first, name, files)));
    };
    m_session->close();
    m_session->open({referring(100, "door.dsg", QStringLiteral("Door")),
                     referring(200, "roof.dsg", QStringLiteral("Roof"))});
    QCOMPARE(m_session->designs().size(), std::size_t(3));
    QVERIFY(!m_session->canClose(id(1)));
    m_session->close(id(1));
    QCOMPARE(m_session->designs().size(), std::size_t(3));
    m_session->close(id(100));
    QCOMPARE(m_session->designs().size(), std::size_t(2));
    QVERIFY(!m_session->canClose(id(1)));
    m_session->rename(id(21), QStringLiteral("Upper die"));
    m_session->close(id(200));
    QVERIFY2(m_session->canClose(id(1)), "kept, for its changes are nowhere else");
    QVERIFY(m_session->isModified(id(21)));
    m_session->close(id(1));
    QVERIFY(m_session->designs().empty());
    QVERIFY(QFile::exists(small));
}

void DesignSessionTest::replacingIsToldOnce()
{
    openSmallDesign();
    const QString other =
        writeFile(path("other.dsg"), toText(designWithFiles(100, QStringLiteral("Other"), {})));
    std::vector<std::vector<GUIdentifier>> told;
    connect(m_session.get(), &DesignSession::reread, this,
            [&told](const auto& designs) { told.push_back(designs); });
    m_session->replace(id(1), other);
    QCOMPARE(told.size(), std::size_t(1));
    QVERIFY(told.front() == std::vector<GUIdentifier>{id(1)});
    QCOMPARE(designName(), QStringLiteral("Other"));
}

void DesignSessionTest::opensDesignsReferredTo()
{
    const QString kind = QStringLiteral("design");
    writeFile(path("sub/handle.dsg"), toText(designWithFiles(200, QStringLiteral("Handle"), {})));
    writeFile(
        path("door.dsg"),
        toText(designWithFiles(
            100, QStringLiteral("Door"),
            {fileEntry(101, QStringLiteral("The handle"), kind, QStringLiteral("sub/handle.dsg")),
             fileEntry(102, QStringLiteral("Not there"), kind, QStringLiteral("sub/none.dsg"))})));
    m_session->open({path("door.dsg")});
    QCOMPARE(m_session->designs().size(), std::size_t(2));
    QCOMPARE(m_session->designs().at(1).name, QStringLiteral("Handle"));
    QVERIFY(m_session->designs().at(0).files.at(0).design == id(200));
    QVERIFY(m_session->designs().at(0).files.at(1).design.isNull());
    QVERIFY(m_session->problems().empty());
}

void DesignSessionTest::opensDesignReferredToTwiceOnce()
{
    const QString kind = QStringLiteral("design");
    const auto withReference = [&](int number, const char* to) {
        const QString target = QString::fromUtf8(to);
        return toText(designWithFiles(number, QStringLiteral("D"),
                                      {fileEntry(number + 1, target, kind, target)}));
    };
    writeFile(path("b.dsg"), withReference(200, "d.dsg"));
    writeFile(path("c.dsg"), withReference(300, "d.dsg"));
    writeFile(path("d.dsg"), toText(designWithFiles(400, QStringLiteral("D"), {})));
    m_session->open({path("b.dsg"), path("c.dsg")});
    QCOMPARE(m_session->designs().size(), std::size_t(3));
    QVERIFY(m_session->findDesign(id(201))->files.at(0).design == id(400));
    QVERIFY(m_session->findDesign(id(301))->files.at(0).design == id(400));
    QVERIFY2(m_session->problems().empty(), qPrintable(allProblems(*m_session)));
}

void DesignSessionTest::findsCircle_data()
{
    QTest::addColumn<QStringList>("names");
    const auto names = [](int count) {
        QStringList list;
        for (int i = 0; i < count; ++i)
            list.append(QStringLiteral("d%1.dsg").arg(i));
        return list;
    };
    QTest::newRow("with itself") << names(1);
    QTest::newRow("of two") << names(2);
    QTest::newRow("of five") << names(5);
}

void DesignSessionTest::findsCircle()
{
    QFETCH(QStringList, names);
    for (int i = 0; i < names.size(); ++i) {
        const QString next = names.at((i + 1) % names.size());
        const QJsonArray files{
            fileEntry(100 * i + 101, QStringLiteral("Next"), QStringLiteral("design"), next)};
        writeFile(path(names.at(i)), toText(designWithFiles(100 * i + 100, names.at(i), files)));
    }
    m_session->open({path(names.front())});
    QCOMPARE(int(m_session->designs().size()), names.size());
    const Problems problems = m_session->problems();
    QCOMPARE(problems.size(), std::size_t(1));
    QCOMPARE(problems.front().file, path(names.back()));
    QCOMPARE(problems.front().where, QStringLiteral("reference \"Next\""));
    const QStringList circle = names + QStringList(names.front());
    QCOMPARE(problems.front().reason, QStringLiteral("closes a circle of designs: ") +
                                          circle.join(QStringLiteral(" \u2192 ")));
}

void DesignSessionTest::stopsAtEndlessChain()
{
    constexpr int count = 150;
    for (int i = 0; i < count; ++i) {
        const QString next = QStringLiteral("d%1.dsg").arg(i + 1);
        const QJsonArray files{fileEntry(1000 + i, next, QStringLiteral("design"), next)};
        writeFile(path(QStringLiteral("d%1.dsg").arg(i)),
                  toText(designWithFiles(2000 + i, QStringLiteral("D"), files)));
    }
    m_session->open({path("d0.dsg")});
    QCOMPARE(int(m_session->designs().size()), DesignStore::deepestReference);
    QCOMPARE(m_session->problems().size(), std::size_t(1));
}

void DesignSessionTest::twoDesignsWithTheSameIdentifiers()
{
    writeFile(path("a/small.dsg"), toText(smallDesign()));
    QJsonObject copy = smallDesign();
    copy.insert(QStringLiteral("id"), uuidText(100));
    writeFile(path("b/copy.dsg"), toText(copy));
    writeFile(path("c/small.dsg"), toText(smallDesign()));
    m_session->open({path("a"), path("b"), path("c")});
    QCOMPARE(m_session->designs().size(), std::size_t(2));
    QVERIFY(m_session->designs().at(1).parts.empty());
    QVERIFY(allProblems(*m_session).contains(QStringLiteral("small.dsg, which is open")));
}

void DesignSessionTest::neverLooksOutside()
{
    writeFile(path("other.dsg"), toText(designWithFiles(200, QStringLiteral("Other"), {})));
    const QJsonArray files{fileEntry(101, QStringLiteral("Up"), QStringLiteral("design"),
                                     QStringLiteral("../other.dsg"))};
    writeFile(path("d/door.dsg"), toText(designWithFiles(100, QStringLiteral("Door"), files)));
    m_session->open({path("d")});
    QCOMPARE(m_session->designs().size(), std::size_t(1));
    QCOMPARE(m_session->designs().at(0).files.at(0).state, FileState::Outside);
    QCOMPARE(m_session->problems().front().where, QStringLiteral("files[0].path"));
}

void DesignSessionTest::renamesAndSaves()
{
    const QString file = openSmallDesign();
    const QSignalSpy changed(m_session.get(), &DesignSession::changed);
    QVERIFY(m_session->canRename(id(21)));
    QCOMPARE(m_session->rename(id(21), QStringLiteral("  Upper die ")), QString());
    QCOMPARE(changed.count(), 1);
    QCOMPARE(m_session->name(id(21)), QStringLiteral("Upper die"));
    QVERIFY(m_session->isModified());
    QVERIFY(m_session->isModified(id(21)));
    QVERIFY(!m_session->isModified(id(1)));
    QCOMPARE(readFile(file), toText(smallDesign()));
    QVERIFY(m_session->save().empty());
    QVERIFY(!m_session->isModified());
    DesignSession other;
    other.open({file});
    QCOMPARE(other.name(id(21)), QStringLiteral("Upper die"));
    // All the rest is as it was.
    other.rename(id(21), QStringLiteral("Die"));
    QVERIFY(other.save().empty());
    QCOMPARE(readFile(file), toText(smallDesign()));
}

void DesignSessionTest::refusesName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << QString();
    QTest::newRow("blanks") << QStringLiteral(" \t ");
    QTest::newRow("two lines") << QStringLiteral("a\nb");
    QTest::newRow("control character") << QStringLiteral("a\u0007b");
    QTest::newRow("too long") << QString(256, QLatin1Char('x'));
}

void DesignSessionTest::refusesName()
{
    QFETCH(QString, name);
    openSmallDesign();
    const QSignalSpy changed(m_session.get(), &DesignSession::changed);
    QVERIFY(!m_session->rename(id(21), name).isEmpty());
    QCOMPARE(m_session->name(id(21)), QStringLiteral("Die"));
    QVERIFY(!m_session->isModified());
    QCOMPARE(changed.count(), 0);
    QCOMPARE(m_session->rename(id(21), QString(255, QLatin1Char('x'))), QString());
    QVERIFY(!m_session->rename(id(99), QStringLiteral("Nobody")).isEmpty());
}

void DesignSessionTest::renamingBackIsNoModification()
{
    openSmallDesign();
    const QSignalSpy changed(m_session.get(), &DesignSession::changed);
    m_session->rename(id(21), QStringLiteral("Die"));
    QCOMPARE(changed.count(), 0);
    m_session->rename(id(21), QStringLiteral("Other"));
    m_session->rename(id(21), QStringLiteral("Third"));
    m_session->rename(id(21), QStringLiteral("Die"));
    QVERIFY(!m_session->isModified());
}

void DesignSessionTest::loosePartsAreNamedByTheirFiles()
{
    m_session->open({writeFile(path("a.stl"), "solid")});
    const GUIdentifier part = m_session->looseParts().at(0).id;
    QVERIFY(!m_session->canRename(part));
    QVERIFY(!m_session->rename(part, QStringLiteral("B")).isEmpty());
    QVERIFY(!m_session->isModified());
}

void DesignSessionTest::renamesInDesignReferredTo()
{
    writeFile(path("small.dsg"), toText(smallDesign()));
    const QJsonArray files{fileEntry(101, QStringLiteral("Small"), QStringLiteral("design"),
                                     QStringLiteral("small.dsg"))};
    const QByteArray door = toText(designWithFiles(100, QStringLiteral("Door"), files));
    writeFile(path("door.dsg"), door);
    m_session->open({path("door.dsg")});
    m_session->rename(id(21), QStringLiteral("Other"));
    QVERIFY(m_session->save().empty());
    QCOMPARE(readFile(path("door.dsg")), door);
    QVERIFY(readFile(path("small.dsg")).contains("Other"));
}

void DesignSessionTest::failedSaveStaysModified()
{
    const QString file = writeFile(path("d/small.dsg"), toText(smallDesign()));
    m_session->open({file});
    m_session->rename(id(21), QStringLiteral("Other"));
    // A folder under the file's name is in the way on every platform.
    QVERIFY(QFile::remove(file));
    QVERIFY(QDir().mkdir(file));
    const Problems problems = m_session->save();
    QCOMPARE(problems.size(), std::size_t(1));
    QCOMPARE(problems.front().file, file);
    QVERIFY(m_session->isModified(id(21)));
    QCOMPARE(m_session->name(id(21)), QStringLiteral("Other"));
    QVERIFY(QDir().rmdir(file));
    QVERIFY(m_session->save().empty());
    QVERIFY(readFile(file).contains("Other"));
}

void DesignSessionTest::followsRewritingInPlace()
{
    const QString file = openSmallDesign();
    for (const char* name : {"Second", "Third"}) {
        writeFile(file, namedDesign(QString::fromUtf8(name)));
        QTRY_COMPARE(designName(), QString::fromUtf8(name));
    }
}

void DesignSessionTest::followsReplacementByRename()
{
    const QString file = openSmallDesign();
    for (const char* name : {"Second", "Third", "Fourth"}) {
        replaceFile(file, namedDesign(QString::fromUtf8(name)));
        QTRY_COMPARE(designName(), QString::fromUtf8(name));
    }
}

void DesignSessionTest::keepsLastGoodStateWhileBroken()
{
    const QString file = openSmallDesign();
    const QByteArray whole = namedDesign(QStringLiteral("Second"));
    writeFile(file, whole.left(whole.size() - 20));
    QTRY_VERIFY(!m_session->problems().empty());
    QCOMPARE(designName(), QStringLiteral("Small"));
    QCOMPARE(m_session->name(id(21)), QStringLiteral("Die"));
    QVERIFY(allProblems(*m_session).contains(QStringLiteral("is no complete JSON")));
    QVERIFY(allProblems(*m_session).contains(QStringLiteral("as it was read last")));
    writeFile(file, whole);
    QTRY_COMPARE(designName(), QStringLiteral("Second"));
    QVERIFY(m_session->problems().empty());
}

void DesignSessionTest::keepsDesignWhoseFileIsGone()
{
    const QString file = openSmallDesign();
    QVERIFY(QFile::remove(file));
    QTRY_VERIFY(allProblems(*m_session).contains(QStringLiteral("doesn't exist")));
    QCOMPARE(designName(), QStringLiteral("Small"));
    writeFile(file, toText(smallDesign()));
    QTRY_VERIFY(m_session->problems().empty());
}

void DesignSessionTest::opensDesignOnceItIsMended()
{
    const QString file = writeFile(path("small.dsg"), "{");
    m_session->open({file});
    QVERIFY(m_session->designs().empty());
    QCOMPARE(m_session->problems().size(), std::size_t(1));
    writeFile(file, toText(smallDesign()));
    QTRY_COMPARE(m_session->designs().size(), std::size_t(1));
    QVERIFY(m_session->problems().empty());
}

void DesignSessionTest::keepsUnsavedChangesOnConflict()
{
    const QString file = openSmallDesign();
    std::vector<GUIdentifier> conflicts;
    connect(m_session.get(), &DesignSession::conflictFound, this,
            [&conflicts](const GUIdentifier& design) { conflicts.push_back(design); });
    m_session->rename(id(21), QStringLiteral("Ours"));
    writeFile(file, namedDesign(QStringLiteral("Theirs")));
    QTRY_COMPARE(conflicts.size(), std::size_t(1));
    QVERIFY(conflicts.front() == id(1));
    QVERIFY(m_session->hasConflict(id(1)));
    QCOMPARE(m_session->name(id(21)), QStringLiteral("Ours"));
    QCOMPARE(designName(), QStringLiteral("Small"));
    QVERIFY(allProblems(*m_session).contains(QStringLiteral("changed by another program")));
}

void DesignSessionTest::savingRefusesToOverwriteSilently()
{
    const QString file = openSmallDesign();
    m_session->rename(id(21), QStringLiteral("Ours"));
    const QByteArray theirs = namedDesign(QStringLiteral("Theirs"));
    writeFile(file, theirs);
    // At once, before the watch has told.
    QCOMPARE(m_session->save().size(), std::size_t(1));
    QCOMPARE(readFile(file), theirs);
    QVERIFY(m_session->isModified(id(21)));
    QVERIFY(m_session->hasConflict(id(1)));
    QVERIFY(allProblems(*m_session).contains(QStringLiteral("changed by another program")));
}

void DesignSessionTest::savingMayOverwrite()
{
    const QString file = openSmallDesign();
    m_session->rename(id(21), QStringLiteral("Ours"));
    writeFile(file, namedDesign(QStringLiteral("Theirs")));
    QVERIFY(m_session->save(DesignSession::OnConflict::Overwrite).empty());
    QVERIFY(readFile(file).contains("Ours"));
    QVERIFY(!m_session->hasConflict(id(1)));
    QVERIFY(!m_session->isModified());
    QVERIFY(m_session->problems().empty());
}

void DesignSessionTest::revertTakesTheirs()
{
    const QString file = openSmallDesign();
    m_session->rename(id(21), QStringLiteral("Ours"));
    writeFile(file, namedDesign(QStringLiteral("Theirs")));
    m_session->revert(id(1));
    QCOMPARE(designName(), QStringLiteral("Theirs"));
    QCOMPARE(m_session->name(id(21)), QStringLiteral("Die"));
    QVERIFY(!m_session->isModified());
    QVERIFY(!m_session->hasConflict(id(1)));
    // What cannot be read cannot be reverted to.
    m_session->rename(id(21), QStringLiteral("Ours"));
    writeFile(file, "{");
    m_session->revert(id(1));
    QCOMPARE(m_session->name(id(21)), QStringLiteral("Ours"));
    QVERIFY(m_session->isModified());
}

void DesignSessionTest::conflictEndsWhenTheFileIsAsItWas()
{
    const QString file = openSmallDesign();
    m_session->rename(id(21), QStringLiteral("Ours"));
    writeFile(file, namedDesign(QStringLiteral("Theirs")));
    QTRY_VERIFY(m_session->hasConflict(id(1)));
    writeFile(file, toText(smallDesign()));
    QTRY_VERIFY(!m_session->hasConflict(id(1)));
    QCOMPARE(m_session->name(id(21)), QStringLiteral("Ours"));
    QVERIFY(m_session->problems().empty());
}

void DesignSessionTest::ownSaveIsNoChange()
{
    const QString file = openSmallDesign();
    m_session->rename(id(21), QStringLiteral("Ours"));
    QSignalSpy told(m_session.get(), &DesignSession::fileChanged);
    QVERIFY(m_session->save().empty());
    const QSignalSpy changed(m_session.get(), &DesignSession::changed);
    QVERIFY(told.wait(patience));
    QCOMPARE(told.at(0).at(0).toString(), file);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(m_session->name(id(21)), QStringLiteral("Ours"));
}

void DesignSessionTest::followsFilesReferredTo()
{
    openSmallDesign();
    const QString die = path("geometry/die.stl");
    const auto state = [this] { return m_session->geometryState(id(21)); };
    QCOMPARE(state(), FileState::Missing);
    writeFile(die, "solid");
    QTRY_COMPARE(state(), FileState::Exists);
    QSignalSpy told(m_session.get(), &DesignSession::fileChanged);
    replaceFile(die, "solid again");
    QTRY_VERIFY(told.count() > 0);
    QCOMPARE(told.at(0).at(0).toString(), die);
    QVERIFY(QFile::remove(die));
    QTRY_COMPARE(state(), FileState::Missing);
    QVERIFY(QDir(path("geometry")).removeRecursively());
    writeFile(die, "solid");
    QTRY_COMPARE(state(), FileState::Exists);
}

void DesignSessionTest::followsFolderOfMeshFiles()
{
    const QString a = writeFile(path("m/a.stl"), "solid");
    m_session->open({path("m"), writeFile(path("alone.stl"), "solid")});
    QCOMPARE(m_session->looseParts().size(), std::size_t(2));
    writeFile(path("m/b.stl"), "solid");
    QTRY_COMPARE(m_session->looseParts().size(), std::size_t(3));
    QVERIFY(QFile::remove(a));
    QTRY_COMPARE(m_session->looseParts().size(), std::size_t(2));
    // A file opened by name keeps its place.
    QVERIFY(QFile::remove(path("alone.stl")));
    QTRY_COMPARE(m_session->looseParts().at(1).state, FileState::Missing);
}

void DesignSessionTest::followsNewReferenceToDesign()
{
    const QString door = path("door.dsg");
    writeFile(path("small.dsg"), toText(smallDesign()));
    writeFile(door, toText(designWithFiles(100, QStringLiteral("Door"), {})));
    m_session->open({door});
    QCOMPARE(m_session->designs().size(), std::size_t(1));
    const QJsonArray files{fileEntry(101, QStringLiteral("Small"), QStringLiteral("design"),
                                     QStringLiteral("small.dsg"))};
    writeFile(door, toText(designWithFiles(100, QStringLiteral("Door"), files)));
    QTRY_COMPARE(m_session->designs().size(), std::size_t(2));
    writeFile(path("small.dsg"), namedDesign(QStringLiteral("Changed")));
    QTRY_COMPARE(m_session->designs().at(1).name, QStringLiteral("Changed"));
    writeFile(door, toText(designWithFiles(100, QStringLiteral("Door"), {})));
    QTRY_COMPARE(m_session->designs().size(), std::size_t(1));
}

void DesignSessionTest::keepsModifiedDesignNoLongerReferredTo()
{
    const QString door = path("door.dsg");
    writeFile(path("small.dsg"), toText(smallDesign()));
    const QJsonArray files{fileEntry(101, QStringLiteral("Small"), QStringLiteral("design"),
                                     QStringLiteral("small.dsg"))};
    writeFile(door, toText(designWithFiles(100, QStringLiteral("Door"), files)));
    m_session->open({door});
    m_session->rename(id(21), QStringLiteral("Ours"));
    writeFile(door, toText(designWithFiles(100, QStringLiteral("Alone"), {})));
    QTRY_COMPARE(designName(), QStringLiteral("Alone"));
    QCOMPARE(m_session->designs().size(), std::size_t(2));
    QCOMPARE(m_session->name(id(21)), QStringLiteral("Ours"));
    QVERIFY(m_session->save().empty());
    QVERIFY(readFile(path("small.dsg")).contains("Ours"));
}

ZORVANE_TEST(DesignSessionTest)
#include "DesignSessionTest.moc"
