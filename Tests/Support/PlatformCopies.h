#pragma once

#include <memory>

namespace Zorvane::Testing {

/**
 * As long as it lives, the platform's copier has all it needs to copy for real. Ours has that
 * anyway; the copier of a Windows shell gets an engine in place of the shell's, which would open
 * windows of its own, and which refuses everything where there is no more than Wine's.
 */
class PlatformCopies
{
public:
    PlatformCopies();
    ~PlatformCopies();

    /** Whether a name that is taken is asked about by our dialog, not by the system's. */
    static bool askByOurDialog();

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace Zorvane::Testing
