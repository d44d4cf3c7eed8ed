#pragma once

#include "FileDialogs/PreviewEditorInterface.h"

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

#include <memory>

namespace Zorvane::Workbench {

class PreviewWindow;

/** The Workbench's preview of files, as the library's preview dialogs want it. */
class FilePreviewEditor : public PreviewEditorInterface
{
public:
    /**
     * The first screen is that of `beside`, which may be null. The preview stays in front of its
     * window.
     */
    explicit FilePreviewEditor(QWidget* beside);
    ~FilePreviewEditor() override;

    FilePreviewEditor(const FilePreviewEditor&) = delete;
    FilePreviewEditor& operator=(const FilePreviewEditor&) = delete;

    void initialize(int screen) override;
    int getScreenNumber() const override;
    QRect getGeometry() const override;
    void setVisible(bool visible) override;
    void moveTo(const QPoint& topLeft) override;
    bool isInitialized() const override { return m_window != nullptr; }
    void reserved() override {}
    void showFile(const std::string& path) override;

    /** Null until it is initialized. */
    PreviewWindow* window() const { return m_window.get(); }

private:
    void keepInFront();

    QPointer<QWidget> m_beside;
    std::unique_ptr<PreviewWindow> m_window;
    /** Shown once there is a window. */
    QString m_path;
};

} // namespace Zorvane::Workbench
