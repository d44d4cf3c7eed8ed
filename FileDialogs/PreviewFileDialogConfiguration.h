#pragma once

#include "FileDialogs/FileDialogConfiguration.h"
#include "Host/FileHandling/ZvFileType.h"

#include <cstddef>
#include <list>
#include <string>

namespace Zorvane {

class PreviewFileDialogEventHandler;

/**
 * What a `PreviewFileDialog` shows, where it keeps its settings, and where the dialog and the
 * preview window go: side by side on one screen, the preview to the right. Each dialog object
 * takes a configuration of its own, since it adds its check box to it.
 */
class ZORVANE_UITOOLS_EXPORT PreviewFileDialogConfiguration : public FileDialogConfiguration
{
public:
    /** Pixels between the dialog and the preview. */
    static const int s_distanceBetweenFileDlgAndPreviewer;

    /**
     * Texts are UTF-8. `showPreviewKey`: the setting of the check box "Preview", empty to start
     * with a preview every time; `scope`: that of the path provider; `enableAllFilesEntry`: whether
     * the filter begins with all types at once.
     */
    PreviewFileDialogConfiguration(const std::string& settingsKey,
                                   const std::string& showPreviewKey,
                                   const std::string& captionForSingleFile,
                                   const std::string& captionForMultipleFiles,
                                   const std::string& scope, const std::list<ZvFileType>& fileTypes,
                                   bool enableAllFilesEntry);
    PreviewFileDialogConfiguration(const PreviewFileDialogConfiguration& other);
    PreviewFileDialogConfiguration& operator=(const PreviewFileDialogConfiguration& other);
    ~PreviewFileDialogConfiguration() override;

    /** The margin on the preview's screen; invalid without a preview handler or its screen. */
    QSize getTopLeftOffset() override;
    /**
     * The rectangle beside the preview, once that was placed: then the stored one is overwritten by
     * a null rectangle, until the dialog stores where it really is. Else the stored one.
     */
    bool getFileDialogGeometry(QRect& rect) override;
    /** Kept only while there is a preview handler. */
    void storeFileDialogGeometry(const QRect& rect) override;
    /** Decides on the dialog's rectangle as well, which `getFileDialogGeometry` gives then. */
    QPoint getPositionForPreviewer() override;
    /** The dialog's present rectangle, for the next `getPositionForPreviewer` to start from. */
    void storeTemporaryFileDialogGeometry(const QRect& rect) override;

    using FileDialogConfiguration::setEventHandler;
    /** Not owned. Adds the check box "Preview" to the dialog; null only takes the handler away. */
    virtual void setEventHandler(PreviewFileDialogEventHandler* eventHandler);
    /** Takes the handler away. */
    void setEventHandler(std::nullptr_t);

    /** Before a dialog: forgets the layout of the one before, and sets the check box "Preview". */
    void beginCall(bool isPreviewWanted);
    /**
     * Whether the two are to be laid out anew, the preview as it is now being off the screen or the
     * dialog narrower than it can be: then the next `getPositionForPreviewer` does that.
     */
    bool prepareFitting(const QRect& preview);

    QString getShowPreviewKey() const;
    QString getDialogCaptionForSingleFile() const;
    QString getDialogCaptionForMultipleFiles() const;
    QString getScopeName() const;
    const std::list<ZvFileType>& getFileTypes() const;
    bool enableAllFilesEntry() const;

private:
    PreviewFileDialogEventHandler* previewHandler() const;
    /** The rectangle to lay out from; null if there is none yet. */
    QRect takeDialogGeometry();
    QRect getFileDialogWithPreviewGeometry() const;
    QRect getTemporaryFileDialogGeometry() const;
    QRect getGeometryOfScreenWithFileDialog(const QRect& rect) const;
    void adjustGeometryOfFileDialogAndPreview(QRect& dialog, QRect& preview,
                                              const QRect& screen) const;

    QString m_showPreviewKey;
    QString m_captionForSingleFile;
    QString m_captionForMultipleFiles;
    QString m_scope;
    std::list<ZvFileType> m_fileTypes;
    bool m_enableAllFilesEntry;
    QSize m_screenMargin;
    QRect m_dialogWithPreviewGeometry;
    QRect m_temporaryDialogGeometry;
};

} // namespace Zorvane
