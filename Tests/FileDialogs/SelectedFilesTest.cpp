#include "FileDialogs/DialogTexts.h"

#include "Tests/Support/TestCase.h"

using namespace Zorvane;

class SelectedFilesTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void namesInTheBox_data();
    void namesInTheBox();
    void filesComeInTheOrderOfTheFileNameBox_data();
    void filesComeInTheOrderOfTheFileNameBox();
};

namespace {

/** Texts separated by "|", which file names rarely hold. */
QStringList list(const char* texts)
{
    return QString::fromUtf8(texts).split(QLatin1Char('|'), Qt::SkipEmptyParts);
}

} // namespace

void SelectedFilesTest::namesInTheBox_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("names");
    const auto row = [](const char* rule, const char* text, const char* names) {
        QTest::newRow(rule) << QString::fromUtf8(text) << list(names);
    };
    row("nothing", "", "");
    row("blanks only", "   ", "");
    row("one name, without quotes", "a.stl", "a.stl");
    row("one name with blanks", "upper die.stl", "upper die.stl");
    row("one name in quotes", "\"a.stl\"", "a.stl");
    row("several names", "\"a.stl\" \"b.stl\" \"c.stl\"", "a.stl|b.stl|c.stl");
    row("blanks in names", "\"upper die.stl\" \"lower die.stl\"", "upper die.stl|lower die.stl");
    row("blanks around the text", "  \"a.stl\" \"b.stl\"  ", "a.stl|b.stl");
    row("no blank between", "\"a.stl\"\"b.stl\"", "a.stl|b.stl");
    row("semicolons, brackets and dots", "\"a;b.stl\" \"c (1) [x].v2.stl\"",
        "a;b.stl|c (1) [x].v2.stl");
    row("Japanese", "\"金型.stl\" \"板.stl\"", "金型.stl|板.stl");
}

void SelectedFilesTest::namesInTheBox()
{
    QFETCH(QString, text);
    QTEST(namesInFileNameBox(text), "names");
}

void SelectedFilesTest::filesComeInTheOrderOfTheFileNameBox_data()
{
    QTest::addColumn<QStringList>("paths");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("ordered");
    const auto row = [](const char* rule, const char* paths, const char* text,
                        const char* ordered) {
        QTest::newRow(rule) << list(paths) << QString::fromUtf8(text) << list(ordered);
    };
    row("nothing selected", "", "", "");
    row("one", "C:\\d\\a.stl", "a.stl", "C:\\d\\a.stl");
    row("as in the box", "/d/a|/d/b|/d/c", "\"c\" \"a\" \"b\"", "/d/c|/d/a|/d/b");
    row("with either separator", "C:\\d\\a|C:/d/b", "\"b\" \"a\"", "C:/d/b|C:\\d\\a");
    row("the later of a name twice counts", "/d/a|/d/b", "\"a\" \"b\" \"a\"", "/d/b|/d/a");
    row("names not in the box come last", "/d/x|/d/a|/d/y", "\"a\"", "/d/a|/d/x|/d/y");
    row("an empty box keeps the order", "/d/b|/d/a", "", "/d/b|/d/a");
    row("the same name in two folders", "/d/a|/e/a|/d/b", "\"b\" \"a\"", "/d/b|/d/a|/e/a");
    row("a name without its ending is not the name", "/d/b.stl|/d/a.stl", "\"a\" \"b\"",
        "/d/b.stl|/d/a.stl");
}

void SelectedFilesTest::filesComeInTheOrderOfTheFileNameBox()
{
    QFETCH(QStringList, paths);
    QFETCH(QString, text);
    QTEST(inOrderOfFileNameBox(paths, text), "ordered");
}

ZORVANE_TEST(SelectedFilesTest)
#include "SelectedFilesTest.moc"
