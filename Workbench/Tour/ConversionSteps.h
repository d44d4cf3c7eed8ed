#pragma once

#include "Workbench/Tour/TourPart.h"

namespace Zorvane {
class ZVConverterDialog;
}

namespace Zorvane::Workbench {

/** Meshes converted, with a conversion cancelled and a file that is no mesh. */
class ConversionSteps : private TourPart
{
public:
    using TourPart::TourPart;

    void perform();

private:
    void convertAMesh();
    void chooseAndConvert(ZVConverterDialog& window, const QString& file);
    void cancelAConversion(ZVConverterDialog& window);
};

} // namespace Zorvane::Workbench
