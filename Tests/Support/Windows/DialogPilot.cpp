#include "Tests/Support/Windows/DialogPilot.h"

#include <QtTest/QtTest>

#include <algorithm>
#include <utility>

namespace Zorvane::Testing {

namespace {

constexpr int s_tickLength = 10;
/** After as many ticks without a step, on a busy machine too, the dialog is stuck. */
constexpr int s_mostIdleTicks = 6000;

} // namespace

DialogPilot::DialogPilot()
{
    for (const DialogWindow& dialog : DialogWindow::all())
        m_known.push_back(dialog.handle());
    connect(&m_timer, &QTimer::timeout, this, &DialogPilot::tick);
    m_timer.start(s_tickLength);
}

DialogPilot::~DialogPilot() = default;

void DialogPilot::then(Step step)
{
    m_steps.push_back({"a step", [](const DialogWindow&) { return true; }, std::move(step)});
}

void DialogPilot::waitUntil(const char* description, Condition condition)
{
    m_steps.push_back({description, std::move(condition), [](const DialogWindow&) {}});
}

void DialogPilot::tick()
{
    // A step may show a further dialog, in whose event loop ticks go on.
    if (m_isInStep || hasGone())
        return;
    const bool canStep = findDialog() && !m_steps.empty() && m_steps.front().condition(m_dialog);
    if (canStep)
        makeStep();
    else if (++m_idleTicks > s_mostIdleTicks)
        giveUp();
}

void DialogPilot::makeStep()
{
    const Task task = std::move(m_steps.front());
    m_steps.pop_front();
    m_idleTicks = 0;
    m_isInStep = true;
    task.step(m_dialog);
    m_isInStep = false;
}

bool DialogPilot::hasGone() const
{
    return m_dialog.handle() && !m_dialog.exists();
}

bool DialogPilot::isNew(const DialogWindow& dialog) const
{
    return std::find(m_known.begin(), m_known.end(), dialog.handle()) == m_known.end();
}

bool DialogPilot::findDialog()
{
    if (!m_dialog.handle()) {
        for (const DialogWindow& dialog : DialogWindow::all()) {
            if (isNew(dialog))
                m_dialog = dialog;
        }
    }
    return m_dialog.handle() != nullptr;
}

void DialogPilot::giveUp()
{
    m_hasFailed = true;
    m_idleTicks = 0;
    const char* missing = m_steps.empty() ? "an end" : m_steps.front().description;
    QTest::qFail(qPrintable(QStringLiteral("the dialog never came to this: ") +
                            QString::fromLatin1(missing)),
                 __FILE__, __LINE__);
    m_steps.clear();
    if (m_dialog.handle())
        m_dialog.close();
    // One that never came to be seen holds the test up as well.
    for (const DialogWindow& dialog : DialogWindow::allHidden()) {
        if (isNew(dialog))
            dialog.close();
    }
}

} // namespace Zorvane::Testing
