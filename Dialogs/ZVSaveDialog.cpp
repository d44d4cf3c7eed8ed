#include "Dialogs/ZVSaveDialog.h"

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
/** Qt has no standard button for it. */
constexpr QMessageBox::StandardButton s_saveAsButton = QMessageBox::SaveAll;

/** What is asked, and how. */
struct SaveQuestion
{
    ZVSaveDialog::Action action;
    bool isSilent;
    bool isSaveDisabled;
    bool suppressesCancel;
    bool addsSaveAs;
    SaveState state;
    SaveSubject subject;

    /** Whether Save, if it is among the buttons, is shown. */
    bool isSaveShown() const { return !state.isJobRunning && !isSaveDisabled; }
};

bool isSwitchedOn(const char* property)
{
    return QCoreApplication::instance()->property(property).toBool();
}

SaveSubject subjectOf(const DesignInterface& design)
{
    return {design.isNew(), pathForDisplay(pathFromBytes(design.getFileName().getLeafName()))};
}

/** The buttons, the hidden ones too. */
QMessageBox::StandardButtons buttonsFor(const SaveQuestion& question)
{
    const bool isClosing = question.action == ZVSaveDialog::ActionClose;
    // Closing has Save to keep the changes; Save As is one more way, for those who asked for it.
    const bool offersSaveAs =
        isClosing && !question.isSaveDisabled ? question.addsSaveAs : !question.isSilent;
    QMessageBox::StandardButtons buttons;
    buttons.setFlag(QMessageBox::Cancel, !question.suppressesCancel);
    buttons.setFlag(QMessageBox::Discard, isClosing);
    buttons.setFlag(QMessageBox::Save, !question.isSaveDisabled);
    buttons.setFlag(s_saveAsButton, offersSaveAs && question.action != ZVSaveDialog::ActionProceed);
    return buttons;
}

/** What Enter presses at first: never anything that drops changes. `NoButton` for nothing. */
QMessageBox::StandardButton defaultButtonFor(const SaveQuestion& question)
{
    const QMessageBox::StandardButtons buttons = buttonsFor(question);
    if (buttons.testFlag(QMessageBox::Save) && question.isSaveShown())
        return QMessageBox::Save;
    if (buttons.testFlag(QMessageBox::Cancel))
        return QMessageBox::Cancel;
    return buttons.testFlag(s_saveAsButton) ? s_saveAsButton : QMessageBox::NoButton;
}

Qt::WindowFlags windowFlagsFor(const SaveQuestion& question)
{
    // Without a system menu, which could close the box, the window must be called a customized one.
    return Qt::WindowCloseButtonHint | Qt::WindowTitleHint | Qt::FramelessWindowHint |
           (question.suppressesCancel ? Qt::CustomizeWindowHint : Qt::WindowSystemMenuHint);
}

ZVSaveDialog::Result resultOf(QMessageBox::StandardButton pressed, ZVSaveDialog::Action action)
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

/** Texts whose translation marks no letter have a key all the same. */
void label(QAbstractButton* button, const QString& text, Qt::Key key)
{
    if (!button)
        return;
    button->setText(text);
    if (button->shortcut().isEmpty())
        button->setShortcut(QKeySequence(int(Qt::ALT) | key));
}

class SaveBox : public ZVMessageBox
{
public:
    SaveBox(const SaveQuestion& question, QWidget* parent)
        : ZVMessageBox(QMessageBox::Warning, {}, {}, buttonsFor(question), parent,
                       windowFlagsFor(question))
        , m_question(question)
    {
        setTitleCloseButtonVisible(!question.suppressesCancel);
        setMaximumWidth(s_maximumWidth);
        retranslate();
        if (QAbstractButton* save = button(QMessageBox::Save))
            save->setVisible(question.isSaveShown());
        const auto chosen = defaultButtonFor(question);
        if (chosen != QMessageBox::NoButton)
            setDefaultButton(chosen);
        // A dialog without a default button takes the first that it finds.
        else if (auto* discard = qobject_cast<QPushButton*>(button(QMessageBox::Discard)))
            discard->setAutoDefault(false);
    }

protected:
    bool event(QEvent* event) override
    {
        const bool isHandled = ZVMessageBox::event(event);
        if (event->type() == QEvent::LanguageChange)
            retranslate();
        return isHandled;
    }

    /**
     * Buttons have keys with Alt only: QMessageBox presses the button of a letter that is typed
     * without it, too, and typing on must not drop changes.
     */
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

private:
    void retranslate()
    {
        const bool isStarting = m_question.action == ZVSaveDialog::ActionStart;
        setWindowTitle(ZVSaveDialog::tr("Warning"));
        setText(saveMessageFor(m_question.state, m_question.action, m_question.subject));
        label(button(QMessageBox::Save),
              isStarting ? ZVSaveDialog::tr("Start") : ZVSaveDialog::tr("Save"), Qt::Key_S);
        label(button(QMessageBox::Discard), ZVSaveDialog::tr("Don't Save"), Qt::Key_N);
        label(button(s_saveAsButton), ZVSaveDialog::tr("Save As..."), Qt::Key_A);
    }

    const SaveQuestion m_question;
};

} // namespace

ZVSaveDialog::Result ZVSaveDialog::showDialog(QWidget* parent,
                                              std::shared_ptr<DesignInterface> design,
                                              Action action, bool silent, bool saveDisabled)
{
    if (isSwitchedOn("SuppressSaveDialog"))
        return ResultContinue;
    const SaveQuestion question{action,
                                silent,
                                saveDisabled,
                                isSwitchedOn("SuppressCancelForSaveDialog"),
                                isSwitchedOn("AddSaveAsToSaveDialog"),
                                saveStateOf(*design),
                                subjectOf(*design)};

    // The parent may be deleted while the box is open, and the box with it.
    const QPointer<ZVMessageBox> box = new SaveBox(question, parent);
    const auto owner = qScopeGuard([&box] { delete box; });
    if (silent)
        return ResultContinue;
    box->exec();
    return box ? resultOf(box->standardButton(box->clickedButton()), action) : ResultCancel;
}

} // namespace Zorvane
