#include "Workbench/Import/FileChooser.h"

#include "FileDialogs/DialogPaths.h"
#include "FileDialogs/FileDialog.h"
#include "FileDialogs/PreviewFileDialog.h"
#include "FileDialogs/PreviewFileDialogConfiguration.h"
#include "Files/PathProvider.h"
#include "Host/Widgets/ZVMessageBox.h"
#include "Workbench/Import/DialogOwner.h"
#include "Workbench/Preview/FilePreviewEditor.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QPointer>
#include <QtWidgets/QPushButton>

#include <memory>

namespace Zorvane::Workbench {

namespace {

const std::string chooserGeometryKey = "Workbench/FileDialog";
const std::string s_showPreviewKey = "Workbench/FileDialog/ShowPreview";

/** The dialog has asked about the name without the ending, which is another file. */
bool mayReplace(const QPointer<QWidget>& parent, const QString& caption, const QString& file)
{
    if (!QFileInfo::exists(file))
        return true;
    // The parent may go away while the box is open, and takes it along.
    const QPointer<ZVMessageBox> box =
        new ZVMessageBox(QMessageBox::Warning, caption,
                         DialogFileChooser::tr("%1 already exists. Is it to be replaced?")
                             .arg(QDir::toNativeSeparators(file)),
                         QMessageBox::Cancel, parent);
    box->setTextFormat(Qt::PlainText);
    const QPushButton* replace =
        box->addButton(DialogFileChooser::tr("&Replace"), QMessageBox::DestructiveRole);
    box->setDefaultButton(QMessageBox::Cancel);
    box->exec();
    const bool isReplaced = box && box->clickedButton() == replace;
    delete box;
    return isReplaced;
}

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
    if (FileDialog::wasEndingAdded() && !mayReplace(window, choice.caption, file))
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
    if (file.isEmpty() || fileEndingIndex(file) >= 0)
        return file;
    const QString whole = file + suffixOfFilter(choice.filters.section(QLatin1Char(';'), 0, 0));
    if (!mayReplace(window, choice.caption, whole))
        return {};
    choice.paths->setPathToScope(QDir::toNativeSeparators(whole), choice.scope);
    return whole;
}

} // namespace Zorvane::Workbench
