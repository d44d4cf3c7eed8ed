#include "TreeModel/SameIdChains.h"

#include "Tests/Support/TestCase.h"

#include <numeric>
#include <set>

using Zorvane::GenericTreeViewModelHandling::SameIdChains;

namespace {

constexpr std::int32_t None = SameIdChains::None;

/** One chain of all slots; counts how often anybody asks for one. */
class Chain
{
public:
    explicit Chain(std::int32_t count)
    {
        for (std::int32_t slot = count; slot-- > 0; m_first = slot) {
            waiting.insert(slot);
            fitting.insert(slot);
            if (m_first != None)
                m_chains.prepend(slot, m_first, std::size_t(count));
        }
    }

    std::int32_t find()
    {
        return m_chains.find(
            m_first,
            [this](std::int32_t slot) {
                ++steps;
                return waiting.count(slot) == 1;
            },
            [this](std::int32_t slot) { return fitting.count(slot) == 1; });
    }

    std::set<std::int32_t> waiting;
    std::set<std::int32_t> fitting;
    int steps = 0;

private:
    SameIdChains m_chains;
    std::int32_t m_first = None;
};

} // namespace

class SameIdChainsTest : public Zorvane::Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void storesNothingAsLongAsIdsDiffer();
    void findsTheFirstThatWaits();
    void passesWhatDoesNotFit();
    void slotThatFitsAgainIsFoundAgain();
    void nothingIsFoundWhenAllAreTaken();
    void takenSlotsArePassedOnce();
};

void SameIdChainsTest::storesNothingAsLongAsIdsDiffer()
{
    SameIdChains chains;
    QVERIFY(chains.isEmpty());
    chains.prepend(0, 1, 2);
    QVERIFY(!chains.isEmpty());
    chains.clear();
    QVERIFY(chains.isEmpty());
}

void SameIdChainsTest::findsTheFirstThatWaits()
{
    Chain chain(4);
    QCOMPARE(chain.find(), 0);
    QCOMPARE(chain.find(), 0);
    chain.waiting = {2, 3};
    QCOMPARE(chain.find(), 2);
    chain.waiting = {3};
    QCOMPARE(chain.find(), 3);
}

void SameIdChainsTest::passesWhatDoesNotFit()
{
    Chain chain(4);
    chain.fitting = {2, 3};
    chain.waiting = {0, 1, 3};
    QCOMPARE(chain.find(), 3);
    chain.fitting = {};
    QCOMPARE(chain.find(), None);
}

void SameIdChainsTest::slotThatFitsAgainIsFoundAgain()
{
    Chain chain(3);
    chain.fitting = {2};
    QCOMPARE(chain.find(), 2);
    chain.fitting = {0, 1, 2};
    QCOMPARE(chain.find(), 0);
}

void SameIdChainsTest::nothingIsFoundWhenAllAreTaken()
{
    Chain chain(3);
    chain.waiting.clear();
    QCOMPARE(chain.find(), None);
    QCOMPARE(chain.find(), None);
}

void SameIdChainsTest::takenSlotsArePassedOnce()
{
    constexpr int Count = 1000;
    Chain chain(Count);
    // Taken from the back, so that none is passed on the way.
    for (int taken = 0; taken < Count; ++taken)
        chain.waiting.erase(Count - 1 - taken);
    for (int search = 0; search < Count; ++search)
        QCOMPARE(chain.find(), None);
    QVERIFY2(chain.steps <= 2 * Count, qPrintable(QString::number(chain.steps)));
}

ZORVANE_TEST(SameIdChainsTest)
#include "SameIdChainsTest.moc"
