#pragma once

#include "UiToolsExport.h"

#include <QtCore/QRect>
#include <QtCore/QSize>

#include <vector>

namespace Zorvane {

class FileDialogConfiguration;

/** The milliseconds after which a dialog is placed, or looked at again while it is not visible. */
constexpr int s_dialogPlacementDelay = 5;

/** The rectangle around all screens. */
ZORVANE_UITOOLS_EXPORT QRect boundingGeometry(const std::vector<QRect>& screens);

/**
 * `rect` moved, and cut where it is larger, so that it lies on the desktop. One inside stays as it
 * is; a cut side ends one pixel short of the desktop's size.
 */
ZORVANE_UITOOLS_EXPORT QRect fittedOntoDesktop(const QRect& rect, const QRect& desktop);

/**
 * The same for a desktop of several screens. A rectangle in a gap between screens of different
 * sizes, where nobody would see it, goes to the nearest screen.
 */
ZORVANE_UITOOLS_EXPORT QRect fittedOntoScreens(const QRect& rect,
                                               const std::vector<QRect>& screens);

/** How far from the desktop's origin a dialog opens that opens `offset` from a screen's corner. */
ZORVANE_UITOOLS_EXPORT QSize offsetOnScreen(const QSize& offset, const QRect& screen);

/**
 * Where a dialog of the configuration goes on the screens there are now: its stored rectangle, or
 * else its offset and default size, fitted onto the screens.
 */
ZORVANE_UITOOLS_EXPORT QRect dialogPlacement(FileDialogConfiguration& configuration);

} // namespace Zorvane
