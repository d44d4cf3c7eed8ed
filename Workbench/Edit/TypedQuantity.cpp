#include "Workbench/Edit/TypedQuantity.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>

#include <algorithm>
#include <optional>

namespace Zorvane::Workbench {

namespace {

struct Unit
{
    Quantity quantity;
    const char* text;
    /** Of ten, by which the number is multiplied. */
    int power;
};

// clang-format off
constexpr Unit units[] = {
    {Quantity::Thickness, "mm",        0},
    {Quantity::Thickness, "\u00b5m",  -3},
    {Quantity::Thickness, "\u03bcm",  -3},
    {Quantity::Thickness, "um",       -3},
    {Quantity::Thickness, "cm",        1},
    {Quantity::Thickness, "m",         3},
    {Quantity::Force,     "N",         0},
    {Quantity::Force,     "mN",       -3},
    {Quantity::Force,     "daN",       1},
    {Quantity::Force,     "kN",        3},
    {Quantity::Force,     "KN",        3},
    {Quantity::Force,     "k",         3},
    {Quantity::Force,     "MN",        6},
    {Quantity::Force,     "M",         6},
    {Quantity::Force,     "GN",        9},
    {Quantity::Force,     "G",         9},
};
// clang-format on

/** Those that a refusal names. */
QString usualUnits(Quantity quantity)
{
    return quantity == Quantity::Thickness ? QStringLiteral("mm, \u00b5m, cm, m")
                                           : QStringLiteral("N, kN, MN, GN, daN, mN");
}

constexpr ushort arabicDecimalSign = 0x066b;
constexpr ushort arabicGroupSign = 0x066c;

std::optional<int> powerOf(const QString& unit, Quantity quantity)
{
    if (unit.isEmpty())
        return 0;
    for (const Unit& known : units)
        if (known.quantity == quantity && unit == QString::fromUtf8(known.text))
            return known.power;
    return std::nullopt;
}

bool isDigits(const QString& text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.isDigit(); });
}

/** Digits, signs, spaces and the sign of the exponent as in C, and no marks of direction. */
QString plain(const QString& text, const QLocale& locale)
{
    QString result;
    for (const QChar sign : text) {
        if (sign.category() == QChar::Other_Format)
            continue;
        if (sign.isDigit())
            result += QLatin1Char(char('0' + sign.digitValue()));
        else if (sign.isSpace() || sign == QLatin1Char('\'') || sign == QChar(0x2019) ||
                 sign == QChar(arabicGroupSign))
            result += QLatin1Char(' ');
        else if (sign == QChar(0x2212))
            result += QLatin1Char('-');
        else
            result += sign;
    }
    const QString exponent = locale.exponential();
    return result.replace(exponent, QStringLiteral("e"), Qt::CaseInsensitive).trimmed();
}

bool isGrouped(const QString& digits, QChar sign)
{
    const QStringList groups = digits.split(sign);
    return !groups.first().isEmpty() && groups.first().size() <= 3 &&
           std::all_of(groups.begin() + 1, groups.end(),
                       [](const QString& group) { return group.size() == 3; });
}

/** The whole part without what groups its digits; nothing if they are not grouped by threes. */
std::optional<QString> ungrouped(QString whole)
{
    for (const char sign : {' ', '.', ','}) {
        const QLatin1Char mark(sign);
        if (!whole.contains(mark))
            continue;
        if (!isGrouped(whole, mark))
            return std::nullopt;
        // Another sign that is left among the digits makes them no number below.
        whole.remove(mark);
        break;
    }
    return isDigits(whole) ? std::optional<QString>(whole) : std::nullopt;
}

/** The place of the decimal sign; -1 without one. */
int decimalPlace(const QString& number)
{
    const int arabic = number.indexOf(QChar(arabicDecimalSign));
    if (arabic >= 0)
        return arabic;
    const int last =
        std::max(number.lastIndexOf(QLatin1Char('.')), number.lastIndexOf(QLatin1Char(',')));
    const bool groups = last >= 0 && number.count(number[last]) > 1;
    return groups ? -1 : last;
}

/** Whether the sign may as well group the digits of a number of a thousand and more. */
bool isAmbiguous(const QString& number, int decimal, const QLocale& locale)
{
    const QChar sign = number[decimal];
    const QString whole = number.left(decimal);
    const bool isCertain = sign == QChar(arabicDecimalSign) || sign == locale.decimalPoint();
    return !isCertain && number.size() - decimal == 4 && !whole.isEmpty() && whole.size() <= 3 &&
           !whole.startsWith(QLatin1Char('0')) && ungrouped(whole) == whole;
}

/** In C's notation; empty if it is none. */
QString inCNotation(const QString& number)
{
    const int decimal = decimalPlace(number);
    const std::optional<QString> whole = ungrouped(decimal < 0 ? number : number.left(decimal));
    const QString fraction = decimal < 0 ? QString() : number.mid(decimal + 1);
    if (!whole || !isDigits(fraction) || (whole->isEmpty() && fraction.isEmpty()))
        return {};
    return QLatin1Char('0') + *whole + QLatin1Char('.') + fraction + QLatin1Char('0');
}

TypedQuantity refusal(const QString& obstacle)
{
    return {noValue, obstacle};
}

/** Without its sign. */
TypedQuantity valueOf(const QString& number, int exponent)
{
    const double value = QString(number + QLatin1Char('e') + QString::number(exponent)).toDouble();
    const bool isZero = number.count(QLatin1Char('0')) + 1 == number.size();
    if (isZero || (value > 0 && isQuantity(value)))
        return {isZero ? 0 : value, {}};
    return refusal(exponent < 0 ? TypedQuantity::tr("The number is too small.")
                                : TypedQuantity::tr("The number is too large."));
}

} // namespace

TypedQuantity TypedQuantity::read(const QString& text, Quantity quantity, const QLocale& locale)
{
    const QString plainText = plain(text, locale);
    if (plainText.isEmpty() || plainText == plain(quantityText(quantity, noValue), locale))
        return {};
    // Sign, digits with what separates them, exponent, unit.
    static const QRegularExpression s_pattern(
        QStringLiteral("^([+-]?) ?((?:[0-9.,\u066b]| +(?=[0-9]))+)(?:e([+-]?[0-9]{1,6}))? *(.*)$"));
    const QRegularExpressionMatch match = s_pattern.match(plainText);
    const QString number = inCNotation(match.captured(2));
    if (number.isEmpty())
        return refusal(tr("\"%1\" is no number.").arg(text.trimmed()));
    const std::optional<int> power = powerOf(match.captured(4), quantity);
    if (!power)
        return refusal(
            tr("\"%1\" is none of the units %2.").arg(match.captured(4), usualUnits(quantity)));
    const QString digits = match.captured(2);
    const int decimal = decimalPlace(digits);
    if (decimal >= 0 && isAmbiguous(digits, decimal, locale)) {
        const QString thousands = QString(digits).remove(decimal, 1);
        return refusal(tr("\"%1\" can mean %2 and %3.")
                           .arg(digits, locale.toString(number.toDouble()), thousands));
    }
    const TypedQuantity typed = valueOf(number, match.captured(3).toInt() + *power);
    return match.captured(1) == QLatin1String("-") && typed.value > 0
               ? refusal(tr("A value cannot be below 0."))
               : typed;
}

} // namespace Zorvane::Workbench
