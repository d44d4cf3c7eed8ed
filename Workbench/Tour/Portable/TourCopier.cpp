#include "Workbench/Tour/TourCopier.h"

#include "Files/DialogCopyProgress.h"
#include "Files/DialogCopyQuestions.h"
#include "Files/Portable/CopyEngine.h"

#include <utility>

namespace Zorvane::Workbench {

namespace {

constexpr qint64 s_millisecondsEachLook = 60;

DialogCopyProgress::Clock slowClock()
{
    return [time = qint64(0)]() mutable { return time += s_millisecondsEachLook; };
}

/** Hands on what it is told, and shows the dialog once about half of the bytes are copied. */
class WatchedProgress : public CopyProgress
{
public:
    WatchedProgress(DialogCopyProgress& progress, const LookAtProgress& look)
        : m_progress(progress)
        , m_look(look)
    {}

    bool goOn(const CopyProgressState& state) override
    {
        const bool goesOn = m_progress.goOn(state);
        const bool isHalfDone = 2 * state.bytesDone >= state.bytesTotal;
        if (goesOn && isHalfDone && m_progress.dialog() && !std::exchange(m_looked, true) && m_look)
            m_look(*m_progress.dialog());
        return goesOn;
    }

private:
    DialogCopyProgress& m_progress;
    const LookAtProgress& m_look;
    bool m_looked = false;
};

class TourCopier : public FileCopier
{
public:
    explicit TourCopier(LookAtProgress look)
        : m_look(std::move(look))
    {}

    QList<FileCopyUtility::FileCopyInfo> copy(QWidget* owner, const QStringList& sources,
                                              const QString& targetFolder) override
    {
        DialogCopyProgress progress(owner, slowClock());
        DialogCopyQuestions questions(progress);
        WatchedProgress watched(progress, m_look);
        return CopyEngine(questions, watched).run(sources, targetFolder);
    }

private:
    LookAtProgress m_look;
};

} // namespace

FileCopierFactory tourCopiers(LookAtProgress look)
{
    return [look = std::move(look)] { return std::make_unique<TourCopier>(look); };
}

} // namespace Zorvane::Workbench
