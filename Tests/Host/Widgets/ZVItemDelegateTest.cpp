#include "Host/Widgets/ZVItemDelegate.h"

#include "Tests/Support/TestCase.h"

#include <QtGui/QColor>
#include <QtGui/QStandardItemModel>

using namespace Zorvane;

namespace {

/** Opens what derived delegates use. */
class OpenDelegate : public ZVItemDelegate
{
public:
    using ZVItemDelegate::disabledColor;
    using ZVItemDelegate::isEnabled;
};

} // namespace

class ZVItemDelegateTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void asksTheModelWhetherAnItemIsEnabled();
    void disabledColorsArePaler_data();
    void disabledColorsArePaler();
    void disabledColorsStayApart();
    void greyStaysGrey();
    void noColorStaysNone();
    void opacityIsKept();
};

void ZVItemDelegateTest::asksTheModelWhetherAnItemIsEnabled()
{
    QStandardItemModel model;
    model.appendRow(new QStandardItem);
    QVERIFY(OpenDelegate::isEnabled(model.index(0, 0)));
    model.item(0)->setFlags(Qt::ItemIsSelectable);
    QVERIFY(!OpenDelegate::isEnabled(model.index(0, 0)));
    QVERIFY(!OpenDelegate::isEnabled({}));
}

void ZVItemDelegateTest::disabledColorsArePaler_data()
{
    QTest::addColumn<QColor>("color");
    QTest::newRow("red") << QColor(200, 40, 40);
    QTest::newRow("blue") << QColor(40, 40, 200);
    QTest::newRow("muted green") << QColor(0x65, 0x97, 0x68);
    QTest::newRow("bright yellow") << QColor(255, 255, 0);
}

void ZVItemDelegateTest::disabledColorsArePaler()
{
    QFETCH(QColor, color);
    const QColor disabled = OpenDelegate::disabledColor(color);
    QVERIFY(disabled.hslSaturation() < color.hslSaturation());
    QVERIFY(disabled.hslSaturation() > 0);
    // Neither as dark as a dark background nor as light as a light one.
    QVERIFY(disabled.lightness() > 100);
    QVERIFY(disabled.lightness() < 220);
}

void ZVItemDelegateTest::disabledColorsStayApart()
{
    QVERIFY(OpenDelegate::disabledColor(Qt::red) != OpenDelegate::disabledColor(Qt::blue));
    QVERIFY(OpenDelegate::disabledColor(Qt::black).lightness() <
            OpenDelegate::disabledColor(Qt::white).lightness());
}

void ZVItemDelegateTest::greyStaysGrey()
{
    for (const QColor& grey : {QColor(Qt::black), QColor(Qt::darkGray), QColor(Qt::white)})
        QVERIFY(qIsGray(OpenDelegate::disabledColor(grey).rgb()));
}

void ZVItemDelegateTest::noColorStaysNone()
{
    QVERIFY(!OpenDelegate::disabledColor({}).isValid());
}

void ZVItemDelegateTest::opacityIsKept()
{
    QCOMPARE(OpenDelegate::disabledColor(QColor(200, 40, 40, 77)).alpha(), 77);
}

ZORVANE_TEST(ZVItemDelegateTest)
#include "ZVItemDelegateTest.moc"
