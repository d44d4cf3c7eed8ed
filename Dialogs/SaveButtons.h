#pragma once

#include "Dialogs/SaveState.h"
#include "Dialogs/ZVSaveDialog.h"
#include "UiToolsExport.h"

#include <QtWidgets/QMessageBox>

namespace Zorvane {

/** What the application and the caller say about the question. */
struct ZORVANE_UITOOLS_EXPORT SaveSwitches
{
    bool isSilent = false;
    bool isSaveDisabled = false;
    bool suppressesCancel = false;
    bool addsSaveAs = false;

    /** The application's part of them, from its properties. */
    static SaveSwitches ofApplication();
};

/** Qt has no standard button for it. */
constexpr QMessageBox::StandardButton s_saveAsButton = QMessageBox::SaveAll;

/** The buttons, the hidden ones too. */
ZORVANE_UITOOLS_EXPORT QMessageBox::StandardButtons saveButtonsFor(ZVSaveDialog::Action action,
                                                                   const SaveSwitches& switches);
/** Whether Save, if it is among the buttons, is shown. */
ZORVANE_UITOOLS_EXPORT bool isSaveShown(const SaveState& state, const SaveSwitches& switches);
/** What Enter presses at first: never anything that drops changes. `NoButton` for nothing. */
ZORVANE_UITOOLS_EXPORT QMessageBox::StandardButton
defaultSaveButton(QMessageBox::StandardButtons buttons, bool isSaveShown);
ZORVANE_UITOOLS_EXPORT Qt::WindowFlags saveWindowFlags(const SaveSwitches& switches);
ZORVANE_UITOOLS_EXPORT ZVSaveDialog::Result saveResultOf(QMessageBox::StandardButton pressed,
                                                         ZVSaveDialog::Action action);

} // namespace Zorvane
