#include "Tests/Support/Windows/SpyItemArray.h"

#include "Tests/Support/Windows/SpyShellItem.h"

namespace Zorvane::Testing {

SpyItemArray::SpyItemArray(const QStringList& paths, CallScript& calls)
    : m_paths(paths)
    , m_calls(calls)
{}

HRESULT SpyItemArray::GetCount(DWORD* count)
{
    *count = DWORD(m_paths.size());
    return m_calls.enter(QStringLiteral("GetCount"));
}

HRESULT SpyItemArray::GetItemAt(DWORD index, IShellItem** item)
{
    const HRESULT result = m_calls.enter(QStringLiteral("GetItemAt(%1)").arg(index));
    if (FAILED(result))
        return result;
    return SpyShellItem::ofPath(m_paths.at(int(index)), &m_calls)
        ->QueryInterface(IID_PPV_ARGS(item));
}

HRESULT SpyItemArray::BindToHandler(IBindCtx*, REFGUID, REFIID, void**)
{
    return E_NOTIMPL;
}

HRESULT SpyItemArray::GetPropertyStore(GETPROPERTYSTOREFLAGS, REFIID, void**)
{
    return E_NOTIMPL;
}

HRESULT SpyItemArray::GetPropertyDescriptionList(REFPROPERTYKEY, REFIID, void**)
{
    return E_NOTIMPL;
}

HRESULT SpyItemArray::GetAttributes(SIATTRIBFLAGS, SFGAOF, SFGAOF*)
{
    return E_NOTIMPL;
}

HRESULT SpyItemArray::EnumItems(IEnumShellItems**)
{
    return E_NOTIMPL;
}

} // namespace Zorvane::Testing
