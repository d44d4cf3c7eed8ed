#pragma once

#include <windows.h>

namespace Zorvane {

class FileDialogConfiguration;

/**
 * In some milliseconds, or else as soon as the window is visible, moves and sizes it by the
 * configuration, which must live as long as the window. A window that goes before is forgotten.
 */
void placeWindowSoon(HWND window, FileDialogConfiguration* configuration);

} // namespace Zorvane
