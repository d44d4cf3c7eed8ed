#include "Files/Portable/CopyPublisher.h"

#include "Files/PathText.h"
#include "Files/Portable/FileIdentity.h"

namespace Zorvane {

namespace {

constexpr int s_mostCollisions = 100;

} // namespace

CopyPublisher::CopyPublisher(CopyContext& context)
    : m_context(context)
{}

void CopyPublisher::publish(CopyItem& item, int filesToCome)
{
    for (int attempt = 0; attempt < s_mostCollisions; ++attempt) {
        const int error = tryPublish(item);
        if (error == 0) {
            const bool isRenamed = item.order.leaf != item.candidate.leaf;
            item.record->status =
                isRenamed ? FileCopyUtility::CopiedUnderOtherName : FileCopyUtility::Copied;
            item.record->outcome = FileCopyUtility::Outcome::Copied;
            m_published.emplace(foldedName(item.order.leaf), &item);
            return;
        }
        if (error != EEXIST) {
            m_context.failOnTarget(item, error);
            return;
        }
        if (!resolveCollision(item, filesToCome))
            return;
    }
    m_context.failOnTarget(item, EEXIST);
}

int CopyPublisher::tryPublish(CopyItem& item)
{
    return item.order.action == CopyOrder::Action::Replace
               ? tryReplacing(item)
               : item.staged->publishNew(item.order.leaf);
}

int CopyPublisher::tryReplacing(CopyItem& item)
{
    const std::optional<struct stat> decidedUpon = item.replaced;
    const CollisionKind kind = item.candidate.existingKind;
    int error = lookForCollision(item, m_context.folder, pathFromBytes(m_context.folder.path()));
    if (error != 0)
        return error;
    if (!item.candidate.existing)
        return item.staged->publishNew(item.order.leaf);
    // The user's decision was about the file that was there then.
    if (!decidedUpon || !isUnchanged(*decidedUpon, *item.replaced) ||
        kind != item.candidate.existingKind)
        return EEXIST;
    if (kind == CollisionKind::ProtectedFile)
        error = keepPermissions(item, m_context.calls, item.replaced->st_mode & permissionBits);
    return error != 0 ? error : item.staged->publishReplacing(item.order.leaf);
}

/** Where the case of letters doesn't count, an earlier copy's name may be spelled otherwise. */
void CopyPublisher::recogniseOwnCopy(CopyItem& item) const
{
    const auto [first, last] = m_published.equal_range(foldedName(item.candidate.leaf));
    for (auto other = first; other != last; ++other) {
        struct stat entry
        {};
        if (m_context.folder.entry(other->second->order.leaf, entry) == 0 &&
            isSameFile(entry, *item.replaced)) {
            item.candidate.existingKind = CollisionKind::WithinBatch;
            item.candidate.existing = other->second->candidate.source;
            return;
        }
    }
}

bool CopyPublisher::resolveCollision(CopyItem& item, int filesToCome)
{
    if (item.order.keepsBoth) {
        item.order.leaf = m_context.decisions.anotherName(item.candidate.leaf);
        return true;
    }
    if (const int error =
            lookForCollision(item, m_context.folder, pathFromBytes(m_context.folder.path()))) {
        m_context.failOnTarget(item, error);
        return false;
    }
    if (!item.candidate.existing)
        return true; // removed again
    recogniseOwnCopy(item);
    const std::optional<CopyOrder> order =
        m_context.decisions.decideLate(item.candidate, filesToCome);
    if (!order) {
        m_context.stop = CopyStop::Cancelled;
        return false;
    }
    item.order = *order;
    if (order->action == CopyOrder::Action::CopyNew || order->action == CopyOrder::Action::Replace)
        return true;
    const bool same = order->action == CopyOrder::Action::SameFile;
    item.record->outcome =
        same ? FileCopyUtility::Outcome::SameFile : FileCopyUtility::Outcome::Skipped;
    return false;
}

} // namespace Zorvane
