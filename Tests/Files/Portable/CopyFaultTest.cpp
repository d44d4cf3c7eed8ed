#include "Files/PathText.h"
#include "Files/Portable/TemporaryNames.h"
#include "Tests/Files/Portable/CopyFixture.h"
#include "Tests/Files/Portable/CopyMeans.h"
#include "Tests/Files/Portable/FaultySystem.h"
#include "Tests/Support/TestCase.h"

#include <algorithm>
#include <cctype>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

using namespace Zorvane;
using namespace Zorvane::Testing;

namespace {

constexpr std::size_t s_largeSize = 5 * 1024 * 1024;

/** A batch that meets most of what can happen: new, replaced, kept both, skipped, large. */
struct Batch
{
    Batch()
    {
        for (const char* name : {"replace", "keep.x", "skip"})
            fixture.addTarget(name, std::string("old ") + name);
        before = fixture.targetContent();
        sources << fixture.addSource("new", "new") << fixture.addSource("replace", "new replace")
                << fixture.addSource("keep.x", "new keep") << fixture.addSource("skip", "new skip")
                << fixture.addSource("large", std::string(s_largeSize, 'l'))
                << fixture.addSource("last", "last");
        sourcesBefore = fixture.sourceContent();
        fixture.questions.answers = {{CopyDecision::Replace, false},
                                     {CopyDecision::KeepBoth, false},
                                     {CopyDecision::Skip, false}};
    }

    Records copy(const FaultySystem& system) { return fixture.copy(sources, system.calls); }

    CopyFixture fixture;
    FolderContent before;
    FolderContent sourcesBefore;
    QStringList sources;
};

FolderContent withoutTemporaries(FolderContent content)
{
    for (auto entry = content.begin(); entry != content.end();)
        entry = isTemporaryCopyName(entry->first) ? content.erase(entry) : std::next(entry);
    return content;
}

} // namespace

class CopyFaultTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyMeansGivesTheSameResult_data() { addMeansRows(); }
    void everyMeansGivesTheSameResult();
    void aFaultAtAnyCallLosesNothing_data();
    void aFaultAtAnyCallLosesNothing();
    void errorStopsOrSkips_data();
    void errorStopsOrSkips();
    void copiedFilesStayReported_data() { addMeansRows(); }
    void copiedFilesStayReported();
    void failedGroupFlushFailsItsFilesOnly_data();
    void failedGroupFlushFailsItsFilesOnly();
    void folderFlushFailureIsTold();
    void interruptionsAreHarmless_data() { addMeansRows(); }
    void interruptionsAreHarmless();
    void shortReadsAndWritesAreHarmless();
    void rangeCopyThatStopsShortIsHarmless();
    void folderWithoutAnySafeMeansIsRefused();
    void lostAnswerIsRecognised_data() { addMeansRows(); }
    void lostAnswerIsRecognised();
    void attributesThatCannotBeKept_areReported();
};

void CopyFaultTest::everyMeansGivesTheSameResult()
{
    QFETCH(int, means);
    Batch batch;
    FaultySystem system;
    restrictTo(system, means);
    system.removeWriteback();
    system.removeRangeCopy();
    const auto outcomes = batch.copy(system);
    const char* used[] = {"linkUnnamed", "renameNoReplace", "link"};
    QVERIFY(means == LinkUnnamed ? system.countOf(used[LinkUnnamed]) > 1
                                 : system.countOf(used[LinkUnnamed]) == 0);
    FolderContent expected = batch.before;
    expected["new"] = "new";
    expected["replace"] = "new replace";
    expected["keep (2).x"] = "new keep";
    expected["large"] = std::string(s_largeSize, 'l');
    expected["last"] = "last";
    QVERIFY(batch.fixture.targetContent() == expected);
    QVERIFY(batch.fixture.questions.failures.isEmpty());
    QCOMPARE(outcomes[3].outcome, Outcome::Skipped);
}

void CopyFaultTest::aFaultAtAnyCallLosesNothing_data()
{
    addMeansColumn();
    QTest::addColumn<int>("error");
    QTest::newRow("unnamed files, disk error") << int(LinkUnnamed) << EIO;
    QTest::newRow("unnamed files, access denied") << int(LinkUnnamed) << EACCES;
    QTest::newRow("renaming without replacing, disk error") << int(RenameNoReplace) << EIO;
    QTest::newRow("hard links only, disk full") << int(Link) << ENOSPC;
}

