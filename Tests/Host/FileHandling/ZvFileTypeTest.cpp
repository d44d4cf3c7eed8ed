#include "Host/FileHandling/ZvFileType.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtCore/QtEndian>

#include <set>

using namespace Zorvane;

namespace {

ZvFileType typeOf(const QString& file)
{
    return getFileType(FileName(file));
}

QByteArray binaryStl(quint32 triangles, const QByteArray& text)
{
    QByteArray content = text.leftJustified(80, ' ', true);
    content.resize(84);
    qToLittleEndian(triangles, content.data() + 80);
    return content + QByteArray(int(triangles) * 50, '\0');
}

} // namespace

class ZvFileTypeTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyTypeIsFoundByItsEnding_data();
    void everyTypeIsFoundByItsEnding();
    void everyTypeHasAnEnding();
    void endingsDiffer();
    void numbersOutsideTheTableMatchAnyEnding_data();
    void numbersOutsideTheTableMatchAnyEnding();
    void otherEndingsAreOfNoType_data();
    void otherEndingsAreOfNoType();
    void theLastEndingTellsTheType_data();
    void theLastEndingTellsTheType();
    void stlIsTakenByItsContent_data();
    void stlIsTakenByItsContent();
};

void ZvFileTypeTest::everyTypeIsFoundByItsEnding_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("ending");
    // clang-format off
    const char* const endings[]{
        "zvd",  "zvo",    "zv3",    "zv",    "nas",   "igs",     "iges",       "vda",  "stl",   "zvr",
        "vtl",  "txt",    "zvx",    "zvg",   "mat",   "mtb",     "zvt",        "zvp",  "zvh",   "zva",
        "lub",  "frc",    "zvm",    "CATPart", "CATProduct", "cgr", "model",   "exp",  "session", "prt",
        "unv",  "arc",    "stp",    "step",  "prt.*", "jt",      "sldprt",     "sldasm", "x_t", "x_b",
        "wkf",  "zvk",    "zvl",    "zvap",  "orm",   "tdl",     "bkw",        "json", "zvpe",  "stl",
        "csv",  "*",
    };
    // clang-format on
    int number = 0;
    for (const char* ending : endings) {
        QTest::addRow("%d", number) << number << QString::fromLatin1(ending);
        ++number;
    }
    QCOMPARE(number, 52);
}

void ZvFileTypeTest::everyTypeIsFoundByItsEnding()
{
    QFETCH(int, number);
    QFETCH(QString, ending);
    const auto type = static_cast<ZvFileType>(number);
    QCOMPARE(QString::fromStdString(getExtensionForFileType(type)), ending);

    // The ending alone cannot tell the two kinds of STL.
    const ZvFileType back = type == ZvFileType::StlBinary ? ZvFileType::StlAscii : type;
    const QStringList spellings{ending, u'.' + ending, ending.toUpper(), ending.toLower(),
                                u'.' + ending.toUpper()};
    for (const QString& spelling : spellings)
        QCOMPARE(getFileTypeFromEnding(spelling.toStdString(), {}), back);
}

void ZvFileTypeTest::everyTypeHasAnEnding()
{
    QCOMPARE(int(ZvFileType::Unknown), 51);
    for (int number = 0; number < 51; ++number)
        QVERIFY2(getExtensionForFileType(static_cast<ZvFileType>(number)) != "*",
                 qPrintable(QString::number(number)));
}

void ZvFileTypeTest::endingsDiffer()
{
    std::set<std::string> endings;
    for (int number = 0; number <= 51; ++number) {
        if (static_cast<ZvFileType>(number) != ZvFileType::StlBinary)
            QVERIFY(
                endings.insert(getExtensionForFileType(static_cast<ZvFileType>(number))).second);
    }
}

void ZvFileTypeTest::numbersOutsideTheTableMatchAnyEnding_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("unknown") << 51;
    QTest::newRow("after the last") << 52;
    QTest::newRow("before the first") << -1;
}

