#pragma once

#include "Host/FileHandling/FileName.h"
#include "Host/HostExport.h"

namespace Zorvane {

/** Questions about files that only the disk can answer. None of them fails. */
class ZORVANE_HOST_EXPORT FileUtilities
{
public:
    FileUtilities() = delete;

    /** Whether a file or folder of that name is there (links are followed). */
    static bool exists(const FileName& file);

    /**
     * Whether both names lead to the same file or folder: through "..", links and the case of
     * letters, as the file system sees it. Where one of them does not exist, whether they are
     * spelled alike once made absolute and tidied. The empty name equals only itself.
     */
    static bool isEquivalent(const FileName& left, const FileName& right);
};

} // namespace Zorvane
