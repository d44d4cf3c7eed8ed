#include "Utilities/PostEventTask.h"

#include "Utilities/PostEventTaskManager.h"

#include <QtCore/QtGlobal>

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
    if (!PostEventTaskManager::isInGuiThread()) {
        qWarning("PostEventTask::post: refused outside of the GUI thread");
        return false;
    }
    PostEventTaskManager* const manager = PostEventTaskManager::instance();
    return manager && manager->add(this);
}

bool PostEventTask::unpost()
{
    // A posted task has a manager: the manager's end takes the mark off all tasks.
    return m_isPosted && PostEventTaskManager::instance()->remove(this);
}

} // namespace Zorvane
