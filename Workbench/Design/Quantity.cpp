#include "Workbench/Design/Quantity.h"

#include "Utilities/NumberRepresentation.h"

#include <QtCore/QCoreApplication>

#include <limits>

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
    const bool isTold = value > 0 && value < std::numeric_limits<float>::max();
    const QString number =
        QString::fromStdString(NumberRepresentation::convertToEngineeringNotation(
            isTold ? value : std::numeric_limits<double>::infinity()));
    return isTold ? QStringLiteral("%1 %2").arg(number, quantityUnit(quantity)) : number;
}

} // namespace Zorvane::Workbench
