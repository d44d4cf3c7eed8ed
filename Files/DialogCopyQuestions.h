#pragma once

#include "Files/CopyQuestions.h"
#include "UiToolsExport.h"

namespace Zorvane {

class DialogCopyProgress;

/** Asks by dialogs. */
class ZORVANE_UITOOLS_EXPORT DialogCopyQuestions : public CopyQuestions
{
public:
    /** The progress is used as long as this lives. */
    explicit DialogCopyQuestions(DialogCopyProgress& progress);

    CopyAnswer ask(const CopyCollision& collision) override;
    bool copyInSpiteOfSpace(qint64 bytesNeeded, qint64 bytesFree) override;
    void report(const QList<CopyRemark>& failures, const QList<CopyRemark>& remarks) override;

private:
    DialogCopyProgress& m_progress;
};

} // namespace Zorvane
