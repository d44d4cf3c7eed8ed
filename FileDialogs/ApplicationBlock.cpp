#include "FileDialogs/ApplicationBlock.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>

namespace Zorvane {

ApplicationBlock::ApplicationBlock(QWidget* owner, QWidget* mainWindow)
{
    for (QWidget* widget = owner; widget && widget != mainWindow; widget = widget->parentWidget()) {
        if (!widget->isEnabled())
            continue;
        widget->setEnabled(false);
        m_disabled.emplace_back(widget);
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
