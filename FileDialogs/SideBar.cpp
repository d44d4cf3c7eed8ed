#include "FileDialogs/SideBar.h"

#include <QtCore/QEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QListView>
#include <QtWidgets/QSplitter>

#include <algorithm>

namespace Zorvane {

void widenSideBar(const QFileDialog& dialog)
{
    auto* const splitter = dialog.findChild<QSplitter*>(QStringLiteral("splitter"));
    const auto* const bar = dialog.findChild<QListView*>(QStringLiteral("sidebar"));
    if (!splitter || !bar)
        return;
    const int wanted = bar->sizeHintForColumn(0) + bar->width() - bar->viewport()->width();
    const int whole = splitter->width() - splitter->handleWidth();
    const int width = std::min(wanted, whole / 3);
    if (width > bar->width())
        splitter->setSizes({width, whole - width});
}

SideBarWidening::SideBarWidening()
{
    qApp->installEventFilter(this);
}

bool SideBarWidening::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show && !event->spontaneous())
        if (const auto* const dialog = qobject_cast<QFileDialog*>(watched))
            widenSideBar(*dialog);
    return QObject::eventFilter(watched, event);
}

} // namespace Zorvane