void CopyFaultTest::aFaultAtAnyCallLosesNothing()
{
    QFETCH(int, means);
    QFETCH(int, error);
    for (int at = 0;; ++at) {
        Batch batch;
        FaultySystem system;
        restrictTo(system, means);
        system.dontWaitForDisks();
        std::string failed;
        system.before = [&](const FaultySystem::Call& call) {
            if (call.index != at)
                return 0;
            failed = call.name;
            return error;
        };
        const auto outcomes = batch.copy(system);
        if (failed.empty())
            break;
        const QByteArray where = QByteArray::fromStdString(failed) + " as call " +
                                 QByteArray::number(at) + ": " +
                                 describe(batch.fixture.targetContent());
        QVERIFY2(batch.fixture.sourceContent() == batch.sourcesBefore, where);
        // Where not even removing works, the temporary name is all that may stay.
        const FolderContent now = batch.fixture.targetContent();
        const FolderContent expected = reportedContent(batch.before, outcomes, batch.sourcesBefore);
        QVERIFY2((failed == "unlink" ? withoutTemporaries(now) : now) == expected, where);
        QCOMPARE(outcomes.size(), batch.sources.size());
    }
}

void CopyFaultTest::errorStopsOrSkips_data()
{
    QTest::addColumn<QString>("call");
    QTest::addColumn<int>("sameIndex");
    QTest::addColumn<int>("error");
    QTest::addColumn<int>("means");
    QTest::addColumn<bool>("stops");
    const auto row = [](const char* call, int sameIndex, int error, Means means, bool stops) {
        QTest::addRow("%s, %s", call, strerror(error))
            << QString::fromLatin1(call) << sameIndex << error << int(means) << stops;
    };
    // The first file's turn comes after the folder has been opened and tried out.
    for (const int error : {ENOSPC, EDQUOT, EROFS, EIO}) {
        row("write", 0, error, LinkUnnamed, true);
        row("flush", 0, error, LinkUnnamed, true);
        row("linkUnnamed", 1, error, LinkUnnamed, true);
        row("renameNoReplace", 1, error, RenameNoReplace, true);
        row("link", 1, error, Link, true);
        row("setTimes", 0, error, LinkUnnamed, true);
    }
    row("open: target", 3, ENOSPC, LinkUnnamed, true);
    row("open: target", 3, EROFS, LinkUnnamed, true);
    row("open: target", 3, EACCES, LinkUnnamed, false);
    row("open: source", 2, EACCES, LinkUnnamed, false);
    row("open: source", 2, EIO, LinkUnnamed, false);
    row("open: source", 2, ENOENT, LinkUnnamed, false);
    row("read", 0, EIO, LinkUnnamed, false);
    row("read", 0, EACCES, LinkUnnamed, false);
    row("write", 0, EFBIG, LinkUnnamed, false);
    row("flush", 0, EACCES, LinkUnnamed, false);
    row("linkUnnamed", 1, EACCES, LinkUnnamed, false);
    row("renameNoReplace", 1, EACCES, RenameNoReplace, false);
    row("link", 1, EACCES, Link, false);
}

void CopyFaultTest::errorStopsOrSkips()
{
    QFETCH(QString, call);
    QFETCH(int, sameIndex);
    QFETCH(int, error);
    QFETCH(int, means);
    QFETCH(bool, stops);
    CopyFixture fixture;
    FaultySystem system;
    restrictTo(system, means);
    const std::string name = call.section(QLatin1Char(':'), 0, 0).toStdString();
    system.failOnce(name, error, sameIndex);
    // A file of 16 MiB makes a group of its own, so that the first is done before the second.
    const std::string large(16 << 20, 'x');
    const QStringList sources{fixture.addSource("a", name == "flush" ? large : "1"),
                              fixture.addSource("b", "2")};
    const auto outcomes = fixture.copy(sources, system.calls);
    QCOMPARE(outcomes[0].outcome, Outcome::Failed);
    QVERIFY(!outcomes[0].reason.isEmpty());
    const bool grouped = name.find("ink") != std::string::npos || name == "renameNoReplace";
    if (stops && !grouped) {
        QCOMPARE(outcomes[1].outcome, Outcome::NotReached);
        QCOMPARE(fixture.questions.failures.size(), 2);
        QVERIFY(fixture.targetContent().empty());
    } else {
        // What was complete already when the other failed to get its name still gets its own.
        QCOMPARE(outcomes[1].outcome, Outcome::Copied);
        QCOMPARE(fixture.questions.failures.size(), 1);
        QVERIFY(fixture.targetContent() == FolderContent({{"b", "2"}}));
    }
    QCOMPARE(fixture.questions.failures[0].path, sources[0]);
}

