#include "Host/FileHandling/FileName.h"
#include "Host/FileHandling/FileUtilities.h"
#include "Tests/Support/PlatformFacts.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

using namespace Zorvane;

class FileNameTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aPathHasParentLeafAndExtension_data();
    void aPathHasParentLeafAndExtension();
    void longPathsKeepEveryLetter();
    void emptyNameHasNoParts();
    void fileNameUsesTheSystemsSyntax();
    void fileNamesCompareLetterByLetter();
    void bytesThatAreNoUtf8AreKept();
    void existsSeesFilesAndFolders();
    void longPathsAreFound();
    void equivalentFollowsDotsAndLinks();
    void equivalentOfMissingFilesComparesTidiedNames();
    void emptyNameIsEquivalentOnlyToItself();
};

void FileNameTest::aPathHasParentLeafAndExtension_data()
{
    QTest::addColumn<std::string>("path");
    QTest::addColumn<std::string>("parent");
    QTest::addColumn<std::string>("leaf");
    QTest::addColumn<std::string>("extension");
    const auto row = [](const char* name, const char* path, const char* parent, const char* leaf,
                        const char* extension) {
        QTest::newRow(name) << std::string(path) << std::string(parent) << std::string(leaf)
                            << std::string(extension);
    };
    // What means the same on every system.
    // clang-format off
    row("below a folder",   "press/door.stl",     "press",    "door.stl",     "stl");
    row("bare name",        "door.stl",           ".",        "door.stl",     "stl");
    row("below the root",   "/door.stl",          "/",        "door.stl",     "stl");
    row("root",             "/",                  "",         "",             "");
    row("slash at the end", "press/door/",        "press",    "door",         "");
    row("several slashes",  "press//door.stl//",  "press",    "door.stl",     "stl");
    row("case is kept",     "p/Door.CATPart",     "p",        "Door.CATPart", "CATPart");
    row("last dot counts",  "p/door.prt.12",      "p",        "door.prt.12",  "12");
    row("dot in a folder",  "p.d/door",           "p.d",      "door",         "");
    row("hidden file",      "p/.profile",         "p",        ".profile",     "");
    row("dot at the end",   "p/door.",            "p",        "door.",        "");
    // clang-format on
}

void FileNameTest::aPathHasParentLeafAndExtension()
{
    QFETCH(std::string, path);
    const FileName file(path);
    QTEST(file.getParentPath().toString(), "parent");
    QTEST(file.getLeafName(), "leaf");
    QTEST(file.getExtension(), "extension");
}

void FileNameTest::longPathsKeepEveryLetter()
{
    std::string path;
    for (int i = 0; i < 2000; ++i)
        path += "folder of some length/";
    const std::string leaf = std::string(255, 'x') + ".stl";
    QCOMPARE(FileName(path + leaf).toString(), path + leaf);
    QCOMPARE(FileName(path + leaf).getLeafName(), leaf);
}

void FileNameTest::emptyNameHasNoParts()
{
    const FileName empty;
    QVERIFY(empty.isEmpty());
    QVERIFY(FileName(QString()).isEmpty());
    QVERIFY(empty.getParentPath().isEmpty());
    QCOMPARE(empty.getLeafName(), std::string());
    QCOMPARE(empty.getExtension(), std::string());
    QCOMPARE(empty.toNativeString(), std::string());
}

void FileNameTest::fileNameUsesTheSystemsSyntax()
{
    const FileName file(QDir::toNativeSeparators(QStringLiteral("press/left door.CATPart")));
    QCOMPARE(file.toString(), std::string("press/left door.CATPart"));
    QCOMPARE(QString::fromStdString(file.toNativeString()),
             QDir::toNativeSeparators(QStringLiteral("press/left door.CATPart")));
    QCOMPARE(file.toQString(), QStringLiteral("press/left door.CATPart"));
    QCOMPARE(file.getParentPath().toString(), std::string("press"));
    QCOMPARE(file.getLeafName(), std::string("left door.CATPart"));
    QCOMPARE(file.getExtension(), std::string("CATPart"));
}

