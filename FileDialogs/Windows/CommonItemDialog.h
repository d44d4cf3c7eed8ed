#pragma once

#include "FileDialogs/NativeFileDialog.h"
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
    /** All are used as long as this lives; the thread is in an apartment already. */
    CommonItemDialog(const ShellFunctions& shell, const WindowEventFunctions& windowEvents,
                     const NativeFileDialogRequest& request);

    /** Throws what the configuration or its handler has thrown, once the dialog is closed. */
    HRESULT open(QStringList& paths) const;
    HRESULT save(QStringList& paths) const;

private:
    HRESULT prepare(IFileDialog* dialog, DWORD moreOptions, AdvisedEvents& presetEvents,
                    DialogGuard& guard) const;
    HRESULT setOptions(IFileDialog* dialog, DWORD moreOptions) const;
    HRESULT setFileTypes(IFileDialog* dialog) const;
    void setFolder(IFileDialog* dialog) const;
    HRESULT presetFile(IFileDialog* dialog, AdvisedEvents& presetEvents, DialogGuard& guard) const;
    void addPlaces(IFileDialog* dialog) const;
    HRESULT attachConfiguration(IFileDialog* dialog, AdvisedEvents& events,
                                DialogGuard& guard) const;
    HRESULT show(IFileDialog* dialog, FileDialogConfiguration& configuration,
                 DialogGuard& guard) const;
    HRESULT createItem(const QString& path, IShellItem** item) const;

    const ShellFunctions& m_shell;
    const WindowEventFunctions& m_windowEvents;
    const NativeFileDialogRequest& m_request;
};

} // namespace Zorvane
