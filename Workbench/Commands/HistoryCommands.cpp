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
    connect(&history, &EditHistory::changed, this, &HistoryCommands::show);
    show();
}

void HistoryCommands::show()
{
    QAction* const undo = m_commands[ZVMainActions::Undo];
    undo->setEnabled(m_history.canUndo());
    undo->setText(m_history.canUndo() ? naming(tr("&Undo: %1"), m_history.undoText())
                                      : tr("&Undo"));
    QAction* const redo = m_commands[ZVMainActions::Redo];
    redo->setEnabled(m_history.canRedo());
    redo->setText(m_history.canRedo() ? naming(tr("Re&do: %1"), m_history.redoText())
                                      : tr("Re&do"));
}

} // namespace Zorvane::Workbench
