#include "Files/Windows/FileOpCopySink.h"

#include <sherrors.h>

namespace Zorvane {

FileOpCopySink::FileOpCopySink() = default;
FileOpCopySink::~FileOpCopySink() = default;

HRESULT FileOpCopySink::StartOperations()
{
    m_records.clear();
    return S_OK;
}

HRESULT FileOpCopySink::PostCopyItem(DWORD flags, IShellItem* item, IShellItem* folder,
                                     LPCWSTR newName, HRESULT result, IShellItem* created)
{
    if (result != COPYENGINE_S_PENDING) {
        m_records.push_back({flags, ComPointer(item), ComPointer(folder),
                             QString::fromWCharArray(newName ? newName : L""), result,
                             ComPointer(created)});
    }
    return S_OK;
}

} // namespace Zorvane
