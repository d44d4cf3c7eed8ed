#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <windows.h>

#include <shobjidl.h>

namespace Zorvane {

/** The text in the file name box. */
QString fileNameText(IFileDialog* dialog);

/** Paths of what is selected now, as far as it has paths; empty with nothing selected. */
QStringList selectedPaths(IFileDialog* dialog);

/** Appends the path of a chosen item; fails where it has none. */
HRESULT appendPath(IShellItem* item, QStringList& paths);

/** Appends the paths of all items. */
HRESULT appendPaths(IShellItemArray* items, QStringList& paths);

} // namespace Zorvane
