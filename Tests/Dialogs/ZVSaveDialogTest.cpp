#include "Dialogs/ZVSaveDialog.h"

#include "Host/Widgets/ZVMessageBox.h"
#include "Tests/Dialogs/SaveRules.h"
#include "Tests/Dialogs/ScriptedDesign.h"
#include "Tests/Support/ExpectedModals.h"
#include "Tests/Support/GermanTexts.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QPointer>
#include <QtCore/QSet>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTranslator>
#include <QtGui/QFontMetrics>
#include <QtGui/QTextDocument>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolButton>

#include <functional>
#include <optional>
#include <utility>

using namespace Zorvane;
using Testing::SaveCase;
using Testing::ScriptedDesign;

namespace SaveRules = Testing::SaveRules;

namespace {

const QString s_leaf = QStringLiteral("door.dsg");
const QString s_warning = QStringLiteral("^Warning$");

void setSwitch(const char* name, bool value)
{
    qApp->setProperty(name, value ? QVariant(true) : QVariant());
}

void storeSwitches(const SaveCase& given)
{
    setSwitch("SuppressCancelForSaveDialog", given.suppressesCancel);
    setSwitch("AddSaveAsToSaveDialog", given.addsSaveAs);
}

/** In the order of the rules, Qt's Cancel by whatever text it has. */
QStringList visibleTexts(const QMessageBox& box)
{
    QStringList texts;
    for (const auto button :
         {QMessageBox::Cancel, QMessageBox::Discard, QMessageBox::Save, QMessageBox::SaveAll}) {
        const QAbstractButton* found = box.button(button);
        if (found && found->isVisible())
            texts.append(button == QMessageBox::Cancel ? QStringLiteral("Cancel") : found->text());
    }
    return texts;
}

QAbstractButton* buttonOf(const QMessageBox& box, const QString& text)
{
    if (text == QStringLiteral("Cancel"))
        return box.button(QMessageBox::Cancel);
    for (QAbstractButton* button : box.buttons())
        if (button->text() == text)
            return button;
    return nullptr;
}

QToolButton* titleCloseButton(const QWidget& box)
{
    return box.findChild<QToolButton*>(QStringLiteral("titleCloseButton"));
}

/** Takes down which texts are asked for in which context. */
class ContextRecorder : public QTranslator
{
public:
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        m_asked.insert(QString::fromUtf8(context) + QLatin1Char(':') + QString::fromUtf8(source));
        return {};
    }
    bool isEmpty() const override { return false; }
    bool wasAsked(const char* context, const char* source) const
    {
        return m_asked.contains(QString::fromUtf8(context) + QLatin1Char(':') +
                                QString::fromUtf8(source));
    }

private:
    mutable QSet<QString> m_asked;
};

} // namespace

class ZVSaveDialogTest : public Testing::TestCase
{
    Q_OBJECT

private:
    using Answer = std::function<void(QMessageBox&)>;

    std::shared_ptr<ScriptedDesign> design(const SaveCase& given) const
    {
        return std::make_shared<ScriptedDesign>(given, m_folder.filePath(s_leaf));
    }
    ZVSaveDialog::Result ask(const SaveCase& given, const Answer& answer) const;
    ZVSaveDialog::Result press(const SaveCase& given, const QString& text) const;
    /** The text of the box that asks before the design of this file is closed. */
    QString textFor(const QString& file) const;

    const QTemporaryDir m_folder;

private Q_SLOTS:
    void cleanup();
    void everyStateOfADesignIsShownAsTheRulesSay();
    void everySwitchShowsItsButtonsAndEachAnswersAsTheRulesSay();
    void enterPressesWhatTheRulesSay();
    void escapeCancelsOrDoesNothing();
    void closingTheWindowIsEscape();
    void titleCloseButtonCancels();
    void keysPressButtons_data();
    void keysPressButtons();
    void lettersWithoutAltPressNothing_data();
    void lettersWithoutAltPressNothing();
    void boxLooksAsItShould();
    void boxWithoutCancelLooksAsItShould();
    void boxWithNothingToPressHasAWayOut();
    void onlyDontSaveTakesADeliberateKey();
    void boxThatGoesWithItsParentCancels();
    void suppressedDialogAsksNothing();
    void silentCallShowsNothing();
    void modificationIsAskedOfTheLastSave();
    void designIsReleased();
    void jobThatEndedMeanwhileDoesNotCount();
    void textsAreAskedForInTheirContexts();
    void asksInTheUsersLanguage();
    void changedStyle_keepsSaveHidden();
    void changedLanguage_changesAllTexts();
    void switchesOfScripts_areTextsAndNumbersToo();
    void designWithoutFileHasAnEmptyName();
    void longNamesAreBroken();
    void namesAreNoMarkUp_data();
    void namesAreNoMarkUp();
};

