#include "Workbench/Undo/EditCommand.h"

#include "Workbench/Design/DesignSession.h"

#include <utility>

namespace Zorvane::Workbench {

EditCommand::EditCommand(DesignSession& session, DesignEdit edit)
    : m_session(&session)
    , m_edit(std::move(edit))
    , m_text(describe())
    , m_design(designChanged())
{}

QString EditCommand::describe() const
{
    if (const auto* name = std::get_if<NameEdit>(&m_edit))
        return tr("Rename %1").arg(name->before);
    if (const auto* value = std::get_if<QuantityEdit>(&m_edit))
        return tr("Change %1 of %2")
            .arg(quantityName(value->quantity), m_session->name(value->object));
    if (const auto* addition = std::get_if<AdditionEdit>(&m_edit))
        return tr("Add %1").arg(m_session->name(addition->objects.front()));
    const auto& removal = std::get<RemovalEdit>(m_edit).objects;
    return tr("Remove %1")
        .arg(removal.files.empty() ? removal.parts.front().second.name
                                   : removal.files.front().second.name);
}

GUIdentifier EditCommand::designChanged() const
{
    if (const auto* addition = std::get_if<AdditionEdit>(&m_edit))
        return addition->design;
    if (const auto* removal = std::get_if<RemovalEdit>(&m_edit))
        return removal->objects.design;
    const auto* name = std::get_if<NameEdit>(&m_edit);
    const Design* design =
        m_session->findDesign(name ? name->object : std::get<QuantityEdit>(m_edit).object);
    return design == nullptr ? GUIdentifier() : design->id;
}

bool EditCommand::changesFiles() const
{
    return std::holds_alternative<AdditionEdit>(m_edit) ||
           std::holds_alternative<RemovalEdit>(m_edit);
}

bool EditCommand::isRemovalOf(const TakenObjects& objects) const
{
    const auto* removal = std::get_if<RemovalEdit>(&m_edit);
    return removal && removal->objects.ids() == objects.ids();
}

bool EditCommand::mergeWith(const EditCommand& later)
{
    auto* mine = std::get_if<QuantityEdit>(&m_edit);
    const auto* theirs = std::get_if<QuantityEdit>(&later.m_edit);
    if (!mine || !theirs || mine->object != theirs->object || mine->quantity != theirs->quantity)
        return false;
    mine->after = theirs->after;
    return true;
}

bool EditCommand::isNothing() const
{
    const auto* value = std::get_if<QuantityEdit>(&m_edit);
    return value && value->after == value->before;
}

bool EditCommand::apply(bool forward)
{
    if (const auto* name = std::get_if<NameEdit>(&m_edit))
        return m_session->rename(name->object, forward ? name->after : name->before).isEmpty();
    if (const auto* value = std::get_if<QuantityEdit>(&m_edit))
        return m_session
            ->setQuantity(value->object, value->quantity, forward ? value->after : value->before)
            .isEmpty();
    if (const auto* addition = std::get_if<AdditionEdit>(&m_edit)) {
        if (forward)
            return m_session->putBack(m_taken);
        m_taken = m_session->take(addition->design, addition->objects);
        return !m_taken.isEmpty();
    }
    const TakenObjects& removed = std::get<RemovalEdit>(m_edit).objects;
    return forward ? !m_session->take(removed.design, removed.ids()).isEmpty()
                   : m_session->putBack(removed);
}

} // namespace Zorvane::Workbench
