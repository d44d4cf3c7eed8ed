#pragma once

#include "Files/Windows/ComObject.h"
#include "UiToolsExport.h"

#include <windows.h>

#include <shobjidl.h>

namespace Zorvane {

/**
 * Listens to a file operation of the shell, and has nothing to say to anything. Subclasses
 * override the notifications that they want. The count of references starts at 1.
 */
class ZORVANE_UITOOLS_EXPORT FileOpSink : public ComObject<IFileOperationProgressSink>
{
public:
    FileOpSink();

    // clang-format off
    HRESULT STDMETHODCALLTYPE StartOperations() override;
    HRESULT STDMETHODCALLTYPE FinishOperations(HRESULT result) override;
    HRESULT STDMETHODCALLTYPE PreRenameItem(DWORD flags, IShellItem* item, LPCWSTR newName) override;
    HRESULT STDMETHODCALLTYPE PostRenameItem(DWORD flags, IShellItem* item, LPCWSTR newName, HRESULT result, IShellItem* created) override;
    HRESULT STDMETHODCALLTYPE PreMoveItem(DWORD flags, IShellItem* item, IShellItem* folder, LPCWSTR newName) override;
    HRESULT STDMETHODCALLTYPE PostMoveItem(DWORD flags, IShellItem* item, IShellItem* folder, LPCWSTR newName, HRESULT result, IShellItem* created) override;
    HRESULT STDMETHODCALLTYPE PreCopyItem(DWORD flags, IShellItem* item, IShellItem* folder, LPCWSTR newName) override;
    HRESULT STDMETHODCALLTYPE PostCopyItem(DWORD flags, IShellItem* item, IShellItem* folder, LPCWSTR newName, HRESULT result, IShellItem* created) override;
    HRESULT STDMETHODCALLTYPE PreDeleteItem(DWORD flags, IShellItem* item) override;
    HRESULT STDMETHODCALLTYPE PostDeleteItem(DWORD flags, IShellItem* item, HRESULT result, IShellItem* created) override;
    HRESULT STDMETHODCALLTYPE PreNewItem(DWORD flags, IShellItem* folder, LPCWSTR newName) override;
    HRESULT STDMETHODCALLTYPE PostNewItem(DWORD flags, IShellItem* folder, LPCWSTR newName, LPCWSTR templateName, DWORD attributes, HRESULT result, IShellItem* created) override;
    HRESULT STDMETHODCALLTYPE UpdateProgress(UINT total, UINT soFar) override;
    HRESULT STDMETHODCALLTYPE ResetTimer() override;
    HRESULT STDMETHODCALLTYPE PauseTimer() override;
    HRESULT STDMETHODCALLTYPE ResumeTimer() override;
    // clang-format on

protected:
    ~FileOpSink() override;
};

} // namespace Zorvane
