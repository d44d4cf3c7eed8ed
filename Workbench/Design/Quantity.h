#pragma once

#include <QtCore/QString>

#include <limits>

namespace Zorvane::Workbench {

/** A measured value, from 0 on, that objects of a design have and users edit. */
enum class Quantity
{
    /** In millimetres; of blanks and parts. */
    Thickness,
    /** In newtons; of parts, operations and tools. */
    Force
};

/** Stands for no value. From the largest float on, the whole suite takes numbers so. */
constexpr double noValue = double(std::numeric_limits<float>::max());

/** False for `noValue` and all that no quantity can be. */
constexpr bool isQuantity(double value)
{
    return value >= 0 && value < noValue;
}

constexpr Quantity s_quantities[] = {Quantity::Thickness, Quantity::Force};

/** Such as "Thickness", translated. */
QString quantityName(Quantity quantity);
/** Such as "mm". */
QString quantityUnit(Quantity quantity);
/** In engineering notation with its unit, such as "120e3 N"; else the translated "No value". */
QString quantityText(Quantity quantity, double value);

} // namespace Zorvane::Workbench
