#include "Tests/Support/TestCase.h"

#include <rapidcheck.h>

#include <set>

using namespace Zorvane;

/** What the tests with random cases lean on where a stand-in draws the cases. */
class StandInTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        qunsetenv("RC_PARAMS");
        TestCase::cleanup();
    }

    void aFalsePropertyIsFoundFalse();
    void anyExceptionSpeaksAgainstAProperty();
    void asManyCasesAreTriedAsWanted();
    void aSeedDrawsTheSameAgain();
    void rangesAreDrawnWhole();
    void emptyRangesAreNoSilentSuccess();
    void nothingIsDrawnOutsideOfAProperty();
};

void StandInTest::aFalsePropertyIsFoundFalse()
{
    QVERIFY(!rc::check("no number is 7", [] { RC_ASSERT(*rc::gen::inRange(0, 10) != 7); }));
    QVERIFY(!rc::check("nothing is true", [](bool value) { return value; }));
    QVERIFY(rc::check("a truth", [](bool value) { return value || !value; }));
}

void StandInTest::anyExceptionSpeaksAgainstAProperty()
{
    QVERIFY(!rc::check([] { throw std::runtime_error("gone wrong"); }));
}

void StandInTest::asManyCasesAreTriedAsWanted()
{
    int cases = 0;
    const auto count = [&cases] { ++cases; };
    QVERIFY(rc::check(count));
    QCOMPARE(cases, 100);

    qputenv("RC_PARAMS", "max_success=1234");
    cases = 0;
    QVERIFY(rc::check(count));
    QCOMPARE(cases, 1234);
}

void StandInTest::aSeedDrawsTheSameAgain()
{
    std::vector<std::uint64_t> drawn[3];
    for (int run = 0; run < 3; ++run) {
        qputenv("RC_PARAMS", run == 2 ? "seed=6" : "max_success=100 seed=5");
        std::vector<std::uint64_t>& values = drawn[run];
        QVERIFY(rc::check([&] { values.push_back(*rc::gen::arbitrary<std::uint64_t>()); }));
    }
    QVERIFY(drawn[0] == drawn[1]);
    QVERIFY(drawn[0] != drawn[2]);
}

void StandInTest::rangesAreDrawnWhole()
{
    std::set<int> seen;
    qputenv("RC_PARAMS", "max_success=2000");
    QVERIFY(rc::check([&seen] { seen.insert(*rc::gen::inRange(-3, 4)); }));
    QCOMPARE(int(seen.size()), 7);
    QCOMPARE(*seen.begin(), -3);
    QCOMPARE(*seen.rbegin(), 3);
}

void StandInTest::emptyRangesAreNoSilentSuccess()
{
    QVERIFY(!rc::check([] { *rc::gen::inRange(3, 3); }));
    QVERIFY(!rc::check(
        [] { *rc::gen::suchThat(rc::gen::arbitrary<int>(), [](int) { return false; }); }));
}

void StandInTest::nothingIsDrawnOutsideOfAProperty()
{
    QVERIFY_EXCEPTION_THROWN(*rc::gen::arbitrary<int>(), std::logic_error);
}

ZORVANE_TEST(StandInTest)
#include "StandInTest.moc"
