#include "Workbench/Preview/ProcessLimits.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include <sys/resource.h>
#include <unistd.h>

namespace Zorvane::Workbench {

namespace {

/** Where the system doesn't tell: a generous guess. */
constexpr rlim_t usualMemoryLimit = rlim_t(512) * 1024 * 1024;

/** In bytes: all that the process has mapped, its libraries included. */
rlim_t presentSize()
{
    std::FILE* file = std::fopen("/proc/self/statm", "re");
    if (file == nullptr)
        return usualMemoryLimit;
    char line[64] = {};
    const bool isRead = std::fgets(line, sizeof line, file) != nullptr;
    std::fclose(file);
    const unsigned long long pages = isRead ? std::strtoull(line, nullptr, 10) : 0;
    return pages == 0 ? usualMemoryLimit : rlim_t(pages) * rlim_t(sysconf(_SC_PAGESIZE));
}

bool limit(int resource, rlim_t value)
{
    rlimit limits{};
    if (getrlimit(resource, &limits) != 0)
        return false;
    limits.rlim_max = std::min(limits.rlim_max, value);
    limits.rlim_cur = limits.rlim_max;
    return setrlimit(resource, &limits) == 0;
}

} // namespace

bool limitThisProcess(const ProcessLimits& limits)
{
    const auto seconds = static_cast<unsigned>(limits.milliseconds / 1000 + 1);
    // Waiting takes no processor time; the alarm ends a process that nobody is left to end.
    alarm(seconds + 1);
    const bool memory = limit(RLIMIT_AS, presentSize() + rlim_t(limits.memory));
    const bool time = limit(RLIMIT_CPU, seconds);
    const bool files = limit(RLIMIT_FSIZE, 0);
    const bool dump = limit(RLIMIT_CORE, 0);
    return memory && time && files && dump;
}

void makeOutputBinary() {}

} // namespace Zorvane::Workbench
