#pragma once

#include <memory>

#include <windows.h>

namespace Zorvane {

class DialogGuard;
class FileDialogConfiguration;

/**
 * In some milliseconds, or else as soon as the window is visible, moves and sizes it by the
 * configuration, which must live as long as the dialog's guard. A window that goes before is
 * forgotten. What the configuration throws goes to the guard.
 */
void placeWindowSoon(HWND window, FileDialogConfiguration* configuration,
                     const std::weak_ptr<DialogGuard>& guard);

} // namespace Zorvane
