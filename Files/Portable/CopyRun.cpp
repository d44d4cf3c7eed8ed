#include "Files/Portable/CopyRun.h"

#include "Files/PathText.h"
#include "Files/Portable/CopyErrors.h"
#include "Files/Portable/FileIdentity.h"
#include "Files/Portable/LocalPath.h"
#include "Host/Translation/Translator.h"

#include <fcntl.h>
#include <utility>

namespace Zorvane {

namespace {

constexpr mode_t s_permissions = S_IRWXU | S_IRWXG | S_IRWXO;

QString changedMeanwhile()
{
    return Translator::translate("FileCopyUtility", "The file changed while it was being copied.");
}

QString notAFile()
{
    return Translator::translate("FileCopyUtility", "This is not a file that can be copied.");
}

std::string leafOf(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

/** File systems without permissions or such times refuse to set them; the copy is good without. */
bool isRefusedAttribute(int error)
{
    return error == EPERM || error == ENOTSUP || error == ENOSYS || error == EINVAL;
}

} // namespace

CopyRun::CopyRun(const SystemCalls& calls, CopyQuestions& questions, CopyProgress& progress,
                 TargetFolder& folder, const QString& folderPath)
    : m_progress(progress)
    , m_decisions(
          questions,
          [this](const std::string& name) {
              m_progress.goOn(m_state); // with many collisions to decide at one stroke
              return m_context.folder.has(name);
          },
          folder.mostNameBytes())
    , m_context{calls, folder, folderPath, m_decisions, [this] { return m_progress.goOn(m_state); }}
    , m_group(m_context)
    , m_transfer(calls, [this](qint64 bytes) {
        return report(nullptr, m_state.bytesDone - m_bytesOfFinishedItems + bytes);
    })
{}

void CopyRun::run(QList<CopyOutcome>& outcomes)
{
    if (!plan(outcomes) || !ask() || m_toCopy.empty())
        return;
    copyAll();
    if (!m_group.hasPublished())
        return; // no name to make durable
    if (const int error = m_context.folder.flush())
        m_generalFailure = describeCopyError(error);
}

bool CopyRun::plan(QList<CopyOutcome>& outcomes)
{
    m_state.filesTotal = outcomes.size();
    for (CopyOutcome& outcome : outcomes) {
        m_items.emplace_back(localPathBytes(outcome.source), outcome);
        if (!planItem(m_items.back()))
            m_items.pop_back();
        else if (!report(&m_items.back(), 0))
            return false;
    }
    return true;
}

bool CopyRun::planItem(CopyItem& item)
{
    const SystemCalls& calls = m_context.calls;
    int error =
        errorOf([&] { return calls.statusAt(AT_FDCWD, item.path.c_str(), item.source, 0); });
    if (error == 0 && !S_ISREG(item.source.st_mode)) {
        m_context.fail(item, notAFile());
        return false;
    }
    item.candidate.leaf = leafOf(item.path);
    item.candidate.source = factsOf(item.outcome->source, item.source);
    if (error == 0)
        error = lookForCollision(item, m_context.folder, m_context.folderPath);
    if (error != 0)
        m_context.fail(item, describeCopyError(error));
    return error == 0;
}

bool CopyRun::ask()
{
    std::vector<CopyCandidate> candidates;
    candidates.reserve(m_items.size());
    for (const CopyItem& item : m_items)
        candidates.push_back(item.candidate);
    auto orders = m_decisions.decideAll(candidates);
    if (!orders)
        return false;
    for (std::size_t i = 0; i < m_items.size(); ++i) {
        CopyItem& item = m_items[i];
        item.order = std::move((*orders)[i]);
        if (item.order.action == CopyOrder::Action::Skip) {
            item.outcome->fate = CopyFate::Skipped;
        } else if (item.order.action == CopyOrder::Action::SameFile) {
            item.outcome->fate = CopyFate::SameFile;
        } else {
            m_toCopy.push_back(&item);
            m_state.bytesTotal += item.source.st_size;
        }
    }
    m_state.filesTotal = static_cast<int>(m_toCopy.size());
    return true;
}

void CopyRun::copyAll()
{
    for (CopyItem* item : m_toCopy) {
        if (!report(item, 0))
            m_context.stop = CopyStop::Cancelled;
        if (m_context.stop == CopyStop::No)
            copyOne(*item);
        if (m_context.stop != CopyStop::No)
            break;
        if (m_group.isFull())
            m_group.commit();
        m_bytesOfFinishedItems += item->source.st_size;
        ++m_state.filesDone;
    }
    // What is complete is also published when a later file met a full disk, but not on cancel.
    m_group.commit();
    if (m_context.stop == CopyStop::No)
        report(nullptr, 0);
}

void CopyRun::copyOne(CopyItem& item)
{
    Descriptor source;
    struct stat opened
    {};
    if (!openBoth(item, source, opened) || !copyContent(item, source, opened) ||
        !keepAttributes(item, opened))
        return;
    m_group.add(item);
}

bool CopyRun::openBoth(CopyItem& item, Descriptor& source, struct stat& opened)
{
    int error = openSource(item, source);
    if ((error == EMFILE || error == ENFILE) && !m_group.isEmpty()) {
        m_group.commit();
        error = openSource(item, source);
    }
    if (error == 0)
        error = errorOf([&] { return m_context.calls.status(source.get(), opened); });
    if (error != 0) {
        m_context.fail(item, describeCopyError(error));
        return false;
    }
    if (!S_ISREG(opened.st_mode) || !isUnchanged(item.source, opened)) {
        m_context.fail(item, S_ISREG(opened.st_mode) ? changedMeanwhile() : notAFile());
        return false;
    }
    item.staged.emplace(m_context.folder);
    error = item.staged->create(opened.st_mode & s_permissions);
    if ((error == EMFILE || error == ENFILE) && !m_group.isEmpty()) {
        m_group.commit();
        error = item.staged->create(opened.st_mode & s_permissions);
    }
    if (error != 0)
        m_context.failOnTarget(item, error);
    return error == 0;
}

int CopyRun::openSource(CopyItem& item, Descriptor& source)
{
    // A pipe that took the file's place must not make us wait for its writer.
    constexpr int flags = O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    const int file = uninterrupted(
        [&] { return m_context.calls.openAt(AT_FDCWD, item.path.c_str(), flags, 0); });
    if (file < 0)
        return errno;
    source = Descriptor(m_context.calls, file);
    return 0;
}

bool CopyRun::copyContent(CopyItem& item, const Descriptor& source, const struct stat& opened)
{
    const TransferResult result =
        m_transfer.run(source.get(), item.staged->descriptor(), opened.st_size);
    switch (result.end) {
    case TransferResult::End::Complete:
        break;
    case TransferResult::End::Cancelled:
        m_context.stop = CopyStop::Cancelled;
        m_context.discard(item);
        return false;
    case TransferResult::End::SourceTooShort:
        m_context.fail(item, changedMeanwhile());
        return false;
    case TransferResult::End::SourceError:
        m_context.fail(item, describeCopyError(result.error));
        return false;
    case TransferResult::End::TargetError:
        m_context.failOnTarget(item, result.error);
        return false;
    }
    struct stat now
    {};
    const int error = errorOf([&] { return m_context.calls.status(source.get(), now); });
    if (error == 0 && isUnchanged(opened, now))
        return true;
    m_context.fail(item, error != 0 ? describeCopyError(error) : changedMeanwhile());
    return false;
}

/** Each change of a file's attributes is a write of its own to the file system: none in vain. */
int CopyRun::keepPermissions(int file, mode_t permissions)
{
    struct stat made
    {};
    const int error = errorOf([&] { return m_context.calls.status(file, made); });
    if (error != 0 || (made.st_mode & s_permissions) == permissions)
        return error;
    return errorOf([&] { return m_context.calls.setMode(file, permissions); });
}

bool CopyRun::keepAttributes(CopyItem& item, const struct stat& opened)
{
    const int file = item.staged->descriptor();
    const timespec times[2] = {opened.st_atim, opened.st_mtim};
    int error = keepPermissions(file, opened.st_mode & s_permissions);
    if (error == 0 || isRefusedAttribute(error))
        error = errorOf([&] { return m_context.calls.setTimes(file, times); });
    if (error == 0 || isRefusedAttribute(error))
        return true;
    m_context.failOnTarget(item, error);
    return false;
}

bool CopyRun::report(const CopyItem* item, qint64 bytesOfItem)
{
    if (item)
        m_state.fileName = pathFromBytes(item->candidate.leaf);
    m_state.bytesDone = m_bytesOfFinishedItems + bytesOfItem;
    return m_progress.goOn(m_state);
}

} // namespace Zorvane
