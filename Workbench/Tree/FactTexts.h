#pragma once

#include <QtCore/QLocale>
#include <QtCore/QString>

namespace Zorvane::Workbench {

/** Such as "35,200". */
QString surfaceFigures(double squareMillimetres, const QLocale& locale);
/** The same with its unit, "mm²". */
QString surfaceText(double squareMillimetres, const QLocale& locale);
/** "Yes" or "No", translated. */
QString yesNoText(bool yes);

} // namespace Zorvane::Workbench
