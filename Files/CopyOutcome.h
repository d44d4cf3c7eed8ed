#pragma once

#include "Files/FileCopyUtility.h"
#include "UiToolsExport.h"

#include <QtCore/QList>
#include <QtCore/QString>

namespace Zorvane {

/** What became of a source, in more words than the status of `FileCopyInfo` has. */
enum class CopyFate
{
    NotReached, /**< The copy was cancelled or stopped before. */
    Copied,
    CopiedUnderOtherName,
    Skipped,
    SameFile, /**< The name leads to the source already; nothing was done. */
    Failed
};

struct CopyOutcome
{
    QString source;
    QString target; /**< Full path of the copy, if there is one. */
    CopyFate fate = CopyFate::NotReached;
    QString reason; /**< Of a failure, for the user. */
};

ZORVANE_UITOOLS_EXPORT QList<FileCopyUtility::FileCopyInfo>
toCopyInfos(const QList<CopyOutcome>& outcomes);

} // namespace Zorvane
