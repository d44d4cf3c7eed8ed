#include "Host/Widgets/BaseView.h"

namespace Zorvane {

BaseView::BaseView(QWidget* parent)
    : QWidget(parent)
{}

BaseView::~BaseView() = default;

} // namespace Zorvane
