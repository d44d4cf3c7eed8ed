#include "Files/PathProbe.h"

#include "Files/PathText.h"
#include "Files/Portable/LocalPath.h"

#include <cstdlib>
#include <memory>
#include <sys/stat.h>

namespace Zorvane {

PathFacts probePath(const QString& path)
{
    PathFacts facts;
    struct stat status
    {};
    const std::string bytes = localPathBytes(path);
    const std::unique_ptr<char, decltype(&std::free)> resolved(realpath(bytes.c_str(), nullptr),
                                                               &std::free);
    if (!resolved || stat(resolved.get(), &status) != 0)
        return facts;
    const std::string canonical(resolved.get());
    const std::size_t slash = canonical.rfind('/');
    facts.exists = true;
    facts.isFolder = S_ISDIR(status.st_mode);
    facts.canonicalPath = pathFromBytes(canonical);
    facts.canonicalFolder = pathFromBytes(canonical.substr(0, slash == 0 ? 1 : slash));
    return facts;
}

} // namespace Zorvane
