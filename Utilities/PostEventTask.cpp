#include "Utilities/PostEventTask.h"

#include "Utilities/PostEventTaskManager.h"

namespace Zorvane {

PostEventTask::PostEventTask(Priority priority, bool postNow)
    : m_priority(priority)
{
    if (postNow)
        post();
}

PostEventTask::~PostEventTask()
{
    unpost();
}

bool PostEventTask::post()
{
    if (m_isPosted)
        return false;
    PostEventTaskManager* const manager = PostEventTaskManager::instance();
    return manager && manager->add(this);
}

bool PostEventTask::unpost()
{
    // Posted tasks have a manager: it takes the mark off all that it holds when it goes.
    return m_isPosted && PostEventTaskManager::instance()->remove(this);
}

} // namespace Zorvane
