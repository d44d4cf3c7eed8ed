#include "Workbench/Design/Quantity.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Design/SessionFolder.h"
#include "Workbench/Design/DesignSession.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QLocale>
#include <QtTest/QSignalSpy>

#include <limits>

using namespace Zorvane;
using namespace Zorvane::Testing;
using namespace Zorvane::Workbench;

Q_DECLARE_METATYPE(Zorvane::Workbench::Quantity)

class QuantityTest : public TestCase, private SessionFolder
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void textsAreEngineeringNotation_data();
    void textsAreEngineeringNotation();

    void objectsHaveTheirValues_data();
    void objectsHaveTheirValues();
    void valuesAreReadFromTheFile();
    void aNewValueIsAModificationUntilItIsSaved();
    void zero_isWrittenAndNoValueIsNot();
    void theValueOfTheFileTakesTheModificationBack();
    void valuesAreTakenBackOneByOne();
    void theSameValueIsNoChange();
    void refusesValue_data();
    void refusesValue();
    void refusesObjectsWithoutTheValue();
    void revertBringsTheFilesValueBack();

private:
    QString m_file;
};

void QuantityTest::init()
{
    QLocale::setDefault(QLocale::c());
    renew();
    m_file = openSmallDesign();
}

void QuantityTest::textsAreEngineeringNotation_data()
{
    QTest::addColumn<Quantity>("quantity");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("thickness") << Quantity::Thickness << 1.25 << QStringLiteral("1.25 mm");
    QTest::newRow("thin") << Quantity::Thickness << 0.8 << QStringLiteral("800e-3 mm");
    QTest::newRow("force") << Quantity::Force << 182000.0 << QStringLiteral("182e3 N");
    QTest::newRow("zero") << Quantity::Force << 0.0 << QStringLiteral("0 N");
    QTest::newRow("none") << Quantity::Force << noValue << QStringLiteral("No value");
    QTest::newRow("beyond") << Quantity::Force << 1e39 << QStringLiteral("No value");
}

void QuantityTest::textsAreEngineeringNotation()
{
    QFETCH(Quantity, quantity);
    QFETCH(double, value);
    QTEST(quantityText(quantity, value), "text");
}

void QuantityTest::objectsHaveTheirValues_data()
{
    QTest::addColumn<int>("object");
    QTest::addColumn<bool>("thickness");
    QTest::addColumn<bool>("force");
    QTest::newRow("design") << 1 << false << false;
    QTest::newRow("blank") << 2 << true << false;
    QTest::newRow("part") << 10 << true << true;
    QTest::newRow("operation") << 20 << false << true;
    QTest::newRow("tool") << 21 << false << true;
    QTest::newRow("material") << 30 << false << false;
    QTest::newRow("file") << 40 << false << false;
    QTest::newRow("nothing") << 99 << false << false;
}

void QuantityTest::objectsHaveTheirValues()
{
    QFETCH(int, object);
    QTEST(m_session->quantity(id(object), Quantity::Thickness).has_value(), "thickness");
    QTEST(m_session->quantity(id(object), Quantity::Force).has_value(), "force");
}

void QuantityTest::valuesAreReadFromTheFile()
{
    QCOMPARE(*m_session->quantity(id(2), Quantity::Thickness), 1.25);
    QCOMPARE(*m_session->quantity(id(10), Quantity::Thickness), noValue);
    for (const int object : {10, 20, 21})
        QCOMPARE(m_session->setQuantity(id(object), Quantity::Force, 1000.0 * object), QString());
    QCOMPARE(m_session->setQuantity(id(10), Quantity::Thickness, 0.75), QString());
    QVERIFY(m_session->save().empty());
    DesignSession again;
    again.open({m_file});
    QVERIFY(again.problems().empty());
    for (const int object : {10, 20, 21})
        QCOMPARE(*again.quantity(id(object), Quantity::Force), 1000.0 * object);
    QCOMPARE(*again.quantity(id(10), Quantity::Thickness), 0.75);
}

