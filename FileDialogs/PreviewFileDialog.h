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

/**
 * An open dialog with a window beside it that shows the file that is selected.
 *
 *     auto configuration = std::make_shared<PreviewFileDialogConfiguration>(
 *         "ImportDialog", "ImportDialog/ShowPreview", "Import File", "Import Files", "Import",
 *         std::list<ZvFileType>{ZvFileType::StlAscii, ZvFileType::Csv}, true);
 *     PreviewFileDialog dialog(editor, configuration, mainWindow);
 *     const QStringList files = dialog.getOpenFileNames(nullptr);
 *
 * Each call reads the settings anew, so that the check box and the two windows start as the user
 * left them; only the first call also places the dialog where the system shows its own. The parent
 * may be destroyed while the dialog is open, and this object with it: the call is cancelled then.
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
    struct Session;
    using Ask = QStringList (*)(Session& session, const QString& filter, PathProvider* provider,
                                QWidget* parent);

    QString filter() const;
    /** Runs `ask` with the preview shown as the user wants it, and hidden afterwards. */
    QStringList withPreview(PathProvider* provider, Ask ask);

    std::shared_ptr<Session> m_session;
    QPointer<QWidget> m_parent;
    QString m_filter;
};

} // namespace Zorvane
