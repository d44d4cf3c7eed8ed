#pragma once

#include <QtCore/QLocale>
#include <QtCore/QString>

QT_BEGIN_NAMESPACE
class QVector3D;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

/** A size such as "120 × 80.5 × 45", to about four digits. */
QString sizeFigures(const QVector3D& millimetres, const QLocale& locale);
/** The same with its unit, "mm". */
QString sizeText(const QVector3D& millimetres, const QLocale& locale);
/** A length such as "80.5 mm", to about four digits. */
QString lengthText(double millimetres, const QLocale& locale);

} // namespace Zorvane::Workbench
