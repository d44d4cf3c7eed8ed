#pragma once

#include "Workbench/Preview/FilePreviewEditor.h"

namespace Zorvane::Workbench {

class DialogRecord;

/** The Workbench's preview, writing down what the dialog has it do. */
class RecordedPreview : public FilePreviewEditor
{
public:
    RecordedPreview(QWidget* beside, DialogRecord& record);

    void initialize(int screen) override;
    void setVisible(bool visible) override;
    void moveTo(const QPoint& topLeft) override;
    void showFile(const std::string& path) override;

private:
    DialogRecord& m_record;
};

} // namespace Zorvane::Workbench
