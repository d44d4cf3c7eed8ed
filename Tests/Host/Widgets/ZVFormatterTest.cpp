#include "Host/Widgets/ZVFormatter.h"

#include "Tests/Support/TestCase.h"

#include <QtCore/QLocale>

#include <cfloat>
#include <cmath>
#include <limits>
#include <rapidcheck.h>

using namespace Zorvane;

namespace {

QString engineering(double value)
{
    return QString::fromStdString(ZVFormatter::convertValueToEngineeringNotation(value));
}

/** Any finite double, of every magnitude alike. */
rc::Gen<double> anyFiniteValue()
{
    return rc::gen::map(
        rc::gen::tuple(rc::gen::inRange(-999'999'999, 1'000'000'000), rc::gen::inRange(-320, 300)),
        [](const std::tuple<int, int>& parts) {
            return std::get<0>(parts) * std::pow(10.0, std::get<1>(parts));
        });
}

/** As far as the digits shown allow: half a unit of the last one, and what a denormal loses. */
double roundingOf(double value)
{
    return std::fabs(value) * 0.5000001 * std::pow(10.0, 1 - ZVFormatter::SignificantDigits) +
           std::numeric_limits<double>::denorm_min();
}

int exponentOf(const QString& text)
{
    return text.section(QLatin1Char('e'), 1).toInt();
}

double mantissaOf(const QString& text)
{
    return text.section(QLatin1Char('e'), 0, 0).toDouble();
}

} // namespace

class ZVFormatterTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale::c()); }
    void cleanup();

    void writesValuesWithUnits_data();
    void writesValuesWithUnits();
    void writesEngineeringNotation_data();
    void writesEngineeringNotation();
    void followsTheLocale_data();
    void followsTheLocale();
    void everyLocaleReadsItsTextBack();
    void exponentsAreMultiplesOfThreeAndMantissasBelowAThousand();
    void readsBackWithinItsDigits();
    void writingWhatWasReadGivesTheSameText();
};

void ZVFormatterTest::cleanup()
{
    QLocale::setDefault(QLocale::c());
    TestCase::cleanup();
}

void ZVFormatterTest::writesValuesWithUnits_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<bool>("withUnit");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, double value, const char* unit, bool withUnit,
                        const QString& text) {
        QTest::newRow(name) << value << QString::fromLatin1(unit) << withUnit << text;
    };
    row("degrees", -90, "degree", true, QStringLiteral("-90\u00b0"));
    row("a fraction of a degree", 22.5, "degree", true, QStringLiteral("22.5\u00b0"));
    row("without the unit", 90, "degree", false, QStringLiteral("90"));
    row("another unit", 170, "mm", true, QStringLiteral("170 mm"));
    row("six digits", 1.23456789, "mm", true, QStringLiteral("1.23457 mm"));
    row("nothing grouped", 123456, "N", true, QStringLiteral("123456 N"));
}

void ZVFormatterTest::writesValuesWithUnits()
{
    QFETCH(double, value);
    QFETCH(QString, unit);
    QFETCH(bool, withUnit);
    QTEST(ZVFormatter::toString(value, unit.toUtf8().constData(), withUnit), "text");
}

