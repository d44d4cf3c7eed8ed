#pragma once

#include "FileDialogs/Windows/DialogEvents.h"
#include "UiToolsExport.h"

#include <windows.h>

#include <shobjidl.h>

namespace Zorvane {

class DialogGuard;
class FileDialogEventHandler;
class WinFileDialogCallbacks;

/**
 * Tells a handler what happens in an open dialog. The dialog finds the events of custom controls by
 * asking this for their interface. After it has thrown something the handler is told no more.
 */
class ZORVANE_UITOOLS_EXPORT CFileOpenDialogEventHandler
    : public DialogEvents<IFileDialogControlEvents>
{
public:
    /** Both are used as long as this lives. The guard's owner is a shared pointer. */
    CFileOpenDialogEventHandler(FileDialogEventHandler& handler, DialogGuard& guard);

    HRESULT STDMETHODCALLTYPE OnSelectionChange(IFileDialog* dialog) override;
    HRESULT STDMETHODCALLTYPE OnTypeChange(IFileDialog* dialog) override;

    HRESULT STDMETHODCALLTYPE OnItemSelected(IFileDialogCustomize* customize, DWORD controlId,
                                             DWORD itemId) override;
    HRESULT STDMETHODCALLTYPE OnButtonClicked(IFileDialogCustomize* customize,
                                              DWORD controlId) override;
    HRESULT STDMETHODCALLTYPE OnCheckButtonToggled(IFileDialogCustomize* customize, DWORD controlId,
                                                   BOOL isChecked) override;
    HRESULT STDMETHODCALLTYPE OnControlActivating(IFileDialogCustomize* customize,
                                                  DWORD controlId) override;

protected:
    ~CFileOpenDialogEventHandler() override;

private:
    template <typename Call>
    HRESULT tell(Call call);
    WinFileDialogCallbacks callbacks(IUnknown* dialog) const;

    FileDialogEventHandler& m_handler;
    DialogGuard& m_guard;
};

} // namespace Zorvane
