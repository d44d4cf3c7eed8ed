#include "FileDialogs/FileDialogRun.h"

#include "FileDialogs/ApplicationBlock.h"
#include "FileDialogs/ConfiguredFileDialog.h"
#include "FileDialogs/DialogPaths.h"
#include "FileDialogs/NativeFileDialog.h"
#include "FileDialogs/SideBar.h"
#include "Files/ApplicationMainWindow.h"
#include "Host/System/CommandLineParser.h"

#include <QtCore/QPointer>

namespace Zorvane {

namespace {

bool areQtDialogsWanted()
{
    return CommandLineParser::instance()->optionWasSpecified(
        QStringLiteral("alternativeFileDialog"));
}

QStringList askQt(const FileDialogCall& call)
{
    const SideBarWidening widening;
    switch (call.purpose) {
    case FileDialogPurpose::OpenFiles:
        return QFileDialog::getOpenFileNames(nullptr, call.caption, call.start, call.filter,
                                             call.selectedFilter, call.options);
    case FileDialogPurpose::SaveFile:
        return {QFileDialog::getSaveFileName(nullptr, call.caption, call.start, call.filter,
                                             call.selectedFilter)};
    case FileDialogPurpose::OpenFile:
        break;
    }
    return {QFileDialog::getOpenFileName(nullptr, call.caption, call.start, call.filter,
                                         call.selectedFilter, call.options)};
}

NativeFileDialogRequest requestOf(const FileDialogCall& call, QWidget* owner)
{
    const DialogStart start = dialogStart(call.start);
    NativeFileDialogRequest request;
    request.owner = owner;
    request.caption = call.caption;
    request.multiSelection = call.purpose == FileDialogPurpose::OpenFiles;
    request.filters = nativeFileFilters(call.filter, call.selectedFilter);
    request.folder = start.folder;
    request.fileName = start.fileName;
    request.places = call.places;
    request.configuration = call.configuration;
    return request;
}

NativeFileDialogResult cancelled()
{
    NativeFileDialogResult result;
    result.code = NativeFileDialogResult::s_cancelled;
    return result;
}

/** Without a driver there is a configuration, which Qt's own dialog would ignore. */
NativeFileDialogResult ask(NativeFileDialogDriver* driver, const FileDialogCall& call)
{
    QWidget* mainWindow = applicationMainWindow();
    const QPointer<QWidget> owner(call.parent ? call.parent : mainWindow);
    const bool isOwned = owner;
    const ApplicationBlock block(owner, mainWindow);
    // The widgets are told of the block, and one may take the owner away: then the dialog as well.
    if (isOwned && !owner)
        return cancelled();
    const NativeFileDialogRequest request = requestOf(call, owner);
    if (!driver)
        return openConfiguredFileDialog(request, call.options, call.selectedFilter);
    return call.purpose == FileDialogPurpose::SaveFile ? driver->save(request)
                                                       : driver->open(request);
}

} // namespace

QStringList runFileDialog(const FileDialogCall& call)
{
    if (areQtDialogsWanted())
        return askQt(call);
    const std::unique_ptr<NativeFileDialogDriver> driver = createNativeFileDialogDriver();
    if (!driver && !call.configuration)
        return askQt(call);
    const NativeFileDialogResult result = ask(driver.get(), call);
    if (result.isCancelled())
        return {};
    return result.isFailure() ? askQt(call) : result.paths;
}

} // namespace Zorvane
