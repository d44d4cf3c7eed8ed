#pragma once

#include "Dialogs/ZVSaveDialog.h"

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtWidgets/QMessageBox>

#include <functional>

namespace Zorvane::Testing {

/** One case of the question whether to save: a design, a step and the switches. */
struct SaveCase
{
    bool isModified = false;
    bool isRunning = false;
    bool hasResults = false;
    bool isOldVersion = false;
    bool isEvaluationChanged = false;
    bool isInputChanged = false;
    bool isLostByConversion = false;
    bool isNew = false;
    ZVSaveDialog::Action action = ZVSaveDialog::ActionSave;
    bool isSilent = false;
    bool isSaveDisabled = false;
    bool suppressesCancel = false;
    bool addsSaveAs = false;

    /** For messages of failing tests. */
    QString name() const;
};

constexpr int designStates = 256;
constexpr int switchStates = 16;

/** Calls `check` with every state of a design and every step, all switches off. */
void forEveryDesign(const std::function<void(const SaveCase&)>& check);
/** Calls `check` with every step and switch, for a design with and one without a running job. */
void forEverySwitch(const std::function<void(const SaveCase&)>& check);

/**
 * What the question is to be, said a second time and in another way than the library does: by
 * sentences and by tables of cases.
 */
namespace SaveRules {

/** The text of the box. The name stands in it as it was given. */
QString html(const SaveCase& given, const QString& name);

/** The texts of the buttons that can be seen, in the order Cancel, Discard, Save, Save As. */
QStringList shownButtons(const SaveCase& given);
/** The text of the button that Enter presses; empty for none. */
QString enter(const SaveCase& given);
bool canBeClosed(const SaveCase& given);
ZVSaveDialog::Result result(const SaveCase& given, const QString& button);

} // namespace SaveRules

} // namespace Zorvane::Testing
