#pragma once

#include "Host/HostExport.h"

#include <QtGui/QIcon>

#include <memory>

namespace Zorvane {

/**
 * Makes icons from SVG files, mostly of the resources. A suite with icons of its own derives from
 * it and registers that; icons that were made before stay as they are.
 */
class ZORVANE_HOST_EXPORT IconFactory
{
public:
    IconFactory();
    IconFactory(const IconFactory&);
    IconFactory& operator=(const IconFactory&);
    virtual ~IconFactory();

    /** Returns the instance before, which it replaces. Null stands for our own. */
    static std::shared_ptr<IconFactory> registerInstance(std::shared_ptr<IconFactory> instance);

    /** What `createSvgIcon` returns. */
    virtual QIcon createIcon(const QString& path) const;
    /** What `createTwoSizeSvgIcon` returns. */
    virtual QIcon createTwoSizeIcon(const QString& path) const;
};

/**
 * An icon of the registered factory. Ours reads the file when the icon is first painted, so that
 * an action that is never shown costs nothing. `currentColor` in a drawing becomes the text colour
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
