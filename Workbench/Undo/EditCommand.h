#pragma once

#include "Workbench/Design/DesignEdit.h"
#include "Workbench/Design/Successors.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

namespace Zorvane::Workbench {

class DesignSession;

/**
 * One change of a design that can be taken back and made again, exactly. One that no longer fits,
 * since what it changed isn't as it left it, does nothing: somebody else has changed that, and
 * would lose it. The session must outlive it.
 */
class EditCommand
{
    Q_DECLARE_TR_FUNCTIONS(Zorvane::Workbench::EditCommand)

public:
    /** For a change that has been made already. */
    EditCommand(DesignSession& session, DesignEdit edit);

    /** What was changed, translated. */
    const QString& text() const { return m_text; }
    /** The design that was changed. */
    const GUIdentifier& design() const { return m_design; }
    /** Whether other designs may be open or closed by it: files were added or taken out. */
    bool changesFiles() const;
    /** Whether it took just these out. */
    bool isRemovalOf(const TakenObjects& objects) const;
    /** Takes a later one in: steps of one value, one after the other, are one change. */
    bool mergeWith(const EditCommand& later);
    /** Whether merging left nothing: a value that is what it was. */
    bool isNothing() const;

    /**
     * Makes it one of the successors in the copy instead, whose files may be at other places;
     * objects without one, as they are not in the design at present, get one. False, and of no use
     * any more, if the copy is left without one of them, or if what lies where a file of them would
     * be looked for is somebody else's.
     */
    bool follow(Successors& successors, const Design& copy);

    /** False, and nothing is different, if it no longer fits. */
    bool undo() { return apply(false); }
    bool redo() { return apply(true); }

private:
    QString describe() const;
    GUIdentifier designChanged() const;
    bool followFiles(const Design& copy, bool isElsewhere);
    bool apply(bool forward);

    DesignSession* m_session;
    DesignEdit m_edit;
    QString m_text;
    GUIdentifier m_design;
};

} // namespace Zorvane::Workbench
