#include "Tests/Support/Windows/SpyShellItem.h"

#include "Files/Windows/ShellPath.h"

#include <utility>

#include <shlobj.h>

namespace Zorvane::Testing {

SpyShellItem::SpyShellItem(ComPointer<IShellItem> real, CallScript* calls)
    : m_real(std::move(real))
    , m_calls(calls)
{}

ComPointer<IShellItem> SpyShellItem::ofPath(const QString& path, CallScript* calls)
{
    ComPointer<IShellItem> real;
    if (FAILED(
            SHCreateItemFromParsingName(wide(shellPath(path)), nullptr, IID_PPV_ARGS(real.put()))))
        return {};
    return ComPointer<IShellItem>::adopt(new SpyShellItem(std::move(real), calls));
}

HRESULT SpyShellItem::QueryInterface(REFIID iid, void** result)
{
    // The shell asks items that it compares for more interfaces than they are used by.
    const HRESULT own = ComObject::QueryInterface(iid, result);
    return own == E_NOINTERFACE ? m_real->QueryInterface(iid, result) : own;
}

HRESULT SpyShellItem::BindToHandler(IBindCtx* context, REFGUID handler, REFIID iid, void** result)
{
    return m_real->BindToHandler(context, handler, iid, result);
}

HRESULT SpyShellItem::GetParent(IShellItem** result)
{
    return m_real->GetParent(result);
}

HRESULT SpyShellItem::GetDisplayName(SIGDN form, LPWSTR* name)
{
    const HRESULT result =
        m_calls ? m_calls->enter(QStringLiteral("GetDisplayName")) : HRESULT(S_OK);
    return SUCCEEDED(result) ? m_real->GetDisplayName(form, name) : result;
}

HRESULT SpyShellItem::GetAttributes(SFGAOF mask, SFGAOF* attributes)
{
    return m_real->GetAttributes(mask, attributes);
}

HRESULT SpyShellItem::Compare(IShellItem* other, SICHINTF hint, int* order)
{
    const HRESULT result =
        m_calls ? m_calls->enter(QStringLiteral("Compare(%1)").arg(DWORD(hint))) : HRESULT(S_OK);
    return SUCCEEDED(result) ? m_real->Compare(other, hint, order) : result;
}

} // namespace Zorvane::Testing
