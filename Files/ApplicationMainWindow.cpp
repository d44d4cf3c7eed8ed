#include "Files/ApplicationMainWindow.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QVariant>
#include <QtWidgets/QWidget>

namespace Zorvane {

QWidget* applicationMainWindow()
{
    const QCoreApplication* application = QCoreApplication::instance();
    if (!application)
        return nullptr;
    return qobject_cast<QWidget*>(application->property("MainWindow").value<QObject*>());
}

} // namespace Zorvane
