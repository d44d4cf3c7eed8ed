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
    ExistingFile,  /**< Another file has it: it may be replaced. */
    ProtectedFile, /**< The same, write-protected: what replaces it gets its permissions. */
    SameFile,      /**< The name leads to the source itself, by a hard or a symbolic link. */
    WithinBatch,   /**< Another source of the same copy gets it. */
    NotAFile       /**< A folder, a link to one, a device or the like has it. */
};

constexpr std::size_t collisionKindCount = 5;

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
    /** Files yet to come which "for all" can cover. */
    int remaining = 0;
    /** Found when the copy was complete: how many of the remaining will collide is not known. */
    bool isLate = false;

    /** Only another file may be replaced. */
    bool allows(CopyDecision decision) const
    {
        return decision != CopyDecision::Replace || kind == CollisionKind::ExistingFile ||
               kind == CollisionKind::ProtectedFile;
    }
};

struct CopyAnswer
{
    CopyDecision decision = CopyDecision::Skip;
    bool forAll = false; /**< Also for the remaining collisions of the same kind. */
};

/** Something to report about a file, or about the target folder, in the user's words. */
struct CopyRemark
{
    QString path;
    QString reason;
};

/** What the copy asks and reports: by dialogs to people, by scripts in tests. */
class ZORVANE_UITOOLS_EXPORT CopyQuestions
{
public:
    CopyQuestions();
    virtual ~CopyQuestions();

    CopyQuestions(const CopyQuestions&) = delete;
    CopyQuestions& operator=(const CopyQuestions&) = delete;

    /** A decision that the collision doesn't allow counts as `Skip`. */
    virtual CopyAnswer ask(const CopyCollision& collision) = 0;
    /** Asked before anything is copied; false cancels. */
    virtual bool copyInSpiteOfSpace(qint64 bytesNeeded, qint64 bytesFree) = 0;
    /**
     * Called once, at the end, if there is anything to report: files that were not copied, and
     * what else the user should know, such as copies without their dates.
     */
    virtual void report(const QList<CopyRemark>& failures, const QList<CopyRemark>& remarks) = 0;
};

} // namespace Zorvane
