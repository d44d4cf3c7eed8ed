#pragma once

#include "Dialogs/SaveState.h"

#include <QtCore/QString>

namespace Zorvane {

/** What the message calls the design. */
struct SaveSubject
{
    /** Never saved to a file. */
    bool isNew = false;
    /** The name of its file without the folder: plain text. */
    QString name;
};

/** What is said of a design before it is saved, closed or computed: translated rich text. */
QString saveMessageFor(const SaveState& state, ZVSaveDialog::Action action,
                       const SaveSubject& subject);

} // namespace Zorvane
