#include "Files/DialogCopyProgress.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>

#include <utility>

namespace Zorvane {

namespace {

constexpr qint64 s_showAfter = 500;
constexpr qint64 s_eventsEvery = 20;

} // namespace

DialogCopyProgress::DialogCopyProgress(QWidget* owner, Clock clock)
    : m_owner(owner)
    , m_clock(std::move(clock))
{}

DialogCopyProgress::~DialogCopyProgress()
{
    delete m_dialog;
}

DialogCopyProgress::Clock DialogCopyProgress::steadyClock()
{
    QElapsedTimer timer;
    timer.start();
    return [timer] { return timer.elapsed(); };
}

bool DialogCopyProgress::goOn(const CopyProgressState& state)
{
    const qint64 time = now();
    if (m_start < 0)
        m_start = m_lastEvents = time;
    if (time - m_lastEvents < s_eventsEvery)
        return !m_cancelled;
    m_rate.add(time, state.bytesDone);
    showDialogWhenDue();
    if (m_dialog)
        m_dialog->showState(state, m_rate);
    handleEvents();
    m_lastEvents = now();
    return !m_cancelled;
}

void DialogCopyProgress::showDialogWhenDue()
{
    if (m_wasShown || now() - m_start < s_showAfter)
        return;
    m_wasShown = true;
    m_dialog = new CopyProgressDialog(m_owner);
    m_dialog->show();
}

void DialogCopyProgress::handleEvents()
{
    QCoreApplication::processEvents(m_dialog ? QEventLoop::AllEvents
                                             : QEventLoop::ExcludeUserInputEvents);
    m_cancelled = m_cancelled || (m_wasShown && (!m_dialog || m_dialog->isCancelled()));
}

void DialogCopyProgress::pauseFor(const std::function<void(QWidget* parent)>& question)
{
    const qint64 before = m_clock();
    question(m_dialog ? m_dialog.data() : m_owner.data());
    m_paused += m_clock() - before;
}

} // namespace Zorvane
