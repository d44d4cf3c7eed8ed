#include "Files/PathText.h"
#include "Tests/Files/Portable/CopyFixture.h"
#include "Tests/Files/Portable/CopyMeans.h"
#include "Tests/Files/Portable/FaultySystem.h"
#include "Tests/Support/TestCase.h"

#include <algorithm>
#include <cctype>
#include <fcntl.h>
#include <fstream>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

using namespace Zorvane;
using namespace Zorvane::Testing;

namespace {

/** What becomes of "a", which has that content, if a file with the content "1" is to be "a". */
FolderContent decidedUpon(const std::string& existing, int decision)
{
    FolderContent content{{"a", decision == int(CopyDecision::Replace) ? "1" : existing}};
    if (decision == int(CopyDecision::KeepBoth))
        content["a (2)"] = "1";
    return content;
}

/** Writes other content of the same size, and sets the time of modification back. */
void changeUnseen(const std::string& path, const std::string& content)
{
    struct stat before
    {};
    struct stat now
    {};
    QCOMPARE(stat(path.c_str(), &before), 0);
    QCOMPARE(content.size(), std::size_t(before.st_size));
    do { // some kernels' clocks for files tick slowly
        std::fstream(path, std::ios::in | std::ios::out | std::ios::binary) << content;
        const timespec times[2] = {before.st_atim, before.st_mtim};
        QCOMPARE(utimensat(AT_FDCWD, path.c_str(), times, 0), 0);
        QCOMPARE(stat(path.c_str(), &now), 0);
    } while (now.st_ctim.tv_nsec == before.st_ctim.tv_nsec);
}

} // namespace

/** Others work in the same folders meanwhile. */
class CopyRaceTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sourceChangesWhileCopied_data();
    void sourceChangesWhileCopied();
    void targetAppearsBeforePublishing_data();
    void targetAppearsBeforePublishing();
    void madeUpNameIsTakenMeanwhile_data() { addMeansRows(); }
    void madeUpNameIsTakenMeanwhile();
    void targetToReplaceChangesMeanwhile_data();
    void targetToReplaceChangesMeanwhile();
    void targetChangedUnseen_isAskedAboutAgain();
    void linkThatBecameAFoldersLink_isNotReplaced();
    void lateCollisions_areAskedAboutOnceForAll();
    void targetToReplaceVanishes_data() { addMeansRows(); }
    void targetToReplaceVanishes();
    void aLinkSwappedInAtTheTargetIsNotFollowed_data() { addMeansRows(); }
    void aLinkSwappedInAtTheTargetIsNotFollowed();
    void aLinkSwappedInAtTheSourceIsNotFollowed();
    void aLinkSwappedInForTheFolderIsNotFollowed();
    void namesThatDifferInCaseOnlyCollide_data();
    void namesThatDifferInCaseOnlyCollide();
    void caseMattersWhereItDoes();
};

void CopyRaceTest::sourceChangesWhileCopied_data()
{
    QTest::addColumn<QString>("call");
    QTest::addColumn<int>("sameIndex");
    QTest::addColumn<QString>("change");
    for (const char* change : {"vanishes", "grows", "shrinks", "changes and looks as before",
                               "becomes a folder", "becomes a pipe", "is replaced by another"}) {
        const QString text = QString::fromLatin1(change);
        // The first two openings are the target folder's.
        QTest::addRow("%s before it is opened", change) << QStringLiteral("open") << 2 << text;
        QTest::addRow("%s before it is read", change) << QStringLiteral("read") << 0 << text;
        QTest::addRow("%s before its second piece", change) << QStringLiteral("read") << 1 << text;
    }
}

