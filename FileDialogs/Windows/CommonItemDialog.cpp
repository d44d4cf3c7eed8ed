#include "FileDialogs/Windows/CommonItemDialog.h"

#include "FileDialogs/DialogTexts.h"
#include "FileDialogs/FileDialogConfiguration.h"
#include "FileDialogs/Windows/CFileInitializeSelectHandler.h"
#include "FileDialogs/Windows/CFileOpenDialogEventHandler.h"
#include "FileDialogs/Windows/DialogEvents.h"
#include "FileDialogs/Windows/DialogGuard.h"
#include "FileDialogs/Windows/DialogItems.h"
#include "Files/Windows/ComPointer.h"
#include "Files/Windows/ShellPath.h"

#include <new>
#include <vector>

namespace Zorvane {

namespace {

using CustomItem = FileDialogConfiguration::CustomItem;

HRESULT addCheckBox(IFileDialogCustomize* dialog, const CustomItem& item)
{
    return dialog->AddCheckButton(DWORD(item.controlId), wide(item.content.toString()),
                                  item.initialValue.toBool());
}

HRESULT addComboBox(IFileDialogCustomize* dialog, const CustomItem& item)
{
    const DWORD id = DWORD(item.controlId);
    HRESULT result = dialog->AddComboBox(id);
    DWORD itemId = 0;
    for (const QString& text : item.content.toStringList()) {
        if (FAILED(result))
            return result;
        result = dialog->AddControlItem(id, itemId++, wide(text));
    }
    if (SUCCEEDED(result))
        result = dialog->SetSelectedControlItem(id, DWORD(item.initialValue.toInt()));
    return result;
}

HRESULT addControl(IFileDialogCustomize* dialog, const CustomItem& item)
{
    HRESULT result = S_OK;
    if (item.controlType == FileDialogConfiguration::CheckBox)
        result = addCheckBox(dialog, item);
    else if (item.controlType == FileDialogConfiguration::ComboBox)
        result = addComboBox(dialog, item);
    if (SUCCEEDED(result))
        result = dialog->SetControlState(DWORD(item.controlId), CDCONTROLSTATEF(item.controlState));
    return result;
}

HRESULT addItem(IFileDialogCustomize* dialog, const CustomItem& item, DWORD groupId)
{
    const bool isGrouped = !item.groupLabel.isEmpty();
    HRESULT result = S_OK;
    if (isGrouped)
        result = dialog->StartVisualGroup(groupId, wide(item.groupLabel));
    if (SUCCEEDED(result))
        result = addControl(dialog, item);
    if (SUCCEEDED(result) && isGrouped)
        result = dialog->EndVisualGroup();
    if (SUCCEEDED(result) && item.prominent)
        result = dialog->MakeProminent(isGrouped ? groupId : DWORD(item.controlId));
    return result;
}

/**
 * Adds the configuration's controls to a dialog, one after another. Ends with the first call that
 * fails, with the controls before that in the dialog.
 */
HRESULT addCustomControls(IFileDialogCustomize* dialog,
                          const FileDialogConfiguration& configuration)
{
    HRESULT result = S_OK;
    for (int i = 0; i < configuration.numberOfcustomControls() && SUCCEEDED(result); ++i)
        result = addItem(dialog, configuration.getCustomControl(i),
                         FileDialogConfiguration::s_firstGroupId + DWORD(i));
    return result;
}

HRESULT appendChosen(IFileOpenDialog* dialog, QStringList& paths)
{
    ComPointer<IShellItemArray> items;
    const HRESULT result = dialog->GetResults(items.put());
    return SUCCEEDED(result) ? appendPaths(items.get(), paths) : result;
}

HRESULT appendChosen(IFileSaveDialog* dialog, QStringList& paths)
{
    ComPointer<IShellItem> item;
    const HRESULT result = dialog->GetResult(item.put());
    return SUCCEEDED(result) ? appendPath(item.get(), paths) : result;
}

} // namespace

CommonItemDialog::CommonItemDialog(const ShellFunctions& shell,
                                   const WindowEventFunctions& windowEvents,
                                   const FileDialogRequest& request, HWND owner)
    : m_shell(shell)
    , m_windowEvents(windowEvents)
    , m_request(request)
    , m_owner(owner)
{}

HRESULT CommonItemDialog::run(QStringList& paths) const
{
    return m_request.purpose == FileDialogPurpose::SaveFile
               ? runBy<IFileSaveDialog>(CLSID_FileSaveDialog, paths)
               : runBy<IFileOpenDialog>(CLSID_FileOpenDialog, paths);
}

template <typename Dialog>
HRESULT CommonItemDialog::runBy(const CLSID& dialogClass, QStringList& paths) const
{
    ComPointer<Dialog> dialog;
    HRESULT result =
        CoCreateInstance(dialogClass, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(dialog.put()));
    if (FAILED(result))
        return result;
    const auto guard = std::make_shared<DialogGuard>(dialog.get());
    AdvisedEvents presetEvents(dialog.get());
    AdvisedEvents events(dialog.get());
    result = prepare(dialog.get(), presetEvents, *guard);
    if (SUCCEEDED(result))
        result = attachConfiguration(dialog.get(), events, *guard);
    if (SUCCEEDED(result))
        result = show(dialog.get(), *guard);
    guard->rethrow();
    return SUCCEEDED(result) ? appendChosen(dialog.get(), paths) : result;
}

HRESULT CommonItemDialog::prepare(IFileDialog* dialog, AdvisedEvents& presetEvents,
                                  DialogGuard& guard) const
{
    const DialogStart start = dialogStart(m_request.start);
    HRESULT result = dialog->SetTitle(wide(m_request.caption));
    if (SUCCEEDED(result))
        result = setOptions(dialog);
    if (SUCCEEDED(result))
        result = setFileTypes(dialog);
    if (FAILED(result))
        return result;
    setFolder(dialog, start.folder);
    result = presetFile(dialog, start.fileName, presetEvents, guard);
    if (SUCCEEDED(result))
        addPlaces(dialog);
    return result;
}

HRESULT CommonItemDialog::setOptions(IFileDialog* dialog) const
{
    DWORD options = 0;
    const HRESULT result = dialog->GetOptions(&options);
    if (FAILED(result))
        return result;
    if (m_request.purpose == FileDialogPurpose::OpenFiles)
        options |= FOS_ALLOWMULTISELECT;
    return dialog->SetOptions(options | FOS_FORCEFILESYSTEM);
}

HRESULT CommonItemDialog::setFileTypes(IFileDialog* dialog) const
{
    const NativeFileFilters filters = nativeFileFilters(m_request.filter, m_request.selectedFilter);
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
void CommonItemDialog::setFolder(IFileDialog* dialog, const QString& path) const
{
    ComPointer<IShellItem> folder;
    if (SUCCEEDED(createItem(path, folder.put())))
        dialog->SetFolder(folder.get());
}

HRESULT CommonItemDialog::presetFile(IFileDialog* dialog, const QString& name,
                                     AdvisedEvents& presetEvents, DialogGuard& guard) const
{
    if (name.isEmpty())
        return S_OK;
    const HRESULT result = dialog->SetFileName(wide(name));
    if (FAILED(result))
        return result;
    return presetEvents.advise(new (std::nothrow) CFileInitializeSelectHandler(name, guard));
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

/** Without a handler to notify there are no controls either. */
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

HRESULT CommonItemDialog::show(IFileDialog* dialog, DialogGuard& guard) const
{
    FileDialogConfiguration standard;
    const GeometryHook hook(m_request.configuration ? *m_request.configuration : standard, guard,
                            m_windowEvents);
    const HRESULT result = dialog->Show(m_owner);
    // The system closes the dialog with its owner, and reports that in several ways.
    return m_owner && !m_request.owner ? HRESULT_FROM_WIN32(ERROR_CANCELLED) : result;
}

HRESULT CommonItemDialog::createItem(const QString& path, IShellItem** item) const
{
    // To the shell, no path at all is the desktop.
    if (path.isEmpty())
        return E_INVALIDARG;
    return m_shell.createItem(wide(shellPath(path)), nullptr, IID_PPV_ARGS(item));
}

} // namespace Zorvane
