#pragma once

#include "UiToolsExport.h"

#include <QtCore/QPoint>
#include <QtCore/QRect>

#include <string>

namespace Zorvane {

/**
 * The preview window beside a file dialog, implemented by the application and shared with the
 * dialog. All calls come on the GUI thread; those other than `showFile` and `setVisible` between
 * the start and the end of one dialog run.
 *
 * The window should not take the focus, which belongs to the dialog, and should read files in the
 * background: a call of `showFile` holds up the dialog until it returns.
 */
class ZORVANE_UITOOLS_EXPORT PreviewEditorInterface
{
public:
    PreviewEditorInterface() = default;
    PreviewEditorInterface(const PreviewEditorInterface& other) = default;
    PreviewEditorInterface& operator=(const PreviewEditorInterface& other) = default;
    virtual ~PreviewEditorInterface() = default;

    /** Creates the window, hidden, on a screen of `QGuiApplication::screens()`; -1: the first. */
    virtual void initialize(int screen) = 0;
    /** The screen that the window lives on, by its index; -1: the first. */
    virtual int getScreenNumber() const = 0;
    /** The window's outer rectangle. Its size decides the layout; its height is the dialog's. */
    virtual QRect getGeometry() const = 0;
    virtual void setVisible(bool visible) = 0;
    /** Moves the window's outer top-left corner. */
    virtual void moveTo(const QPoint& topLeft) = 0;
    virtual bool isInitialized() const = 0;
    /** Not called by dialogs; implementations may leave it empty. */
    virtual void reserved() = 0;
    /** Shows the file of this path in UTF-8; an empty one clears the window. */
    virtual void showFile(const std::string& path) = 0;
};

} // namespace Zorvane
