#include "Workbench/Import/FileExchange.h"

#include "Files/DesignPathProvider.h"
#include "Files/FileTypeFilters.h"
#include "Workbench/Design/DesignSession.h"
#include "Workbench/Import/FileExport.h"
#include "Workbench/Import/FileImport.h"
#include "Workbench/Meshes/MeshReader.h"

#include <QtCore/QDir>
#include <QtCore/QPointer>

#include <utility>

namespace Zorvane::Workbench {

namespace {

const QString s_importScope = QStringLiteral("Import");
const QString s_exportScope = QStringLiteral("Export");
constexpr std::size_t s_mostProblems = 3;

} // namespace

FileExchange::FileExchange(DesignSession& session, BaseView* view, QObject* parent)
    : QObject(parent)
    , m_session(session)
    , m_view(view)
    , m_chooser(std::make_unique<DialogFileChooser>())
{}

FileExchange::~FileExchange() = default;

void FileExchange::setFileChooser(std::unique_ptr<FileChooser> chooser)
{
    m_chooser = std::move(chooser);
}

GUIdentifier FileExchange::targetFor(const GUIdentifier& objectId) const
{
    if (const Design* design = m_session.findDesign(objectId))
        return design->id;
    return m_session.designs().empty() ? GUIdentifier() : m_session.designs().front().id;
}

bool FileExchange::canExport(const GUIdentifier& objectId) const
{
    return !FileExport::filesOf(m_session, objectId).isEmpty();
}

PathProvider& FileExchange::pathsOf(const GUIdentifier& objectId) const
{
    const Design* design = m_session.findDesign(objectId);
    if (design == nullptr)
        return *DefaultPathProvider::getInstance();
    return *DesignPathProvider::getInstance(design->id, FileName(design->file));
}

QString FileExchange::importFilters() const
{
    QStringList filters{tr("All files (*)"),
                        tr("Meshes (%1)").arg(MeshReader::nameFilters().join(QLatin1Char(' ')))};
    for (const ZvFileType type : {ZvFileType::Csv, ZvFileType::Json, ZvFileType::Text})
        filters << QString::fromStdString(getFileFilterForType(type));
    return filters.join(QStringLiteral(";;"));
}

void FileExchange::importFiles(GUIdentifier designId)
{
    const QPointer<FileExchange> self(this);
    const QStringList files = m_chooser->files(
        m_view, {tr("Import Files"), &pathsOf(designId), s_importScope, importFilters()});
    if (!self || files.isEmpty())
        return;
    const ImportOutcome outcome = FileImport(m_session, m_view).run(designId, files);
    if (!self)
        return;
    tell(outcome.problems);
    if (outcome.files.isEmpty())
        return;
    const int count = outcome.files.size();
    Q_EMIT done(count == 1 ? tr("1 file imported") : tr("%n files imported", nullptr, count));
    Q_EMIT imported(m_session.findObject(designId, outcome.files.first()));
}

void FileExchange::exportFiles(GUIdentifier objectId)
{
    const QStringList files = FileExport::filesOf(m_session, objectId);
    if (files.isEmpty())
        return;
    const QPointer<FileExchange> self(this);
    const QString folder =
        m_chooser->folder(m_view, {tr("Export to Folder"), &pathsOf(objectId), s_exportScope, {}});
    if (!self || folder.isEmpty())
        return;
    const ExportOutcome outcome = FileExport::run(m_view, files, folder);
    if (!self)
        return;
    tell(outcome.problems);
    const int count = outcome.copies.size();
    if (count > 0)
        Q_EMIT done(
            (count == 1 ? tr("1 file copied to %1") : tr("%n files copied to %1", nullptr, count))
                .arg(QDir::toNativeSeparators(folder)));
}

void FileExchange::tell(const Problems& problems)
{
    QStringList lines;
    for (const Problem& problem : problems) {
        if (lines.size() == int(s_mostProblems))
            break;
        lines << problem.text();
    }
    if (problems.size() > s_mostProblems)
        lines << tr("and %n more", nullptr, int(problems.size() - s_mostProblems));
    if (!lines.isEmpty())
        Q_EMIT failed(lines.join(QLatin1Char('\n')));
}

} // namespace Zorvane::Workbench