void ZVFormatterTest::writesEngineeringNotation_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, double value, const char* text) {
        QTest::newRow(name) << value << QString::fromLatin1(text);
    };
    // clang-format off
    row("zero",                               0.0,              "0");
    row("negative zero",                      -0.0,             "0");
    row("one",                                1.0,              "1");
    row("minus one",                          -1.0,             "-1");
    row("no exponent below a thousand",       999.0,            "999");
    row("digits before the point stay",       100.0,            "100");
    row("fraction",                           1.25,             "1.25");
    row("six digits",                         123.456,          "123.456");
    row("rounded to six digits",              123.4564999,      "123.456");
    row("rounded up",                         123.4567,         "123.457");
    row("a thousand",                         1000.0,           "1e3");
    row("just below a thousand",              999.999,          "999.999");
    row("rounds up to a thousand",            999.9999,         "1e3");
    row("rounds up to minus a thousand",      -999.9999,        "-1e3");
    row("rounds up to a million",             999'999.9,        "1e6");
    row("ten thousand",                       12'345.0,         "12.345e3");
    row("a hundred thousand",                 123'456.0,        "123.456e3");
    row("a million",                          1.0e6,            "1e6");
    row("a tenth",                            0.1,              "100e-3");
    row("a half",                             0.5,              "500e-3");
    row("below one rounds up to one",         0.99999996,       "1");
    row("a thousandth",                       1.0e-3,           "1e-3");
    row("below a thousandth",                 9.99e-4,          "999e-6");
    row("micro, negative",                    -2.5e-4,          "-250e-6");
    row("a tie goes to the nearer double",    1.0000005,        "1");
    row("largest float",                      double(FLT_MAX),  "340.282e36");
    row("smallest normal float",              double(FLT_MIN),  "11.7549e-39");
    row("largest double",                     DBL_MAX,          "179.769e306");
    row("smallest double",                    5e-324,           "4.94066e-324");
    row("infinity",                           HUGE_VAL,         "inf");
    row("negative infinity",                  -HUGE_VAL,        "-inf");
    row("not a number",                       std::nan(""),     "nan");
    // clang-format on
}

void ZVFormatterTest::writesEngineeringNotation()
{
    QFETCH(double, value);
    QTEST(engineering(value), "text");
}

void ZVFormatterTest::followsTheLocale_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("text");
    QTest::newRow("English") << QLocale(QLocale::English) << QStringLiteral("-12.5e-6");
    QTest::newRow("German") << QLocale(QLocale::German) << QStringLiteral("-12,5e-6");
    QTest::newRow("French") << QLocale(QLocale::French) << QStringLiteral("-12,5e-6");
    QTest::newRow("Hindi digits") << QLocale(QStringLiteral("mr_IN"))
                                  << QStringLiteral(u"-\u0967\u0968.\u096be-\u096c");
    QTest::newRow("Swedish minus")
        << QLocale(QLocale::Swedish) << QStringLiteral(u"\u221212,5e\u22126");
}

void ZVFormatterTest::followsTheLocale()
{
    QFETCH(QLocale, locale);
    QLocale::setDefault(locale);
    QTEST(engineering(-12.5e-6), "text");
}

void ZVFormatterTest::everyLocaleReadsItsTextBack()
{
    const auto locales =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry);
    QVERIFY(locales.size() > 100);
    for (const QLocale& locale : locales) {
        QLocale::setDefault(locale);
        for (const double value : {0.0, -1.5, 123.456, 12.5e3, -7.25e-6, 1e33}) {
            bool isRead = false;
            const double read = locale.toDouble(engineering(value), &isRead);
            QVERIFY2(isRead, qPrintable(locale.name() + QLatin1Char(' ') + engineering(value)));
            QCOMPARE(read, value);
        }
    }
}

void ZVFormatterTest::exponentsAreMultiplesOfThreeAndMantissasBelowAThousand()
{
    QVERIFY(rc::check([] {
        const double value = *anyFiniteValue();
        const QString text = engineering(value);
        RC_ASSERT(exponentOf(text) % 3 == 0);
        const double mantissa = std::fabs(mantissaOf(text));
        RC_ASSERT(mantissa < 1000.0);
        RC_ASSERT((mantissa >= 1.0) == (value != 0.0));
        RC_ASSERT(text != QLatin1String("-0"));
    }));
}

void ZVFormatterTest::readsBackWithinItsDigits()
{
    QVERIFY(rc::check([] {
        const double value = *anyFiniteValue();
        RC_ASSERT(std::fabs(engineering(value).toDouble() - value) <= roundingOf(value));
    }));
}

void ZVFormatterTest::writingWhatWasReadGivesTheSameText()
{
    QVERIFY(rc::check([] {
        const QString text = engineering(*anyFiniteValue());
        RC_ASSERT(engineering(text.toDouble()) == text);
    }));
}

ZORVANE_TEST(ZVFormatterTest)
#include "ZVFormatterTest.moc"
