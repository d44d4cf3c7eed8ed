#include "Workbench/Edit/TypedQuantity.h"

#include "Tests/Support/TestCase.h"

#include <limits>

namespace Zorvane::Workbench {

class TypedQuantityTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void usualNotation_isRead_data();
    void usualNotation_isRead();
    void otherText_isRefused_data();
    void otherText_isRefused();
    void commaInNumber_followsLocaleOnlyWhereAmbiguous_data();
    void commaInNumber_followsLocaleOnlyWhereAmbiguous();
    void shownText_isReadInEveryLocale();
};

void TypedQuantityTest::cleanup()
{
    QLocale::setDefault(QLocale::c());
    TestCase::cleanup();
}

void TypedQuantityTest::usualNotation_isRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("newtons");
    const auto row = [](const char* text, double newtons) {
        QTest::newRow(text) << QString::fromUtf8(text) << newtons;
    };
    row("3.4 MN", 3.4e6);
    row("3.4MN", 3.4e6);
    row("3.4 M", 3.4e6);
    row("1.1 kN", 1100);
    row("250 mN", 0.25);
    row("2 GN", 2e9);
    row("7 daN", 70);
    row("12 N", 12);
    row("2 000 000", 2e6);
    row("2\u202f000\u00a0000 N", 2e6);
    row("2'000'000", 2e6);
    row("2\u2019000 kN", 2e6);
    row("1,234,567", 1234567);
    row("1.234.567", 1234567);
    row("1,234.5", 1234.5);
    row("1.234,5", 1234.5);
    row("12 345,678", 12345.678);
    row("1,5", 1.5);
    row("1.5", 1.5);
    row("0,500", 0.5);
    row("1234,567", 1234.567);
    row(",5", 0.5);
    row("5.", 5);
    row("97.8e3 N", 97.8e3);
    row("2,5E4", 25000);
    row("1e-3 kN", 1);
    row("+4", 4);
    row("0", 0);
    row("0.0 kN", 0);
    row("-0", 0);
    row("  8  ", 8);
    row("\u0663\u066b\u0664", 3.4);
    row("\u0661\u066c\u0662\u0663\u0664", 1234);
    row("\u20683.4 N\u2069", 3.4);
    row("", noValue);
    row("No value", noValue);
}

void TypedQuantityTest::usualNotation_isRead()
{
    QFETCH(QString, text);
    const TypedQuantity typed = TypedQuantity::read(text, Quantity::Force, QLocale::c());
    QCOMPARE(typed.obstacle, QString());
    QTEST(typed.value, "newtons");
}

void TypedQuantityTest::otherText_isRefused_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text :
         {"abc",   "1.2.3", "1,2,3",    "1.2,3.4", "1,23,456", "2 00",   "2 0000", "1 2 3",
          "1e300", "1e400", "1e999999", "1e39",    "3.5e38",   "1e-400", "-5",     "- 1 kN",
          "nan",   "inf",   "3 mm",     "3 kg",    "3 kn",     "3/4",    "2 + 2",  "1e",
          "e3",    ".",     "-",        "N",       "0x10",     "3 4"})
        QTest::newRow(text) << QString::fromLatin1(text);
}

void TypedQuantityTest::otherText_isRefused()
{
    QFETCH(QString, text);
    const TypedQuantity typed = TypedQuantity::read(text, Quantity::Force, QLocale::c());
    QVERIFY(!typed.obstacle.isEmpty());
    QCOMPARE(typed.value, noValue);
}

void TypedQuantityTest::commaInNumber_followsLocaleOnlyWhereAmbiguous_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("english");
    QTest::addColumn<double>("german");
    QTest::newRow("1,5") << QStringLiteral("1,5") << 1.5 << 1.5;
    QTest::newRow("1.5") << QStringLiteral("1.5") << 1.5 << 1.5;
    QTest::newRow("1,500") << QStringLiteral("1,500") << noValue << 1.5;
    QTest::newRow("1.500") << QStringLiteral("1.500") << 1.5 << noValue;
    QTest::newRow("12,500 mm") << QStringLiteral("12,500 mm") << noValue << 12.5;
    QTest::newRow("1,250.5") << QStringLiteral("1,250.5") << 1250.5 << 1250.5;
}

void TypedQuantityTest::commaInNumber_followsLocaleOnlyWhereAmbiguous()
{
    QFETCH(QString, text);
    const auto read = [&text](QLocale::Language language) {
        return TypedQuantity::read(text, Quantity::Thickness, QLocale(language)).value;
    };
    QTEST(read(QLocale::English), "english");
    QTEST(read(QLocale::German), "german");
}

void TypedQuantityTest::shownText_isReadInEveryLocale()
{
    for (const QLocale::Language language :
         {QLocale::English, QLocale::German, QLocale::French, QLocale::Arabic, QLocale::Persian,
          QLocale::Swedish, QLocale::Hindi}) {
        const QLocale locale(language);
        QLocale::setDefault(locale);
        for (const double value : {0.0, 0.8, 1.5, 97'800.0, 3.4e6, 1.234e-9, 2e30}) {
            for (const Quantity quantity : s_quantities) {
                const QString shown = quantityText(quantity, value);
                const TypedQuantity typed = TypedQuantity::read(shown, quantity, locale);
                QVERIFY2(typed.obstacle.isEmpty(), qPrintable(shown + typed.obstacle));
                QCOMPARE(typed.value, value);
            }
        }
    }
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::TypedQuantityTest;
ZORVANE_TEST(TypedQuantityTest)
#include "TypedQuantityTest.moc"
