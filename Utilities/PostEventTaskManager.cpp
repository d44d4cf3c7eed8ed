#include "Utilities/PostEventTaskManager.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QScopeGuard>
#include <QtCore/QThread>

#include <thread>

namespace Zorvane {

namespace {

// Outlives every static object: nothing has to be destroyed.
bool s_isManagerGone = false;

/** Where tasks belong before there is an application object: the thread that loads the library. */
const std::thread::id s_loadingThread = std::this_thread::get_id();

QEvent::Type notifyType()
{
    static const auto s_type = QEvent::Type(QEvent::registerEventType());
    return s_type;
}

} // namespace

/** Asks for one run of a queue. */
class PostEventTaskManager::NotifyEvent : public QEvent
{
public:
    explicit NotifyEvent(Queue& queue)
        : QEvent(notifyType())
        , m_queue(queue)
    {
        m_queue.isPending = true;
    }
    // Undelivered events are dropped when an application object ends; another may follow it.
    ~NotifyEvent() override { takeDelivery(); }

    Queue& queue() const { return m_queue; }
    void takeDelivery()
    {
        if (!m_isDelivered)
            m_queue.isPending = false;
        m_isDelivered = true;
    }

private:
    Queue& m_queue;
    bool m_isDelivered = false;
};

PostEventTaskManager* PostEventTaskManager::instance()
{
    if (s_isManagerGone)
        return nullptr;
    static PostEventTaskManager s_manager;
    return &s_manager;
}

PostEventTaskManager::~PostEventTaskManager()
{
    s_isManagerGone = true;
    // The events look at the queues when they go, so they go first.
    QCoreApplication::removePostedEvents(this);
    for (const Queue& queue : m_queues) {
        for (PostEventTask* task : queue.tasks)
            task->m_isPosted = false;
        for (const Pass* pass = queue.innermostPass; pass; pass = pass->outer) {
            for (PostEventTask* task : pass->tasks)
                task->m_isPosted = false;
        }
    }
}

PostEventTaskManager::Queue& PostEventTaskManager::queueOf(const PostEventTask* task)
{
    return m_queues[std::size_t(task->m_priority)];
}

bool PostEventTaskManager::isInGuiThread()
{
    const QCoreApplication* const application = QCoreApplication::instance();
    return application ? application->thread() == QThread::currentThread()
                       : std::this_thread::get_id() == s_loadingThread;
}

bool PostEventTaskManager::add(PostEventTask* task)
{
    Queue& queue = queueOf(task);
    // A posted task in a queue without an event lost it with an earlier application object.
    if (task->m_isPosted && (queue.isPending || queue.tasks.count(task) == 0))
        return false;
    queue.tasks.insert(task);
    task->m_isPosted = true;
    if (!queue.isPending)
        notify(queue);
    return true;
}

void PostEventTaskManager::notify(Queue& queue)
{
    QCoreApplication::postEvent(this, new NotifyEvent(queue), Qt::NormalEventPriority);
}

bool PostEventTaskManager::remove(PostEventTask* task)
{
    Queue& queue = queueOf(task);
    task->m_isPosted = false;
    if (queue.tasks.erase(task) != 0)
        return true;
    for (Pass* pass = queue.innermostPass; pass; pass = pass->outer) {
        if (pass->tasks.erase(task) != 0)
            return true;
    }
    return false;
}

bool PostEventTaskManager::event(QEvent* event)
{
    if (!event || event->type() != notifyType())
        return false;
    event->accept();
    auto* const notification = static_cast<NotifyEvent*>(event);
    notification->takeDelivery();
    run(notification->queue());
    return true;
}

void PostEventTaskManager::run(Queue& queue)
{
    Pass pass{Tasks(FirstBuckets), queue.innermostPass};
    pass.tasks.swap(queue.tasks);
    queue.innermostPass = &pass;
    // After an exception, the tasks that had no turn wait for the next event.
    const auto end = qScopeGuard([&] {
        queue.innermostPass = pass.outer;
        queue.tasks.merge(pass.tasks);
        if (!queue.tasks.empty() && !queue.isPending)
            notify(queue);
    });
    // Taken out one by one: a task may remove others that have not had their turn.
    while (!pass.tasks.empty()) {
        const auto first = pass.tasks.begin();
        PostEventTask* const task = *first;
        pass.tasks.erase(first);
        task->m_isPosted = false;
        task->run();
    }
}

} // namespace Zorvane
