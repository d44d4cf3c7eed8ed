#include "Utilities/PostEventTask.h"

#include "Tests/Support/TestCase.h"
#include "Tests/Support/VirtualSlot.h"

#include <QtCore/QEventLoop>
#include <QtCore/QThread>

#include <algorithm>
#include <functional>
#include <memory>
#include <rapidcheck.h>
#include <stdexcept>
#include <type_traits>
#include <utility>
#include <vector>

using namespace Zorvane;
using Priority = PostEventTask::Priority;

namespace {

class Task : public PostEventTask
{
public:
    explicit Task(std::function<void()> work = {}, Priority priority = Priority::FirstQueue,
                  bool postNow = false)
        : PostEventTask(priority, postNow)
        , m_work(std::move(work))
    {}
    void run() override
    {
        ++m_runs;
        const std::function<void()> work = m_work; // outlives a task that deletes itself
        if (work)
            work();
    }
    int runs() const { return m_runs; }
    void setWork(std::function<void()> work) { m_work = std::move(work); }

private:
    std::function<void()> m_work;
    int m_runs = 0;
};

/** Sees the events that queues are run from, and what is delivered among them. */
class Deliveries : public QObject
{
public:
    Deliveries() { QCoreApplication::instance()->installEventFilter(this); }

    int notifications() const { return m_notifications; }
    QObject* manager() const { return m_manager; }
    /** "own" for an event posted to this object, "queue" for a notification. */
    QStringList order() const { return m_order; }

    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        if (event->type() < QEvent::User)
            return false;
        if (receiver != this) {
            ++m_notifications;
            m_manager = receiver;
        }
        m_order += receiver == this ? QStringLiteral("own") : QStringLiteral("queue");
        return false;
    }

private:
    int m_notifications = 0;
    QObject* m_manager = nullptr;
    QStringList m_order;
};

/** Delivers what is posted by now; what that posts waits for the next call. */
void deliverOnce()
{
    QCoreApplication::sendPostedEvents();
}

/** Handles everything, what handling posts included. */
void deliverAll()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents();
}

} // namespace

class PostEventTaskTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void runsOnceAfterTheCurrentEvent();
    void manyPostsCollapseIntoOneRun();
    void postsFromItsConstructorIfAsked();
    void unpostedTasksDoNotRun();
    void unpostingTellsWhetherItWasPosted();
    void theEventOfUnpostedTasksStillComes();
    void anUnpostedTaskCanBePostedAgainForTheSameEvent();
    void destroyedTasksDoNotRun();
    void oneEventRunsAQueue();
    void eachQueueHasItsOwnEvent();
    void queuesAreServedLikeOrdinaryEvents();
    void theManagerHandlesItsOwnEventsOnly();
    void aTaskThatPostsItselfRunsWithTheNextEvent();
    void aTaskPostedByAnotherAfterItsTurnRunsWithTheNextEvent();
    void aTaskThatWaitsForItsTurnIsPostedAlready();
    void aTaskMayDestroyItself();
    void aTaskMayDestroyItselfAfterPostingItself();
    void tasksDestroyedByAnEarlierOneDoNotRun();
    void tasksUnpostedByAnEarlierOneDoNotRun();
    void tasksMayDestroyTasksOfOtherQueues();
    void aNestedEventLoopRunsWhatWasPostedSince();
    void aNestedEventLoopMayDestroyTasksOfTheOuterPass();
    void droppedEventsDoNotBlockTheQueue();
    void lostEvent_postingAgainRunsTheTask();
    void exceptionInRun_othersRunWithTheNextEvent();
    void exceptionInNestedRun_othersRunWithTheNextEvent();
    void exceptionInRun_tasksMayBeDestroyedAfterIt();
    void otherThread_postIsRefused();
    void storedAsOtherModulesExpect();
    void anythingMayHappenInARun();
};

void PostEventTaskTest::cleanup()
{
    deliverAll();
    TestCase::cleanup();
}

