#pragma once

#include <QtCore/QObject>

QT_BEGIN_NAMESPACE
class QHeaderView;
class QTreeView;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

/**
 * Lets the last column of a view take what the others leave, but never less than its title: by
 * itself Qt leaves it next to nothing in a narrow window. Longer texts are elided by the view.
 */
class LastColumn : public QObject
{
    Q_OBJECT

public:
    /** Belongs to the view, which has its model already. */
    explicit LastColumn(QTreeView* view);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fit();

    QHeaderView* m_header;
    bool m_isFitting = false;
};

} // namespace Zorvane::Workbench
