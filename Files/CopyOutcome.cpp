#include "Files/CopyOutcome.h"

namespace Zorvane {

namespace {

int statusOf(CopyFate fate)
{
    switch (fate) {
    case CopyFate::Copied:
        return FileCopyUtility::Copied;
    case CopyFate::CopiedUnderOtherName:
        return FileCopyUtility::CopiedUnderOtherName;
    case CopyFate::NotReached:
    case CopyFate::Skipped:
    case CopyFate::SameFile:
    case CopyFate::Failed:
        break;
    }
    return FileCopyUtility::NotCopied;
}

} // namespace

QList<FileCopyUtility::FileCopyInfo> toCopyInfos(const QList<CopyOutcome>& outcomes)
{
    QList<FileCopyUtility::FileCopyInfo> infos;
    infos.reserve(outcomes.size());
    for (const CopyOutcome& outcome : outcomes)
        infos.append({outcome.source, outcome.target, statusOf(outcome.fate)});
    return infos;
}

} // namespace Zorvane
