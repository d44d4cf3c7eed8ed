#include "Files/PathText.h"
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

/** What becomes of "a", which has that content, if a file with the content "1" is to be "a". */
FolderContent decidedUpon(const std::string& existing, int decision)
{
    FolderContent content{{"a", decision == int(CopyDecision::Replace) ? "1" : existing}};
    if (decision == int(CopyDecision::KeepBoth))
        content["a (2)"] = "1";
    return content;
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
    for (const char* change : {"vanishes", "grows", "shrinks", "becomes a folder", "becomes a pipe",
                               "is replaced by another"}) {
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
    if (outcomes[0].fate == CopyFate::Copied)
        expected["a"] = content; // the file was open: it is the old one, and whole
    else
        QCOMPARE(outcomes[0].fate, CopyFate::Failed);
    const bool inPlace = change == QLatin1String("grows") || change == QLatin1String("shrinks");
    if (inPlace || call == QLatin1String("open"))
        QCOMPARE(outcomes[0].fate, CopyFate::Failed);
    QCOMPARE(outcomes[1].fate, CopyFate::Copied);
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
    QCOMPARE(fixture.questions.asked[0].remaining, 0);
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
    QCOMPARE(outcomes[0].fate, CopyFate::Copied);
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
    QCOMPARE(outcomes[0].fate, CopyFate::Skipped);
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
    QCOMPARE(outcomes[0].fate, CopyFate::Failed);
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
    const CopyFate last = outcomes.last().fate;
    QCOMPARE(last, decision == int(CopyDecision::KeepBoth) ? CopyFate::CopiedUnderOtherName
                   : expected["Part.STL"] == "new"         ? CopyFate::Copied
                                                           : CopyFate::Skipped);
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
    QCOMPARE(outcomes[1].fate, CopyFate::Copied);
}

ZORVANE_TEST(CopyRaceTest)
#include "CopyRaceTest.moc"
