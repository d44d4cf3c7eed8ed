#pragma once

#include "Files/CopyDecisions.h"
#include "Files/CopyOutcome.h"
#include "Files/Portable/StagedFile.h"

#include <optional>
#include <string>
#include <sys/stat.h>

namespace Zorvane {

/** One source on its way. */
struct CopyItem
{
    CopyItem(std::string sourcePath, CopyOutcome& record)
        : path(std::move(sourcePath))
        , outcome(&record)
    {}

    std::string path; /**< Of the source, in the file system's bytes. */
    CopyOutcome* outcome;
    CopyCandidate candidate;
    CopyOrder order;
    struct stat source
    {};                                  /**< As planned with. */
    std::optional<struct stat> replaced; /**< The file that the user gave up. */
    std::optional<StagedFile> staged;
};

/** What planning finds under the item's name in the folder; 0 or an error number. */
int lookForCollision(CopyItem& item, const TargetFolder& folder, const QString& folderPath);

CopyFileFacts factsOf(const QString& path, const struct stat& status);
QString pathInFolder(const QString& folder, const std::string& leaf);

} // namespace Zorvane
