#include "Workbench/Commands/HistoryCommands.h"

#include "Workbench/Commands/WindowCommands.h"
#include "Workbench/Texts/MenuText.h"
#include "Workbench/Undo/EditHistory.h"

namespace Zorvane::Workbench {

HistoryCommands::HistoryCommands(WindowCommands& commands, EditHistory& history)
    : QObject(&commands)
    , m_commands(commands)
    , m_history(history)
{
    commands.on(ZVMainActions::Undo, &history, &EditHistory::undo);
    commands.on(ZVMainActions::Redo, &history, &EditHistory::redo);
    connect(&history, &EditHistory::changed, this, &HistoryCommands::show);
    show();
}

void HistoryCommands::show()
{
    QAction* const undo = m_commands[ZVMainActions::Undo];
    undo->setEnabled(m_history.canUndo());
    undo->setText(m_history.canUndo() ? tr("&Undo: %1").arg(menuText(m_history.undoText()))
                                      : tr("&Undo"));
    QAction* const redo = m_commands[ZVMainActions::Redo];
    redo->setEnabled(m_history.canRedo());
    redo->setText(m_history.canRedo() ? tr("Re&do: %1").arg(menuText(m_history.redoText()))
                                      : tr("Re&do"));
}

} // namespace Zorvane::Workbench
