#pragma once

#include "Host/HostExport.h"

#include <QtGui/QIcon>

namespace Zorvane {

/**
 * Icons from SVG files, mostly of the resources. A file is read when the icon is first painted, so
 * that an action nobody looks at costs nothing. `currentColor` in a drawing becomes the text colour
 * of the application's palette, and follows it; a disabled icon fades towards the background.
 *
 * A file that cannot be read leaves the icon empty, with a warning in the log when it is painted.
 * An empty path gives a null icon.
 *
 * Not supported: animation, gradients and style sheets in a drawing's colours, other looks for
 * checked icons, palettes of single widgets.
 */
ZORVANE_HOST_EXPORT QIcon createSvgIcon(const QString& path);

/**
 * The same with a small drawing, `path` and "_16.svg", and a large one, `path` and "_32.svg", which
 * is used from 24 pixels on.
 */
ZORVANE_HOST_EXPORT QIcon createTwoSizeSvgIcon(const QString& path);

} // namespace Zorvane
