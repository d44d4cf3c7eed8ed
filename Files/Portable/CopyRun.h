#pragma once

#include "Files/CopyProgress.h"
#include "Files/Portable/CopyPublisher.h"
#include "Files/Portable/CopyStager.h"
#include "Files/Portable/GroupFlush.h"

#include <QtCore/QList>

#include <deque>
#include <vector>

namespace Zorvane {

/** One run of the engine. */
class CopyRun
{
public:
    CopyRun(const SystemCalls& calls, CopyQuestions& questions, CopyProgress& progress,
            TargetFolder& folder);

    CopyRun(const CopyRun&) = delete;
    CopyRun& operator=(const CopyRun&) = delete;

    /** Copies what `records` name as sources, and fills in the rest. */
    void run(QList<FileCopyUtility::FileCopyInfo>& records);

    /** What to report of the target folder as such. */
    const QList<CopyRemark>& remarks() const { return m_remarks; }

private:
    bool plan(QList<FileCopyUtility::FileCopyInfo>& records);
    bool planItem(CopyItem& item, const QString& folderPath);
    bool ask();
    bool hasSpace();
    void copyAll();
    void commitGroup();
    void finish(QList<FileCopyUtility::FileCopyInfo>& records);
    bool report(const CopyItem* item, qint64 bytesOfItem);

    CopyQuestions& m_questions;
    CopyProgress& m_progress;
    CopyDecisions m_decisions;
    CopyContext m_context;
    CopyStager m_stager;
    GroupFlush m_flush;
    CopyPublisher m_publisher;
    std::deque<CopyItem> m_items;
    std::vector<CopyItem*> m_toCopy;
    std::vector<CopyItem*> m_group; // complete, and waiting to be flushed and published
    qint64 m_bytesOfGroup = 0;
    CopyProgressState m_state;
    qint64 m_bytesOfFinishedItems = 0;
    qint64 m_bytesOfItem = 0; // of the one at work
    qint64 m_sizeOfItem = 0;
    QList<CopyRemark> m_remarks;
};

} // namespace Zorvane
