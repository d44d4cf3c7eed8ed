#include "Files/Portable/CopyItem.h"

#include "Files/PathText.h"
#include "Files/Portable/CopyErrors.h"
#include "Files/Portable/FileIdentity.h"

#include <fcntl.h>

namespace Zorvane {

namespace {

constexpr qint64 secondInMilliseconds = 1000;
constexpr qint64 s_nanosecondsPerMillisecond = 1000000;

CollisionKind kindOf(const struct stat& source, const struct stat& entry, const struct stat& behind)
{
    if (isSameFile(source, behind))
        return CollisionKind::SameFile;
    // A link that leads nowhere stands for itself.
    if (!S_ISREG(behind.st_mode) && !(S_ISLNK(entry.st_mode) && isSameFile(entry, behind)))
        return CollisionKind::NotAFile;
    const bool isProtected = S_ISREG(entry.st_mode) && (entry.st_mode & S_IWUSR) == 0;
    return isProtected ? CollisionKind::ProtectedFile : CollisionKind::ExistingFile;
}

} // namespace

int lookForCollision(CopyItem& item, const TargetFolder& folder, const QString& folderPath)
{
    const std::string& leaf = item.candidate.leaf;
    struct stat entry
    {};
    item.replaced.reset();
    item.candidate.existing.reset();
    int error = folder.entry(leaf, entry);
    if (error != 0)
        return error == ENOENT ? 0 : error;
    struct stat behind = entry;
    if (S_ISLNK(entry.st_mode)) {
        error = errorOf(
            [&] { return folder.calls().statusAt(folder.descriptor(), leaf.c_str(), behind, 0); });
        if (error == ENOENT)
            behind = entry;
        else if (error != 0)
            behind = {}; // it may lead to a folder: nothing to replace
    }
    item.replaced = entry;
    item.candidate.existing =
        factsOf(pathInFolder(folderPath, leaf), behind.st_mode != 0 ? behind : entry);
    item.candidate.existingKind = kindOf(item.source, entry, behind);
    return 0;
}

int keepPermissions(CopyItem& item, const SystemCalls& calls, mode_t permissions)
{
    const int file = item.staged->descriptor();
    struct stat made
    {};
    int error = errorOf([&] { return calls.status(file, made); });
    // Each change of a file's attributes is a write of its own to the file system: none in vain.
    if (error != 0 || (made.st_mode & permissionBits) == permissions)
        return error;
    error = errorOf([&] { return calls.setMode(file, permissions); });
    if (!isRefusedAttribute(error))
        return error;
    item.lostPermissions = true;
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
