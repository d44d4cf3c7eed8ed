#pragma once

#include "Host/HostExport.h"

#include <QtWidgets/QWidget>

namespace Zorvane {

/** Base of the application's views: the widget that shows one aspect of a design. */
class ZORVANE_HOST_EXPORT BaseView : public QWidget
{
    Q_OBJECT

public:
    explicit BaseView(QWidget* parent = nullptr);
    ~BaseView() override;
};

} // namespace Zorvane
