#pragma once

#include "Files/FileCopyUtility.h"
#include "Files/Windows/ComPointer.h"
#include "Files/Windows/FileOpCopySink.h"
#include "Files/Windows/ShellFunctions.h"
#include "UiToolsExport.h"

#include <QtCore/QStringList>

namespace Zorvane {

/**
 * One copy by the shell's file operation engine, which shows its own progress window and asks
 * itself about names that are taken. Serves one run; the thread is in an apartment already.
 */
class ZORVANE_UITOOLS_EXPORT ShellCopy
{
public:
    /** `shell` is used as long as this lives. `owner` may be null. */
    ShellCopy(const ShellFunctions& shell, HWND owner);

    /**
     * Copies, and makes one record for each source that the shell told of. The list stays empty
     * when the result is a failure: of any step, or of the operation as a whole. Throws for want of
     * memory, as everywhere.
     */
    HRESULT run(const QStringList& sources, const QString& targetFolder,
                QList<FileCopyUtility::FileCopyInfo>& records);

private:
    HRESULT createOperation();
    HRESULT createFolder(const QString& targetFolder);
    HRESULT createSources(const QStringList& sources);
    HRESULT collect(const FileOpCopySink& sink, QList<FileCopyUtility::FileCopyInfo>& records);

    const ShellFunctions& m_shell;
    HWND m_owner;
    ComPointer<IFileOperation> m_operation;
    ComPointer<IShellItem> m_folder;
    ComPointer<IShellItemArray> m_sources;
};

} // namespace Zorvane
