#include "Workbench/Edit/QuantityPanel.h"

#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Tree/TreeFixture.h"
#include "Workbench/Edit/EngineeringSpinBox.h"

namespace Zorvane::Workbench {

using Testing::objectId;

class QuantityPanelTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void showsWhatTheObjectMeasures_data();
    void showsWhatTheObjectMeasures();
    void showsTheValueOfTheSession();
    void asksForAnEdit();
    void showingAnotherObjectEditsNothing();
    void whatIsTypedGoesToTheObjectItWasTypedFor();
    void unreadableText_isReportedWhenAnotherObjectIsShown();
    void whatIsTypedStaysWhileTheDesignIsRefreshed_data();
    void whatIsTypedStaysWhileTheDesignIsRefreshed();
    void aRefusedValueIsPutBack();
    void namesItsBoxes();

private:
    std::unique_ptr<Testing::OpenedDesign> m_opened;
    std::unique_ptr<QuantityPanel> m_panel;
    int m_edits = 0;
};

void QuantityPanelTest::init()
{
    m_opened = std::make_unique<Testing::OpenedDesign>();
    m_panel = std::make_unique<QuantityPanel>(m_opened->session);
    m_edits = 0;
    connect(m_panel.get(), &QuantityPanel::edited, &m_opened->session,
            [this](const GUIdentifier& object, Quantity quantity, double value) {
                ++m_edits;
                m_opened->session.setQuantity(object, quantity, value);
            });
}

void QuantityPanelTest::cleanup()
{
    m_panel.reset();
    m_opened.reset();
    TestCase::cleanup();
}

void QuantityPanelTest::showsWhatTheObjectMeasures_data()
{
    QTest::addColumn<int>("object");
    QTest::addColumn<bool>("thickness");
    QTest::addColumn<bool>("force");
    QTest::newRow("blank") << 2 << true << false;
    QTest::newRow("part") << 10 << true << true;
    QTest::newRow("operation") << 20 << false << true;
    QTest::newRow("tool") << 21 << false << true;
    QTest::newRow("material") << 30 << false << false;
    QTest::newRow("nothing") << 99 << false << false;
}

void QuantityPanelTest::showsWhatTheObjectMeasures()
{
    QFETCH(int, object);
    QFETCH(bool, thickness);
    QFETCH(bool, force);
    m_panel->show(objectId(object));
    QCOMPARE(!m_panel->isHidden(), thickness || force);
    QCOMPARE(!m_panel->spinBox(Quantity::Thickness).isHidden(), thickness);
    QCOMPARE(!m_panel->spinBox(Quantity::Force).isHidden(), force);
}

void QuantityPanelTest::showsTheValueOfTheSession()
{
    m_panel->show(objectId(2));
    QCOMPARE(m_panel->spinBox(Quantity::Thickness).value(), 1.25);
    m_opened->session.setQuantity(objectId(2), Quantity::Thickness, 0.8);
    m_panel->show(objectId(2));
    QCOMPARE(m_panel->spinBox(Quantity::Thickness).value(), 0.8);
    m_panel->show(objectId(10));
    QCOMPARE(m_panel->spinBox(Quantity::Thickness).text(),
             quantityText(Quantity::Thickness, noValue));
    QCOMPARE(m_edits, 0);
}

void QuantityPanelTest::asksForAnEdit()
{
    m_panel->show(objectId(2));
    m_panel->spinBox(Quantity::Thickness).stepBy(1);
    QCOMPARE(m_edits, 1);
    QCOMPARE(*m_opened->session.quantity(objectId(2), Quantity::Thickness), 1.26);
    m_panel->show(objectId(10));
    m_panel->spinBox(Quantity::Force).stepBy(1);
    QCOMPARE(*m_opened->session.quantity(objectId(10), Quantity::Force), 1000.0);
}

void QuantityPanelTest::showingAnotherObjectEditsNothing()
{
    for (const int object : {2, 10, 20, 21, 30, 2})
        m_panel->show(objectId(object));
    QCOMPARE(m_edits, 0);
    QVERIFY(!m_opened->session.isModified());
}

void QuantityPanelTest::whatIsTypedGoesToTheObjectItWasTypedFor()
{
    m_panel->show(objectId(2));
    m_panel->activateWindow();
    EngineeringSpinBox& box = m_panel->spinBox(Quantity::Thickness);
    box.setFocus();
    QTRY_VERIFY(box.hasFocus());
    box.selectAll();
    QTest::keyClicks(&box, QStringLiteral("2"));
    m_panel->show(objectId(10));
    QCOMPARE(*m_opened->session.quantity(objectId(2), Quantity::Thickness), 2.0);
    QCOMPARE(*m_opened->session.quantity(objectId(10), Quantity::Thickness), noValue);
}

void QuantityPanelTest::unreadableText_isReportedWhenAnotherObjectIsShown()
{
    m_panel->show(objectId(2));
    QSignalSpy refused(m_panel.get(), &QuantityPanel::refused);
    EngineeringSpinBox& box = m_panel->spinBox(Quantity::Thickness);
    box.selectAll();
    QTest::keyClicks(&box, QStringLiteral("1,500"));
    m_panel->show(objectId(10));
    QCOMPARE(refused.count(), 1);
    QVERIFY(refused[0][0].toString().contains(QStringLiteral("1,500")));
    QCOMPARE(*m_opened->session.quantity(objectId(2), Quantity::Thickness), 1.25);
    QCOMPARE(box.text(), quantityText(Quantity::Thickness, noValue));
    QVERIFY(box.obstacle().isEmpty());
}

void QuantityPanelTest::whatIsTypedStaysWhileTheDesignIsRefreshed_data()
{
    QTest::addColumn<double>("before");
    QTest::newRow("as shown") << 1.25;
    QTest::newRow("of more places than are shown") << 1.23456789012;
    QTest::newRow("huge") << 1.5e30;
}

void QuantityPanelTest::whatIsTypedStaysWhileTheDesignIsRefreshed()
{
    QFETCH(double, before);
    m_opened->session.setQuantity(objectId(2), Quantity::Thickness, before);
    m_panel->show(objectId(2));
    EngineeringSpinBox& box = m_panel->spinBox(Quantity::Thickness);
    box.selectAll();
    QTest::keyClicks(&box, QStringLiteral("77"));
    m_opened->session.rename(objectId(2), QStringLiteral("Other"));
    m_panel->show(objectId(2));
    QVERIFY2(box.text().startsWith(QStringLiteral("77")), qPrintable(box.text()));
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(*m_opened->session.quantity(objectId(2), Quantity::Thickness), 77.0);
}

void QuantityPanelTest::aRefusedValueIsPutBack()
{
    m_panel->disconnect(&m_opened->session);
    m_panel->show(objectId(2));
    m_panel->spinBox(Quantity::Thickness).stepBy(1);
    m_panel->show(objectId(2));
    QCOMPARE(m_panel->spinBox(Quantity::Thickness).value(), 1.25);
}

void QuantityPanelTest::namesItsBoxes()
{
    for (const Quantity quantity : s_quantities)
        QCOMPARE(m_panel->spinBox(quantity).accessibleName(), quantityName(quantity));
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::QuantityPanelTest;
ZORVANE_TEST(QuantityPanelTest)
#include "QuantityPanelTest.moc"