void CopyRaceTest::sourceChangesWhileCopied()
{
    QFETCH(QString, call);
    QFETCH(int, sameIndex);
    QFETCH(QString, change);
    CopyFixture fixture;
    FaultySystem system;
    system.removeRangeCopy();
    const std::string content(600000, 's');
    const QString source = fixture.addSource("a", content);
    const std::string path = fixture.source("a");
    const auto doIt = [&] {
        if (change == QLatin1String("grows"))
            Testing::writeFile(path, content + "more");
        else if (change == QLatin1String("shrinks"))
            QCOMPARE(truncate(path.c_str(), 10), 0);
        else if (change == QLatin1String("changes and looks as before"))
            changeUnseen(path, std::string(600000, 'c'));
        else
            QCOMPARE(unlink(path.c_str()), 0);
        if (change == QLatin1String("becomes a folder"))
            QCOMPARE(mkdir(path.c_str(), 0755), 0);
        if (change == QLatin1String("becomes a pipe"))
            QCOMPARE(mkfifo(path.c_str(), 0644), 0);
        if (change == QLatin1String("is replaced by another"))
            Testing::writeFile(path, std::string(600000, 'o'));
    };
    system.before = [&](const FaultySystem::Call& made) {
        if (made.name == call.toStdString() && made.sameIndex == sameIndex)
            doIt();
        return 0;
    };
    const auto outcomes = fixture.copy({source, fixture.addSource("b", "2")}, system.calls);
    FolderContent expected{{"b", "2"}};
    if (outcomes[0].outcome == Outcome::Copied)
        expected["a"] = content; // the file was open: it is the old one, and whole
    else
        QCOMPARE(outcomes[0].outcome, Outcome::Failed);
    const bool inPlace = change == QLatin1String("grows") || change == QLatin1String("shrinks") ||
                         change == QLatin1String("changes and looks as before");
    if (inPlace || call == QLatin1String("open"))
        QCOMPARE(outcomes[0].outcome, Outcome::Failed);
    QCOMPARE(outcomes[1].outcome, Outcome::Copied);
    QVERIFY(fixture.targetContent() == expected);
}

void CopyRaceTest::targetAppearsBeforePublishing_data()
{
    addMeansColumn();
    QTest::addColumn<int>("decision");
    for (const int means : {LinkUnnamed, RenameNoReplace, Link}) {
        QTest::addRow("means %d, replace", means) << means << int(CopyDecision::Replace);
        QTest::addRow("means %d, skip", means) << means << int(CopyDecision::Skip);
        QTest::addRow("means %d, keep both", means) << means << int(CopyDecision::KeepBoth);
        QTest::addRow("means %d, cancel", means) << means << int(CopyDecision::Cancel);
    }
}

void CopyRaceTest::targetAppearsBeforePublishing()
{
    QFETCH(int, means);
    QFETCH(int, decision);
    CopyFixture fixture;
    FaultySystem system;
    restrictTo(system, means);
    system.beforeFirst("flush", [&] { fixture.addTarget("a", "appeared"); });
    fixture.questions.answers = {{static_cast<CopyDecision>(decision), true}};
    const auto outcomes =
        fixture.copy({fixture.addSource("a", "1"), fixture.addSource("b", "2")}, system.calls);
    QCOMPARE(int(fixture.questions.asked.size()), 1);
    QCOMPARE(fixture.questions.asked[0].target.size, qint64(8));
    QVERIFY(fixture.questions.asked[0].isLate);
    QCOMPARE(fixture.questions.asked[0].remaining, 1);
    FolderContent expected = decidedUpon("appeared", decision);
    if (decision != int(CopyDecision::Cancel))
        expected["b"] = "2";
    QVERIFY2(fixture.targetContent() == expected, describe(fixture.targetContent()));
    QVERIFY(expected ==
            Testing::reportedContent({{"a", "appeared"}}, outcomes, fixture.sourceContent()));
}

