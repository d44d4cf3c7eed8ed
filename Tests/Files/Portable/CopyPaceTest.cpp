#include "Files/Portable/CopyEngine.h"

#include "Files/PathText.h"
#include "Tests/Files/Portable/CopyFixture.h"
#include "Tests/Files/Portable/FaultySystem.h"
#include "Tests/Support/TestCase.h"

#include <algorithm>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

Q_DECLARE_METATYPE(std::vector<int>)

using namespace Zorvane;
using namespace Zorvane::Testing;

namespace {

/** How many files each flush of the file system was for, if it takes so long. */
std::vector<int> groupsOf(int files, std::size_t size, qint64 milliseconds)
{
    CopyFixture fixture;
    Testing::FaultySystem system;
    system.dontWaitForDisks();
    std::vector<int> groups;
    qint64 now = 0;
    int waiting = 0;
    system.calls.isFileSystemFlushReliable = [](int) { return true; };
    system.calls.milliseconds = [&] { return now; };
    system.calls.setTimes = [&](int, const timespec*) { return ++waiting, 0; };
    system.calls.flush = [&](int) {
        now += milliseconds;
        return --waiting, 0;
    };
    system.calls.flushFileSystem = [&](int) {
        now += milliseconds;
        groups.push_back(std::exchange(waiting, 0));
        return 0;
    };
    QStringList sources;
    for (int i = 0; i < files; ++i)
        sources.append(fixture.addSource("f" + std::to_string(i), std::string(size, 'x')));
    fixture.copy(sources, system.calls);
    return groups;
}

} // namespace

/** How a copy goes on in time: what it tells, how it is cancelled, and when it flushes. */
class CopyPaceTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cancelLeavesNoTrace_data();
    void cancelLeavesNoTrace();
    void cancelBetweenNamesKeepsWhatHasItsName();
    void largeFileIsGivenUpInPieces_data();
    void largeFileIsGivenUpInPieces();
    void folderIsFlushedForNewNamesOnly();
    void progressTellsBytesAndFiles();
    void progressNeverGoesBack();
    void manySmallFilesAreFlushedInGroups();
    void fewFilesAreFlushedOneByOne();
    void programsWithMuchToWriteAreNotWaitedFor();
    void groupsAdaptToTheDisk_data();
    void groupsAdaptToTheDisk();
};

void CopyPaceTest::cancelLeavesNoTrace_data()
{
    QTest::addColumn<int>("cancelAt");
    for (int cancelAt = 0; cancelAt <= 20; ++cancelAt)
        QTest::addRow("at word %d", cancelAt) << cancelAt;
}

void CopyPaceTest::cancelLeavesNoTrace()
{
    QFETCH(int, cancelAt);
    CopyFixture fixture;
    const FolderContent before{{"old", "old"}};
    fixture.addTarget("old", "old");
    const std::string large = std::string(5 * 1024 * 1024, 'l');
    QStringList sources{fixture.addSource("first", "1"), fixture.addSource("large", large),
                        fixture.addSource("old", "new"), fixture.addSource("last", "4")};
    const FolderContent sourcesBefore = fixture.sourceContent();
    fixture.questions.answers = {{CopyDecision::Replace, false}};
    fixture.progress.cancelAt = cancelAt;
    Testing::FaultySystem system;
    system.dontWaitForDisks();
    const auto outcomes = fixture.copy(sources, system.calls);
    QVERIFY(fixture.sourceContent() == sourcesBefore);
    QVERIFY(fixture.targetContent() == Testing::reportedContent(before, outcomes, sourcesBefore));
    QVERIFY(fixture.questions.failures.isEmpty());
}

