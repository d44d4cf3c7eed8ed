#include "Host/Widgets/ZVTreeViewPlaceKeeper.h"

#include "Host/Widgets/ZVTreeViewModel.h"

#include <QtCore/QAbstractProxyModel>
#include <QtCore/QEvent>
#include <QtCore/QItemSelectionModel>
#include <QtWidgets/QScrollBar>

#include <algorithm>

namespace Zorvane {

namespace {

ZVTreeViewModel* sourceOf(QAbstractItemModel* model)
{
    while (auto* proxy = qobject_cast<QAbstractProxyModel*>(model))
        model = proxy->sourceModel();
    return qobject_cast<ZVTreeViewModel*>(model);
}

QModelIndex sourceIndexOf(QModelIndex index)
{
    while (const auto* proxy = qobject_cast<const QAbstractProxyModel*>(index.model()))
        index = proxy->mapToSource(index);
    return index;
}

} // namespace

ZVTreeViewPlaceKeeper::ZVTreeViewPlaceKeeper(QTreeView* view)
    : QObject(view)
    , m_view(view)
{
    // A view has no signal for a new model; it repaints its viewport for one, though.
    m_view->viewport()->installEventFilter(this);
    follow();
}

bool ZVTreeViewPlaceKeeper::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Paint)
        follow();
    return QObject::eventFilter(watched, event);
}

void ZVTreeViewPlaceKeeper::follow()
{
    ZVTreeViewModel* model = sourceOf(m_view->model());
    if (model == m_model)
        return;
    if (m_model)
        m_model->disconnect(this);
    m_model = model;
    m_visibleRows.clear();
    if (!m_model)
        return;
    connect(m_model, &ZVTreeViewModel::aboutToPublish, this, &ZVTreeViewPlaceKeeper::remember);
    connect(m_model, &ZVTreeViewModel::published, this, &ZVTreeViewPlaceKeeper::restore);
}

void ZVTreeViewPlaceKeeper::remember()
{
    m_visibleRows.clear();
    if (sourceOf(m_view->model()) != m_model)
        return;
    const int height = m_view->viewport()->height();
    for (QModelIndex index = m_view->indexAt(QPoint(0, 0)); index.isValid();
         index = m_view->indexBelow(index)) {
        const int top = m_view->visualRect(index).top();
        if (top >= height)
            break;
        m_visibleRows.push_back({index, top});
    }
    leaveGoingRow();
}

void ZVTreeViewPlaceKeeper::restore()
{
    restoreFirstVisibleRow();
    m_visibleRows.clear();
}

bool ZVTreeViewPlaceKeeper::isLeaving(const QModelIndex& index) const
{
    return m_model->isLeaving(sourceIndexOf(index));
}

QModelIndex ZVTreeViewPlaceKeeper::neighbourOf(const QModelIndex& index) const
{
    QModelIndex going = index;
    while (going.parent().isValid() && isLeaving(going.parent()))
        going = going.parent();
    const QAbstractItemModel& model = *going.model();
    const QModelIndex parent = going.parent();
    for (int row = going.row() + 1; row < model.rowCount(parent); ++row) {
        if (const QModelIndex next = model.index(row, index.column(), parent); !isLeaving(next))
            return next;
    }
    for (int row = going.row() - 1; row >= 0; --row) {
        if (const QModelIndex before = model.index(row, index.column(), parent); !isLeaving(before))
            return before;
    }
    return parent;
}

void ZVTreeViewPlaceKeeper::leaveGoingRow()
{
    const QModelIndex current = m_view->currentIndex();
    if (!current.isValid() || !isLeaving(current))
        return;
    QItemSelectionModel& selection = *m_view->selectionModel();
    const QModelIndexList rows = selection.selectedRows();
    const bool onlyOne = rows.size() == 1 && selection.isSelected(current);
    const QItemSelectionModel::SelectionFlags select =
        QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
    // Moving the current row must not move the view: it is kept in place further on.
    const bool autoScroll = m_view->hasAutoScroll();
    m_view->setAutoScroll(false);
    selection.setCurrentIndex(neighbourOf(current),
                              onlyOne ? select : QItemSelectionModel::NoUpdate);
    m_view->setAutoScroll(autoScroll);
}

void ZVTreeViewPlaceKeeper::restoreFirstVisibleRow()
{
    const auto kept = std::find_if(m_visibleRows.begin(), m_visibleRows.end(),
                                   [](const VisibleRow& row) { return row.index.isValid(); });
    if (kept == m_visibleRows.end() || m_view->visualRect(kept->index).top() == kept->top)
        return;
    QScrollBar& bar = *m_view->verticalScrollBar();
    // Asks the view to lay out its rows first; what it puts off counts in neither unit else.
    m_view->scrollTo(kept->index, QAbstractItemView::PositionAtTop);
    if (m_view->verticalScrollMode() == QAbstractItemView::ScrollPerPixel)
        bar.setValue(bar.value() + m_view->visualRect(kept->index).top() - kept->top);
    else
        bar.setValue(bar.value() - static_cast<int>(kept - m_visibleRows.begin()));
}

} // namespace Zorvane
