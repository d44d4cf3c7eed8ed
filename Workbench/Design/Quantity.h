#pragma once

#include <QtCore/QString>

namespace Zorvane::Workbench {

/** A measured value that objects of a design have and users edit; 0 means that it is not told. */
enum class Quantity
{
    /** In millimetres; of blanks and parts. */
    Thickness,
    /** In newtons; of parts, operations and tools. */
    Force
};

constexpr Quantity s_quantities[] = {Quantity::Thickness, Quantity::Force};

/** Such as "Thickness", translated. */
QString quantityName(Quantity quantity);
/** Such as "mm". */
QString quantityUnit(Quantity quantity);
/** In engineering notation with its unit, such as "120e3 N"; the translated "No value" for 0. */
QString quantityText(Quantity quantity, double value);

} // namespace Zorvane::Workbench