void CopyFaultTest::copiedFilesStayReported()
{
    QFETCH(int, means);
    CopyFixture fixture;
    FaultySystem system;
    restrictTo(system, means);
    system.failOnce("write", ENOSPC, 2);
    const auto outcomes = fixture.copy({fixture.addSource("a", "1"), fixture.addSource("b", "2"),
                                        fixture.addSource("c", "3"), fixture.addSource("d", "4")},
                                       system.calls);
    QCOMPARE(outcomes[0].outcome, Outcome::Copied);
    QCOMPARE(outcomes[1].outcome, Outcome::Copied);
    QCOMPARE(outcomes[2].outcome, Outcome::Failed);
    QCOMPARE(outcomes[3].outcome, Outcome::NotReached);
    QVERIFY(fixture.targetContent() == FolderContent({{"a", "1"}, {"b", "2"}}));
}

void CopyFaultTest::failedGroupFlushFailsItsFilesOnly_data()
{
    QTest::addColumn<QString>("call");
    QTest::newRow("the file system reports it") << QStringLiteral("flushFileSystem");
    QTest::newRow("only the file reports it, and only once") << QStringLiteral("finishWriteback");
}

void CopyFaultTest::failedGroupFlushFailsItsFilesOnly()
{
    QFETCH(QString, call);
    CopyFixture fixture;
    FaultySystem system;
    system.calls.isFileSystemFlushReliable = [](int) { return true; };
    const std::string first = call.toStdString();
    system.before = [&](const FaultySystem::Call& made) {
        const bool bad = made.name == first || (first == "flushFileSystem" && made.name == "flush");
        return bad && made.sameIndex == 0 ? EIO : 0;
    };
    QStringList sources;
    for (int i = 0; i < 20; ++i)
        sources.append(fixture.addSource("f" + std::to_string(i), std::to_string(i)));
    const auto outcomes = fixture.copy(sources, system.calls);
    QCOMPARE(outcomes[0].outcome, Outcome::Failed);
    for (int i = 1; i < outcomes.size(); ++i)
        QCOMPARE(outcomes[i].outcome, Outcome::Copied);
    QVERIFY(fixture.targetContent() == reportedContent({}, outcomes, fixture.sourceContent()));
}

void CopyFaultTest::folderFlushFailureIsTold()
{
    CopyFixture fixture;
    FaultySystem system;
    system.failOnce("flush", EIO, 1);
    const auto outcomes = fixture.copy({fixture.addSource("a", "1")}, system.calls);
    QCOMPARE(outcomes[0].outcome, Outcome::Copied);
    QCOMPARE(fixture.questions.remarks.size(), 1);
    QCOMPARE(fixture.questions.remarks[0].path, fixture.targetFolder());
    QVERIFY(fixture.targetContent() == FolderContent({{"a", "1"}}));
}

void CopyFaultTest::interruptionsAreHarmless()
{
    QFETCH(int, means);
    Batch batch;
    FaultySystem system;
    restrictTo(system, means);
    // Every call is interrupted before it gets through; closing is not repeated on Linux.
    bool interrupt = true;
    system.before = [&](const FaultySystem::Call& call) {
        interrupt = !interrupt && call.name != "close";
        return interrupt ? EINTR : 0;
    };
    const auto outcomes = batch.copy(system);
    QVERIFY(batch.fixture.questions.failures.isEmpty());
    for (const int copied : {0, 1, 2, 4, 5})
        QVERIFY(!outcomes[copied].target.isEmpty());
    QVERIFY(batch.fixture.targetContent() ==
            reportedContent(batch.before, outcomes, batch.sourcesBefore));
}

