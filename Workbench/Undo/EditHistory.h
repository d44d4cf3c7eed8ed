#pragma once

#include "Workbench/Undo/EditCommand.h"

#include <QtCore/QObject>

#include <cstddef>
#include <vector>

namespace Zorvane::Workbench {

class DesignSession;

/**
 * Remembers what people change in the designs of a session, whichever window they do it in, and
 * takes it back or makes it again: the edits of all designs in the order in which they were made.
 * Saving doesn't end it, nor does saving under another name. Closing a design or reading it from
 * its file again drops what was done to it, and keeps the edits of the others, which is more than a
 * `QUndoStack` can do.
 *
 * A design that closes with the reference to it comes back with that, and so do its edits. If its
 * file was changed meanwhile, what no longer fits overwrites nothing and ends the history of that
 * design: older edits might fit by chance.
 *
 * The session, not owned, must outlive it.
 */
class EditHistory : public QObject
{
    Q_OBJECT

public:
    static constexpr int mostEdits = 500;

    EditHistory(DesignSession& session, QObject* parent);

    bool canUndo() const { return m_made > 0; }
    bool canRedo() const { return m_made < m_edits.size(); }
    /** What would be taken back or made again, translated; empty if there is nothing. */
    QString undoText() const;
    QString redoText() const;
    /** All edits remembered, and how many of them were not taken back. */
    int count() const { return int(m_edits.size()); }
    int madeCount() const { return int(m_made); }

    /**
     * Puts back what was taken out of a design, and nothing else: as if it had never been taken out
     * if that was the last edit, else by an edit of its own. What is back already stays.
     */
    void putBack(const TakenObjects& taken);

    /**
     * What was done to a design goes on with its copy, which is about to take its place in the
     * session; but not what was done to objects that the copy is left without, and before.
     */
    void follow(Successors successors, const Design& copy);

public Q_SLOTS:
    void undo();
    void redo();

Q_SIGNALS:
    /** There are other edits to be taken back or made again. */
    void changed();
    /** Why an edit was neither taken back nor made again, translated. */
    void refused(const QString& text);

private:
    void note(const DesignEdit& edit);
    void forget(const std::vector<GUIdentifier>& designs);
    bool replay(EditCommand& edit, bool (EditCommand::*operation)());
    void retract();
    void giveUp(std::size_t place, const QString& text);
    template <typename Condition>
    void dropIf(const Condition& condition);
    void drop(std::size_t place);

    DesignSession& m_session;
    /** Those made come first, in the order in which they were made. */
    std::vector<EditCommand> m_edits;
    std::size_t m_made = 0;
    /** What could have been made again until the last edit was. */
    std::vector<EditCommand> m_superseded;
    bool m_isReplaying = false;
};

} // namespace Zorvane::Workbench
