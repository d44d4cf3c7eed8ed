#pragma once

#include "Workbench/Tour/TourPart.h"

namespace Zorvane::Workbench {

/** A design opened, looked at, filtered, edited, and changed by other programs. */
class DesignSteps : private TourPart
{
public:
    using TourPart::TourPart;

    void perform();

private:
    void openCup();
    void lookAtTools();
    void turnTheMesh();
    void filterByText();
    void filterByKind();
    void renameInPlace();
    void refuseAName();
    void followAnotherProgram();
    void missFile();
};

} // namespace Zorvane::Workbench
