#pragma once

#include "UiToolsExport.h"

#include <QtCore/QDateTime>
#include <QtCore/QList>
#include <QtCore/QString>

namespace Zorvane {

enum class CopyDecision
{
    Replace,
    Skip,
    KeepBoth,
    Cancel
};

/** Why the name that a copy should get cannot simply be given to it. */
enum class CollisionKind
{
    ExistingFile, /**< Another file has it: it may be replaced. */
    SameFile,     /**< The name leads to the source itself, by a hard or a symbolic link. */
    WithinBatch,  /**< Another source of the same copy gets it. */
    NotAFile      /**< A folder, a device or the like has it, which a file cannot replace. */
};

/** What a question shows of a file. */
struct CopyFileFacts
{
    QString path;
    qint64 size = 0;    /**< In bytes. */
    QDateTime modified; /**< In any time zone. */
};

struct CopyCollision
{
    CollisionKind kind = CollisionKind::ExistingFile;
    CopyFileFacts source;
    CopyFileFacts target; /**< What has the name; for `WithinBatch` the other source. */
    QString keepBothName; /**< The leaf name that `KeepBoth` gives the copy. */
    int remaining = 0;    /**< Collisions of this kind yet to come, which "for all" covers. */

    /** Only another file may be replaced. */
    bool allows(CopyDecision decision) const
    {
        return decision != CopyDecision::Replace || kind == CollisionKind::ExistingFile;
    }
};

struct CopyAnswer
{
    CopyDecision decision = CopyDecision::Skip;
    bool forAll = false; /**< Also for the remaining collisions of the same kind. */
};

/** Something that went wrong, in the user's words. */
struct CopyFailure
{
    QString path;
    QString reason;
};

/** Whom the copy asks: dialogs for people, scripts for tests. */
class ZORVANE_UITOOLS_EXPORT CopyQuestions
{
public:
    CopyQuestions();
    virtual ~CopyQuestions();

    CopyQuestions(const CopyQuestions&) = delete;
    CopyQuestions& operator=(const CopyQuestions&) = delete;

    /** A decision that the collision doesn't allow counts as `Skip`. */
    virtual CopyAnswer ask(const CopyCollision& collision) = 0;
    /** Told once, at the end, if there is anything to tell. */
    virtual void tellFailures(const QList<CopyFailure>& failures) = 0;
};

} // namespace Zorvane
