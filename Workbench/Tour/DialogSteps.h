#pragma once

#include "Workbench/Tour/TourPart.h"

QT_BEGIN_NAMESPACE
class QDialog;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

class DialogPanel;

/** Every variant of the file dialogs, as the window for them opens it. */
class DialogSteps : private TourPart
{
public:
    using TourPart::TourPart;

    void perform();

private:
    void openAllVariants(DialogPanel& panel);
    void lookAtControls(QDialog& dialog, const QString& suffix);
    void openNestedDialogs(DialogPanel& panel);
};

} // namespace Zorvane::Workbench
