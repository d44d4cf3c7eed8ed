#include "Workbench/Commands/FileCommands.h"

#include "Files/DesignPathProvider.h"
#include "Files/LastPathProvider.h"
#include "Workbench/Commands/DesignCopy.h"
#include "Workbench/Commands/DesignRelocation.h"
#include "Workbench/Design/DesignSession.h"
#include "Workbench/Design/DesignWriter.h"
#include "Workbench/Design/FileNames.h"
#include "Workbench/Meshes/MeshReader.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QPointer>

#include <algorithm>
#include <utility>

namespace Zorvane::Workbench {

namespace {

const QString s_scope = QStringLiteral("Design");
const QString s_pattern = QStringLiteral("*.dsg");

QString openFilters()
{
    const QStringList meshes = MeshReader::nameFilters();
    const QStringList all = QStringList{s_pattern} + meshes;
    return FileCommands::tr("Designs and meshes (%1)").arg(all.join(QLatin1Char(' '))) +
           FileCommands::tr(";;Designs (%1)").arg(s_pattern) +
           FileCommands::tr(";;Meshes (%1)").arg(meshes.join(QLatin1Char(' '))) +
           FileCommands::tr(";;All files (*)");
}

FileChoice choiceFor(const Design& design, const QString& caption)
{
    return {caption, DesignPathProvider::getInstance(design.id, FileName(design.file)), s_scope,
            FileCommands::tr("Designs (%1)").arg(s_pattern)};
}

Design copyOf(const Design& design, const QString& file, FileCommands::Results results,
              Successors* successors = nullptr)
{
    Design copy = DesignCopy::of(design, file, successors);
    if (results == FileCommands::Results::Keep)
        return copy;
    const auto isResult = [](const FileReference& reference) {
        return reference.kind == FileKind::Result;
    };
    copy.files.erase(std::remove_if(copy.files.begin(), copy.files.end(), isResult),
                     copy.files.end());
    for (const FileReference& reference : design.files)
        if (successors != nullptr && isResult(reference))
            (*successors)[reference.id] = GUIdentifier();
    return copy;
}

} // namespace

FileCommands::FileCommands(DesignSession& session, QWidget* window)
    : QObject(window)
    , m_session(session)
    , m_window(window)
    , m_chooser(std::make_unique<DialogFileChooser>())
{}

FileCommands::~FileCommands() = default;

QString FileCommands::scope()
{
    return s_scope;
}

void FileCommands::setFileChooser(std::unique_ptr<FileChooser> chooser)
{
    m_chooser = std::move(chooser);
}

void FileCommands::openFiles()
{
    const QPointer<FileCommands> self(this);
    const QStringList files = m_chooser->files(
        m_window, {tr("Open Files"), LastPathProvider::getInstance(), s_scope, openFilters()});
    if (self && !files.isEmpty())
        Q_EMIT chosen(files);
}

void FileCommands::openFolder()
{
    const QPointer<FileCommands> self(this);
    const QString folder = m_chooser->folder(
        m_window, {tr("Open Folder"), LastPathProvider::getInstance(), s_scope, {}});
    if (self && !folder.isEmpty())
        Q_EMIT chosen({folder});
}

bool FileCommands::saveAs(GUIdentifier objectId, Results results)
{
    const Design* design = m_session.findDesign(objectId);
    if (design == nullptr)
        return false;
    const QPointer<FileCommands> self(this);
    const QString target = m_chooser->fileToSave(m_window, choiceFor(*design, tr("Save Design As")),
                                                 DesignCopy::typableName(design->file));
    if (!self || target.isEmpty())
        return false;
    design = m_session.findDesign(objectId);
    if (design == nullptr)
        return false;
    std::optional<Problem> obstacle = obstacleTo(target);
    Successors successors;
    Design copy = copyOf(*design, target, results, &successors);
    const GUIdentifier replaced = design->id;
    const QString former = design->file;
    const bool wasThere = QFileInfo::exists(target);
    if (!obstacle)
        obstacle =
            DesignRelocation(m_window, former, target, m_session.designs()).bringFilesOf(copy);
    if (!self)
        return false;
    if (!obstacle && m_session.findDesign(replaced) == nullptr)
        obstacle = Problem{former, {}, tr("was closed meanwhile and is not saved")};
    // Nobody has agreed to lose what has come there while files were copied.
    if (!obstacle && !wasThere && QFileInfo::exists(target))
        obstacle = Problem{target, {}, tr("has been made meanwhile and is not replaced")};
    if (!write(copy, obstacle))
        return false;
    Q_EMIT replacing(successors, copy);
    m_session.replace(replaced, target);
    Q_EMIT savedAs(target);
    Q_EMIT done(tr("Saved as %1").arg(QDir::toNativeSeparators(target)));
    return true;
}

bool FileCommands::saveCopy(GUIdentifier objectId, Results results)
{
    const Design* design = m_session.findDesign(objectId);
    if (design == nullptr)
        return false;
    const QPointer<FileCommands> self(this);
    const QString target = m_chooser->fileToSaveBeside(
        m_window, choiceFor(*design, tr("Save a Copy")), DesignCopy::proposedFile(design->file));
    if (!self || target.isEmpty())
        return false;
    design = m_session.findDesign(objectId);
    if (design == nullptr || !write(copyOf(*design, target, results), obstacleTo(target)))
        return false;
    Q_EMIT done(tr("A copy is saved as %1").arg(QDir::toNativeSeparators(target)));
    return true;
}

std::optional<Problem> FileCommands::obstacleTo(const QString& target) const
{
    const QFileInfo info(target);
    if (!FileNames::isDesign(target))
        return Problem{target, {}, tr("is no name for a design: it must end with .dsg")};
    const QString obstacle = FileNames::obstacle(info.fileName());
    if (!obstacle.isEmpty())
        return Problem{target, {}, obstacle};
    if (m_session.findByFile(target) != nullptr)
        return Problem{target, {}, tr("is open here and is not replaced")};
    return std::nullopt;
}

bool FileCommands::write(const Design& copy, const std::optional<Problem>& obstacle)
{
    const std::optional<Problem> problem = obstacle ? obstacle : DesignWriter::write(copy);
    if (problem)
        Q_EMIT failed(problem->text());
    return !problem;
}

} // namespace Zorvane::Workbench
