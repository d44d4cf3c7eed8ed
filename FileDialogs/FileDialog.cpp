#include "FileDialogs/FileDialog.h"

#include "FileDialogs/DialogTexts.h"
#include "FileDialogs/FileDialogDriver.h"
#include "Files/ApplicationMainWindow.h"
#include "Files/PathProvider.h"
#include "Host/Translation/ArgString.h"
#include "Host/Translation/Translator.h"
#include "Host/Widgets/ZVMessageBox.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QHash>
#include <QtCore/QPointer>
#include <QtWidgets/QPushButton>

namespace Zorvane {

namespace {

/** Counts one dialog for as long as it is shown, however it ends. */
class ShownDialog
{
public:
    explicit ShownDialog(int& count)
        : m_count(count)
    {
        ++m_count;
    }
    ~ShownDialog() { --m_count; }

    ShownDialog(const ShownDialog&) = delete;
    ShownDialog& operator=(const ShownDialog&) = delete;

private:
    int& m_count;
};

/** The filter that was used last for saving in each scope. */
QHash<QString, QString>& lastSaveFilters()
{
    static QHash<QString, QString> filters;
    return filters;
}

FileDialogRequest makeRequest(FileDialogPurpose purpose, const QString& caption,
                              const QString& filter, QWidget* parent = nullptr)
{
    FileDialogRequest request;
    request.purpose = purpose;
    request.caption = caption;
    request.filter = filter;
    request.owner = parent;
    return request;
}

/** The type that the user selected or, where that is not known, the one that was preselected. */
QString usedFilter(const FileDialogRequest& request, const FileDialogResult& result)
{
    return result.selectedFilter.isNull() ? request.selectedFilter : result.selectedFilter;
}

bool folderExists(const QString& path)
{
    return QFileInfo(path).absoluteDir().exists();
}

QString proposedFolder(const QString& startDir, PathProvider* provider, const QString& scope)
{
    QString proposed;
    if (!startDir.isEmpty() && folderExists(startDir))
        proposed = QDir::toNativeSeparators(QFileInfo(startDir).absolutePath());
    const QString path = provider ? provider->getPathFromScope(scope) : QString();
    const bool isPathWanted =
        !path.isEmpty() && folderExists(path) && (proposed.isEmpty() || path.startsWith(proposed));
    return isPathWanted ? path : proposed;
}

void refuseFolder(const QString& title, const QString& message, const QString& folder)
{
    ZVMessageBox box(QMessageBox::Critical, title, message);
    if (message.isEmpty()) {
        box.setTextFormat(Qt::PlainText); // names of folders may look like mark-up
        box.setText(
            ArgString(Translator::translate("FileDialog", "This file can only be saved at '%1'"))
                .arg(folder)
                .toQString());
    }
    box.exec();
}

} // namespace

int FileDialog::s_openDialogsCount = 0;
bool FileDialog::s_wasEndingAdded = false;

QString FileDialog::getOpenFileName(const QString& caption, const QString& startDirectory,
                                    const QString& filter, PathProvider* provider,
                                    const QString& scope, QString* selectedFilter,
                                    QFileDialog::Options options,
                                    FileDialogConfiguration* configuration, QWidget* parent)
{
    FileDialogRequest request = makeRequest(FileDialogPurpose::OpenFile, caption, filter, parent);
    request.start = startDirectory.isEmpty() ? provider->getPathFromScope(scope) : startDirectory;
    request.places = provider->getPlacesFromScope(scope);
    request.selectedFilter = selectedFilter ? *selectedFilter : QString();
    request.options = options;
    request.configuration = configuration;
    const FileDialogResult result = ask(request);
    if (selectedFilter)
        *selectedFilter = usedFilter(request, result);
    const QString file = QDir::toNativeSeparators(result.path());
    provider->setPathToScope(file, scope);
    return file;
}

QString FileDialog::getOpenFileName(const QString& caption, const QString& filter,
                                    PathProvider* provider, const QString& scope,
                                    FileDialogConfiguration* configuration, QWidget* parent)
{
    return getOpenFileName(caption, QString(), filter, provider, scope, nullptr,
                           QFileDialog::Options(), configuration, parent);
}

QStringList FileDialog::getOpenFileNames(const QString& caption, const QString& filter,
                                         PathProvider* provider, const QString& scope,
                                         FileDialogConfiguration* configuration, QWidget* parent)
{
    FileDialogRequest request = makeRequest(FileDialogPurpose::OpenFiles, caption, filter, parent);
    request.start = provider->getPathFromScope(scope);
    request.places = provider->getPlacesFromScope(scope);
    request.configuration = configuration;
    const QStringList files = ask(request).paths;
    if (!files.isEmpty())
        provider->setPathToScope(QDir::toNativeSeparators(files.first()), scope);
    return files;
}

QString FileDialog::getSaveFileName(const QString& caption, const QString& filter,
                                    const QString& selectedFilter, PathProvider* provider,
                                    const QString& scope, const QString& fileName, QWidget* parent)
{
    FileDialogRequest request = makeRequest(FileDialogPurpose::SaveFile, caption, filter, parent);
    request.places = provider->getPlacesFromScope(scope);
    request.start = getLastDirectoryOpened(provider, scope, fileName);
    request.selectedFilter =
        selectedFilter.isEmpty() ? lastSaveFilters().value(scope) : selectedFilter;
    request.addsEnding = true;
    const FileDialogResult result = ask(request);
    provider->setPathToScope(result.path(), scope);
    lastSaveFilters().insert(scope, usedFilter(request, result));
    // Last, since the provider may save something by a dialog as well.
    s_wasEndingAdded = result.isEndingAdded;
    return result.path();
}

QString FileDialog::getSaveFileName(const QString& caption, const QString& filter,
                                    PathProvider* provider, const QString& scope,
                                    const QString& fileName, QWidget* parent)
{
    return getSaveFileName(caption, filter, QString(), provider, scope, fileName, parent);
}

bool FileDialog::wasEndingAdded()
{
    return s_wasEndingAdded;
}

bool FileDialog::confirmReplacing(const QString& caption, const QString& file, QWidget* parent)
{
    if (!QFileInfo::exists(file))
        return true;
    const QString text =
        ArgString(Translator::translate("FileDialog", "%1 already exists. Is it to be replaced?"))
            .arg(QDir::toNativeSeparators(file))
            .toQString();
    QWidget* const owner = parent ? parent : applicationMainWindow();
    // The owner may be destroyed while the box is open, and takes it along.
    const QPointer<ZVMessageBox> box =
        new ZVMessageBox(QMessageBox::Warning, caption, text, QMessageBox::Cancel, owner);
    box->setTextFormat(Qt::PlainText);
    const QPushButton* replace = box->addButton(Translator::translate("FileDialog", "&Replace"),
                                                QMessageBox::DestructiveRole);
    box->setDefaultButton(QMessageBox::Cancel);
    const ShownDialog shown(s_openDialogsCount);
    box->exec();
    const bool isReplaced = box && box->clickedButton() == replace;
    delete box;
    return isReplaced;
}

QString FileDialog::withEnding(const QString& file, const QString& type)
{
    return file.isEmpty() || findFileEnding(file) >= 0 ? file : file + suffixOfFilter(type);
}

QString FileDialog::getSaveFileNameInDir(const QString& caption, const QString& filter,
                                         const QString& filePath, PathProvider* provider,
                                         const QString& scope, const QString& selectedFilter,
                                         const QString& message)
{
    FileDialogRequest request = makeRequest(FileDialogPurpose::SaveFile, caption, filter);
    request.places = provider->getPlacesFromScope(scope);
    const QFileInfo wanted(filePath);
    const QString folder = filePath.isEmpty() ? QDir::currentPath() : wanted.absolutePath();
    request.start =
        QDir::toNativeSeparators(filePath.isEmpty() ? folder : wanted.absoluteFilePath());
    request.selectedFilter = selectedFilter;

    FileDialogResult result = ask(request);
    while (!result.path().isEmpty() && QFileInfo(result.path()).absolutePath() != folder) {
        {
            const ShownDialog box(s_openDialogsCount);
            refuseFolder(caption, message, folder);
        }
        request.selectedFilter = usedFilter(request, result);
        result = ask(request);
    }
    const QString file =
        result.path().isEmpty() ? QString() : QFileInfo(result.path()).absoluteFilePath();
    provider->setPathToScope(file, scope);
    return file;
}

QString FileDialog::getExistingDirectoryName(const QString& caption, PathProvider* provider,
                                             const QString& scope, const QString& startDir)
{
    FileDialogRequest request = makeRequest(FileDialogPurpose::Folder, caption, QString());
    request.start = proposedFolder(startDir, provider, scope);
    request.options = QFileDialog::ShowDirsOnly | QFileDialog::DontResolveSymlinks;
    if (provider)
        request.places = provider->getPlacesFromScope(scope);
    const QString folder = ask(request).path();
    if (provider && !folder.isEmpty() && folderExists(folder))
        provider->setPathToScope(folder, scope);
    return folder;
}

FileDialogResult FileDialog::ask(const FileDialogRequest& request)
{
    const ShownDialog dialog(s_openDialogsCount);
    FileDialogResult result = runFileDialog(request);
    if (!request.addsEnding || result.paths.isEmpty())
        return result;
    const QString selected = usedFilter(request, result);
    const QString whole =
        withEnding(result.path(),
                   selected.isEmpty() ? request.filter.section(QLatin1Char(';'), 0, 0) : selected);
    result.isEndingAdded = whole != result.path();
    result.paths.first() = whole;
    return result;
}

QString FileDialog::getLastDirectoryOpened(PathProvider* provider, const QString& scope,
                                           const QString& fileName)
{
    const QString path = provider->getPathFromScope(scope);
    return fileName.isEmpty() ? path : fileBeside(path, fileName);
}

int FileDialog::getOpenDialogsCount()
{
    return s_openDialogsCount;
}

int FileDialog::findFileEnding(const QString& path)
{
    return fileEndingIndex(path);
}

} // namespace Zorvane
