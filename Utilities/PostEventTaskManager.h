#pragma once

#include "Utilities/PostEventTask.h"

#include <QtCore/QEvent>
#include <QtCore/QObject>

#include <array>
#include <cstddef>
#include <unordered_set>

namespace Zorvane {

/**
 * Receives the events that posted tasks run from. Created when the first task is posted, destroyed
 * when the process ends. Internal: tasks are posted and taken back through `PostEventTask`.
 */
class PostEventTaskManager : public QObject
{
public:
    /** Null once the process is ending and the manager is gone, when static tasks may live on. */
    static PostEventTaskManager* instance();

    static bool isInGuiThread();

    /** Marks the task as posted; false when a run of it is due already. */
    bool add(PostEventTask* task);
    /** Takes the mark off, whether the task waits for an event or for its turn in a running one. */
    bool remove(PostEventTask* task);

    bool event(QEvent* event) override;

private:
    using Tasks = std::unordered_set<PostEventTask*>;

    static constexpr std::size_t QueueCount = 3;
    static constexpr std::size_t FirstBuckets = 8;

    /** The tasks that one event has still to run; `outer` is the event inside which it came. */
    struct Pass
    {
        Tasks tasks;
        Pass* outer = nullptr;
    };

    struct Queue
    {
        Tasks tasks{FirstBuckets};
        bool isPending = false;
        /** More than one when a task's run opens an event loop of its own. */
        Pass* innermostPass = nullptr;
    };

    class NotifyEvent;

    PostEventTaskManager() = default;
    ~PostEventTaskManager() override;

    Queue& queueOf(const PostEventTask* task);
    void notify(Queue& queue);
    void run(Queue& queue);

    std::array<Queue, QueueCount> m_queues;
};

} // namespace Zorvane
