#include "Workbench/Design/FileReferences.h"

#include "Workbench/Design/FileNames.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <algorithm>

namespace Zorvane::Workbench {

namespace {

bool isAbsolute(const QString& path)
{
    const bool drive = path.size() >= 2 && path.at(1) == QLatin1Char(':') && path.at(0).isLetter();
    return drive || path.startsWith(QLatin1Char('/'));
}

bool isWithin(const QString& folder, const QString& path)
{
    const QString inner = folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
    return path == folder || path.startsWith(inner);
}

/** The path from the folder that it is within. */
QString below(const QString& folder, const QString& path)
{
    return path.mid(folder.endsWith(QLatin1Char('/')) ? folder.size() : folder.size() + 1);
}

/** Where the path really is, links followed as far as the path exists. */
QString realPath(const QString& path)
{
    QString existing = path;
    QString rest;
    for (;;) {
        const QFileInfo info(existing);
        if (info.exists())
            return QDir::cleanPath(info.canonicalFilePath() + rest);
        // A link to nothing: what counts is where it would lead.
        if (info.isSymLink())
            return QDir::cleanPath(info.symLinkTarget() + rest);
        const QString parent = info.path();
        if (parent == existing)
            return path;
        rest.prepend(QLatin1Char('/') + info.fileName());
        existing = parent;
    }
}

} // namespace

ResolvedReference resolveReference(const QString& folder, const QString& path)
{
    QString relative = path;
    relative.replace(QLatin1Char('\\'), QLatin1Char('/'));
    // A NUL would end the path early for the system, and so name another file than checked here.
    if (isAbsolute(relative) || relative.contains(QChar::Null))
        return {FileState::Outside, {}};
    const QString root = QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
    const QString file = QDir::cleanPath(root + QLatin1Char('/') + relative);
    if (!isWithin(root, file))
        return {FileState::Outside, {}};
    // Some names open a device, or another file than they name elsewhere.
    if (!FileNames::arePossible(below(root, file)))
        return {FileState::Missing, file};
    const QString realRoot = QFileInfo(root).canonicalFilePath();
    if (!realRoot.isEmpty() && !isWithin(realRoot, realPath(file)))
        return {FileState::Outside, {}};
    return {QFileInfo(file).isFile() ? FileState::Exists : FileState::Missing, file};
}

bool refreshReferences(Design& design)
{
    bool different = false;
    for (FileReference& reference : design.files) {
        const ResolvedReference found = resolveReference(design.folder(), reference.path);
        different |= found.state != reference.state || found.file != reference.file;
        reference.state = found.state;
        reference.file = found.file;
    }
    return different;
}

} // namespace Zorvane::Workbench
