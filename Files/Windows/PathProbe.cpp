#include "Files/PathProbe.h"

#include <QtCore/QFileInfo>

namespace Zorvane {

PathFacts PathProbe::look(const QString& path)
{
    const QFileInfo info(path);
    PathFacts facts;
    facts.exists = !path.isEmpty() && info.exists();
    if (!facts.exists)
        return facts;
    facts.isFolder = info.isDir();
    facts.canonicalPath = info.canonicalFilePath();
    facts.canonicalFolder = info.canonicalPath();
    return facts;
}

} // namespace Zorvane
