#pragma once

#include "Files/Portable/CopyContext.h"

#include <unordered_map>

namespace Zorvane {

/**
 * Gives complete files their names, and asks about names that were taken while the copy ran.
 */
class CopyPublisher
{
public:
    explicit CopyPublisher(CopyContext& context);

    /** The item must be staged and outlive this; so many files come after it. */
    void publish(CopyItem& item, int filesToCome);
    bool hasPublished() const { return !m_published.empty(); }

private:
    int tryPublish(CopyItem& item);
    int tryReplacing(CopyItem& item);
    bool resolveCollision(CopyItem& item, int filesToCome);
    void recogniseOwnCopy(CopyItem& item) const;

    CopyContext& m_context;
    std::unordered_multimap<std::string, const CopyItem*> m_published; // by folded name
};

} // namespace Zorvane
