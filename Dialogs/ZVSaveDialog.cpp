#include "Dialogs/ZVSaveDialog.h"

#include "Dialogs/SaveButtons.h"
#include "Dialogs/SaveMessage.h"
#include "Dialogs/SaveState.h"
#include "Files/PathText.h"
#include "Host/Widgets/ZVMessageBox.h"

#include <QtCore/QPointer>
#include <QtCore/QScopeGuard>
#include <QtCore/QVariant>
#include <QtGui/QKeyEvent>
#include <QtGui/QKeySequence>
#include <QtWidgets/QPushButton>

namespace Zorvane {

namespace {

constexpr int s_maximumWidth = 300;

/**
 * Buttons have keys with Alt only: QMessageBox presses the button of a letter that is typed without
 * it, too, and typing on must not drop changes.
 */
class SaveBox : public ZVMessageBox
{
public:
    using ZVMessageBox::ZVMessageBox;

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        // Keys that type nothing begin there.
        const bool types = event->key() < Qt::Key_Escape;
        if (types &&
            !(event->modifiers() & (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier)))
            event->ignore();
        else
            ZVMessageBox::keyPressEvent(event);
    }
};

SaveSubject subjectOf(const DesignInterface& design)
{
    return {design.isNew(), pathForDisplay(pathFromBytes(design.getFileName().getLeafName()))};
}

/** Texts whose translation marks no letter have a key all the same. */
void label(QAbstractButton* button, const QString& text, Qt::Key key)
{
    if (!button)
        return;
    button->setText(text);
    if (button->shortcut().isEmpty())
        button->setShortcut(QKeySequence(Qt::ALT | key));
}

void labelButtons(const ZVMessageBox& box, ZVSaveDialog::Action action)
{
    label(box.button(QMessageBox::Save),
          action == ZVSaveDialog::ActionStart ? ZVSaveDialog::tr("Start")
                                              : ZVSaveDialog::tr("Save"),
          Qt::Key_S);
    label(box.button(QMessageBox::Discard), ZVSaveDialog::tr("Don't Save"), Qt::Key_N);
    label(box.button(s_saveAsButton), ZVSaveDialog::tr("Save As..."), Qt::Key_A);
}

void prepareKeys(ZVMessageBox& box, bool isSaveShown)
{
    if (QAbstractButton* save = box.button(QMessageBox::Save)) {
        save->setVisible(isSaveShown);
        // A change of style shows all buttons again.
        save->setEnabled(isSaveShown);
    }
    const auto chosen = defaultSaveButton(box.standardButtons(), isSaveShown);
    if (chosen != QMessageBox::NoButton)
        box.setDefaultButton(chosen);
    // A dialog without a default button takes the first that it finds.
    else if (auto* discard = qobject_cast<QPushButton*>(box.button(QMessageBox::Discard)))
        discard->setAutoDefault(false);
}

} // namespace

ZVSaveDialog::Result ZVSaveDialog::showDialog(QWidget* parent,
                                              std::shared_ptr<DesignInterface> design,
                                              Action action, bool silent, bool saveDisabled)
{
    if (QCoreApplication::instance()->property("SuppressSaveDialog").toBool())
        return ResultContinue;
    const SaveState state = saveStateOf(*design);
    const SaveMessage message = saveMessageFor(state, action, subjectOf(*design));
    SaveSwitches switches = SaveSwitches::ofApplication();
    switches.isSilent = silent;
    switches.isSaveDisabled = saveDisabled;

    // The parent may go away while the box is open, and takes it along.
    const QPointer<ZVMessageBox> box =
        new SaveBox(QMessageBox::Warning, tr("Warning"), message.toHtml(),
                    saveButtonsFor(action, switches), parent, saveWindowFlags(switches));
    const auto owner = qScopeGuard([&box] { delete box; });
    box->setTitleCloseButtonVisible(!switches.suppressesCancel);
    box->setMaximumWidth(s_maximumWidth);
    labelButtons(*box, action);
    prepareKeys(*box, isSaveShown(state, switches));
    if (silent)
        return ResultContinue;
    box->exec();
    return box ? saveResultOf(box->standardButton(box->clickedButton()), action) : ResultCancel;
}

} // namespace Zorvane
