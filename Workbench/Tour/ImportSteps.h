#pragma once

#include "Workbench/Tour/TourPart.h"

namespace Zorvane::Workbench {

/** Files brought into a design and out of it. */
class ImportSteps : private TourPart
{
public:
    using TourPart::TourPart;

    void perform();

private:
    void importFiles();
    void cancelAnImport();
    void exportTheSelection();
};

} // namespace Zorvane::Workbench
