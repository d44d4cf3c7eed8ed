#include "Workbench/Import/FileChooser.h"

#include "FileDialogs/FileDialog.h"
#include "FileDialogs/PreviewFileDialog.h"
#include "FileDialogs/PreviewFileDialogConfiguration.h"
#include "Workbench/Preview/FilePreviewEditor.h"

#include <QtCore/QDir>

#include <memory>

namespace Zorvane::Workbench {

namespace {

const std::string s_geometryKey = "Workbench/FileDialog";
const std::string s_showPreviewKey = "Workbench/FileDialog/ShowPreview";

} // namespace

FileChooser::FileChooser() = default;
FileChooser::~FileChooser() = default;

QStringList DialogFileChooser::files(QWidget* parent, const FileChoice& choice)
{
    const std::string caption = choice.caption.toStdString();
    const auto configuration = std::make_shared<PreviewFileDialogConfiguration>(
        s_geometryKey, s_showPreviewKey, caption, caption, choice.scope.toStdString(),
        std::list<ZvFileType>(), false);
    PreviewFileDialog dialog(std::make_shared<FilePreviewEditor>(parent), configuration, parent);
    dialog.setFilter(choice.filters);
    QStringList files;
    for (const QString& file : dialog.getOpenFileNames(choice.paths))
        files << QDir::fromNativeSeparators(file);
    return files;
}

QString DialogFileChooser::folder(QWidget*, const FileChoice& choice)
{
    return QDir::fromNativeSeparators(
        FileDialog::getExistingDirectoryName(choice.caption, choice.paths, choice.scope));
}

QString DialogFileChooser::fileToSave(QWidget* parent, const FileChoice& choice,
                                      const QString& fileName)
{
    return QDir::fromNativeSeparators(FileDialog::getSaveFileName(
        choice.caption, choice.filters, choice.paths, choice.scope, fileName, parent));
}

QString DialogFileChooser::fileToSaveBeside(const FileChoice& choice, const QString& path)
{
    return QDir::fromNativeSeparators(FileDialog::getSaveFileNameInDir(
        choice.caption, choice.filters, path, choice.paths, choice.scope, {}, {}));
}

} // namespace Zorvane::Workbench
