#pragma once

#include "Workbench/Tour/TourPart.h"

namespace Zorvane::Workbench {

/** Questions about what other programs have changed, and a warning. */
class QuestionSteps : private TourPart
{
public:
    using TourPart::TourPart;

    void perform();

private:
    void askAboutChangesOfOthers();
    void callAnUndefinedAction();
};

} // namespace Zorvane::Workbench
