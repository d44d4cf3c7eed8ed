#pragma once

#include <cstddef>

namespace Zorvane::Testing {

/** How often the program has allocated memory with `new` so far. */
std::size_t countedAllocations();

} // namespace Zorvane::Testing
