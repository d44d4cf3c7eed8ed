#pragma once

#include <QtCore/QObject>

QT_BEGIN_NAMESPACE
class QTreeView;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

/** Lets the columns of a view grow and shrink with its font, so that texts stay as readable. */
class ScaledColumns : public QObject
{
    Q_OBJECT

public:
    /** Belongs to the view. */
    explicit ScaledColumns(QTreeView* view);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void scale();
    int digitWidth() const;

    QTreeView* m_view;
    int m_digitWidth;
};

} // namespace Zorvane::Workbench
