#pragma once

#include <cstring>

#include <windows.h>

namespace Zorvane {

/** A library of the system, loaded as long as this lives, whose functions are found by name. */
class SystemLibrary
{
public:
    explicit SystemLibrary(const wchar_t* name)
        : m_module(LoadLibraryW(name))
    {}
    ~SystemLibrary()
    {
        if (m_module)
            FreeLibrary(m_module);
    }

    SystemLibrary(const SystemLibrary&) = delete;
    SystemLibrary& operator=(const SystemLibrary&) = delete;

    /** Null where the library or the function is missing. */
    template <typename Function>
    Function* find(const char* name) const
    {
        Function* function = nullptr;
        const FARPROC address = m_module ? GetProcAddress(m_module, name) : nullptr;
        static_assert(sizeof function == sizeof address);
        std::memcpy(&function, &address, sizeof function);
        return function;
    }

private:
    HMODULE m_module;
};

} // namespace Zorvane