void PostEventTaskTest::runsOnceAfterTheCurrentEvent()
{
    Task task;
    QVERIFY(!task.isPosted());
    QVERIFY(task.post());
    QVERIFY(task.isPosted());
    QCOMPARE(task.runs(), 0);
    deliverAll();
    QCOMPARE(task.runs(), 1);
    QVERIFY(!task.isPosted());
    deliverAll();
    QCOMPARE(task.runs(), 1);
}

void PostEventTaskTest::manyPostsCollapseIntoOneRun()
{
    Task task;
    QVERIFY(task.post());
    QVERIFY(!task.post());
    QVERIFY(!task.post());
    deliverAll();
    QCOMPARE(task.runs(), 1);
}

void PostEventTaskTest::postsFromItsConstructorIfAsked()
{
    const Task posted({}, Priority::SecondQueue, true);
    const Task idle({}, Priority::SecondQueue, false);
    QVERIFY(posted.isPosted());
    QVERIFY(!idle.isPosted());
    deliverAll();
    QCOMPARE(posted.runs(), 1);
    QCOMPARE(idle.runs(), 0);
}

void PostEventTaskTest::unpostedTasksDoNotRun()
{
    Task unposted;
    Task other;
    unposted.post();
    other.post();
    QVERIFY(unposted.unpost());
    QVERIFY(!unposted.isPosted());
    deliverAll();
    QCOMPARE(unposted.runs(), 0);
    QCOMPARE(other.runs(), 1);
}

void PostEventTaskTest::unpostingTellsWhetherItWasPosted()
{
    Task task;
    QVERIFY(!task.unpost());
    task.post();
    QVERIFY(task.unpost());
    QVERIFY(!task.unpost());
    task.post();
    deliverAll();
    QVERIFY(!task.unpost());
}

void PostEventTaskTest::theEventOfUnpostedTasksStillComes()
{
    const Deliveries deliveries;
    Task task;
    task.post();
    task.unpost();
    deliverAll();
    QCOMPARE(deliveries.notifications(), 1);
    QCOMPARE(task.runs(), 0);
}

void PostEventTaskTest::anUnpostedTaskCanBePostedAgainForTheSameEvent()
{
    const Deliveries deliveries;
    Task task;
    task.post();
    task.unpost();
    QVERIFY(task.post());
    deliverAll();
    QCOMPARE(deliveries.notifications(), 1);
    QCOMPARE(task.runs(), 1);
}

void PostEventTaskTest::destroyedTasksDoNotRun()
{
    int runs = 0;
    auto task = std::make_unique<Task>([&runs] { ++runs; });
    task->post();
    task.reset();
    deliverAll();
    QCOMPARE(runs, 0);
}

void PostEventTaskTest::oneEventRunsAQueue()
{
    const Deliveries deliveries;
    std::vector<std::unique_ptr<Task>> tasks;
    for (int i = 0; i < 1000; ++i)
        tasks.push_back(
            std::make_unique<Task>(std::function<void()>(), Priority::ThirdQueue, true));
    deliverAll();
    QCOMPARE(deliveries.notifications(), 1);
    for (const auto& task : tasks)
        QCOMPARE(task->runs(), 1);
}

void PostEventTaskTest::eachQueueHasItsOwnEvent()
{
    const Deliveries deliveries;
    const Task first({}, Priority::FirstQueue, true);
    const Task second({}, Priority::SecondQueue, true);
    const Task third({}, Priority::ThirdQueue, true);
    deliverAll();
    QCOMPARE(deliveries.notifications(), 3);
    QCOMPARE(first.runs() + second.runs() + third.runs(), 3);
    QCOMPARE(int(Priority::FirstQueue), 0);
    QCOMPARE(int(Priority::SecondQueue), 1);
    QCOMPARE(int(Priority::ThirdQueue), 2);
}

void PostEventTaskTest::queuesAreServedLikeOrdinaryEvents()
{
    Deliveries deliveries;
    const auto postOwn = [&deliveries] {
        QCoreApplication::postEvent(&deliveries, new QEvent(QEvent::User), Qt::NormalEventPriority);
    };
    postOwn();
    const Task third({}, Priority::ThirdQueue, true);
    postOwn();
    const Task first({}, Priority::FirstQueue, true);
    postOwn();
    const Task second({}, Priority::SecondQueue, true);
    postOwn();
    deliverAll();
    // Events of one priority keep the order in which they were posted.
    QCOMPARE(deliveries.order().join(QLatin1Char(' ')),
             QStringLiteral("own queue own queue own queue own"));
}

