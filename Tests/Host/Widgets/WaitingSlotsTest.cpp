#include "Host/Widgets/WaitingSlots.h"

#include "Tests/Support/TestCase.h"

#include <rapidcheck.h>

#include <algorithm>
#include <random>
#include <vector>

using Zorvane::WaitingSlots;

namespace {

/** The same, as plainly as possible. */
class PlainSlots
{
public:
    explicit PlainSlots(std::size_t count)
    {
        for (std::size_t slot = 0; slot < count; ++slot)
            m_slots.push_back(slot);
    }

    std::size_t count() const { return m_slots.size(); }
    std::size_t nth(std::size_t number) const { return m_slots[number]; }
    bool contains(std::size_t slot) const
    {
        return std::find(m_slots.begin(), m_slots.end(), slot) != m_slots.end();
    }
    void take(std::size_t slot) { m_slots.erase(std::find(m_slots.begin(), m_slots.end(), slot)); }

private:
    std::vector<std::size_t> m_slots;
};

class Comparison
{
public:
    explicit Comparison(unsigned seed)
        : m_random(seed)
        , m_count(below(400))
        , m_slots(m_count)
        , m_plain(m_count)
    {}

    void run()
    {
        while (m_plain.count() > 0) {
            step(below(5));
            RC_ASSERT(m_slots.count() == m_plain.count());
            const std::size_t slot = below(2 * m_count + 200);
            RC_ASSERT(m_slots.contains(slot) == m_plain.contains(slot));
        }
    }

private:
    std::size_t below(std::size_t bound) { return m_random() % bound; }

    void step(std::size_t kind)
    {
        const std::size_t number = below(m_plain.count());
        switch (kind) {
        case 0:
            return take(m_plain.nth(number));
        case 1:
            return takeFirst(below(std::min<std::size_t>(m_plain.count(), 20) + 1));
        case 2:
            // Neighbours, as somebody asks who goes through the list.
            for (std::size_t i = number; i < std::min(number + 5, m_plain.count()); ++i)
                RC_ASSERT(m_slots.nth(i) == m_plain.nth(i));
            return;
        case 3:
            for (std::size_t i = number + 1; i-- > 0 && i + 5 > number;)
                RC_ASSERT(m_slots.nth(i) == m_plain.nth(i));
            return;
        default:
            RC_ASSERT(m_slots.first() == m_plain.nth(0));
            RC_ASSERT(m_slots.nth(number) == m_plain.nth(number));
            return take(m_plain.nth(number));
        }
    }

    void take(std::size_t slot)
    {
        m_slots.take(slot);
        m_plain.take(slot);
    }

    void takeFirst(std::size_t count)
    {
        m_slots.takeFirst(count, [this](std::size_t slot) {
            RC_ASSERT(slot == m_plain.nth(0));
            m_plain.take(slot);
        });
    }

    std::minstd_rand m_random;
    const std::size_t m_count;
    WaitingSlots m_slots;
    PlainSlots m_plain;
};

} // namespace

class WaitingSlotsTest : public Zorvane::Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void slotsThatNeverWereDoNotWait_data();
    void slotsThatNeverWereDoNotWait();
    void slotsTakenDoNotWait();
    void anyOrderIsThatOfAPlainList();
};

void WaitingSlotsTest::slotsThatNeverWereDoNotWait_data()
{
    QTest::addColumn<int>("count");
    for (int count : {0, 1, 63, 64, 65, 128, 1000})
        QTest::addRow("%d slots", count) << count;
}

void WaitingSlotsTest::slotsThatNeverWereDoNotWait()
{
    QFETCH(int, count);
    const WaitingSlots slots{std::size_t(count)};
    for (std::size_t slot = 0; slot < 5000; ++slot)
        QCOMPARE(slots.contains(slot), slot < std::size_t(count));
    QVERIFY(!slots.contains(std::size_t(-1)));
}

void WaitingSlotsTest::slotsTakenDoNotWait()
{
    WaitingSlots slots(200);
    slots.take(100);
    slots.takeFirst(70, [](std::size_t) {});
    QVERIFY(!slots.contains(100));
    QVERIFY(!slots.contains(69));
    QVERIFY(slots.contains(70));
    QCOMPARE(slots.first(), std::size_t(70));
    QCOMPARE(slots.count(), std::size_t(129));
}

void WaitingSlotsTest::anyOrderIsThatOfAPlainList()
{
    const bool held = rc::check("random orders", [] {
        const auto anySeed = rc::gen::resize(rc::kNominalSize, rc::gen::arbitrary<unsigned>());
        Comparison(*rc::gen::noShrink(anySeed)).run();
    });
    QVERIFY(held);
}

ZORVANE_TEST(WaitingSlotsTest)
#include "WaitingSlotsTest.moc"