void CopyRaceTest::madeUpNameIsTakenMeanwhile()
{
    QFETCH(int, means);
    CopyFixture fixture;
    fixture.addTarget("a", "old");
    FaultySystem system;
    restrictTo(system, means);
    system.beforeFirst("flush", [&] { fixture.addTarget("a (2)", "appeared"); });
    fixture.questions.answers = {{CopyDecision::KeepBoth, false}};
    const auto outcomes = fixture.copy({fixture.addSource("a", "1")}, system.calls);
    QCOMPARE(int(fixture.questions.asked.size()), 1);
    QCOMPARE(pathToBytes(outcomes[0].target), fixture.target("a (3)"));
    QVERIFY(fixture.targetContent() ==
            FolderContent({{"a", "old"}, {"a (2)", "appeared"}, {"a (3)", "1"}}));
}

void CopyRaceTest::targetToReplaceChangesMeanwhile_data()
{
    targetAppearsBeforePublishing_data();
}

void CopyRaceTest::targetToReplaceChangesMeanwhile()
{
    QFETCH(int, means);
    QFETCH(int, decision);
    CopyFixture fixture;
    fixture.addTarget("a", "old");
    FaultySystem system;
    restrictTo(system, means);
    system.beforeFirst("flush", [&] { fixture.addTarget("a", "edited since"); });
    fixture.questions.answers = {{CopyDecision::Replace, true},
                                 {static_cast<CopyDecision>(decision), false}};
    const auto outcomes = fixture.copy({fixture.addSource("a", "1")}, system.calls);
    QCOMPARE(int(fixture.questions.asked.size()), 2);
    QCOMPARE(fixture.questions.asked[1].target.size, qint64(12));
    const FolderContent expected = decidedUpon("edited since", decision);
    QVERIFY2(fixture.targetContent() == expected, describe(fixture.targetContent()));
    QVERIFY(expected ==
            Testing::reportedContent({{"a", "edited since"}}, outcomes, fixture.sourceContent()));
}

void CopyRaceTest::targetChangedUnseen_isAskedAboutAgain()
{
    CopyFixture fixture;
    fixture.addTarget("a", "old");
    FaultySystem system;
    system.beforeFirst("flush", [&] { changeUnseen(fixture.target("a"), "new"); });
    fixture.questions.answers = {{CopyDecision::Replace, true}, {CopyDecision::Skip, false}};
    fixture.copy({fixture.addSource("a", "1")}, system.calls);
    QCOMPARE(int(fixture.questions.asked.size()), 2);
    QVERIFY(fixture.targetContent() == FolderContent({{"a", "new"}}));
}

void CopyRaceTest::linkThatBecameAFoldersLink_isNotReplaced()
{
    CopyFixture fixture;
    QCOMPARE(symlink("elsewhere", fixture.target("a").c_str()), 0);
    FaultySystem system;
    system.beforeFirst("flush", [&] { mkdir(fixture.target("elsewhere").c_str(), 0755); });
    fixture.questions.answers = {{CopyDecision::Replace, false}, {CopyDecision::Skip, false}};
    fixture.copy({fixture.addSource("a", "1")}, system.calls);
    QCOMPARE(int(fixture.questions.asked.size()), 2);
    QCOMPARE(fixture.questions.asked[1].kind, CollisionKind::NotAFile);
    QVERIFY(fixture.targetContent() ==
            FolderContent({{"a", "<folder>"}, {"elsewhere", "<folder>"}}));
}

/** Another program copies the same files into the same folder. */
void CopyRaceTest::lateCollisions_areAskedAboutOnceForAll()
{
    CopyFixture fixture;
    QStringList sources;
    for (int i = 0; i < 100; ++i)
        sources.append(fixture.addSource("f" + std::to_string(i), "ours"));
    FaultySystem system;
    system.calls.isFileSystemFlushReliable = [](int) { return true; };
    system.beforeFirst("flushFileSystem", [&] {
        for (int i = 0; i < 100; ++i)
            fixture.addTarget("f" + std::to_string(i), "theirs");
    });
    fixture.questions.answers = {{CopyDecision::Skip, false}, {CopyDecision::KeepBoth, true}};
    const auto outcomes = fixture.copy(sources, system.calls);
    QCOMPARE(int(fixture.questions.asked.size()), 2);
    QCOMPARE(fixture.questions.asked[0].remaining, 99);
    QCOMPARE(outcomes[0].outcome, Outcome::Skipped);
    QCOMPARE(int(fixture.targetContent().size()), 199);
}

