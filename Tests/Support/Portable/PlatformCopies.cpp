#include "Tests/Support/PlatformCopies.h"

namespace Zorvane::Testing {

class PlatformCopies::Private
{};

PlatformCopies::PlatformCopies() = default;
PlatformCopies::~PlatformCopies() = default;

bool PlatformCopies::askByOurDialog()
{
    return true;
}

} // namespace Zorvane::Testing
