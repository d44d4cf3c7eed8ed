#include "Files/Portable/CopyStager.h"

#include "Files/Portable/CopyErrors.h"
#include "Files/Portable/FileIdentity.h"
#include "Host/Translation/Translator.h"

#include <fcntl.h>
#include <utility>

namespace Zorvane {

namespace {

QString changedMeanwhile()
{
    return Translator::translate("FileCopyUtility", "The file changed while it was being copied.");
}

} // namespace

QString notAFileText()
{
    return Translator::translate("FileCopyUtility", "This is not a file that can be copied.");
}

CopyStager::CopyStager(CopyContext& context, std::function<bool(qint64)> advance,
                       std::function<bool()> closeFiles)
    : m_context(context)
    , m_closeFiles(std::move(closeFiles))
    , m_transfer(context.calls, std::move(advance))
{}

bool CopyStager::stage(CopyItem& item)
{
    Descriptor source;
    struct stat opened
    {};
    return openBoth(item, source, opened) && copyContent(item, source, opened) &&
           keepAttributes(item, opened);
}

bool CopyStager::openBoth(CopyItem& item, Descriptor& source, struct stat& opened)
{
    int error = openWithRoom([&] { return openSource(item, source); });
    if (error == 0)
        error = errorOf([&] { return m_context.calls.status(source.get(), opened); });
    if (error != 0) {
        m_context.fail(item, describeCopyError(error));
        return false;
    }
    if (!S_ISREG(opened.st_mode) || !isUnchanged(item.source, opened)) {
        m_context.fail(item, S_ISREG(opened.st_mode) ? changedMeanwhile() : notAFileText());
        return false;
    }
    item.staged.emplace(m_context.folder);
    error = openWithRoom([&] { return item.staged->create(opened.st_mode & permissionBits); });
    if (error != 0)
        m_context.failOnTarget(item, error);
    return error == 0;
}

int CopyStager::openSource(const CopyItem& item, Descriptor& source)
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

bool CopyStager::copyContent(CopyItem& item, const Descriptor& source, const struct stat& opened)
{
    const TransferResult result = m_transfer.run(source.get(), item.staged->descriptor(), opened);
    switch (result.end) {
    case TransferResult::End::Complete:
        break;
    case TransferResult::End::Cancelled:
        m_context.stop = CopyStop::Cancelled;
        m_context.discard(item);
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

bool CopyStager::keepAttributes(CopyItem& item, const struct stat& opened)
{
    const timespec times[2] = {opened.st_atim, opened.st_mtim};
    int error = keepPermissions(item, m_context.calls, opened.st_mode & permissionBits);
    if (error == 0) {
        const int file = item.staged->descriptor();
        error = errorOf([&] { return m_context.calls.setTimes(file, times); });
        item.lostTime = isRefusedAttribute(error);
    }
    if (error == 0 || item.lostTime)
        return true;
    m_context.failOnTarget(item, error);
    return false;
}

} // namespace Zorvane
