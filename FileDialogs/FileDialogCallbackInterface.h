#pragma once

#include "UiToolsExport.h"

#include <QtCore/QRect>

namespace Zorvane {

class FileDialogConfiguration;

/**
 * What an event handler can do to the open dialog. Implemented by whatever shows the dialog, and
 * valid only for the duration of the handler's call: handlers keep no reference.
 */
class ZORVANE_UITOOLS_EXPORT FileDialogCallbackInterface
{
public:
    FileDialogCallbackInterface() = default;
    FileDialogCallbackInterface(const FileDialogCallbackInterface& other) = default;
    FileDialogCallbackInterface& operator=(const FileDialogCallbackInterface& other) = default;
    virtual ~FileDialogCallbackInterface() = default;

    /** Sets the flags (`FileDialogConfiguration::ControlState`) of a custom control; an unknown
     * identifier changes nothing. */
    virtual void setControlState(int controlId, int state) const = 0;
    /**
     * Moves and sizes the dialog's window by the configuration's geometry, 5 ms later or as soon
     * as the window is visible. The configuration must live until the dialog is closed; a null
     * one moves nothing.
     */
    virtual void placeDialog(FileDialogConfiguration* configuration) const = 0;
    /**
     * The outer rectangle of the dialog's window, in Qt's pixels, which are larger than the
     * screen's where it is scaled; null if there is none.
     */
    virtual QRect getDialogGeometry() const = 0;
};

} // namespace Zorvane
