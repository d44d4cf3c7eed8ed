#include "Tests/Support/Portable/SmallDisk.h"

#include <QtCore/QByteArray>
#include <QtCore/QFile>
#include <QtCore/QStorageInfo>

#include <csignal>
#include <sys/mount.h>
#include <sys/resource.h>

namespace Zorvane::Testing {

namespace {

constexpr qint64 smallFileSize = 4096;

void limitFiles(rlim_t size)
{
    // Writing too much is then an error of the call and not the end of the process.
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = std::min(size, limit.rlim_max);
    setrlimit(RLIMIT_FSIZE, &limit);
}

} // namespace

SmallDisk::SmallDisk()
    : m_isMounted(mount("tmpfs", QFile::encodeName(path()).constData(), "tmpfs",
                        MS_NOSUID | MS_NODEV, "size=1m") == 0)
{}

SmallDisk::~SmallDisk()
{
    makeRoom();
    if (m_isMounted)
        umount2(QFile::encodeName(path()).constData(), MNT_DETACH);
}

bool SmallDisk::fill(bool leavesSmallFile)
{
    if (!m_isMounted) {
        limitFiles(leavesSmallFile ? rlim_t(smallFileSize) / 4 : 0);
        return true;
    }
    QFile file(filler());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return false;
    const QByteArray page(int(smallFileSize), 'x');
    while (file.write(page) == page.size()) {
    }
    if (leavesSmallFile && !file.resize(file.size() - smallFileSize))
        return false;
    return QStorageInfo(path()).bytesFree() == (leavesSmallFile ? smallFileSize : 0);
}

void SmallDisk::makeRoom()
{
    if (m_isMounted)
        QFile::remove(filler());
    else
        limitFiles(RLIM_INFINITY);
}

QString SmallDisk::filler() const
{
    return filePath(QStringLiteral("filler"));
}

} // namespace Zorvane::Testing
