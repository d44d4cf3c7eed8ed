#pragma once

#include "Workbench/DialogPanel/DialogOutcome.h"
#include "Workbench/DialogPanel/DialogRun.h"

#include <QtWidgets/QDialog>

#include <memory>

QT_BEGIN_NAMESPACE
class QComboBox;
class QLabel;
class QListWidget;
class QPlainTextEdit;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

/**
 * Opens each variant of the library's file dialogs, by the system's dialogs or by Qt's, and tells
 * what came out, event by event: to look at them on a system that no test can look at. Nothing is
 * read or written but example files in a folder of its own.
 *
 * Not supported: opening one variant while another is open.
 */
class DialogPanel : public QDialog
{
    Q_OBJECT

public:
    explicit DialogPanel(QWidget* parent = nullptr);
    ~DialogPanel() override;

    const ExampleFiles& files() const { return *m_files; }
    void choose(DialogVariant variant, DialogShower shower = DialogShower::Usual);
    /** Opens what is chosen; returns when its dialogs are closed. Nothing if one is open. */
    void openChosen();
    /** What came out last, or comes out just now. */
    const DialogOutcome& outcome() const { return m_outcome; }
    QString resultText() const;

public Q_SLOTS:
    void reject() override;

private:
    QWidget* createChoice();
    QWidget* createResults();
    DialogVariant chosenVariant() const;
    void explain();
    void showOutcome(const DialogOutcome& outcome);
    void clearResults();

    const std::shared_ptr<const ExampleFiles> m_files;
    QListWidget* m_variants = nullptr;
    QComboBox* m_shower = nullptr;
    QLabel* m_explanation = nullptr;
    QPlainTextEdit* m_results = nullptr;
    QLabel* m_count = nullptr;
    QString m_earlier;
    DialogOutcome m_outcome;
    bool m_isOpen = false;
};

} // namespace Zorvane::Workbench
