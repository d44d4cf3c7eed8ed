#include "Workbench/Design/Quantity.h"

#include "Utilities/NumberRepresentation.h"

#include <QtCore/QCoreApplication>

namespace Zorvane::Workbench {

QString quantityName(Quantity quantity)
{
    return quantity == Quantity::Thickness
               ? QCoreApplication::translate("Zorvane::Workbench::Quantity", "Thickness")
               : QCoreApplication::translate("Zorvane::Workbench::Quantity", "Force");
}

QString quantityUnit(Quantity quantity)
{
    return quantity == Quantity::Thickness ? QStringLiteral("mm") : QStringLiteral("N");
}

QString quantityText(Quantity quantity, double value)
{
    const QString number = QString::fromStdString(
        NumberRepresentation::convertToEngineeringNotation(isQuantity(value) ? value : noValue));
    return isQuantity(value) ? QStringLiteral("%1 %2").arg(number, quantityUnit(quantity)) : number;
}

} // namespace Zorvane::Workbench
