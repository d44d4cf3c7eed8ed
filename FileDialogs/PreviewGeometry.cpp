#include "FileDialogs/PreviewGeometry.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

#include <algorithm>

namespace Zorvane::PreviewGeometry {

std::vector<ScreenArea> currentScreens()
{
    std::vector<ScreenArea> areas;
    for (const QScreen* screen : QGuiApplication::screens())
        areas.push_back({screen->geometry(), screen->availableGeometry()});
    return areas;
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

    int left = dialog.right() + distance;
    const int largestLeft = area.right() - preview.width() - margin.width();
    if (left > largestLeft) {
        left = largestLeft;
        const int end = largestLeft - distance;
        if (end - dialog.width() < leftLimit)
            dialog = QRect(QPoint(leftLimit, dialog.top()), QPoint(end, dialog.bottom()));
        else
            dialog.moveLeft(end - dialog.width());
    }

    // The margin's height counts from the desktop's top, on screens further down too.
    const int lowestTop = std::max(area.bottom() - distance - preview.height(), margin.height());
    preview.moveTopLeft(QPoint(left, std::min(dialog.top(), lowestTop)));
}

} // namespace Zorvane::PreviewGeometry
