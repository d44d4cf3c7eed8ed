#include "Workbench/Window/WorkbenchStyle.h"

#include "Host/ApplicationWidgets/SvgIcon.h"

namespace Zorvane::Workbench {

WorkbenchStyle::WorkbenchStyle()
    : QProxyStyle(QStringLiteral("Fusion"))
{}

QIcon WorkbenchStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                   const QWidget* widget) const
{
    switch (icon) {
    case SP_ToolBarHorizontalExtensionButton:
        return createSvgIcon(QStringLiteral(":/workbench/more.svg"));
    case SP_ToolBarVerticalExtensionButton:
        return createSvgIcon(QStringLiteral(":/workbench/more-below.svg"));
    default:
        return QProxyStyle::standardIcon(icon, option, widget);
    }
}

} // namespace Zorvane::Workbench