ZVSaveDialog::Result ZVSaveDialogTest::ask(const SaveCase& given, const Answer& answer) const
{
    const auto asked = design(given);
    if (asked->isJobMarked() != given.isRunning)
        qWarning("The job of the design could not be marked.");
    storeSwitches(given);
    Testing::ExpectedModals modals;
    if (!given.isSilent)
        modals.expectMessageBox(s_warning, answer);
    const auto result = ZVSaveDialog::showDialog(nullptr, asked, given.action, given.isSilent,
                                                 given.isSaveDisabled);
    storeSwitches({});
    return result;
}

ZVSaveDialog::Result ZVSaveDialogTest::press(const SaveCase& given, const QString& text) const
{
    return ask(given,
               [&](QMessageBox& box) { QTest::mouseClick(buttonOf(box, text), Qt::LeftButton); });
}

void ZVSaveDialogTest::cleanup()
{
    storeSwitches({});
    setSwitch("SuppressSaveDialog", false);
    TestCase::cleanup();
}

void ZVSaveDialogTest::everyStateOfADesignIsShownAsTheRulesSay()
{
    Testing::forEveryDesign([this](const SaveCase& given) {
        QString text;
        ask(given, [&text](QMessageBox& box) {
            text = box.text();
            box.button(QMessageBox::Cancel)->click();
        });
        QCOMPARE(given.name() + text, given.name() + SaveRules::html(given, s_leaf));
    });
}

void ZVSaveDialogTest::everySwitchShowsItsButtonsAndEachAnswersAsTheRulesSay()
{
    Testing::forEverySwitch([this](const SaveCase& given) {
        if (given.isSilent)
            return;
        const QStringList texts = SaveRules::shownButtons(given);
        for (const QString& text : texts) {
            const auto result = ask(given, [&](QMessageBox& box) {
                QCOMPARE(given.name() + visibleTexts(box).join(QLatin1Char('|')),
                         given.name() + texts.join(QLatin1Char('|')));
                QCOMPARE(titleCloseButton(box)->isVisible(), !given.suppressesCancel);
                QTest::mouseClick(buttonOf(box, text), Qt::LeftButton);
            });
            QCOMPARE(result, SaveRules::result(given, text));
        }
    });
}

void ZVSaveDialogTest::enterPressesWhatTheRulesSay()
{
    Testing::forEverySwitch([this](const SaveCase& given) {
        const QString expected = SaveRules::enter(given);
        if (given.isSilent)
            return;
        const auto result = ask(given, [&](QMessageBox& box) {
            QTest::keyClick(&box, Qt::Key_Return);
            const bool isCaught = expected.isEmpty() && !SaveRules::canBeClosed(given);
            QCOMPARE(box.isVisible(), isCaught);
            if (isCaught)
                box.button(QMessageBox::Discard)->click();
        });
        if (!expected.isEmpty())
            QCOMPARE(result, SaveRules::result(given, expected));
    });
}

void ZVSaveDialogTest::escapeCancelsOrDoesNothing()
{
    Testing::forEverySwitch([this](const SaveCase& given) {
        if (given.isSilent)
            return;
        const bool closes = SaveRules::canBeClosed(given);
        const auto result = ask(given, [&](QMessageBox& box) {
            QTest::keyClick(&box, Qt::Key_Escape);
            QCOMPARE(box.isVisible(), !closes);
            if (!closes)
                buttonOf(box, SaveRules::shownButtons(given).front())->click();
        });
        if (closes)
            QCOMPARE(result, ZVSaveDialog::ResultCancel);
    });
}

