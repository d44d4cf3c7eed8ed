#pragma once

#include <QtCore/QObject>

namespace Zorvane::Workbench {

class EditHistory;
class WindowCommands;

/** Undo and Redo, which say what they take back or redo. Commands and history must outlive it. */
class HistoryCommands : public QObject
{
    Q_OBJECT

public:
    HistoryCommands(WindowCommands& commands, EditHistory& history);

private:
    void show();

    WindowCommands& m_commands;
    EditHistory& m_history;
};

} // namespace Zorvane::Workbench
