#pragma once

#include "Files/FileCopyUtility.h"
#include "Host/FileHandling/FileName.h"
#include "UiToolsExport.h"

#include <QtCore/QString>

#include <list>

class QWidget;

namespace Zorvane {

/**
 * Keeps a design's folder self-contained: finds which of the files that the user imports or
 * exports are references of the design that lie elsewhere, asks whether to copy them next to the
 * design's file, and returns under which names they are now. Subclasses say what a reference is.
 * GUI thread only; the question and the copying are modal.
 * Not supported: moving files, or changing references that the design holds already.
 */
class ZORVANE_UITOOLS_EXPORT DependingFileHelper
{
public:
    /** A file as given, and the copy of it next to the design. */
    struct ExportedFileName
    {
        FileName source;
        FileName target;
    };

    /** Why an import is to be given up; nothing has been shown of most of these. */
    enum class ImportRefusal
    {
        None,
        Declined,       /**< The user doesn't want copies, or cancelled. */
        SourceMissing,  /**< One of the files is gone, or a folder by now. */
        NoDesignFolder, /**< The design's folder is gone. */
        LiesThere,      /**< One of the files is a link to a file in the design's folder. */
        NothingCopied   /**< Every file was skipped, cancelled or failed. */
    };

    DependingFileHelper();
    DependingFileHelper(const DependingFileHelper& other);
    DependingFileHelper& operator=(const DependingFileHelper& other);
    virtual ~DependingFileHelper();

    /** The design's folder; empty for a design without a file. */
    virtual FileName getDesignFilePath() const;
    virtual FileName getDesignFileName() const = 0;
    virtual bool isExternalReferenceFile(const FileName& file) const = 0;
    /** The parent of the question; may be null. */
    virtual QWidget* getView() const = 0;
    virtual void buildExternalFilesUIMessage(const FileName& designFolder,
                                             const std::list<FileName>& files, QString& title,
                                             QString& text) const = 0;

    /**
     * `filesToUse` becomes the files to import: those that needed no copy, in their order, then
     * the copies. Without a design file on disk, and where nothing has to be copied, that is
     * `files`. False if there was something to copy and none of it was, by the user's word or a
     * failure: then `filesToUse` stays as it is and the import is to be given up.
     */
    bool handleExternalFilesForImport(const std::list<FileName>& files,
                                      std::list<FileName>& filesToUse);
    /** The same; `refusal` becomes the reason of false, `None` with true. */
    bool handleExternalFilesForImport(const std::list<FileName>& files,
                                      std::list<FileName>& filesToUse, ImportRefusal& refusal);

    /**
     * `exported` becomes the files that were copied; the user may decline them all. False only
     * without a design file on disk.
     */
    bool handleExternalFilesForExport(const std::list<FileName>& files,
                                      std::list<ExportedFileName>& exported);

private:
    bool needsCopy(const FileName& file, const FileName& designFolder) const;
    QList<FileCopyUtility::FileCopyInfo> copy(const std::list<FileName>& files, int& code) const;
    ImportRefusal refusalOf(const std::list<FileName>& files, int code) const;
};

} // namespace Zorvane
