#include "Workbench/Edit/EngineeringSpinBox.h"

#include "Tests/Support/TestCase.h"
#include "Utilities/NumberRepresentation.h"

#include <QtCore/QLocale>
#include <QtWidgets/QLineEdit>

namespace Zorvane::Workbench {

class EngineeringSpinBoxTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void showsEngineeringNotation_data();
    void showsEngineeringNotation();
    void showsAndReadsTheLocalesNumbers();
    void stepsByWhatSuitsTheValue_data();
    void stepsByWhatSuitsTheValue();
    void stepsBySuitTheNumberTyped_data();
    void stepsBySuitTheNumberTyped();
    void stepsUpFromZero();
    void neverStepsBelowZero();
    void smallStepsAreStillSeen();
    void takesWhatIsTyped_data();
    void takesWhatIsTyped();
    void refusesWhatIsNoNumber_data();
    void refusesWhatIsNoNumber();
    void tellsAValueOnceItIsEntered();
    void aRoundedTextLeavesTheValue();
    void zeroIsTheSpecialText();

private:
    void type(const QString& text);
    QLineEdit* edit() const { return m_box->findChild<QLineEdit*>(); }

    std::unique_ptr<EngineeringSpinBox> m_box;
};

void EngineeringSpinBoxTest::init()
{
    QLocale::setDefault(QLocale::c());
    m_box = std::make_unique<EngineeringSpinBox>(0.1, 6);
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

void EngineeringSpinBoxTest::showsEngineeringNotation_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("plain") << 1.25 << QStringLiteral("1.25 N");
    QTest::newRow("thousands") << 97800.0 << QStringLiteral("97.8e3 N");
    QTest::newRow("thousandths") << 0.8 << QStringLiteral("800e-3 N");
    QTest::newRow("zero") << 0.0 << QStringLiteral("0 N");
}

void EngineeringSpinBoxTest::showsEngineeringNotation()
{
    QFETCH(double, value);
    m_box->setSuffix(QStringLiteral(" N"));
    m_box->setValue(1);
    m_box->setValue(value);
    QTEST(m_box->text(), "text");
}

void EngineeringSpinBoxTest::showsAndReadsTheLocalesNumbers()
{
    QLocale::setDefault(QLocale(QLocale::German));
    EngineeringSpinBox box(0.1, 6);
    box.setValue(1.25);
    QCOMPARE(box.text(), QStringLiteral("1,25"));
    box.selectAll();
    QTest::keyClicks(&box, QStringLiteral("2,5e3"));
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(box.value(), 2500.0);
}

void EngineeringSpinBoxTest::stepsByWhatSuitsTheValue_data()
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

void EngineeringSpinBoxTest::stepsByWhatSuitsTheValue()
{
    QFETCH(double, value);
    QFETCH(int, steps);
    m_box->setValue(value);
    m_box->stepBy(steps);
    QTEST(m_box->value(), "expected");
    QCOMPARE(m_box->singleStep(), NumberRepresentation::optimalSpinnerIncrement(value));
}

void EngineeringSpinBoxTest::stepsBySuitTheNumberTyped_data()
{
    QTest::addColumn<double>("before");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("expected");
    QTest::newRow("from none") << 0.0 << QStringLiteral("97800") << 97900.0;
    QTest::newRow("from a smaller one") << 1.0 << QStringLiteral("5000") << 5010.0;
    QTest::newRow("no number yet") << 123.0 << QStringLiteral("2e") << 124.0;
}

void EngineeringSpinBoxTest::stepsBySuitTheNumberTyped()
{
    QFETCH(double, before);
    QFETCH(QString, typed);
    m_box->setSpecialValueText(QStringLiteral("No value"));
    m_box->setValue(before);
    m_box->selectAll();
    QTest::keyClicks(m_box.get(), typed);
    QTest::keyClick(m_box.get(), Qt::Key_Up);
    QTEST(m_box->value(), "expected");
}

void EngineeringSpinBoxTest::stepsUpFromZero()
{
    m_box->stepBy(1);
    QCOMPARE(m_box->value(), 0.1);
}

void EngineeringSpinBoxTest::neverStepsBelowZero()
{
    m_box->setValue(0.05);
    m_box->stepBy(-1000);
    QCOMPARE(m_box->value(), 0.0);
}

void EngineeringSpinBoxTest::smallStepsAreStillSeen()
{
    m_box->setValue(0.00001);
    m_box->stepBy(1);
    QCOMPARE(m_box->value(), 0.000011);
}

void EngineeringSpinBoxTest::takesWhatIsTyped_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    QTest::newRow("plain") << QStringLiteral("0.75") << 0.75;
    QTest::newRow("engineering") << QStringLiteral("750e-3") << 0.75;
    QTest::newRow("another exponent") << QStringLiteral("2.5E4") << 25000.0;
    QTest::newRow("with unit") << QStringLiteral("12 N") << 12.0;
    QTest::newRow("zero") << QStringLiteral("0") << 0.0;
}

void EngineeringSpinBoxTest::takesWhatIsTyped()
{
    QFETCH(QString, text);
    m_box->setSuffix(QStringLiteral(" N"));
    m_box->setValue(3);
    type(text);
    QTEST(m_box->value(), "value");
}

void EngineeringSpinBoxTest::refusesWhatIsNoNumber_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("letters") << QStringLiteral("abc");
    QTest::newRow("negative") << QStringLiteral("-5");
    QTest::newRow("not a number") << QStringLiteral("nan");
    QTest::newRow("infinite") << QStringLiteral("inf");
    QTest::newRow("too large") << QStringLiteral("1e39");
    QTest::newRow("two points") << QStringLiteral("1.2.3");
}

void EngineeringSpinBoxTest::refusesWhatIsNoNumber()
{
    QFETCH(QString, text);
    int position = text.size();
    m_box->setValue(3);
    QCOMPARE(m_box->validate(text, position), QValidator::Invalid);
}

void EngineeringSpinBoxTest::tellsAValueOnceItIsEntered()
{
    QSignalSpy changed(m_box.get(), QOverload<double>::of(&QDoubleSpinBox::valueChanged));
    m_box->selectAll();
    QTest::keyClicks(m_box.get(), QStringLiteral("125"));
    QCOMPARE(changed.count(), 0);
    QTest::keyClick(m_box.get(), Qt::Key_Return);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed[0][0].toDouble(), 125.0);
}

void EngineeringSpinBoxTest::aRoundedTextLeavesTheValue()
{
    m_box->setValue(123.456789);
    QCOMPARE(m_box->text(), QStringLiteral("123.457"));
    QSignalSpy changed(m_box.get(), QOverload<double>::of(&QDoubleSpinBox::valueChanged));
    QTest::keyClick(m_box.get(), Qt::Key_Return);
    QCOMPARE(m_box->value(), 123.456789);
    QCOMPARE(changed.count(), 0);
}

void EngineeringSpinBoxTest::zeroIsTheSpecialText()
{
    m_box->setSpecialValueText(QStringLiteral("No value"));
    QCOMPARE(m_box->text(), QStringLiteral("No value"));
    type(QStringLiteral("5"));
    QCOMPARE(m_box->value(), 5.0);
    type(QStringLiteral("0"));
    QCOMPARE(m_box->text(), QStringLiteral("No value"));
    QTest::keyClick(m_box.get(), Qt::Key_Return);
    QCOMPARE(m_box->value(), 0.0);
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::EngineeringSpinBoxTest;
ZORVANE_TEST(EngineeringSpinBoxTest)
#include "EngineeringSpinBoxTest.moc"
