#include "Workbench/MeshView/OrbitCamera.h"

#include <QtCore/QtMath>

#include <algorithm>
#include <cmath>

namespace Zorvane::Workbench {

namespace {

constexpr double s_usedPartOfPicture = 0.82;
constexpr double s_furthestZoomOut = 0.02;
constexpr double s_furthestZoomIn = 5000;

struct Angles
{
    double yaw;
    double pitch;
};

Angles anglesOf(ViewDirection direction)
{
    switch (direction) {
    case ViewDirection::Top:
        return {0, 90};
    case ViewDirection::Bottom:
        return {0, -90};
    case ViewDirection::Front:
        return {0, 0};
    case ViewDirection::Back:
        return {180, 0};
    case ViewDirection::Left:
        return {-90, 0};
    case ViewDirection::Right:
        return {90, 0};
    case ViewDirection::RotatedIsometric:
        return {55, 30};
    case ViewDirection::Isometric:
        break;
    }
    return {-35, 30};
}

double toQuarter(double degrees)
{
    return std::remainder(std::round(degrees / 90) * 90, 360.0);
}

/** The box's width or height as seen along the other two axes of the view. */
double extentAlong(const QVector3D& size, const QVector3D& axis)
{
    return std::abs(double(size.x()) * double(axis.x())) +
           std::abs(double(size.y()) * double(axis.y())) +
           std::abs(double(size.z()) * double(axis.z()));
}

} // namespace

QVector3D ViewTransform::project(const QVector3D& point) const
{
    const QVector3D offset = point - target;
    const double across = double(QVector3D::dotProduct(right, offset));
    const double upwards = double(QVector3D::dotProduct(up, offset));
    return {float(middle.x() + pixelsPerMm * across), float(middle.y() - pixelsPerMm * upwards),
            QVector3D::dotProduct(toViewer, offset)};
}

ViewTransform ViewTransform::scaled(double factor) const
{
    ViewTransform result = *this;
    result.middle *= factor;
    result.pixelsPerMm *= factor;
    return result;
}

void OrbitCamera::setDirection(ViewDirection direction)
{
    const Angles angles = anglesOf(direction);
    m_yaw = angles.yaw;
    m_pitch = angles.pitch;
    m_roll = 0;
}

void OrbitCamera::setNearestAlong(ViewAxis axis)
{
    const QVector3D viewer = transform({}).toViewer;
    const double roll = toQuarter(m_roll);
    switch (axis) {
    case ViewAxis::X:
        setDirection(viewer.x() < 0 ? ViewDirection::Left : ViewDirection::Right);
        break;
    case ViewAxis::Y:
        setDirection(viewer.y() > 0 ? ViewDirection::Back : ViewDirection::Front);
        break;
    case ViewAxis::Z:
        m_pitch = viewer.z() < 0 ? -90 : 90;
        m_yaw = toQuarter(m_yaw);
        break;
    }
    m_roll = roll;
}

void OrbitCamera::roll(double degrees)
{
    m_roll = std::remainder(m_roll + degrees, 360.0);
}

void OrbitCamera::flip()
{
    m_yaw = std::remainder(m_yaw + 180, 360.0);
    m_pitch = -m_pitch;
    m_roll = -m_roll;
}

void OrbitCamera::orbit(double rightDegrees, double downDegrees)
{
    // Along the picture's own right and down, which roll with it.
    const double angle = qDegreesToRadians(m_roll);
    const double right = rightDegrees * std::cos(angle) - downDegrees * std::sin(angle);
    const double down = rightDegrees * std::sin(angle) + downDegrees * std::cos(angle);
    m_yaw = std::remainder(m_yaw - right, 360.0);
    m_pitch = std::clamp(m_pitch + down, -90.0, 90.0);
}

void OrbitCamera::pan(const QPointF& pixels)
{
    const ViewTransform view = transform({});
    m_target -= view.right * float(pixels.x() / m_pixelsPerMm);
    m_target += view.up * float(pixels.y() / m_pixelsPerMm);
}

void OrbitCamera::zoomAt(const QPointF& cursor, double factor, const QSizeF& viewport)
{
    const double before = m_pixelsPerMm;
    m_pixelsPerMm = std::clamp(before * factor, m_fittedPixelsPerMm * s_furthestZoomOut,
                               m_fittedPixelsPerMm * s_furthestZoomIn);
    const QPointF offset = cursor - QPointF(viewport.width() / 2, viewport.height() / 2);
    const double shift = 1 / before - 1 / m_pixelsPerMm;
    const ViewTransform view = transform(viewport);
    m_target += view.right * float(offset.x() * shift);
    m_target -= view.up * float(offset.y() * shift);
}

void OrbitCamera::fit(const BoundingBox& box, const QSizeF& viewport)
{
    const ViewTransform view = transform(viewport);
    const double width = extentAlong(box.size(), view.right);
    const double height = extentAlong(box.size(), view.up);
    m_target = box.centre();
    // A single point, or a line seen end on, has no size to fill the picture with.
    const double smallest = 1e-6;
    if (viewport.isEmpty() || std::max(width, height) < smallest)
        m_pixelsPerMm = 1;
    else
        m_pixelsPerMm =
            s_usedPartOfPicture * std::min(viewport.width() / std::max(width, smallest),
                                           viewport.height() / std::max(height, smallest));
    m_fittedPixelsPerMm = m_pixelsPerMm;
}

ViewTransform OrbitCamera::transform(const QSizeF& viewport) const
{
    const double yaw = qDegreesToRadians(m_yaw);
    const double pitch = qDegreesToRadians(m_pitch);
    ViewTransform view;
    const QVector3D level(float(std::cos(yaw)), float(std::sin(yaw)), 0);
    view.toViewer = {float(std::sin(yaw) * std::cos(pitch)),
                     float(-std::cos(yaw) * std::cos(pitch)), float(std::sin(pitch))};
    const QVector3D upright = QVector3D::crossProduct(view.toViewer, level);
    const auto sine = float(std::sin(qDegreesToRadians(m_roll)));
    const auto cosine = float(std::cos(qDegreesToRadians(m_roll)));
    view.right = level * cosine - upright * sine;
    view.up = upright * cosine + level * sine;
    view.target = m_target;
    view.middle = {viewport.width() / 2, viewport.height() / 2};
    view.pixelsPerMm = m_pixelsPerMm;
    return view;
}

} // namespace Zorvane::Workbench
