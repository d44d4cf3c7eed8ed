#pragma once

#include <QtCore/QRect>
#include <QtGui/QScreen>
#include <QtGui/qpa/qplatformscreen.h>
#include <QtGui/qpa/qwindowsysteminterface.h>

namespace Zorvane::Testing {

/** A screen to the right of the first one while it lives, with room for a task bar at its top. */
class SecondScreen
{
public:
    SecondScreen() { QWindowSystemInterface::handleScreenAdded(m_platformScreen); }
    ~SecondScreen() { QWindowSystemInterface::handleScreenRemoved(m_platformScreen); }
    SecondScreen(const SecondScreen&) = delete;
    SecondScreen& operator=(const SecondScreen&) = delete;

    static QRect full() { return {1920, 40, 1600, 900}; }
    static QRect available() { return full().adjusted(0, 60, 0, 0); }
    QScreen* screen() const { return m_platformScreen->screen(); }

private:
    class PlatformScreen : public QPlatformScreen
    {
    public:
        QRect geometry() const override { return full(); }
        QRect availableGeometry() const override { return available(); }
        int depth() const override { return 32; }
        QImage::Format format() const override { return QImage::Format_ARGB32_Premultiplied; }
    };

    // Deleted by handleScreenRemoved.
    PlatformScreen* m_platformScreen = new PlatformScreen;
};

} // namespace Zorvane::Testing
