#pragma once

#include "Files/CopyDecisions.h"
#include "Files/FileCopyUtility.h"
#include "Files/Portable/StagedFile.h"

#include <optional>
#include <string>
#include <sys/stat.h>

namespace Zorvane {

constexpr mode_t permissionBits = S_IRWXU | S_IRWXG | S_IRWXO;

/** One source on its way. */
struct CopyItem
{
    CopyItem(std::string sourcePath, FileCopyUtility::FileCopyInfo& info)
        : path(std::move(sourcePath))
        , record(&info)
    {}

    std::string path; /**< Of the source, in the file system's bytes. */
    FileCopyUtility::FileCopyInfo* record;
    CopyCandidate candidate;
    CopyOrder order;
    struct stat source
    {};                                  /**< As planned with. */
    std::optional<struct stat> replaced; /**< The file that the user gave up. */
    std::optional<StagedFile> staged;
    bool lostTime = false; /**< The file system refused it. */
    bool lostPermissions = false;
};

/** What planning finds under the item's name in the folder; 0 or an error number. */
int lookForCollision(CopyItem& item, const TargetFolder& folder, const QString& folderPath);

/** Gives the staged file these permissions, or notes that the file system refused them. */
int keepPermissions(CopyItem& item, const SystemCalls& calls, mode_t permissions);

CopyFileFacts factsOf(const QString& path, const struct stat& status);
QString pathInFolder(const QString& folder, const std::string& leaf);

} // namespace Zorvane