void ZVSaveDialogTest::closingTheWindowIsEscape()
{
    Testing::forEverySwitch([this](const SaveCase& given) {
        if (given.isSilent)
            return;
        const bool closes = SaveRules::canBeClosed(given);
        const auto result = ask(given, [&](QMessageBox& box) {
            QCOMPARE(box.close(), closes);
            if (!closes)
                buttonOf(box, SaveRules::shownButtons(given).front())->click();
        });
        if (closes)
            QCOMPARE(result, ZVSaveDialog::ResultCancel);
    });
}

void ZVSaveDialogTest::titleCloseButtonCancels()
{
    SaveCase given;
    given.action = ZVSaveDialog::ActionClose;
    QCOMPARE(
        ask(given,
            [](QMessageBox& box) { QTest::mouseClick(titleCloseButton(box), Qt::LeftButton); }),
        ZVSaveDialog::ResultCancel);
}

void ZVSaveDialogTest::keysPressButtons_data()
{
    QTest::addColumn<int>("action");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("result");
    QTest::newRow("Alt+S saves") << int(ZVSaveDialog::ActionClose) << int(Qt::Key_S)
                                 << int(ZVSaveDialog::ResultSave);
    QTest::newRow("Alt+S starts") << int(ZVSaveDialog::ActionStart) << int(Qt::Key_S)
                                  << int(ZVSaveDialog::ResultStart);
    QTest::newRow("Alt+N doesn't save")
        << int(ZVSaveDialog::ActionClose) << int(Qt::Key_N) << int(ZVSaveDialog::ResultContinue);
    QTest::newRow("Alt+A saves elsewhere")
        << int(ZVSaveDialog::ActionSave) << int(Qt::Key_A) << int(ZVSaveDialog::ResultSaveAs);
}

void ZVSaveDialogTest::keysPressButtons()
{
    QFETCH(int, action);
    QFETCH(int, key);
    QFETCH(int, result);
    SaveCase given;
    given.action = ZVSaveDialog::Action(action);
    const auto answer = ask(given, [key](QMessageBox& box) {
        QVERIFY(QTest::qWaitForWindowActive(&box, Zorvane::Testing::patience));
        QTest::keyClick(&box, Qt::Key(key), Qt::AltModifier);
        QTRY_VERIFY(!box.isVisible());
    });
    QCOMPARE(int(answer), result);
}

void ZVSaveDialogTest::lettersWithoutAltPressNothing_data()
{
    QTest::addColumn<bool>("isGerman");
    QTest::addColumn<QString>("dontSave");
    QTest::newRow("English") << false << "Don't Save";
    QTest::newRow("German") << true << "&Nicht speichern";
}

void ZVSaveDialogTest::lettersWithoutAltPressNothing()
{
    QFETCH(bool, isGerman);
    QFETCH(QString, dontSave);
    std::optional<Testing::GermanTexts> german;
    if (isGerman)
        QVERIFY(german.emplace().isInstalled());
    Testing::ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("door.dsg"), [&dontSave](QMessageBox& box) {
        QCOMPARE(box.button(QMessageBox::Discard)->text(), dontSave);
        for (int letter = Qt::Key_A; letter <= Qt::Key_Z; ++letter) {
            for (const auto modifier : {Qt::NoModifier, Qt::ShiftModifier}) {
                QTest::keyClick(box.focusWidget(), Qt::Key(letter), modifier);
                // What a key presses stays down for a moment.
                for (const QAbstractButton* button : box.buttons())
                    QVERIFY2(!button->isDown(), qPrintable(button->text()));
            }
        }
        box.button(QMessageBox::Cancel)->click();
    });
    SaveCase given;
    given.action = ZVSaveDialog::ActionClose;
    setSwitch("AddSaveAsToSaveDialog", true);
    QCOMPARE(ZVSaveDialog::showDialog(nullptr, design(given), given.action, false, false),
             ZVSaveDialog::ResultCancel);
}

void ZVSaveDialogTest::boxLooksAsItShould()
{
    SaveCase given;
    given.action = ZVSaveDialog::ActionClose;
    given.addsSaveAs = true;
    ask(given, [](QMessageBox& box) {
        QVERIFY(qobject_cast<ZVMessageBox*>(&box));
        QCOMPARE(box.icon(), QMessageBox::Warning);
        QCOMPARE(box.windowTitle(), QStringLiteral("Warning"));
        const Qt::WindowFlags flags(0x08003800);
        QCOMPARE(box.windowFlags() & (flags | Qt::CustomizeWindowHint), flags);
        QCOMPARE(box.defaultButton(), box.button(QMessageBox::Save));
        QCOMPARE(box.focusWidget(), box.button(QMessageBox::Save));
        // No wider than that, unless the buttons need it.
        int buttons = 0;
        for (const QAbstractButton* button : box.buttons())
            buttons += button->width();
        QVERIFY(box.width() <= std::max(300, buttons + 100));
        box.button(QMessageBox::Cancel)->click();
    });
}

