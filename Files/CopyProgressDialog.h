#pragma once

#include "Files/CopyProgress.h"
#include "Files/CopyRate.h"
#include "UiToolsExport.h"

#include <QtWidgets/QDialog>

class QLabel;
class QProgressBar;
class QPushButton;

namespace Zorvane {

/**
 * Shows how far a copy is. Cancelling, by the button, Escape or closing, is only noted; the window
 * stays until whoever copies has tidied up and lets it go.
 */
class ZORVANE_UITOOLS_EXPORT CopyProgressDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CopyProgressDialog(QWidget* parent = nullptr);

    void showState(const CopyProgressState& state, const CopyRate& rate);
    bool isCancelled() const { return m_cancelled; }
    QPushButton* cancelButton() const { return m_cancel; }

    void reject() override;

private:
    QLabel* m_file;
    QProgressBar* m_bar;
    QLabel* m_amount;
    QLabel* m_speed;
    QPushButton* m_cancel;
    bool m_cancelled = false;
};

} // namespace Zorvane