void QuantityTest::aNewValueIsAModificationUntilItIsSaved()
{
    const QSignalSpy changed(m_session.get(), &DesignSession::changed);
    QCOMPARE(m_session->setQuantity(id(2), Quantity::Thickness, 0.8), QString());
    QCOMPARE(changed.count(), 1);
    QVERIFY(m_session->isModified());
    QVERIFY(m_session->isModified(id(2)));
    QVERIFY(!m_session->isModified(id(10)));
    QVERIFY(m_session->save().empty());
    QVERIFY(!m_session->isModified());
    const QJsonObject written = QJsonDocument::fromJson(readFile(m_file)).object();
    QCOMPARE(written[QLatin1String("blank")][QLatin1String("thickness")].toDouble(), 0.8);
}

void QuantityTest::zero_isWrittenAndNoValueIsNot()
{
    const auto written = [this] {
        const QJsonObject design = QJsonDocument::fromJson(readFile(m_file)).object();
        return design[QLatin1String("blank")][QLatin1String("thickness")];
    };
    QCOMPARE(m_session->setQuantity(id(2), Quantity::Thickness, 0), QString());
    QVERIFY(m_session->save().empty());
    QCOMPARE(written(), QJsonValue(0));
    DesignSession again;
    again.open({m_file});
    QCOMPARE(*again.quantity(id(2), Quantity::Thickness), 0.0);
    again.close();
    QCOMPARE(m_session->setQuantity(id(2), Quantity::Thickness, noValue), QString());
    QVERIFY(m_session->save().empty());
    QVERIFY(written().isUndefined());
}

void QuantityTest::theValueOfTheFileTakesTheModificationBack()
{
    QCOMPARE(m_session->setQuantity(id(2), Quantity::Thickness, 0.8), QString());
    QCOMPARE(m_session->setQuantity(id(2), Quantity::Thickness, 0.9), QString());
    QCOMPARE(m_session->setQuantity(id(2), Quantity::Thickness, 1.25), QString());
    QVERIFY(!m_session->isModified());
}

void QuantityTest::valuesAreTakenBackOneByOne()
{
    QCOMPARE(m_session->setQuantity(id(10), Quantity::Thickness, 0.8), QString());
    QCOMPARE(m_session->setQuantity(id(10), Quantity::Force, 5e4), QString());
    QCOMPARE(m_session->setQuantity(id(10), Quantity::Thickness, noValue), QString());
    QVERIFY(m_session->isModified(id(10)));
    QCOMPARE(m_session->setQuantity(id(10), Quantity::Force, noValue), QString());
    QVERIFY(!m_session->isModified(id(10)));
}

void QuantityTest::theSameValueIsNoChange()
{
    const QSignalSpy changed(m_session.get(), &DesignSession::changed);
    QCOMPARE(m_session->setQuantity(id(2), Quantity::Thickness, 1.25), QString());
    QCOMPARE(changed.count(), 0);
}

void QuantityTest::refusesValue_data()
{
    QTest::addColumn<double>("value");
    QTest::newRow("negative") << -0.1;
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity();
    QTest::newRow("beyond the mark for no value") << 2 * noValue;
}

void QuantityTest::refusesValue()
{
    QFETCH(double, value);
    const QSignalSpy changed(m_session.get(), &DesignSession::changed);
    QVERIFY(!m_session->setQuantity(id(2), Quantity::Thickness, value).isEmpty());
    QCOMPARE(*m_session->quantity(id(2), Quantity::Thickness), 1.25);
    QCOMPARE(changed.count(), 0);
}

void QuantityTest::refusesObjectsWithoutTheValue()
{
    QVERIFY(!m_session->setQuantity(id(2), Quantity::Force, 1).isEmpty());
    QVERIFY(!m_session->setQuantity(id(99), Quantity::Thickness, 1).isEmpty());
    QVERIFY(!m_session->isModified());
}

void QuantityTest::revertBringsTheFilesValueBack()
{
    QCOMPARE(m_session->setQuantity(id(2), Quantity::Thickness, 0.8), QString());
    m_session->revert(id(1));
    QCOMPARE(*m_session->quantity(id(2), Quantity::Thickness), 1.25);
    QVERIFY(!m_session->isModified());
}

ZORVANE_TEST(QuantityTest)
#include "QuantityTest.moc"
