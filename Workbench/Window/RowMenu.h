#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>

QT_BEGIN_NAMESPACE
class QAction;
class QPoint;
class QTreeView;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

/**
 * The menu of what can be done with a row: the mouse opens it at the row under it, which the click
 * has made the current one, the keyboard at the current row, which comes into sight for it.
 */
class RowMenu : public QObject
{
    Q_OBJECT

public:
    /** Belongs to the view; the actions must live as long. */
    RowMenu(QTreeView* view, QList<QAction*> actions);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void openAtCurrentRow();
    /** In the viewport. */
    void open(const QPoint& place);

    QTreeView* m_view;
    const QList<QAction*> m_actions;
};

} // namespace Zorvane::Workbench