void ZVSaveDialogTest::boxWithoutCancelLooksAsItShould()
{
    SaveCase given;
    given.action = ZVSaveDialog::ActionClose;
    given.suppressesCancel = true;
    ask(given, [](QMessageBox& box) {
        const Qt::WindowFlags flags(0x0A001800);
        QCOMPARE(box.windowFlags() & (flags | Qt::WindowSystemMenuHint), flags);
        QVERIFY(!box.button(QMessageBox::Cancel));
        QVERIFY(!titleCloseButton(box)->isVisible());
        box.button(QMessageBox::Save)->click();
    });
}

void ZVSaveDialogTest::boxWithNothingToPressHasAWayOut()
{
    SaveCase given;
    given.action = ZVSaveDialog::ActionProceed;
    given.suppressesCancel = true;
    for (const bool isRunning : {true, false}) {
        given.isRunning = isRunning;
        given.isSaveDisabled = !isRunning;
        QCOMPARE(ask(given,
                     [](QMessageBox& box) {
                         QVERIFY(visibleTexts(box).isEmpty());
                         QVERIFY(box.button(QMessageBox::Ok)->isVisible());
                         box.button(QMessageBox::Ok)->click();
                     }),
                 ZVSaveDialog::ResultCancel);
    }
}

void ZVSaveDialogTest::onlyDontSaveTakesADeliberateKey()
{
    SaveCase given;
    given.action = ZVSaveDialog::ActionClose;
    given.isRunning = true;
    given.suppressesCancel = true;
    const auto result = ask(given, [](QMessageBox& box) {
        QAbstractButton* dontSave = box.button(QMessageBox::Discard);
        QVERIFY(!qobject_cast<QPushButton*>(dontSave)->isDefault());
        QTest::keyClick(&box, Qt::Key_Return);
        QTest::keyClick(&box, Qt::Key_Enter);
        QVERIFY(box.isVisible());
        QTest::keyClick(dontSave, Qt::Key_Space);
    });
    QCOMPARE(result, ZVSaveDialog::ResultContinue);
}

void ZVSaveDialogTest::boxThatGoesWithItsParentCancels()
{
    SaveCase given;
    given.action = ZVSaveDialog::ActionClose;
    const QPointer<QWidget> parent = new QWidget;
    parent->show();
    Testing::ExpectedModals modals;
    modals.expectMessageBox(s_warning, [parent](QMessageBox&) { delete parent; });
    QCOMPARE(ZVSaveDialog::showDialog(parent, design(given), given.action, false, false),
             ZVSaveDialog::ResultCancel);
    QVERIFY(!parent);
}

void ZVSaveDialogTest::suppressedDialogAsksNothing()
{
    setSwitch("SuppressSaveDialog", true);
    SaveCase given;
    given.action = ZVSaveDialog::ActionStart;
    given.isModified = true;
    const Testing::ExpectedModals none;
    const auto asked = design(given);
    QCOMPARE(ZVSaveDialog::showDialog(nullptr, asked, given.action, false, false),
             ZVSaveDialog::ResultContinue);
    QCOMPARE(asked->questions(), 0);
    QVERIFY(none.allMet());
}

void ZVSaveDialogTest::silentCallShowsNothing()
{
    Testing::forEverySwitch([this](SaveCase given) {
        given.isSilent = true;
        QCOMPARE(ask(given, {}), ZVSaveDialog::ResultContinue);
    });
    Testing::forEveryDesign([this](SaveCase given) {
        given.isSilent = true;
        QCOMPARE(ask(given, {}), ZVSaveDialog::ResultContinue);
    });
}

