#pragma once

#include <QtCore/QObject>

QT_BEGIN_NAMESPACE
class QSplitter;
class QTreeView;
class QWidget;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

class ProblemsPanel;

/**
 * How the parts of the main window share it: filter and tree on the left, the mesh above its
 * details on the right, problems at the bottom, messages on top. Sizes follow the font.
 */
class WindowLayout : public QObject
{
    Q_OBJECT

public:
    struct Parts
    {
        QWidget* messages;
        QWidget* filter;
        QTreeView* tree;
        QWidget* mesh;
        QWidget* details;
        QWidget* quantities;
        ProblemsPanel* problems;
    };

    /** Fills `central`, which takes the parts over and owns the layout. */
    WindowLayout(const Parts& parts, QWidget* central);

    /** Of a new window, on the screen that it appears on. */
    QSize usualSize() const;
    /** Gives tree, mesh and details their usual shares of a window this large. */
    void divide(const QSize& size);
    /** Shows the problems, if there are any, as high as they are until the user moves that. */
    void fitProblems();

    QByteArray saveState() const;
    void restoreState(const QByteArray& state);

private:
    double digitWidth() const;
    QWidget* createTreeSide();
    QWidget* createMeshSide();

    Parts m_parts;
    QWidget* m_central;
    QSplitter* m_sides;
    QSplitter* m_meshAndDetails;
    QSplitter* m_allAndProblems;
    int m_fittedProblemsHeight = 0;
};

} // namespace Zorvane::Workbench
