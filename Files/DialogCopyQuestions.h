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
    void tellFailures(const QList<CopyFailure>& failures) override;

private:
    DialogCopyProgress& m_progress;
};

} // namespace Zorvane
