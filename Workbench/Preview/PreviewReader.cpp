#include "Workbench/Preview/PreviewReader.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>
#include <QtCore/QProcess>

namespace Zorvane::Workbench {

namespace {

constexpr int s_endMilliseconds = 1000;

/** Holds what is about to end, also at the program's end: to delete it would be to wait for it. */
QObject* ending()
{
    static QObject* const s_ending = new QObject;
    return s_ending;
}

/** The object goes once the system has ended the process, which nobody waits for. */
void end(QProcess* process)
{
    process->disconnect();
    process->setParent(ending());
    QObject::connect(process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), process,
                     &QObject::deleteLater);
    if (process->state() == QProcess::NotRunning)
        process->deleteLater();
    else
        process->kill();
}

} // namespace

PreviewProgram PreviewProgram::own()
{
    return {QCoreApplication::applicationFilePath(), {}};
}

PreviewReader::PreviewReader(QObject* parent)
    : PreviewReader(PreviewProgram::own(), parent)
{}

PreviewReader::PreviewReader(const PreviewProgram& program, QObject* parent)
    : QObject(parent)
    , m_program(program)
{
    qRegisterMetaType<PreviewContent>();
    m_timeLimit.setSingleShot(true);
    connect(&m_timeLimit, &QTimer::timeout, this, [this] {
        giveUp(tr("takes longer than %1 s to read")
                   .arg(QLocale().toString(m_request.limits.milliseconds / 1000.0)));
    });
}

PreviewReader::~PreviewReader()
{
    QProcess* process = takeProcess();
    if (process == nullptr)
        return;
    process->kill();
    // One that hangs in the system outlives the wait, and its object, rather than keep us here.
    if (process->waitForFinished(s_endMilliseconds))
        delete process;
}

void PreviewReader::request(const PreviewRequest& request)
{
    cancel();
    m_request = request;
    start();
}

void PreviewReader::cancel()
{
    if (QProcess* process = takeProcess())
        end(process);
}

/** None of its signals reach us afterwards. */
QProcess* PreviewReader::takeProcess()
{
    QProcess* process = m_process;
    m_process.clear();
    m_answer.clear();
    m_timeLimit.stop();
    if (process != nullptr) {
        process->disconnect();
        process->setParent(nullptr);
    }
    return process;
}

void PreviewReader::start()
{
    m_process = new QProcess(this);
    m_process->setStandardInputFile(QProcess::nullDevice());
    m_process->setStandardErrorFile(QProcess::nullDevice());
    connect(m_process, &QProcess::readyReadStandardOutput, this, &PreviewReader::collect);
    connect(m_process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            &PreviewReader::finish);
    // Told from within start() on some systems, and answers come from the event loop only.
    connect(
        m_process, &QProcess::errorOccurred, this,
        [this, process = m_process](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart && process && process == m_process)
                giveUp(tr("cannot be read: no process can be started for it"));
        },
        Qt::QueuedConnection);
    m_process->start(m_program.path, m_program.arguments + m_request.arguments());
    m_timeLimit.start(m_request.limits.milliseconds);
}

void PreviewReader::collect()
{
    m_answer += m_process->readAllStandardOutput();
    if (m_answer.size() > PreviewContent::largestSize)
        giveUp(tr("makes a preview that is too large"));
}

void PreviewReader::finish()
{
    m_answer += m_process->readAllStandardOutput();
    const bool isGood =
        m_process->exitStatus() == QProcess::NormalExit && m_process->exitCode() == EXIT_SUCCESS;
    const std::optional<PreviewContent> content =
        isGood ? PreviewContent::fromBytes(m_answer) : std::nullopt;
    if (!content) {
        giveUp(tr("cannot be read: it may be damaged, or too large for a preview"));
        return;
    }
    end(takeProcess());
    Q_EMIT ready(m_request.path, *content);
}

void PreviewReader::giveUp(const QString& reason)
{
    if (QProcess* process = takeProcess())
        end(process);
    Q_EMIT ready(m_request.path, PreviewContent::message(reason));
}

} // namespace Zorvane::Workbench
