#pragma once

#include "Files/CopyProgress.h"
#include "Files/CopyQuestions.h"
#include "Files/FileCopyUtility.h"
#include "Files/Portable/SystemCalls.h"
#include "UiToolsExport.h"

namespace Zorvane {

/**
 * Copies files into a folder without ever losing one: plans everything, then asks, then copies.
 * Knows no widgets; works in small slices, and asks the progress after each whether to go on.
 *
 * - Nothing that exists changes without a decision about just that file as it then was.
 * - The final name holds nothing, the whole old file or the whole new one at every moment.
 * - Sources are only read. Cancelling and failures leave no temporary files; one that the system
 *   refuses to remove is reported.
 * - Modification time and permissions are kept; links as sources are followed.
 *
 * Not supported: owners, extended attributes and access lists; target file systems that have
 * neither hard links nor a renaming that doesn't replace (copying there fails with a reason).
 */
class ZORVANE_UITOOLS_EXPORT CopyEngine
{
public:
    /** All three are used as long as this lives. */
    CopyEngine(CopyQuestions& questions, CopyProgress& progress,
               const SystemCalls& calls = SystemCalls::real());

    /**
     * One record a source, in their order. What went wrong has been reported to the questions.
     * Relative paths are resolved at once, against the folder that is current then.
     */
    QList<FileCopyUtility::FileCopyInfo> run(const QStringList& sources,
                                             const QString& targetFolder);

private:
    CopyQuestions& m_questions;
    CopyProgress& m_progress;
    const SystemCalls& m_calls;
};

} // namespace Zorvane
