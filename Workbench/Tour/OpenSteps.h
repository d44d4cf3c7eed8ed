#pragma once

#include "Workbench/Tour/TourPart.h"

QT_BEGIN_NAMESPACE
class QFileDialog;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

/** Files looked at before they are opened, and names asked for. */
class OpenSteps : private TourPart
{
public:
    using TourPart::TourPart;

    void perform();

private:
    void openWithPreview();
    void lookAtFiles(QFileDialog& dialog, const QString& folder);
    void askForNames();
};

} // namespace Zorvane::Workbench
