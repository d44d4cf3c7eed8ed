#pragma once

#include "Dialogs/SaveState.h"
#include "Dialogs/ZVSaveDialog.h"
#include "UiToolsExport.h"

#include <QtCore/QString>

#include <vector>

namespace Zorvane {

/** What is said of a design before it is saved, closed or computed. All texts are translated. */
struct ZORVANE_UITOOLS_EXPORT SaveMessage
{
    /** The bits of `facts`. */
    enum Fact
    {
        NotSaved = 1,
        HasResults = 2,
        IsRunning = 4,
        IsOldVersion = 8
    };

    struct Entry
    {
        QString label;
        QString text;
    };

    int facts = 0;
    /** Rich text; empty for none. */
    QString question;
    /** The first entry is the headline, which has a text only. */
    std::vector<Entry> consequences;
    bool showsConsequences = false;

    QString toHtml() const;
};

/** What the message calls the design. */
struct SaveSubject
{
    /** Never saved to a file. */
    bool isNew = false;
    /** The name of its file without the folder: plain text. */
    QString name;
};

/** Whether the design has results that the action costs it. */
ZORVANE_UITOOLS_EXPORT bool willDropResults(const SaveState& state, ZVSaveDialog::Action action);

ZORVANE_UITOOLS_EXPORT SaveMessage saveMessageFor(const SaveState& state,
                                                  ZVSaveDialog::Action action,
                                                  const SaveSubject& subject);

} // namespace Zorvane
