#pragma once

#include "UiToolsExport.h"

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtCore/QStringList>
#include <QtWidgets/QWidget>

namespace Zorvane {

/**
 * Copies files into a folder, without asking for consent first (`FileCopyService` does that). The
 * platform's copier shows the progress and asks what to do about names that are taken already; no
 * existing file changes without the user's word.
 *
 * The utility owns nothing it is given. GUI thread only; `copyFiles` runs an event loop while it
 * works, so the parent may go away meanwhile.
 * Not supported: folders as sources, relative names that are to survive a change of the current
 * folder.
 */
class ZORVANE_UITOOLS_EXPORT FileCopyUtility
{
public:
    /** What became of one source: the values of `FileCopyInfo::status`. */
    enum Status
    {
        Copied = 0,
        NotCopied = 1,
        CopiedUnderOtherName = 2
    };

    /** The bits of a check code; 0 means that the copy can go ahead. */
    enum CheckBit
    {
        AlreadyInTarget = 1,
        NoTargetFolder = 2,
        SourceMissing = 4
    };

    /** What became of one source, in more words than its status. */
    enum class Outcome
    {
        NotReached, /**< A failure stopped the copy before this file's turn. */
        Copied,     /**< Under its own name or another one. */
        Skipped,    /**< The user's answer. */
        SameFile,   /**< The name leads to the source already; nothing was done. */
        Failed,
        Cancelled /**< The user cancelled before this file had its name. */
    };

    struct FileCopyInfo
    {
        QString source; /**< Full path: as given, unless a relative one was given. */
        QString target; /**< Full path of the copy; empty where there is none. */
        int status = NotCopied;
        Outcome outcome = Outcome::NotReached;
        /** For the user: why it failed, or what a copy could not keep. */
        QString reason = {};
    };

    FileCopyUtility(QWidget* parent, const QStringList& sourceFiles, const QString& targetFolder);
    virtual ~FileCopyUtility();

    FileCopyUtility(const FileCopyUtility& other);
    FileCopyUtility& operator=(const FileCopyUtility& other);

    /**
     * Checks the request, copies, and returns one record a source in their order. `result` receives
     * the check code; with any but 0 nothing is copied and the list is empty. Both checking and
     * copying show their progress when they take long, and can be cancelled.
     *
     * The list stays valid until the next call and as long as the utility.
     */
    const QList<FileCopyInfo>& copyFiles(int& result);

    /**
     * The check code of a request: 2 where the target is no folder; otherwise the first source that
     * is missing or a folder adds 4, or the first that lies in the target folder already adds 3. A
     * path with a null character in it names nothing. Looks at all sources without a break.
     */
    static int check(const QStringList& sourceFiles, const QString& targetFolder);

private:
    QPointer<QWidget> m_parent;
    QStringList m_sourceFiles;
    QString m_targetFolder;
    QList<FileCopyInfo> m_result;
};

} // namespace Zorvane
