#pragma once

#include "Files/Portable/CopyItem.h"

#include <functional>

namespace Zorvane {

/** Why no further file is copied. */
enum class CopyStop
{
    No,
    Cancelled,
    Fatal
};

/** What the parts of one copy share. */
struct CopyContext
{
    const SystemCalls& calls;
    TargetFolder& folder;
    CopyDecisions& decisions;
    std::function<bool()> goOn; /**< False cancels. */
    CopyStop stop = CopyStop::No;

    /** Marks the item; trouble that the next file would meet as well stops the copy. */
    void failOnTarget(CopyItem& item, int error);
    void fail(CopyItem& item, const QString& reason) const;
    /** Lets go of what the item has staged. */
    void discard(CopyItem& item) const;
};

} // namespace Zorvane
