#pragma once

#include "UiToolsExport.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace Zorvane {

/** The names in a dialog's file name box: `"a b.stl" "c.stl"`, or a single one without quotes. */
ZORVANE_UITOOLS_EXPORT QStringList namesInFileNameBox(const QString& text);

/**
 * `paths` in the order in which their names stand in the file name box; a name that stands there
 * twice counts at its later place. Paths whose names are not in the box follow in their own order.
 */
ZORVANE_UITOOLS_EXPORT QStringList inOrderOfFileNameBox(const QStringList& paths,
                                                        const QString& text);

} // namespace Zorvane
