#include "Dialogs/SaveButtons.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QVariant>

namespace Zorvane {

SaveSwitches SaveSwitches::ofApplication()
{
    const QCoreApplication* application = QCoreApplication::instance();
    SaveSwitches switches;
    switches.suppressesCancel = application->property("SuppressCancelForSaveDialog").toBool();
    switches.addsSaveAs = application->property("AddSaveAsToSaveDialog").toBool();
    return switches;
}

QMessageBox::StandardButtons saveButtonsFor(ZVSaveDialog::Action action,
                                            const SaveSwitches& switches)
{
    const bool isClosing = action == ZVSaveDialog::ActionClose;
    // Closing has Save to keep the changes; Save As is one more way for those who asked for it.
    const bool offersSaveAs =
        isClosing && !switches.isSaveDisabled ? switches.addsSaveAs : !switches.isSilent;
    QMessageBox::StandardButtons buttons;
    buttons.setFlag(QMessageBox::Cancel, !switches.suppressesCancel);
    buttons.setFlag(QMessageBox::Discard, isClosing);
    buttons.setFlag(QMessageBox::Save, !switches.isSaveDisabled);
    buttons.setFlag(s_saveAsButton, offersSaveAs && action != ZVSaveDialog::ActionProceed);
    return buttons;
}

bool isSaveShown(const SaveState& state, const SaveSwitches& switches)
{
    return !state.isJobRunning && !switches.isSaveDisabled;
}

QMessageBox::StandardButton defaultSaveButton(QMessageBox::StandardButtons buttons,
                                              bool isSaveShown)
{
    if (buttons.testFlag(QMessageBox::Save) && isSaveShown)
        return QMessageBox::Save;
    if (buttons.testFlag(QMessageBox::Cancel))
        return QMessageBox::Cancel;
    return buttons.testFlag(s_saveAsButton) ? s_saveAsButton : QMessageBox::NoButton;
}

Qt::WindowFlags saveWindowFlags(const SaveSwitches& switches)
{
    // Without a system menu, which could close the box, the window must be called a customized one.
    return Qt::WindowCloseButtonHint | Qt::WindowTitleHint | Qt::FramelessWindowHint |
           (switches.suppressesCancel ? Qt::CustomizeWindowHint : Qt::WindowSystemMenuHint);
}

ZVSaveDialog::Result saveResultOf(QMessageBox::StandardButton pressed, ZVSaveDialog::Action action)
{
    switch (pressed) {
    case QMessageBox::Save:
        return action == ZVSaveDialog::ActionStart ? ZVSaveDialog::ResultStart
                                                   : ZVSaveDialog::ResultSave;
    case s_saveAsButton:
        return ZVSaveDialog::ResultSaveAs;
    case QMessageBox::Discard:
        return ZVSaveDialog::ResultContinue;
    default:
        return ZVSaveDialog::ResultCancel;
    }
}

} // namespace Zorvane
