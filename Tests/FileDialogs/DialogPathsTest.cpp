#include "FileDialogs/DialogTexts.h"

#include "Tests/FileDialogs/DialogFixtures.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>

using namespace Zorvane;

class DialogPathsTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theEndingBeginsAtTheLastDotOfTheName_data();
    void theEndingBeginsAtTheLastDotOfTheName();
    void aFilterAppendsWhatStandsBehindItsFirstStar_data();
    void aFilterAppendsWhatStandsBehindItsFirstStar();
    void aStartPathIsSplitIntoFolderAndName_data();
    void aStartPathIsSplitIntoFolderAndName();
    void aNewFileLandsInTheFolderOrBesideTheFile_data();
    void aNewFileLandsInTheFolderOrBesideTheFile();
};

void DialogPathsTest::theEndingBeginsAtTheLastDotOfTheName_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("index");
    const auto row = [](const char* rule, const char* path, int index) {
        QTest::newRow(rule) << QString::fromUtf8(path) << index;
    };
    row("nothing", "", -1);
    row("no dot", "file", -1);
    row("dot in a folder's name", "C:/a.b/file", -1);
    row("dot in a folder's name, native", "C:\\a.b\\file", -1);
    row("an ending", "C:\\dir\\x.txt", 8);
    row("dot in first place", ".dsg", -1);
    row("dot in first place of a file in a folder", "/.dsg", 1);
    row("the last dot counts", "a.b.c", 3);
    row("dot at the end", "part.", 4);
    row("both separators", "C:/a.x\\b/c", -1);
    row("ending behind both separators", "C:/a\\b.c", 6);
}

void DialogPathsTest::theEndingBeginsAtTheLastDotOfTheName()
{
    QFETCH(QString, path);
    QTEST(fileEndingIndex(path), "index");
}

void DialogPathsTest::aFilterAppendsWhatStandsBehindItsFirstStar_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("suffix");
    const auto row = [](const char* rule, const char* filter, const char* suffix) {
        QTest::newRow(rule) << QString::fromUtf8(filter) << QString::fromUtf8(suffix);
    };
    row("one pattern", "Design (*.dsg)", ".dsg");
    row("several patterns are appended whole", "Meshes (*.stl *.obj)", ".stl *.obj");
    row("all files of Windows", "All Files (*.*)", ".*");
    row("all files", "All Files (*)", "");
    row("every closing bracket goes", "A (*.a)) b)", ".a b");
    row("no star", "Design", "");
    row("nothing", "", "");
}

void DialogPathsTest::aFilterAppendsWhatStandsBehindItsFirstStar()
{
    QFETCH(QString, filter);
    QTEST(suffixOfFilter(filter), "suffix");
}

void DialogPathsTest::aStartPathIsSplitIntoFolderAndName_data()
{
    QTest::addColumn<QString>("below");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("fileName");
    const auto row = [](const char* rule, const char* below, const char* folder,
                        const char* fileName) {
        QTest::newRow(rule) << QString::fromUtf8(below) << QString::fromUtf8(folder)
                            << QString::fromUtf8(fileName);
    };
    row("existing folder", "/folder.d", "/folder.d", "");
    row("existing file", "/folder.d/a.stl", "/folder.d", "a.stl");
    row("new file", "/folder.d/new part.stl", "/folder.d", "new part.stl");
    row("folder that is gone", "/gone/a", "/gone", "a");
    row("separator at the end of a folder that is gone", "/gone/", "/gone", "");
    row("several dots and a blank at the end", "/folder.d/a.b.c ", "/folder.d", "a.b.c ");
}

void DialogPathsTest::aStartPathIsSplitIntoFolderAndName()
{
    QFETCH(QString, below);
    QFETCH(QString, folder);
    const QTemporaryDir dir;
    QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("folder.d")));
    QVERIFY(Testing::writeFile(dir.filePath(QStringLiteral("folder.d/a.stl"))));
    const DialogStart start = dialogStart(dir.path() + below);
    QCOMPARE(start.folder, QDir::toNativeSeparators(dir.path() + folder));
    QTEST(start.fileName, "fileName");
}

void DialogPathsTest::aNewFileLandsInTheFolderOrBesideTheFile_data()
{
    QTest::addColumn<QString>("below");
    QTest::addColumn<QString>("file");
    const auto row = [](const char* rule, const char* below, const char* file) {
        QTest::newRow(rule) << QString::fromUtf8(below) << QString::fromUtf8(file);
    };
    row("in an existing folder", "/folder.d", "/folder.d/new.dsg");
    row("beside an existing file", "/folder.d/a.stl", "/folder.d/new.dsg");
    row("beside an existing file without an ending", "/folder.d/plain", "/folder.d/new.dsg");
    row("beside a file that is gone, by its ending", "/gone/a.stl", "/gone/new.dsg");
    row("in a folder that is gone", "/gone/folder", "/gone/folder/new.dsg");
}

void DialogPathsTest::aNewFileLandsInTheFolderOrBesideTheFile()
{
    QFETCH(QString, below);
    QFETCH(QString, file);
    const QTemporaryDir dir;
    QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("folder.d")));
    for (const char* name : {"folder.d/a.stl", "folder.d/plain"})
        QVERIFY(Testing::writeFile(dir.filePath(QString::fromLatin1(name))));
    QCOMPARE(fileBeside(dir.path() + below, QStringLiteral("new.dsg")), dir.path() + file);
    const QString elsewhere = QDir::rootPath() + QStringLiteral("elsewhere.dsg");
    QCOMPARE(fileBeside(dir.path() + below, elsewhere), elsewhere);
}

ZORVANE_TEST(DialogPathsTest)
#include "DialogPathsTest.moc"
