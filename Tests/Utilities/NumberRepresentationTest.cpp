#include "Utilities/NumberRepresentation.h"

#include "Host/Widgets/ZVFormatter.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QTranslator>

#include <cfloat>
#include <cmath>
#include <limits>

using namespace Zorvane;

namespace {

constexpr double s_floatLimit = 3.4028234663852886e38;
constexpr double s_infinity = std::numeric_limits<double>::infinity();
const double s_nan = std::numeric_limits<double>::quiet_NaN();

/** Knows the one text of this class. */
class NoValueTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        const bool isKnown =
            qstrcmp(context, "NumberRepresentation") == 0 && qstrcmp(text, "No value") == 0;
        return isKnown ? QStringLiteral("Keine M\u00e4\u00dfe") : QString();
    }
};

} // namespace

class NumberRepresentationTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void tellsWhatIsNoValue_data();
    void tellsWhatIsNoValue();
    void leavesValuesToTheFormatter_data();
    void leavesValuesToTheFormatter();
    void translatesNoValueAtTheMomentOfUse();
    void stepsByAHundredthOfTheDecade_data();
    void stepsByAHundredthOfTheDecade();
    void stepsTheSameWhateverTheSign();
    void hasNoStepForNotANumber();
};

void NumberRepresentationTest::tellsWhatIsNoValue_data()
{
    QTest::addColumn<double>("value");
    QTest::newRow("not a number") << s_nan;
    QTest::newRow("infinity") << s_infinity;
    QTest::newRow("negative infinity") << -s_infinity;
    QTest::newRow("the largest float") << s_floatLimit;
    QTest::newRow("minus the largest float") << -s_floatLimit;
    QTest::newRow("FLT_MAX") << double(FLT_MAX);
    QTest::newRow("just beyond") << std::nextafter(s_floatLimit, s_infinity);
    QTest::newRow("just beyond, negative") << std::nextafter(-s_floatLimit, -s_infinity);
    QTest::newRow("the largest double") << DBL_MAX;
}

void NumberRepresentationTest::tellsWhatIsNoValue()
{
    QFETCH(double, value);
    QCOMPARE(NumberRepresentation::convertToEngineeringNotation(value), std::string("No value"));
}

void NumberRepresentationTest::leavesValuesToTheFormatter_data()
{
    QTest::addColumn<double>("value");
    QTest::newRow("zero") << 0.0;
    QTest::newRow("negative zero") << -0.0;
    QTest::newRow("a thickness") << 0.85;
    QTest::newRow("a force") << -1.25e6;
    QTest::newRow("the smallest double") << DBL_TRUE_MIN;
    QTest::newRow("just inside") << std::nextafter(s_floatLimit, 0.0);
    QTest::newRow("just inside, negative") << std::nextafter(-s_floatLimit, 0.0);
}

void NumberRepresentationTest::leavesValuesToTheFormatter()
{
    QFETCH(double, value);
    QCOMPARE(NumberRepresentation::convertToEngineeringNotation(value),
             ZVFormatter::convertValueToEngineeringNotation(value));
}

void NumberRepresentationTest::translatesNoValueAtTheMomentOfUse()
{
    NoValueTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const std::string translated = NumberRepresentation::convertToEngineeringNotation(s_nan);
    QVERIFY(QCoreApplication::removeTranslator(&translator));
    QCOMPARE(translated, std::string("Keine M\xc3\xa4\xc3\x9f"
                                     "e"));
    QCOMPARE(NumberRepresentation::convertToEngineeringNotation(s_nan), std::string("No value"));
}

void NumberRepresentationTest::stepsByAHundredthOfTheDecade_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("step");
    // clang-format off
    QTest::newRow("hundreds")                        << 123.0    << 1.0;
    QTest::newRow("a negative value")                << -250.0   << 1.0;
    QTest::newRow("one")                             << 1.0      << 0.01;
    QTest::newRow("below ten")                       << 9.999    << 0.01;
    QTest::newRow("ten")                             << 10.0     << 0.1;
    QTest::newRow("a hundred")                       << 100.0    << 1.0;
    QTest::newRow("a thousand")                      << 1000.0   << 10.0;
    QTest::newRow("below a hundred thousand")        << 99999.0  << 100.0;
    QTest::newRow("a half steps as five does")       << 0.5      << 0.01;
    QTest::newRow("just below one")                  << 0.999    << 0.01;
    QTest::newRow("just above a tenth")              << 0.1001   << 0.01;
    QTest::newRow("a tenth starts the next decade")  << 0.1      << 0.001;
    QTest::newRow("below a tenth")                   << 0.05     << 0.001;
    QTest::newRow("a hundredth")                     << 0.01     << 0.0001;
    QTest::newRow("below a hundredth")               << 0.005    << 0.0001;
    QTest::newRow("zero has no step")                << 0.0      << 0.0;
    QTest::newRow("negative zero")                   << -0.0     << 0.0;
    QTest::newRow("a step too small for a double")   << 5e-324   << 0.0;
    QTest::newRow("the largest float")               << s_floatLimit << 1e36;
    QTest::newRow("the largest double")              << DBL_MAX  << 1e306;
    // clang-format on
}

void NumberRepresentationTest::stepsByAHundredthOfTheDecade()
{
    QFETCH(double, value);
    QTEST(NumberRepresentation::optimalSpinnerIncrement(value), "step");
}

void NumberRepresentationTest::stepsTheSameWhateverTheSign()
{
    for (const double value : {1e-9, 0.05, 0.1, 0.5, 1.0, 3.0, 250.0, 1e12})
        QCOMPARE(NumberRepresentation::optimalSpinnerIncrement(-value),
                 NumberRepresentation::optimalSpinnerIncrement(value));
}

void NumberRepresentationTest::hasNoStepForNotANumber()
{
    QVERIFY(std::isnan(NumberRepresentation::optimalSpinnerIncrement(s_nan)));
    QVERIFY(std::isinf(NumberRepresentation::optimalSpinnerIncrement(s_infinity)));
    QVERIFY(std::isinf(NumberRepresentation::optimalSpinnerIncrement(-s_infinity)));
}

ZORVANE_TEST(NumberRepresentationTest)
#include "NumberRepresentationTest.moc"
