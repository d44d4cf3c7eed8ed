#pragma once

#include "Workbench/Tour/TourPart.h"

namespace Zorvane::Workbench {

/** Commands by keyboard and by menu, and the help. */
class CommandSteps : private TourPart
{
public:
    using TourPart::TourPart;

    void perform();

private:
    void useShortcuts();
    void showOnlyGeometry();
    void showMenus();
    void readHelp();
};

} // namespace Zorvane::Workbench
