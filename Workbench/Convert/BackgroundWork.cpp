#include "Workbench/Convert/BackgroundWork.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEventLoop>
#include <QtCore/QPointer>
#include <QtCore/QThreadPool>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QProgressDialog>

#include <exception>
#include <memory>
#include <utility>

namespace Zorvane::Workbench {

namespace {

/** Work that is done sooner needs no dialog. */
constexpr int s_patienceMilliseconds = 400;

/** Lives in the waiting thread; told by the working one. */
class Completion : public QObject
{
    Q_OBJECT

public:
    bool isDone = false;
    std::exception_ptr fault;

Q_SIGNALS:
    void done();
};

void start(const std::shared_ptr<Completion>& completion, std::function<void()> work)
{
    backgroundThreads().start([completion, work = std::move(work)]() mutable {
        std::exception_ptr fault;
        try {
            work();
        } catch (...) {
            fault = std::current_exception();
        }
        work = nullptr;
        // The last owner must be the thread that the object lives in.
        auto* target = completion.get();
        QMetaObject::invokeMethod(
            target,
            [completion = std::move(completion), fault] {
                completion->isDone = true;
                completion->fault = fault;
                Q_EMIT completion->done();
            },
            Qt::QueuedConnection);
    });
}

void waitPatiently(const Completion& completion)
{
    QEventLoop loop;
    QObject::connect(&completion, &Completion::done, &loop, &QEventLoop::quit);
    QTimer::singleShot(s_patienceMilliseconds, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

void waitWithDialog(const Completion& completion, const QString& text)
{
    // The window may go away meanwhile, and takes the dialog along.
    QWidget* const window = QApplication::activeWindow();
    const QPointer<QProgressDialog> progress = new QProgressDialog(
        text, QCoreApplication::translate("BackgroundWork", "Cancel"), 0, 0, window);
    if (window)
        progress->setWindowTitle(window->windowTitle());
    progress->setWindowModality(Qt::ApplicationModal);
    progress->setMinimumDuration(0);
    QEventLoop loop;
    QObject::connect(&completion, &Completion::done, &loop, &QEventLoop::quit);
    QObject::connect(progress, &QProgressDialog::canceled, &loop, &QEventLoop::quit);
    QObject::connect(progress, &QDialog::rejected, &loop, &QEventLoop::quit);
    QObject::connect(progress, &QObject::destroyed, &loop, &QEventLoop::quit);
    progress->show();
    loop.exec();
    delete progress;
}

} // namespace

QThreadPool& backgroundThreads()
{
    static QPointer<QThreadPool> s_threads;
    if (!s_threads)
        s_threads = new QThreadPool(QCoreApplication::instance());
    return *s_threads;
}

bool workInBackground(const QString& text, std::function<void()> work)
{
    const auto completion = std::make_shared<Completion>();
    start(completion, std::move(work));
    waitPatiently(*completion);
    if (!completion->isDone)
        waitWithDialog(*completion, text);
    if (completion->fault)
        std::rethrow_exception(completion->fault);
    return completion->isDone;
}

} // namespace Zorvane::Workbench

#include "BackgroundWork.moc"
