#pragma once

#include "UiToolsExport.h"

namespace Zorvane {

class DesignInterface;

/** What matters of a design for the question whether to save it, taken once a question. */
struct SaveState
{
    bool isModified = false;
    bool isJobRunning = false;
    bool hasResults = false;
    /** False means that saving converts the design. */
    bool isCurrentVersion = true;
    bool hasEvaluationDataChanged = false;
    /** Saving drops the results, since what they were computed from has changed. */
    bool areResultsOutdated = false;
    /** Saving drops the results, since the current version cannot hold them. */
    bool areResultsLostByConversion = false;
};

/** Looks for a running simulation of the design's file, too. */
ZORVANE_UITOOLS_EXPORT SaveState saveStateOf(const DesignInterface& design);

} // namespace Zorvane
