#include "Workbench/Edit/EngineeringSpinBox.h"

#include "Tests/Support/TestCase.h"

#include <QtCore/QLocale>
#include <QtWidgets/QLineEdit>

namespace Zorvane::Workbench {

class EngineeringSpinBoxTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void value_isShownInEngineeringNotation_data();
    void value_isShownInEngineeringNotation();
    void localesNumbers_areShownAndRead();
    void step_suitsTheValue_data();
    void step_suitsTheValue();
    void step_goesOnFromTheNumberTyped_data();
    void step_goesOnFromTheNumberTyped();
    void steps_goUpFromZeroAndFromNoValue();
    void steps_neverGoBelowZero();
    void smallStep_isSeen();
    void typedText_isTaken_data();
    void typedText_isTaken();
    void unreadableText_staysInRedAndKeepsTheValue_data();
    void unreadableText_staysInRedAndKeepsTheValue();
    void mendedText_losesItsRed();
    void escape_bringsTheValueBack();
    void typedValue_isReportedOnceWhenEntered();
    void roundedText_leavesTheValue();
    void zero_isAValueAndNothingIsNone();

private:
    void type(const QString& text);
    QLineEdit* edit() const { return m_box->findChild<QLineEdit*>(); }

    std::unique_ptr<EngineeringSpinBox> m_box;
};

void EngineeringSpinBoxTest::init()
{
    QLocale::setDefault(QLocale::c());
    m_box = std::make_unique<EngineeringSpinBox>(Quantity::Force);
}

void EngineeringSpinBoxTest::cleanup()
{
    m_box.reset();
    QLocale::setDefault(QLocale::c());
    TestCase::cleanup();
}

void EngineeringSpinBoxTest::type(const QString& text)
{
    m_box->selectAll();
    QTest::keyClicks(m_box.get(), text);
    QTest::keyClick(m_box.get(), Qt::Key_Return);
}

void EngineeringSpinBoxTest::value_isShownInEngineeringNotation_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("plain") << 1.25 << QStringLiteral("1.25 N");
    QTest::newRow("thousands") << 97800.0 << QStringLiteral("97.8e3 N");
    QTest::newRow("thousandths") << 0.8 << QStringLiteral("800e-3 N");
    QTest::newRow("zero") << 0.0 << QStringLiteral("0 N");
    QTest::newRow("none") << noValue << QStringLiteral("No value");
}

void EngineeringSpinBoxTest::value_isShownInEngineeringNotation()
{
    QFETCH(double, value);
    m_box->setValue(1);
    m_box->setValue(value);
    QTEST(m_box->text(), "text");
}

void EngineeringSpinBoxTest::localesNumbers_areShownAndRead()
{
    QLocale::setDefault(QLocale(QLocale::German));
    EngineeringSpinBox box(Quantity::Thickness);
    box.setValue(1.25);
    QCOMPARE(box.text(), QStringLiteral("1,25 mm"));
    box.selectAll();
    QTest::keyClicks(&box, QStringLiteral("2,5e3"));
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(box.value(), 2500.0);
}

void EngineeringSpinBoxTest::step_suitsTheValue_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("steps");
    QTest::addColumn<double>("expected");
    QTest::newRow("units") << 1.0 << 1 << 1.01;
    QTest::newRow("hundreds") << 123.0 << 1 << 124.0;
    QTest::newRow("down") << 250.0 << -1 << 249.0;
    QTest::newRow("below one") << 0.5 << 1 << 0.51;
    QTest::newRow("far below one") << 0.05 << 1 << 0.051;
    QTest::newRow("a page") << 123.0 << 10 << 133.0;
    QTest::newRow("large") << 97800.0 << 1 << 97900.0;
}

void EngineeringSpinBoxTest::step_suitsTheValue()
{
    QFETCH(double, value);
    QFETCH(int, steps);
    m_box->setValue(value);
    m_box->stepBy(steps);
    QTEST(m_box->value(), "expected");
}

void EngineeringSpinBoxTest::step_goesOnFromTheNumberTyped_data()
{
    QTest::addColumn<double>("before");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("expected");
    QTest::newRow("from none") << noValue << QStringLiteral("97800") << 97900.0;
    QTest::newRow("from a smaller one") << 1.0 << QStringLiteral("5000") << 5010.0;
    QTest::newRow("no number yet") << 123.0 << QStringLiteral("2e") << 124.0;
}

void EngineeringSpinBoxTest::step_goesOnFromTheNumberTyped()
{
    QFETCH(double, before);
    QFETCH(QString, typed);
    m_box->setValue(before);
    m_box->selectAll();
    QTest::keyClicks(m_box.get(), typed);
    QTest::keyClick(m_box.get(), Qt::Key_Up);
    QTEST(m_box->value(), "expected");
    QVERIFY(m_box->obstacle().isEmpty());
}

void EngineeringSpinBoxTest::steps_goUpFromZeroAndFromNoValue()
{
    for (const double before : {0.0, noValue}) {
        m_box->setValue(before);
        QTest::keyClick(m_box.get(), Qt::Key_Down);
        QCOMPARE(m_box->value(), before);
        QTest::keyClick(m_box.get(), Qt::Key_Up);
        QCOMPARE(m_box->value(), 1000.0);
    }
}

