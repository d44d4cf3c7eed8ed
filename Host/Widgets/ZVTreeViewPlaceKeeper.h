#pragma once

#include "Host/HostExport.h"

#include <QtCore/QObject>
#include <QtCore/QPersistentModelIndex>
#include <QtCore/QPointer>
#include <QtWidgets/QTreeView>

#include <vector>

namespace Zorvane {

class ZVTreeViewModel;

/**
 * Keeps a user's place in a tree view while its `ZVTreeViewModel` is refreshed: the
 * first visible row stays the first visible one at the same height, as long as it exists, else the
 * next one that does; and when the current row goes, its neighbour becomes current (the next row,
 * else the one before, else the parent) and selected if it was the only one selected. Expansion
 * and selection of rows that stay need no help.
 *
 * The view may show the model through any chain of proxy models. The keeper is owned by the view
 * and follows it when it is given another model. One keeper a view.
 *
 * Not supported: views of models that are not made of a `ZVTreeViewModel` (nothing happens then);
 * a current row that stays in the model while a proxy comes to filter it out (which row is current
 * afterwards is the view's choice, and it is not selected).
 */
class ZORVANE_HOST_EXPORT ZVTreeViewPlaceKeeper : public QObject
{
    Q_OBJECT

public:
    explicit ZVTreeViewPlaceKeeper(QTreeView* view);

private:
    struct VisibleRow
    {
        QPersistentModelIndex index;
        int top;
    };

    bool eventFilter(QObject* watched, QEvent* event) override;
    void follow();
    void remember();
    void restore();
    void leaveGoingRow();
    bool isLeaving(const QModelIndex& index) const;
    QModelIndex neighbourOf(const QModelIndex& index) const;
    void restoreFirstVisibleRow();

    QTreeView* const m_view;
    QPointer<ZVTreeViewModel> m_model;
    std::vector<VisibleRow> m_visibleRows;
};

} // namespace Zorvane
