#pragma once

#include <windows.h>

#include <unknwn.h>

namespace Zorvane {

/**
 * The `IUnknown` part of a COM object with the given interfaces. The count starts at 1, the
 * reference of whoever made the object, and the object deletes itself with the last one.
 *
 * One thread only, as everything here: the count is a plain number.
 */
template <typename First, typename... Others>
class ComObject : public First, public Others...
{
public:
    ComObject() = default;
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** result) override
    {
        if (!result)
            return E_INVALIDARG;
        *result = find(iid);
        if (!*result)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }

    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_count; }

    ULONG STDMETHODCALLTYPE Release() override
    {
        const ULONG left = --m_count;
        if (left == 0)
            delete this;
        return left;
    }

protected:
    virtual ~ComObject() = default;

private:
    void* find(REFIID iid)
    {
        void* found = nullptr;
        if (iid == __uuidof(IUnknown) || iid == __uuidof(First))
            found = static_cast<First*>(this);
        (void)((iid == __uuidof(Others) && (found = static_cast<Others*>(this))) || ...);
        return found;
    }

    ULONG m_count = 1;
};

} // namespace Zorvane
