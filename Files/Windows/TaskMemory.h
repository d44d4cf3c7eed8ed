#pragma once

#include <memory>

#include <windows.h>

#include <objbase.h>
#include <shtypes.h>

namespace Zorvane {

struct TaskMemoryDeleter
{
    void operator()(void* memory) const { CoTaskMemFree(memory); }
};

/** Text that a COM object has handed out. */
using TaskText = std::unique_ptr<wchar_t, TaskMemoryDeleter>;
/** An item identifier list of the shell, from the desktop down. */
using TaskIdList = std::unique_ptr<ITEMIDLIST, TaskMemoryDeleter>;

} // namespace Zorvane
