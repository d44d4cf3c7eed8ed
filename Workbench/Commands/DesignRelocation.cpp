#include "Workbench/Commands/DesignRelocation.h"

#include "Files/FileCopyUtility.h"
#include "Host/FileHandling/FileUtilities.h"
#include "Workbench/Commands/DesignCopy.h"
#include "Workbench/Design/DesignWriter.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <utility>

namespace Zorvane::Workbench {

namespace {

using Copies = QList<FileCopyUtility::FileCopyInfo>;

QString realPath(const QString& path)
{
    return QFileInfo(path).canonicalFilePath();
}

/** Null without one. */
const FileCopyUtility::FileCopyInfo* copyOf(const QString& file, const Copies& copies)
{
    const auto isSame = [&file](const auto& copy) { return copy.source == file; };
    // Shells spell paths their own way.
    const auto isEquivalent = [&file](const auto& copy) {
        return FileUtilities::isEquivalent(FileName(file), FileName(copy.source));
    };
    auto found = std::find_if(copies.begin(), copies.end(), isSame);
    if (found == copies.end())
        found = std::find_if(copies.begin(), copies.end(), isEquivalent);
    return found == copies.end() ? nullptr : &*found;
}

/** The place stays the same below its design's folder; the name may be another one. */
void referTo(FileReference& reference, const QString& copy)
{
    const QString name = QFileInfo(copy).fileName();
    if (name == QFileInfo(reference.file).fileName())
        return;
    // Either separates, as in every reference of a design.
    const int slash = reference.path.lastIndexOf(QLatin1Char('/'));
    const int backslash = reference.path.lastIndexOf(QLatin1Char('\\'));
    reference.path = reference.path.left(std::max(slash, backslash) + 1) + name;
}

} // namespace

DesignRelocation::DesignRelocation(QWidget* parent, const QString& from, const QString& to,
                                   std::vector<Design> open)
    : m_parent(parent)
    , m_from(QFileInfo(from).dir())
    , m_to(QFileInfo(to).dir())
    , m_name(QFileInfo(to).fileName())
    , m_open(std::move(open))
    , m_copies{{from, to}}
    , m_designs{realPath(from)}
{}

QString DesignRelocation::placeOf(const QString& folder) const
{
    return QDir::cleanPath(m_to.filePath(m_from.relativeFilePath(folder)));
}

std::optional<Problem> DesignRelocation::bringFilesOf(Design& design)
{
    if (m_from.canonicalPath() == m_to.canonicalPath())
        return std::nullopt;
    return bring(design);
}

std::optional<Problem> DesignRelocation::bring(Design& design)
{
    std::map<QString, QStringList> folders;
    for (const FileReference& reference : design.files)
        if (reference.state == FileState::Exists && m_copies.count(reference.file) == 0)
            folders[QFileInfo(reference.file).absolutePath()] << reference.file;
    for (auto& [folder, files] : folders) {
        files.removeDuplicates();
        if (const std::optional<Problem> problem = copyFiles(placeOf(folder), files))
            return problem;
    }
    for (FileReference& reference : design.files) {
        if (reference.state != FileState::Exists)
            continue;
        referTo(reference, m_copies.at(reference.file));
        if (const std::optional<Problem> problem = bringDesign(reference))
            return problem;
    }
    return std::nullopt;
}

/** Of a copy that nobody can be asked about, as what is there, or is about to be, must stay. */
std::optional<Problem> DesignRelocation::obstacleTo(const QString& folder,
                                                    const QString& file) const
{
    const QString name = QFileInfo(file).fileName();
    const bool isInPlace = realPath(folder) == m_to.canonicalPath();
    if (isInPlace && name.compare(m_name, Qt::CaseInsensitive) == 0)
        return Problem{file, {}, tr("comes along and has the name that the design shall get")};
    const QString target = realPath(QDir(folder).filePath(name));
    const bool isOpen = std::any_of(m_open.begin(), m_open.end(), [&target](const Design& design) {
        return design.file == target;
    });
    if (isOpen)
        return Problem{target, {}, tr("is open here and is not replaced")};
    return std::nullopt;
}

std::optional<Problem> DesignRelocation::copyFiles(const QString& folder, const QStringList& files)
{
    if (!QDir().mkpath(folder))
        return Problem{folder, {}, tr("cannot be made a folder")};
    for (const QString& file : files)
        if (std::optional<Problem> obstacle = obstacleTo(folder, file))
            return obstacle;
    int code = 0;
    FileCopyUtility utility(m_parent, files, folder);
    const Copies copies = utility.copyFiles(code);
    if (code != 0)
        return Problem{folder, {}, tr("is no longer what it was; nothing is copied")};
    for (const QString& file : files) {
        const FileCopyUtility::FileCopyInfo* const copy = copyOf(file, copies);
        // Another file of that name is not the design's.
        if (copy == nullptr || copy->status == FileCopyUtility::NotCopied)
            return Problem{file, {}, tr("was not copied")};
        m_copies[file] = copy->target;
    }
    return std::nullopt;
}

/** In place of the file's plain copy, whose name the user has agreed to. */
std::optional<Problem> DesignRelocation::bringDesign(const FileReference& reference)
{
    const QString file = realPath(reference.file);
    if (reference.kind != FileKind::Design || !m_designs.insert(file).second)
        return std::nullopt;
    const auto open = std::find_if(m_open.begin(), m_open.end(),
                                   [&file](const Design& design) { return design.file == file; });
    if (open == m_open.end())
        return std::nullopt;
    Design copy = DesignCopy::of(*open, m_copies.at(reference.file));
    if (std::optional<Problem> problem = bring(copy))
        return problem;
    // The copy of a protected file is protected, too.
    QFile::setPermissions(copy.file, QFile::permissions(copy.file) | QFile::WriteOwner);
    return DesignWriter::write(copy);
}

} // namespace Zorvane::Workbench
