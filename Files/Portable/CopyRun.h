#pragma once

#include "Files/CopyProgress.h"
#include "Files/Portable/CopyGroup.h"
#include "Files/Portable/FileTransfer.h"

#include <deque>

namespace Zorvane {

/** One run of the engine. */
class CopyRun
{
public:
    CopyRun(const SystemCalls& calls, CopyQuestions& questions, CopyProgress& progress,
            TargetFolder& folder, const QString& folderPath);

    CopyRun(const CopyRun&) = delete;
    CopyRun& operator=(const CopyRun&) = delete;

    /** Copies what `outcomes` names as sources, and fills in the rest. */
    void run(QList<CopyOutcome>& outcomes);

    /** What went wrong and concerns no single file; empty for nothing. */
    const QString& generalFailure() const { return m_generalFailure; }
    bool stoppedByFailure() const { return m_context.stop == CopyStop::Fatal; }

private:
    bool plan(QList<CopyOutcome>& outcomes);
    bool planItem(CopyItem& item);
    bool ask();
    void copyAll();
    void copyOne(CopyItem& item);
    int openSource(CopyItem& item, Descriptor& source);
    bool openBoth(CopyItem& item, Descriptor& source, struct stat& opened);
    bool copyContent(CopyItem& item, const Descriptor& source, const struct stat& opened);
    int keepPermissions(int file, mode_t permissions);
    bool keepAttributes(CopyItem& item, const struct stat& opened);
    bool report(const CopyItem* item, qint64 bytesOfItem);

    CopyProgress& m_progress;
    CopyDecisions m_decisions;
    CopyContext m_context;
    CopyGroup m_group;
    FileTransfer m_transfer;
    std::deque<CopyItem> m_items;
    std::vector<CopyItem*> m_toCopy;
    CopyProgressState m_state;
    qint64 m_bytesOfFinishedItems = 0;
    QString m_generalFailure;
};

} // namespace Zorvane
