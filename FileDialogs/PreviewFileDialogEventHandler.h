#pragma once

#include "FileDialogs/FileDialogEventHandler.h"

#include <memory>
#include <string>

namespace Zorvane {

class PreviewEditorInterface;
class PreviewFileDialogConfiguration;

/**
 * Lets a preview window follow an open dialog: it shows the file that is selected, and a check box
 * of the dialog switches it on and off, which is remembered under the configuration's key.
 */
class ZORVANE_UITOOLS_EXPORT PreviewFileDialogEventHandler : public FileDialogEventHandler
{
public:
    /** The check box among the dialog's controls. */
    static constexpr int s_previewCheckBoxId = 0;

    /** The editor must not be null. */
    explicit PreviewFileDialogEventHandler(std::shared_ptr<PreviewEditorInterface> editor);
    PreviewFileDialogEventHandler(const PreviewFileDialogEventHandler& other);
    PreviewFileDialogEventHandler& operator=(const PreviewFileDialogEventHandler& other);
    ~PreviewFileDialogEventHandler() override;

    QRect getPreviewerSize() override;
    void onSelectionChanged(const QStringList& selectedFiles,
                            const FileDialogCallbackInterface& callbacks) override;
    void onCheckBoxToggled(bool checked, int controlId,
                           const FileDialogCallbackInterface& callbacks) override;
    /** Places the first dialog of this handler; later ones stay where they open. */
    void onTypeChanged(const FileDialogCallbackInterface& callbacks) override;

    /**
     * Whether the user wants a preview, at first yes; no without a preview configuration. Always
     * yes where the configuration's key is empty, since nothing is remembered then.
     */
    bool isPreviewWanted() const;
    /** Shows the window where the configuration puts it, or hides it. */
    void showPreview(bool visible);
    /** Before a dialog is shown: forgets what the one before has left, and reads the settings. */
    void beginCall();
    const std::shared_ptr<PreviewEditorInterface>& editor() const { return m_editor; }

private:
    /** Null if the configuration is none or another. */
    PreviewFileDialogConfiguration* previewConfiguration() const;
    void storePreviewWanted(bool wanted) const;
    void fitPreview();

    std::shared_ptr<PreviewEditorInterface> m_editor;
    bool m_isFirstTypeChangePending = true;
    bool m_isPreviewShown = false;
    /** In UTF-8; empty with nothing selected. */
    std::string m_selectedFile;
};

} // namespace Zorvane
