#pragma once

#include "UiToolsExport.h"

#include <QtCore/QRect>
#include <QtCore/QSize>

#include <vector>

/*
 * Where a file dialog and the preview window beside it go. Plain arithmetic on rectangles in screen
 * coordinates with Qt's inclusive corners, free of windows and screens.
 */
namespace Zorvane::PreviewGeometry {

/** Pixels between dialog and preview, and those kept free above a screen's bottom. */
constexpr int distance = 5;

/** One screen of the desktop. */
struct ScreenArea
{
    QRect full;
    /** Without task bars and the like. */
    QRect available;
};

/** The screens of the running application, in its order. */
ZORVANE_UITOOLS_EXPORT std::vector<ScreenArea> currentScreens();

/**
 * The available area of the first screen that holds the middle of the dialog, else of the first
 * one that the dialog reaches into; null if it lies on none.
 */
ZORVANE_UITOOLS_EXPORT QRect availableAreaWith(const QRect& dialog,
                                               const std::vector<ScreenArea>& screens);

/**
 * Puts the preview to the right of the dialog, in the area. The dialog moves to the left, and is
 * narrowed where moving isn't enough, so that the preview keeps its size and its margin to the
 * right. The preview's top is the dialog's, unless the preview would reach below the area then.
 *
 * `margin`: the width is kept free on both sides of the area; the height is the smallest top that
 * the preview is moved up to, counted from the top of the desktop and not from that of the area.
 * Where the preview alone is wider than the area, the dialog ends up without a width.
 */
ZORVANE_UITOOLS_EXPORT void placeSideBySide(QRect& dialog, QRect& preview, const QRect& area,
                                            const QSize& margin);

} // namespace Zorvane::PreviewGeometry
