#include "Files/FileCopyUtility.h"

#include "Files/ApplicationMainWindow.h"
#include "Files/CopyCheck.h"
#include "Files/DialogCopyProgress.h"
#include "Files/FileCopier.h"

#include <QtWidgets/QWidget>

namespace Zorvane {

FileCopyUtility::FileCopyUtility(QWidget* parent, const QStringList& sourceFiles,
                                 const QString& targetFolder)
    : m_parent(parent)
    , m_sourceFiles(sourceFiles)
    , m_targetFolder(targetFolder)
{}

FileCopyUtility::~FileCopyUtility() = default;
FileCopyUtility::FileCopyUtility(const FileCopyUtility& other) = default;
FileCopyUtility& FileCopyUtility::operator=(const FileCopyUtility& other) = default;

const QList<FileCopyUtility::FileCopyInfo>& FileCopyUtility::copyFiles(int& result)
{
    const QPointer<QWidget> owner = m_parent ? m_parent.data() : applicationMainWindow();
    m_result.clear();
    const std::optional<int> code = [&] {
        DialogCopyProgress progress(owner);
        return checkCopy(m_sourceFiles, m_targetFolder, progress);
    }();
    result = code.value_or(0);
    if (code == 0 && !m_sourceFiles.isEmpty() && !m_targetFolder.isEmpty())
        m_result = createFileCopier()->copy(owner, m_sourceFiles, m_targetFolder);
    if (!code) {
        for (const QString& source : qAsConst(m_sourceFiles))
            m_result.append({source, {}, NotCopied, Outcome::Cancelled});
    }
    return m_result;
}

int FileCopyUtility::check(const QStringList& sourceFiles, const QString& targetFolder)
{
    class NoProgress : public CopyProgress
    {
        bool goOn(const CopyProgressState&) override { return true; }
    };
    NoProgress progress;
    return *checkCopy(sourceFiles, targetFolder, progress);
}

} // namespace Zorvane
