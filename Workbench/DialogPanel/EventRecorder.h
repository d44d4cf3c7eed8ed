#pragma once

#include "FileDialogs/FileDialogEventHandler.h"

#include <QtCore/QString>

#include <functional>

namespace Zorvane::Workbench {

class DialogRecord;

/**
 * Writes down the events of a dialog with their arguments, and where the dialog was then. With a
 * configuration set, it places the dialog by that as it opens.
 */
class EventRecorder : public FileDialogEventHandler
{
public:
    using Toggled = std::function<void(bool checked, int controlId,
                                       const FileDialogCallbackInterface& callbacks)>;

    /** Each event is noted behind `prefix`; `toggled`, which may be empty, runs afterwards. */
    explicit EventRecorder(DialogRecord& record, QString prefix = {}, Toggled toggled = {});

    void onSelectionChanged(const QStringList& selectedFiles,
                            const FileDialogCallbackInterface& callbacks) override;
    void onCheckBoxToggled(bool checked, int controlId,
                           const FileDialogCallbackInterface& callbacks) override;
    void onItemSelected(int controlId, int itemIndex) override;
    void onTypeChanged(const FileDialogCallbackInterface& callbacks) override;

private:
    void note(const QString& event, const FileDialogCallbackInterface& callbacks);

    DialogRecord& m_record;
    const QString m_prefix;
    const Toggled m_toggled;
    bool m_isPlaced = false;
};

} // namespace Zorvane::Workbench
