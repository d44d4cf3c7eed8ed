#include "Files/Portable/SystemCalls.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>

#include <cerrno>
#include <fcntl.h>
#include <linux/capability.h>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>

using namespace Zorvane;

namespace {

/** Of this thread only. Files that it opened before count as somebody else's afterwards. */
bool giveUpPrivileges()
{
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct sets[2] = {};
    if (::syscall(SYS_capget, &header, sets) != 0)
        return false;
    sets[0].effective &= ~(1U << CAP_DAC_READ_SEARCH);
    return ::syscall(SYS_capset, &header, sets) == 0;
}

} // namespace

class SystemCallsTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void unnamedFileGetsAName();
    void unnamedFileGetsANameWithoutPrivileges();
    void unnamedFileReplacesNothing();

private:
    int link(const char* name) const
    {
        return SystemCalls::real().linkUnnamed(m_file, m_folder, name) == 0 ? 0 : errno;
    }

    std::unique_ptr<QTemporaryDir> m_place;
    int m_folder = -1;
    int m_file = -1;
};

void SystemCallsTest::init()
{
    m_place = std::make_unique<QTemporaryDir>();
    m_folder = ::open(qPrintable(m_place->path()), O_PATH | O_DIRECTORY | O_CLOEXEC);
    QVERIFY(m_folder >= 0);
    const SystemCalls& calls = SystemCalls::real();
    m_file = calls.openAt(m_folder, ".", calls.unnamedFileFlags | O_CLOEXEC, 0600);
    if (m_file < 0)
        QSKIP("this file system has no files without names");
}

void SystemCallsTest::cleanup()
{
    TestCase::cleanup();
    ::close(m_file);
    ::close(m_folder);
}

void SystemCallsTest::unnamedFileGetsAName()
{
    QCOMPARE(link("part.stl"), 0);
    QVERIFY(QFileInfo::exists(m_place->filePath(QStringLiteral("part.stl"))));
}

void SystemCallsTest::unnamedFileGetsANameWithoutPrivileges()
{
    bool mayGiveUp = false;
    bool shortWayIsClosed = false;
    int error = -1;
    std::thread([&] {
        mayGiveUp = giveUpPrivileges();
        shortWayIsClosed = ::linkat(m_file, "", m_folder, "short", AT_EMPTY_PATH) != 0;
        error = link("part.stl");
    }).join();
    if (!mayGiveUp)
        QSKIP("programs may not change their privileges here");
    QVERIFY(shortWayIsClosed);
    QCOMPARE(error, 0);
    QVERIFY(QFileInfo::exists(m_place->filePath(QStringLiteral("part.stl"))));
}

void SystemCallsTest::unnamedFileReplacesNothing()
{
    QVERIFY(QFile(m_place->filePath(QStringLiteral("part.stl"))).open(QIODevice::WriteOnly));
    QCOMPARE(link("part.stl"), EEXIST);
}

ZORVANE_TEST(SystemCallsTest)
#include "SystemCallsTest.moc"
