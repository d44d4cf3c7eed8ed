#include "Tests/Support/PlatformCopies.h"

#include "Tests/Support/Windows/FakeFileOperation.h"

namespace Zorvane::Testing {

class PlatformCopies::Private
{
    FileOperationScript m_script;
    FakeFileOperations m_engine{m_script};
};

PlatformCopies::PlatformCopies()
    : d(std::make_unique<Private>())
{}

PlatformCopies::~PlatformCopies() = default;

bool PlatformCopies::askByOurDialog()
{
    return false;
}

} // namespace Zorvane::Testing
