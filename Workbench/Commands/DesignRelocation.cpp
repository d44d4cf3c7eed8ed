#include "Workbench/Commands/DesignRelocation.h"

#include "Files/FileCopyUtility.h"
#include "Host/FileHandling/FileUtilities.h"
#include "Workbench/Commands/DesignCopy.h"
#include "Workbench/Design/DesignWriter.h"
#include "Workbench/Design/FileNames.h"
#include "Workbench/Design/FileReferences.h"

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

/** Of folders that are there; systems spell one in several ways. */
bool isSameFolder(const QString& left, const QString& right)
{
    return FileUtilities::isEquivalent(FileName(left), FileName(right));
}

QDir folderOf(const QString& file)
{
    return QDir::cleanPath(QFileInfo(file).absolutePath());
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

/** Written as it was, as long as it leads there. */
void refer(FileReference& reference, const QString& path)
{
    // Either separates, as in every reference of a design.
    const QString present = QString(reference.path).replace(QLatin1Char('\\'), QLatin1Char('/'));
    if (QDir::cleanPath(present) != path)
        reference.path = path;
}

} // namespace

DesignRelocation::DesignRelocation(QWidget* parent, const QString& from, const QString& to,
                                   std::vector<Design> open)
    : m_parent(parent)
    , m_from(folderOf(from))
    , m_to(folderOf(to))
    , m_name(QFileInfo(to).fileName())
    , m_open(std::move(open))
    , m_copies{{{from, m_to.path()}, m_to.filePath(m_name)}}
    , m_designs{{from, m_to.filePath(m_name)}}
{}

std::optional<Problem> DesignRelocation::bringFilesOf(Design& design)
{
    if (isSameFolder(m_from.path(), m_to.path()))
        return std::nullopt;
    return bring(design, m_from);
}

/** Null for what is no design or isn't open. */
const Design* DesignRelocation::openDesign(const FileReference& reference) const
{
    if (reference.kind != FileKind::Design)
        return nullptr;
    const QString real = realPath(reference.file);
    // A file that is gone may be back when it is copied.
    const QString& file = real.isEmpty() ? reference.file : real;
    const auto isIt = [&file](const Design& design) {
        return FileNames::areSame(design.file, file);
    };
    const auto open = std::find_if(m_open.begin(), m_open.end(), isIt);
    return open == m_open.end() ? nullptr : &*open;
}

/** What the copy of a design refers to, which itself has the folder `from`. */
std::optional<Problem> DesignRelocation::bring(Design& design, const QDir& from)
{
    const std::vector<Coming> coming = whatComesWith(design, from);
    std::map<QString, QStringList> folders;
    std::vector<std::pair<const Design*, Place>> designs;
    for (const auto& [reference, place, open] : coming) {
        if (open != nullptr && !m_designs.emplace(open->file, QString()).second)
            continue;
        if (open != nullptr)
            designs.emplace_back(open, place);
        if (m_copies.count(place) == 0)
            folders[place.second] << place.first;
    }
    for (auto& [folder, files] : folders) {
        files.removeDuplicates();
        if (const std::optional<Problem> problem = copyFiles(folder, files, folderOf(design.file)))
            return problem;
    }
    for (const auto& [open, place] : designs)
        m_designs[open->file] = m_copies.at(place);
    if (const std::optional<Problem> problem = referToCopies(design, coming))
        return problem;
    for (const auto& [open, place] : designs)
        if (const std::optional<Problem> problem = bringDesign(*open))
            return problem;
    return std::nullopt;
}

std::vector<DesignRelocation::Coming> DesignRelocation::whatComesWith(Design& design,
                                                                      const QDir& from)
{
    const QDir to = folderOf(design.file);
    std::vector<Coming> coming;
    for (FileReference& reference : design.files)
        if (reference.state == FileState::Exists)
            coming.push_back(
                {&reference, placeOf(reference.file, from, to), openDesign(reference)});
    return coming;
}

/** The place stays the same below the design's folder. */
DesignRelocation::Place DesignRelocation::placeOf(const QString& file, const QDir& from,
                                                  const QDir& to)
{
    const QString source = m_spellings.firstOf(file);
    const QString folder = from.relativeFilePath(QFileInfo(source).absolutePath());
    return {source, QDir::cleanPath(to.filePath(folder))};
}

/** What has got another name, or is reached by a link elsewhere, is referred to where it is. */
std::optional<Problem> DesignRelocation::referToCopies(const Design& design,
                                                       const std::vector<Coming>& coming) const
{
    const QDir to = folderOf(design.file);
    for (const auto& [reference, place, open] : coming) {
        const QString& copy = open != nullptr ? m_designs.at(open->file) : m_copies.at(place);
        const QString path = to.relativeFilePath(copy);
        if (path.startsWith(QLatin1String("../")))
            return Problem{reference->file,
                           {},
                           tr("comes along by a link, out of reach from %1").arg(design.name)};
        refer(*reference, path);
    }
    return std::nullopt;
}

/** Of copies through links that are in the new folder already. */
std::optional<Problem> DesignRelocation::obstacleIn(const QString& folder, const QString& source,
                                                    const QDir& design)
{
    if (isSameFolder(folder, source))
        return Problem{folder, {}, tr("is a link to the folder that the files come from")};
    if (resolveReference(design.path(), design.relativeFilePath(folder)).state ==
        FileState::Outside)
        return Problem{folder, {}, tr("is a link that leads out of the design's new folder")};
    return std::nullopt;
}

/** Of a copy that nobody can be asked about, as what is there, or is about to be, must stay. */
std::optional<Problem> DesignRelocation::obstacleTo(const QString& folder,
                                                    const QString& file) const
{
    const QString name = QFileInfo(file).fileName();
    const bool isInPlace = isSameFolder(folder, m_to.path());
    if (isInPlace && name.compare(m_name, Qt::CaseInsensitive) == 0)
        return Problem{file, {}, tr("comes along and has the name that the design shall get")};
    const QString target = realPath(QDir(folder).filePath(name));
    if (target.isEmpty())
        return std::nullopt;
    if (designOfFile(m_open, target) != nullptr)
        return Problem{target, {}, tr("is open here and is not replaced")};
    const auto hasCome = [&target](const auto& copy) {
        return FileUtilities::isEquivalent(FileName(copy.second), FileName(target));
    };
    if (std::any_of(m_copies.begin(), m_copies.end(), hasCome))
        return Problem{file, {}, tr("has the name of another file that comes along")};
    return std::nullopt;
}

/** For a design that goes to the folder `design`. */
std::optional<Problem> DesignRelocation::copyFiles(const QString& folder, const QStringList& files,
                                                   const QDir& design)
{
    const QString source = QFileInfo(files.front()).absolutePath();
    if (std::optional<Problem> obstacle = obstacleIn(folder, source, design))
        return obstacle;
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
        m_copies[{file, folder}] = QDir(folder).filePath(QFileInfo(copy->target).fileName());
    }
    return std::nullopt;
}

/** In place of the file's plain copy, whose name the user has agreed to. */
std::optional<Problem> DesignRelocation::bringDesign(const Design& open)
{
    Design copy = DesignCopy::of(open, m_designs.at(open.file));
    if (std::optional<Problem> problem = bring(copy, folderOf(open.file)))
        return problem;
    // The copy of a protected file is protected, too.
    QFile::setPermissions(copy.file, QFile::permissions(copy.file) | QFile::WriteOwner);
    return DesignWriter::write(copy);
}

} // namespace Zorvane::Workbench
