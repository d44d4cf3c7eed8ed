#pragma once

#include "Workbench/Design/DesignEdit.h"

#include <QtCore/QCoreApplication>
#include <QtWidgets/QUndoCommand>

namespace Zorvane::Workbench {

class DesignSession;

/**
 * One change of a design that can be taken back and made again. One that no longer fits, since the
 * design is not what it was, does nothing and is dropped. The session must outlive it.
 */
class EditCommand : public QUndoCommand
{
    Q_DECLARE_TR_FUNCTIONS(Zorvane::Workbench::EditCommand)

public:
    /** For a change that has been made already. */
    EditCommand(DesignSession& session, DesignEdit edit);

    void undo() override;
    void redo() override;
    int id() const override;
    /** Whether it took just these out. */
    bool isRemovalOf(const TakenObjects& objects) const;
    /** Steps of one value, one after the other, are one change. */
    bool mergeWith(const QUndoCommand* other) override;

private:
    QString describe() const;
    bool apply(bool forward);

    DesignSession& m_session;
    DesignEdit m_edit;
    /** What taking an addition back took out. */
    TakenObjects m_taken;
    bool m_isMade = true;
};

} // namespace Zorvane::Workbench
