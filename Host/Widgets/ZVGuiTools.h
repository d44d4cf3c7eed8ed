#pragma once

#include "Host/HostExport.h"

#include <QtCore/QRect>
#include <QtGui/QColor>

class QPainter;

namespace Zorvane {

/**
 * Draws colour patches: small rounded areas with a rim that sets them off from any background,
 * light, dark or selected. Where a patch has several colours, the first stands at the side where
 * reading starts in the painter's layout direction, and slanted edges part them.
 *
 * The rectangle is in the painter's coordinates; an empty one, or an invalid colour, draws
 * nothing. Edges lie on whole pixels at every scale. The painter's state is left as it was.
 * Patches drawn once are kept, in an amount of memory that has a bound, so that drawing a column
 * of them again is cheap; painters that rotate or shear are drawn to afresh.
 *
 * Not supported: use outside of the GUI thread.
 */
class ZORVANE_HOST_EXPORT ZVGuiTools
{
public:
    /** The ways in which the edge between two colours can slant, as patches are drawn. */
    enum DiagonalStyle
    {
        RisingDiagonal = 0,
        FallingDiagonal = 1
    };

    ZVGuiTools() = delete;

    /** The application's choice of patches without shading; false at first. */
    static bool isFlatStyle();
    /** Views show the change with their next painting. */
    static void setFlatStyle(bool isFlat);

    /** `alpha` from 0, invisible, to 255 applies to the whole patch. */
    static void drawBeautifiedColorPatch(QPainter* painter, const QRect& rect, const QColor& color,
                                         bool isFlat, int alpha);
    /** `diagonal` is a `DiagonalStyle`; any other number counts as the rising one. */
    static void drawBeautifiedTwoColorPatchDiagonal(QPainter* painter, const QRect& rect,
                                                    const QColor& first, const QColor& second,
                                                    int diagonal, bool isFlat);
    static void drawBeautifiedThreeColorPatchDiagonal(QPainter* painter, const QRect& rect,
                                                      const QColor& first, const QColor& second,
                                                      const QColor& third, bool isFlat);
    /** Two colours and three points across them, for "and more". */
    static void drawBeautifiedColorPatchDiagonalWithPoints(QPainter* painter, const QRect& rect,
                                                           const QColor& first,
                                                           const QColor& second, bool isFlat);
};

} // namespace Zorvane
