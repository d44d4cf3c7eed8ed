#pragma once

#include "FileDialogs/Windows/DialogEvents.h"
#include "UiToolsExport.h"

#include <windows.h>

#include <shobjidl.h>

namespace Zorvane {

class FileDialogEventHandler;

/**
 * Tells a handler what happens in an open dialog. The dialog finds the events of
 * custom controls by asking this for their interface.
 */
class ZORVANE_UITOOLS_EXPORT CFileOpenDialogEventHandler
    : public DialogEvents<IFileDialogControlEvents>
{
public:
    /** The handler is not owned, and lives longer than the dialog. */
    explicit CFileOpenDialogEventHandler(FileDialogEventHandler& handler);

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
    FileDialogEventHandler& m_handler;
};

} // namespace Zorvane
