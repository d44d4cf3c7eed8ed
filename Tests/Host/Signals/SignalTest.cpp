#include "Host/Signals/Signal.h"

#include "Tests/Support/TestCase.h"

#include <memory>
#include <stdexcept>
#include <string>

using namespace Zorvane;
using Signals::Connection;
using Signals::ConnectPosition;
using Signals::ScopedConnection;
using Signals::Signal;
using Signals::Slot;

class SignalTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_calls.clear(); }

    void firstPositionIsTheBack();
    void slotsAreCalledInOrderOfConnection();
    void slotsAtTheFrontComeFirst();
    void firingWithoutSlotsDoesNothing();
    void argumentsReachEverySlot();
    void sameSlotConnectedTwiceIsCalledTwice();
    void disconnectedSlotIsNotCalled();
    void disconnectingTwiceDoesNothing();
    void copiesOfAConnectionMeanTheSameSubscription();
    void droppedConnectionStaysInForce();
    void connectionOutlivesItsSignal();
    void scopedConnectionEndsWithItsScope();
    void trackedSlotEndsWithItsObject();
    void trackedSlotsEndWithAnyOfTheirObjects();
    void trackedObjectLivesWhileItsSlotRuns();
    void slotMayDisconnectItself();
    void slotMayDisconnectALaterOne();
    void slotConnectedWhileFiringWaitsForTheNextTime();
    void slotMayFireAgain();
    void slotMayDropTheSignal();
    void exceptionReachesTheCallerAndStopsTheRest();
    void slotCountTellsLiveSubscriptions();

private:
    Slot<void()> noting(const std::string& name)
    {
        return Slot<void()>([this, name] { m_calls += name; });
    }

    std::string m_calls;
};

void SignalTest::firstPositionIsTheBack()
{
    QCOMPARE(static_cast<int>(ConnectPosition::AtBack), 0);
    QCOMPARE(static_cast<int>(ConnectPosition::AtFront), 1);
    Signal<void()> signal;
    signal.connect(noting("a"));
    signal.connect(noting("b"), static_cast<ConnectPosition>(0));
    signal();
    QCOMPARE(m_calls, std::string("ab"));
}

void SignalTest::slotsAreCalledInOrderOfConnection()
{
    Signal<void()> signal;
    for (const char* name : {"a", "b", "c"})
        signal.connect(noting(name));
    signal();
    signal();
    QCOMPARE(m_calls, std::string("abcabc"));
}

void SignalTest::slotsAtTheFrontComeFirst()
{
    Signal<void()> signal;
    signal.connect(noting("a"));
    signal.connect(noting("b"), ConnectPosition::AtFront);
    signal.connect(noting("c"), ConnectPosition::AtBack);
    signal.connect(noting("d"), ConnectPosition::AtFront);
    signal();
    QCOMPARE(m_calls, std::string("dbac"));
}

void SignalTest::firingWithoutSlotsDoesNothing()
{
    const Signal<void(int)> signal;
    signal(7);
    QVERIFY(signal.empty());
}

void SignalTest::argumentsReachEverySlot()
{
    Signal<void(int, const std::string&)> signal;
    int sum = 0;
    const auto add = [&sum](int number, const std::string& text) {
        sum += number + static_cast<int>(text.size());
    };
    signal.connect(add);
    signal.connect(add);
    signal(10, std::string("four"));
    QCOMPARE(sum, 28);
}

void SignalTest::sameSlotConnectedTwiceIsCalledTwice()
{
    Signal<void()> signal;
    const Slot<void()> slot = noting("a");
    signal.connect(slot);
    signal.connect(slot);
    signal();
    QCOMPARE(m_calls, std::string("aa"));
}

void SignalTest::disconnectedSlotIsNotCalled()
{
    Signal<void()> signal;
    const Connection first = signal.connect(noting("a"));
    signal.connect(noting("b"));
    QVERIFY(first.connected());
    first.disconnect();
    QVERIFY(!first.connected());
    signal();
    QCOMPARE(m_calls, std::string("b"));
}

void SignalTest::disconnectingTwiceDoesNothing()
{
    Signal<void()> signal;
    const Connection connection = signal.connect(noting("a"));
    connection.disconnect();
    connection.disconnect();
    Connection().disconnect();
    QVERIFY(signal.empty());
}

void SignalTest::copiesOfAConnectionMeanTheSameSubscription()
{
    Signal<void()> signal;
    const Connection connection = signal.connect(noting("a"));
    const Connection copy = connection;
    copy.disconnect();
    QVERIFY(!connection.connected());
}

void SignalTest::droppedConnectionStaysInForce()
{
    Signal<void()> signal;
    {
        const Connection connection = signal.connect(noting("a"));
    }
    signal();
    QCOMPARE(m_calls, std::string("a"));
}

