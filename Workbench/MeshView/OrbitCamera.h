#pragma once

#include "Workbench/Meshes/TriangleMesh.h"

#include <QtCore/QPointF>
#include <QtCore/QSizeF>
#include <QtGui/QVector3D>

namespace Zorvane::Workbench {

/** Where points of the design, in millimetres, fall in a picture, in pixels. */
struct ViewTransform
{
    /** Unit vectors: to the right and upwards in the picture, and towards the viewer. */
    QVector3D right{1, 0, 0};
    QVector3D up{0, 0, 1};
    QVector3D toViewer{0, -1, 0};
    /** The point in the middle of the picture. */
    QVector3D target;
    QPointF middle;
    double pixelsPerMm = 1;

    /** x and y in pixels, y downwards; z is the nearness to the viewer in millimetres. */
    QVector3D project(const QVector3D& point) const;
    /** The same view in a picture of `factor` times as many pixels each way. */
    ViewTransform scaled(double factor) const;
};

/** The views that every drawing office knows; z points up in all but the first two. */
enum class ViewDirection
{
    Top,
    Bottom,
    Front,
    Back,
    Left,
    Right,
    Isometric,
    /** The corner view from the corner on the right. */
    RotatedIsometric
};

enum class ViewAxis
{
    X,
    Y,
    Z
};

/**
 * Looks at a point in parallel projection, so that lengths compare wherever they are, and walks
 * around the vertical z axis; the picture may be rolled to the side. Angles in degrees, screen
 * distances in logical pixels. A plain value.
 * Not supported: perspective.
 */
class OrbitCamera
{
public:
    /** Upright, whatever the roll was. */
    void setDirection(ViewDirection direction);
    /** Looks along the axis from the nearer end, with the next edge of the picture upwards. */
    void setNearestAlong(ViewAxis axis);
    /** Rolls the picture counter-clockwise. */
    void roll(double degrees);
    /** Looks from the opposite side; what is up stays up. */
    void flip();
    /** Turns the object as if its near side were dragged; stops straight above and below. */
    void orbit(double rightDegrees, double downDegrees);
    /** Moves the object along with the pointer. */
    void pan(const QPointF& pixels);
    /** What is under `cursor` stays there. Zooming stops far outside what `fit` chose. */
    void zoomAt(const QPointF& cursor, double factor, const QSizeF& viewport);
    /** Puts the box in the middle, as large as it goes, from the present direction. */
    void fit(const BoundingBox& box, const QSizeF& viewport);

    double yaw() const { return m_yaw; }
    double pitch() const { return m_pitch; }
    double rolled() const { return m_roll; }
    double pixelsPerMm() const { return m_pixelsPerMm; }
    ViewTransform transform(const QSizeF& viewport) const;

private:
    double m_yaw = -35;
    double m_pitch = 30;
    double m_roll = 0;
    double m_pixelsPerMm = 1;
    double m_fittedPixelsPerMm = 1;
    QVector3D m_target;
};

} // namespace Zorvane::Workbench
