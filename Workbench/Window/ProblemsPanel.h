#pragma once

#include "Workbench/Texts/Problem.h"

#include <QtWidgets/QWidget>

QT_BEGIN_NAMESPACE
class QLabel;
class QTreeWidget;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

/** What is wrong with files that are open, one a row: file, place, reason. */
class ProblemsPanel : public QWidget
{
    Q_OBJECT

public:
    explicit ProblemsPanel(QWidget* parent = nullptr);

    void show(const Problems& problems);
    const Problems& problems() const { return m_problems; }
    /** High enough for the problems, six of them at most. */
    QSize sizeHint() const override;

Q_SIGNALS:
    /** The user wants to get to what the problem is about. */
    void activated(const Zorvane::Workbench::Problem& problem);

private:
    void activateRow(int row);
    void copyCurrent() const;

    QLabel* m_title;
    QTreeWidget* m_list;
    Problems m_problems;
};

} // namespace Zorvane::Workbench
