#pragma once

#include "Files/Windows/ComPointer.h"

namespace Zorvane::Testing {

/** Gives a reference back, and says how many others there still are. */
template <typename Interface>
ULONG referencesAfter(ComPointer<Interface>& pointer)
{
    Interface* object = pointer.get();
    if (!object)
        return 0;
    object->AddRef();
    pointer.reset();
    return object->Release();
}

} // namespace Zorvane::Testing
