#include "Workbench/Tour/DialogAnswers.h"

#include "Files/CopyProgressDialog.h"

#include <QtCore/QEvent>
#include <QtWidgets/QApplication>

#include <utility>

namespace Zorvane::Workbench {

DialogAnswers::DialogAnswers()
{
    qApp->installEventFilter(this);
}

bool DialogAnswers::eventFilter(QObject* watched, QEvent* event)
{
    auto* dialog = qobject_cast<QDialog*>(watched);
    // Progress comes and goes by itself.
    const bool asks = dialog != nullptr && dialog->isModal() &&
                      qobject_cast<CopyProgressDialog*>(dialog) == nullptr;
    if (asks && event->type() == QEvent::Show)
        // Once the dialog is complete and in its own event loop.
        QMetaObject::invokeMethod(
            this,
            [this, shown = QPointer<QDialog>(dialog)] {
                if (shown)
                    answer(*shown);
            },
            Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

void DialogAnswers::answer(QDialog& dialog)
{
    const QPointer<QDialog> shown(&dialog);
    if (!m_answers.empty()) {
        const Answer next = std::move(m_answers.front());
        m_answers.pop_front();
        next(dialog);
    }
    if (!shown || !shown->isVisible())
        return;
    ++m_rejected;
    shown->reject();
}

} // namespace Zorvane::Workbench
