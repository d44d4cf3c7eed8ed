#include "Workbench/Import/FileImport.h"

#include "Files/FileTypeDependingFilesHelper.h"
#include "Workbench/Design/FileAdditions.h"
#include "Workbench/Design/SessionDesign.h"

#include <QtCore/QFileInfo>

#include <list>
#include <memory>
#include <set>

namespace Zorvane::Workbench {

namespace {

/** Whatever a design refers to has to lie in its folder. */
std::set<ZvFileType> allTypes()
{
    std::set<ZvFileType> types;
    for (int number = 0; number <= int(ZvFileType::Unknown); ++number)
        types.insert(ZvFileType(number));
    return types;
}

Problems obstaclesOf(const QStringList& files)
{
    Problems problems;
    for (const QString& file : files)
        if (const std::optional<Problem> problem = FileAdditions::obstacle(file))
            problems.push_back(*problem);
    return problems;
}

/** Nothing where the user gave the import up, or has read about the copy already. */
QString refusalText(DependingFileHelper::ImportRefusal refusal)
{
    using Refusal = DependingFileHelper::ImportRefusal;
    switch (refusal) {
    case Refusal::SourceMissing:
        return FileImport::tr("cannot take the files, since one of them is missing now");
    case Refusal::NoDesignFolder:
        return FileImport::tr("cannot take the files, since its folder is missing");
    case Refusal::LiesThere:
        return FileImport::tr("cannot take the files, since one of them is a link into its folder");
    case Refusal::None:
    case Refusal::Declined:
    case Refusal::NothingCopied:
        break;
    }
    return {};
}

} // namespace

FileImport::FileImport(DesignSession& session, BaseView* view)
    : m_session(&session)
    , m_view(view)
{}

ImportOutcome FileImport::run(GUIdentifier designId, const QStringList& files)
{
    const Design* design = m_session->findDesign(designId);
    if (design == nullptr)
        return {{}, {{{}, {}, tr("there is no open design to import into")}}};
    if (!QFileInfo::exists(design->file))
        return {{}, {{design->file, {}, tr("is missing, so that nothing can be put beside it")}}};
    Problems problems = obstaclesOf(files);
    QStringList inFolder;
    std::list<FileName> elsewhere;
    for (const QString& file : files) {
        if (!FileAdditions::obstacle(*design, file))
            inFolder << file;
        else if (QFileInfo(file).canonicalFilePath() == QFileInfo(design->file).canonicalFilePath())
            problems.push_back(*FileAdditions::obstacle(*design, file));
        else
            elsewhere.emplace_back(file);
    }
    if (!problems.empty())
        return {{}, problems};
    // From here on events are handled, which may read the design again, or end the session.
    FileTypeDependingFilesHelper helper(
        m_view, std::make_shared<SessionDesign>(*m_session, designId), allTypes());
    const QString designFile = design->file;
    DependingFileHelper::ImportRefusal refusal{};
    if (!elsewhere.empty() && !helper.handleExternalFilesForImport(elsewhere, elsewhere, refusal)) {
        const QString text = refusalText(refusal);
        return {{}, text.isEmpty() ? Problems() : Problems{{designFile, {}, text}}};
    }
    if (!m_session)
        return {};
    for (const FileName& file : elsewhere)
        inFolder << file.toQString();
    problems = m_session->addFiles(designId, inFolder);
    return {problems.empty() ? inFolder : QStringList(), problems};
}

} // namespace Zorvane::Workbench
