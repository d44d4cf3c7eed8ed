#pragma once

#include "Tests/Support/Windows/DialogWindow.h"

#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <deque>
#include <functional>

namespace Zorvane::Testing {

/**
 * Works with the next native dialog from inside its event loop, where the test itself waits:
 *
 *     DialogPilot pilot;
 *     pilot.then([](const DialogWindow& dialog) { dialog.typeFileName(name); });
 *     pilot.then([](const DialogWindow& dialog) { dialog.accept(); });
 *     ... code that shows the dialog ...
 *     QVERIFY(pilot.isDone());
 *
 * One step a tick, the first when a dialog is visible that was not there before. A step whose
 * condition stays unmet fails the test and closes the dialog, as does a dialog that never comes to
 * be seen, or is still there long after the last step, so that nothing hangs.
 */
class DialogPilot : public QObject
{
    Q_OBJECT

public:
    using Step = std::function<void(const DialogWindow&)>;
    using Condition = std::function<bool(const DialogWindow&)>;

    DialogPilot();
    ~DialogPilot() override;

    void then(Step step);
    /** The next step waits until this is so. */
    void waitUntil(const char* description, Condition condition);

    /** Whether every step was made. */
    bool isDone() const { return m_steps.empty() && !m_hasFailed; }

private:
    struct Task
    {
        const char* description;
        Condition condition;
        Step step;
    };

    void tick();
    void makeStep();
    bool hasGone() const;
    bool isNew(const DialogWindow& dialog) const;
    bool findDialog();
    void giveUp();

    std::vector<HWND> m_known;
    DialogWindow m_dialog;
    std::deque<Task> m_steps;
    QTimer m_timer;
    int m_idleTicks = 0;
    bool m_isInStep = false;
    bool m_hasFailed = false;
};

} // namespace Zorvane::Testing
