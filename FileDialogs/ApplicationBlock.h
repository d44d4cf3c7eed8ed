#pragma once

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

#include <vector>

namespace Zorvane {

/**
 * While it lives, the widgets from the owner up to the main window, and not that itself, are
 * disabled, as a dialog of the system blocks only the owner's window. The main window is told that
 * the application loses its place. Widgets that were disabled before stay so; widgets that go
 * meanwhile are forgotten. What a widget throws meanwhile leaves none of them disabled. In the end
 * the owner's window has its focus where it was.
 */
class ApplicationBlock
{
public:
    ApplicationBlock(QWidget* owner, QWidget* mainWindow);
    ~ApplicationBlock();

    ApplicationBlock(const ApplicationBlock&) = delete;
    ApplicationBlock& operator=(const ApplicationBlock&) = delete;

private:
    ApplicationBlock() = default;

    std::vector<QPointer<QWidget>> m_disabled;
    QPointer<QWidget> m_focus;
};

} // namespace Zorvane
