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

void close(IUnknown* dialog)
{
    ComPointer<IFileDialog> closable;
    if (dialog && SUCCEEDED(dialog->QueryInterface(IID_PPV_ARGS(closable.put()))))
        closable->Close(E_UNEXPECTED);
}

} // namespace

CFileOpenDialogEventHandler::CFileOpenDialogEventHandler(FileDialogEventHandler& handler,
                                                         std::exception_ptr& thrown)
    : m_handler(handler)
    , m_thrown(thrown)
{}

CFileOpenDialogEventHandler::~CFileOpenDialogEventHandler() = default;

template <typename Call>
HRESULT CFileOpenDialogEventHandler::tell(IUnknown* dialog, Call call)
{
    if (m_thrown)
        return S_OK;
    try {
        call();
    } catch (...) {
        m_thrown = std::current_exception();
        close(dialog);
    }
    return S_OK;
}

HRESULT CFileOpenDialogEventHandler::OnSelectionChange(IFileDialog* dialog)
{
    return tell(dialog, [&] {
        const QStringList files = inOrderOfFileNameBox(selectedPaths(dialog), fileNameText(dialog));
        m_handler.onSelectionChanged(files, WinFileDialogCallbacks(customizeOf(dialog).get()));
    });
}

HRESULT CFileOpenDialogEventHandler::OnTypeChange(IFileDialog* dialog)
{
    return tell(dialog, [&] {
        m_handler.onTypeChanged(WinFileDialogCallbacks(customizeOf(dialog).get()));
    });
}

HRESULT CFileOpenDialogEventHandler::OnCheckButtonToggled(IFileDialogCustomize* customize,
                                                          DWORD controlId, BOOL isChecked)
{
    return tell(customize, [&] {
        m_handler.onCheckBoxToggled(isChecked != FALSE, int(controlId),
                                    WinFileDialogCallbacks(customize));
    });
}

HRESULT CFileOpenDialogEventHandler::OnItemSelected(IFileDialogCustomize* customize,
                                                    DWORD controlId, DWORD itemId)
{
    return tell(customize, [&] { m_handler.onItemSelected(int(controlId), int(itemId)); });
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
