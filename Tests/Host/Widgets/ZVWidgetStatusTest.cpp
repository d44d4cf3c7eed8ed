#include "Host/Widgets/ZVWidgetStatus.h"

#include "Tests/Support/TestCase.h"

#include <QtCore/QMetaEnum>

using namespace Zorvane;

class ZVWidgetStatusTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void statesKeepTheirValues_data();
    void statesKeepTheirValues();
    void statesCombineAndTravelAsInts();
    void everyStateIsABitOfItsOwn();
};

void ZVWidgetStatusTest::statesKeepTheirValues_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("value");
    QTest::newRow("Normal") << int(ZVWidgetStatus::Normal) << 0x00;
    QTest::newRow("Missing") << int(ZVWidgetStatus::Missing) << 0x01;
    QTest::newRow("Modified") << int(ZVWidgetStatus::Modified) << 0x02;
    QTest::newRow("Error") << int(ZVWidgetStatus::Error) << 0x04;
    QTest::newRow("Warning") << int(ZVWidgetStatus::Warning) << 0x08;
    QTest::newRow("Busy") << int(ZVWidgetStatus::Busy) << 0x10;
    QTest::newRow("OutOfDate") << int(ZVWidgetStatus::OutOfDate) << 0x20;
    QTest::newRow("ReadOnly") << int(ZVWidgetStatus::ReadOnly) << 0x40;
}

void ZVWidgetStatusTest::statesKeepTheirValues()
{
    QFETCH(int, status);
    QFETCH(int, value);
    QCOMPARE(status, value);
    const auto names = QMetaEnum::fromType<ZVWidgetStatus::Stati>();
    QCOMPARE(names.valueToKey(value), QTest::currentDataTag());
}

void ZVWidgetStatusTest::statesCombineAndTravelAsInts()
{
    const ZVWidgetStatus::Stati stati = ZVWidgetStatus::Missing | ZVWidgetStatus::ReadOnly;
    const QVariant variant = int(stati);
    QCOMPARE(ZVWidgetStatus::Stati(variant.toInt()), stati);
    QVERIFY(stati.testFlag(ZVWidgetStatus::Missing));
    QVERIFY(!stati.testFlag(ZVWidgetStatus::Modified));
}

void ZVWidgetStatusTest::everyStateIsABitOfItsOwn()
{
    const auto names = QMetaEnum::fromType<ZVWidgetStatus::Stati>();
    int seen = 0;
    for (int i = 0; i < names.keyCount(); ++i) {
        QCOMPARE(names.value(i) & seen, 0);
        QCOMPARE(names.value(i) & (names.value(i) - 1), 0);
        seen |= names.value(i);
    }
}

ZORVANE_TEST(ZVWidgetStatusTest)
#include "ZVWidgetStatusTest.moc"
