#pragma once

#include "Host/FileHandling/FileName.h"
#include "Host/HostExport.h"

namespace Zorvane {

/**
 * A design as the application has it open: what the library asks of it. Implemented by the
 * application; held by shared pointer. The questions are cheap and change nothing.
 */
class ZORVANE_HOST_EXPORT DesignInterface
{
public:
    DesignInterface() = default;
    DesignInterface(const DesignInterface&) = default;
    DesignInterface& operator=(const DesignInterface&) = default;
    virtual ~DesignInterface();

    /** The design's file; empty for a design that has none yet. */
    virtual FileName getFileName() const = 0;
    /** The number of changes since a stored state; state 0 is the last save. */
    virtual int getModificationCount(int state) const = 0;
    /** Whether the design has never been saved to a file. */
    virtual bool isNew() const = 0;
    virtual bool hasSimulationResults() const = 0;
    /** Whether the current version wrote the design; saving converts any other. */
    virtual bool isCurrentVersion() const = 0;
    /** Whether evaluation data, which older versions cannot hold, changed since the last save. */
    virtual bool hasEvaluationDataChanged() const = 0;
    /** Whether something changed that the results were computed from: saving drops them. */
    virtual bool hasSimulationInputChanged() const = 0;
    /** Whether the current version cannot hold the results of the version that wrote them. */
    virtual bool areResultsLostByConversion() const = 0;
};

} // namespace Zorvane
