#include "Workbench/Commands/DesignCopy.h"

#include "Files/FileCopyUtility.h"
#include "Host/FileHandling/FileUtilities.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <map>

namespace Zorvane::Workbench {

namespace {

/** New identifiers for old ones, each once. */
class NewIds
{
public:
    void renew(GUIdentifier& id)
    {
        if (id.isNull())
            return;
        GUIdentifier& known = m_ids[id];
        if (known.isNull())
            known = GUIdentifier::create();
        id = known;
    }

    void renew(Tool& tool)
    {
        renew(tool.id);
        renew(tool.geometry);
    }
    void renew(Operation& operation)
    {
        renew(operation.id);
        for (Tool& tool : operation.tools)
            renew(tool);
    }
    void renew(Blank& blank)
    {
        renew(blank.id);
        renew(blank.material);
        renew(blank.geometry);
    }
    void renew(Part& part)
    {
        renew(part.id);
        renew(part.geometry);
    }
    void renew(Material& material)
    {
        renew(material.id);
        renew(material.file);
    }
    void renew(FileReference& file) { renew(file.id); }

    template <typename Piece>
    void renew(std::vector<Piece>& pieces)
    {
        for (Piece& piece : pieces)
            renew(piece);
    }

private:
    std::map<GUIdentifier, GUIdentifier> m_ids;
};

/** References to files that are there, by the folders that the files lie in. */
std::map<QString, std::vector<FileReference*>> referencesByFolder(Design& design)
{
    std::map<QString, std::vector<FileReference*>> folders;
    for (FileReference& reference : design.files)
        if (reference.state == FileState::Exists)
            folders[QFileInfo(reference.file).absolutePath()].push_back(&reference);
    return folders;
}

void referTo(const FileCopyUtility::FileCopyInfo& copy, const std::vector<FileReference*>& files)
{
    const QString name = QFileInfo(copy.target).fileName();
    for (FileReference* reference : files) {
        // Shells spell paths their own way.
        if (!FileUtilities::isEquivalent(FileName(reference->file), FileName(copy.source)))
            continue;
        // Either separates, as in every reference of a design.
        const int slash = reference->path.lastIndexOf(QLatin1Char('/'));
        const int backslash = reference->path.lastIndexOf(QLatin1Char('\\'));
        reference->path = reference->path.left(std::max(slash, backslash) + 1) + name;
    }
}

/** Copies the files into the folder; the references follow those that get other names there. */
std::optional<Problem> bring(QWidget* parent, const std::vector<FileReference*>& references,
                             const QString& folder)
{
    if (!QDir().mkpath(folder))
        return Problem{folder, {}, DesignCopy::tr("cannot be made a folder")};
    QStringList files;
    for (const FileReference* reference : references)
        files << reference->file;
    files.removeDuplicates();
    int code = 0;
    FileCopyUtility utility(parent, files, folder);
    for (const FileCopyUtility::FileCopyInfo& copy : utility.copyFiles(code)) {
        // Another file of that name is not the design's.
        if (copy.status == FileCopyUtility::NotCopied)
            return Problem{copy.source, {}, DesignCopy::tr("was not copied")};
        if (copy.status == FileCopyUtility::CopiedUnderOtherName)
            referTo(copy, references);
    }
    if (code != 0)
        return Problem{folder, {}, DesignCopy::tr("is no longer what it was; nothing is copied")};
    return std::nullopt;
}

} // namespace

Design DesignCopy::of(const Design& design, const QString& file)
{
    Design copy = design;
    copy.file = file;
    NewIds ids;
    ids.renew(copy.id);
    if (copy.blank)
        ids.renew(*copy.blank);
    ids.renew(copy.parts);
    ids.renew(copy.operations);
    ids.renew(copy.materials);
    ids.renew(copy.files);
    return copy;
}

QString DesignCopy::typableName(const QString& designFile)
{
    return QFileInfo(designFile).fileName().replace(QLatin1Char('"'), QLatin1String("''"));
}

QString DesignCopy::proposedFile(const QString& designFile)
{
    const QDir folder = QFileInfo(designFile).dir();
    const QFileInfo info(typableName(designFile));
    for (int number = 1;; ++number) {
        const QString name =
            number == 1 ? tr("%1 copy").arg(info.completeBaseName())
                        : tr("%1 copy %2").arg(info.completeBaseName(), QString::number(number));
        const QString file = folder.filePath(name + QStringLiteral(".dsg"));
        if (!QFileInfo::exists(file))
            return file;
    }
}

std::optional<Problem> DesignCopy::bringFiles(QWidget* parent, Design& design, const QString& from)
{
    const QDir target = QFileInfo(design.file).dir();
    if (QFileInfo(from).canonicalFilePath() == QFileInfo(target.path()).canonicalFilePath())
        return std::nullopt;
    for (const auto& [folder, references] : referencesByFolder(design)) {
        const QString place = QDir::cleanPath(target.filePath(QDir(from).relativeFilePath(folder)));
        if (const std::optional<Problem> problem = bring(parent, references, place))
            return problem;
    }
    return std::nullopt;
}

} // namespace Zorvane::Workbench
