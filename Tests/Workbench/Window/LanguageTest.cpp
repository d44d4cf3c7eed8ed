#include "Workbench/Window/Language.h"

#include "Host/Translation/Translator.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Tree/TreeFixture.h"
#include "Workbench/Design/Quantity.h"
#include "Workbench/Tree/RowDecoration.h"
#include "Workbench/Window/MainWindow.h"

#include <QtWidgets/QAction>
#include <QtWidgets/QMenuBar>

namespace Zorvane::Workbench {

namespace {

const QLocale s_german(QLocale::German, QLocale::Germany);
const QLocale s_english(QLocale::English, QLocale::UnitedKingdom);
const QLocale s_icelandic(QLocale::Icelandic, QLocale::Iceland);

QString noValue()
{
    return Translator::translate("NumberRepresentation", "No value");
}

QString moreProblems(int count)
{
    return QCoreApplication::translate("Zorvane::Workbench::DesignReader", "has %n more problem(s)",
                                       nullptr, count);
}

QStringList menuTitles(const MainWindow& window)
{
    QStringList titles;
    for (const QAction* action : window.menuBar()->actions())
        titles << action->text().remove(QLatin1Char('&'));
    return titles;
}

} // namespace

class LanguageTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void speaksGermanThroughout();
    void tablesOfTextsAreTranslated();
    void countsInGerman();
    void countsInEnglish();
    void aLanguageWithoutTextsIsEnglishThroughout();
    void theTextsGoWithTheLanguage();
};

void LanguageTest::speaksGermanThroughout()
{
    const Language language(s_german);
    QCOMPARE(treeColumnTitles().at(TreeColumn::UsedBy), QStringLiteral("Nutzer"));
    QCOMPARE(quantityName(Quantity::Thickness), QStringLiteral("Dicke"));
    QCOMPARE(noValue(), QStringLiteral("Kein Wert"));
}

void LanguageTest::tablesOfTextsAreTranslated()
{
    const Language language(s_german);
    MainWindow window;
    QVERIFY(menuTitles(window).contains(QStringLiteral("Bearbeiten")));
    QStringList commands;
    for (const QAction* action : window.actions())
        commands << action->text().remove(QLatin1Char('&'));
    QVERIFY(commands.contains(QStringLiteral("Zum Bezug gehen")));
    QVERIFY(commands.contains(QStringLiteral("Umbenennen")));
}

void LanguageTest::countsInGerman()
{
    const Language language(s_german);
    QCOMPARE(moreProblems(1), QStringLiteral("hat 1 weiteres Problem"));
    QCOMPARE(moreProblems(3), QStringLiteral("hat 3 weitere Probleme"));
}

void LanguageTest::countsInEnglish()
{
    const Language language(s_english);
    QCOMPARE(moreProblems(1), QStringLiteral("has 1 more problem"));
    QCOMPARE(moreProblems(3), QStringLiteral("has 3 more problems"));
    QCOMPARE(noValue(), QStringLiteral("No value"));
}

void LanguageTest::aLanguageWithoutTextsIsEnglishThroughout()
{
    const Language language(s_icelandic);
    QCOMPARE(moreProblems(1), QStringLiteral("has 1 more problem"));
    QCOMPARE(treeColumnTitles().at(TreeColumn::Name), QStringLiteral("Name"));
    QCOMPARE(noValue(), QStringLiteral("No value"));
}

void LanguageTest::theTextsGoWithTheLanguage()
{
    {
        const Language language(s_german);
        QCOMPARE(quantityName(Quantity::Force), QStringLiteral("Kraft"));
    }
    QCOMPARE(quantityName(Quantity::Force), QStringLiteral("Force"));
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::LanguageTest;
ZORVANE_TEST_MAIN(LanguageTest)
#include "LanguageTest.moc"
