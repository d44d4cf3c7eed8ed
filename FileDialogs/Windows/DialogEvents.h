#pragma once

#include "Files/Windows/ComObject.h"

#include <windows.h>

#include <shobjidl.h>

namespace Zorvane {

/** Listens to a dialog and leaves everything to it. Subclasses override what they care for. */
template <typename... OtherInterfaces>
class DialogEvents : public ComObject<IFileDialogEvents, OtherInterfaces...>
{
public:
    HRESULT STDMETHODCALLTYPE OnFileOk(IFileDialog*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnFolderChanging(IFileDialog*, IShellItem*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnFolderChange(IFileDialog*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnSelectionChange(IFileDialog*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnTypeChange(IFileDialog*) override { return S_OK; }
    /** The dialog asks the user itself, as about overwriting. */
    HRESULT STDMETHODCALLTYPE OnShareViolation(IFileDialog*, IShellItem*,
                                               FDE_SHAREVIOLATION_RESPONSE*) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE OnOverwrite(IFileDialog*, IShellItem*,
                                          FDE_OVERWRITE_RESPONSE*) override
    {
        return E_NOTIMPL;
    }
};

} // namespace Zorvane
