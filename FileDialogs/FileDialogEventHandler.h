#pragma once

#include "UiToolsExport.h"

#include <QtCore/QRect>
#include <QtCore/QStringList>

namespace Zorvane {

class FileDialogCallbackInterface;
class FileDialogConfiguration;

/**
 * Is notified of what the user does in a dialog. Set it on the dialog's configuration
 * (`FileDialogConfiguration::setEventHandler`), which does not own it; it must outlive the dialog.
 * Calls come on the GUI thread, from inside the dialog's event loop. Here every operation does
 * nothing; subclasses override what they need.
 */
class ZORVANE_UITOOLS_EXPORT FileDialogEventHandler
{
public:
    FileDialogEventHandler() = default;
    FileDialogEventHandler(const FileDialogEventHandler& other) = default;
    FileDialogEventHandler& operator=(const FileDialogEventHandler& other) = default;
    virtual ~FileDialogEventHandler() = default;

    /** The outer rectangle of a window shown beside the dialog; a null one stands for none. */
    virtual QRect getPreviewerSize() { return {}; }
    /** The files and folders selected now, in the order of the names in the file name box. */
    virtual void onSelectionChanged(const QStringList& /*selectedFiles*/,
                                    const FileDialogCallbackInterface& /*callbacks*/)
    {}
    virtual void onCheckBoxToggled(bool /*checked*/, int /*controlId*/,
                                   const FileDialogCallbackInterface& /*callbacks*/)
    {}
    /** The place of the item in the combo box's content, from 0. */
    virtual void onItemSelected(int /*controlId*/, int /*itemIndex*/) {}
    /** The file type changed; the first call comes while the dialog opens. */
    virtual void onTypeChanged(const FileDialogCallbackInterface& /*callbacks*/) {}

    /** The configuration that the handler serves, not owned; null until it is set. */
    void setFileDialogConfiguration(FileDialogConfiguration* configuration)
    {
        m_configuration = configuration;
    }

protected:
    FileDialogConfiguration* m_configuration = nullptr;
};

} // namespace Zorvane
