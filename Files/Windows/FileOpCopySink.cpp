#include "Files/Windows/FileOpCopySink.h"

#include <sherrors.h>

namespace Zorvane {

FileOpCopySink::FileOpCopySink() = default;
FileOpCopySink::~FileOpCopySink() = default;

void FileOpCopySink::rethrow() const
{
    if (m_thrown)
        std::rethrow_exception(m_thrown);
}

HRESULT FileOpCopySink::StartOperations()
{
    m_records.clear();
    m_thrown = nullptr;
    return S_OK;
}

HRESULT FileOpCopySink::PostCopyItem(DWORD flags, IShellItem* item, IShellItem* folder,
                                     LPCWSTR newName, HRESULT result, IShellItem* created)
{
    if (result == COPYENGINE_S_PENDING)
        return S_OK;
    // The shell's code is around this one: nothing may be thrown through it.
    try {
        m_records.push_back({flags, ComPointer(item), ComPointer(folder),
                             QString::fromWCharArray(newName ? newName : L""), result,
                             ComPointer(created)});
    } catch (...) {
        m_thrown = std::current_exception();
    }
    return S_OK;
}

} // namespace Zorvane
