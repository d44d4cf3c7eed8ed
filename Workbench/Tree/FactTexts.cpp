#include "Workbench/Tree/FactTexts.h"

#include "Workbench/Texts/SizeText.h"

#include <QtCore/QCoreApplication>

namespace Zorvane::Workbench {

QString surfaceFigures(double squareMillimetres, const QLocale& locale)
{
    const int decimals = squareMillimetres >= 1000 ? 0 : squareMillimetres >= 10 ? 1 : 3;
    return locale.toString(squareMillimetres, 'f', decimals);
}

QString surfaceText(double squareMillimetres, const QLocale& locale)
{
    return leftToRight(QCoreApplication::translate("Zorvane::Workbench::FactTexts", "%1 mm²")
                           .arg(surfaceFigures(squareMillimetres, locale)));
}

QString yesNoText(bool yes)
{
    return yes ? QCoreApplication::translate("Zorvane::Workbench::FactTexts", "Yes")
               : QCoreApplication::translate("Zorvane::Workbench::FactTexts", "No");
}

} // namespace Zorvane::Workbench
