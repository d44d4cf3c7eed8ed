#include "Workbench/Screens/ScreenFit.h"

#include <QtGui/QScreen>
#include <QtWidgets/QStyle>
#include <QtWidgets/QWidget>

namespace Zorvane::Workbench {

QSize fittedToScreen(const QWidget& window, const QSize& wanted)
{
    // The frame that the window is going to get is not known yet.
    const QSize frame(0, window.style()->pixelMetric(QStyle::PM_TitleBarHeight));
    return wanted.boundedTo(window.screen()->availableSize() - frame);
}

} // namespace Zorvane::Workbench
