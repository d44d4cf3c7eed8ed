#pragma once

#include <boost/signals2/signal.hpp>

#include <memory>

namespace Zorvane::Signals {

/** Where a new slot is called among those that are connected already. */
enum class ConnectPosition
{
    AtBack,
    AtFront
};

/**
 * One subscription. A value: copies refer to the same subscription, and dropping them all leaves
 * it in force; `disconnect()` ends it, now and for every copy.
 */
using Connection = boost::signals2::connection;

/** A subscription that ends with the object that holds it. */
using ScopedConnection = boost::signals2::scoped_connection;

/**
 * What is called when a signal fires. `track(object)` ties the subscription to the life of an
 * object held by shared pointer: once that is gone, the slot is never called again.
 */
template <typename Signature>
using Slot = typename boost::signals2::signal<Signature>::slot_type;

/**
 * Tells any number of slots, synchronously and on the caller's thread, in the order of connection.
 * A slot may connect or disconnect slots, itself included, while the signal fires.
 * Not supported: copying a signal.
 */
template <typename Signature>
class Signal
{
public:
    Connection connect(const Slot<Signature>& slot,
                       ConnectPosition position = ConnectPosition::AtBack)
    {
        const auto place = position == ConnectPosition::AtFront ? boost::signals2::at_front
                                                                : boost::signals2::at_back;
        return m_signal.connect(slot, place);
    }

    template <typename... Arguments>
    void operator()(Arguments&&... arguments) const
    {
        m_signal(std::forward<Arguments>(arguments)...);
    }

    bool empty() const { return m_signal.empty(); }
    std::size_t slotCount() const { return m_signal.num_slots(); }

private:
    boost::signals2::signal<Signature> m_signal;
};

} // namespace Zorvane::Signals