void EngineeringSpinBoxTest::steps_neverGoBelowZero()
{
    m_box->setValue(0.05);
    m_box->stepBy(-1000);
    QCOMPARE(m_box->value(), 0.0);
}

void EngineeringSpinBoxTest::smallStep_isSeen()
{
    m_box->setValue(0.00001);
    const QString before = m_box->text();
    m_box->stepBy(1);
    QVERIFY(m_box->value() > 0.00001);
    QVERIFY(m_box->text() != before);
}

void EngineeringSpinBoxTest::typedText_isTaken_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    QTest::newRow("plain") << QStringLiteral("0.75") << 0.75;
    QTest::newRow("unit with prefix") << QStringLiteral("3.4 MN") << 3.4e6;
    QTest::newRow("groups") << QStringLiteral("2 000 000") << 2e6;
    QTest::newRow("the other decimal sign") << QStringLiteral("1,5") << 1.5;
    QTest::newRow("fine") << QStringLiteral("1e-9") << 1e-9;
}

void EngineeringSpinBoxTest::typedText_isTaken()
{
    QFETCH(QString, text);
    m_box->setValue(3);
    type(text);
    QTEST(m_box->value(), "value");
    QCOMPARE(m_box->text(), quantityText(Quantity::Force, m_box->value()));
}

void EngineeringSpinBoxTest::unreadableText_staysInRedAndKeepsTheValue_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text : {"abc", "-5", "1e300", "1.2.3", "1,500", "3 kg"})
        QTest::newRow(text) << QString::fromLatin1(text);
}

void EngineeringSpinBoxTest::unreadableText_staysInRedAndKeepsTheValue()
{
    QFETCH(QString, text);
    m_box->setValue(3);
    const QColor usual = edit()->palette().color(QPalette::Text);
    QSignalSpy entered(m_box.get(), &EngineeringSpinBox::entered);
    type(text);
    QCOMPARE(m_box->value(), 3.0);
    QCOMPARE(entered.count(), 0);
    QCOMPARE(m_box->text(), text);
    QVERIFY(!m_box->obstacle().isEmpty());
    QCOMPARE(m_box->toolTip(), m_box->obstacle());
    QVERIFY(edit()->palette().color(QPalette::Text) != usual);
    QVERIFY(!edit()->hasSelectedText());
    m_box->setValue(4);
    QCOMPARE(edit()->palette().color(QPalette::Text), usual);
    QCOMPARE(m_box->toolTip(), QString());
}

void EngineeringSpinBoxTest::mendedText_losesItsRed()
{
    m_box->setValue(3);
    type(QStringLiteral("4 NN"));
    QTest::keyClick(m_box.get(), Qt::Key_Backspace);
    QVERIFY(m_box->obstacle().isEmpty());
    QCOMPARE(m_box->value(), 3.0);
    QTest::keyClick(m_box.get(), Qt::Key_Return);
    QCOMPARE(m_box->value(), 4.0);
}

void EngineeringSpinBoxTest::escape_bringsTheValueBack()
{
    m_box->setValue(3);
    type(QStringLiteral("abc"));
    QTest::keyClick(m_box.get(), Qt::Key_Escape);
    QCOMPARE(m_box->text(), QStringLiteral("3 N"));
    QVERIFY(m_box->obstacle().isEmpty());
}

void EngineeringSpinBoxTest::typedValue_isReportedOnceWhenEntered()
{
    QSignalSpy entered(m_box.get(), &EngineeringSpinBox::entered);
    m_box->selectAll();
    QTest::keyClicks(m_box.get(), QStringLiteral("125"));
    QCOMPARE(entered.count(), 0);
    QTest::keyClick(m_box.get(), Qt::Key_Return);
    QCOMPARE(entered.count(), 1);
    QCOMPARE(entered[0][0].toDouble(), 125.0);
    QTest::keyClick(m_box.get(), Qt::Key_Return);
    QCOMPARE(entered.count(), 1);
}

void EngineeringSpinBoxTest::roundedText_leavesTheValue()
{
    m_box->setValue(123.456789);
    QCOMPARE(m_box->text(), QStringLiteral("123.457 N"));
    QSignalSpy entered(m_box.get(), &EngineeringSpinBox::entered);
    QTest::keyClick(m_box.get(), Qt::Key_Return);
    QCOMPARE(m_box->value(), 123.456789);
    QCOMPARE(entered.count(), 0);
}

void EngineeringSpinBoxTest::zero_isAValueAndNothingIsNone()
{
    type(QStringLiteral("0"));
    QCOMPARE(m_box->value(), 0.0);
    QCOMPARE(m_box->text(), QStringLiteral("0 N"));
    m_box->selectAll();
    QTest::keyClick(m_box.get(), Qt::Key_Delete);
    QTest::keyClick(m_box.get(), Qt::Key_Return);
    QCOMPARE(m_box->value(), noValue);
    QCOMPARE(m_box->text(), QStringLiteral("No value"));
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::EngineeringSpinBoxTest;
ZORVANE_TEST(EngineeringSpinBoxTest)
#include "EngineeringSpinBoxTest.moc"
