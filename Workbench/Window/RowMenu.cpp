#include "Workbench/Window/RowMenu.h"

#include <QtGui/QContextMenuEvent>
#include <QtWidgets/QMenu>
#include <QtWidgets/QTreeView>

#include <utility>

namespace Zorvane::Workbench {

RowMenu::RowMenu(QTreeView* view, QList<QAction*> actions)
    : QObject(view)
    , m_view(view)
    , m_actions(std::move(actions))
{
    // A key's request comes to the view, one by the mouse to what it points at.
    view->installEventFilter(this);
    view->viewport()->installEventFilter(this);
}

bool RowMenu::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ContextMenu)
        return QObject::eventFilter(watched, event);
    const auto* const request = static_cast<const QContextMenuEvent*>(event);
    if (request->reason() == QContextMenuEvent::Keyboard)
        openAtCurrentRow();
    // What the header leaves to the view is about no row.
    else if (watched == m_view->viewport() && m_view->indexAt(request->pos()).isValid())
        open(request->pos());
    return true;
}

void RowMenu::openAtCurrentRow()
{
    const QModelIndex current = m_view->currentIndex();
    if (!current.isValid())
        return;
    m_view->scrollTo(current);
    const QRect cell = m_view->visualRect(current) & m_view->viewport()->rect();
    open(cell.bottomLeft());
}

void RowMenu::open(const QPoint& place)
{
    auto* const menu = new QMenu(m_view);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addActions(m_actions);
    menu->popup(m_view->viewport()->mapToGlobal(place));
}

} // namespace Zorvane::Workbench
