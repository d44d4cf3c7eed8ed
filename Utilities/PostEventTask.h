#pragma once

#include "UiToolsExport.h"

namespace Zorvane {

/**
 * Work that is put off until the current event has been handled, and then done once however often
 * it was asked for. Derive, do the work in `run`, and `post` whenever it falls due.
 *
 * All tasks posted to one queue run from one event, in no particular order. While they run, tasks
 * may post, unpost and destroy themselves and each other: a task that is unposted or destroyed
 * before its turn is not run, and one that is posted once its turn has come runs with the next
 * event. An exception thrown by `run` leaves through the event loop; the tasks that had no turn
 * then run from another event. A task still posted when the process ends is not run.
 *
 * Posted tasks outlive the application object. With the next application object, a queue runs
 * once any of its tasks is posted again.
 *
 * The owner of a task deletes it at any time; the queue owns nothing.
 *
 * Not supported: use outside of the GUI thread, where `post` is refused with a warning.
 */
class ZORVANE_UITOOLS_EXPORT PostEventTask
{
public:
    /** Independent queues, all served at the priority of ordinary events: no order of execution. */
    enum class Priority
    {
        FirstQueue = 0,
        SecondQueue = 1,
        ThirdQueue = 2
    };

    PostEventTask(const PostEventTask&) = delete;
    PostEventTask& operator=(const PostEventTask&) = delete;
    /** A posted task leaves its queue. */
    virtual ~PostEventTask();

    /** The work. The task is not posted any more when this is called, and may delete itself. */
    virtual void run() = 0;

    /**
     * Asks for one run. Returns false when one is due already, when the process is about to end,
     * and outside of the GUI thread.
     */
    bool post();
    /** Takes the request back; false when there was none. */
    bool unpost();
    bool isPosted() const { return m_isPosted; }

protected:
    explicit PostEventTask(Priority priority, bool postNow);

private:
    friend class PostEventTaskManager;

    bool m_isPosted = false;
    const Priority m_priority;
};

} // namespace Zorvane
