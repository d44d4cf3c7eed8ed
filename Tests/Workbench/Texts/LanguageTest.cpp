#include "Workbench/Texts/Language.h"

#include "Host/Translation/Translator.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Tree/TreeFixture.h"
#include "Workbench/Commands/WindowCommands.h"
#include "Workbench/Design/Quantity.h"
#include "Workbench/DialogPanel/DialogPanel.h"
#include "Workbench/Help/HelpWindow.h"
#include "Workbench/Stress/StressWindow.h"
#include "Workbench/Tree/RowDecoration.h"
#include "Workbench/Undo/EditHistory.h"
#include "Workbench/Window/MainWindow.h"

#include <QtGui/QContextMenuEvent>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAction>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QTreeView>

namespace Zorvane::Workbench {

namespace {

const QLocale s_german(QLocale::German, QLocale::Germany);
const QLocale s_english(QLocale::English, QLocale::UnitedKingdom);
const QLocale s_icelandic(QLocale::Icelandic, QLocale::Iceland);

QString noValueText()
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

/** What Alt and a letter lead to among labels and buttons, by their texts. */
QStringList textsWithKeys(const QWidget& window)
{
    QStringList texts;
    for (const auto* label : window.findChildren<QLabel*>())
        if (label->buddy())
            texts << label->text();
    for (const auto* button : window.findChildren<QAbstractButton*>())
        texts << button->text();
    return texts;
}

/** The same of the main window, whose tool buttons have the texts of menus. */
QStringList textsWithKeys(const MainWindow& window)
{
    QStringList texts = textsWithKeys(*window.centralWidget());
    for (const QAction* action : window.menuBar()->actions())
        texts << action->text();
    return texts;
}

QStringList textsOf(const QMenu& menu)
{
    QStringList texts;
    for (const QAction* action : menu.actions())
        texts << action->text();
    return texts;
}

/** The shortcuts of the window's commands, by themselves. */
QMap<QString, QString> commandsByKey(const MainWindow& window)
{
    QMap<QString, QString> byKey;
    for (const QAction* action : window.actions())
        for (const QKeySequence& key : action->shortcuts())
            byKey.insert(key.toString(), action->text());
    return byKey;
}

/** That of the current row, which stays open. */
void openRowMenu(MainWindow& window)
{
    QWidget* const rows = window.treeView().viewport();
    QContextMenuEvent request(QContextMenuEvent::Keyboard, {}, {});
    QCoreApplication::sendEvent(rows, &request);
}

/** Empty if every letter is there once, and no key that is taken already. */
QString lettersTwice(const QStringList& texts, QMap<QString, QString> byKey = {})
{
    QStringList twice;
    for (const QString& text : texts) {
        const QString key = QKeySequence::mnemonic(text).toString();
        if (!key.isEmpty() && byKey.contains(key))
            twice << key + QStringLiteral(": ") + byKey.value(key) + QStringLiteral(", ") + text;
        byKey.insert(key, text);
    }
    return twice.join(QLatin1Char('\n'));
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
    void shortcutsInToolTips_readAsInMenus();
    void aKeyOfTheWindowLeadsToOnePlace_data();
    void aKeyOfTheWindowLeadsToOnePlace();
    void keysOfOtherWindows_leadToOnePlace_data() { aKeyOfTheWindowLeadsToOnePlace_data(); }
    void keysOfOtherWindows_leadToOnePlace();
};

void LanguageTest::speaksGermanThroughout()
{
    const Language language(s_german);
    QCOMPARE(treeColumnTitles().at(TreeColumn::UsedBy), QStringLiteral("Nutzer"));
    QCOMPARE(quantityName(Quantity::Thickness), QStringLiteral("Dicke"));
    QCOMPARE(noValueText(), QStringLiteral("Kein Wert"));
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
    QCOMPARE(noValueText(), QStringLiteral("No value"));
}

void LanguageTest::aLanguageWithoutTextsIsEnglishThroughout()
{
    const Language language(s_icelandic);
    QCOMPARE(moreProblems(1), QStringLiteral("has 1 more problem"));
    QCOMPARE(treeColumnTitles().at(TreeColumn::Name), QStringLiteral("Name"));
    QCOMPARE(noValueText(), QStringLiteral("No value"));
}

void LanguageTest::theTextsGoWithTheLanguage()
{
    {
        const Language language(s_german);
        QCOMPARE(quantityName(Quantity::Force), QStringLiteral("Kraft"));
    }
    QCOMPARE(quantityName(Quantity::Force), QStringLiteral("Force"));
}

void LanguageTest::shortcutsInToolTips_readAsInMenus()
{
    const Language language(s_german);
    const MainWindow window;
    const QAction* save = nullptr;
    for (const QAction* action : window.actions())
        if (action->shortcut() == QKeySequence(QStringLiteral("Ctrl+S")))
            save = action;
    QVERIFY(save);
    const QString native = save->shortcut().toString(QKeySequence::NativeText);
    QVERIFY2(save->toolTip().endsWith(QStringLiteral("    ") + native),
             qPrintable(save->toolTip()));
    // Without Qt's own texts in German they cannot be distinguished.
    if (native != QStringLiteral("Ctrl+S"))
        QVERIFY(!save->toolTip().contains(QStringLiteral("Ctrl")));
    for (const QAction* action : window.actions())
        QVERIFY2(!action->toolTip().contains(QStringLiteral("Ctrl+")) ||
                     action->shortcut()
                         .toString(QKeySequence::NativeText)
                         .contains(QStringLiteral("Ctrl")),
                 qPrintable(action->toolTip()));
}

void LanguageTest::aKeyOfTheWindowLeadsToOnePlace_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::newRow("English") << s_english;
    QTest::newRow("German") << s_german;
}

void LanguageTest::aKeyOfTheWindowLeadsToOnePlace()
{
    QFETCH(QLocale, locale);
    const Language language(locale);
    const Testing::OpenedDesign design;
    MainWindow window;
    window.show();
    window.open({design.designFile()});
    window.tree().refreshNow();
    // Undo and Redo name what they act on.
    window.session().rename(Testing::objectId(10), QStringLiteral("One"));
    window.session().rename(Testing::objectId(10), QStringLiteral("Two"));
    window.history().undo();
    openRowMenu(window);
    QVERIFY(window.treeView().findChild<QMenu*>());
    QVERIFY(textsWithKeys(window).size() >= 8);
    for (const WindowMode mode : {WindowMode::Tube, WindowMode::Tandrel, WindowMode::Forming}) {
        window.commands().setMode(mode);
        QCOMPARE(lettersTwice(textsWithKeys(window), commandsByKey(window)), QString());
        for (const auto* menu : window.findChildren<QMenu*>())
            QCOMPARE(lettersTwice(textsOf(*menu)), QString());
    }
}

void LanguageTest::keysOfOtherWindows_leadToOnePlace()
{
    QFETCH(QLocale, locale);
    const Language language(locale);
    const StressWindow stress;
    const DialogPanel dialogs;
    const HelpWindow help;
    for (const QWidget* window : std::initializer_list<const QWidget*>{&stress, &dialogs, &help})
        QCOMPARE(lettersTwice(textsWithKeys(*window)), QString());
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::LanguageTest;
ZORVANE_TEST(LanguageTest)
#include "LanguageTest.moc"
