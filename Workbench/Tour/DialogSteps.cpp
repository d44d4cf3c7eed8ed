#include "Workbench/Tour/DialogSteps.h"

#include "Workbench/Commands/WindowCommands.h"
#include "Workbench/DialogPanel/DialogPanel.h"
#include "Workbench/Tour/DialogAnswers.h"
#include "Workbench/Window/Appearance.h"
#include "Workbench/Window/MainWindow.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLineEdit>

namespace Zorvane::Workbench {

namespace {

constexpr QSize s_panelSize(1000, 640);
constexpr QSize s_dialogSize(640, 560);

/** The first of its check boxes, in a dialog that has one for its variant to act. */
void act(QDialog& dialog)
{
    if (auto* const box = dialog.findChild<QCheckBox*>())
        box->click();
}

void chooseBlock(QDialog& dialog)
{
    if (auto* const name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit")))
        name->setText(QStringLiteral("block.stl"));
    dialog.accept();
}

} // namespace

void DialogSteps::perform()
{
    m_report.beginStep(QStringLiteral("Every variant of the file dialogs"),
                       QStringLiteral("A window opens each of them and tells what came out: here "
                                      "by Qt's dialogs, in light and dark colours."));
    // As in askForNames: what the system shows cannot be answered from here.
    const bool isNative = !QCoreApplication::testAttribute(Qt::AA_DontUseNativeDialogs);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    m_window.commands()[WorkbenchActions::FileDialogs]->trigger();
    const QPointer<DialogPanel> panel = m_window.findChild<DialogPanel*>();
    m_report.expect(panel && panel->isVisible(), QStringLiteral("the window of the menu Tools"));
    if (panel) {
        panel->resize(s_panelSize);
        openAllVariants(*panel);
        delete panel;
    }
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, !isNative);
    m_window.activateWindow();
    m_report.expect(m_driver.waitFor([this] { return m_window.isActiveWindow(); }),
                    QStringLiteral("the main window again"));
}

void DialogSteps::openAllVariants(DialogPanel& panel)
{
    const auto open = [this, &panel](DialogVariant variant, DialogAnswers& answers) {
        panel.choose(variant, DialogShower::Qt);
        panel.openChosen();
        m_report.expect(answers.allGiven() && panel.outcome().isFinished &&
                            panel.outcome().openAfterwards == 0,
                        panel.outcome().title);
    };
    for (const DialogRun::Variant& variant : DialogRun::variants()) {
        DialogAnswers answers;
        answers.add([](QDialog& dialog) { dialog.reject(); });
        open(variant.id, answers);
    }
    for (const Appearance appearance : {Appearance::Dark, Appearance::Light}) {
        applyAppearance(*qApp, appearance);
        const QString suffix = appearance == Appearance::Dark ? QStringLiteral("-dark") : QString();
        DialogAnswers answers;
        answers.add([this, &suffix](QDialog& dialog) { lookAtControls(dialog, suffix); });
        open(DialogVariant::OpenControls, answers);
        m_report.expect(panel.resultText().contains(QStringLiteral("onItemSelected(3, 2)")),
                        QStringLiteral("the chosen unit"));
        m_driver.settle();
        m_report.addPicture(QStringLiteral("dialog-panel") + suffix, m_driver.pictureWith(panel));
    }
    openNestedDialogs(panel);
}

void DialogSteps::lookAtControls(QDialog& dialog, const QString& suffix)
{
    dialog.resize(s_dialogSize);
    for (auto* const box : dialog.findChildren<QCheckBox*>())
        box->click();
    for (auto* const box : dialog.findChildren<QComboBox*>())
        if (box->count() == 3 && box->currentIndex() == 1) {
            box->setCurrentIndex(2);
            Q_EMIT box->activated(2);
        }
    m_driver.settle();
    m_report.addPicture(QStringLiteral("dialog-controls") + suffix, m_driver.pictureWith(dialog));
    chooseBlock(dialog);
}

void DialogSteps::openNestedDialogs(DialogPanel& panel)
{
    DialogAnswers answers;
    QPointer<QDialog> outer;
    answers.add([&outer](QDialog& dialog) {
        outer = &dialog;
        dialog.resize(s_dialogSize);
        act(dialog);
        chooseBlock(dialog);
    });
    answers.add([this, &outer](QDialog& dialog) {
        dialog.resize(s_dialogSize);
        m_driver.settle();
        m_report.addPicture(QStringLiteral("dialog-in-a-dialog"),
                            m_driver.pictureWith(*outer, &dialog));
        chooseBlock(dialog);
    });
    panel.choose(DialogVariant::Nested, DialogShower::Qt);
    panel.openChosen();
    m_report.expect(answers.allGiven() && panel.outcome().mostOpen == 2,
                    QStringLiteral("two dialogs at once"));
    m_report.expect(panel.outcome().files.size() == 1, QStringLiteral("one file chosen"));
}

} // namespace Zorvane::Workbench
