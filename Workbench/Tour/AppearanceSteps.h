#pragma once

#include "Workbench/Tour/TourPart.h"

namespace Zorvane::Workbench {

/** In dark colours, on a fine screen, mirrored, in German, and by keyboard. */
class AppearanceSteps : private TourPart
{
public:
    using TourPart::TourPart;

    void perform();

private:
    void goDark();
    void lookClosely();
    void mirror();
    void speakGerman();
    void walkByTab();
};

} // namespace Zorvane::Workbench
