#include "Host/Widgets/ZVGuiTools.h"

#include "Host/Widgets/ColorPatch.h"

#include <QtCore/QCache>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QTransform>

#include <algorithm>
#include <initializer_list>

namespace Zorvane {

namespace {

constexpr int s_kilobytesKept = 4096;
/** Larger patches, such as those of a printed page, are painted afresh each time. */
constexpr int s_pixelsOfLargest = 128 * 1024;

bool s_isFlatStyle = false;

struct KeptPatch
{
    ColorPatch patch;
    QSize size;
    qreal scale = 1.0;

    bool operator==(const KeptPatch& other) const
    {
        return size == other.size && qFuzzyCompare(scale, other.scale) && patch == other.patch;
    }
};

uint qHash(const KeptPatch& kept, uint seed = 0)
{
    const auto& colors = kept.patch.colors;
    return qHashRange(colors.begin(), colors.end(), seed) ^
           ::qHash(qMakePair(kept.size.width(), kept.size.height()), seed);
}

/** Images rather than pixmaps: they may outlive the application object. */
QCache<KeptPatch, QImage>& keptPatches()
{
    static QCache<KeptPatch, QImage> s_kept(s_kilobytesKept);
    return s_kept;
}

QImage imageOf(const KeptPatch& kept)
{
    if (const QImage* known = keptPatches().object(kept))
        return *known;
    const QImage image = kept.patch.toImage(kept.size, kept.scale);
    keptPatches().insert(kept, new QImage(image), std::max(1, int(image.sizeInBytes() / 1024)));
    return image;
}

/** Whether the transform only moves and enlarges, so that an image of the patch fits pixels. */
bool fitsPixels(const QTransform& device)
{
    return device.type() <= QTransform::TxScale && device.m11() > 0.0 && device.m22() > 0.0;
}

QRect alignedRect(const QRectF& rect)
{
    const QPoint topLeft(qRound(rect.left()), qRound(rect.top()));
    const QPoint end(qRound(rect.right()), qRound(rect.bottom()));
    return {topLeft, QSize(std::max(1, end.x() - topLeft.x()), std::max(1, end.y() - topLeft.y()))};
}

void drawKept(QPainter* painter, const QTransform& device, const QRect& pixels,
              const ColorPatch& patch)
{
    const qreal scale = std::min(device.m11(), device.m22());
    const QImage image = imageOf({patch, pixels.size(), scale});
    painter->drawImage(device.inverted().mapRect(QRectF(pixels)), image);
}

void drawPatch(QPainter* painter, const QRect& rect, ColorPatch patch)
{
    patch.isMirrored = painter->layoutDirection() == Qt::RightToLeft;
    const QTransform device = painter->deviceTransform();
    const QRect pixels = alignedRect(device.mapRect(QRectF(rect)));
    if (fitsPixels(device) && qint64(pixels.width()) * pixels.height() <= s_pixelsOfLargest)
        drawKept(painter, device, pixels, patch);
    else
        patch.paint(*painter, rect, 1.0);
}

bool canDraw(const QPainter* painter, const QRect& rect, std::initializer_list<QColor> colors)
{
    return painter && !rect.isEmpty() &&
           std::all_of(colors.begin(), colors.end(),
                       [](const QColor& color) { return color.isValid(); });
}

} // namespace

bool ZVGuiTools::isFlatStyle()
{
    return s_isFlatStyle;
}

void ZVGuiTools::setFlatStyle(bool isFlat)
{
    s_isFlatStyle = isFlat;
}

void ZVGuiTools::drawBeautifiedColorPatch(QPainter* painter, const QRect& rect, const QColor& color,
                                          bool isFlat, int alpha)
{
    if (!canDraw(painter, rect, {color}))
        return;
    ColorPatch patch;
    patch.colors = {color.rgba()};
    patch.isFlat = isFlat;
    const qreal opacity = painter->opacity();
    if (alpha < 255)
        painter->setOpacity(opacity * std::max(0, alpha) / 255.0);
    drawPatch(painter, rect, patch);
    if (alpha < 255)
        painter->setOpacity(opacity);
}

void ZVGuiTools::drawBeautifiedTwoColorPatchDiagonal(QPainter* painter, const QRect& rect,
                                                     const QColor& first, const QColor& second,
                                                     int diagonal, bool isFlat)
{
    if (!canDraw(painter, rect, {first, second}))
        return;
    ColorPatch patch;
    patch.colors = {first.rgba(), second.rgba()};
    patch.colorCount = 2;
    patch.isFalling = diagonal == FallingDiagonal;
    patch.isFlat = isFlat;
    drawPatch(painter, rect, patch);
}

void ZVGuiTools::drawBeautifiedThreeColorPatchDiagonal(QPainter* painter, const QRect& rect,
                                                       const QColor& first, const QColor& second,
                                                       const QColor& third, bool isFlat)
{
    if (!canDraw(painter, rect, {first, second, third}))
        return;
    ColorPatch patch;
    patch.colors = {first.rgba(), second.rgba(), third.rgba()};
    patch.colorCount = 3;
    patch.isFlat = isFlat;
    drawPatch(painter, rect, patch);
}

void ZVGuiTools::drawBeautifiedColorPatchDiagonalWithPoints(QPainter* painter, const QRect& rect,
                                                            const QColor& first,
                                                            const QColor& second, bool isFlat)
{
    if (!canDraw(painter, rect, {first, second}))
        return;
    ColorPatch patch;
    patch.colors = {first.rgba(), second.rgba()};
    patch.colorCount = 2;
    patch.hasPoints = true;
    patch.isFlat = isFlat;
    drawPatch(painter, rect, patch);
}

} // namespace Zorvane
