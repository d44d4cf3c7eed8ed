#pragma once

#include "Actions/ZVGlobalActions.h"
#include "Actions/ZVMainActions.h"
#include "Workbench/Commands/CommandTable.h"
#include "Workbench/Commands/MainActionsScope.h"
#include "Workbench/Commands/WorkbenchActions.h"

#include <QtCore/QObject>
#include <QtWidgets/QAction>

#include <map>

QT_BEGIN_NAMESPACE
class QMainWindow;
class QMenu;
class QToolBar;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

/**
 * Puts the commands of the window's mode, and no others, into its menus and tool bars and on the
 * window, so that each shortcut means one of them. The window must outlive it.
 *
 * Not supported: several windows at once; the suite's tables have one action for each command.
 */
class WindowCommands : public QObject
{
    Q_OBJECT

public:
    explicit WindowCommands(QMainWindow& window);

    QAction* operator[](ZVMainActions::Actions id) const { return main()[id]; }
    QAction* operator[](ZVGlobalActions::Actions id) const;
    QAction* operator[](WorkbenchActions::Actions id) const { return m_own[id]; }
    /** For a pair of a table's id and what to do; ends with `context`. */
    template <typename Id, typename Context, typename Operation>
    void on(Id id, const Context* context, Operation operation) const
    {
        connect((*this)[id], &QAction::triggered, context, operation);
    }

    ZVMainActions& main() const { return *ZVMainActions::getInstance(); }

    WindowMode mode() const { return m_mode; }
    /** Changes menus, tool bars and shortcuts; all but the actions of other modes stays. */
    void setMode(WindowMode mode);
    /** Null for separators and menus. */
    QAction* actionOf(const Command& command) const;
    /** One of the menus that the window fills. */
    QMenu& subMenu(CommandSubMenu id) const { return *m_subMenus.at(id); }

Q_SIGNALS:
    void modeChanged();

private:
    void createMenus();
    void createToolBars();
    void fill();
    void empty();

    MainActionsScope m_scope;
    QMainWindow& m_window;
    WorkbenchActions m_own;
    WindowMode m_mode = WindowMode::Forming;
    std::map<CommandMenu, QMenu*> m_menus;
    std::map<CommandBar, QToolBar*> m_bars;
    std::map<CommandSubMenu, QMenu*> m_subMenus;
};

} // namespace Zorvane::Workbench
