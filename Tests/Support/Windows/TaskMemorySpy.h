#pragma once

namespace Zorvane::Testing {

/**
 * How many blocks of task memory this thread has allocated, from the first call on, that nobody has
 * given back: texts and identifier lists that objects of the system or of a test have handed out.
 * The system keeps some for itself at first use; so compare two numbers of later times.
 */
int livingTaskMemory();

} // namespace Zorvane::Testing
