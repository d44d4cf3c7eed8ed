#pragma once

#include "Files/Windows/ComObject.h"
#include "Files/Windows/ComPointer.h"
#include "Tests/Support/Windows/CallScript.h"

#include <QtCore/QString>

#include <windows.h>

#include <shobjidl.h>

namespace Zorvane::Testing {

/** A shell item that is counted and leaves all work to a real one, once the script lets it. */
class SpyShellItem final : public ComObject<IShellItem>, private Counted
{
public:
    /** `calls` may be null, and is used as long as this lives. */
    explicit SpyShellItem(ComPointer<IShellItem> real, CallScript* calls = nullptr);

    /** The item of a path; null where the shell has none. */
    static ComPointer<IShellItem> ofPath(const QString& path, CallScript* calls = nullptr);

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** result) override;
    HRESULT STDMETHODCALLTYPE BindToHandler(IBindCtx* context, REFGUID handler, REFIID iid,
                                            void** result) override;
    HRESULT STDMETHODCALLTYPE GetParent(IShellItem** result) override;
    HRESULT STDMETHODCALLTYPE GetDisplayName(SIGDN form, LPWSTR* name) override;
    HRESULT STDMETHODCALLTYPE GetAttributes(SFGAOF mask, SFGAOF* attributes) override;
    HRESULT STDMETHODCALLTYPE Compare(IShellItem* other, SICHINTF hint, int* order) override;

private:
    ComPointer<IShellItem> m_real;
    CallScript* m_calls;
};

} // namespace Zorvane::Testing
