#pragma once

#include <QtCore/QObject>
#include <QtCore/QPersistentModelIndex>

QT_BEGIN_NAMESPACE
class QTreeView;
QT_END_NAMESPACE

namespace Zorvane {
class ZVTreeViewModel;
}

namespace Zorvane::Workbench {

/**
 * Keeps the first visible row of a tree view where it is while rows come, go and move around it.
 * It remembers by itself just before the model publishes; `restore` belongs behind whatever
 * expands the new rows. View and model must outlive it.
 */
class ScrollKeeper : public QObject
{
    Q_OBJECT

public:
    ScrollKeeper(QTreeView* view, ZVTreeViewModel* model, QObject* parent = nullptr);

    void restore();

private:
    void remember();

    QTreeView* m_view;
    ZVTreeViewModel* m_model;
    QPersistentModelIndex m_first;
    int m_top = 0;
};

} // namespace Zorvane::Workbench
