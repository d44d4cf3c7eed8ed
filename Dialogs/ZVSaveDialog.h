#pragma once

#include "Host/DesignStatus/DesignInterface.h"
#include "UiToolsExport.h"

#include <QtCore/QCoreApplication>

#include <memory>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Zorvane {

/**
 * Asks before a design is saved, closed or computed, and says what the step costs: results that
 * are deleted, a conversion to the current version, or that a running simulation forbids the step.
 * It saves nothing itself.
 *
 * Three properties of the application object change it, for programs that run scripts or are part
 * of another one; one that is missing is false:
 * - "SuppressSaveDialog": nothing is asked, and every answer is `ResultContinue`.
 * - "SuppressCancelForSaveDialog": the step can no longer be called off. There is neither a Cancel
 *   button nor one to close the box.
 * - "AddSaveAsToSaveDialog": closing a design offers Save As, too.
 *
 * Enter presses Save. Where the design cannot be saved, Enter presses Cancel, else Save As; never
 * "Don't Save". Escape and closing the box are Cancel, where there is one. Letters press buttons
 * with Alt only.
 */
class ZORVANE_UITOOLS_EXPORT ZVSaveDialog
{
    Q_DECLARE_TR_FUNCTIONS(Zorvane::ZVSaveDialog)

public:
    /** What is about to happen. */
    enum Action
    {
        ActionSave = 0,
        ActionStart = 1,
        ActionClose = 2,
        /** Another step that needs a saved design; another file is no help to it. */
        ActionProceed = 3
    };

    enum Result
    {
        /** Save, then compute. */
        ResultStart = 0,
        ResultSave = 1,
        ResultSaveAs = 2,
        /** Go on without saving. Also when nothing was asked. */
        ResultContinue = 3,
        /** Don't go on. */
        ResultCancel = 4
    };

    ZVSaveDialog() = delete;

    /**
     * Asks, and returns the answer. Looks for a running simulation of the design's file first.
     *
     * `silent` prepares the box without showing it, and returns `ResultContinue`.
     * `saveDisabled` says that the design cannot be saved under its own name. The design must not
     * be null. Nothing fails; a parent that is deleted meanwhile means Cancel. Blocks in the box's
     * event loop; GUI thread only.
     */
    static Result showDialog(QWidget* parent, std::shared_ptr<DesignInterface> design,
                             Action action, bool silent, bool saveDisabled);
};

} // namespace Zorvane
