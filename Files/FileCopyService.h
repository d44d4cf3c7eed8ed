#pragma once

#include "Files/FileCopyUtility.h"
#include "Host/FileHandling/FileName.h"
#include "UiToolsExport.h"

#include <list>

namespace Zorvane {

/**
 * Asks the user whether files may be copied into a folder, and copies them on "Copy". GUI thread
 * only; each call shows modal windows and returns when they are closed. Title and text of the
 * question are plain, not rich text; a question whose parent goes away counts as declined.
 */
class ZORVANE_UITOOLS_EXPORT FileCopyService
{
public:
    FileCopyService() = delete;

    /**
     * Returns one record a source. Empty, with `result` as it was, where one of the files lies in
     * the target folder already (nothing is asked then), where the user declines, and where the
     * user cancels looking at the files, which shows its progress when it takes long; otherwise
     * `result` is the code of `FileCopyUtility::check`, and the list is empty unless that is 0.
     */
    static QList<FileCopyUtility::FileCopyInfo>
    copyFilesToDirectory(QWidget* parent, const QString& title, const QString& text,
                         const QStringList& sourceFiles, const QString& targetFolder, int& result);

    /**
     * The same; `copiedFiles` becomes the full paths of the copies that were made, renamed ones
     * included. False only if the user wanted the copy and the check refused it: a declined
     * question and files that lie there already are true, with no copied files.
     */
    static bool copyFilesToDirectory(QWidget* parent, const QString& title, const QString& text,
                                     const QStringList& sourceFiles, const QString& targetFolder,
                                     QStringList& copiedFiles);
    static bool copyFilesToDirectory(QWidget* parent, const QString& title, const QString& text,
                                     const std::list<FileName>& sourceFiles,
                                     const FileName& targetFolder,
                                     std::list<FileName>& copiedFiles);

    /** Each name as the system writes it, in order. */
    static QStringList toStringList(const std::list<FileName>& files);
};

} // namespace Zorvane
