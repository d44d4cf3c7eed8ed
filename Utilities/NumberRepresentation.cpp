#include "Utilities/NumberRepresentation.h"

#include "Host/Translation/Translator.h"
#include "Host/Widgets/ZVFormatter.h"

#include <cmath>
#include <limits>

namespace Zorvane {

namespace {

/** Written so that a NaN, which compares as neither, is no value either. */
bool isMeasured(double value)
{
    // Single precision, though values are doubles: the mark for "no value" is that of a float.
    constexpr double limit = std::numeric_limits<float>::max();
    return value > -limit && value < limit;
}

} // namespace

std::string NumberRepresentation::convertToEngineeringNotation(double value)
{
    if (!isMeasured(value))
        return Translator::translate("NumberRepresentation", "No value").toStdString();
    return ZVFormatter::convertValueToEngineeringNotation(value);
}

double NumberRepresentation::optimalSpinnerIncrement(double value)
{
    // Truncated toward zero, not floored: that is what makes steps below 1 coarser.
    double decade = 0.0;
    std::modf(std::log10(std::fabs(value)), &decade);
    return std::pow(10.0, decade - 2.0);
}

} // namespace Zorvane
