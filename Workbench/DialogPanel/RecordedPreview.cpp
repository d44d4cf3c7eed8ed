#include "Workbench/DialogPanel/RecordedPreview.h"

#include "Workbench/DialogPanel/DialogRecord.h"

#include <QtCore/QPoint>

namespace Zorvane::Workbench {

RecordedPreview::RecordedPreview(QWidget* beside, DialogRecord& record)
    : FilePreviewEditor(beside)
    , m_record(record)
{}

void RecordedPreview::initialize(int screen)
{
    m_record.note(QStringLiteral("initialize(%1)").arg(screen));
    FilePreviewEditor::initialize(screen);
}

void RecordedPreview::setVisible(bool visible)
{
    m_record.note(visible ? QStringLiteral("setVisible(true)")
                          : QStringLiteral("setVisible(false)"));
    FilePreviewEditor::setVisible(visible);
}

void RecordedPreview::moveTo(const QPoint& topLeft)
{
    m_record.note(QStringLiteral("moveTo(%1, %2)").arg(topLeft.x()).arg(topLeft.y()));
    FilePreviewEditor::moveTo(topLeft);
}

void RecordedPreview::showFile(const std::string& path)
{
    m_record.note(QStringLiteral("showFile(%1)").arg(quoted({QString::fromStdString(path)})));
    FilePreviewEditor::showFile(path);
}

} // namespace Zorvane::Workbench
