#include "Workbench/Undo/EditCommand.h"

#include "Workbench/Design/DesignSession.h"

#include <utility>

namespace Zorvane::Workbench {

namespace {

constexpr int s_notMerged = -1;
constexpr int s_quantityId = 1;

} // namespace

EditCommand::EditCommand(DesignSession& session, DesignEdit edit)
    : m_session(session)
    , m_edit(std::move(edit))
{
    setText(describe());
}

QString EditCommand::describe() const
{
    if (const auto* name = std::get_if<NameEdit>(&m_edit))
        return tr("Rename %1").arg(name->before);
    if (const auto* value = std::get_if<QuantityEdit>(&m_edit))
        return tr("Change %1 of %2")
            .arg(quantityName(value->quantity), m_session.name(value->object));
    if (const auto* addition = std::get_if<AdditionEdit>(&m_edit))
        return tr("Add %1").arg(m_session.name(addition->objects.front()));
    const auto& removal = std::get<RemovalEdit>(m_edit).objects;
    return tr("Remove %1")
        .arg(removal.files.empty() ? removal.parts.front().second.name
                                   : removal.files.front().second.name);
}

void EditCommand::undo()
{
    setObsolete(!apply(false));
}

void EditCommand::redo()
{
    // The stack makes the change when it takes the command; it is made by then.
    if (!std::exchange(m_isMade, false))
        setObsolete(!apply(true));
}

int EditCommand::id() const
{
    return std::holds_alternative<QuantityEdit>(m_edit) ? s_quantityId : s_notMerged;
}

bool EditCommand::isRemovalOf(const TakenObjects& objects) const
{
    const auto* removal = std::get_if<RemovalEdit>(&m_edit);
    return removal && removal->objects.ids() == objects.ids();
}

bool EditCommand::mergeWith(const QUndoCommand* other)
{
    auto* mine = std::get_if<QuantityEdit>(&m_edit);
    const auto* later = std::get_if<QuantityEdit>(&static_cast<const EditCommand*>(other)->m_edit);
    if (mine->object != later->object || mine->quantity != later->quantity)
        return false;
    mine->after = later->after;
    setObsolete(mine->after == mine->before);
    return true;
}

bool EditCommand::apply(bool forward)
{
    if (const auto* name = std::get_if<NameEdit>(&m_edit))
        return m_session.rename(name->object, forward ? name->after : name->before).isEmpty();
    if (const auto* value = std::get_if<QuantityEdit>(&m_edit))
        return m_session
            .setQuantity(value->object, value->quantity, forward ? value->after : value->before)
            .isEmpty();
    if (const auto* addition = std::get_if<AdditionEdit>(&m_edit)) {
        if (forward)
            return m_session.putBack(m_taken);
        m_taken = m_session.take(addition->design, addition->objects);
        return !m_taken.isEmpty();
    }
    const TakenObjects& removed = std::get<RemovalEdit>(m_edit).objects;
    return forward ? !m_session.take(removed.design, removed.ids()).isEmpty()
                   : m_session.putBack(removed);
}

} // namespace Zorvane::Workbench
