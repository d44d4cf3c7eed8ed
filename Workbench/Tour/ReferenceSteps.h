#pragma once

#include "Workbench/Tour/TourPart.h"

namespace Zorvane::Workbench {

/** A larger design: who uses what, in which colour, and values that are edited. */
class ReferenceSteps : private TourPart
{
public:
    using TourPart::TourPart;

    void perform();

private:
    void openDoor();
    void showReferences();
    void showColours();
    void measure();
};

} // namespace Zorvane::Workbench
