#include "Files/FileNameRules.h"

#include "Files/CopyNames.h"
#include "Files/PathText.h"
#include "Tests/Support/PlatformFacts.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <rapidcheck.h>

Q_DECLARE_METATYPE(Zorvane::FileNameFault)

using namespace Zorvane;
using Fault = FileNameFault;

namespace {

/** A name, and what Windows and the others have against it. */
struct Row
{
    const char* description;
    QString name;
    Fault onWindows;
    Fault elsewhere;
};

QString utf8(const char* text)
{
    return QString::fromUtf8(text);
}

std::vector<Row> rows()
{
    const auto repeated = [](const char* text, int count) { return utf8(text).repeated(count); };
    // clang-format off
    std::vector<Row> all{
        {"plain",                   utf8("part.stl"),         Fault::None,   Fault::None},
        {"without ending",          utf8("part"),             Fault::None,   Fault::None},
        {"ending only",             utf8(".stl"),             Fault::None,   Fault::None},
        {"blanks and umlauts",      utf8("Größe 1, 2.stl"),   Fault::None,   Fault::None},
        {"beyond 16 bits",          utf8("\U0001F527.stl"),   Fault::None,   Fault::None},
        {"blank at the start",      utf8(" part.stl"),        Fault::None,   Fault::None},
        {"empty",                   utf8(""),                 Fault::Empty,  Fault::Empty},
        {"this folder",             utf8("."),                Fault::Folder, Fault::Folder},
        {"folder above",            utf8(".."),               Fault::Folder, Fault::Folder},
        {"slash",                   utf8("a/b"),              Fault::Letter, Fault::Letter},
        {"NUL letter",              QString(QChar()),         Fault::Letter, Fault::Letter},
        {"backslash",               utf8("a\\b"),             Fault::Letter, Fault::None},
        {"less",                    utf8("a<b"),              Fault::Letter, Fault::None},
        {"greater",                 utf8("a>b"),              Fault::Letter, Fault::None},
        {"colon",                   utf8("a:b"),              Fault::Letter, Fault::None},
        {"stream of a file",        utf8("a.stl::$DATA"),     Fault::Letter, Fault::None},
        {"quotation mark",          utf8("12\" blank.dsg"),   Fault::Letter, Fault::None},
        {"bar",                     utf8("a|b"),              Fault::Letter, Fault::None},
        {"question mark",           utf8("what?"),            Fault::Letter, Fault::None},
        {"star",                    utf8("*.stl"),            Fault::Letter, Fault::None},
        {"line feed",               utf8("a\nb"),             Fault::Letter, Fault::None},
        {"tab",                     utf8("a\tb"),             Fault::Letter, Fault::None},
        {"last control letter",     utf8("a\x1f"),            Fault::Letter, Fault::None},
        {"delete",                  utf8("a\x7f"),            Fault::None,   Fault::None},
        {"dot at the end",          utf8("part."),            Fault::End,    Fault::None},
        {"dots only",               utf8("..."),              Fault::End,    Fault::None},
        {"blank at the end",        utf8("part.stl "),        Fault::End,    Fault::None},
        {"blank only",              utf8(" "),                Fault::End,    Fault::None},
        {"other blank at the end",  utf8("part\u00a0"),       Fault::None,   Fault::None},
        {"console in and out",      utf8("CONIN$"),           Fault::Device, Fault::None},
        {"device and two endings",  utf8("nul.tar.gz"),       Fault::Device, Fault::None},
        {"device and blanks",       utf8("aux  .stl"),        Fault::Device, Fault::None},
        {"device and a dot",        utf8("con."),             Fault::Device, Fault::None},
        {"device of another digit", utf8("COM¹"),             Fault::Device, Fault::None},
        {"no digit of a device",    utf8("COM0"),             Fault::None,   Fault::None},
        {"two digits",              utf8("LPT10.stl"),        Fault::None,   Fault::None},
        {"no device: longer",       utf8("CONE.stl"),         Fault::None,   Fault::None},
        {"no device: shorter",      utf8("CO"),               Fault::None,   Fault::None},
        {"no device: numbered",     utf8("CON (2).stl"),      Fault::None,   Fault::None},
        {"no device: the ending",   utf8("part.con"),         Fault::None,   Fault::None},
        {"no device: accent",       utf8("CÓN"),              Fault::None,   Fault::None},
        {"longest",                 repeated("x", 255),       Fault::None,   Fault::None},
        {"too long",                repeated("x", 256),       Fault::Length, Fault::Length},
        {"longest in units",        repeated("ü", 255),       Fault::None,   Fault::Length},
        {"longest in bytes",        repeated("ü", 127) + utf8("x"), Fault::None, Fault::None},
        {"two units a letter",      repeated("\U0001F527", 128), Fault::Length, Fault::Length},
        {"two units, just fits",    repeated("\U0001F527", 127), Fault::None, Fault::Length},
    };
    // clang-format on
    return all;
}

QStringList devices()
{
    QStringList names{utf8("CON"), utf8("PRN"), utf8("AUX"), utf8("NUL")};
    for (const QString& port : {utf8("COM"), utf8("LPT")})
        for (int number = 1; number <= 9; ++number)
            names << port + QString::number(number);
    return names;
}

rc::Gen<std::string> namesOfWindows()
{
    const auto piece =
        rc::gen::element<std::string>("CON", "nul", "COM1", "a", ".", " ", "(2)", "\xC3\xBC",
                                      "\xF0\x9F\x94\xA7", ".stl", "a long piece of a name");
    const auto joined = [](const std::vector<std::string>& pieces) {
        std::string name;
        for (const std::string& text : pieces)
            name += text;
        return name;
    };
    return rc::gen::suchThat(
        rc::gen::map(rc::gen::nonEmpty(rc::gen::container<std::vector<std::string>>(piece)),
                     joined),
        [](const std::string& name) {
            return faultOfFileName(pathFromBytes(name), PathSyntax::Windows) == Fault::None;
        });
}

} // namespace

class FileNameRulesTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void namesAreJudged_data();
    void namesAreJudged();
    void devicesAreNoFilesOnWindows();
    void rulesAreThoseOfThePlatform_data();
    void rulesAreThoseOfThePlatform();
    void whatMayBeANameCanBeAFile_data();
    void whatMayBeANameCanBeAFile();
    void bytesThatAreNoTextCountOnce();
    void longNamesAreFitted_data();
    void longNamesAreFitted();
    void fittedNamesStayLegal();
    void namesOfCopiesStayLegal();
};

void FileNameRulesTest::namesAreJudged_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<Fault>("onWindows");
    QTest::addColumn<Fault>("elsewhere");
    for (const Row& row : rows())
        QTest::newRow(row.description) << row.name << row.onWindows << row.elsewhere;
}

void FileNameRulesTest::namesAreJudged()
{
    QFETCH(QString, name);
    QTEST(faultOfFileName(name, PathSyntax::Windows), "onWindows");
    QTEST(faultOfFileName(name, PathSyntax::Posix), "elsewhere");
}

void FileNameRulesTest::devicesAreNoFilesOnWindows()
{
    const QStringList devicesStill{utf8("%1"), utf8("%1.stl"), utf8("%1.a.b"), utf8("%1 .stl")};
    const QStringList files{utf8("%1x"), utf8("x%1"), utf8(".%1"), utf8("%1-simulation.csv")};
    for (const QString& device : devices()) {
        for (const QString& pattern : devicesStill) {
            for (const QString& name : {pattern.arg(device), pattern.arg(device.toLower())}) {
                QCOMPARE(faultOfFileName(name, PathSyntax::Windows), Fault::Device);
                QCOMPARE(faultOfFileName(name, PathSyntax::Posix), Fault::None);
            }
        }
        for (const QString& pattern : files)
            QCOMPARE(faultOfFileName(pattern.arg(device), PathSyntax::Windows), Fault::None);
    }
}

void FileNameRulesTest::rulesAreThoseOfThePlatform_data()
{
    namesAreJudged_data();
}

void FileNameRulesTest::rulesAreThoseOfThePlatform()
{
    QFETCH(QString, name);
    QCOMPARE(faultOfFileName(name) == Fault::None, Testing::mayBeFileName(name));
}

void FileNameRulesTest::whatMayBeANameCanBeAFile_data()
{
    QTest::addColumn<QString>("name");
    for (const Row& row : rows())
        if (faultOfFileName(row.name) == Fault::None)
            QTest::newRow(row.description) << row.name;
}

