#include "Workbench/DialogPanel/EventRecorder.h"

#include "FileDialogs/FileDialogCallbackInterface.h"
#include "Workbench/DialogPanel/DialogRecord.h"

#include <utility>

namespace Zorvane::Workbench {

namespace {

/** As window systems write it: 625x600+10+20. */
QString rectText(const QRect& rect)
{
    if (rect.isNull())
        return QStringLiteral("?");
    const auto offset = [](int value) -> QString {
        return (value < 0 ? QString() : QStringLiteral("+")) + QString::number(value);
    };
    return QStringLiteral("%1x%2").arg(rect.width()).arg(rect.height()) + offset(rect.x()) +
           offset(rect.y());
}

} // namespace

EventRecorder::EventRecorder(DialogRecord& record, QString prefix, Toggled toggled)
    : m_record(record)
    , m_prefix(std::move(prefix))
    , m_toggled(std::move(toggled))
{}

void EventRecorder::note(const QString& event, const FileDialogCallbackInterface& callbacks)
{
    m_record.note(m_prefix + event + QStringLiteral(" @ ") +
                  rectText(callbacks.getDialogGeometry()));
}

void EventRecorder::onSelectionChanged(const QStringList& selectedFiles,
                                       const FileDialogCallbackInterface& callbacks)
{
    note(QStringLiteral("onSelectionChanged(%1)").arg(quoted(selectedFiles)), callbacks);
}

void EventRecorder::onCheckBoxToggled(bool checked, int controlId,
                                      const FileDialogCallbackInterface& callbacks)
{
    m_record.setControl(controlId, checked ? 1 : 0);
    note(QStringLiteral("onCheckBoxToggled(%1, %2)")
             .arg(checked ? QStringLiteral("true") : QStringLiteral("false"))
             .arg(controlId),
         callbacks);
    if (m_toggled)
        m_toggled(checked, controlId, callbacks);
}

void EventRecorder::onItemSelected(int controlId, int itemIndex)
{
    m_record.setControl(controlId, itemIndex);
    m_record.note(m_prefix +
                  QStringLiteral("onItemSelected(%1, %2)").arg(controlId).arg(itemIndex));
}

void EventRecorder::onTypeChanged(const FileDialogCallbackInterface& callbacks)
{
    note(QStringLiteral("onTypeChanged()"), callbacks);
    if (m_configuration && !std::exchange(m_isPlaced, true))
        callbacks.placeDialog(m_configuration);
}

} // namespace Zorvane::Workbench
