#pragma once

#include "Workbench/Tour/TourReport.h"
#include "Workbench/Tour/WindowDriver.h"

#include <QtCore/QTemporaryDir>

namespace Zorvane::Workbench {

class MainWindow;

/** What the parts of a tour share. The window must outlive it. */
struct TourContext
{
    TourContext(MainWindow& shown, const QString& folder)
        : window(shown)
        , driver(shown)
        , report(folder)
    {}

    MainWindow& window;
    WindowDriver driver;
    TourReport report;
    /** For copies of samples and whatever else is opened. */
    QTemporaryDir work;
};

} // namespace Zorvane::Workbench
