#include "Files/Portable/TemporaryNames.h"
#include "Tests/Files/Portable/CopyFixture.h"
#include "Tests/Files/Portable/CopyMeans.h"
#include "Tests/Files/Portable/FaultySystem.h"
#include "Tests/Files/Portable/MountedFolder.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QRandomGenerator>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

using namespace Zorvane;
using namespace Zorvane::Testing;

namespace {

constexpr int smallFiles = 150;

/** Sources for several groups, some of which replace files. */
QStringList addManySources(CopyFixture& fixture)
{
    QStringList sources;
    for (int i = 0; i < smallFiles; ++i) {
        const std::string name = "f" + std::to_string(i);
        sources.append(fixture.addSource(name, "new " + name));
        if (i % 10 == 0)
            fixture.addTarget(name, "old " + name);
    }
    sources.insert(smallFiles / 2, fixture.addSource("large", std::string(20 << 20, 'l')));
    return sources;
}

/** Copies in a child process, which is killed so many microseconds after it began. */
void copyAndKill(CopyFixture& fixture, const QStringList& sources, const SystemCalls& calls,
                 qint64 microseconds)
{
    int pipeEnds[2];
    QCOMPARE(::pipe(pipeEnds), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        ::close(pipeEnds[0]);
        [[maybe_unused]] const ssize_t written = ::write(pipeEnds[1], "x", 1);
        fixture.copy(sources, calls);
        ::_exit(0);
    }
    char begun = 0;
    QCOMPARE(::read(pipeEnds[0], &begun, 1), ssize_t(1));
    ::usleep(static_cast<useconds_t>(microseconds));
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    ::close(pipeEnds[0]);
    ::close(pipeEnds[1]);
}

} // namespace

/** The program is killed at random moments, with the disk's real flushes. */
class CopyKillTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void killedCopy_leavesWholeFilesAndWhatTheNextOneRemoves_data() { addMeansRows(); }
    void killedCopy_leavesWholeFilesAndWhatTheNextOneRemoves();
};

void CopyKillTest::killedCopy_leavesWholeFilesAndWhatTheNextOneRemoves()
{
    QFETCH(int, means);
    qint64 longest = 0;
    const int rounds = wantsLongTests() ? 50 : 3;
    for (int round = 0; round < rounds; ++round) {
        CopyFixture fixture;
        const QStringList sources = addManySources(fixture);
        const FolderContent before = fixture.targetContent();
        const FolderContent wanted = fixture.sourceContent();
        fixture.questions.fallback = {CopyDecision::Replace, true};
        FaultySystem system;
        restrictTo(system, means);
        QElapsedTimer timer;
        timer.start();
        if (round == 0)
            fixture.copy(sources, system.calls);
        else
            copyAndKill(fixture, sources, system.calls,
                        QRandomGenerator::global()->bounded(int(longest)));
        longest = qMax<qint64>(longest, round == 0 ? timer.nsecsElapsed() / 1000 : 0);

        QVERIFY(fixture.sourceContent() == wanted);
        for (const auto& [name, content] : fixture.targetContent()) {
            if (isTemporaryCopyName(name))
                continue;
            const auto old = before.find(name);
            QVERIFY2(content == wanted.at(name) || (old != before.end() && content == old->second),
                     name.c_str());
        }
        fixture.questions.fallback = {CopyDecision::Skip, true};
        fixture.copy(sources, system.calls);
        const FolderContent later = fixture.targetContent();
        QVERIFY2(later.size() == wanted.size(), describe(later));
    }
}

ZORVANE_TEST(CopyKillTest)
#include "CopyKillTest.moc"
