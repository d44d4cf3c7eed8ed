#pragma once

#include "Host/FileHandling/FileName.h"
#include "Host/HostExport.h"

#include <QtCore/QString>

namespace Zorvane {

/**
 * What is happening to a design's file outside of this program.
 *
 * A simulation marks its run by holding a `QLockFile` of the name that `getJobFile` gives, with a
 * stale lock time of 0. The mark of a job that crashed on this computer counts for nothing and is
 * cleared away; that of a job on another computer counts until it is removed.
 */
class ZORVANE_HOST_EXPORT DesignStatus
{
public:
    /** Who is computing. */
    struct Job
    {
        QString application;
        QString computer;
        qint64 processId = 0;
    };

    /** The file next to the design's that marks a running simulation. */
    static FileName getJobFile(const FileName& design);

    /**
     * Looks whether a simulation of the design is running, for `isJobRunning`. A job that is given
     * is filled with what is known of it, and emptied if none runs. An empty file name has no job.
     */
    void reloadJobStatus(const FileName& design, Job* job);
    /** What the last `reloadJobStatus` found; false before the first. */
    bool isJobRunning() const { return m_isJobRunning; }

private:
    bool m_isJobRunning = false;
};

} // namespace Zorvane
