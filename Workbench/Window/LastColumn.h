#pragma once

#include <QtCore/QObject>
#include <QtCore/QTimer>

QT_BEGIN_NAMESPACE
class QHeaderView;
class QTreeView;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

/**
 * Lets the last column of a view take what the others leave, but never less than its texts in
 * sight, up to some width: by itself Qt leaves it next to nothing in a narrow window.
 */
class LastColumn : public QObject
{
    Q_OBJECT

public:
    /** Belongs to the view, which has its model already. */
    explicit LastColumn(QTreeView* view);

    /** To be called when texts may have become longer; all else is noticed. */
    void fit();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int neededWidth(int last) const;

    QTreeView* m_view;
    QHeaderView* m_header;
    QTimer m_soon;
    bool m_isFitting = false;
};

} // namespace Zorvane::Workbench
