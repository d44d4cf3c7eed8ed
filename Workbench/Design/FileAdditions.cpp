#include "Workbench/Design/FileAdditions.h"

#include "Host/FileHandling/ZvFileType.h"
#include "Workbench/Design/FileNames.h"
#include "Workbench/Design/FileReferences.h"
#include "Workbench/Design/ObjectNames.h"
#include "Workbench/Meshes/MeshReader.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <utility>

namespace Zorvane::Workbench {

namespace {

/** With the links in its folder followed, but not one that the file itself may be. */
QString relativePath(const Design& design, const QString& file)
{
    const QFileInfo info(file);
    const QString folder = QFileInfo(info.absolutePath()).canonicalFilePath();
    const QString root = QFileInfo(design.folder()).canonicalFilePath();
    return QDir(root).relativeFilePath(QDir(folder).filePath(info.fileName()));
}

/** The leaf name without its ending, made a name that an object may have. */
QString objectName(const QString& file)
{
    const QFileInfo info(file);
    QString name = info.completeBaseName().isEmpty() ? info.fileName() : info.completeBaseName();
    std::replace_if(name.begin(), name.end(), isControlCharacter, QLatin1Char(' '));
    name = name.left(s_longestObjectName).trimmed();
    return name.isEmpty() ? FileAdditions::tr("File") : name;
}

} // namespace

FileKind FileAdditions::kindOf(const QString& file)
{
    if (MeshReader::isMeshFile(file))
        return FileKind::Mesh;
    if (FileNames::isDesign(file))
        return FileKind::Design;
    switch (getFileTypeFromEnding(QFileInfo(file).suffix().toStdString(), {})) {
    case ZvFileType::MaterialAscii:
    case ZvFileType::MaterialBinary:
        return FileKind::Material;
    case ZvFileType::Csv:
        return FileKind::Result;
    case ZvFileType::Text:
        return FileKind::Document;
    default:
        return FileKind::Other;
    }
}

std::optional<Problem> FileAdditions::obstacle(const QString& file)
{
    const QFileInfo info(file);
    if (!info.exists())
        return Problem{file, {}, tr("doesn't exist")};
    if (!info.isFile())
        return Problem{file, {}, tr("is not a file")};
    if (!info.isReadable())
        return Problem{file, {}, tr("may not be read")};
    const QString name = info.fileName();
    const bool drive = name.size() >= 2 && name.at(0).isLetter() && name.at(1) == QLatin1Char(':');
    if (drive || name.contains(QLatin1Char('\\')))
        return Problem{file, {}, tr("has a name that design files cannot hold")};
    return std::nullopt;
}

std::optional<Problem> FileAdditions::obstacle(const Design& design, const QString& file)
{
    if (const std::optional<Problem> problem = obstacle(file))
        return problem;
    if (QFileInfo(file).canonicalFilePath() == QFileInfo(design.file).canonicalFilePath())
        return Problem{file, {}, tr("is the design itself")};
    const QString path = relativePath(design, file);
    const FileState state = resolveReference(design.folder(), path).state;
    if (state == FileState::Outside)
        return Problem{file, {}, tr("leads out of the folder of %1").arg(design.name)};
    // A folder's name, unlike the file's own, is seen only here.
    if (state == FileState::Missing)
        return Problem{file, {}, tr("has a name that design files cannot hold")};
    return std::nullopt;
}

const FileReference* FileAdditions::find(const Design& design, const QString& file)
{
    const QString real = QFileInfo(file).canonicalFilePath();
    const auto leadsThere = [&real](const FileReference& reference) {
        return reference.state == FileState::Exists &&
               QFileInfo(reference.file).canonicalFilePath() == real;
    };
    const auto found = std::find_if(design.files.begin(), design.files.end(), leadsThere);
    return found == design.files.end() ? nullptr : &*found;
}

std::vector<GUIdentifier> FileAdditions::add(Design& design, const QString& file)
{
    if (find(design, file) != nullptr)
        return {};
    FileReference reference;
    reference.id = GUIdentifier::create();
    reference.name = objectName(file);
    reference.kind = kindOf(file);
    reference.path = relativePath(design, file);
    ResolvedReference found = resolveReference(design.folder(), reference.path);
    reference.state = found.state;
    reference.file = std::move(found.file);
    std::vector<GUIdentifier> added{reference.id};
    if (reference.kind == FileKind::Mesh) {
        Part part;
        part.id = GUIdentifier::create();
        part.name = reference.name;
        part.geometry = reference.id;
        added.push_back(part.id);
        design.parts.push_back(std::move(part));
    }
    design.files.push_back(std::move(reference));
    return added;
}

} // namespace Zorvane::Workbench
