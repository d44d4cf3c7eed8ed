#include "Files/Portable/CopyEngine.h"

#include "Files/PathText.h"
#include "Files/Portable/CopyErrors.h"
#include "Files/Portable/CopyRun.h"
#include "Files/Portable/LocalPath.h"
#include "Host/Translation/Translator.h"

namespace Zorvane {

namespace {

using Record = FileCopyUtility::FileCopyInfo;
using Outcome = FileCopyUtility::Outcome;

void failAll(QList<Record>& records, const QString& reason)
{
    for (Record& record : records) {
        record.outcome = Outcome::Failed;
        record.reason = reason;
    }
}

void sendReport(CopyQuestions& questions, const QList<Record>& records, QList<CopyRemark> remarks)
{
    QList<CopyRemark> failures;
    for (const Record& record : records) {
        if (record.reason.isEmpty())
            continue;
        (record.outcome == Outcome::Copied ? remarks : failures)
            .append({record.source, record.reason});
    }
    if (!failures.isEmpty() || !remarks.isEmpty())
        questions.report(failures, remarks);
}

QList<CopyRemark> leftoversIn(const TargetFolder& folder)
{
    QList<CopyRemark> remarks;
    for (const std::string& name : folder.leftovers())
        remarks.append({pathInFolder(pathFromBytes(folder.path()), name),
                        Translator::translate("FileCopyUtility",
                                              "This temporary file could not be removed.")});
    return remarks;
}

} // namespace

CopyEngine::CopyEngine(CopyQuestions& questions, CopyProgress& progress, const SystemCalls& calls)
    : m_questions(questions)
    , m_progress(progress)
    , m_calls(calls)
{}

QList<Record> CopyEngine::run(const QStringList& sources, const QString& targetFolder)
{
    QList<Record> records;
    for (const QString& source : sources)
        records.append({source, {}, FileCopyUtility::NotCopied});

    QList<CopyRemark> remarks;
    TargetFolder folder(m_calls);
    const std::string path = localPathBytes(targetFolder);
    int error = path.find('\0') == std::string::npos ? folder.open(path) : ENOENT;
    if (error == 0 && folder.means() == TargetFolder::Means::None)
        error = ENOTSUP;
    if (error != 0) {
        failAll(records, describeCopyError(error));
    } else {
        CopyRun run(m_calls, m_questions, m_progress, folder);
        run.run(records);
        remarks = run.remarks();
    }
    sendReport(m_questions, records, remarks + leftoversIn(folder));
    return records;
}

} // namespace Zorvane
