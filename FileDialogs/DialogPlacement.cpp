#include "FileDialogs/DialogPlacement.h"

#include "FileDialogs/FileDialogConfiguration.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

#include <algorithm>
#include <cstdint>

namespace Zorvane {

namespace {

std::vector<QRect> geometriesOfScreens()
{
    std::vector<QRect> geometries;
    for (const QScreen* screen : QGuiApplication::screens())
        geometries.push_back(screen->geometry());
    return geometries;
}

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

} // namespace

QRect boundingGeometry(const std::vector<QRect>& screens)
{
    QRect bounds;
    for (const QRect& screen : screens)
        bounds = bounds.united(screen);
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

QRect fittedOntoScreens(const QRect& rect, const std::vector<QRect>& screens)
{
    if (screens.empty())
        return rect;
    const QRect fittedRect = fittedOntoDesktop(rect, boundingGeometry(screens));
    const auto isShownOn = [&](const QRect& screen) { return screen.intersects(fittedRect); };
    if (std::any_of(screens.begin(), screens.end(), isShownOn))
        return fittedRect;
    const auto isNearer = [&](const QRect& a, const QRect& b) {
        return squaredDistance(a, fittedRect) < squaredDistance(b, fittedRect);
    };
    return fittedOntoDesktop(fittedRect,
                             *std::min_element(screens.begin(), screens.end(), isNearer));
}

QSize offsetOnScreen(const QSize& offset, const QRect& screen)
{
    return offset + QSize(screen.x(), screen.y());
}

QRect dialogPlacement(FileDialogConfiguration& configuration)
{
    QRect rect;
    // A program that ended while a dialog was open may have left an empty rectangle behind.
    if (!configuration.getFileDialogGeometry(rect) || !rect.isValid()) {
        const QSize offset = configuration.getTopLeftOffset();
        rect = QRect(QPoint(offset.width(), offset.height()), configuration.getDefaultDialogSize());
    }
    return fittedOntoScreens(rect, geometriesOfScreens());
}

} // namespace Zorvane
