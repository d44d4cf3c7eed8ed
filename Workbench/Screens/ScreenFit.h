#pragma once

#include <QtCore/QSize>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

/** What a new window of that size may have of its screen, where the frame has its place as well. */
QSize fittedToScreen(const QWidget& window, const QSize& wanted);

} // namespace Zorvane::Workbench
