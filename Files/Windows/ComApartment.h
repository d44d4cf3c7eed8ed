#pragma once

#include <windows.h>

#include <objbase.h>

namespace Zorvane {

/**
 * As long as it lives, this thread is in a single-threaded apartment, as the shell's windows need
 * it. Entering fails (`RPC_E_CHANGED_MODE`) where somebody has made the thread multi-threaded.
 */
class ComApartment
{
public:
    ComApartment()
        : m_entered(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE))
    {}
    ~ComApartment()
    {
        if (SUCCEEDED(m_entered))
            CoUninitialize();
    }

    ComApartment(const ComApartment&) = delete;
    ComApartment& operator=(const ComApartment&) = delete;

    HRESULT result() const { return m_entered; }

private:
    HRESULT m_entered;
};

} // namespace Zorvane
