#pragma once

#include "FileDialogs/FileDialogCallbackInterface.h"
#include "FileDialogs/PreviewEditorInterface.h"
#include "FileDialogs/PreviewFileDialogConfiguration.h"
#include "FileDialogs/PreviewFileDialogEventHandler.h"

#include <QtCore/QStringList>

#include <memory>
#include <utility>

namespace Zorvane::Testing {

/** Writes down what is asked of it and of the dialog, in order. */
class RecordingEditor : public PreviewEditorInterface
{
public:
    void initialize(int screen) override
    {
        calls << QStringLiteral("initialize %1").arg(screen);
        initialized = true;
    }
    int getScreenNumber() const override { return screenNumber; }
    QRect getGeometry() const override { return geometry; }
    void setVisible(bool visible) override
    {
        calls << QStringLiteral("setVisible %1").arg(int(visible));
    }
    void moveTo(const QPoint& topLeft) override
    {
        calls << QStringLiteral("moveTo %1 %2").arg(topLeft.x()).arg(topLeft.y());
        geometry.moveTopLeft(topLeft);
    }
    bool isInitialized() const override { return initialized; }
    void reserved() override {}
    void showFile(const std::string& path) override
    {
        calls << QStringLiteral("showFile ") + QString::fromStdString(path);
    }
    QStringList takeCalls() { return std::exchange(calls, {}); }

    QRect geometry{0, 0, 300, 250};
    int screenNumber = 0;
    bool initialized = false;
    QStringList calls;
};

class RecordingCallbacks : public FileDialogCallbackInterface
{
public:
    explicit RecordingCallbacks(RecordingEditor& editor)
        : m_editor(editor)
    {}

    void setControlState(int controlId, int state) const override
    {
        m_editor.calls << QStringLiteral("setControlState %1 %2").arg(controlId).arg(state);
    }
    void placeDialog(FileDialogConfiguration* configuration) const override
    {
        m_editor.calls << QStringLiteral("placeDialog");
        placed = configuration;
    }
    QRect getDialogGeometry() const override { return geometry; }

    QRect geometry{20, 40, 350, 300};
    mutable FileDialogConfiguration* placed = nullptr;

private:
    RecordingEditor& m_editor;
};

inline PreviewFileDialogConfiguration previewConfiguration()
{
    return {"PreviewTest", "PreviewTest/ShowPreview",
            "Open one",    "Open several",
            "Import",      {ZvFileType::StlAscii, ZvFileType::Csv},
            true};
}

} // namespace Zorvane::Testing
