#include "Host/DesignStatus/DesignStatus.h"

#include "Host/FileHandling/FileUtilities.h"

#include <QtCore/QLockFile>

namespace Zorvane {

FileName DesignStatus::getJobFile(const FileName& design)
{
    return design.isEmpty() ? design : FileName(design.toString() + ".job");
}

void DesignStatus::reloadJobStatus(const FileName& design, Job* job)
{
    Job found;
    m_isJobRunning = false;
    const FileName mark = getJobFile(design);
    if (FileUtilities::exists(mark)) {
        // Trying to take the lock is what clears the mark of a crashed job away.
        QLockFile lock(mark.toQString());
        lock.setStaleLockTime(0);
        m_isJobRunning = !lock.tryLock(0);
        if (m_isJobRunning)
            lock.getLockInfo(&found.processId, &found.computer, &found.application);
    }
    if (job)
        *job = found;
}

} // namespace Zorvane
