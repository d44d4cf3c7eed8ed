#pragma once

#include "Workbench/Preview/PreviewWorker.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QTimer>

QT_BEGIN_NAMESPACE
class QProcess;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

/** A program that calls `runPreviewWorker`, with what stands before the request's arguments. */
struct PreviewProgram
{
    QString path;
    QStringList arguments;

    /** The one that is running. */
    static PreviewProgram own();
};

/**
 * Reads files for a preview, each in a process of its own, so that no file can crash, stop or fill
 * up the program. Every request is answered by one `ready`, from the event loop, unless it is
 * dropped first: by the next request, `cancel` or the reader's end. A process whose answer nobody
 * waits for is ended at once. Only what can be shown in a few seconds is shown: the limits of the
 * request hold, whatever the file does.
 */
class PreviewReader : public QObject
{
    Q_OBJECT

public:
    explicit PreviewReader(QObject* parent = nullptr);
    PreviewReader(const PreviewProgram& program, QObject* parent);
    /** Ends the process. */
    ~PreviewReader() override;

    /** Drops the previous request. */
    void request(const PreviewRequest& request);
    void cancel();
    bool isReading() const { return !m_process.isNull(); }

Q_SIGNALS:
    /** What the file holds, or the message why it isn't shown. */
    void ready(const QString& path, const Zorvane::Workbench::PreviewContent& content);

private:
    void start();
    void collect();
    void finish();
    void giveUp(const QString& reason);
    QProcess* takeProcess();

    const PreviewProgram m_program;
    PreviewRequest m_request;
    QPointer<QProcess> m_process;
    QByteArray m_answer;
    QTimer m_timeLimit;
};

} // namespace Zorvane::Workbench
