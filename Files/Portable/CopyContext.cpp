#include "Files/Portable/CopyContext.h"

#include "Files/Portable/CopyErrors.h"

namespace Zorvane {

void CopyContext::failOnTarget(CopyItem& item, int error)
{
    fail(item, describeTargetError(error));
    if (concernsEveryFile(error))
        stop = CopyStop::Fatal;
}

void CopyContext::fail(CopyItem& item, const QString& reason) const
{
    discard(item);
    item.record->outcome = FileCopyUtility::Outcome::Failed;
    item.record->reason = reason;
}

void CopyContext::discard(CopyItem& item) const
{
    // The window stays responsive while the system lets go of a large file.
    if (item.staged)
        item.staged->giveUpContent([this] { goOn(); });
    item.staged.reset();
}

} // namespace Zorvane
