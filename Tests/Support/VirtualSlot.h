#pragma once

#include <cstddef>
#include <cstring>

namespace Zorvane::Testing {

/**
 * The place of a virtual operation in its class's table of operations. Reads the form that GCC and
 * Clang give a pointer to a virtual member (offset in the table plus one); a virtual destructor
 * declared first takes the places 0 and 1.
 */
template <typename Member>
std::ptrdiff_t virtualSlot(Member member)
{
    std::ptrdiff_t offset = 0;
    static_assert(sizeof member >= sizeof offset, "a pointer to member starts with the offset");
    std::memcpy(&offset, &member, sizeof offset);
    return (offset - 1) / static_cast<std::ptrdiff_t>(sizeof(void*));
}

} // namespace Zorvane::Testing
