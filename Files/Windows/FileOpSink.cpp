#include "Files/Windows/FileOpSink.h"

namespace Zorvane {

FileOpSink::FileOpSink() = default;
FileOpSink::~FileOpSink() = default;

// clang-format off
HRESULT FileOpSink::StartOperations() { return S_OK; }
HRESULT FileOpSink::FinishOperations(HRESULT) { return S_OK; }
HRESULT FileOpSink::PreRenameItem(DWORD, IShellItem*, LPCWSTR) { return S_OK; }
HRESULT FileOpSink::PostRenameItem(DWORD, IShellItem*, LPCWSTR, HRESULT, IShellItem*) { return S_OK; }
HRESULT FileOpSink::PreMoveItem(DWORD, IShellItem*, IShellItem*, LPCWSTR) { return S_OK; }
HRESULT FileOpSink::PostMoveItem(DWORD, IShellItem*, IShellItem*, LPCWSTR, HRESULT, IShellItem*) { return S_OK; }
HRESULT FileOpSink::PreCopyItem(DWORD, IShellItem*, IShellItem*, LPCWSTR) { return S_OK; }
HRESULT FileOpSink::PostCopyItem(DWORD, IShellItem*, IShellItem*, LPCWSTR, HRESULT, IShellItem*) { return S_OK; }
HRESULT FileOpSink::PreDeleteItem(DWORD, IShellItem*) { return S_OK; }
HRESULT FileOpSink::PostDeleteItem(DWORD, IShellItem*, HRESULT, IShellItem*) { return S_OK; }
HRESULT FileOpSink::PreNewItem(DWORD, IShellItem*, LPCWSTR) { return S_OK; }
HRESULT FileOpSink::PostNewItem(DWORD, IShellItem*, LPCWSTR, LPCWSTR, DWORD, HRESULT, IShellItem*) { return S_OK; }
HRESULT FileOpSink::UpdateProgress(UINT, UINT) { return S_OK; }
HRESULT FileOpSink::ResetTimer() { return S_OK; }
HRESULT FileOpSink::PauseTimer() { return S_OK; }
HRESULT FileOpSink::ResumeTimer() { return S_OK; }
// clang-format on

} // namespace Zorvane
