#pragma once

#include "Workbench/MeshView/OrbitCamera.h"

#include <QtCore/QRect>
#include <QtCore/QString>
#include <QtGui/QColor>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

/** A length to draw beside a picture, and what to write at it. */
struct ScaleBar
{
    double millimetres;
    double pixels;
};

/** The longest bar of 1, 2 or 5 times a power of ten millimetres that fits into `atMost` pixels. */
ScaleBar scaleBarFor(double pixelsPerMm, double atMost);

/** What is shown and its size in the upper left corner of `area`, in which both stay. */
void drawCaption(QPainter& painter, const QRect& area, const QString& title, const QString& size);
/** The axes in the lower left corner of `area`, the ones that point to the viewer last. */
void drawAxes(QPainter& painter, const QRect& area, const ViewTransform& view);
/** The scale in the lower right corner of `area`. */
void drawScaleBar(QPainter& painter, const QRect& area, double pixelsPerMm, const QColor& ink);

} // namespace Zorvane::Workbench
