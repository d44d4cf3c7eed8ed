#include "Workbench/Texts/SizeText.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QGuiApplication>
#include <QtGui/QVector3D>

namespace Zorvane::Workbench {

namespace {

QString numberText(double value, const QLocale& locale)
{
    const int decimals = value >= 1000 ? 0 : value >= 100 ? 1 : value >= 10 ? 2 : 3;
    QString text = locale.toString(value, 'f', decimals);
    const QString point(locale.decimalPoint());
    if (text.contains(point)) {
        while (text.endsWith(QLatin1Char('0')))
            text.chop(1);
        if (text.endsWith(point))
            text.chop(point.size());
    }
    return text;
}

QString withUnit(const QString& figures)
{
    return leftToRight(
        QCoreApplication::translate("Zorvane::Workbench::MeshView", "%1 mm").arg(figures));
}

} // namespace

QString leftToRight(const QString& figures)
{
    const QChar begin(0x2066);
    const QChar end(0x2069);
    return QGuiApplication::isRightToLeft() ? begin + figures + end : figures;
}

QString pointText(const QVector3D& millimetres, const QLocale& locale)
{
    const auto number = [&locale](float value) { return locale.toString(double(value), 'f', 2); };
    return withUnit(
        QStringLiteral("%1; %2; %3")
            .arg(number(millimetres.x()), number(millimetres.y()), number(millimetres.z())));
}

QString sizeFigures(const QVector3D& millimetres, const QLocale& locale)
{
    return leftToRight(QStringLiteral("%1 × %2 × %3")
                           .arg(numberText(double(millimetres.x()), locale),
                                numberText(double(millimetres.y()), locale),
                                numberText(double(millimetres.z()), locale)));
}

QString sizeText(const QVector3D& millimetres, const QLocale& locale)
{
    return withUnit(sizeFigures(millimetres, locale));
}

QString lengthText(double millimetres, const QLocale& locale)
{
    return withUnit(numberText(millimetres, locale));
}

} // namespace Zorvane::Workbench