void CopyFaultTest::shortReadsAndWritesAreHarmless()
{
    Batch batch;
    FaultySystem system;
    system.removeRangeCopy();
    const SystemCalls& real = SystemCalls::real();
    system.calls.read = [&real](int file, void* buffer, size_t size) {
        return real.read(file, buffer, std::min<size_t>(size, 100001));
    };
    system.calls.write = [&real](int file, const void* buffer, size_t size) {
        return real.write(file, buffer, std::min<size_t>(size, 70001));
    };
    const auto outcomes = batch.copy(system);
    QVERIFY(batch.fixture.questions.failures.isEmpty());
    QCOMPARE(outcomes[4].outcome, Outcome::Copied);
    QVERIFY(batch.fixture.targetContent() ==
            reportedContent(batch.before, outcomes, batch.sourcesBefore));
}

void CopyFaultTest::rangeCopyThatStopsShortIsHarmless()
{
    Batch batch;
    FaultySystem system;
    int calls = 0;
    system.calls.copyRange = [&calls](int from, int to, size_t size) -> ssize_t {
        return ++calls > 3 ? 0
                           : SystemCalls::real().copyRange(from, to, std::min<size_t>(size, 300));
    };
    const auto outcomes = batch.copy(system);
    QCOMPARE(calls, 4);
    QCOMPARE(outcomes[4].outcome, Outcome::Copied);
    QVERIFY(batch.fixture.targetContent() ==
            reportedContent(batch.before, outcomes, batch.sourcesBefore));
}

void CopyFaultTest::folderWithoutAnySafeMeansIsRefused()
{
    Batch batch;
    FaultySystem system;
    system.removeUnnamedFiles();
    system.removeNoReplaceRename();
    system.removeHardLinks();
    const auto outcomes = batch.copy(system);
    QVERIFY(std::all_of(outcomes.begin(), outcomes.end(), [](const Record& outcome) {
        return outcome.outcome == Outcome::Failed && !outcome.reason.isEmpty();
    }));
    QVERIFY(batch.fixture.questions.asked.empty());
    QCOMPARE(batch.fixture.questions.failures.size(), batch.sources.size());
    QVERIFY(batch.fixture.targetContent() == batch.before);
}

void CopyFaultTest::lostAnswerIsRecognised()
{
    QFETCH(int, means);
    CopyFixture fixture;
    FaultySystem system;
    restrictTo(system, means);
    // The server has done it, and the answer to the repeated request says that it is there.
    const auto loseAnswer = [](auto& entry) {
        auto real = entry;
        auto count = std::make_shared<int>(0);
        entry = [real, count](auto... arguments) {
            const int result = real(arguments...);
            if (++*count != 2) // the first call tries out the folder
                return result;
            errno = EINTR;
            return -1;
        };
    };
    if (means == LinkUnnamed)
        loseAnswer(system.calls.linkUnnamed);
    if (means == RenameNoReplace)
        loseAnswer(system.calls.renameNoReplace);
    if (means == Link)
        loseAnswer(system.calls.link);
    const auto outcomes = fixture.copy({fixture.addSource("a", "1")}, system.calls);
    QCOMPARE(outcomes[0].outcome, Outcome::Copied);
    QVERIFY(fixture.questions.asked.empty());
    QVERIFY(fixture.targetContent() == FolderContent({{"a", "1"}}));
}

void CopyFaultTest::attributesThatCannotBeKept_areReported()
{
    CopyFixture fixture;
    FaultySystem system;
    system.before = [](const FaultySystem::Call& call) {
        return call.name == "setMode" || call.name == "setTimes" ? EPERM : 0;
    };
    const auto outcomes = fixture.copy({fixture.addSource("a", "1")}, system.calls);
    QCOMPARE(outcomes[0].outcome, Outcome::Copied);
    QVERIFY(fixture.questions.failures.isEmpty());
    QCOMPARE(fixture.questions.remarks.size(), 1);
    QCOMPARE(fixture.questions.remarks[0].path, outcomes[0].source);
    QCOMPARE(fixture.questions.remarks[0].reason, outcomes[0].reason);
    QVERIFY(outcomes[0].reason.contains(QStringLiteral("date")));
}

ZORVANE_TEST(CopyFaultTest)
#include "CopyFaultTest.moc"
