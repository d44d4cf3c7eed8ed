#include "Tests/Support/PlatformFacts.h"
#include "Utilities/PostEventTask.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <thread>
#include <utility>

using namespace Zorvane;

namespace {

bool s_isEnding = false;
bool s_ranLate = false;

class Task : public PostEventTask
{
public:
    explicit Task(std::function<void()> work = {}, bool postNow = false)
        : PostEventTask(Priority::SecondQueue, postNow)
        , m_work(std::move(work))
    {}
    void run() override
    {
        s_ranLate = s_ranLate || s_isEnding;
        if (m_work)
            m_work();
    }

private:
    std::function<void()> m_work;
};

// Has the program fail if a task ran when it was too late. Lives longer than the queues, which come
// with the first post, where a library ends before the program: no task is in one then. Elsewhere
// the queues are still there, and take a task as ever.
class LastWord
{
public:
    ~LastWord()
    {
        const bool isIdle = !m_task.isPosted() && !m_task.unpost() && !m_task.post();
        if (s_ranLate)
            failWith("a task ran late\n");
        if (Testing::librariesEndFirst() && !isIdle)
            failWith("a task is still in a queue\n");
        if (!Testing::librariesEndFirst() && isIdle)
            failWith("the queues are gone before their time\n");
    }
    Task& task() { return m_task; }

private:
    static void failWith(const char* reason)
    {
        std::fputs(reason, stderr);
        std::_Exit(1);
    }

    Task m_task;
};
LastWord s_lastWord;

int endByReturning(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    s_lastWord.task().post();
    static const Task s_shortLived({}, true);
    s_isEnding = true;
    return 0;
}

int endByExit(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    s_lastWord.task().post();
    s_isEnding = true;
    std::exit(0);
}

/** The first task to run ends the process; the others have not had their turn then. */
int endInRun(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const auto end = [] {
        s_lastWord.task().post();
        s_isEnding = true;
        std::exit(0);
    };
    const Task one(end, true);
    const Task other(end, true);
    return QCoreApplication::exec();
}

/** Posted tasks outlive an application object, and the next one serves the queues again. */
int endAfterAnotherApplication(int argc, char** argv)
{
    {
        const QCoreApplication application(argc, argv);
        s_lastWord.task().post();
    }
    const QCoreApplication application(argc, argv);
    const Task quits([] { QCoreApplication::quit(); }, true);
    const int status = QCoreApplication::exec();
    if (s_lastWord.task().isPosted())
        return 1;
    s_isEnding = true;
    s_lastWord.task().post();
    return status;
}

/** A task that lost its event with the application object is posted again by itself. */
int postAgainAfterAnotherApplication(int argc, char** argv)
{
    int runs = 0;
    Task task([&runs] {
        ++runs;
        QCoreApplication::quit();
    });
    {
        const QCoreApplication application(argc, argv);
        task.post();
    }
    const QCoreApplication application(argc, argv);
    if (!task.post())
        return 1;
    QCoreApplication::exec();
    s_isEnding = true;
    s_lastWord.task().post();
    return runs == 1 ? 0 : 1;
}

/** The very first post comes from another thread: it is refused, and the queues are unharmed. */
int postFirstFromAnotherThread(int argc, char** argv)
{
    Task task([] { QCoreApplication::quit(); });
    bool isRefused = true;
    const auto post = [&task, &isRefused] { isRefused = !task.post() && isRefused; };
    std::thread(post).join();
    const QCoreApplication application(argc, argv);
    std::thread(post).join();
    if (!isRefused || !task.post())
        return 1;
    QCoreApplication::exec();
    s_isEnding = true;
    s_lastWord.task().post();
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    const QString way = argc > 1 ? QString::fromLatin1(argv[1]) : QString();
    if (way == QLatin1String("return"))
        return endByReturning(argc, argv);
    if (way == QLatin1String("exit"))
        return endByExit(argc, argv);
    if (way == QLatin1String("exit-in-run"))
        return endInRun(argc, argv);
    if (way == QLatin1String("application-gone"))
        return endAfterAnotherApplication(argc, argv);
    if (way == QLatin1String("post-again"))
        return postAgainAfterAnotherApplication(argc, argv);
    if (way == QLatin1String("other-thread"))
        return postFirstFromAnotherThread(argc, argv);
    std::fprintf(stderr, "Name the way: return, exit, exit-in-run, application-gone, post-again, "
                         "other-thread\n");
    return 2;
}
