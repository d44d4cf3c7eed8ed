#include "Files/CopyCheck.h"

#include "Files/CopyProgress.h"
#include "Files/FileCopyUtility.h"
#include "Files/PathProbe.h"

namespace Zorvane {

namespace {

int codeOfSource(const PathFacts& source, const PathFacts& target)
{
    if (!source.exists || source.isFolder)
        return FileCopyUtility::SourceMissing;
    if (source.canonicalFolder == target.canonicalPath)
        return FileCopyUtility::AlreadyInTarget | FileCopyUtility::NoTargetFolder;
    return 0;
}

} // namespace

std::optional<int> checkCopy(const QStringList& sourceFiles, const QString& targetFolder,
                             CopyProgress& progress)
{
    PathProbe probe;
    const PathFacts target = probe.look(targetFolder);
    if (!target.isFolder)
        return FileCopyUtility::NoTargetFolder;
    CopyProgressState state;
    state.stage = CopyProgressState::Stage::Checking;
    state.filesTotal = sourceFiles.size();
    for (const QString& source : sourceFiles) {
        state.fileName = source.mid(source.lastIndexOf(u'/') + 1);
        if (!progress.goOn(state))
            return std::nullopt;
        if (const int code = codeOfSource(probe.look(source), target))
            return code;
        ++state.filesDone;
    }
    return 0;
}

} // namespace Zorvane
