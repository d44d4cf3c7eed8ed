#pragma once

#include <boost/signals2/signal.hpp>

#include <cstddef>
#include <memory>
#include <utility>

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

/** What is called when a signal fires: made from anything that can be called like it. */
template <typename Signature>
class Slot : public boost::signals2::signal<Signature>::slot_type
{
public:
    using boost::signals2::signal<Signature>::slot_type::slot_type;

    /**
     * Ties the subscription to the life of the object: while the slot runs, the object is kept;
     * once it is gone, the slot is never called again.
     */
    template <typename Object>
    Slot& track(const std::shared_ptr<Object>& object)
    {
        this->track_foreign(object);
        return *this;
    }
};

/**
 * Tells any number of slots, synchronously and on the caller's thread, in the order of connection.
 * A slot may connect or disconnect slots, itself included, while the signal fires: one that is
 * disconnected is not called any more, one that is connected is called from the next time on. A
 * slot may also let go of the signal, which disconnects the rest.
 * An exception of a slot reaches whoever fired; the slots after it are not called that time.
 *
 * Not supported: copying a signal, values returned by slots.
 */
template <typename Signature>
class Signal
{
public:
    Signal() = default;
    Signal(const Signal&) = delete;
    Signal& operator=(const Signal&) = delete;
    /** Ends all subscriptions. */
    ~Signal() { m_signal->disconnect_all_slots(); }

    Connection connect(const Slot<Signature>& slot,
                       ConnectPosition position = ConnectPosition::AtBack)
    {
        const auto place = position == ConnectPosition::AtFront ? boost::signals2::at_front
                                                                : boost::signals2::at_back;
        return m_signal->connect(slot, place);
    }

    template <typename... Arguments>
    void operator()(Arguments&&... arguments) const
    {
        // Kept until all slots have been called, should one of them let go of this signal.
        const auto signal = m_signal;
        (*signal)(std::forward<Arguments>(arguments)...);
    }

    bool empty() const { return m_signal->empty(); }
    std::size_t slotCount() const { return m_signal->num_slots(); }

private:
    using Implementation = boost::signals2::signal<Signature>;

    const std::shared_ptr<Implementation> m_signal = std::make_shared<Implementation>();
};

} // namespace Zorvane::Signals
