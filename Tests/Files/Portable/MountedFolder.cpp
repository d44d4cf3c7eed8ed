#include "Tests/Files/Portable/MountedFolder.h"

#include <QtCore/QFile>
#include <QtCore/QProcess>

#include <sched.h>
#include <sys/mount.h>

namespace Zorvane::Testing {

namespace {

/** Mounts of this process stay its own, and end with it however it ends. */
bool separateMounts()
{
    static const bool done = ::unshare(CLONE_NEWNS) == 0 &&
                             ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
    return done;
}

} // namespace

MountedFolder::~MountedFolder()
{
    if (m_isMounted)
        ::umount2(QFile::encodeName(m_place.path()).constData(), MNT_DETACH);
}

bool MountedFolder::mountMemory(int kibibytes)
{
    return mount({QStringLiteral("-t"), QStringLiteral("tmpfs"), QStringLiteral("-o"),
                  QStringLiteral("size=%1k").arg(kibibytes), QStringLiteral("tmpfs")});
}

bool MountedFolder::mountImage(const QString& image)
{
    return mount({QStringLiteral("-o"), QStringLiteral("loop"), image});
}

bool MountedFolder::mountAgain(const QString& options)
{
    return runTool(QStringLiteral("mount"),
                   {QStringLiteral("-o"), QStringLiteral("remount,") + options, m_place.path()});
}

bool MountedFolder::makeImage(const QString& file, int mebibytes)
{
    QFile image(file);
    return image.open(QIODevice::WriteOnly) && image.resize(qint64(mebibytes) << 20) &&
           runTool(QStringLiteral("mkfs.ext4"), {QStringLiteral("-q"), QStringLiteral("-F"), file});
}

bool MountedFolder::runTool(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    return process.waitForFinished(-1) && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}

bool MountedFolder::mount(const QStringList& arguments)
{
    m_isMounted = separateMounts() &&
                  runTool(QStringLiteral("mount"), arguments + QStringList{m_place.path()});
    return m_isMounted;
}

bool wantsLongTests()
{
    return qEnvironmentVariableIntValue("ZORVANE_LONG_TESTS") == 1;
}

} // namespace Zorvane::Testing
