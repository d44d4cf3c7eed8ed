#include "FileDialogs/Windows/CFileOpenDialogEventHandler.h"

#include "FileDialogs/FileDialogEventHandler.h"
#include "FileDialogs/SelectedFiles.h"
#include "FileDialogs/Windows/DialogItems.h"
#include "FileDialogs/Windows/WinFileDialogCallbacks.h"

namespace Zorvane {

namespace {

/** The interface by which events of the dialog itself give access to its controls. */
ComPointer<IFileDialogCustomize> customizeOf(IFileDialog* dialog)
{
    ComPointer<IFileDialogCustomize> customize;
    if (!dialog || FAILED(dialog->QueryInterface(IID_PPV_ARGS(customize.put()))))
        return {};
    return customize;
}

} // namespace

CFileOpenDialogEventHandler::CFileOpenDialogEventHandler(FileDialogEventHandler& handler)
    : m_handler(handler)
{}

CFileOpenDialogEventHandler::~CFileOpenDialogEventHandler() = default;

HRESULT CFileOpenDialogEventHandler::OnSelectionChange(IFileDialog* dialog)
{
    const QStringList files = inOrderOfFileNameBox(selectedPaths(dialog), fileNameText(dialog));
    m_handler.onSelectionChanged(files, WinFileDialogCallbacks(customizeOf(dialog).get()));
    return S_OK;
}

HRESULT CFileOpenDialogEventHandler::OnTypeChange(IFileDialog* dialog)
{
    m_handler.onTypeChanged(WinFileDialogCallbacks(customizeOf(dialog).get()));
    return S_OK;
}

HRESULT CFileOpenDialogEventHandler::OnCheckButtonToggled(IFileDialogCustomize* customize,
                                                          DWORD controlId, BOOL isChecked)
{
    m_handler.onCheckBoxToggled(isChecked != FALSE, int(controlId),
                                WinFileDialogCallbacks(customize));
    return S_OK;
}

HRESULT CFileOpenDialogEventHandler::OnItemSelected(IFileDialogCustomize*, DWORD controlId,
                                                    DWORD itemId)
{
    m_handler.onItemSelected(int(controlId), int(itemId));
    return S_OK;
}

HRESULT CFileOpenDialogEventHandler::OnButtonClicked(IFileDialogCustomize*, DWORD)
{
    return S_OK;
}

HRESULT CFileOpenDialogEventHandler::OnControlActivating(IFileDialogCustomize*, DWORD)
{
    return S_OK;
}

} // namespace Zorvane
