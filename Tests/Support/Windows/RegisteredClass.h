#pragma once

#include "Files/Windows/ComPointer.h"

#include <functional>

#include <windows.h>

#include <objbase.h>

namespace Zorvane::Testing {

/**
 * As long as it lives, `CoCreateInstance` of a class identifier in this apartment goes to
 * `create`, also where the system has a class of its own. The thread has entered an apartment
 * before and stays in it longer.
 */
class RegisteredClass
{
public:
    using Create = std::function<HRESULT(REFIID, void**)>;

    RegisteredClass(REFCLSID classId, Create create);
    ~RegisteredClass();

    RegisteredClass(const RegisteredClass&) = delete;
    RegisteredClass& operator=(const RegisteredClass&) = delete;

private:
    DWORD m_cookie = 0;
};

} // namespace Zorvane::Testing