void CopyRaceTest::targetToReplaceVanishes()
{
    QFETCH(int, means);
    CopyFixture fixture;
    fixture.addTarget("a", "old");
    FaultySystem system;
    restrictTo(system, means);
    system.beforeFirst("flush", [&] { unlink(fixture.target("a").c_str()); });
    fixture.questions.answers = {{CopyDecision::Replace, false}};
    const auto outcomes = fixture.copy({fixture.addSource("a", "1")}, system.calls);
    QCOMPARE(outcomes[0].outcome, Outcome::Copied);
    QVERIFY(fixture.targetContent() == FolderContent({{"a", "1"}}));
}

void CopyRaceTest::aLinkSwappedInAtTheTargetIsNotFollowed()
{
    QFETCH(int, means);
    CopyFixture fixture;
    fixture.addTarget("a", "old");
    fixture.addTarget("precious", "precious");
    FaultySystem system;
    restrictTo(system, means);
    system.beforeFirst("flush", [&] {
        unlink(fixture.target("a").c_str());
        [[maybe_unused]] const int made = symlink("precious", fixture.target("a").c_str());
    });
    fixture.questions.answers = {{CopyDecision::Replace, false}, {CopyDecision::Skip, false}};
    const auto outcomes = fixture.copy({fixture.addSource("a", "1")}, system.calls);
    QCOMPARE(int(fixture.questions.asked.size()), 2);
    QCOMPARE(outcomes[0].outcome, Outcome::Skipped);
    QVERIFY(fixture.targetContent() ==
            FolderContent({{"a", "precious"}, {"precious", "precious"}}));
}

void CopyRaceTest::aLinkSwappedInAtTheSourceIsNotFollowed()
{
    CopyFixture fixture;
    const QString source = fixture.addSource("a", "1");
    fixture.addSource("secret", "secret");
    FaultySystem system;
    fixture.questions.onAsk = [&](const CopyCollision&) {
        unlink(fixture.source("a").c_str());
        QCOMPARE(symlink("secret", fixture.source("a").c_str()), 0);
    };
    fixture.addTarget("a", "old");
    fixture.questions.answers = {{CopyDecision::KeepBoth, false}};
    const auto outcomes = fixture.copy({source}, system.calls);
    QCOMPARE(outcomes[0].outcome, Outcome::Failed);
    QVERIFY(fixture.targetContent() == FolderContent({{"a", "old"}}));
}

void CopyRaceTest::aLinkSwappedInForTheFolderIsNotFollowed()
{
    CopyFixture fixture;
    const std::string folder = pathToBytes(fixture.targetFolder());
    const std::string moved = folder + ".moved";
    const std::string elsewhere = pathToBytes(fixture.sourceFolder()) + "/elsewhere";
    QCOMPARE(mkdir(elsewhere.c_str(), 0755), 0);
    FaultySystem system;
    system.beforeFirst("flush", [&] {
        rename(folder.c_str(), moved.c_str());
        [[maybe_unused]] const int made = symlink(elsewhere.c_str(), folder.c_str());
    });
    fixture.copy({fixture.addSource("a", "1")}, system.calls);
    QVERIFY(Testing::contentOf(elsewhere).empty());
    QVERIFY(Testing::contentOf(moved) == FolderContent({{"a", "1"}}));
}

