#include "Tests/TreeModel/CountedAllocations.h"

#include <cstdlib>
#include <new>

namespace {

std::size_t s_allocations = 0;

} // namespace

// Out of sight of the code that allocates: a compiler that sees only one of a pair takes the two
// for mismatched.
void* operator new(std::size_t size)
{
    ++s_allocations;
    if (void* memory = std::malloc(size > 0 ? size : 1))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace Zorvane::Testing {

std::size_t countedAllocations()
{
    return s_allocations;
}

} // namespace Zorvane::Testing