void SignalTest::connectionOutlivesItsSignal()
{
    Connection connection;
    {
        Signal<void()> signal;
        connection = signal.connect(noting("a"));
    }
    QVERIFY(!connection.connected());
    connection.disconnect();
}

void SignalTest::scopedConnectionEndsWithItsScope()
{
    Signal<void()> signal;
    {
        const ScopedConnection connection = signal.connect(noting("a"));
        signal();
    }
    signal();
    QCOMPARE(m_calls, std::string("a"));
    QVERIFY(signal.empty());
}

void SignalTest::trackedSlotEndsWithItsObject()
{
    Signal<void()> signal;
    auto object = std::make_shared<int>(1);
    const Connection connection = signal.connect(noting("a").track(object));
    QCOMPARE(object.use_count(), 1L);
    signal();
    object.reset();
    signal();
    QCOMPARE(m_calls, std::string("a"));
    QVERIFY(!connection.connected());
}

void SignalTest::trackedSlotsEndWithAnyOfTheirObjects()
{
    Signal<void()> signal;
    const auto staying = std::make_shared<int>(1);
    auto going = std::make_shared<std::string>("b");
    signal.connect(noting("a").track(staying).track(going));
    going.reset();
    signal();
    QCOMPARE(m_calls, std::string());
}

void SignalTest::trackedObjectLivesWhileItsSlotRuns()
{
    Signal<void()> signal;
    auto object = std::make_shared<int>(5);
    const std::weak_ptr<int> watched = object;
    int seen = 0;
    Slot<void()> slot([&object, &watched, &seen] {
        object.reset();
        if (const auto still = watched.lock())
            seen = *still;
    });
    signal.connect(slot.track(object));
    signal();
    QCOMPARE(seen, 5);
    QVERIFY(watched.expired());
}

void SignalTest::slotMayDisconnectItself()
{
    Signal<void()> signal;
    Connection own;
    own = signal.connect([this, &own] {
        m_calls += "a";
        own.disconnect();
    });
    signal.connect(noting("b"));
    signal();
    signal();
    QCOMPARE(m_calls, std::string("abb"));
}

void SignalTest::slotMayDisconnectALaterOne()
{
    Signal<void()> signal;
    Connection later;
    signal.connect([&later] { later.disconnect(); });
    later = signal.connect(noting("b"));
    signal.connect(noting("c"));
    signal();
    QCOMPARE(m_calls, std::string("c"));
}

void SignalTest::slotConnectedWhileFiringWaitsForTheNextTime()
{
    Signal<void()> signal;
    bool connected = false;
    signal.connect([this, &signal, &connected] {
        if (!connected)
            signal.connect(noting("new"));
        connected = true;
    });
    signal();
    QCOMPARE(m_calls, std::string());
    signal();
    QCOMPARE(m_calls, std::string("new"));
}

void SignalTest::slotMayFireAgain()
{
    Signal<void(int)> signal;
    signal.connect([this, &signal](int depth) {
        m_calls += std::to_string(depth);
        if (depth > 0)
            signal(depth - 1);
    });
    signal.connect([this](int depth) { m_calls += "(" + std::to_string(depth) + ")"; });
    signal(1);
    QCOMPARE(m_calls, std::string("10(0)(1)"));
}

void SignalTest::slotMayDropTheSignal()
{
    auto signal = std::make_unique<Signal<void()>>();
    signal->connect([this, &signal] {
        m_calls += "a";
        signal.reset();
    });
    signal->connect(noting("b"));
    (*signal)();
    QCOMPARE(m_calls, std::string("a"));
}

void SignalTest::exceptionReachesTheCallerAndStopsTheRest()
{
    Signal<void()> signal;
    signal.connect(noting("a"));
    const Connection throwing = signal.connect([] { throw std::runtime_error("broken"); });
    signal.connect(noting("c"));
    QVERIFY_EXCEPTION_THROWN(signal(), std::runtime_error);
    QCOMPARE(m_calls, std::string("a"));
    QVERIFY(throwing.connected());
    throwing.disconnect();
    signal();
    QCOMPARE(m_calls, std::string("aac"));
}

void SignalTest::slotCountTellsLiveSubscriptions()
{
    Signal<void()> signal;
    QVERIFY(signal.empty());
    auto object = std::make_shared<int>(1);
    signal.connect(noting("a"));
    signal.connect(noting("b").track(object));
    QCOMPARE(signal.slotCount(), std::size_t(2));
    object.reset();
    QCOMPARE(signal.slotCount(), std::size_t(1));
    QVERIFY(!signal.empty());
}

ZORVANE_TEST(SignalTest)
#include "SignalTest.moc"
