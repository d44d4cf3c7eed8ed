#include "FileDialogs/ApplicationBlock.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>

namespace Zorvane {

namespace {

/** From the owner up, those that are enabled. Disabling one may be the end of any other. */
std::vector<QPointer<QWidget>> enabledWidgets(QWidget* owner, const QWidget* mainWindow)
{
    std::vector<QPointer<QWidget>> widgets;
    for (QWidget* widget = owner; widget && widget != mainWindow; widget = widget->parentWidget()) {
        if (widget->isEnabled())
            widgets.emplace_back(widget);
    }
    return widgets;
}

void tell(QWidget* mainWindow)
{
    static_assert(QEvent::ApplicationDeactivate == 122, "the type that main windows wait for");
    QEvent event(QEvent::ApplicationDeactivate);
    QCoreApplication::sendEvent(mainWindow, &event);
}

} // namespace

// Delegates so that the destructor runs, too, if what a widget throws ends this one halfway.
ApplicationBlock::ApplicationBlock(QWidget* owner, QWidget* mainWindow)
    : ApplicationBlock()
{
    const QPointer<QWidget> toTell(mainWindow);
    if (owner)
        m_focus = owner->window()->focusWidget();
    for (const QPointer<QWidget>& widget : enabledWidgets(owner, mainWindow)) {
        if (!widget)
            continue;
        m_disabled.push_back(widget);
        widget->setEnabled(false);
    }
    if (toTell)
        tell(toTell);
}

ApplicationBlock::~ApplicationBlock()
{
    for (const QPointer<QWidget>& widget : m_disabled) {
        if (widget)
            widget->setEnabled(true);
    }
    // A widget that is disabled loses it, and another one is next in the order of tabs.
    if (m_focus)
        m_focus->setFocus();
}

} // namespace Zorvane
