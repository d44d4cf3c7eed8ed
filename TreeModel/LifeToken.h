#pragma once

#include <functional>
#include <memory>
#include <utility>

namespace Zorvane::GenericTreeViewModelHandling {

/**
 * A member of a class that gives callbacks away: a callback guarded by it does nothing once the
 * object is gone. A copy of the object has a life of its own, so tokens are not copied with it.
 *
 * Not supported: callbacks called on another thread than the one on which the object goes away.
 */
class LifeToken
{
public:
    LifeToken() = default;
    LifeToken(const LifeToken&)
        : LifeToken()
    {}
    LifeToken& operator=(const LifeToken&) { return *this; }

    /** The callback must not be empty. */
    std::function<void()> guarded(std::function<void()> callback) const
    {
        return [alive = std::weak_ptr<void>(m_token), callback = std::move(callback)] {
            if (!alive.expired())
                callback();
        };
    }

private:
    std::shared_ptr<void> m_token = std::make_shared<char>();
};

} // namespace Zorvane::GenericTreeViewModelHandling
