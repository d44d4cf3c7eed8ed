#pragma once

#include <QtCore/QtGlobal>

namespace Zorvane::Workbench {

/** What a process may take before the system ends it. */
struct ProcessLimits
{
    /** In bytes, in addition to what the process has when the limits are set. */
    qint64 memory = 1024LL * 1024 * 1024;
    int milliseconds = 10'000;
};

/**
 * Limits the running process, for good: its memory, its time, the files that it writes (none), and
 * what becomes of a crash (no dump, no dialog). False if the system refuses; some limits may be set
 * then.
 */
bool limitThisProcess(const ProcessLimits& limits);

/** Makes the standard output take bytes as they are. */
void makeOutputBinary();

} // namespace Zorvane::Workbench
