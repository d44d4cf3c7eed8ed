#include "FileDialogs/ScreenScale.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

#include <algorithm>
#include <cstdint>

namespace Zorvane {

namespace {

QRect scaledFrom(const QPoint& origin, const QRect& rect, double factor)
{
    const QPoint distance = rect.topLeft() - origin;
    return {origin + QPoint(qRound(distance.x() * factor), qRound(distance.y() * factor)),
            QSize(qRound(rect.width() * factor), qRound(rect.height() * factor))};
}

QRect ownGeometry(const ScaledScreen& screen)
{
    return scaledFrom(screen.geometry.topLeft(), screen.geometry, screen.pixelRatio);
}

std::int64_t sharedPixels(const QRect& a, const QRect& b)
{
    const QRect shared = a.intersected(b);
    return std::int64_t{shared.width()} * shared.height();
}

/** The screen with most of the rectangle, by what `geometryOf` gives. There must be a screen. */
template <typename Geometry>
const ScaledScreen& screenWith(const QRect& rect, const std::vector<ScaledScreen>& screens,
                               Geometry geometryOf)
{
    return *std::max_element(
        screens.begin(), screens.end(), [&](const ScaledScreen& a, const ScaledScreen& b) {
            return sharedPixels(geometryOf(a), rect) < sharedPixels(geometryOf(b), rect);
        });
}

} // namespace

std::vector<ScaledScreen> scaledScreens()
{
    std::vector<ScaledScreen> scaled;
    for (const QScreen* screen : QGuiApplication::screens())
        scaled.push_back({screen->geometry(), screen->devicePixelRatio()});
    return scaled;
}

QRect inQtPixels(const QRect& rect, const std::vector<ScaledScreen>& screens)
{
    if (screens.empty())
        return rect;
    const ScaledScreen& screen = screenWith(rect, screens, ownGeometry);
    return scaledFrom(screen.geometry.topLeft(), rect, 1.0 / screen.pixelRatio);
}

QRect inScreenPixels(const QRect& rect, const std::vector<ScaledScreen>& screens)
{
    if (screens.empty())
        return rect;
    const ScaledScreen& screen =
        screenWith(rect, screens, [](const ScaledScreen& each) { return each.geometry; });
    return scaledFrom(screen.geometry.topLeft(), rect, screen.pixelRatio);
}

} // namespace Zorvane
