#pragma once

#include "Workbench/Tour/TourPart.h"

namespace Zorvane::Workbench {

/** A tree of many rows, refreshed over and over. */
class StressSteps : private TourPart
{
public:
    using TourPart::TourPart;

    void perform();
};

} // namespace Zorvane::Workbench
