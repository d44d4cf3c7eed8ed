#include "Host/Widgets/ColorPatch.h"

#include <QtGui/QLinearGradient>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

#include <algorithm>
#include <cmath>

namespace Zorvane {

namespace {

// One of the two rims shows against any background: the dark one on light, the light one on dark.
const QColor s_darkRim(0, 0, 0, 120);
const QColor s_lightRim(255, 255, 255, 110);
const QColor s_pointRim(0, 0, 0, 150);
const QColor s_highlight(255, 255, 255, 70);
const QColor s_shadow(0, 0, 0, 45);

constexpr qreal s_cornerRadius = 3.0;
constexpr int s_pointCount = 3;

/** Rims are whole pixels wide, so that they stay sharp. */
qreal rimWidth(qreal scale)
{
    return std::max(1.0, std::floor(scale + 0.25));
}

qreal cornerRadius(const QRectF& area, qreal scale)
{
    return std::min(s_cornerRadius * scale, std::min(area.width(), area.height()) / 4.0);
}

QPainterPath roundedArea(const QRectF& area, qreal inset, qreal scale)
{
    QPainterPath path;
    const QRectF inner = area.adjusted(inset, inset, -inset, -inset);
    const qreal radius = std::max(0.0, cornerRadius(area, scale) - inset);
    path.addRoundedRect(inner, radius, radius);
    return path;
}

void paintShading(QPainter& painter, const QRectF& area, const QPainterPath& body)
{
    QLinearGradient shading(area.topLeft(), area.bottomLeft());
    shading.setColorAt(0.0, s_highlight);
    shading.setColorAt(0.5, Qt::transparent);
    shading.setColorAt(1.0, s_shadow);
    painter.fillPath(body, shading);
}

void paintPoints(QPainter& painter, const QRectF& area, qreal scale)
{
    const qreal fitting = std::min(area.height() / 4.0, area.width() / 7.0);
    const qreal diameter = std::min(fitting, 3.5 * scale);
    const qreal rim = std::min(scale, diameter / 2.0);
    const qreal distance = diameter * 1.75;
    for (const bool isRim : {true, false}) {
        const qreal radius = diameter / 2.0 + (isRim ? rim : 0.0);
        painter.setBrush(isRim ? s_pointRim : QColor(Qt::white));
        for (int point = 0; point < s_pointCount; ++point) {
            const QPointF shift((point - (s_pointCount - 1) / 2.0) * distance, 0.0);
            painter.drawEllipse(area.center() + shift, radius, radius);
        }
    }
}

void paintRims(QPainter& painter, const QRectF& area, qreal scale)
{
    const qreal width = rimWidth(scale);
    painter.setBrush(Qt::NoBrush);
    painter.strokePath(roundedArea(area, width / 2.0, scale), QPen(s_darkRim, width));
    if (std::min(area.width(), area.height()) >= 6.0 * width)
        painter.strokePath(roundedArea(area, width * 1.5, scale), QPen(s_lightRim, width));
}

} // namespace

bool ColorPatch::operator==(const ColorPatch& other) const
{
    return colors == other.colors && colorCount == other.colorCount &&
           isFalling == other.isFalling && hasPoints == other.hasPoints && isFlat == other.isFlat &&
           isMirrored == other.isMirrored;
}

void ColorPatch::paint(QPainter& painter, const QRectF& area, qreal scale) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    if (isMirrored) {
        painter.translate(2.0 * area.center().x(), 0.0);
        painter.scale(-1.0, 1.0);
    }
    const QPainterPath body = roundedArea(area, 0.0, scale);
    paintColors(painter, area, body);
    if (!isFlat)
        paintShading(painter, area, body);
    if (hasPoints)
        paintPoints(painter, area, scale);
    paintRims(painter, area, scale);
    painter.restore();
}

QImage ColorPatch::toImage(const QSize& size, qreal scale) const
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paint(painter, QRectF(QPointF(), QSizeF(size)), scale);
    return image;
}

/** Each colour over the one before, so that no background shows in the edges between them. */
void ColorPatch::paintColors(QPainter& painter, const QRectF& area, const QPainterPath& body) const
{
    painter.fillPath(body, QColor::fromRgba(colors[0]));
    for (int edge = 1; edge < colorCount; ++edge)
        painter.fillPath(body.intersected(behindEdge(area, edge)),
                         QColor::fromRgba(colors[std::size_t(edge)]));
}

/** What lies behind the slanted edge before the colour of this number, up to the area's end. */
QPainterPath ColorPatch::behindEdge(const QRectF& area, int edge) const
{
    const qreal middle = area.left() + area.width() * edge / colorCount;
    const qreal slant = std::min(area.width(), area.height()) / (isFalling ? -2.0 : 2.0);
    QPainterPath path(QPointF(middle + slant, area.top()));
    path.lineTo(area.right() + area.width(), area.top());
    path.lineTo(area.right() + area.width(), area.bottom());
    path.lineTo(middle - slant, area.bottom());
    path.closeSubpath();
    return path;
}

} // namespace Zorvane
