#pragma once

#include "Files/CopyProgress.h"
#include "Files/CopyProgressDialog.h"
#include "UiToolsExport.h"

#include <QtCore/QPointer>

#include <functional>

namespace Zorvane {

/**
 * Keeps the program alive while it copies, and shows the progress dialog once a copy has taken half
 * a second; time that questions take does not count. Until the dialog is there input is kept for
 * later, so that nobody works in windows whose files are being copied.
 *
 * Once cancelled it stays so. The copy is also cancelled if the owner goes away while it is shown.
 */
class ZORVANE_UITOOLS_EXPORT DialogCopyProgress : public CopyProgress
{
public:
    /** Tells milliseconds of a clock that only goes forward. */
    using Clock = std::function<qint64()>;

    explicit DialogCopyProgress(QWidget* owner, Clock clock = steadyClock());
    ~DialogCopyProgress() override;

    bool goOn(const CopyProgressState& state) override;

    /** The clock stands still while `question` runs; it gets the window to stand above. */
    void pauseFor(const std::function<void(QWidget* parent)>& question);

    /** Null as long as it isn't shown. */
    CopyProgressDialog* dialog() const { return m_dialog; }

    static Clock steadyClock();

private:
    qint64 now() const { return m_clock() - m_paused; }
    void showDialogWhenDue();
    void handleEvents();

    QPointer<QWidget> m_owner;
    QPointer<CopyProgressDialog> m_dialog;
    Clock m_clock;
    CopyRate m_rate;
    qint64 m_paused = 0;
    qint64 m_start = -1;
    qint64 m_lastEvents = 0;
    bool m_wasShown = false;
    bool m_cancelled = false;
};

} // namespace Zorvane