void ZVSaveDialogTest::modificationIsAskedOfTheLastSave()
{
    const auto asked = design({});
    QCOMPARE(ZVSaveDialog::showDialog(nullptr, asked, ZVSaveDialog::ActionStart, true, false),
             ZVSaveDialog::ResultContinue);
    QCOMPARE(asked->askedState(), 0);
}

void ZVSaveDialogTest::designIsReleased()
{
    const auto asked = design({});
    for (const bool isSilent : {true, false}) {
        Testing::ExpectedModals modals;
        if (!isSilent)
            modals.expectMessageBox(s_warning, QMessageBox::Cancel);
        ZVSaveDialog::showDialog(nullptr, asked, ZVSaveDialog::ActionSave, isSilent, false);
        QCOMPARE(asked.use_count(), 1L);
    }
    setSwitch("SuppressSaveDialog", true);
    ZVSaveDialog::showDialog(nullptr, asked, ZVSaveDialog::ActionSave, false, false);
    QCOMPARE(asked.use_count(), 1L);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void ZVSaveDialogTest::jobThatEndedMeanwhileDoesNotCount()
{
    SaveCase given;
    given.action = ZVSaveDialog::ActionStart;
    given.isRunning = true;
    QCOMPARE(press(given, QStringLiteral("Save As...")), ZVSaveDialog::ResultSaveAs);
    given.isRunning = false;
    QCOMPARE(press(given, QStringLiteral("Start")), ZVSaveDialog::ResultStart);
}

void ZVSaveDialogTest::textsAreAskedForInTheirContexts()
{
    ContextRecorder recorder;
    QVERIFY(QCoreApplication::installTranslator(&recorder));
    SaveCase given;
    given.action = ZVSaveDialog::ActionClose;
    given.addsSaveAs = true;
    given.isOldVersion = true;
    press(given, QStringLiteral("Cancel"));
    for (const char* text : {"Warning", "Save", "Don't Save", "Save As..."}) {
        QVERIFY(recorder.wasAsked("Zorvane::ZVSaveDialog", text));
        QVERIFY(!recorder.wasAsked("ZVSaveDialog", text));
    }
    for (const char* text :
         {"The current design has not been saved since the last change and was created with a "
          "previous version.",
          "Do you want to save the changes to \"%1\" prior to closing?",
          "If you confirm this action the consequences will be",
          "Convert:", "The design will be converted to the current version."}) {
        QVERIFY2(recorder.wasAsked("ZVSaveDialog", text), text);
        QVERIFY(!recorder.wasAsked("Zorvane::ZVSaveDialog", text));
    }
}

void ZVSaveDialogTest::asksInTheUsersLanguage()
{
    const Testing::GermanTexts german;
    QVERIFY(german.isInstalled());
    SaveCase given;
    given.action = ZVSaveDialog::ActionClose;
    const auto asked = design(given);
    Testing::ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("^Warnung$"), [](QMessageBox& box) {
        QVERIFY(box.text().contains(QString::fromUtf8("in „door.dsg“ speichern?")));
        QCOMPARE(box.button(QMessageBox::Save)->text(), QStringLiteral("&Speichern"));
        QCOMPARE(box.button(QMessageBox::Discard)->shortcut(),
                 QKeySequence(int(Qt::ALT) | Qt::Key_N));
        box.button(QMessageBox::Discard)->click();
    });
    QCOMPARE(ZVSaveDialog::showDialog(nullptr, asked, given.action, false, false),
             ZVSaveDialog::ResultContinue);
}

void ZVSaveDialogTest::changedStyle_keepsSaveHidden()
{
    SaveCase given;
    given.action = ZVSaveDialog::ActionClose;
    given.isRunning = true;
    given.addsSaveAs = true;
    const auto result = ask(given, [&given](QMessageBox& box) {
        const QStringList before = visibleTexts(box);
        QCOMPARE(before, SaveRules::shownButtons(given));
        box.setStyleSheet(QStringLiteral("QPushButton { padding: 3px; }"));
        QCOMPARE(visibleTexts(box), before);
        QTest::keyClick(&box, Qt::Key_Return);
    });
    QCOMPARE(result, ZVSaveDialog::ResultCancel);
}

