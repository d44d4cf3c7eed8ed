#pragma once

#include "UiToolsExport.h"

#include <QtCore/QRect>
#include <QtCore/QSize>

#include <vector>

/*
 * Where dialogs go on the screens: arithmetic on rectangles with Qt's inclusive corners. Only
 * `currentScreens` and `dialogPlacement` look at the running application.
 *
 * Pixels are Qt's, which are larger than the screen's own where Qt scales. Qt lets every screen
 * begin at the same point in both and scales what lies on it from there, so there may be gaps
 * between the screens as Qt counts them.
 */
namespace Zorvane {

class FileDialogConfiguration;

/** One screen of the desktop. */
struct ScreenArea
{
    QRect full;
    /** Without task bars and the like. */
    QRect available;
    /** The screen's own pixels in one of Qt's; above 0. */
    double pixelRatio = 1.0;
};

/** The screens of the running application, in its order. Ratios are 1 where Qt doesn't scale. */
ZORVANE_UITOOLS_EXPORT std::vector<ScreenArea> currentScreens();

/** The rectangle around all screens. */
ZORVANE_UITOOLS_EXPORT QRect boundingGeometry(const std::vector<ScreenArea>& screens);

/**
 * `rect` moved, and cut where it is larger, so that it lies on the desktop. One inside stays as it
 * is; a cut side ends one pixel short of the desktop's size.
 */
ZORVANE_UITOOLS_EXPORT QRect fittedOntoDesktop(const QRect& rect, const QRect& desktop);

/**
 * The same for a desktop of several screens. A rectangle in a gap between screens of different
 * sizes, where it could not be seen, goes to the nearest screen.
 */
ZORVANE_UITOOLS_EXPORT QRect fittedOntoScreens(const QRect& rect,
                                               const std::vector<ScreenArea>& screens);

/** How far from the desktop's origin a dialog opens that opens `offset` from a screen's corner. */
ZORVANE_UITOOLS_EXPORT QSize offsetOnScreen(const QSize& offset, const QRect& screen);

/** The stored rectangle of a dialog of the configuration, or else its offset and default size. */
ZORVANE_UITOOLS_EXPORT QRect wantedPlacement(FileDialogConfiguration& configuration);

/** The same, fitted onto the screens there are now: where the dialog goes. */
ZORVANE_UITOOLS_EXPORT QRect dialogPlacement(FileDialogConfiguration& configuration);

/** Whether a window of this rectangle leaves nothing of a screen's available area free. */
ZORVANE_UITOOLS_EXPORT bool fillsScreen(const QRect& rect, const std::vector<ScreenArea>& screens);

/**
 * The rectangle in Qt's pixels, given in those of the screens. The whole of it is scaled by the
 * screen that has most of it, and by the first one if it lies on none; as it is without screens.
 */
ZORVANE_UITOOLS_EXPORT QRect inQtPixels(const QRect& rect, const std::vector<ScreenArea>& screens);

/** The same the other way round. */
ZORVANE_UITOOLS_EXPORT QRect inScreenPixels(const QRect& rect,
                                            const std::vector<ScreenArea>& screens);

/** Pixels between a dialog and its preview, and those kept free above a screen's bottom. */
constexpr int distanceToPreview = 5;

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

/**
 * Gives a dialog that was narrowed below its minimum that width again, at the cost of the right
 * margin first and then of the left one. The two overlap only where the area has no room for both.
 */
ZORVANE_UITOOLS_EXPORT void keepMinimumWidth(QRect& dialog, QRect& preview, const QRect& area,
                                             int minimumWidth);

} // namespace Zorvane
