#pragma once

#include "Utilities/PostEventTask.h"

#include <functional>
#include <utility>

namespace Zorvane::Workbench {

/**
 * A call put off until the current event has been handled, made once however often it was posted.
 * A member of what it calls: destroying the owner takes it along.
 */
class PostedCall : public PostEventTask
{
public:
    explicit PostedCall(std::function<void()> call)
        : PostEventTask(Priority::FirstQueue, false)
        , m_call(std::move(call))
    {}

    void run() override { m_call(); }

private:
    std::function<void()> m_call;
};

} // namespace Zorvane::Workbench
