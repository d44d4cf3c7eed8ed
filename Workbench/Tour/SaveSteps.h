#pragma once

#include "Workbench/Tour/TourPart.h"

namespace Zorvane::Workbench {

/** What is asked before changes are lost, a simulation, and changes taken back. */
class SaveSteps : private TourPart
{
public:
    using TourPart::TourPart;

    void perform();

private:
    void askBeforeSaving();
    void runASimulation();
    void undoAndRedo();
};

} // namespace Zorvane::Workbench
