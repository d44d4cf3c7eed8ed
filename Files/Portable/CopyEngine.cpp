#include "Files/Portable/CopyEngine.h"

#include "Files/Portable/CopyErrors.h"
#include "Files/Portable/CopyRun.h"
#include "Files/Portable/LocalPath.h"
#include "Host/Translation/Translator.h"

#include <QtCore/QDir>

namespace Zorvane {

namespace {

void failAll(QList<CopyOutcome>& outcomes, const QString& reason)
{
    for (CopyOutcome& outcome : outcomes) {
        outcome.fate = CopyFate::Failed;
        outcome.reason = reason;
    }
}

QList<CopyFailure> failuresIn(const QList<CopyOutcome>& outcomes, bool stopped)
{
    QList<CopyFailure> failures;
    for (const CopyOutcome& outcome : outcomes) {
        if (outcome.fate == CopyFate::Failed)
            failures.append({outcome.source, outcome.reason});
        else if (outcome.fate == CopyFate::NotReached && stopped)
            failures.append(
                {outcome.source, Translator::translate("FileCopyUtility",
                                                       "Not copied because of the error before.")});
    }
    return failures;
}

} // namespace

CopyEngine::CopyEngine(CopyQuestions& questions, CopyProgress& progress, const SystemCalls& calls)
    : m_questions(questions)
    , m_progress(progress)
    , m_calls(calls)
{}

QList<CopyOutcome> CopyEngine::run(const QStringList& sources, const QString& targetFolder)
{
    QList<CopyOutcome> outcomes;
    for (const QString& source : sources)
        outcomes.append({source, QString(), CopyFate::NotReached, QString()});

    QList<CopyFailure> failures;
    TargetFolder folder(m_calls);
    int error = folder.open(localPathBytes(targetFolder));
    if (error == 0 && folder.means() == TargetFolder::Means::None)
        error = ENOTSUP;
    if (error != 0) {
        failAll(outcomes, describeCopyError(error));
        failures = failuresIn(outcomes, false);
    } else {
        CopyRun run(m_calls, m_questions, m_progress, folder, QDir(targetFolder).absolutePath());
        run.run(outcomes);
        failures = failuresIn(outcomes, run.stoppedByFailure());
        if (!run.generalFailure().isEmpty())
            failures.append({targetFolder, run.generalFailure()});
    }
    if (!failures.isEmpty())
        m_questions.tellFailures(failures);
    return outcomes;
}

} // namespace Zorvane
