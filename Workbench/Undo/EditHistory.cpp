#include "Workbench/Undo/EditHistory.h"

#include "Workbench/Design/DesignSession.h"

#include <QtCore/QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace Zorvane::Workbench {

EditHistory::EditHistory(DesignSession& session, QObject* parent)
    : QObject(parent)
    , m_session(session)
{
    connect(&session, &DesignSession::edited, this, &EditHistory::note);
    connect(&session, &DesignSession::reread, this, &EditHistory::forget);
}

QString EditHistory::undoText() const
{
    return canUndo() ? m_edits[m_made - 1].text() : QString();
}

QString EditHistory::redoText() const
{
    return canRedo() ? m_edits[m_made].text() : QString();
}

void EditHistory::undo()
{
    if (!canUndo() || m_isReplaying)
        return;
    const std::size_t last = m_made - 1;
    if (replay(m_edits[last], &EditCommand::undo))
        m_made = last;
    else
        giveUp(last, tr("\"%1\" cannot be undone: %2"));
    Q_EMIT changed();
}

void EditHistory::redo()
{
    if (!canRedo() || m_isReplaying)
        return;
    if (replay(m_edits[m_made], &EditCommand::redo))
        ++m_made;
    else
        giveUp(m_made, tr("\"%1\" cannot be redone: %2"));
    Q_EMIT changed();
}

bool EditHistory::replay(EditCommand& edit, bool (EditCommand::*operation)())
{
    const QScopedValueRollback<bool> replaying(m_isReplaying, true);
    return (edit.*operation)();
}

/** The text has places for the edit and for the reason. */
void EditHistory::giveUp(std::size_t place, const QString& text)
{
    const QString edit = m_edits[place].text();
    const GUIdentifier design = m_edits[place].design();
    dropIf([&design](const EditCommand& each) { return each.design() == design; });
    const QString name = m_session.name(design);
    const QString reason =
        name.isEmpty() ? tr("the design is no longer open.")
                       : tr("%1 has been changed by another program meanwhile. It stays as it is, "
                            "and what was done to it before can no longer be undone or redone.")
                             .arg(name);
    Q_EMIT refused(text.arg(edit, reason));
}

void EditHistory::putBack(const TakenObjects& taken)
{
    const std::vector<GUIdentifier> ids = taken.ids();
    const auto isBack = [this](const GUIdentifier& id) { return m_session.findDesign(id); };
    if (std::any_of(ids.begin(), ids.end(), isBack) || ids.empty())
        return;
    if (canUndo() && m_edits[m_made - 1].isRemovalOf(taken))
        retract();
    else
        m_session.putBack(taken);
}

/** Undoes the last edit and leaves nothing of it, if nothing has been done since. */
void EditHistory::retract()
{
    if (canRedo() || !replay(m_edits.back(), &EditCommand::undo)) {
        undo();
        return;
    }
    m_edits.pop_back();
    m_made = m_edits.size();
    m_edits.insert(m_edits.end(), m_superseded.begin(), m_superseded.end());
    m_superseded.clear();
    Q_EMIT changed();
}

void EditHistory::follow(Successors successors, const Design& copy)
{
    m_superseded.clear();
    bool fits = true;
    const auto follows = [&successors, &copy, &fits](EditCommand& edit) {
        if (successors.count(edit.design()) == 0)
            return true;
        fits = fits && edit.follow(successors, copy);
        return fits;
    };
    for (std::size_t place = m_made; place-- > 0;)
        if (!follows(m_edits[place]))
            drop(place);
    fits = true;
    for (std::size_t place = m_made; place < m_edits.size();) {
        if (follows(m_edits[place]))
            ++place;
        else
            drop(place);
    }
    Q_EMIT changed();
}

void EditHistory::note(const DesignEdit& edit)
{
    if (m_isReplaying)
        return;
    const auto firstUndone = m_edits.begin() + std::ptrdiff_t(m_made);
    m_superseded.assign(firstUndone, m_edits.end());
    m_edits.erase(firstUndone, m_edits.end());
    EditCommand command(m_session, edit);
    if (!canUndo() || !m_edits.back().mergeWith(command))
        m_edits.push_back(std::move(command));
    else if (m_edits.back().isNothing())
        m_edits.pop_back();
    if (m_edits.size() > mostEdits)
        m_edits.erase(m_edits.begin());
    m_made = m_edits.size();
    Q_EMIT changed();
}

void EditHistory::forget(const std::vector<GUIdentifier>& designs)
{
    dropIf([&designs](const EditCommand& edit) {
        return std::find(designs.begin(), designs.end(), edit.design()) != designs.end();
    });
    // A design that went with a reference to it comes back with that, and so do its edits.
    const auto isOpen = [this](const EditCommand& edit) {
        return m_session.findDesign(edit.design()) != nullptr;
    };
    const bool mayComeBack =
        std::any_of(m_edits.begin(), m_edits.end(), [&isOpen](const EditCommand& edit) {
            return edit.changesFiles() && isOpen(edit);
        });
    if (!mayComeBack)
        dropIf([&isOpen](const EditCommand& edit) { return !isOpen(edit); });
    Q_EMIT changed();
}

template <typename Condition>
void EditHistory::dropIf(const Condition& condition)
{
    for (std::size_t place = m_edits.size(); place-- > 0;)
        if (condition(m_edits[place]))
            drop(place);
    m_superseded.erase(std::remove_if(m_superseded.begin(), m_superseded.end(), condition),
                       m_superseded.end());
}

void EditHistory::drop(std::size_t place)
{
    m_edits.erase(m_edits.begin() + std::ptrdiff_t(place));
    if (place < m_made)
        --m_made;
}

} // namespace Zorvane::Workbench
