#include "Dialogs/SaveButtons.h"
#include "Tests/Dialogs/SaveRules.h"
#include "Tests/Support/TestCase.h"

#include <map>

using namespace Zorvane;
using Testing::SaveCase;

namespace {

SaveSwitches switchesOf(const SaveCase& given)
{
    SaveSwitches switches;
    switches.isSilent = given.isSilent;
    switches.isSaveDisabled = given.isSaveDisabled;
    switches.suppressesCancel = given.suppressesCancel;
    switches.addsSaveAs = given.addsSaveAs;
    return switches;
}

SaveState stateOf(const SaveCase& given)
{
    SaveState state;
    state.isJobRunning = given.isRunning;
    return state;
}

const std::map<QMessageBox::StandardButton, QString> s_texts = {
    {QMessageBox::Cancel, QStringLiteral("Cancel")},
    {QMessageBox::Discard, QStringLiteral("Don't Save")},
    {QMessageBox::Save, QStringLiteral("Save")},
    {s_saveAsButton, QStringLiteral("Save As...")}};

/** As the rules name them. */
QString textOf(QMessageBox::StandardButton button, const SaveCase& given)
{
    if (button == QMessageBox::Save && given.action == ZVSaveDialog::ActionStart)
        return QStringLiteral("Start");
    const auto found = s_texts.find(button);
    return found == s_texts.end() ? QString() : found->second;
}

QStringList shown(const SaveCase& given)
{
    const QMessageBox::StandardButtons buttons = saveButtonsFor(given.action, switchesOf(given));
    QStringList texts;
    for (const auto button :
         {QMessageBox::Cancel, QMessageBox::Discard, QMessageBox::Save, s_saveAsButton}) {
        const bool isHidden =
            button == QMessageBox::Save && !isSaveShown(stateOf(given), switchesOf(given));
        if (buttons.testFlag(button) && !isHidden)
            texts.append(textOf(button, given));
    }
    return texts;
}

} // namespace

class SaveButtonsTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyCaseHasTheButtonsOfTheRules();
    void hiddenSaveIsThereAllTheSame();
    void enterNeverDropsChanges();
    void pressedButtonsMeanWhatTheRulesSay();
    void withoutCancelThereIsNoSystemMenu();
    void switchesAreTheApplicationsProperties();
};

void SaveButtonsTest::everyCaseHasTheButtonsOfTheRules()
{
    Testing::forEveryCase([](const SaveCase& given) {
        QCOMPARE(given.name() + shown(given).join(QLatin1Char('|')),
                 given.name() + Testing::SaveRules::shownButtons(given).join(QLatin1Char('|')));
    });
}

void SaveButtonsTest::hiddenSaveIsThereAllTheSame()
{
    Testing::forEveryCase([](const SaveCase& given) {
        const bool hasSave =
            saveButtonsFor(given.action, switchesOf(given)).testFlag(QMessageBox::Save);
        QCOMPARE(hasSave && !isSaveShown(stateOf(given), switchesOf(given)),
                 Testing::SaveRules::hasHiddenSave(given));
    });
}

void SaveButtonsTest::enterNeverDropsChanges()
{
    Testing::forEveryCase([](const SaveCase& given) {
        const SaveSwitches switches = switchesOf(given);
        const auto button = defaultSaveButton(saveButtonsFor(given.action, switches),
                                              isSaveShown(stateOf(given), switches));
        QVERIFY(button != QMessageBox::Discard);
        QCOMPARE(given.name() + textOf(button, given),
                 given.name() + Testing::SaveRules::enter(given));
    });
}

void SaveButtonsTest::pressedButtonsMeanWhatTheRulesSay()
{
    for (const auto action : {ZVSaveDialog::ActionSave, ZVSaveDialog::ActionStart,
                              ZVSaveDialog::ActionClose, ZVSaveDialog::ActionProceed}) {
        SaveCase given;
        given.action = action;
        for (const auto& [button, text] : s_texts)
            QCOMPARE(saveResultOf(button, action),
                     Testing::SaveRules::result(given, textOf(button, given)));
        QCOMPARE(saveResultOf(QMessageBox::NoButton, action), ZVSaveDialog::ResultCancel);
        QCOMPARE(saveResultOf(QMessageBox::Ok, action), ZVSaveDialog::ResultCancel);
    }
}

void SaveButtonsTest::withoutCancelThereIsNoSystemMenu()
{
    SaveSwitches switches;
    QCOMPARE(int(saveWindowFlags(switches)), 0x08003800);
    switches.suppressesCancel = true;
    QCOMPARE(int(saveWindowFlags(switches)), 0x0A001800);
}

void SaveButtonsTest::switchesAreTheApplicationsProperties()
{
    QVERIFY(!SaveSwitches::ofApplication().suppressesCancel);
    QVERIFY(!SaveSwitches::ofApplication().addsSaveAs);
    qApp->setProperty("SuppressCancelForSaveDialog", true);
    QVERIFY(SaveSwitches::ofApplication().suppressesCancel);
    QVERIFY(!SaveSwitches::ofApplication().addsSaveAs);
    // Settings files and scripts know texts and numbers only.
    qApp->setProperty("AddSaveAsToSaveDialog", QStringLiteral("true"));
    QVERIFY(SaveSwitches::ofApplication().addsSaveAs);
    qApp->setProperty("SuppressCancelForSaveDialog", 0);
    QVERIFY(!SaveSwitches::ofApplication().suppressesCancel);
    qApp->setProperty("SuppressCancelForSaveDialog", QVariant());
    qApp->setProperty("AddSaveAsToSaveDialog", QVariant());
}

ZORVANE_TEST(SaveButtonsTest)
#include "SaveButtonsTest.moc"
