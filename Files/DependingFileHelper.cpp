#include "Files/DependingFileHelper.h"

#include "Files/FileCopyService.h"
#include "Files/PathText.h"
#include "Host/FileHandling/FileUtilities.h"

namespace Zorvane {

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
    std::list<FileName> toCopy;
    std::list<FileName> toKeep;
    const FileName designFolder = getDesignFilePath();
    const bool hasDesign = FileUtilities::exists(getDesignFileName());
    for (const FileName& file : files)
        (hasDesign && needsCopy(file, designFolder) ? toCopy : toKeep).push_back(file);
    if (!toCopy.empty()) {
        QString title;
        QString text;
        buildExternalFilesUIMessage(designFolder, toCopy, title, text);
        std::list<FileName> copied;
        FileCopyService::copyFilesToDirectory(getView(), title, text, toCopy, designFolder, copied);
        if (copied.empty())
            return false;
        toKeep.splice(toKeep.end(), copied);
    }
    filesToUse = std::move(toKeep);
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
    QString title;
    QString text;
    buildExternalFilesUIMessage(designFolder, toCopy, title, text);
    int code = 0;
    const auto records = FileCopyService::copyFilesToDirectory(
        getView(), title, text, FileCopyService::toStringList(toCopy),
        pathFromBytes(designFolder.toNativeString()), code);
    for (const FileCopyUtility::FileCopyInfo& record : records) {
        if (record.status != FileCopyUtility::NotCopied)
            exported.push_back(
                {FileName(pathToBytes(record.source)), FileName(pathToBytes(record.target))});
    }
    return true;
}

} // namespace Zorvane
