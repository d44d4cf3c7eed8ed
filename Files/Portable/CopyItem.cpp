#include "Files/Portable/CopyItem.h"

#include "Files/PathText.h"
#include "Files/Portable/FileIdentity.h"

#include <fcntl.h>

namespace Zorvane {

namespace {

constexpr qint64 secondInMilliseconds = 1000;
constexpr qint64 s_nanosecondsPerMillisecond = 1000000;

/** Follows a link under the name; where it leads nowhere, the link itself is what is there. */
struct stat behind(const TargetFolder& folder, const std::string& leaf, const struct stat& entry)
{
    struct stat status
    {};
    const int error = errorOf(
        [&] { return folder.calls().statusAt(folder.descriptor(), leaf.c_str(), status, 0); });
    return error == 0 ? status : entry;
}

CollisionKind kindOf(const struct stat& source, const struct stat& entry, const struct stat& behind)
{
    if (isSameFile(source, behind))
        return CollisionKind::SameFile;
    const bool replaceable = S_ISREG(entry.st_mode) || S_ISLNK(entry.st_mode);
    return replaceable ? CollisionKind::ExistingFile : CollisionKind::NotAFile;
}

} // namespace

int lookForCollision(CopyItem& item, const TargetFolder& folder, const QString& folderPath)
{
    struct stat entry
    {};
    item.replaced.reset();
    item.candidate.existing.reset();
    const int error = folder.entry(item.candidate.leaf, entry);
    if (error != 0)
        return error == ENOENT ? 0 : error;
    const struct stat shown = behind(folder, item.candidate.leaf, entry);
    item.replaced = entry;
    item.candidate.existing = factsOf(pathInFolder(folderPath, item.candidate.leaf), shown);
    item.candidate.existingKind = kindOf(item.source, entry, shown);
    return 0;
}

CopyFileFacts factsOf(const QString& path, const struct stat& status)
{
    const qint64 milliseconds = status.st_mtim.tv_sec * secondInMilliseconds +
                                status.st_mtim.tv_nsec / s_nanosecondsPerMillisecond;
    // In local time each would ask the system for its time zone.
    return {path, status.st_size, QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::UTC)};
}

QString pathInFolder(const QString& folder, const std::string& leaf)
{
    const QString separator = folder.endsWith(u'/') ? QString() : QStringLiteral("/");
    return folder + separator + pathFromBytes(leaf);
}

} // namespace Zorvane
