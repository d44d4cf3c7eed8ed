#include "Host/ApplicationWidgets/SvgIcon.h"

#include "Host/ApplicationWidgets/SvgIconEngine.h"

namespace Zorvane {

QIcon createSvgIcon(const QString& path)
{
    return path.isEmpty() ? QIcon() : QIcon(new SvgIconEngine(path, SvgIconEngine::OneDrawing));
}

QIcon createTwoSizeSvgIcon(const QString& path)
{
    return path.isEmpty() ? QIcon()
                          : QIcon(new SvgIconEngine(path, SvgIconEngine::SmallAndLargeDrawing));
}

} // namespace Zorvane
