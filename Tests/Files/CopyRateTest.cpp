#include "Files/CopyRate.h"

#include "Tests/Support/TestCase.h"

using namespace Zorvane;

class CopyRateTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theRateIsUnknownAtFirst();
    void aSteadySpeedGivesTheTimeLeft();
    void followsAChange();
    void standstillHasNoTimeLeft();
};

void CopyRateTest::theRateIsUnknownAtFirst()
{
    CopyRate rate;
    QVERIFY(!rate.bytesPerSecond());
    rate.add(0, 0);
    rate.add(200, 1000);
    QVERIFY(!rate.bytesPerSecond());
    QVERIFY(!rate.secondsLeft(1000));
}

void CopyRateTest::aSteadySpeedGivesTheTimeLeft()
{
    CopyRate rate;
    for (int time = 0; time <= 10000; time += 50)
        rate.add(time, time * 2);
    QCOMPARE(*rate.bytesPerSecond(), 2000.0);
    QCOMPARE(*rate.secondsLeft(5000), qint64(3));
    QCOMPARE(*rate.secondsLeft(0), qint64(0));
}

void CopyRateTest::followsAChange()
{
    CopyRate rate;
    for (int time = 0; time <= 10000; time += 100)
        rate.add(time, time);
    for (int time = 10100; time <= 16000; time += 100)
        rate.add(time, 10000 + (time - 10000) * 5);
    QCOMPARE(*rate.bytesPerSecond(), 5000.0);
}

void CopyRateTest::standstillHasNoTimeLeft()
{
    CopyRate rate;
    for (int time = 0; time <= 10000; time += 100)
        rate.add(time, 77);
    QVERIFY(!rate.bytesPerSecond());
    QVERIFY(!rate.secondsLeft(1));
}

ZORVANE_TEST(CopyRateTest)
#include "CopyRateTest.moc"
