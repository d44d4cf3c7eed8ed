#include "Workbench/Import/FileExport.h"

#include "Files/FileCopyUtility.h"
#include "Workbench/Design/DesignSession.h"

#include <QtCore/QFileInfo>

#include <algorithm>

namespace Zorvane::Workbench {

namespace {

template <typename Object>
const Object* find(const std::vector<Object>& objects, const GUIdentifier& id)
{
    const auto found = std::find_if(objects.begin(), objects.end(),
                                    [&id](const Object& object) { return object.id == id; });
    return found == objects.end() ? nullptr : &*found;
}

/** Of what has a file of another kind than a mesh. */
QString otherFile(const Design& design, const GUIdentifier& objectId)
{
    const Material* material = find(design.materials, objectId);
    const FileReference* file = design.findFile(material ? material->file : objectId);
    return file == nullptr ? QString() : file->file;
}

QString obstacleOf(const QString& file, const QString& folder)
{
    if (!QFileInfo::exists(file))
        return FileExport::tr("is missing");
    const int code = FileCopyUtility::check({file}, folder);
    if (code & FileCopyUtility::SourceMissing)
        return FileExport::tr("is not a file");
    if (code & FileCopyUtility::AlreadyInTarget)
        return FileExport::tr("lies in that folder already");
    return {};
}

} // namespace

QStringList FileExport::filesOf(const DesignSession& session, const GUIdentifier& objectId)
{
    QStringList files{session.geometryFile(objectId)};
    if (const Design* design = session.findDesign(objectId)) {
        if (files.first().isEmpty())
            files << otherFile(*design, objectId);
        if (const Operation* operation = find(design->operations, objectId))
            for (const Tool& tool : operation->tools)
                files << session.geometryFile(tool.id);
    }
    files.removeAll(QString());
    files.removeDuplicates();
    return files;
}

ExportOutcome FileExport::run(QWidget* parent, const QStringList& files, const QString& folder)
{
    if (!QFileInfo(folder).isDir())
        return {{}, {{folder, {}, tr("is not a folder")}}};
    ExportOutcome outcome;
    for (const QString& file : files) {
        const QString obstacle = obstacleOf(file, folder);
        if (!obstacle.isEmpty())
            outcome.problems.push_back({file, {}, obstacle});
    }
    if (!outcome.problems.empty())
        return outcome;
    int code = 0;
    FileCopyUtility utility(parent, files, folder);
    for (const FileCopyUtility::FileCopyInfo& record : utility.copyFiles(code))
        if (record.status != FileCopyUtility::NotCopied)
            outcome.copies << record.target;
    if (code != 0)
        outcome.problems.push_back({folder, {}, tr("is no longer what it was; nothing is copied")});
    return outcome;
}

} // namespace Zorvane::Workbench
