#pragma once

#include "UiToolsExport.h"

#include <QtCore/QRect>

#include <vector>

/*
 * Between the pixels that Qt counts, which are larger on scaled screens, and those that the screens
 * have, in which systems place windows. Qt lets every screen begin at the same point in both and
 * scales what lies on it from there, so there may be gaps between the screens as Qt counts them.
 */
namespace Zorvane {

struct ScaledScreen
{
    /** In Qt's pixels; the corner is the same in the screen's own. */
    QRect geometry;
    /** The screen's own pixels in one of Qt's; above 0. */
    double pixelRatio = 1.0;
};

/** The screens of the application, in its order. All ratios are 1 where Qt doesn't scale. */
ZORVANE_UITOOLS_EXPORT std::vector<ScaledScreen> scaledScreens();

/**
 * The rectangle in Qt's pixels, given in those of the screens. The whole of it is scaled by the
 * screen that has most of it, and by the first one if it lies on none; as it is without screens.
 */
ZORVANE_UITOOLS_EXPORT QRect inQtPixels(const QRect& rect,
                                        const std::vector<ScaledScreen>& screens);

/** The same the other way round. */
ZORVANE_UITOOLS_EXPORT QRect inScreenPixels(const QRect& rect,
                                            const std::vector<ScaledScreen>& screens);

} // namespace Zorvane
