#pragma once

#include "FileDialogs/FileDialogRequest.h"
#include "FileDialogs/Windows/GeometryHook.h"
#include "Files/Windows/ShellFunctions.h"

#include <windows.h>

#include <shobjidl.h>

namespace Zorvane {

class AdvisedEvents;
class DialogGuard;

/**
 * One run of the system's open or save dialog. Every step that fails ends the run with its result,
 * nothing being left behind, unless the step says otherwise.
 */
class CommonItemDialog
{
public:
    /**
     * All are used as long as this lives; the thread is in an apartment already. `owner` is the
     * window of the request's owner, or null.
     */
    CommonItemDialog(const ShellFunctions& shell, const WindowEventFunctions& windowEvents,
                     const FileDialogRequest& request, HWND owner);

    /** Throws what the configuration or its handler has thrown, once the dialog is closed. */
    HRESULT run(QStringList& paths) const;

private:
    template <typename Dialog>
    HRESULT runBy(const CLSID& dialogClass, QStringList& paths) const;
    HRESULT prepare(IFileDialog* dialog, AdvisedEvents& presetEvents, DialogGuard& guard) const;
    HRESULT setOptions(IFileDialog* dialog) const;
    HRESULT setFileTypes(IFileDialog* dialog) const;
    void setFolder(IFileDialog* dialog, const QString& path) const;
    HRESULT presetFile(IFileDialog* dialog, const QString& name, AdvisedEvents& presetEvents,
                       DialogGuard& guard) const;
    void addPlaces(IFileDialog* dialog) const;
    HRESULT attachConfiguration(IFileDialog* dialog, AdvisedEvents& events,
                                DialogGuard& guard) const;
    HRESULT show(IFileDialog* dialog, DialogGuard& guard) const;
    HRESULT createItem(const QString& path, IShellItem** item) const;

    const ShellFunctions& m_shell;
    const WindowEventFunctions& m_windowEvents;
    const FileDialogRequest& m_request;
    const HWND m_owner;
};

} // namespace Zorvane
