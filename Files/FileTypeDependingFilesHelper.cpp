#include "Files/FileTypeDependingFilesHelper.h"

#include "Files/PathText.h"
#include "Host/Translation/ArgString.h"
#include "Host/Translation/Translator.h"

namespace Zorvane {

namespace {

QString shown(const FileName& file)
{
    return pathForDisplay(pathFromBytes(file.toString()));
}

} // namespace

FileTypeDependingFilesHelper::FileTypeDependingFilesHelper(
    BaseView* view, std::shared_ptr<const DesignInterface> design, std::set<ZvFileType> types)
    : m_view(view)
    , m_design(std::move(design))
    , m_types(std::move(types))
{}

FileTypeDependingFilesHelper::FileTypeDependingFilesHelper(
    BaseView* view, std::shared_ptr<const DesignInterface> design, const ZvFileType& type)
    : FileTypeDependingFilesHelper(view, std::move(design), std::set<ZvFileType>{type})
{}

FileTypeDependingFilesHelper::FileTypeDependingFilesHelper(
    const FileTypeDependingFilesHelper& other) = default;
FileTypeDependingFilesHelper::FileTypeDependingFilesHelper(
    FileTypeDependingFilesHelper&& other) noexcept = default;
FileTypeDependingFilesHelper&
FileTypeDependingFilesHelper::operator=(const FileTypeDependingFilesHelper& other) = default;
FileTypeDependingFilesHelper&
FileTypeDependingFilesHelper::operator=(FileTypeDependingFilesHelper&& other) noexcept = default;
FileTypeDependingFilesHelper::~FileTypeDependingFilesHelper() = default;

FileName FileTypeDependingFilesHelper::getDesignFileName() const
{
    return m_design ? m_design->getFileName() : FileName();
}

bool FileTypeDependingFilesHelper::isExternalReferenceFile(const FileName& file) const
{
    return m_types.count(getFileType(file)) > 0;
}

QWidget* FileTypeDependingFilesHelper::getView() const
{
    return m_view;
}

void FileTypeDependingFilesHelper::buildExternalFilesUIMessage(const FileName& designFolder,
                                                               const std::list<FileName>& files,
                                                               QString& title, QString& text) const
{
    if (files.size() == 1) {
        title = Translator::translate("InnerPartDependingFilesHelper", "Copy File");
        text = ArgString(Translator::translate("InnerPartDependingFilesHelper",
                                               "%1 is not next to the design file.\n"
                                               "Do you want to copy it to %2?"))
                   .arg(shown(files.front()))
                   .arg(shown(designFolder))
                   .toQString();
    } else {
        title = Translator::translate("InnerPartDependingFilesHelper", "Copy Files");
        text = ArgString(Translator::translate("InnerPartDependingFilesHelper",
                                               "Selected files are not next to the design file.\n"
                                               "Do you want to copy them to %1?"))
                   .arg(shown(designFolder))
                   .toQString();
    }
}

} // namespace Zorvane
