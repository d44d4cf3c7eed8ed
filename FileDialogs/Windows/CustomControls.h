#pragma once

#include <windows.h>

#include <shobjidl.h>

namespace Zorvane {

class FileDialogConfiguration;

/**
 * Adds the configuration's controls to a dialog, one after another. Ends with the first call that
 * fails, with the controls before that in the dialog.
 */
HRESULT addCustomControls(IFileDialogCustomize* dialog,
                          const FileDialogConfiguration& configuration);

} // namespace Zorvane
