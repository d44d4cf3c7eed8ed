#pragma once

#include "UiToolsExport.h"

#include <QtCore/QString>

#include <windows.h>

#include <shobjidl.h>

namespace Zorvane {

/**
 * The path as the shell's parsers take it: absolute, without detours, with native separators; they
 * refuse forward slashes. An empty path stays empty.
 * Not supported, by the shell's own limit on most systems: more than 260 characters.
 */
ZORVANE_UITOOLS_EXPORT QString shellPath(const QString& path);

/** UTF-16 with a zero at its end, alive as long as the text. */
ZORVANE_UITOOLS_EXPORT const wchar_t* wide(const QString& text);

/** One of an item's names; empty where it has none of this form. */
ZORVANE_UITOOLS_EXPORT QString nameOfItem(IShellItem* item, SIGDN form);

} // namespace Zorvane