/** Each name may take a while, on the other side of a network. */
void CopyPaceTest::cancelBetweenNamesKeepsWhatHasItsName()
{
    CopyFixture fixture;
    const QStringList sources{fixture.addSource("a", "1"), fixture.addSource("b", "2"),
                              fixture.addSource("c", "3")};
    Testing::FaultySystem system;
    system.before = [&](const Testing::FaultySystem::Call& call) {
        // The first one tries out the folder.
        if (call.name == "linkUnnamed" && call.sameIndex == 2)
            fixture.progress.cancelAt = 0;
        return 0;
    };
    const auto outcomes = fixture.copy(sources, system.calls);
    QCOMPARE(outcomes[1].outcome, Outcome::Copied);
    QCOMPARE(outcomes[2].outcome, Outcome::Cancelled);
    QVERIFY(fixture.targetContent() == FolderContent({{"a", "1"}, {"b", "2"}}));
}

void CopyPaceTest::largeFileIsGivenUpInPieces_data()
{
    QTest::addColumn<bool>("cancel");
    QTest::addColumn<bool>("refused");
    QTest::newRow("cancelled") << true << false;
    QTest::newRow("disk full") << false << false;
    QTest::newRow("the system knows no pieces") << true << true;
}

/** The system takes a while to let go of a large file, in which the window must not stand still. */
void CopyPaceTest::largeFileIsGivenUpInPieces()
{
    QFETCH(bool, cancel);
    QFETCH(bool, refused);
    CopyFixture fixture;
    constexpr off_t mebibyte = 1 << 20;
    constexpr off_t troubleAt = 100 * mebibyte;
    const QString source = fixture.addSource("large", "");
    QCOMPARE(truncate(fixture.source("large").c_str(), troubleAt + 10 * mebibyte), 0);
    Testing::FaultySystem system;
    system.dontWaitForDisks();
    system.removeRangeCopy();
    system.removeHoles();
    off_t written = 0;
    system.calls.write = [&, real = system.calls.write](int file, const void* data, size_t size) {
        const bool trouble = written >= troubleAt;
        fixture.progress.cancelAt = trouble && cancel ? 0 : -1;
        errno = ENOSPC;
        const ssize_t count = trouble && !cancel ? -1 : real(file, data, size);
        written += std::max<ssize_t>(count, 0);
        return count;
    };
    std::vector<std::size_t> wordsBefore;
    system.calls.setSize = [&, real = system.calls.setSize](int file, off_t size) {
        wordsBefore.push_back(fixture.progress.states.size());
        struct stat status
        {};
        fstat(file, &status);
        const bool small = size < status.st_size && status.st_size - size <= 32 * mebibyte;
        errno = EINVAL;
        return small && !refused ? real(file, size) : -1;
    };
    const auto outcomes = fixture.copy({source}, system.calls);
    QCOMPARE(outcomes[0].outcome, cancel ? Outcome::Cancelled : Outcome::Failed);
    QVERIFY(fixture.targetContent().empty());
    QCOMPARE(wordsBefore.size(), std::size_t(refused ? 1 : 3));
    for (std::size_t i = 1; i < wordsBefore.size(); ++i)
        QCOMPARE(wordsBefore[i], wordsBefore[i - 1] + 1);
}

void CopyPaceTest::folderIsFlushedForNewNamesOnly()
{
    CopyFixture fixture;
    const QString source = fixture.addSource("a", "1");
    Testing::FaultySystem system;
    fixture.progress.cancelAt = 1;
    fixture.copy({source}, system.calls);
    QCOMPARE(system.countOf("flush"), 0);
    fixture.progress.states.clear();
    fixture.progress.cancelAt = -1;
    fixture.copy({source}, system.calls);
    QCOMPARE(system.countOf("flush"), 2); // the file and the folder
}

void CopyPaceTest::progressTellsBytesAndFiles()
{
    CopyFixture fixture;
    const std::string large = std::string(6 * 1024 * 1024, 'l');
    fixture.copy({fixture.addSource("large", large), fixture.addSource("small", "12345")});
    const auto& states = fixture.progress.states;
    const qint64 total = qint64(large.size()) + 5;
    qint64 done = 0;
    for (const CopyProgressState& state : states) {
        QVERIFY(state.bytesDone >= done);
        done = state.bytesDone;
    }
    QCOMPARE(states.back().bytesDone, total);
    QCOMPARE(states.back().bytesTotal, total);
    QCOMPARE(states.back().filesDone, 2);
    QCOMPARE(states.back().filesTotal, 2);
    QCOMPARE(states.back().fileName, QStringLiteral("small"));
}

