#include "Workbench/Undo/EditHistory.h"

#include "Workbench/Design/DesignSession.h"
#include "Workbench/Undo/EditCommand.h"

#include <QtCore/QScopedValueRollback>

#include <algorithm>

namespace Zorvane::Workbench {

EditHistory::EditHistory(DesignSession& session, QObject* parent)
    : QObject(parent)
    , m_session(session)
{
    m_stack.setUndoLimit(mostEdits);
    connect(&session, &DesignSession::edited, this, &EditHistory::note);
    connect(&session, &DesignSession::reread, &m_stack, &QUndoStack::clear);
}

EditHistory::~EditHistory()
{
    // The stack empties itself aloud, and its listeners may be half gone by then.
    m_stack.blockSignals(true);
}

void EditHistory::undo()
{
    const QScopedValueRollback<bool> replaying(m_isReplaying, true);
    m_stack.undo();
}

void EditHistory::redo()
{
    const QScopedValueRollback<bool> replaying(m_isReplaying, true);
    m_stack.redo();
}

void EditHistory::putBack(const TakenObjects& taken)
{
    const std::vector<GUIdentifier> ids = taken.ids();
    const auto isBack = [this](const GUIdentifier& id) { return m_session.findDesign(id); };
    if (std::any_of(ids.begin(), ids.end(), isBack) || ids.empty())
        return;
    const auto* last = static_cast<const EditCommand*>(m_stack.command(m_stack.index() - 1));
    if (last && last->isRemovalOf(taken))
        undo();
    else
        m_session.putBack(taken);
}

void EditHistory::note(const DesignEdit& edit)
{
    if (!m_isReplaying)
        m_stack.push(new EditCommand(m_session, edit));
}

} // namespace Zorvane::Workbench
