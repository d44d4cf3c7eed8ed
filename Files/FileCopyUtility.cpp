#include "Files/FileCopyUtility.h"

#include "Files/ApplicationMainWindow.h"
#include "Files/FileCopier.h"
#include "Files/PathProbe.h"

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
    QWidget* owner = m_parent ? m_parent.data() : applicationMainWindow();
    m_result.clear();
    result = check(m_sourceFiles, m_targetFolder);
    if (result == 0 && !m_sourceFiles.isEmpty() && !m_targetFolder.isEmpty())
        m_result = createFileCopier()->copy(owner, m_sourceFiles, m_targetFolder);
    return m_result;
}

int FileCopyUtility::check(const QStringList& sourceFiles, const QString& targetFolder)
{
    PathProbe probe;
    const PathFacts target = probe.look(targetFolder);
    if (!target.isFolder)
        return NoTargetFolder;
    for (const QString& source : sourceFiles) {
        const PathFacts facts = probe.look(source);
        if (!facts.exists || facts.isFolder)
            return SourceMissing;
        if (facts.canonicalFolder == target.canonicalPath)
            return AlreadyInTarget | NoTargetFolder;
    }
    return 0;
}

} // namespace Zorvane
