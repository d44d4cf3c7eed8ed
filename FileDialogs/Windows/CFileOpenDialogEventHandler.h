#pragma once

#include "FileDialogs/Windows/DialogEvents.h"
#include "UiToolsExport.h"

#include <exception>

#include <windows.h>

#include <shobjidl.h>

namespace Zorvane {

class FileDialogEventHandler;

/**
 * Tells a handler what happens in an open dialog. The dialog finds the events of custom controls by
 * asking this for their interface. What a handler throws may not pass through the system's code: it
 * is kept for whoever shows the dialog, the dialog is closed, and the handler is told no more.
 */
class ZORVANE_UITOOLS_EXPORT CFileOpenDialogEventHandler
    : public DialogEvents<IFileDialogControlEvents>
{
public:
    /** Both are used as long as this lives; `thrown` receives what the handler throws. */
    CFileOpenDialogEventHandler(FileDialogEventHandler& handler, std::exception_ptr& thrown);

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
    HRESULT tell(IUnknown* dialog, Call call);

    FileDialogEventHandler& m_handler;
    std::exception_ptr& m_thrown;
};

} // namespace Zorvane
