#pragma once

#include "Workbench/DialogPanel/DialogOutcome.h"

#include <functional>

namespace Zorvane {
class FileDialogConfiguration;
}

namespace Zorvane::Workbench {

/** An outcome while it comes about; tells of each change. */
class DialogRecord
{
public:
    using Changed = std::function<void(const DialogOutcome&)>;

    explicit DialogRecord(Changed changed)
        : m_changed(std::move(changed))
    {}

    /** Adds an event, with how many dialogs are open now. */
    void note(const QString& event);
    /** The configuration's controls with their first values. */
    void addControls(const FileDialogConfiguration& configuration);
    void setControl(int id, int value);
    void finish();

    DialogOutcome outcome;

private:
    Changed m_changed;
};

/** Arguments of an event: each text in double quotes. */
QString quoted(const QStringList& texts);

} // namespace Zorvane::Workbench
