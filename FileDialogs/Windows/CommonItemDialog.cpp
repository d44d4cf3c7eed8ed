#include "FileDialogs/Windows/CommonItemDialog.h"

#include "FileDialogs/FileDialogConfiguration.h"
#include "FileDialogs/Windows/AdvisedEvents.h"
#include "FileDialogs/Windows/CFileInitializeSelectHandler.h"
#include "FileDialogs/Windows/CFileOpenDialogEventHandler.h"
#include "FileDialogs/Windows/CustomControls.h"
#include "FileDialogs/Windows/DialogGuard.h"
#include "FileDialogs/Windows/DialogItems.h"
#include "Files/Windows/ShellPath.h"

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

#include <new>
#include <vector>

namespace Zorvane {

CommonItemDialog::CommonItemDialog(const ShellFunctions& shell,
                                   const WindowEventFunctions& windowEvents,
                                   const NativeFileDialogRequest& request)
    : m_shell(shell)
    , m_windowEvents(windowEvents)
    , m_request(request)
{}

HRESULT CommonItemDialog::open(QStringList& paths) const
{
    ComPointer<IFileOpenDialog> dialog;
    HRESULT result = CoCreateInstance(CLSID_FileOpenDialog, nullptr, CLSCTX_INPROC_SERVER,
                                      IID_PPV_ARGS(dialog.put()));
    if (FAILED(result))
        return result;
    const auto guard = std::make_shared<DialogGuard>(dialog.get());
    AdvisedEvents presetEvents(dialog.get());
    AdvisedEvents events(dialog.get());
    const DWORD moreOptions = m_request.multiSelection ? DWORD(FOS_ALLOWMULTISELECT) : 0;
    result = prepare(dialog.get(), moreOptions, presetEvents, *guard);
    if (SUCCEEDED(result))
        result = attachConfiguration(dialog.get(), events, *guard);
    FileDialogConfiguration standard;
    if (SUCCEEDED(result))
        result = show(dialog.get(), m_request.configuration ? *m_request.configuration : standard,
                      *guard);
    guard->rethrow();
    ComPointer<IShellItemArray> items;
    if (SUCCEEDED(result))
        result = dialog->GetResults(items.put());
    return SUCCEEDED(result) ? appendPaths(items.get(), paths) : result;
}

HRESULT CommonItemDialog::save(QStringList& paths) const
{
    ComPointer<IFileSaveDialog> dialog;
    HRESULT result = CoCreateInstance(CLSID_FileSaveDialog, nullptr, CLSCTX_INPROC_SERVER,
                                      IID_PPV_ARGS(dialog.put()));
    if (FAILED(result))
        return result;
    const auto guard = std::make_shared<DialogGuard>(dialog.get());
    AdvisedEvents presetEvents(dialog.get());
    result = prepare(dialog.get(), 0, presetEvents, *guard);
    FileDialogConfiguration standard;
    if (SUCCEEDED(result))
        result = show(dialog.get(), standard, *guard);
    guard->rethrow();
    ComPointer<IShellItem> item;
    if (SUCCEEDED(result))
        result = dialog->GetResult(item.put());
    return SUCCEEDED(result) ? appendPath(item.get(), paths) : result;
}

HRESULT CommonItemDialog::prepare(IFileDialog* dialog, DWORD moreOptions,
                                  AdvisedEvents& presetEvents, DialogGuard& guard) const
{
    HRESULT result = dialog->SetTitle(wide(m_request.caption));
    if (SUCCEEDED(result))
        result = setOptions(dialog, moreOptions);
    if (SUCCEEDED(result))
        result = setFileTypes(dialog);
    if (FAILED(result))
        return result;
    setFolder(dialog);
    result = presetFile(dialog, presetEvents, guard);
    if (SUCCEEDED(result))
        addPlaces(dialog);
    return result;
}

HRESULT CommonItemDialog::setOptions(IFileDialog* dialog, DWORD moreOptions) const
{
    DWORD options = 0;
    const HRESULT result = dialog->GetOptions(&options);
    return SUCCEEDED(result) ? dialog->SetOptions(options | moreOptions | FOS_FORCEFILESYSTEM)
                             : result;
}

HRESULT CommonItemDialog::setFileTypes(IFileDialog* dialog) const
{
    const NativeFileFilters& filters = m_request.filters;
    std::vector<COMDLG_FILTERSPEC> types;
    for (int i = 0; i < filters.names.size(); ++i)
        types.push_back({wide(filters.names.at(i)), wide(filters.patterns.at(i))});
    HRESULT result = dialog->SetFileTypes(UINT(types.size()), types.data());
    if (SUCCEEDED(result))
        result = dialog->SetFileTypeIndex(0);
    if (FAILED(result))
        return result;
    const QString& preselected = filters.preselectedPattern;
    return dialog->SetDefaultExtension(preselected.isNull() ? nullptr : wide(preselected));
}

/** A folder that cannot be had leaves the dialog to its own choice. */
void CommonItemDialog::setFolder(IFileDialog* dialog) const
{
    ComPointer<IShellItem> folder;
    if (SUCCEEDED(createItem(m_request.folder, folder.put())))
        dialog->SetFolder(folder.get());
}

HRESULT CommonItemDialog::presetFile(IFileDialog* dialog, AdvisedEvents& presetEvents,
                                     DialogGuard& guard) const
{
    if (m_request.fileName.isEmpty())
        return S_OK;
    const HRESULT result = dialog->SetFileName(wide(m_request.fileName));
    if (FAILED(result))
        return result;
    return presetEvents.advise(new (std::nothrow)
                                   CFileInitializeSelectHandler(m_request.fileName, guard));
}

/** Places that cannot be had are left out. */
void CommonItemDialog::addPlaces(IFileDialog* dialog) const
{
    for (const QString& place : m_request.places) {
        ComPointer<IShellItem> folder;
        if (SUCCEEDED(createItem(place, folder.put())))
            dialog->AddPlace(folder.get(), FDAP_BOTTOM);
    }
}

/** Without somebody to tell of them there are no controls either. */
HRESULT CommonItemDialog::attachConfiguration(IFileDialog* dialog, AdvisedEvents& events,
                                              DialogGuard& guard) const
{
    FileDialogEventHandler* handler =
        m_request.configuration ? m_request.configuration->getEventHandler() : nullptr;
    if (!handler)
        return S_OK;
    HRESULT result = events.advise(new (std::nothrow) CFileOpenDialogEventHandler(*handler, guard));
    ComPointer<IFileDialogCustomize> customize;
    if (SUCCEEDED(result))
        result = dialog->QueryInterface(IID_PPV_ARGS(customize.put()));
    return SUCCEEDED(result) ? addCustomControls(customize.get(), *m_request.configuration)
                             : result;
}

HRESULT CommonItemDialog::show(IFileDialog* dialog, FileDialogConfiguration& configuration,
                               DialogGuard& guard) const
{
    const GeometryHook hook(configuration, guard, m_windowEvents);
    if (!m_request.owner)
        return dialog->Show(nullptr);
    const QPointer<QWidget> owner(m_request.owner);
    const HRESULT result = dialog->Show(reinterpret_cast<HWND>(owner->winId()));
    // The system takes the dialog along with its owner, and tells that in no one way.
    return owner ? result : HRESULT_FROM_WIN32(ERROR_CANCELLED);
}

HRESULT CommonItemDialog::createItem(const QString& path, IShellItem** item) const
{
    // To the shell, no path at all is the desktop.
    if (path.isEmpty())
        return E_INVALIDARG;
    return m_shell.createItem(wide(shellPath(path)), nullptr, IID_PPV_ARGS(item));
}

} // namespace Zorvane