namespace {

/** Lets the target folder find names as a file system does for which case doesn't count. */
void ignoreCase(FaultySystem& system, const CopyFixture& fixture)
{
    const auto onDisk = [&fixture](const char* name) {
        const auto alike = [](char left, char right) {
            return std::tolower(left) == std::tolower(right);
        };
        const std::string wanted(name);
        for (const auto& [entry, content] : fixture.targetContent()) {
            if (std::equal(entry.begin(), entry.end(), wanted.begin(), wanted.end(), alike))
                return entry;
        }
        return wanted;
    };
    auto& calls = system.calls;
    calls.statusAt = [=, real = calls.statusAt](int folder, const char* name, struct stat& status,
                                                int flags) {
        return real(folder, onDisk(name).c_str(), status, flags);
    };
    calls.linkUnnamed = [=, real = calls.linkUnnamed](int file, int folder, const char* name) {
        return real(file, folder, onDisk(name).c_str());
    };
    for (auto* entry : {&calls.rename, &calls.renameNoReplace, &calls.link}) {
        *entry = [=, real = *entry](int folder, const char* from, const char* to) {
            return real(folder, from, onDisk(to).c_str());
        };
    }
}

} // namespace

void CopyRaceTest::namesThatDifferInCaseOnlyCollide_data()
{
    addMeansColumn();
    QTest::addColumn<bool>("withinBatch");
    QTest::addColumn<int>("decision");
    for (const int means : {LinkUnnamed, RenameNoReplace, Link}) {
        for (const bool within : {true, false}) {
            const char* where = within ? "within the batch" : "with a file that is there";
            for (const CopyDecision decision :
                 {CopyDecision::Replace, CopyDecision::Skip, CopyDecision::KeepBoth})
                QTest::addRow("means %d, %s, decision %d", means, where, int(decision))
                    << means << within << int(decision);
        }
    }
}

void CopyRaceTest::namesThatDifferInCaseOnlyCollide()
{
    QFETCH(int, means);
    QFETCH(bool, withinBatch);
    QFETCH(int, decision);
    CopyFixture fixture;
    FaultySystem system;
    restrictTo(system, means);
    ignoreCase(system, fixture);
    QStringList sources;
    if (withinBatch)
        sources.append(fixture.addSource("Part.STL", "old"));
    else
        fixture.addTarget("Part.STL", "old");
    sources.append(fixture.addSource("part.stl", "new"));
    fixture.questions.answers = {{static_cast<CopyDecision>(decision), false}};
    const auto outcomes = fixture.copy(sources, system.calls);
    QCOMPARE(int(fixture.questions.asked.size()), 1);
    QCOMPARE(fixture.questions.asked[0].kind,
             withinBatch ? CollisionKind::WithinBatch : CollisionKind::ExistingFile);
    FolderContent expected{{"Part.STL", "old"}};
    if (decision == int(CopyDecision::KeepBoth))
        expected["part (2).stl"] = "new";
    if (decision == int(CopyDecision::Replace) && !withinBatch)
        expected["Part.STL"] = "new";
    QVERIFY2(fixture.targetContent() == expected, describe(fixture.targetContent()));
    const bool isCopied = decision == int(CopyDecision::KeepBoth) || expected["Part.STL"] == "new";
    QCOMPARE(outcomes.last().outcome, isCopied ? Outcome::Copied : Outcome::Skipped);
}

void CopyRaceTest::caseMattersWhereItDoes()
{
    CopyFixture fixture;
    fixture.addTarget("PART.stl", "old");
    const auto outcomes =
        fixture.copy({fixture.addSource("Part.stl", "1"), fixture.addSource("part.stl", "2")});
    QVERIFY(fixture.questions.asked.empty());
    QVERIFY(fixture.targetContent() ==
            FolderContent({{"PART.stl", "old"}, {"Part.stl", "1"}, {"part.stl", "2"}}));
    QCOMPARE(outcomes[1].outcome, Outcome::Copied);
}

ZORVANE_TEST(CopyRaceTest)
#include "CopyRaceTest.moc"
