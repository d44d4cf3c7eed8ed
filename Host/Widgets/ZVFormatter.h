#pragma once

#include "Host/HostExport.h"

#include <QtCore/QString>

#include <string>

namespace Zorvane {

/** How the suite writes values. Texts are UTF-8 and follow the application's default `QLocale`. */
class ZORVANE_HOST_EXPORT ZVFormatter
{
public:
    ZVFormatter() = delete;

    /** The digits that a value is rounded to, as significant as a measured value's ever are. */
    static constexpr int SignificantDigits = 6;

    /**
     * The value in engineering notation: at least 1 and below 1000, times a power of ten whose
     * exponent is a multiple of three, as "12.5", "-250e-6" or "1.2e6". The exponent 0 and zeros
     * at the end of a fraction are left out, and zero is "0" whatever its sign.
     *
     * Decimal point, signs, digits and exponent letter are those of the locale; there is nothing
     * to group. `QLocale().toDouble` reads the text back, and writing what it read gives the same
     * text. What is not finite is written as `QLocale` writes it.
     */
    static std::string convertValueToEngineeringNotation(double value);

    /**
     * The value rounded to the digits above, without zeros at the end of a fraction, and with its
     * unit behind it if wanted. The unit "degree" is written as "-90°"; any other one as it is
     * given, after a space.
     */
    static QString toString(double value, const char* unit, bool withUnit);
};

} // namespace Zorvane
