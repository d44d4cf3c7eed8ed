#include "FileDialogs/ScreenGeometry.h"

#include "FileDialogs/FileDialogConfiguration.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

#include <algorithm>
#include <cstdint>

namespace Zorvane {

namespace {

/** One axis of the fitting: where the rectangle begins and how long it is. */
struct Span
{
    int start;
    int length;

    int last() const { return start + length - 1; }
};

Span fitted(Span span, Span desktop)
{
    if (span.length > desktop.length)
        span = {desktop.start, desktop.length - 1};
    const int end = desktop.start + desktop.length;
    const int last = span.last();
    if (span.start < desktop.start)
        span.start = desktop.start;
    if (last > end)
        span.start = end - span.length;
    return span;
}

/** Zero where the two share a pixel. */
std::int64_t squaredDistance(const QRect& a, const QRect& b)
{
    const std::int64_t x = std::max({0, a.left() - b.right(), b.left() - a.right()});
    const std::int64_t y = std::max({0, a.top() - b.bottom(), b.top() - a.bottom()});
    return x * x + y * y;
}

QRect scaledFrom(const QPoint& origin, const QRect& rect, double factor)
{
    const QPoint distance = rect.topLeft() - origin;
    return {origin + QPoint(qRound(distance.x() * factor), qRound(distance.y() * factor)),
            QSize(qRound(rect.width() * factor), qRound(rect.height() * factor))};
}

QRect ownGeometry(const ScreenArea& screen)
{
    return scaledFrom(screen.full.topLeft(), screen.full, screen.pixelRatio);
}

std::int64_t sharedPixels(const QRect& a, const QRect& b)
{
    const QRect shared = a.intersected(b);
    return std::int64_t{shared.width()} * shared.height();
}

/** The screen with most of the rectangle, by what `geometryOf` gives. There must be a screen. */
template <typename Geometry>
const ScreenArea& screenWith(const QRect& rect, const std::vector<ScreenArea>& screens,
                             Geometry geometryOf)
{
    return *std::max_element(
        screens.begin(), screens.end(), [&](const ScreenArea& a, const ScreenArea& b) {
            return sharedPixels(geometryOf(a), rect) < sharedPixels(geometryOf(b), rect);
        });
}

} // namespace

std::vector<ScreenArea> currentScreens()
{
    std::vector<ScreenArea> areas;
    for (const QScreen* screen : QGuiApplication::screens())
        areas.push_back(
            {screen->geometry(), screen->availableGeometry(), screen->devicePixelRatio()});
    return areas;
}

QRect boundingGeometry(const std::vector<ScreenArea>& screens)
{
    QRect bounds;
    for (const ScreenArea& screen : screens)
        bounds = bounds.united(screen.full);
    return bounds;
}

QRect fittedOntoDesktop(const QRect& rect, const QRect& desktop)
{
    if (desktop.contains(rect))
        return rect;
    const Span x = fitted({rect.x(), rect.width()}, {desktop.x(), desktop.width()});
    const Span y = fitted({rect.y(), rect.height()}, {desktop.y(), desktop.height()});
    return QRect(x.start, y.start, x.length, y.length);
}

QRect fittedOntoScreens(const QRect& rect, const std::vector<ScreenArea>& screens)
{
    if (screens.empty())
        return rect;
    const QRect fittedRect = fittedOntoDesktop(rect, boundingGeometry(screens));
    const auto isShownOn = [&](const ScreenArea& screen) {
        return screen.full.intersects(fittedRect);
    };
    if (std::any_of(screens.begin(), screens.end(), isShownOn))
        return fittedRect;
    const auto isNearer = [&](const ScreenArea& a, const ScreenArea& b) {
        return squaredDistance(a.full, fittedRect) < squaredDistance(b.full, fittedRect);
    };
    return fittedOntoDesktop(fittedRect,
                             std::min_element(screens.begin(), screens.end(), isNearer)->full);
}

QSize offsetOnScreen(const QSize& offset, const QRect& screen)
{
    return offset + QSize(screen.x(), screen.y());
}

QRect wantedPlacement(FileDialogConfiguration& configuration)
{
    QRect rect;
    // A program that ended while a dialog was open may have left an empty rectangle behind.
    if (!configuration.getFileDialogGeometry(rect) || !rect.isValid()) {
        const QSize offset = configuration.getTopLeftOffset();
        rect = QRect(QPoint(offset.width(), offset.height()), configuration.getDefaultDialogSize());
    } else {
        rect.setSize(configuration.placedSize(rect.size()));
    }
    return rect;
}

QRect dialogPlacement(FileDialogConfiguration& configuration)
{
    return fittedOntoScreens(wantedPlacement(configuration), currentScreens());
}

bool fillsScreen(const QRect& rect, const std::vector<ScreenArea>& screens)
{
    return std::any_of(screens.begin(), screens.end(), [&rect](const ScreenArea& screen) {
        return rect.contains(screen.available);
    });
}

QRect inQtPixels(const QRect& rect, const std::vector<ScreenArea>& screens)
{
    if (screens.empty())
        return rect;
    const ScreenArea& screen = screenWith(rect, screens, ownGeometry);
    return scaledFrom(screen.full.topLeft(), rect, 1.0 / screen.pixelRatio);
}

QRect inScreenPixels(const QRect& rect, const std::vector<ScreenArea>& screens)
{
    if (screens.empty())
        return rect;
    const ScreenArea& screen =
        screenWith(rect, screens, [](const ScreenArea& each) { return each.full; });
    return scaledFrom(screen.full.topLeft(), rect, screen.pixelRatio);
}

QRect availableAreaWith(const QRect& dialog, const std::vector<ScreenArea>& screens)
{
    const auto first = [&screens](auto condition) {
        return std::find_if(screens.begin(), screens.end(), condition);
    };
    auto found =
        first([&](const ScreenArea& screen) { return screen.full.contains(dialog.center()); });
    if (found == screens.end())
        found = first([&](const ScreenArea& screen) { return screen.full.intersects(dialog); });
    return found == screens.end() ? QRect() : found->available;
}

void placeSideBySide(QRect& dialog, QRect& preview, const QRect& area, const QSize& margin)
{
    const int leftLimit = area.left() + margin.width();
    if (dialog.left() < leftLimit)
        dialog.moveLeft(leftLimit);

    int left = dialog.right() + distanceToPreview;
    const int largestLeft = area.right() - preview.width() - margin.width();
    if (left > largestLeft) {
        left = largestLeft;
        const int end = largestLeft - distanceToPreview;
        if (end - dialog.width() < leftLimit)
            dialog = QRect(QPoint(leftLimit, dialog.top()), QPoint(end, dialog.bottom()));
        else
            dialog.moveLeft(end - dialog.width());
    }

    // The margin's height counts from the desktop's top, on screens further down too.
    const int lowestTop =
        std::max(area.bottom() - distanceToPreview - preview.height(), margin.height());
    preview.moveTopLeft(QPoint(left, std::min(dialog.top(), lowestTop)));
}

void keepMinimumWidth(QRect& dialog, QRect& preview, const QRect& area, int minimumWidth)
{
    const int missing = minimumWidth - dialog.width();
    if (missing <= 0)
        return;
    const int toTheRight = std::clamp(area.right() - preview.right(), 0, missing);
    const int toTheLeft = std::clamp(dialog.left() - area.left(), 0, missing - toTheRight);
    preview.translate(toTheRight, 0);
    dialog.translate(-toTheLeft, 0);
    dialog.setWidth(minimumWidth);
}

} // namespace Zorvane
