#include "FileDialogs/ApplicationBlock.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>

namespace Zorvane {

// Delegates so that the destructor runs, too, if what a widget throws ends this one halfway.
ApplicationBlock::ApplicationBlock(QWidget* owner, QWidget* mainWindow)
    : ApplicationBlock()
{
    for (QWidget* widget = owner; widget && widget != mainWindow; widget = widget->parentWidget()) {
        if (!widget->isEnabled())
            continue;
        m_disabled.emplace_back(widget);
        widget->setEnabled(false);
    }
    if (!mainWindow)
        return;
    static_assert(QEvent::ApplicationDeactivate == 122, "the type that main windows wait for");
    QEvent event(QEvent::ApplicationDeactivate);
    QCoreApplication::sendEvent(mainWindow, &event);
}

ApplicationBlock::~ApplicationBlock()
{
    for (const QPointer<QWidget>& widget : m_disabled) {
        if (widget)
            widget->setEnabled(true);
    }
}

} // namespace Zorvane
