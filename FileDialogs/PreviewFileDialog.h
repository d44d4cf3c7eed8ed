#pragma once

#include "UiToolsExport.h"

#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtWidgets/QWidget>

#include <memory>

namespace Zorvane {

class PathProvider;
class PreviewEditorInterface;
class PreviewFileDialogConfiguration;
class PreviewFileDialogEventHandler;

/**
 * An open dialog with a window beside it that shows the file that is selected.
 *
 *     auto configuration = std::make_shared<PreviewFileDialogConfiguration>(
 *         "ImportDialog", "ImportDialog/ShowPreview", "Import File", "Import Files", "Import",
 *         std::list<ZvFileType>{ZvFileType::StlAscii, ZvFileType::Csv}, true);
 *     PreviewFileDialog dialog(editor, configuration, mainWindow);
 *     const QStringList files = dialog.getOpenFileNames(nullptr);
 *
 * The check box starts as the setting was when the configuration got its handler
 * (`setEventHandler`, in this object's constructor), and the preview as the setting is now. Asked a
 * second time after the user has switched the preview, one object shows the two apart: make a new
 * one, with a new configuration, for every dialog.
 *
 * With the command-line option "alternativeFileDialog" there is no preview. The configuration must
 * not be used for another dialog, neither during this object's life nor after it.
 * Not supported: save dialogs, several preview windows.
 */
class ZORVANE_UITOOLS_EXPORT PreviewFileDialog
{
public:
    /** Shares editor and configuration, neither of which may be null; the parent may be. */
    PreviewFileDialog(std::shared_ptr<PreviewEditorInterface> editor,
                      std::shared_ptr<PreviewFileDialogConfiguration> configuration,
                      QWidget* parent);
    virtual ~PreviewFileDialog();

    PreviewFileDialog(const PreviewFileDialog&) = delete;
    PreviewFileDialog& operator=(const PreviewFileDialog&) = delete;

    /** Offers these types instead of the configuration's, written as for `QFileDialog`: for files
     * that have no `ZvFileType`. Empty: the configuration's. */
    void setFilter(const QString& filter);

    /** As `FileDialog::getOpenFileName`. A null provider stands for `LastPathProvider`. */
    QString getOpenFileName(PathProvider* provider);
    /** As `FileDialog::getOpenFileNames`. A null provider stands for `LastPathProvider`. */
    QStringList getOpenFileNames(PathProvider* provider);

private:
    QString filter() const;
    /** Runs `ask` with the preview shown as the user wants it, and hidden afterwards. */
    template <typename Ask>
    auto withPreview(Ask ask);

    std::shared_ptr<PreviewFileDialogConfiguration> m_configuration;
    std::unique_ptr<PreviewFileDialogEventHandler> m_handler;
    QPointer<QWidget> m_parent;
    QString m_filter;
};

} // namespace Zorvane