void PostEventTaskTest::theManagerHandlesItsOwnEventsOnly()
{
    const Deliveries deliveries;
    Task task;
    task.post();
    deliverAll();
    QVERIFY(deliveries.manager());
    QVERIFY(!deliveries.manager()->parent());
    QEvent other(QEvent::User);
    QVERIFY(!QCoreApplication::sendEvent(deliveries.manager(), &other));
    QVERIFY(!deliveries.manager()->event(nullptr));
    QCOMPARE(task.runs(), 1);
}

void PostEventTaskTest::aTaskThatPostsItselfRunsWithTheNextEvent()
{
    Task task;
    bool isPostedInRun = true;
    bool postSucceeded = false;
    task.setWork([&] {
        isPostedInRun = task.isPosted();
        postSucceeded = task.runs() == 1 && task.post();
    });
    task.post();
    deliverOnce();
    QCOMPARE(task.runs(), 1);
    QVERIFY(!isPostedInRun);
    QVERIFY(postSucceeded);
    QVERIFY(task.isPosted());
    deliverOnce();
    QCOMPARE(task.runs(), 2);
}

void PostEventTaskTest::aTaskPostedByAnotherAfterItsTurnRunsWithTheNextEvent()
{
    Task one;
    Task other;
    const auto postBoth = [&one, &other] {
        one.post();
        other.post();
    };
    // Whichever comes second posts the first again, and itself.
    const auto postAtTheEnd = [&] {
        if (one.runs() == 1 && other.runs() == 1)
            postBoth();
    };
    one.setWork(postAtTheEnd);
    other.setWork(postAtTheEnd);
    postBoth();
    deliverOnce();
    QCOMPARE(one.runs(), 1);
    QCOMPARE(other.runs(), 1);
    deliverOnce();
    QCOMPARE(one.runs(), 2);
    QCOMPARE(other.runs(), 2);
}

void PostEventTaskTest::aTaskThatWaitsForItsTurnIsPostedAlready()
{
    Task one;
    Task other;
    std::vector<bool> posts;
    one.setWork([&] { posts.push_back(other.post()); });
    other.setWork([&] { posts.push_back(one.post()); });
    one.post();
    other.post();
    deliverOnce();
    // The first to run meets a posted task, the second one whose turn is over.
    QCOMPARE(posts, (std::vector<bool>{false, true}));
    QCOMPARE(one.runs(), 1);
    QCOMPARE(other.runs(), 1);
    one.setWork({});
    other.setWork({});
    deliverOnce();
    QCOMPARE(one.runs() + other.runs(), 3);
}

void PostEventTaskTest::aTaskMayDestroyItself()
{
    auto task = std::make_unique<Task>();
    int runs = 0;
    task->setWork([&task, &runs] {
        ++runs;
        task.reset();
    });
    task->post();
    deliverAll();
    QVERIFY(!task);
    QCOMPARE(runs, 1);
}

void PostEventTaskTest::aTaskMayDestroyItselfAfterPostingItself()
{
    auto task = std::make_unique<Task>();
    int runs = 0;
    task->setWork([&task, &runs] {
        ++runs;
        task->post();
        task.reset();
    });
    task->post();
    deliverAll();
    deliverAll();
    QCOMPARE(runs, 1);
}

void PostEventTaskTest::tasksDestroyedByAnEarlierOneDoNotRun()
{
    std::vector<std::unique_ptr<Task>> tasks(100);
    int runs = 0;
    for (std::size_t i = 0; i < tasks.size(); ++i) {
        tasks[i] = std::make_unique<Task>([&tasks, &runs, i] {
            ++runs;
            for (std::size_t other = 0; other < tasks.size(); ++other) {
                if (other != i)
                    tasks[other].reset();
            }
        });
        tasks[i]->post();
    }
    deliverAll();
    QCOMPARE(runs, 1);
}