void ZVSaveDialogTest::changedLanguage_changesAllTexts()
{
    SaveCase given;
    given.action = ZVSaveDialog::ActionClose;
    given.addsSaveAs = true;
    const auto result = ask(given, [&given](QMessageBox& box) {
        {
            const Testing::GermanTexts german;
            QVERIFY(german.isInstalled());
            QCoreApplication::processEvents();
            QCOMPARE(box.windowTitle(), QStringLiteral("Warnung"));
            QVERIFY(box.text().contains(QString::fromUtf8("in „door.dsg“ speichern?")));
            QCOMPARE(box.button(QMessageBox::Save)->text(), QStringLiteral("&Speichern"));
            QCOMPARE(box.button(QMessageBox::SaveAll)->text(),
                     QStringLiteral("Speichern &unter..."));
        }
        QCoreApplication::processEvents();
        QCOMPARE(box.windowTitle(), QStringLiteral("Warning"));
        QCOMPARE(box.text(), SaveRules::html(given, s_leaf));
        QCOMPARE(visibleTexts(box), SaveRules::shownButtons(given));
        QVERIFY(QTest::qWaitForWindowActive(&box, Zorvane::Testing::patience));
        QTest::keyClick(&box, Qt::Key_A, Qt::AltModifier);
        QTRY_VERIFY(!box.isVisible());
    });
    QCOMPARE(result, ZVSaveDialog::ResultSaveAs);
}

/** Settings files and scripts know texts and numbers only. */
void ZVSaveDialogTest::switchesOfScripts_areTextsAndNumbersToo()
{
    SaveCase given;
    given.action = ZVSaveDialog::ActionClose;
    Testing::ExpectedModals modals;
    modals.expectMessageBox(s_warning, [](QMessageBox& box) {
        QVERIFY(box.button(QMessageBox::SaveAll));
        QVERIFY(box.button(QMessageBox::Cancel));
        box.reject();
    });
    qApp->setProperty("AddSaveAsToSaveDialog", QStringLiteral("true"));
    qApp->setProperty("SuppressCancelForSaveDialog", 0);
    ZVSaveDialog::showDialog(nullptr, design(given), given.action, false, false);
}

QString ZVSaveDialogTest::textFor(const QString& file) const
{
    SaveCase given;
    given.action = ZVSaveDialog::ActionClose;
    QString text;
    Testing::ExpectedModals modals;
    modals.expectMessageBox(s_warning, [&text](QMessageBox& box) {
        text = box.text();
        box.reject();
    });
    ZVSaveDialog::showDialog(nullptr, std::make_shared<ScriptedDesign>(given, file), given.action,
                             false, false);
    return text;
}

void ZVSaveDialogTest::designWithoutFileHasAnEmptyName()
{
    QVERIFY(textFor({}).contains(
        QStringLiteral("Do you want to save the changes to \"\" prior to closing?")));
}

void ZVSaveDialogTest::longNamesAreBroken()
{
    const QString name(200, QLatin1Char('m'));
    const QString text = textFor(m_folder.filePath(name));
    const QStringList lines =
        text.mid(text.indexOf(QLatin1Char('"'))).split(QStringLiteral("<br>"));
    QVERIFY(lines.size() > 3);
    const QFontMetrics metrics(QApplication::font("QMessageBox"));
    // The first and the last two are not of the name only.
    for (const QString& line : lines.mid(1, lines.size() - 3))
        QVERIFY(metrics.horizontalAdvance(line) <= 300);
    QVERIFY(QString(text).remove(QStringLiteral("<br>")).contains(name));
}

void ZVSaveDialogTest::namesAreNoMarkUp_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("tags") << QStringLiteral("<b>door<b>.dsg");
    QTest::newRow("entity") << QStringLiteral("R&amp;D.dsg");
    QTest::newRow("quotes") << QStringLiteral("\"door\".dsg");
    QTest::newRow("placeholder") << QStringLiteral("%1 %2.dsg");
    QTest::newRow("umlauts") << QString::fromUtf8("Tür außen – 左.dsg");
}

void ZVSaveDialogTest::namesAreNoMarkUp()
{
    QFETCH(QString, name);
    QTextDocument document;
    document.setHtml(textFor(m_folder.filePath(name)));
    const QString text = document.toPlainText();
    QVERIFY2(text.contains(QLatin1Char('"') + name + QLatin1Char('"')), qPrintable(text));
}

ZORVANE_TEST(ZVSaveDialogTest)
#include "ZVSaveDialogTest.moc"
