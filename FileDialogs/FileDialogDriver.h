#pragma once

#include "FileDialogs/FileDialogRequest.h"
#include "UiToolsExport.h"

#include <functional>
#include <memory>

namespace Zorvane {

/**
 * Shows file dialogs: the system's, Qt's, or a test's. `run` returns when the dialog is closed. A
 * failure leaves nothing on screen and makes the caller ask by Qt's dialog instead.
 */
class ZORVANE_UITOOLS_EXPORT FileDialogDriver
{
public:
    FileDialogDriver();
    virtual ~FileDialogDriver();

    FileDialogDriver(const FileDialogDriver&) = delete;
    FileDialogDriver& operator=(const FileDialogDriver&) = delete;

    virtual FileDialogResult run(const FileDialogRequest& request) = 0;
};

using FileDialogDriverFactory = std::function<std::unique_ptr<FileDialogDriver>()>;

/**
 * The driver of the system's dialog: the platform's, or that of the innermost live
 * `NativeFileDialogReplacement`. Null where the system has no such dialog. Asked for every dialog.
 */
ZORVANE_UITOOLS_EXPORT std::unique_ptr<FileDialogDriver> createNativeFileDialogDriver();

/** The platform's driver, null for none; each platform folder defines it. */
std::unique_ptr<FileDialogDriver> createPlatformFileDialogDriver();

/** As long as it lives, `factory` makes the drivers of the system's dialog. */
class ZORVANE_UITOOLS_EXPORT NativeFileDialogReplacement
{
public:
    explicit NativeFileDialogReplacement(FileDialogDriverFactory factory);
    ~NativeFileDialogReplacement();

    NativeFileDialogReplacement(const NativeFileDialogReplacement&) = delete;
    NativeFileDialogReplacement& operator=(const NativeFileDialogReplacement&) = delete;

private:
    FileDialogDriverFactory m_previous;
};

/**
 * Asks by the dialog that serves here and now: the system's, or Qt's where there is none, where it
 * failed, for folders, and with the command-line option "alternativeFileDialog".
 */
FileDialogResult runFileDialog(const FileDialogRequest& request);

} // namespace Zorvane
