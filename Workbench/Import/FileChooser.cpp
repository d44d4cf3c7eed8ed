#include "Workbench/Import/FileChooser.h"

#include "FileDialogs/FileDialog.h"
#include "FileDialogs/PreviewFileDialog.h"
#include "FileDialogs/PreviewFileDialogConfiguration.h"
#include "Files/PathProvider.h"
#include "Workbench/Import/DialogOwner.h"
#include "Workbench/Preview/FilePreviewEditor.h"

#include <QtCore/QDir>
#include <QtCore/QPointer>

#include <memory>

namespace Zorvane::Workbench {

namespace {

const std::string chooserGeometryKey = "Workbench/FileDialog";
const std::string s_showPreviewKey = "Workbench/FileDialog/ShowPreview";

} // namespace

FileChooser::FileChooser() = default;
FileChooser::~FileChooser() = default;

QStringList DialogFileChooser::files(QWidget* parent, const FileChoice& choice)
{
    const std::string caption = choice.caption.toStdString();
    const auto configuration = std::make_shared<PreviewFileDialogConfiguration>(
        chooserGeometryKey, s_showPreviewKey, caption, caption, choice.scope.toStdString(),
        std::list<ZvFileType>(), false);
    PreviewFileDialog dialog(std::make_shared<FilePreviewEditor>(parent), configuration, parent);
    dialog.setFilter(choice.filters);
    QStringList files;
    for (const QString& file : dialog.getOpenFileNames(choice.paths))
        files << QDir::fromNativeSeparators(file);
    return files;
}

QString DialogFileChooser::folder(QWidget* parent, const FileChoice& choice)
{
    const DialogOwner owner(parent);
    return QDir::fromNativeSeparators(
        FileDialog::getExistingDirectoryName(choice.caption, choice.paths, choice.scope));
}

QString DialogFileChooser::fileToSave(QWidget* parent, const FileChoice& choice,
                                      const QString& fileName)
{
    const QPointer<QWidget> window(parent);
    const DialogOwner owner(parent);
    const QString file = QDir::fromNativeSeparators(FileDialog::getSaveFileName(
        choice.caption, choice.filters, choice.paths, choice.scope, fileName, parent));
    if (FileDialog::wasEndingAdded() && !FileDialog::confirmReplacing(choice.caption, file, window))
        return {};
    return file;
}

QString DialogFileChooser::fileToSaveBeside(QWidget* parent, const FileChoice& choice,
                                            const QString& path)
{
    const QPointer<QWidget> window(parent);
    const DialogOwner owner(parent);
    const QString file = QDir::fromNativeSeparators(FileDialog::getSaveFileNameInDir(
        choice.caption, choice.filters, path, choice.paths, choice.scope, {}, {}));
    const QString whole =
        FileDialog::withEnding(file, choice.filters.section(QLatin1Char(';'), 0, 0));
    if (whole == file)
        return file;
    if (!FileDialog::confirmReplacing(choice.caption, whole, window))
        return {};
    choice.paths->setPathToScope(QDir::toNativeSeparators(whole), choice.scope);
    return whole;
}

} // namespace Zorvane::Workbench
