#include "Host/Widgets/ZVItemDelegate.h"

#include <QtGui/QColor>

namespace Zorvane {

namespace {

// Pale enough to read as disabled, different enough from each other, and half-way
// between what light and dark backgrounds have.
constexpr qreal s_saturationKept = 0.45;
constexpr qreal s_lightnessKept = 0.35;
constexpr qreal s_disabledLightness = 0.65;

} // namespace

ZVItemDelegate::ZVItemDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{}

ZVItemDelegate::~ZVItemDelegate() = default;

bool ZVItemDelegate::isEnabled(const QModelIndex& index)
{
    return index.flags().testFlag(Qt::ItemIsEnabled);
}

QColor ZVItemDelegate::disabledColor(const QColor& color)
{
    if (!color.isValid())
        return color;
    const QColor hsl = color.toHsl();
    const qreal lightness =
        hsl.lightnessF() * s_lightnessKept + s_disabledLightness * (1.0 - s_lightnessKept);
    return QColor::fromHslF(hsl.hslHueF(), hsl.hslSaturationF() * s_saturationKept, lightness,
                            hsl.alphaF())
        .toRgb();
}

} // namespace Zorvane
