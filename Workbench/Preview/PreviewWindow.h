#pragma once

#include "Workbench/Preview/PreviewPane.h"
#include "Workbench/Preview/PreviewReader.h"

#include <QtCore/QTimer>

namespace Zorvane::Workbench {

/**
 * The window beside a file dialog that shows the file selected there. Never takes the focus; stays
 * above the application's other windows. Files are read by `PreviewReader`, so none can hold it up.
 */
class PreviewWindow : public QWidget
{
    Q_OBJECT

public:
    PreviewWindow();

    /** An empty path clears the window. */
    void showFile(const QString& path);
    /** Whether what was asked for last is still being read. */
    bool isReading() const { return m_reader.isReading(); }
    const PreviewPane& pane() const { return *m_pane; }

    QSize sizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void read();
    void tellReading();

    PreviewPane* m_pane;
    PreviewReader m_reader;
    QTimer m_patience;
    QString m_path;
};

} // namespace Zorvane::Workbench
