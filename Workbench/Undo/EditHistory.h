#pragma once

#include "Workbench/Design/DesignEdit.h"

#include <QtCore/QObject>
#include <QtWidgets/QUndoStack>

namespace Zorvane::Workbench {

class DesignSession;

/**
 * Remembers what people change in the designs of a session, whichever window they do it in, and
 * takes it back or makes it again. Saving doesn't end it; reading designs from their files again
 * does. The session, not owned, must outlive it.
 */
class EditHistory : public QObject
{
    Q_OBJECT

public:
    static constexpr int mostEdits = 500;

    EditHistory(DesignSession& session, QObject* parent);
    ~EditHistory() override;

    /** For actions and texts; push nothing. */
    QUndoStack& stack() { return m_stack; }

    /**
     * Puts back what was taken out of a design, and nothing else: undoes the taking if that was the
     * last edit, else is an edit of its own. What is back already stays.
     */
    void putBack(const TakenObjects& taken);

public Q_SLOTS:
    void undo();
    void redo();

private:
    void note(const DesignEdit& edit);

    DesignSession& m_session;
    QUndoStack m_stack;
    bool m_isReplaying = false;
};

} // namespace Zorvane::Workbench
