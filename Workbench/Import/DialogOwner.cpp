#include "Workbench/Import/DialogOwner.h"

#include <QtCore/QEvent>
#include <QtGui/QWindow>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>

namespace Zorvane::Workbench {

DialogOwner::DialogOwner(QWidget* owner)
    : m_owner(owner)
{
    if (owner)
        qApp->installEventFilter(this);
}

bool DialogOwner::eventFilter(QObject* watched, QEvent* event)
{
    auto* const dialog = qobject_cast<QDialog*>(watched);
    // The native window is there by now, but not yet on the screen.
    if (dialog && event->type() == QEvent::Show && !event->spontaneous() && dialog->isModal() &&
        !dialog->parentWidget())
        own(*dialog);
    return QObject::eventFilter(watched, event);
}

void DialogOwner::own(QDialog& dialog) const
{
    if (!m_owner) {
        // Later, since only what is in its own event loop can leave it.
        QMetaObject::invokeMethod(&dialog, &QDialog::reject, Qt::QueuedConnection);
        return;
    }
    dialog.windowHandle()->setTransientParent(m_owner->window()->windowHandle());
    connect(m_owner, &QObject::destroyed, &dialog, &QDialog::reject);
}

} // namespace Zorvane::Workbench
