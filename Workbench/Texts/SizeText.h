#pragma once

#include <QtCore/QLocale>
#include <QtCore/QString>

QT_BEGIN_NAMESPACE
class QVector3D;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

/** Figures with their unit, kept in their order where texts run from right to left. */
QString leftToRight(const QString& figures);
/** A point such as "-12.50; 4.00; 80.00 mm". */
QString pointText(const QVector3D& millimetres, const QLocale& locale);
/** A size such as "120 × 80.5 × 45", to about four digits. */
QString sizeFigures(const QVector3D& millimetres, const QLocale& locale);
/** The same with its unit, "mm". */
QString sizeText(const QVector3D& millimetres, const QLocale& locale);
/** A length such as "80.5 mm", to about four digits. */
QString lengthText(double millimetres, const QLocale& locale);

} // namespace Zorvane::Workbench
