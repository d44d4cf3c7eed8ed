#include "FileDialogs/DialogTexts.h"

#include "Tests/Support/TestCase.h"

using namespace Zorvane;

class NativeFileFiltersTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void filtersAreSplitIntoNamesAndPatterns_data();
    void filtersAreSplitIntoNamesAndPatterns();
    void onlyAWholeTypeIsPreselected_data();
    void onlyAWholeTypeIsPreselected();
};

void NativeFileFiltersTest::filtersAreSplitIntoNamesAndPatterns_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QStringList>("patterns");

    const auto row = [](const char* rule, const char* filter, const QStringList& names,
                        const QStringList& patterns) {
        QTest::newRow(rule) << QString::fromUtf8(filter) << names << patterns;
    };
    const auto list = [](std::initializer_list<const char*> texts) {
        QStringList result;
        for (const char* text : texts)
            result << QString::fromUtf8(text);
        return result;
    };
    row("empty is all files", "", list({"All Files (*.*)"}), list({"*.*"}));
    row("one type", "Design (*.dsg)", list({"Design (*.dsg)"}), list({"*.dsg"}));
    row("several types", "A (*.a);;B (*.b)", list({"A (*.a)", "B (*.b)"}), list({"*.a", "*.b"}));
    row("several patterns", "Meshes (*.stl *.obj *.ply)", list({"Meshes (*.stl *.obj *.ply)"}),
        list({"*.stl;*.obj;*.ply"}));
    row("line feeds separate where there is no ;;", "A (*.a)\nB (*.b)",
        list({"A (*.a)", "B (*.b)"}), list({"*.a", "*.b"}));
    row(";; goes before line feeds", "A (*.a)\nB (*.b);;C (*.c)",
        list({"A (*.a)\nB (*.b)", "C (*.c)"}), list({"A;(*.a)\nB;(*.b)", "*.c"}));
    row("empty pieces stay", "A (*.a);;;;B (*.b);;", list({"A (*.a)", "", "B (*.b)", ""}),
        list({"*.a", "", "*.b", ""}));
    row("a star alone is every name", "All (*)", list({"All (*)"}), list({"*.*"}));
    row("only the first star alone is", "All (* *)", list({"All (* *)"}), list({"*.*;*"}));
    row("a star among others is too", "All (*.a * *.b)", list({"All (*.a * *.b)"}),
        list({"*.a;*.*;*.b"}));
    row("without brackets the piece is the pattern", "*.a *.b", list({"*.a *.b"}),
        list({"*.a;*.b"}));
    row("the last brackets count", "Part (new) (*.prt)", list({"Part (new) (*.prt)"}),
        list({"*.prt"}));
    row("brackets at the end only", "A (*.a) files", list({"A (*.a) files"}),
        list({"A;(*.a);files"}));
    row("a comma is none of Qt's characters", "A (*.a,*.b)", list({"A (*.a,*.b)"}),
        list({"A;(*.a,*.b)"}));
    row("nor is an umlaut", "Ä (*.ä)", list({"Ä (*.ä)"}), list({"Ä;(*.ä)"}));
    row("umlauts outside the brackets", "Entwürfe (*.dsg)", list({"Entwürfe (*.dsg)"}),
        list({"*.dsg"}));
    row("every character that Qt takes", "A (a_Z.9*? +;#-[]@{}/!<>$%&=^~:|)",
        list({"A (a_Z.9*? +;#-[]@{}/!<>$%&=^~:|)"}), list({"a_Z.9*?;+;#-[]@{}/!<>$%&=^~:|"}));
    row("empty brackets", "Nothing ()", list({"Nothing ()"}), list({""}));
    row("two blanks leave an empty element", "A (*.a  *.b)", list({"A (*.a  *.b)"}),
        list({"*.a;;*.b"}));
    row("a single semicolon separates nothing", "A (*.a);B (*.b)", list({"A (*.a);B (*.b)"}),
        list({"*.b"}));
}

void NativeFileFiltersTest::filtersAreSplitIntoNamesAndPatterns()
{
    QFETCH(QString, filter);
    const NativeFileFilters filters = nativeFileFilters(filter, QString());
    QTEST(filters.names, "names");
    QTEST(filters.patterns, "patterns");
    QVERIFY(filters.preselectedPattern.isNull());
}

void NativeFileFiltersTest::onlyAWholeTypeIsPreselected_data()
{
    QTest::addColumn<QString>("selected");
    QTest::addColumn<QString>("pattern");
    QTest::newRow("a type") << QStringLiteral("B (*.b *.c)") << QStringLiteral("*.b;*.c");
    QTest::newRow("the first of equal ones") << QStringLiteral("A (*.a)") << QStringLiteral("*.a");
    QTest::newRow("part of a type") << QStringLiteral("B") << QString();
    QTest::newRow("none of them") << QStringLiteral("C (*.c)") << QString();
    QTest::newRow("empty is none") << QString() << QString();
}

void NativeFileFiltersTest::onlyAWholeTypeIsPreselected()
{
    QFETCH(QString, selected);
    QFETCH(QString, pattern);
    const NativeFileFilters filters =
        nativeFileFilters(QStringLiteral("A (*.a);;B (*.b *.c);;A (*.a);;"), selected);
    QCOMPARE(filters.preselectedPattern, pattern);
    QCOMPARE(filters.preselectedPattern.isNull(), pattern.isNull());
}

ZORVANE_TEST(NativeFileFiltersTest)
#include "NativeFileFiltersTest.moc"