void PostEventTaskTest::tasksUnpostedByAnEarlierOneDoNotRun()
{
    std::vector<std::unique_ptr<Task>> tasks(100);
    int runs = 0;
    int unposted = 0;
    for (auto& task : tasks) {
        task = std::make_unique<Task>([&] {
            ++runs;
            for (const auto& other : tasks)
                unposted += other->unpost() ? 1 : 0;
        });
        task->post();
    }
    deliverAll();
    QCOMPARE(runs, 1);
    QCOMPARE(unposted, 99);
    for (const auto& task : tasks)
        QVERIFY(!task->isPosted());
}

void PostEventTaskTest::tasksMayDestroyTasksOfOtherQueues()
{
    int runs = 0;
    auto later = std::make_unique<Task>([&runs] { ++runs; }, Priority::SecondQueue);
    Task earlier([&later] { later.reset(); }, Priority::FirstQueue);
    earlier.post();
    later->post();
    deliverAll();
    QCOMPARE(runs, 0);
}

void PostEventTaskTest::aNestedEventLoopRunsWhatWasPostedSince()
{
    QEventLoop loop;
    Task inner([&loop] { loop.quit(); });
    Task outer([&] {
        inner.post();
        loop.exec();
    });
    outer.post();
    deliverOnce();
    QCOMPARE(outer.runs(), 1);
    QCOMPARE(inner.runs(), 1);
}

void PostEventTaskTest::aNestedEventLoopMayDestroyTasksOfTheOuterPass()
{
    std::vector<std::unique_ptr<Task>> waiting(20);
    int runsOfWaiting = 0;
    QEventLoop loop;
    Task inner([&] {
        waiting.clear();
        loop.quit();
    });
    const auto openLoopOnce = [&] {
        if (++runsOfWaiting == 1) {
            inner.post();
            loop.exec();
        }
    };
    for (auto& task : waiting)
        task = std::make_unique<Task>(openLoopOnce, Priority::FirstQueue, true);
    deliverOnce();
    QCOMPARE(runsOfWaiting, 1);
    QCOMPARE(inner.runs(), 1);
}

void PostEventTaskTest::droppedEventsDoNotBlockTheQueue()
{
    const Deliveries deliveries;
    Task task;
    task.post();
    deliverAll();
    Task left;
    left.post();
    QCoreApplication::removePostedEvents(deliveries.manager());
    deliverAll();
    QCOMPARE(left.runs(), 0);
    QVERIFY(left.isPosted());
    // The next post of any task asks for another event.
    task.post();
    deliverAll();
    QCOMPARE(left.runs(), 1);
    QCOMPARE(task.runs(), 2);
}

void PostEventTaskTest::lostEvent_postingAgainRunsTheTask()
{
    const Deliveries deliveries;
    Task task;
    task.post();
    deliverAll();
    task.post();
    QCoreApplication::removePostedEvents(deliveries.manager());
    QVERIFY(task.isPosted());
    QVERIFY(task.post());
    QVERIFY(!task.post());
    deliverAll();
    QCOMPARE(task.runs(), 2);
}

void PostEventTaskTest::exceptionInRun_othersRunWithTheNextEvent()
{
    std::vector<std::unique_ptr<Task>> tasks(20);
    int runs = 0;
    const auto throwOnce = [&runs] {
        if (++runs == 7)
            throw std::runtime_error("no mesh");
    };
    for (auto& task : tasks)
        task = std::make_unique<Task>(throwOnce, Priority::FirstQueue, true);
    QVERIFY_EXCEPTION_THROWN(deliverOnce(), std::runtime_error);
    QCOMPARE(runs, 7);
    deliverOnce();
    QCOMPARE(runs, 20);
    for (const auto& task : tasks) {
        QCOMPARE(task->runs(), 1);
        QVERIFY(task->post());
    }
    deliverOnce();
    QCOMPARE(runs, 40);
}

