#include "Files/Portable/CopyRun.h"

#include "Files/PathText.h"
#include "Files/Portable/CopyErrors.h"
#include "Files/Portable/LocalPath.h"
#include "Host/Translation/Translator.h"

#include <algorithm>
#include <fcntl.h>
#include <utility>

namespace Zorvane {

namespace {

using Outcome = FileCopyUtility::Outcome;

constexpr qint64 s_blockSize = 512;

std::string leafOf(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

qint64 allocatedBytes(const struct stat& status)
{
    return std::min<qint64>(status.st_size, status.st_blocks * s_blockSize);
}

/** What a copy could not keep; empty for nothing. */
QString lossOf(const CopyItem& item)
{
    if (item.lostTime && item.lostPermissions)
        return Translator::translate("FileCopyUtility",
                                     "The disk did not keep the file's date and permissions.");
    if (item.lostTime)
        return Translator::translate("FileCopyUtility", "The disk did not keep the file's date.");
    return item.lostPermissions
               ? Translator::translate("FileCopyUtility",
                                       "The disk did not keep the file's permissions.")
               : QString();
}

} // namespace

CopyRun::CopyRun(const SystemCalls& calls, CopyQuestions& questions, CopyProgress& progress,
                 TargetFolder& folder)
    : m_questions(questions)
    , m_progress(progress)
    , m_decisions(
          questions, [&folder](const std::string& name) { return folder.has(name); },
          [this] { return m_context.goOn(); }, folder.mostNameBytes())
    , m_context{calls, folder, m_decisions, [this] { return m_progress.goOn(m_state); }}
    , m_stager(
          m_context, [this](qint64 bytes) { return report(nullptr, m_bytesOfItem + bytes); },
          [this] {
              const bool hadSome = !m_group.empty();
              commitGroup();
              return hadSome;
          })
    , m_flush(m_context)
    , m_publisher(m_context)
{}

void CopyRun::run(QList<FileCopyUtility::FileCopyInfo>& records)
{
    m_state.stage = CopyProgressState::Stage::Checking;
    m_context.folder.removeAbandonedFiles(m_context.goOn);
    if (plan(records) && ask() && hasSpace()) {
        m_state.stage = CopyProgressState::Stage::Copying;
        copyAll();
    } else {
        m_context.stop = CopyStop::Cancelled;
    }
    finish(records);
}

bool CopyRun::plan(QList<FileCopyUtility::FileCopyInfo>& records)
{
    const QString folderPath = pathFromBytes(m_context.folder.path());
    m_state.filesTotal = records.size();
    for (FileCopyUtility::FileCopyInfo& record : records) {
        m_items.emplace_back(localPathBytes(record.source), record);
        if (!planItem(m_items.back(), folderPath))
            m_items.pop_back();
        else if (!report(&m_items.back(), 0))
            return false;
        ++m_state.filesDone;
    }
    return true;
}

bool CopyRun::planItem(CopyItem& item, const QString& folderPath)
{
    if (item.path.empty() || item.path.find('\0') != std::string::npos) {
        m_context.fail(item, notAFileText());
        return false;
    }
    if (item.path.front() != '/') {
        item.path = fullPathBytes(item.path);
        item.record->source = pathFromBytes(item.path);
    }
    const SystemCalls& calls = m_context.calls;
    int error =
        errorOf([&] { return calls.statusAt(AT_FDCWD, item.path.c_str(), item.source, 0); });
    if (error == 0 && !S_ISREG(item.source.st_mode)) {
        m_context.fail(item, notAFileText());
        return false;
    }
    item.candidate.leaf = leafOf(item.path);
    item.candidate.source = factsOf(item.record->source, item.source);
    if (error == 0)
        error = lookForCollision(item, m_context.folder, folderPath);
    if (error != 0)
        m_context.fail(item, describeCopyError(error));
    return error == 0;
}

bool CopyRun::ask()
{
    std::vector<const CopyCandidate*> candidates;
    candidates.reserve(m_items.size());
    for (const CopyItem& item : m_items)
        candidates.push_back(&item.candidate);
    auto orders = m_decisions.decideAll(candidates);
    if (!orders)
        return false;
    for (std::size_t i = 0; i < m_items.size(); ++i) {
        CopyItem& item = m_items[i];
        item.order = std::move((*orders)[i]);
        if (item.order.action == CopyOrder::Action::Skip) {
            item.record->outcome = Outcome::Skipped;
        } else if (item.order.action == CopyOrder::Action::SameFile) {
            item.record->outcome = Outcome::SameFile;
        } else {
            m_toCopy.push_back(&item);
            m_state.bytesTotal += item.source.st_size;
        }
    }
    m_state.filesDone = 0;
    m_state.filesTotal = static_cast<int>(m_toCopy.size());
    return true;
}

bool CopyRun::hasSpace()
{
    const qint64 available = m_context.calls.freeBytes(m_context.folder.descriptor());
    qint64 taken = 0;
    qint64 most = 0;
    for (const CopyItem* item : m_toCopy) {
        taken += allocatedBytes(item->source);
        most = std::max(most, taken);
        // What is replaced frees its space, but only once its copy is complete.
        if (item->order.action == CopyOrder::Action::Replace)
            taken -= allocatedBytes(*item->replaced);
    }
    return available < 0 || most <= available || m_questions.copyInSpiteOfSpace(most, available);
}

void CopyRun::copyAll()
{
    for (CopyItem* item : m_toCopy) {
        if (!report(item, 0))
            m_context.stop = CopyStop::Cancelled;
        if (m_context.stop == CopyStop::No && m_stager.stage(*item)) {
            m_group.push_back(item);
            m_bytesOfGroup += m_stager.bytesWritten();
        }
        if (m_context.stop != CopyStop::No)
            break;
        ++m_state.filesDone;
        if (m_flush.isDue(m_group.size(), m_bytesOfGroup))
            commitGroup();
        m_bytesOfFinishedItems += item->source.st_size;
    }
    // What is complete is also published when a later file met a full disk, but not on cancel.
    commitGroup();
    if (m_context.stop == CopyStop::No)
        report(nullptr, 0);
}

void CopyRun::commitGroup()
{
    const std::vector<CopyItem*> group = std::exchange(m_group, {});
    m_bytesOfGroup = 0;
    if (m_context.stop != CopyStop::Cancelled)
        m_flush.flush(group);
    int filesToCome = m_state.filesTotal - m_state.filesDone + static_cast<int>(group.size());
    for (CopyItem* item : group) {
        --filesToCome;
        if (!m_context.goOn())
            m_context.stop = CopyStop::Cancelled;
        if (item->staged && m_context.stop != CopyStop::Cancelled)
            m_publisher.publish(*item, filesToCome);
        m_context.discard(*item);
    }
}

void CopyRun::finish(QList<FileCopyUtility::FileCopyInfo>& records)
{
    TargetFolder& folder = m_context.folder;
    const int error = m_publisher.hasPublished() ? folder.flush() : 0;
    const QString folderPath = pathFromBytes(folder.path());
    // Letting go of many items takes a while, too.
    for (; !m_items.empty(); m_items.pop_front()) {
        const CopyItem& item = m_items.front();
        if (item.record->outcome == Outcome::Copied) {
            item.record->target = pathInFolder(folderPath, item.order.leaf);
            item.record->reason = lossOf(item);
        }
        m_context.goOn();
    }
    for (FileCopyUtility::FileCopyInfo& record : records) {
        if (record.outcome == Outcome::NotReached && m_context.stop == CopyStop::Cancelled)
            record.outcome = Outcome::Cancelled;
        else if (record.outcome == Outcome::NotReached)
            record.reason =
                Translator::translate("FileCopyUtility", "Not copied because of the error before.");
    }
    if (error != 0)
        m_remarks.append({folderPath, describeCopyError(error)});
}

bool CopyRun::report(const CopyItem* item, qint64 bytesOfItem)
{
    if (item) {
        m_state.fileName = pathFromBytes(item->candidate.leaf);
        m_sizeOfItem = item->source.st_size;
    }
    m_bytesOfItem = bytesOfItem;
    // Files may hold more than their size says; the total knows of that only.
    m_state.bytesDone = m_bytesOfFinishedItems + std::min(bytesOfItem, m_sizeOfItem);
    return m_progress.goOn(m_state);
}

} // namespace Zorvane
