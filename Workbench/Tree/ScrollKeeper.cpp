#include "Workbench/Tree/ScrollKeeper.h"

#include "Host/Widgets/ZVTreeViewModel.h"

#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTreeView>

namespace Zorvane::Workbench {

ScrollKeeper::ScrollKeeper(QTreeView* view, ZVTreeViewModel* model, QObject* parent)
    : QObject(parent)
    , m_view(view)
    , m_model(model)
{
    connect(model, &ZVTreeViewModel::aboutToPublish, this, &ScrollKeeper::remember);
}

void ScrollKeeper::remember()
{
    QModelIndex index = m_view->indexAt(QPoint(0, 0));
    // A row that goes takes its place with it; the next one that stays holds the view.
    while (index.isValid() && m_model->isLeaving(index))
        index = m_view->indexBelow(index);
    m_first = index;
    m_top = index.isValid() ? m_view->visualRect(index).top() : 0;
}

void ScrollKeeper::restore()
{
    if (!m_first.isValid())
        return;
    m_view->scrollTo(m_first);
    const int now = m_view->visualRect(m_first).top();
    QScrollBar* bar = m_view->verticalScrollBar();
    bar->setValue(bar->value() + now - m_top);
    m_first = QModelIndex();
}

} // namespace Zorvane::Workbench
