#include "Workbench/Preview/ProcessLimits.h"

#include <cstdio>

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <psapi.h>

namespace Zorvane::Workbench {

namespace {

/** In bytes: the memory that the system has promised to the process. */
SIZE_T presentSize()
{
    PROCESS_MEMORY_COUNTERS counters{};
    counters.cb = sizeof counters;
    if (!K32GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters))
        return 0;
    return counters.PagefileUsage;
}

} // namespace

bool limitThisProcess(const ProcessLimits& limits)
{
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    // Never closed: the job lives as long as the process in it.
    const HANDLE job = CreateJobObjectW(nullptr, nullptr);
    if (job == nullptr)
        return false;
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION information{};
    information.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_PROCESS_MEMORY |
                                                   JOB_OBJECT_LIMIT_PROCESS_TIME |
                                                   JOB_OBJECT_LIMIT_DIE_ON_UNHANDLED_EXCEPTION;
    // In steps of 100 nanoseconds.
    information.BasicLimitInformation.PerProcessUserTimeLimit.QuadPart =
        LONGLONG(limits.milliseconds) * 10'000;
    information.ProcessMemoryLimit = presentSize() + SIZE_T(limits.memory);
    return SetInformationJobObject(job, JobObjectExtendedLimitInformation, &information,
                                   sizeof information) &&
           AssignProcessToJobObject(job, GetCurrentProcess());
}

void makeOutputBinary()
{
    _setmode(_fileno(stdout), _O_BINARY);
}

} // namespace Zorvane::Workbench
