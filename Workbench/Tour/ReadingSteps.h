#pragma once

#include "Workbench/Tour/TourPart.h"

namespace Zorvane::Workbench {

/** Many files, large files and broken ones. */
class ReadingSteps : private TourPart
{
public:
    using TourPart::TourPart;

    void perform();

private:
    void openManyFiles();
    void lookAndCancel();
    void takeUpReading();
    void keepTheScrollPosition();
    void surviveBrokenInputs();
    void redrawManyTriangles();
};

} // namespace Zorvane::Workbench
