#pragma once

#include <QtCore/QObject>

#include <map>

QT_BEGIN_NAMESPACE
class QAction;
class QMenu;
class QToolBar;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

/** The main window's commands: texts, keys and pictures in one table. */
class WindowActions : public QObject
{
    Q_OBJECT

public:
    enum Id
    {
        OpenFiles,
        OpenFolder,
        Import,
        Export,
        Save,
        SaveAs,
        SaveCopy,
        Reload,
        CloseAll,
        Quit,
        Undo,
        Redo,
        Rename,
        Remove,
        Find,
        GoToReference,
        Fit,
        ZoomIn,
        ZoomOut,
        ViewIsometric,
        ViewTop,
        ViewBottom,
        ViewFront,
        ViewBack,
        ViewLeft,
        ViewRight,
        ExpandAll,
        CollapseAll,
        ConvertMeshes,
        StartSimulation,
        StopSimulation,
        StressTree,
        About,
        AboutQt
    };

    explicit WindowActions(QObject* parent);

    QAction* operator[](Id id) const { return m_actions.at(id); }
    void addTo(QMenu& menu, std::initializer_list<Id> ids) const;
    void addTo(QToolBar& toolBar, std::initializer_list<Id> ids) const;

private:
    std::map<Id, QAction*> m_actions;
};

} // namespace Zorvane::Workbench