void ZvFileTypeTest::numbersOutsideTheTableMatchAnyEnding()
{
    QFETCH(int, number);
    QCOMPARE(getExtensionForFileType(static_cast<ZvFileType>(number)), std::string("*"));
}

void ZvFileTypeTest::otherEndingsAreOfNoType_data()
{
    QTest::addColumn<QString>("ending");
    QTest::addColumn<QString>("second");
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("only a dot") << QStringLiteral(".") << QString();
    QTest::newRow("of no type") << QStringLiteral(".abc") << QString();
    QTest::newRow("two dots") << QStringLiteral("..stp") << QString();
    QTest::newRow("start of an ending") << QStringLiteral("st") << QString();
    QTest::newRow("longer than an ending") << QStringLiteral("stpx") << QString();
    QTest::newRow("a number alone") << QStringLiteral("3") << QString();
    QTest::newRow("version of another type") << QStringLiteral("3") << QStringLiteral("stp");
    QTest::newRow("second alone") << QStringLiteral("bak") << QStringLiteral("prt");
}

void ZvFileTypeTest::otherEndingsAreOfNoType()
{
    QFETCH(QString, ending);
    QFETCH(QString, second);
    QCOMPARE(getFileTypeFromEnding(ending.toStdString(), second.toStdString()),
             ZvFileType::Unknown);
}

void ZvFileTypeTest::theLastEndingTellsTheType_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("type");
    const auto row = [](const char* name, const char* file, ZvFileType type) {
        QTest::newRow(name) << QString::fromUtf8(file) << int(type);
    };
    row("plain", "door.stp", ZvFileType::StepShort);
    row("in a folder", "press/door.CATPart", ZvFileType::CatiaV5Part);
    row("other case", "press/DOOR.catpart", ZvFileType::CatiaV5Part);
    row("two endings", "door.step.iges", ZvFileType::Iges);
    row("missing STL", "nowhere/door.stl", ZvFileType::StlAscii);
    row("part without version", "door.prt", ZvFileType::Nx);
    row("version of a part", "door.prt.3", ZvFileType::ProE);
    row("high version", "door.PRT.128", ZvFileType::ProE);
    row("number that is no version", "door.v2.3", ZvFileType::Unknown);
    row("no ending", "press.stp/door", ZvFileType::Unknown);
    row("hidden file", ".stp", ZvFileType::Unknown);
    row("hidden version", ".prt.3", ZvFileType::Unknown);
    row("empty", "", ZvFileType::Unknown);
}

void ZvFileTypeTest::theLastEndingTellsTheType()
{
    QFETCH(QString, file);
    QFETCH(int, type);
    QCOMPARE(int(typeOf(file)), type);
}

void ZvFileTypeTest::stlIsTakenByItsContent_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("type");
    const int ascii = int(ZvFileType::StlAscii);
    const int binary = int(ZvFileType::StlBinary);
    const QByteArray text("solid door\nfacet normal 0 0 1\nouter loop\nvertex 0 0 0\nvertex 1 0 0\n"
                          "vertex 0 1 0\nendloop\nendfacet\nendsolid door\n");
    QTest::newRow("text") << text << ascii;
    QTest::newRow("binary") << binaryStl(3, "made by a press") << binary;
    QTest::newRow("binary that starts like text") << binaryStl(3, "solid door") << binary;
    QTest::newRow("binary without triangles") << binaryStl(0, "") << binary;
    QTest::newRow("cut off") << binaryStl(3, "").chopped(1) << ascii;
    QTest::newRow("empty") << QByteArray() << ascii;
}

void ZvFileTypeTest::stlIsTakenByItsContent()
{
    QFETCH(QByteArray, content);
    QFETCH(int, type);
    const QTemporaryDir dir;
    QFile file(dir.filePath(QStringLiteral("door.STL")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
    file.close();
    QCOMPARE(int(typeOf(file.fileName())), type);
    QCOMPARE(int(typeOf(dir.path())), int(ZvFileType::Unknown));
}

ZORVANE_TEST(ZvFileTypeTest)
#include "ZvFileTypeTest.moc"
