#pragma once

#include "Files/Windows/ComObject.h"
#include "Tests/Support/Windows/CallScript.h"

#include <windows.h>

#include <shobjidl.h>

namespace Zorvane::Testing {

/** Shell items of some paths, whose calls are counted and may fail. */
class SpyItemArray final : public ComObject<IShellItemArray>, private Counted
{
public:
    /** `calls` is used as long as this and its items live. */
    SpyItemArray(const QStringList& paths, CallScript& calls);

    HRESULT STDMETHODCALLTYPE BindToHandler(IBindCtx* context, REFGUID handler, REFIID iid,
                                            void** result) override;
    HRESULT STDMETHODCALLTYPE GetPropertyStore(GETPROPERTYSTOREFLAGS flags, REFIID iid,
                                               void** result) override;
    HRESULT STDMETHODCALLTYPE GetPropertyDescriptionList(REFPROPERTYKEY key, REFIID iid,
                                                         void** result) override;
    HRESULT STDMETHODCALLTYPE GetAttributes(SIATTRIBFLAGS flags, SFGAOF mask,
                                            SFGAOF* attributes) override;
    HRESULT STDMETHODCALLTYPE GetCount(DWORD* count) override;
    HRESULT STDMETHODCALLTYPE GetItemAt(DWORD index, IShellItem** item) override;
    HRESULT STDMETHODCALLTYPE EnumItems(IEnumShellItems** items) override;

private:
    QStringList m_paths;
    CallScript& m_calls;
};

} // namespace Zorvane::Testing
