#include "FileDialogs/Windows/CFileOpenDialogEventHandler.h"

#include "FileDialogs/DialogTexts.h"
#include "FileDialogs/FileDialogEventHandler.h"
#include "FileDialogs/Windows/DialogGuard.h"
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

CFileOpenDialogEventHandler::CFileOpenDialogEventHandler(FileDialogEventHandler& handler,
                                                         DialogGuard& guard)
    : m_handler(handler)
    , m_guard(guard)
{}

CFileOpenDialogEventHandler::~CFileOpenDialogEventHandler() = default;

template <typename Call>
HRESULT CFileOpenDialogEventHandler::tell(Call call)
{
    m_guard.run(call);
    return S_OK;
}

WinFileDialogCallbacks CFileOpenDialogEventHandler::callbacks(IUnknown* dialog) const
{
    return WinFileDialogCallbacks(dialog, m_guard.weak_from_this());
}

HRESULT CFileOpenDialogEventHandler::OnSelectionChange(IFileDialog* dialog)
{
    return tell([&] {
        const QStringList files = inOrderOfFileNameBox(selectedPaths(dialog), fileNameText(dialog));
        m_handler.onSelectionChanged(files, callbacks(customizeOf(dialog).get()));
    });
}

HRESULT CFileOpenDialogEventHandler::OnTypeChange(IFileDialog* dialog)
{
    return tell([&] { m_handler.onTypeChanged(callbacks(customizeOf(dialog).get())); });
}

HRESULT CFileOpenDialogEventHandler::OnCheckButtonToggled(IFileDialogCustomize* customize,
                                                          DWORD controlId, BOOL isChecked)
{
    return tell([&] {
        m_handler.onCheckBoxToggled(isChecked != FALSE, int(controlId), callbacks(customize));
    });
}

HRESULT CFileOpenDialogEventHandler::OnItemSelected(IFileDialogCustomize*, DWORD controlId,
                                                    DWORD itemId)
{
    return tell([&] { m_handler.onItemSelected(int(controlId), int(itemId)); });
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
