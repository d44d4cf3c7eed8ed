#pragma once

class QWidget;

namespace Zorvane {

/** The application's property "MainWindow"; null if it is missing or no widget. */
QWidget* applicationMainWindow();

} // namespace Zorvane
