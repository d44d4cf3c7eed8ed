#include "Host/Widgets/ZVFormatter.h"

#include <QtCore/QByteArray>
#include <QtCore/QLocale>
#include <QtCore/QString>

#include <cmath>

namespace Zorvane {

namespace {

/** A decimal number as its digits; the first stands before the point, times ten to `exponent`. */
struct Decimal
{
    QByteArray digits;
    int exponent = 0;
};

/** Rounds in decimal: dividing by a power of ten would round the value twice. */
Decimal rounded(double magnitude)
{
    const QByteArray text = QByteArray::number(magnitude, 'e', ZVFormatter::SignificantDigits - 1);
    const int exponentAt = text.indexOf('e');
    Decimal decimal{text.left(exponentAt), text.mid(exponentAt + 1).toInt()};
    decimal.digits.remove(1, 1);
    return decimal;
}

int multipleOfThreeBelow(int exponent)
{
    const int rest = exponent % 3;
    return exponent - (rest < 0 ? rest + 3 : rest);
}

QString localized(const QLocale& locale, const QByteArray& digits)
{
    QString text;
    for (const char digit : digits)
        text += QChar(locale.zeroDigit().unicode() + (digit - '0'));
    return text;
}

QString mantissa(const QLocale& locale, const Decimal& decimal, int wholeDigits)
{
    QByteArray fraction = decimal.digits.mid(wholeDigits);
    while (fraction.endsWith('0'))
        fraction.chop(1);
    QString text = localized(locale, decimal.digits.left(wholeDigits));
    if (!fraction.isEmpty())
        text += locale.decimalPoint() + localized(locale, fraction);
    return text;
}

QString exponentMark(const QLocale& locale, int exponent)
{
    if (exponent == 0)
        return {};
    QString mark = locale.exponential().toLower();
    if (exponent < 0)
        mark += locale.negativeSign();
    return mark + localized(locale, QByteArray::number(std::abs(exponent)));
}

} // namespace

std::string ZVFormatter::convertValueToEngineeringNotation(double value)
{
    const QLocale locale;
    if (!std::isfinite(value))
        return locale.toString(value).toStdString();

    const Decimal decimal = rounded(std::fabs(value));
    const int exponent = multipleOfThreeBelow(decimal.exponent);
    QString text =
        mantissa(locale, decimal, decimal.exponent - exponent + 1) + exponentMark(locale, exponent);
    if (value < 0.0)
        text.prepend(locale.negativeSign());
    return text.toStdString();
}

QString ZVFormatter::toString(double value, const char* unit, bool withUnit)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    const QString number = locale.toString(value, 'g', SignificantDigits);
    if (!withUnit)
        return number;
    if (qstrcmp(unit, "degree") == 0)
        return number + QChar(0x00b0);
    return number + QLatin1Char(' ') + QString::fromUtf8(unit);
}

} // namespace Zorvane
