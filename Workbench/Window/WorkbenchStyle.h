#pragma once

#include <QtWidgets/QProxyStyle>

namespace Zorvane::Workbench {

/**
 * Qt's style Fusion, with what it draws in black drawn in the colour of texts: the buttons that
 * lead to commands for which a tool bar has no room.
 */
class WorkbenchStyle : public QProxyStyle
{
    Q_OBJECT

public:
    WorkbenchStyle();

    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;
};

} // namespace Zorvane::Workbench
