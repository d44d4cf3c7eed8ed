#pragma once

#include <QtCore/QRect>
#include <QtCore/QSize>
#include <QtGui/QImage>
#include <QtGui/QRgb>

#include <array>

class QPainter;
class QPainterPath;

namespace Zorvane {

/** What a colour patch looks like, apart from its size. Internal to `ZVGuiTools`. */
struct ColorPatch
{
    std::array<QRgb, 3> colors{};
    int colorCount = 1;
    bool isFalling = false;
    bool hasPoints = false;
    bool isFlat = false;
    /** Whether the first colour stands on the right. */
    bool isMirrored = false;

    bool operator==(const ColorPatch& other) const;

    /** Paints the patch into an area; `scale` is how many of its units make a logical pixel. */
    void paint(QPainter& painter, const QRectF& area, qreal scale) const;
    /** The patch alone, in device pixels. */
    QImage toImage(const QSize& size, qreal scale) const;

private:
    void paintColors(QPainter& painter, const QRectF& area, const QPainterPath& body) const;
    QPainterPath behindEdge(const QRectF& area, int edge) const;
};

} // namespace Zorvane
