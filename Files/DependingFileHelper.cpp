#include "Files/DependingFileHelper.h"

#include "Files/CopyCheck.h"
#include "Files/DialogCopyProgress.h"
#include "Files/FileCopyService.h"
#include "Files/PathText.h"
#include "Host/FileHandling/FileUtilities.h"

namespace Zorvane {

namespace {

// The service leaves the code as it is if no copy was tried.
constexpr int notRun = -1;

} // namespace

DependingFileHelper::DependingFileHelper() = default;
DependingFileHelper::DependingFileHelper(const DependingFileHelper& other) = default;
DependingFileHelper& DependingFileHelper::operator=(const DependingFileHelper& other) = default;
DependingFileHelper::~DependingFileHelper() = default;

FileName DependingFileHelper::getDesignFilePath() const
{
    const FileName design = getDesignFileName();
    return design.isEmpty() ? FileName() : design.getParentPath();
}

bool DependingFileHelper::needsCopy(const FileName& file, const FileName& designFolder) const
{
    return FileUtilities::exists(file) && isExternalReferenceFile(file) &&
           !FileUtilities::isEquivalent(file.getParentPath(), designFolder);
}

bool DependingFileHelper::handleExternalFilesForImport(const std::list<FileName>& files,
                                                       std::list<FileName>& filesToUse)
{
    ImportRefusal refusal = ImportRefusal::None;
    return handleExternalFilesForImport(files, filesToUse, refusal);
}

bool DependingFileHelper::handleExternalFilesForImport(const std::list<FileName>& files,
                                                       std::list<FileName>& filesToUse,
                                                       ImportRefusal& refusal)
{
    std::list<FileName> toCopy;
    std::list<FileName> toUse;
    const FileName designFolder = getDesignFilePath();
    const bool hasDesign = FileUtilities::exists(getDesignFileName());
    for (const FileName& file : files)
        (hasDesign && needsCopy(file, designFolder) ? toCopy : toUse).push_back(file);
    refusal = ImportRefusal::None;
    if (!toCopy.empty()) {
        int code = notRun;
        const std::size_t kept = toUse.size();
        for (const FileCopyUtility::FileCopyInfo& record : copy(toCopy, code)) {
            if (record.status != FileCopyUtility::NotCopied)
                toUse.emplace_back(pathToBytes(record.target));
        }
        if (toUse.size() == kept) {
            refusal = refusalOf(toCopy, code);
            return false;
        }
    }
    filesToUse = std::move(toUse);
    return true;
}

bool DependingFileHelper::handleExternalFilesForExport(const std::list<FileName>& files,
                                                       std::list<ExportedFileName>& exported)
{
    exported.clear();
    if (!FileUtilities::exists(getDesignFileName()))
        return false;
    std::list<FileName> toCopy;
    const FileName designFolder = getDesignFilePath();
    for (const FileName& file : files) {
        if (needsCopy(file, designFolder))
            toCopy.push_back(file);
    }
    if (toCopy.empty())
        return true;
    int code = notRun;
    for (const FileCopyUtility::FileCopyInfo& record : copy(toCopy, code)) {
        if (record.status != FileCopyUtility::NotCopied)
            exported.push_back(
                {FileName(pathToBytes(record.source)), FileName(pathToBytes(record.target))});
    }
    return true;
}

QList<FileCopyUtility::FileCopyInfo> DependingFileHelper::copy(const std::list<FileName>& files,
                                                               int& code) const
{
    const FileName designFolder = getDesignFilePath();
    QString title;
    QString text;
    buildExternalFilesUIMessage(designFolder, files, title, text);
    return FileCopyService::copyFilesToDirectory(
        getView(), title, text, FileCopyService::toStringList(files),
        pathFromBytes(designFolder.toNativeString()), code);
}

DependingFileHelper::ImportRefusal DependingFileHelper::refusalOf(const std::list<FileName>& files,
                                                                  int code) const
{
    switch (code) {
    case FileCopyUtility::SourceMissing:
        return ImportRefusal::SourceMissing;
    case 0:
        return ImportRefusal::NothingCopied;
    case notRun:
        break;
    default:
        return code & FileCopyUtility::AlreadyInTarget ? ImportRefusal::LiesThere
                                                       : ImportRefusal::NoDesignFolder;
    }
    // The service doesn't ask where a file lies in the folder, and says no more than for "No".
    DialogCopyProgress progress(getView());
    const auto checked = checkCopy(FileCopyService::toStringList(files),
                                   pathFromBytes(getDesignFilePath().toNativeString()), progress);
    const bool liesThere = checked && (*checked & FileCopyUtility::AlreadyInTarget) != 0;
    return liesThere ? ImportRefusal::LiesThere : ImportRefusal::Declined;
}

} // namespace Zorvane
