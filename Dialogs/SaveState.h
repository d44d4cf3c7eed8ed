#pragma once

#include "Dialogs/ZVSaveDialog.h"
#include "UiToolsExport.h"

namespace Zorvane {

/**
 * What matters of a design for the question whether to save it, taken once a question. A host that
 * asks only when there is something to ask looks at it first.
 */
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

/** Whether the design has results that the action costs it. */
ZORVANE_UITOOLS_EXPORT bool willDropResults(const SaveState& state, ZVSaveDialog::Action action);

} // namespace Zorvane