void FileNameTest::fileNamesCompareLetterByLetter()
{
    QVERIFY(FileName("a/b") == FileName("a/b"));
    QVERIFY(FileName("a/b") != FileName("a/B"));
    QVERIFY(FileName("a/b") != FileName("a/./b"));
    QVERIFY(FileName("a") < FileName("b"));
    QVERIFY(FileName() < FileName("a"));
}

void FileNameTest::bytesThatAreNoUtf8AreKept()
{
    const std::string latin1 = "/press/T\xFCr.stl";
    QCOMPARE(FileName(latin1).toString(), latin1);
    QCOMPARE(FileName(latin1).getLeafName(), std::string("T\xFCr.stl"));
    QVERIFY(!FileUtilities::exists(FileName(latin1)));
}

void FileNameTest::existsSeesFilesAndFolders()
{
    const QTemporaryDir dir;
    const FileName folder(dir.path());
    const FileName file(dir.filePath(QStringLiteral(u"Tür.stl")));
    QVERIFY(FileUtilities::exists(folder));
    QVERIFY(!FileUtilities::exists(file));
    QVERIFY(QFile(file.toQString()).open(QIODevice::WriteOnly));
    QVERIFY(FileUtilities::exists(file));
    QVERIFY(!FileUtilities::exists(FileName()));
}

void FileNameTest::longPathsAreFound()
{
    // Windows takes 260 characters, and more only of programs that ask in a way of its own.
    const QTemporaryDir dir;
    QString folder = dir.path();
    while (folder.size() < 400)
        folder += QLatin1Char('/') + QString(60, QLatin1Char('a'));
    QVERIFY(QDir().mkpath(folder));
    const FileName file(folder + QStringLiteral("/part.stl"));
    QVERIFY(!FileUtilities::exists(file));
    QVERIFY(QFile(file.toQString()).open(QIODevice::WriteOnly));
    QVERIFY(FileUtilities::exists(file));
    QVERIFY(FileUtilities::isEquivalent(file, FileName(folder + QStringLiteral("/./part.stl"))));
}

void FileNameTest::equivalentFollowsDotsAndLinks()
{
    const QTemporaryDir dir;
    QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("real")));
    QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("other")));
    const FileName real(dir.filePath(QStringLiteral("real")));
    QVERIFY(FileUtilities::isEquivalent(real, FileName(dir.filePath(QStringLiteral("real/")))));
    QVERIFY(
        FileUtilities::isEquivalent(real, FileName(dir.filePath(QStringLiteral("other/../real")))));
    QVERIFY(!FileUtilities::isEquivalent(real, FileName(dir.filePath(QStringLiteral("other")))));
    const QString link = dir.filePath(QStringLiteral("link"));
    if (!Testing::makeLink(real.toQString(), link))
        QSKIP("programs may not make links on this platform; dots were followed");
    QVERIFY(FileUtilities::isEquivalent(real, FileName(link)));
}

void FileNameTest::equivalentOfMissingFilesComparesTidiedNames()
{
    const QTemporaryDir dir;
    const FileName missing(dir.filePath(QStringLiteral("new")));
    QVERIFY(
        FileUtilities::isEquivalent(missing, FileName(dir.filePath(QStringLiteral("./x/../new")))));
    QVERIFY(FileUtilities::isEquivalent(missing, FileName(dir.filePath(QStringLiteral("new/")))));
    QVERIFY(!FileUtilities::isEquivalent(missing, FileName(dir.path())));
    QVERIFY(FileUtilities::isEquivalent(FileName("new"),
                                        FileName(QDir::current().filePath(QStringLiteral("new")))));
}

void FileNameTest::emptyNameIsEquivalentOnlyToItself()
{
    QVERIFY(FileUtilities::isEquivalent(FileName(), FileName()));
    QVERIFY(!FileUtilities::isEquivalent(FileName(), FileName(".")));
    QVERIFY(!FileUtilities::isEquivalent(FileName("."), FileName()));
}

ZORVANE_TEST(FileNameTest)
#include "FileNameTest.moc"
