#pragma once

#include "Files/DependingFileHelper.h"
#include "Host/DesignStatus/DesignInterface.h"
#include "Host/FileHandling/ZvFileType.h"
#include "Host/Widgets/BaseView.h"

#include <QtCore/QPointer>

#include <memory>
#include <set>

namespace Zorvane {

/** Takes the files of certain types for a design's references. Copyable and movable. */
class ZORVANE_UITOOLS_EXPORT FileTypeDependingFilesHelper : public DependingFileHelper
{
public:
    /** The view, not owned, may be null; so may the design. */
    FileTypeDependingFilesHelper(BaseView* view, std::shared_ptr<const DesignInterface> design,
                                 std::set<ZvFileType> types);
    FileTypeDependingFilesHelper(BaseView* view, std::shared_ptr<const DesignInterface> design,
                                 const ZvFileType& type);
    FileTypeDependingFilesHelper(const FileTypeDependingFilesHelper& other);
    FileTypeDependingFilesHelper(FileTypeDependingFilesHelper&& other) noexcept;
    FileTypeDependingFilesHelper& operator=(const FileTypeDependingFilesHelper& other);
    FileTypeDependingFilesHelper& operator=(FileTypeDependingFilesHelper&& other) noexcept;
    ~FileTypeDependingFilesHelper() override;

    FileName getDesignFileName() const override;
    bool isExternalReferenceFile(const FileName& file) const override;
    QWidget* getView() const override;
    void buildExternalFilesUIMessage(const FileName& designFolder, const std::list<FileName>& files,
                                     QString& title, QString& text) const override;

private:
    QPointer<BaseView> m_view;
    std::shared_ptr<const DesignInterface> m_design;
    std::set<ZvFileType> m_types;
};

} // namespace Zorvane