void PostEventTaskTest::exceptionInNestedRun_othersRunWithTheNextEvent()
{
    std::vector<std::unique_ptr<Task>> waiting(20);
    int runs = 0;
    Task inner([] { throw std::runtime_error("no mesh"); });
    const auto runInnerOnce = [&] {
        if (++runs == 1) {
            inner.post();
            QVERIFY_EXCEPTION_THROWN(deliverOnce(), std::runtime_error);
        }
    };
    for (auto& task : waiting)
        task = std::make_unique<Task>(runInnerOnce, Priority::FirstQueue, true);
    deliverAll();
    QCOMPARE(runs, 20);
    QCOMPARE(inner.runs(), 1);
}

void PostEventTaskTest::exceptionInRun_tasksMayBeDestroyedAfterIt()
{
    std::vector<std::unique_ptr<Task>> tasks(20);
    int runs = 0;
    const auto fail = [&runs] {
        ++runs;
        throw std::runtime_error("no mesh");
    };
    for (auto& task : tasks)
        task = std::make_unique<Task>(fail, Priority::FirstQueue, true);
    QVERIFY_EXCEPTION_THROWN(deliverOnce(), std::runtime_error);
    tasks.clear();
    deliverAll();
    QCOMPARE(runs, 1);
}

void PostEventTaskTest::otherThread_postIsRefused()
{
    Task task;
    expectWarning(QStringLiteral("outside of the GUI thread"));
    bool isPosted = true;
    const std::unique_ptr<QThread> other(
        QThread::create([&task, &isPosted] { isPosted = task.post(); }));
    other->start();
    QVERIFY(other->wait(Testing::patience));
    QVERIFY(!isPosted);
    QVERIFY(!task.isPosted());
    QVERIFY(task.post());
    deliverAll();
    QCOMPARE(task.runs(), 1);
}

void PostEventTaskTest::storedAsOtherModulesExpect()
{
    QVERIFY(std::has_virtual_destructor_v<PostEventTask>);
    QVERIFY(std::is_abstract_v<PostEventTask>);
    QVERIFY(!std::is_copy_constructible_v<Task>);
    QCOMPARE(Testing::virtualSlot(&PostEventTask::run), std::ptrdiff_t(2));
}

/** What a run does to a random task, itself included. */
void PostEventTaskTest::anythingMayHappenInARun()
{
    QVERIFY(rc::check([] {
        constexpr int count = 12;
        enum Deed
        {
            Post,
            Unpost,
            Destroy,
            Nothing
        };
        const auto deeds = *rc::gen::container<std::vector<int>>(200, rc::gen::inRange(0, 4));
        const auto targets = *rc::gen::container<std::vector<int>>(200, rc::gen::inRange(0, count));
        const auto queues = *rc::gen::container<std::vector<int>>(count, rc::gen::inRange(0, 3));

        std::vector<std::unique_ptr<Task>> tasks(count);
        std::vector<bool> isDue(count, false);
        std::size_t step = 0;
        bool isRight = true;
        const auto work = [&](std::size_t self) {
            isRight = isRight && isDue[self];
            isDue[self] = false;
            if (step == deeds.size())
                return;
            const auto target = std::size_t(targets[step]);
            const int deed = deeds[step++];
            if (!tasks[target])
                return;
            if (deed == Post)
                isRight = isRight && tasks[target]->post() == !isDue[target];
            else if (deed == Unpost)
                isRight = isRight && tasks[target]->unpost() == isDue[target];
            else if (deed == Destroy)
                tasks[target].reset();
            if (deed != Nothing)
                isDue[target] = deed == Post;
        };
        for (std::size_t i = 0; i < count; ++i) {
            tasks[i] = std::make_unique<Task>([&work, i] { work(i); }, Priority(queues[i]));
            isDue[i] = tasks[i]->post();
        }
        for (std::size_t round = 0; round <= deeds.size(); ++round)
            deliverOnce();
        RC_ASSERT(isRight);
        RC_ASSERT(std::count(isDue.begin(), isDue.end(), true) == 0);
    }));
}

ZORVANE_TEST(PostEventTaskTest)
#include "PostEventTaskTest.moc"
