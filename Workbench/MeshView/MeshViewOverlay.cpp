#include "Workbench/MeshView/MeshViewOverlay.h"

#include "Workbench/Texts/SizeText.h"

#include <QtGui/QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace Zorvane::Workbench {

namespace {

constexpr double s_axisLength = 34;
constexpr double s_axisMargin = 52;
constexpr double s_barMargin = 16;

struct Axis
{
    QVector3D direction;
    QChar letter;
    QColor colour;
};

} // namespace

ScaleBar scaleBarFor(double pixelsPerMm, double atMost)
{
    const double longest = atMost / pixelsPerMm;
    const double power = std::pow(10, std::floor(std::log10(longest)));
    for (const double step : {5.0, 2.0})
        if (step * power <= longest)
            return {step * power, step * power * pixelsPerMm};
    return {power, power * pixelsPerMm};
}

void drawCaption(QPainter& painter, const QRect& area, const QString& title, const QString& size)
{
    painter.save();
    QFont bold = painter.font();
    bold.setBold(true);
    painter.setFont(bold);
    const QFontMetrics metrics(bold);
    painter.drawText(area, Qt::AlignLeft | Qt::AlignTop,
                     metrics.elidedText(title, Qt::ElideMiddle, area.width()));
    painter.restore();
    // A figure cut short would be another one.
    painter.drawText(area.adjusted(0, metrics.lineSpacing() + 2, 0, 0),
                     Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, size);
}

void drawAxes(QPainter& painter, const QRect& area, const ViewTransform& view)
{
    std::array<Axis, 3> axes{{{{1, 0, 0}, QLatin1Char('X'), QColor(0xd0, 0x3b, 0x3b)},
                              {{0, 1, 0}, QLatin1Char('Y'), QColor(0x2e, 0x9e, 0x4f)},
                              {{0, 0, 1}, QLatin1Char('Z'), QColor(0x3b, 0x78, 0xd8)}}};
    std::sort(axes.begin(), axes.end(), [&view](const Axis& left, const Axis& right) {
        return QVector3D::dotProduct(left.direction, view.toViewer) <
               QVector3D::dotProduct(right.direction, view.toViewer);
    });
    const QPointF origin(area.left() + s_axisMargin, area.bottom() - s_axisMargin);
    painter.save();
    QFont font = painter.font();
    font.setBold(true);
    painter.setFont(font);
    for (const Axis& axis : axes) {
        const QPointF way(double(QVector3D::dotProduct(axis.direction, view.right)),
                          -double(QVector3D::dotProduct(axis.direction, view.up)));
        painter.setPen(QPen(axis.colour, 2.5, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(origin, origin + way * s_axisLength);
        const QPointF letter = origin + way * (s_axisLength + 10);
        painter.drawText(QRectF(letter.x() - 10, letter.y() - 10, 20, 20),
                         Qt::AlignCenter | Qt::TextDontClip, axis.letter);
    }
    painter.restore();
}

void drawScaleBar(QPainter& painter, const QRect& area, double pixelsPerMm, const QColor& ink)
{
    const ScaleBar bar = scaleBarFor(pixelsPerMm, 160);
    const double right = area.right() - s_barMargin;
    const double left = right - bar.pixels;
    const double y = area.bottom() - s_barMargin;
    painter.setPen(QPen(ink, 1.5));
    painter.drawLine(QPointF(left, y), QPointF(right, y));
    painter.drawLine(QPointF(left, y - 5), QPointF(left, y));
    painter.drawLine(QPointF(right, y - 5), QPointF(right, y));
    painter.drawText(QRectF(right - 200, y - 26, 200, 20),
                     Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignBottom | Qt::TextDontClip,
                     lengthText(bar.millimetres, QLocale()));
}

} // namespace Zorvane::Workbench
