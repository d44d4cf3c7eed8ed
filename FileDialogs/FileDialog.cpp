#include "FileDialogs/FileDialog.h"

#include "FileDialogs/DialogPaths.h"
#include "FileDialogs/FileDialogRun.h"
#include "FileDialogs/SideBar.h"
#include "Files/PathProvider.h"
#include "Host/Translation/ArgString.h"
#include "Host/Translation/Translator.h"
#include "Host/Widgets/ZVMessageBox.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QHash>

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

QString firstOf(const QStringList& paths)
{
    return paths.isEmpty() ? QString() : paths.first();
}

/** The filter that was used last for saving in each scope. */
QHash<QString, QString>& lastSaveFilters()
{
    static QHash<QString, QString> filters;
    return filters;
}

QString defaultSuffix(const QString& selectedFilter, const QString& filter)
{
    return suffixOfFilter(selectedFilter.isEmpty() ? filter.section(QLatin1Char(';'), 0, 0)
                                                   : selectedFilter);
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

void tellWrongFolder(const QString& title, const QString& message, const QString& folder)
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
    const QString start =
        startDirectory.isEmpty() ? provider->getPathFromScope(scope) : startDirectory;
    const std::vector<QString> places = provider->getPlacesFromScope(scope);
    const QString result = getOpenFileNameWrapper(caption, start, filter, selectedFilter, options,
                                                  places, configuration, parent);
    provider->setPathToScope(result, scope);
    return result;
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
    const QString start = provider->getPathFromScope(scope);
    const std::vector<QString> places = provider->getPlacesFromScope(scope);
    const QStringList results = getOpenFileNamesWrapper(
        caption, start, filter, nullptr, QFileDialog::Options(), places, configuration, parent);
    if (!results.isEmpty())
        provider->setPathToScope(QDir::toNativeSeparators(results.first()), scope);
    return results;
}

QString FileDialog::getSaveFileName(const QString& caption, const QString& filter,
                                    const QString& selectedFilter, PathProvider* provider,
                                    const QString& scope, const QString& fileName, QWidget* parent)
{
    const std::vector<QString> places = provider->getPlacesFromScope(scope);
    const QString start = getLastDirectoryOpened(provider, scope, fileName);
    QString selected = selectedFilter.isEmpty() ? lastSaveFilters().value(scope) : selectedFilter;
    QString result = getSaveFileNameWrapper(caption, start, filter, &selected, places, parent);
    const QString suffix = result.isEmpty() || findFileEnding(result) >= 0
                               ? QString()
                               : defaultSuffix(selected, filter);
    result += suffix;
    s_wasEndingAdded = !suffix.isEmpty();
    provider->setPathToScope(result, scope);
    lastSaveFilters().insert(scope, selected);
    return result;
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

QString FileDialog::getSaveFileNameInDir(const QString& caption, const QString& filter,
                                         const QString& filePath, PathProvider* provider,
                                         const QString& scope, const QString& selectedFilter,
                                         const QString& message)
{
    const std::vector<QString> places = provider->getPlacesFromScope(scope);
    const QFileInfo wanted(filePath);
    const QString folder = filePath.isEmpty() ? QDir::currentPath() : wanted.absolutePath();
    const QString start =
        QDir::toNativeSeparators(filePath.isEmpty() ? folder : wanted.absoluteFilePath());
    QString selected = selectedFilter;
    const auto ask = [&] {
        return getSaveFileNameWrapper(caption, start, filter,
                                      selectedFilter.isEmpty() ? nullptr : &selected, places,
                                      nullptr);
    };

    QString result = ask();
    while (!result.isEmpty() && QFileInfo(result).absolutePath() != folder) {
        {
            const ShownDialog box(s_openDialogsCount);
            tellWrongFolder(caption, message, folder);
        }
        result = ask();
    }
    if (!result.isEmpty())
        result = QFileInfo(result).absoluteFilePath();
    provider->setPathToScope(result, scope);
    return result;
}

QString FileDialog::getExistingDirectoryName(const QString& caption, PathProvider* provider,
                                             const QString& scope, const QString& startDir)
{
    const QString proposed = proposedFolder(startDir, provider, scope);
    QString result;
    {
        const ShownDialog dialog(s_openDialogsCount);
        const SideBarWidening widening;
        result = QFileDialog::getExistingDirectory(nullptr, caption, proposed,
                                                   QFileDialog::ShowDirsOnly |
                                                       QFileDialog::DontResolveSymlinks);
    }
    if (provider && !result.isEmpty() && folderExists(result))
        provider->setPathToScope(result, scope);
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

QString FileDialog::getOpenFileNameWrapper(const QString& caption, const QString& startPath,
                                           const QString& filter, QString* selectedFilter,
                                           QFileDialog::Options options,
                                           const std::vector<QString>& places,
                                           FileDialogConfiguration* configuration, QWidget* parent)
{
    const ShownDialog dialog(s_openDialogsCount);
    return QDir::toNativeSeparators(
        firstOf(runFileDialog({FileDialogPurpose::OpenFile, caption, startPath, filter,
                               selectedFilter, options, places, configuration, parent})));
}

QStringList FileDialog::getOpenFileNamesWrapper(const QString& caption, const QString& startPath,
                                                const QString& filter, QString* selectedFilter,
                                                QFileDialog::Options options,
                                                const std::vector<QString>& places,
                                                FileDialogConfiguration* configuration,
                                                QWidget* parent)
{
    const ShownDialog dialog(s_openDialogsCount);
    return runFileDialog({FileDialogPurpose::OpenFiles, caption, startPath, filter, selectedFilter,
                          options, places, configuration, parent});
}

QString FileDialog::getSaveFileNameWrapper(const QString& caption, const QString& startPath,
                                           const QString& filter, QString* selectedFilter,
                                           const std::vector<QString>& places, QWidget* parent)
{
    const ShownDialog dialog(s_openDialogsCount);
    return firstOf(
        runFileDialog({FileDialogPurpose::SaveFile, caption, startPath, filter, selectedFilter,
                       QFileDialog::Options(), places, nullptr, parent}));
}

int FileDialog::findFileEnding(const QString& path)
{
    return fileEndingIndex(path);
}

} // namespace Zorvane
