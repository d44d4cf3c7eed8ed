#include "Files/PathProbe.h"

#include "Files/PathText.h"
#include "Files/Portable/LocalPath.h"

#include <cstdlib>
#include <memory>
#include <sys/stat.h>

namespace Zorvane {

namespace {

QString canonical(const std::string& path)
{
    const std::unique_ptr<char, decltype(&std::free)> resolved(realpath(path.c_str(), nullptr),
                                                               &std::free);
    return resolved ? pathFromBytes(resolved.get()) : QString();
}

} // namespace

PathFacts PathProbe::look(const QString& path)
{
    PathFacts facts;
    struct stat status
    {};
    const std::string bytes = localPathBytes(path);
    if (bytes.find('\0') != std::string::npos || lstat(bytes.c_str(), &status) != 0)
        return facts;
    if (S_ISREG(status.st_mode)) {
        // Thousands of files of one folder: the folder's name is worth resolving once.
        const int slash = path.lastIndexOf(u'/');
        const QString folder = slash < 0 ? QStringLiteral(".") : path.left(slash + 1);
        QString& resolved = m_canonicalFolders[folder];
        if (resolved.isNull())
            resolved = canonical(localPathBytes(folder));
        facts.exists = !resolved.isEmpty();
        facts.canonicalFolder = resolved;
        facts.canonicalPath = QString(resolved).append(u'/').append(path.midRef(slash + 1));
        return facts;
    }
    facts.canonicalPath = canonical(bytes);
    facts.exists = !facts.canonicalPath.isEmpty() && stat(bytes.c_str(), &status) == 0;
    facts.isFolder = facts.exists && S_ISDIR(status.st_mode);
    facts.canonicalFolder =
        facts.canonicalPath.left(qMax(1, facts.canonicalPath.lastIndexOf(u'/')));
    return facts;
}

} // namespace Zorvane