void FileNameRulesTest::whatMayBeANameCanBeAFile()
{
    QFETCH(QString, name);
    if (name.toUtf8().size() > s_longestFileName)
        QSKIP("the file system below Wine takes no such name; NTFS does");
    const QTemporaryDir folder;
    QFile file(folder.filePath(name));
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(file.errorString()));
    QCOMPARE(file.write("x"), qint64(1));
    file.close();
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList(name));
}

void FileNameRulesTest::bytesThatAreNoTextCountOnce()
{
    const QString name = pathFromBytes(std::string(255, '\xFC'));
    QCOMPARE(fileNameLength(name, PathSyntax::Posix), 255);
    QCOMPARE(faultOfFileName(name, PathSyntax::Posix), Fault::None);
    QCOMPARE(fileNameLength(utf8("ü"), PathSyntax::Posix), 2);
    QCOMPARE(fileNameLength(utf8("ü"), PathSyntax::Windows), 1);
    QCOMPARE(fileNameLength(utf8("\U0001F527"), PathSyntax::Windows), 2);
}

void FileNameRulesTest::longNamesAreFitted_data()
{
    QTest::addColumn<QString>("stem");
    QTest::addColumn<int>("most");
    QTest::addColumn<QString>("onWindows");
    QTest::addColumn<QString>("elsewhere");
    const auto row = [](const char* name, const char* stem, int most, const char* onWindows,
                        const char* elsewhere) {
        QTest::newRow(name) << utf8(stem) << most << utf8(onWindows) << utf8(elsewhere);
    };
    row("fits", "part", 8, "part.stl", "part.stl");
    row("cut", "parts", 8, "part.stl", "part.stl");
    row("fits in units", "Größe", 9, "Größe.stl", "Grö.stl");
    row("no letter cut in two", "a\U0001F527\U0001F527", 7, "a\U0001F527.stl", "a.stl");
    row("no blank before the ending", "ab  cd", 8, "ab.stl", "ab.stl");
    row("no dot before the ending", "ab..cd", 8, "ab.stl", "ab.stl");
    row("ends of names that fit stay", "ab .", 8, "ab ..stl", "ab ..stl");
    row("one letter stays", "part", 2, "p.stl", "p.stl");
    row("no stem", "", 2, ".stl", ".stl");
    row("no device", "Console", 7, "Co.stl", "Con.stl");
    row("no device with a number", "com1-part", 8, "com.stl", "com1.stl");
    row("no device before a dot", "nul-x.part", 9, "nul-x.stl", "nul-x.stl");
    row("no device before a blank", "aux  .part", 8, "au.stl", "aux.stl");
    row("a device that fits stays one", "con", 7, "con.stl", "con.stl");
}

void FileNameRulesTest::longNamesAreFitted()
{
    QFETCH(QString, stem);
    QFETCH(int, most);
    const QString ending = utf8(".stl");
    QTEST(fittedFileName(stem, ending, most, PathSyntax::Windows), "onWindows");
    QTEST(fittedFileName(stem, ending, most, PathSyntax::Posix), "elsewhere");
}

void FileNameRulesTest::fittedNamesStayLegal()
{
    QVERIFY(rc::check("a stem that may be a name makes one with an ending", [] {
        const QString stem = pathFromBytes(*namesOfWindows());
        const int most = *rc::gen::inRange(40, 256);
        for (const PathSyntax syntax : {PathSyntax::Windows, PathSyntax::Posix}) {
            const QString name = fittedFileName(stem, utf8(" (2).stl"), most, syntax);
            RC_ASSERT(fileNameLength(name, syntax) <= most);
            RC_ASSERT(faultOfFileName(name, syntax) == Fault::None);
        }
    }));
}

void FileNameRulesTest::namesOfCopiesStayLegal()
{
    QVERIFY(rc::check("beside a file of Windows a copy has a name for Windows", [] {
        const std::string leaf = *namesOfWindows();
        const auto most = *rc::gen::inRange<std::size_t>(32, 256);
        int asked = 0;
        unsigned number = 2;
        const std::string name = keepBothName(
            leaf, most, [&asked](const std::string&) { return ++asked < 12; }, number);
        RC_ASSERT(faultOfFileName(pathFromBytes(name), PathSyntax::Windows) == Fault::None);
    }));
}

ZORVANE_TEST(FileNameRulesTest)
#include "FileNameRulesTest.moc"