void CopyPaceTest::progressNeverGoesBack()
{
    CopyFixture fixture;
    // Large enough to be flushed before the next file's turn.
    const std::string large(17 << 20, 'l');
    Testing::FaultySystem system;
    system.dontWaitForDisks();
    fixture.copy({fixture.addSource("a", large), fixture.addSource("b", large)}, system.calls);
    QVERIFY(system.countOf("flush") >= 3);
    const auto& states = fixture.progress.states;
    QVERIFY(std::is_sorted(states.begin(), states.end(),
                           [](const CopyProgressState& left, const CopyProgressState& right) {
                               return left.bytesDone < right.bytesDone;
                           }));
}

void CopyPaceTest::manySmallFilesAreFlushedInGroups()
{
    CopyFixture fixture;
    Testing::FaultySystem system;
    // Slow disks are flushed in other ways.
    system.calls.milliseconds = [] { return 0; };
    system.calls.isFileSystemFlushReliable = [](int) { return true; };
    QStringList sources;
    constexpr int count = 100;
    for (int i = 0; i < count; ++i)
        sources.append(fixture.addSource("f" + std::to_string(i), std::to_string(i)));
    const auto outcomes = fixture.copy(sources, system.calls);
    QVERIFY(system.countOf("flushFileSystem") > 0);
    QVERIFY(system.countOf("flush") < count / 4);
    QVERIFY(fixture.targetContent() == fixture.sourceContent());
    QVERIFY(std::all_of(outcomes.begin(), outcomes.end(),
                        [](const Record& outcome) { return outcome.outcome == Outcome::Copied; }));
}

void CopyPaceTest::fewFilesAreFlushedOneByOne()
{
    CopyFixture fixture;
    Testing::FaultySystem system;
    fixture.copy({fixture.addSource("a", "1"), fixture.addSource("b", "2")}, system.calls);
    QCOMPARE(system.countOf("flushFileSystem"), 0);
    QCOMPARE(system.countOf("flush"), 3); // two files and the folder
}

void CopyPaceTest::programsWithMuchToWriteAreNotWaitedFor()
{
    CopyFixture fixture;
    Testing::FaultySystem system;
    system.calls.unwrittenBytes = [] { return Q_INT64_C(4) << 30; };
    QStringList sources;
    for (int i = 0; i < 20; ++i)
        sources.append(fixture.addSource("f" + std::to_string(i), "x"));
    fixture.copy(sources, system.calls);
    QCOMPARE(system.countOf("flushFileSystem"), 0);
    QCOMPARE(system.countOf("flush"), 21);
}

void CopyPaceTest::groupsAdaptToTheDisk_data()
{
    QTest::addColumn<int>("files");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("milliseconds");
    QTest::addColumn<std::vector<int>>("groups");
    using Groups = std::vector<int>;
    constexpr int large = 1 << 20;
    QTest::newRow("quick: more files") << 200 << 1 << 5 << Groups{64, 128, 8};
    QTest::newRow("fair: as they are") << 200 << 1 << 30 << Groups{64, 64, 64, 8};
    QTest::newRow("slow: fewer files") << 136 << 1 << 60 << Groups{64, 32, 16, 8, 8, 8};
    QTest::newRow("slow: fewer bytes") << 40 << large << 60 << Groups{16, 8};
    // In between as many groups, twice as many each time, are flushed file by file.
    QTest::newRow("a delay: seldom") << 200 << 1 << 150 << Groups{64, 32, 16};
}

void CopyPaceTest::groupsAdaptToTheDisk()
{
    QFETCH(int, files);
    QFETCH(int, size);
    QFETCH(int, milliseconds);
    QFETCH(std::vector<int>, groups);
    QCOMPARE(groupsOf(files, static_cast<std::size_t>(size), milliseconds), groups);
}

ZORVANE_TEST(CopyPaceTest)
#include "CopyPaceTest.moc"
