#include "Workbench/Design/FileReferences.h"
#include "Tests/Support/PlatformFacts.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Design/DesignFiles.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

using namespace Zorvane::Testing;
using namespace Zorvane::Workbench;

class FileReferencesTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void pathsAreJudged_data();
    void pathsAreJudged();
    void namesThatTheSystemTakesOtherwise_data();
    void namesThatTheSystemTakesOtherwise();
    void linksAreFollowed();
    void folderMayBeReachedByLink();
    void refreshTellsWhetherAnythingChanged();
};

void FileReferencesTest::pathsAreJudged_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("state");
    const auto row = [](const char* name, const char* path, FileState state) {
        QTest::newRow(name) << QString::fromUtf8(path) << int(state);
    };
    row("beside the design file", "a.stl", FileState::Exists);
    row("in a folder", "geometry/b.stl", FileState::Exists);
    row("with a backslash", "geometry\\b.stl", FileState::Exists);
    row("down and up within", "geometry/../a.stl", FileState::Exists);
    row("with dots", "./geometry/./b.stl", FileState::Exists);
    row("not there", "c.stl", FileState::Missing);
    row("folder not there", "none/c.stl", FileState::Missing);
    row("a folder", "geometry", FileState::Missing);
    row("the design's folder itself", ".", FileState::Missing);
    row("up", "../secret.stl", FileState::Outside);
    row("up with backslashes", "..\\secret.stl", FileState::Outside);
    row("down and too far up", "geometry/../../secret.stl", FileState::Outside);
    row("up and back in by name", "../design/../secret.stl", FileState::Outside);
    row("folder of a similar name", "../design2/a.stl", FileState::Outside);
    row("absolute", "/etc/passwd", FileState::Outside);
    row("on a drive", "C:/a.stl", FileState::Outside);
    row("on a drive, relative", "c:a.stl", FileState::Outside);
    row("on a server", "\\\\server\\share\\a.stl", FileState::Outside);
    QTest::newRow("with a NUL") << QString(QStringLiteral("a.stl") + QChar(QChar::Null))
                                << int(FileState::Outside);
}

void FileReferencesTest::pathsAreJudged()
{
    QFETCH(QString, path);
    QFETCH(int, state);
    const QTemporaryDir folder;
    writeFile(folder.filePath(QStringLiteral("secret.stl")), "x");
    writeFile(folder.filePath(QStringLiteral("design2/a.stl")), "x");
    writeFile(folder.filePath(QStringLiteral("design/a.stl")), "x");
    writeFile(folder.filePath(QStringLiteral("design/geometry/b.stl")), "x");
    const ResolvedReference found =
        resolveReference(folder.filePath(QStringLiteral("design")), path);
    QCOMPARE(int(found.state), state);
    QCOMPARE(found.file.isEmpty(), found.state == FileState::Outside);
}

void FileReferencesTest::namesThatTheSystemTakesOtherwise_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"CON", "nul", "COM1.stl", "lpt9.a.b", "a.stl.", "a.stl ",
                             "a.stl::$DATA", "a.stl:stream", "a?.stl", "a.stl|", "<a>.stl"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void FileReferencesTest::namesThatTheSystemTakesOtherwise()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    writeFile(folder.filePath(QStringLiteral("a.stl")), "x");
    const bool isPossible = mayBeFileName(name);
    if (isPossible)
        writeFile(folder.filePath(name), "y");
    const auto stateOf = [&folder](const QString& path) {
        return int(resolveReference(folder.path(), path).state);
    };
    QCOMPARE(stateOf(name), int(isPossible ? FileState::Exists : FileState::Missing));
    QCOMPARE(stateOf(name + QStringLiteral("/a.stl")), int(FileState::Missing));
    QCOMPARE(stateOf(QStringLiteral("A.STL")),
             int(doesCaseOfNamesCount() ? FileState::Missing : FileState::Exists));
}

void FileReferencesTest::linksAreFollowed()
{
    const QTemporaryDir folder;
    const QString design = folder.filePath(QStringLiteral("design"));
    const QString secret = writeFile(folder.filePath(QStringLiteral("secret.stl")), "x");
    const QString inside = writeFile(design + QStringLiteral("/a.stl"), "x");
    const auto link = [&](const QString& target, const QString& name) {
        return makeLink(target, design + QLatin1Char('/') + name);
    };
    if (!link(inside, QStringLiteral("in.stl")))
        QSKIP("programs may not make links on this platform");
    link(secret, QStringLiteral("out.stl"));
    link(folder.path(), QStringLiteral("up"));
    link(folder.filePath(QStringLiteral("nothing.stl")), QStringLiteral("dead.stl"));
    link(design + QStringLiteral("/nothing.stl"), QStringLiteral("waiting.stl"));
    link(design + QStringLiteral("/ring.stl"), QStringLiteral("ring.stl"));
    const auto stateOf = [&](const char* path) {
        return resolveReference(design, QString::fromUtf8(path)).state;
    };
    QCOMPARE(stateOf("in.stl"), FileState::Exists);
    QCOMPARE(stateOf("out.stl"), FileState::Outside);
    QCOMPARE(stateOf("up/secret.stl"), FileState::Outside);
    QCOMPARE(stateOf("up/none/none.stl"), FileState::Outside);
    QCOMPARE(stateOf("up/design/a.stl"), FileState::Exists);
    QCOMPARE(stateOf("dead.stl"), FileState::Outside);
    QCOMPARE(stateOf("waiting.stl"), FileState::Missing);
    QCOMPARE(stateOf("ring.stl"), FileState::Missing);
}

void FileReferencesTest::folderMayBeReachedByLink()
{
    const QTemporaryDir folder;
    writeFile(folder.filePath(QStringLiteral("design/a.stl")), "x");
    const QString link = folder.filePath(QStringLiteral("link"));
    if (!makeLink(folder.filePath(QStringLiteral("design")), link))
        QSKIP("programs may not make links on this platform");
    QCOMPARE(resolveReference(link, QStringLiteral("a.stl")).state, FileState::Exists);
}

void FileReferencesTest::refreshTellsWhetherAnythingChanged()
{
    const QTemporaryDir folder;
    Design design;
    design.file = folder.filePath(QStringLiteral("d.dsg"));
    design.files.resize(1);
    design.files[0].path = QStringLiteral("a.stl");
    QVERIFY(refreshReferences(design));
    QVERIFY(!refreshReferences(design));
    const QString file = writeFile(folder.filePath(QStringLiteral("a.stl")), "x");
    QVERIFY(refreshReferences(design));
    QCOMPARE(design.files[0].state, FileState::Exists);
    QVERIFY(QFile::remove(file));
    QVERIFY(refreshReferences(design));
    QCOMPARE(design.files[0].state, FileState::Missing);
}

ZORVANE_TEST(FileReferencesTest)
#include "FileReferencesTest.moc"
