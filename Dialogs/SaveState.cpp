#include "Dialogs/SaveState.h"

#include "Host/DesignStatus/DesignInterface.h"
#include "Host/DesignStatus/DesignStatus.h"

namespace Zorvane {

SaveState saveStateOf(const DesignInterface& design)
{
    DesignStatus status;
    status.reloadJobStatus(design.getFileName(), nullptr);

    SaveState state;
    state.isModified = design.getModificationCount(0) != 0;
    state.isJobRunning = status.isJobRunning();
    state.hasResults = design.hasSimulationResults();
    state.isCurrentVersion = design.isCurrentVersion();
    state.hasEvaluationDataChanged = design.hasEvaluationDataChanged();
    state.areResultsOutdated = design.hasSimulationInputChanged();
    state.areResultsLostByConversion = design.areResultsLostByConversion();
    return state;
}

bool willDropResults(const SaveState& state, ZVSaveDialog::Action action)
{
    return state.hasResults && (state.areResultsOutdated || state.areResultsLostByConversion ||
                                action == ZVSaveDialog::ActionStart);
}

} // namespace Zorvane
