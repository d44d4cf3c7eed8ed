#include "Workbench/Commands/HistoryCommands.h"

#include "Workbench/Commands/WindowCommands.h"
#include "Workbench/Undo/EditHistory.h"

namespace Zorvane::Workbench {

namespace {

/** `text` has a place for the edit. */
QString naming(const QString& text, QString edit)
{
    // A name's own "&" marks no key.
    return text.arg(edit.replace(QLatin1Char('&'), QLatin1String("&&")));
}

} // namespace

HistoryCommands::HistoryCommands(WindowCommands& commands, EditHistory& history)
    : QObject(&commands)
    , m_commands(commands)
    , m_history(history)
{
    commands.on(ZVMainActions::Undo, &history, &EditHistory::undo);
    commands.on(ZVMainActions::Redo, &history, &EditHistory::redo);
    connect(&history.stack(), &QUndoStack::indexChanged, this, &HistoryCommands::show);
    show();
}

void HistoryCommands::show()
{
    const QUndoStack& stack = m_history.stack();
    QAction* const undo = m_commands[ZVMainActions::Undo];
    undo->setEnabled(stack.canUndo());
    undo->setText(stack.canUndo() ? naming(tr("&Undo: %1"), stack.undoText()) : tr("&Undo"));
    QAction* const redo = m_commands[ZVMainActions::Redo];
    redo->setEnabled(stack.canRedo());
    redo->setText(stack.canRedo() ? naming(tr("Re&do: %1"), stack.redoText()) : tr("Re&do"));
}

} // namespace Zorvane::Workbench
