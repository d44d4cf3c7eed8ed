#include "Files/PathText.h"
#include "Files/Portable/TemporaryNames.h"
#include "Tests/Files/Portable/CopyFixture.h"
#include "Tests/Files/Portable/CopyMeans.h"
#include "Tests/Files/Portable/FaultySystem.h"
#include "Tests/Files/Portable/MountedFolder.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QFile>
#include <QtCore/QRandomGenerator>

#include <csignal>
#include <optional>
#include <sys/wait.h>
#include <unistd.h>

using namespace Zorvane;
using namespace Zorvane::Testing;

namespace {

constexpr int imageMebibytes = 64;

QByteArray hashOf(const QString& file)
{
    QFile image(file);
    QCryptographicHash hash(QCryptographicHash::Md5);
    return image.open(QIODevice::ReadOnly) && hash.addData(&image) ? hash.result() : QByteArray();
}

/**
 * The disk as it is at one moment: between two readings that are equal nothing was written, so
 * what they read was there at once.
 */
bool takeSnapshot(const QString& disk, const QString& snapshot)
{
    for (int attempt = 0; attempt < 50; ++attempt) {
        QFile::remove(snapshot);
        if (QFile::copy(disk, snapshot) && hashOf(disk) == hashOf(snapshot))
            return true;
    }
    return false;
}

/** A disk of its own, with some old files, that a child process copies to. */
class PoweredDisk
{
public:
    bool start()
    {
        if (!MountedFolder::makeImage(image(), imageMebibytes) || !m_disk.mountImage(image()))
            return false;
        folder = pathToBytes(m_disk.path());
        ::rmdir((folder + "/lost+found").c_str());
        for (int i = 0; i < 40; ++i) {
            const std::string name = "f" + std::to_string(i);
            sources.append(fixture.addSource(name, "new " + std::string(3000, 'n') + name));
            if (i % 4 == 0)
                writeFile(folder + '/' + name, "old " + name);
        }
        sources.insert(20, fixture.addSource("large", std::string(18 << 20, 'l')));
        wanted = fixture.sourceContent();
        before = contentOf(folder);
        ::sync();
        return true;
    }

    /**
     * Cuts the power so many microseconds after the copy began, or right after it reported, and
     * returns what is on the disk when it is mounted again, which replays its journal.
     */
    std::optional<FolderContent> cut(const SystemCalls& calls, std::optional<int> microseconds)
    {
        int pipeEnds[2];
        if (::pipe(pipeEnds) != 0)
            return std::nullopt;
        const pid_t child = ::fork();
        if (child == 0) {
            [[maybe_unused]] ssize_t written = ::write(pipeEnds[1], "b", 1);
            fixture.questions.fallback = {CopyDecision::Replace, true};
            const Records records =
                CopyEngine(fixture.questions, fixture.progress, calls).run(sources, m_disk.path());
            written = ::write(pipeEnds[1], "e", 1);
            ::pause();
        }
        char letter = 0;
        bool isReady = ::read(pipeEnds[0], &letter, 1) == 1;
        if (microseconds)
            ::usleep(static_cast<useconds_t>(*microseconds));
        else
            isReady = ::read(pipeEnds[0], &letter, 1) == 1;
        ::kill(child, SIGSTOP);
        const bool isTaken = isReady && takeSnapshot(image(), snapshot());
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        ::close(pipeEnds[0]);
        ::close(pipeEnds[1]);
        MountedFolder later;
        if (!isTaken || !later.mountImage(snapshot()))
            return std::nullopt;
        return contentOf(pathToBytes(later.path()));
    }

    CopyFixture fixture;
    QStringList sources;
    FolderContent wanted;
    FolderContent before;
    std::string folder;

private:
    QString image() const { return m_images.filePath(QStringLiteral("disk")); }
    QString snapshot() const { return m_images.filePath(QStringLiteral("snapshot")); }

    QTemporaryDir m_images;
    MountedFolder m_disk;
};

} // namespace

/**
 * The power is cut: what a disk holds at one moment is mounted anew. Not shown: disks that forget
 * what they have reported as flushed.
 */
class CopyPowerCutTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void reportedCopies_surviveAPowerCut_data() { addMeansRows(); }
    void reportedCopies_surviveAPowerCut();
    void finalNames_areWholeAfterAPowerCut_data() { addMeansRows(); }
    void finalNames_areWholeAfterAPowerCut();
};

void CopyPowerCutTest::reportedCopies_surviveAPowerCut()
{
    QFETCH(int, means);
    FaultySystem system;
    restrictTo(system, means);
    PoweredDisk disk;
    if (!disk.start())
        QSKIP("images of disks cannot be mounted here");
    const auto found = disk.cut(system.calls, std::nullopt);
    QVERIFY(found);
    QVERIFY2(*found == disk.wanted, describe(*found));
}

void CopyPowerCutTest::finalNames_areWholeAfterAPowerCut()
{
    QFETCH(int, means);
    const int rounds = wantsLongTests() ? 20 : 1;
    for (int round = 0; round < rounds; ++round) {
        FaultySystem system;
        restrictTo(system, means);
        PoweredDisk disk;
        if (!disk.start())
            QSKIP("images of disks cannot be mounted here");
        constexpr int mostMicroseconds = 300'000;
        const auto found =
            disk.cut(system.calls, QRandomGenerator::global()->bounded(mostMicroseconds));
        QVERIFY(found);
        for (const auto& [name, content] : *found) {
            const auto old = disk.before.find(name);
            const bool isOld = old != disk.before.end() && content == old->second;
            QVERIFY2(isTemporaryCopyName(name) || isOld || content == disk.wanted.at(name),
                     name.c_str());
        }
        for (const auto& [name, content] : disk.before)
            QVERIFY2(found->count(name) == 1, name.c_str());
    }
}

ZORVANE_TEST(CopyPowerCutTest)
#include "CopyPowerCutTest.moc"
