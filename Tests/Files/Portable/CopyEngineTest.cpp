#include "Files/Portable/CopyEngine.h"

#include "Files/PathText.h"
#include "Tests/Files/Portable/CopyFixture.h"
#include "Tests/Files/Portable/FaultySystem.h"
#include "Tests/Support/TestCase.h"

#include <algorithm>
#include <fcntl.h>
#include <fstream>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Zorvane;
using namespace Zorvane::Testing;

namespace {

const CopyAnswer s_replace{CopyDecision::Replace, false};
const CopyAnswer s_skip{CopyDecision::Skip, false};
const CopyAnswer s_keepBoth{CopyDecision::KeepBoth, false};
const CopyAnswer s_cancel{CopyDecision::Cancel, false};

std::string largeContent(std::size_t size)
{
    std::string content(size, '\0');
    for (std::size_t i = 0; i < size; ++i)
        content[i] = static_cast<char>(i * 2654435761U >> 24U);
    return content;
}

struct stat statusOf(const std::string& path)
{
    struct stat status
    {};
    stat(path.c_str(), &status);
    return status;
}

} // namespace

class CopyEngineTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void contentArrivesWhole_data();
    void contentArrivesWhole();
    void outcomesStandInTheOrderOfTheSources();
    void relativePathsAreReportedInFull();
    void reportedPath_opensTheCopy_data();
    void reportedPath_opensTheCopy();
    void nullInAPath_isRefused();
    void sizeThatIsNotTrue_isNotTrusted_data();
    void sizeThatIsNotTrue_isNotTrusted();
    void holesStayHoles_data();
    void holesStayHoles();
    void modificationTimeAndPermissionsAreKept_data();
    void modificationTimeAndPermissionsAreKept();
    void linkAsSourceIsFollowed();
    void namesAreBytes();
    void longNameIsCopied();
    void sourceThatIsNoFile_data();
    void sourceThatIsNoFile();
    void existingFileIsAskedAbout_data();
    void existingFileIsAskedAbout();
    void questionShowsBothFiles();
    void cancelInTheQuestionCopiesNothing();
    void replacingALinkLeavesWhatItLeadsTo();
    void linkToAFolder_isNeverReplaced();
    void protectedFile_staysProtected();
    void littleSpace_isAskedAboutFirst_data();
    void littleSpace_isAskedAboutFirst();
    void danglingLinkIsAsNameTaken();
    void sameFileIsItsOwnAnswer_data();
    void sameFileIsItsOwnAnswer();
    void folderIsNeverReplaced();
    void equalNamesWithinTheBatchAreAskedAbout();
    void keepBothOfALongNameStaysLegal();
    void nothingIsAskedTwiceWithForAll();
    void fewOpenFiles_areEnough();
    void memoryStaysFlat();
};

void CopyEngineTest::contentArrivesWhole_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("empty") << 0;
    QTest::newRow("one byte") << 1;
    QTest::newRow("a buffer") << 256 * 1024;
    QTest::newRow("a buffer and a byte") << 256 * 1024 + 1;
    QTest::newRow("large enough for the kernel to copy") << 5 * 1024 * 1024 + 13;
}

void CopyEngineTest::contentArrivesWhole()
{
    QFETCH(int, size);
    CopyFixture fixture;
    const std::string content = largeContent(static_cast<std::size_t>(size));
    const auto outcomes = fixture.copy({fixture.addSource("part.stl", content)});
    QCOMPARE(outcomes.size(), 1);
    QCOMPARE(outcomes[0].outcome, Outcome::Copied);
    QCOMPARE(outcomes[0].target, pathFromBytes(fixture.target("part.stl")));
    QVERIFY(fixture.targetContent() == FolderContent({{"part.stl", content}}));
    QVERIFY(fixture.questions.failures.isEmpty());
}

void CopyEngineTest::outcomesStandInTheOrderOfTheSources()
{
    CopyFixture fixture;
    const QStringList sources{fixture.addSource("c", "1"), fixture.addSource("a", "2"),
                              fixture.addSource("b", "3")};
    const auto outcomes = fixture.copy(sources);
    for (int i = 0; i < sources.size(); ++i)
        QCOMPARE(outcomes[i].source, sources[i]);
    QVERIFY(fixture.targetContent() == FolderContent({{"a", "2"}, {"b", "3"}, {"c", "1"}}));
}

void CopyEngineTest::relativePathsAreReportedInFull()
{
    CopyFixture fixture;
    const QString source = fixture.addSource("a", "1");
    const QString before = QDir::currentPath();
    QDir::setCurrent(fixture.sourceFolder());
    const auto outcomes = CopyEngine(fixture.questions, fixture.progress)
                              .run({QStringLiteral("a")}, QStringLiteral("../target"));
    QDir::setCurrent(before);
    QCOMPARE(outcomes[0].target, pathFromBytes(fixture.target("a")));
    QCOMPARE(outcomes[0].source, source);
}

void CopyEngineTest::reportedPath_opensTheCopy_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("plain") << QStringLiteral("plain");
    QTest::newRow("up from behind a link") << QStringLiteral("up");
    QTest::newRow("through a link") << QStringLiteral("link");
    QTest::newRow("renamed meanwhile") << QStringLiteral("renamed");
    QTest::newRow("relative, in a folder whose name is not UTF-8") << QStringLiteral("bytes");
}

void CopyEngineTest::reportedPath_opensTheCopy()
{
    QFETCH(QString, way);
    CopyFixture fixture;
    const std::string home = pathToBytes(fixture.targetFolder());
    const std::string far = fixture.source("far");
    QCOMPARE(mkdir(far.c_str(), 0755), 0);
    QCOMPARE(mkdir((far + "/geo").c_str(), 0755), 0);
    QCOMPARE(mkdir((far + "/T\xFCr").c_str(), 0755), 0);
    QCOMPARE(symlink((far + "/geo").c_str(), (home + "/geo").c_str()), 0);
    writeFile(home + "/part.stl", "stranger");
    std::string target = far;
    if (way == QLatin1String("up"))
        target = home + "/geo/..";
    if (way == QLatin1String("link"))
        target = home + "/geo";
    QDir::setCurrent(fixture.sourceFolder());
    if (way == QLatin1String("bytes"))
        QCOMPARE(chdir((far + "/T\xFCr").c_str()), 0);
    if (way == QLatin1String("bytes"))
        target = ".";
    FaultySystem system;
    system.beforeFirst("flush", [&] {
        if (way == QLatin1String("renamed"))
            rename(far.c_str(), fixture.source("elsewhere").c_str());
    });
    const auto outcomes =
        CopyEngine(fixture.questions, fixture.progress, system.calls)
            .run({fixture.addSource("part.stl", "copied")}, pathFromBytes(target));
    QDir::setCurrent(QDir::rootPath());
    QCOMPARE(outcomes[0].outcome, Outcome::Copied);
    QCOMPARE(contentOfFile(pathToBytes(outcomes[0].target)), std::string("copied"));
    if (way == QLatin1String("link"))
        QCOMPARE(pathToBytes(outcomes[0].target), home + "/geo/part.stl");
}

void CopyEngineTest::nullInAPath_isRefused()
{
    CopyFixture fixture;
    const QString good = fixture.addSource("a", "1");
    const QString bad = good + QChar(QChar::Null) + QStringLiteral("b");
    const auto outcomes = fixture.copy({bad, fixture.addSource("b", "2")});
    QCOMPARE(outcomes[0].outcome, Outcome::Failed);
    QVERIFY(fixture.targetContent() == FolderContent({{"b", "2"}}));
    const auto elsewhere = CopyEngine(fixture.questions, fixture.progress)
                               .run({good}, fixture.targetFolder() + QChar(QChar::Null));
    QCOMPARE(elsewhere[0].outcome, Outcome::Failed);
    QVERIFY(fixture.targetContent() == FolderContent({{"b", "2"}}));
}

void CopyEngineTest::sizeThatIsNotTrue_isNotTrusted_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("size 0, more to read") << QStringLiteral("/proc/filesystems");
    QTest::newRow("size 4096, less to read") << QStringLiteral("/sys/devices/system/cpu/online");
}

void CopyEngineTest::sizeThatIsNotTrue_isNotTrusted()
{
    QFETCH(QString, path);
    if (!QFile::exists(path))
        QSKIP("the system has no such file");
    CopyFixture fixture;
    const auto outcomes = fixture.copy({path});
    QCOMPARE(outcomes[0].outcome, Outcome::Copied);
    const std::string content = contentOfFile(pathToBytes(path));
    QVERIFY(!content.empty());
    QCOMPARE(contentOfFile(pathToBytes(outcomes[0].target)), content);
}

void CopyEngineTest::holesStayHoles_data()
{
    QTest::addColumn<QList<int>>("dataAt"); // in MiB of 64
    QTest::newRow("nothing but a hole") << QList<int>{};
    QTest::newRow("in front and behind") << QList<int>{20};
    QTest::newRow("between") << QList<int>{0, 63};
    QTest::newRow("many") << QList<int>{0, 2, 3, 10, 40};
}

void CopyEngineTest::holesStayHoles()
{
    QFETCH(QList<int>, dataAt);
    constexpr off_t mebibyte = 1 << 20;
    CopyFixture fixture;
    const QString source = fixture.addSource("sparse", "");
    QCOMPARE(truncate(fixture.source("sparse").c_str(), 64 * mebibyte), 0);
    for (const int at : dataAt) {
        std::fstream file(fixture.source("sparse"), std::ios::in | std::ios::out);
        file.seekp(at * mebibyte);
        file << largeContent(mebibyte);
    }
    const struct stat before = statusOf(fixture.source("sparse"));
    if (before.st_blocks * 512 >= before.st_size)
        QSKIP("this file system has no holes");
    const auto outcomes = fixture.copy({source});
    QCOMPARE(outcomes[0].outcome, Outcome::Copied);
    QVERIFY(fixture.targetContent() == fixture.sourceContent());
    const struct stat copy = statusOf(fixture.target("sparse"));
    QVERIFY(copy.st_blocks <= before.st_blocks + 64);
    QCOMPARE(fixture.progress.states.back().bytesDone, qint64(64 * mebibyte));
}

void CopyEngineTest::modificationTimeAndPermissionsAreKept_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("usual") << 0644;
    QTest::newRow("read only") << 0444;
    QTest::newRow("program") << 0755;
    QTest::newRow("private") << 0600;
    QTest::newRow("everybody, beyond the umask") << 0666;
}

void CopyEngineTest::modificationTimeAndPermissionsAreKept()
{
    QFETCH(int, mode);
    CopyFixture fixture;
    const QString source = fixture.addSource("a", "1");
    const timespec times[2] = {{1000000000, 5}, {1234567890, 123456789}};
    QCOMPARE(utimensat(AT_FDCWD, fixture.source("a").c_str(), times, 0), 0);
    QCOMPARE(chmod(fixture.source("a").c_str(), static_cast<mode_t>(mode)), 0);
    fixture.copy({source});
    const struct stat copy = statusOf(fixture.target("a"));
    QCOMPARE(int(copy.st_mode & 07777), mode);
    QCOMPARE(qint64(copy.st_mtim.tv_sec), Q_INT64_C(1234567890));
    QCOMPARE(qint64(copy.st_mtim.tv_nsec), Q_INT64_C(123456789));
}

void CopyEngineTest::linkAsSourceIsFollowed()
{
    CopyFixture fixture;
    fixture.addSource("real", "content");
    QCOMPARE(symlink("real", fixture.source("link").c_str()), 0);
    const auto outcomes = fixture.copy({pathFromBytes(fixture.source("link"))});
    QCOMPARE(outcomes[0].outcome, Outcome::Copied);
    struct stat status
    {};
    QCOMPARE(lstat(fixture.target("link").c_str(), &status), 0);
    QVERIFY(S_ISREG(status.st_mode));
    QVERIFY(fixture.targetContent() == FolderContent({{"link", "content"}}));
}

void CopyEngineTest::namesAreBytes()
{
    CopyFixture fixture;
    const std::string latin = "T\xFCr.stl";
    const std::string utf8 = "T\xC3\xBCr \xE6\xBF\x80.stl";
    fixture.addTarget(latin, "old");
    fixture.questions.answers = {s_keepBoth};
    const auto outcomes =
        fixture.copy({fixture.addSource(latin, "1"), fixture.addSource(utf8, "2")});
    QCOMPARE(outcomes[0].status, int(FileCopyUtility::CopiedUnderOtherName));
    QCOMPARE(pathToBytes(outcomes[0].target), fixture.target("T\xFCr (2).stl"));
    QVERIFY(fixture.targetContent() ==
            FolderContent({{latin, "old"}, {"T\xFCr (2).stl", "1"}, {utf8, "2"}}));
}

void CopyEngineTest::longNameIsCopied()
{
    CopyFixture fixture;
    const std::string name(255, 'n');
    const auto outcomes = fixture.copy({fixture.addSource(name, "1")});
    QCOMPARE(outcomes[0].outcome, Outcome::Copied);
    QVERIFY(fixture.targetContent() == FolderContent({{name, "1"}}));
}

void CopyEngineTest::sourceThatIsNoFile_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("missing") << QStringLiteral("missing");
    QTest::newRow("folder") << QStringLiteral("folder");
    QTest::newRow("pipe") << QStringLiteral("pipe");
    QTest::newRow("dangling link") << QStringLiteral("dangling");
}

void CopyEngineTest::sourceThatIsNoFile()
{
    QFETCH(QString, kind);
    CopyFixture fixture;
    const std::string name = kind.toStdString();
    if (name == "folder")
        QCOMPARE(mkdir(fixture.source(name).c_str(), 0755), 0);
    if (name == "pipe")
        QCOMPARE(mkfifo(fixture.source(name).c_str(), 0644), 0);
    if (name == "dangling")
        QCOMPARE(symlink("nowhere", fixture.source(name).c_str()), 0);
    const auto outcomes =
        fixture.copy({pathFromBytes(fixture.source(name)), fixture.addSource("good", "1")});
    QCOMPARE(outcomes[0].outcome, Outcome::Failed);
    QVERIFY(!outcomes[0].reason.isEmpty());
    QCOMPARE(outcomes[1].outcome, Outcome::Copied);
    QCOMPARE(fixture.questions.failures.size(), 1);
    QVERIFY(fixture.targetContent() == FolderContent({{"good", "1"}}));
}

void CopyEngineTest::existingFileIsAskedAbout_data()
{
    QTest::addColumn<int>("decision");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("old");
    QTest::addColumn<QString>("second");
    const auto row = [](const char* name, CopyDecision decision, FileCopyUtility::Status status,
                        const char* old, const char* second) {
        QTest::newRow(name) << static_cast<int>(decision) << static_cast<int>(status)
                            << QString::fromUtf8(old) << QString::fromUtf8(second);
    };
    row("replace", CopyDecision::Replace, FileCopyUtility::Copied, "new", "");
    row("skip", CopyDecision::Skip, FileCopyUtility::NotCopied, "old", "");
    row("keep both", CopyDecision::KeepBoth, FileCopyUtility::CopiedUnderOtherName, "old", "new");
}

void CopyEngineTest::existingFileIsAskedAbout()
{
    QFETCH(int, decision);
    QFETCH(int, status);
    QFETCH(QString, old);
    QFETCH(QString, second);
    CopyFixture fixture;
    fixture.addTarget("part.stl", "old");
    fixture.questions.answers = {{static_cast<CopyDecision>(decision), false}};
    const auto outcomes = fixture.copy({fixture.addSource("part.stl", "new")});
    QCOMPARE(outcomes[0].status, status);
    QCOMPARE(outcomes[0].outcome == Outcome::Skipped, status == FileCopyUtility::NotCopied);
    FolderContent expected{{"part.stl", old.toStdString()}};
    if (!second.isEmpty())
        expected["part (2).stl"] = second.toStdString();
    QVERIFY(fixture.targetContent() == expected);
    QVERIFY(fixture.targetContent() ==
            Testing::reportedContent({{"part.stl", "old"}}, outcomes, fixture.sourceContent()));
    QVERIFY(fixture.sourceContent() == FolderContent({{"part.stl", "new"}}));
}

void CopyEngineTest::questionShowsBothFiles()
{
    CopyFixture fixture;
    const QString source = fixture.addSource("part.stl", "longer");
    fixture.addTarget("part.stl", "old");
    const timespec times[2] = {{0, UTIME_OMIT}, {1000000000, 0}};
    QCOMPARE(utimensat(AT_FDCWD, fixture.target("part.stl").c_str(), times, 0), 0);
    fixture.copy({source});
    QCOMPARE(int(fixture.questions.asked.size()), 1);
    const CopyCollision& asked = fixture.questions.asked[0];
    QCOMPARE(asked.kind, CollisionKind::ExistingFile);
    QCOMPARE(asked.source.path, source);
    QCOMPARE(asked.source.size, qint64(6));
    QCOMPARE(asked.target.path, pathFromBytes(fixture.target("part.stl")));
    QCOMPARE(asked.target.size, qint64(3));
    QCOMPARE(asked.target.modified, QDateTime::fromSecsSinceEpoch(1000000000));
    QVERIFY(asked.source.modified > asked.target.modified);
    QCOMPARE(asked.keepBothName, QStringLiteral("part (2).stl"));
    QCOMPARE(asked.remaining, 0);
}

void CopyEngineTest::cancelInTheQuestionCopiesNothing()
{
    CopyFixture fixture;
    fixture.addTarget("b", "old");
    fixture.questions.answers = {s_cancel};
    const auto outcomes = fixture.copy({fixture.addSource("a", "1"), fixture.addSource("b", "2")});
    QCOMPARE(outcomes[0].outcome, Outcome::Cancelled);
    QCOMPARE(outcomes[1].outcome, Outcome::Cancelled);
    QVERIFY(fixture.targetContent() == FolderContent({{"b", "old"}}));
    QVERIFY(fixture.questions.failures.isEmpty());
}

void CopyEngineTest::replacingALinkLeavesWhatItLeadsTo()
{
    CopyFixture fixture;
    fixture.addTarget("other", "precious");
    QCOMPARE(symlink("other", fixture.target("a").c_str()), 0);
    fixture.questions.answers = {s_replace};
    fixture.copy({fixture.addSource("a", "new")});
    QVERIFY(fixture.targetContent() == FolderContent({{"a", "new"}, {"other", "precious"}}));
}

void CopyEngineTest::linkToAFolder_isNeverReplaced()
{
    CopyFixture fixture;
    QCOMPARE(mkdir(fixture.target("folder").c_str(), 0755), 0);
    QCOMPARE(symlink("folder", fixture.target("a").c_str()), 0);
    fixture.questions.answers = {s_replace};
    const auto outcomes = fixture.copy({fixture.addSource("a", "new")});
    QCOMPARE(fixture.questions.asked.at(0).kind, CollisionKind::NotAFile);
    QCOMPARE(outcomes[0].outcome, Outcome::Skipped);
    QVERIFY(fixture.targetContent() == FolderContent({{"a", "<folder>"}, {"folder", "<folder>"}}));
}

void CopyEngineTest::protectedFile_staysProtected()
{
    CopyFixture fixture;
    fixture.addTarget("a", "old");
    QCOMPARE(chmod(fixture.target("a").c_str(), 0440), 0);
    fixture.questions.answers = {s_replace};
    fixture.copy({fixture.addSource("a", "new")});
    QCOMPARE(fixture.questions.asked.at(0).kind, CollisionKind::ProtectedFile);
    QVERIFY(fixture.targetContent() == FolderContent({{"a", "new"}}));
    QCOMPARE(int(statusOf(fixture.target("a")).st_mode & 07777), 0440);
}

void CopyEngineTest::littleSpace_isAskedAboutFirst_data()
{
    QTest::addColumn<int>("free");
    QTest::addColumn<bool>("asks");
    // Of 4 blocks that go there, 1 replaces 2, which it frees.
    QTest::newRow("all but a byte") << 3 * 4096 - 1 << true;
    QTest::newRow("just enough") << 3 * 4096 << false;
    QTest::newRow("not known") << -1 << false;
}

void CopyEngineTest::littleSpace_isAskedAboutFirst()
{
    QFETCH(int, free);
    QFETCH(bool, asks);
    CopyFixture fixture;
    const std::string block(4096, 'x');
    fixture.addTarget("a", block + block);
    fixture.questions.answers = {s_replace};
    FaultySystem system;
    system.calls.freeBytes = [=](int) { return free; };
    // Sizes on the disk are the file system's business.
    system.calls.statusAt = [](int folder, const char* path, struct stat& status, int flags) {
        const int result = SystemCalls::real().statusAt(folder, path, status, flags);
        status.st_blocks = (status.st_size + 511) / 512;
        return result;
    };
    const auto outcomes =
        fixture.copy({fixture.addSource("a", block), fixture.addSource("b", block + block + block),
                      fixture.addSource("c", block)},
                     system.calls);
    QCOMPARE(fixture.questions.spaceAsked.empty(), !asks);
    QCOMPARE(outcomes[0].outcome, asks ? Outcome::Cancelled : Outcome::Copied);
    QCOMPARE(fixture.targetContent().at("a").size(), asks ? block.size() * 2 : block.size());
    if (asks)
        QCOMPARE(fixture.questions.spaceAsked[0].first, qint64(3 * 4096));
}

void CopyEngineTest::danglingLinkIsAsNameTaken()
{
    CopyFixture fixture;
    QCOMPARE(symlink("nowhere", fixture.target("a").c_str()), 0);
    fixture.questions.answers = {s_keepBoth};
    fixture.copy({fixture.addSource("a", "new")});
    QCOMPARE(int(fixture.questions.asked.size()), 1);
    QCOMPARE(fixture.targetContent().at("a (2)"), std::string("new"));
    QCOMPARE(access(fixture.target("nowhere").c_str(), F_OK), -1);
}

void CopyEngineTest::sameFileIsItsOwnAnswer_data()
{
    QTest::addColumn<bool>("hardLink");
    QTest::addColumn<int>("decision");
    QTest::addColumn<int>("outcome");
    for (const bool hard : {true, false}) {
        const char* kind = hard ? "hard link" : "symbolic link";
        const auto row = [&](const char* name, CopyDecision decision, Outcome outcome) {
            QTest::addRow("%s, %s", kind, name)
                << hard << static_cast<int>(decision) << static_cast<int>(outcome);
        };
        row("skip", CopyDecision::Skip, Outcome::SameFile);
        row("replace, which is not offered", CopyDecision::Replace, Outcome::SameFile);
        row("keep both", CopyDecision::KeepBoth, Outcome::Copied);
    }
}

void CopyEngineTest::sameFileIsItsOwnAnswer()
{
    QFETCH(bool, hardLink);
    QFETCH(int, decision);
    QFETCH(int, outcome);
    CopyFixture fixture;
    const QString source = fixture.addSource("a", "1");
    const auto make = hardLink ? ::link : ::symlink;
    QCOMPARE(make(fixture.source("a").c_str(), fixture.target("a").c_str()), 0);
    fixture.questions.answers = {{static_cast<CopyDecision>(decision), false}};
    const auto outcomes = fixture.copy({source});
    QCOMPARE(fixture.questions.asked.at(0).kind, CollisionKind::SameFile);
    QVERIFY(!fixture.questions.asked.at(0).allows(CopyDecision::Replace));
    QCOMPARE(static_cast<int>(outcomes[0].outcome), outcome);
    FolderContent expected{{"a", "1"}};
    if (outcomes[0].outcome == Outcome::Copied)
        expected["a (2)"] = "1";
    QVERIFY(fixture.targetContent() == expected);
    QVERIFY(fixture.sourceContent() == FolderContent({{"a", "1"}}));
}

void CopyEngineTest::folderIsNeverReplaced()
{
    CopyFixture fixture;
    QCOMPARE(mkdir(fixture.target("a").c_str(), 0755), 0);
    QCOMPARE(mkdir(fixture.target("b").c_str(), 0755), 0);
    fixture.questions.answers = {s_replace, s_keepBoth};
    const auto outcomes = fixture.copy({fixture.addSource("a", "1"), fixture.addSource("b", "2")});
    QCOMPARE(fixture.questions.asked.at(0).kind, CollisionKind::NotAFile);
    QCOMPARE(outcomes[0].outcome, Outcome::Skipped);
    QVERIFY(fixture.targetContent() ==
            FolderContent({{"a", "<folder>"}, {"b", "<folder>"}, {"b (2)", "2"}}));
}

void CopyEngineTest::equalNamesWithinTheBatchAreAskedAbout()
{
    CopyFixture fixture;
    QCOMPARE(mkdir(fixture.source("sub").c_str(), 0755), 0);
    const QString first = fixture.addSource("a", "1");
    const QString second = fixture.addSource("sub/a", "2");
    const QString third = fixture.addSource("a (2)", "3");
    fixture.questions.answers = {s_keepBoth};
    const auto outcomes = fixture.copy({first, second, third});
    QCOMPARE(fixture.questions.asked.at(0).kind, CollisionKind::WithinBatch);
    QCOMPARE(fixture.questions.asked.at(0).target.path, first);
    QCOMPARE(outcomes[1].status, int(FileCopyUtility::CopiedUnderOtherName));
    // "a (2)" is what the third source is called.
    QVERIFY(fixture.targetContent() == FolderContent({{"a", "1"}, {"a (2)", "3"}, {"a (3)", "2"}}));
}

void CopyEngineTest::keepBothOfALongNameStaysLegal()
{
    CopyFixture fixture;
    std::string name;
    while (name.size() + 2 <= 250)
        name += "\xC3\xBC";
    name += ".stl";
    fixture.addTarget(name, "old");
    fixture.questions.answers = {s_keepBoth};
    const auto outcomes = fixture.copy({fixture.addSource(name, "new")});
    QCOMPARE(outcomes[0].status, int(FileCopyUtility::CopiedUnderOtherName));
    const std::string leaf = pathToBytes(outcomes[0].target).substr(fixture.target("").size());
    QVERIFY(leaf.size() <= 255);
    QVERIFY(!pathForDisplay(pathFromBytes(leaf)).contains(QStringLiteral("\\x")));
    QVERIFY(pathFromBytes(leaf).endsWith(QStringLiteral(" (2).stl")));
    QVERIFY(fixture.targetContent() == FolderContent({{name, "old"}, {leaf, "new"}}));
}

void CopyEngineTest::nothingIsAskedTwiceWithForAll()
{
    CopyFixture fixture;
    QStringList sources;
    for (const char* name : {"a", "b", "c"}) {
        sources.append(fixture.addSource(name, "new"));
        fixture.addTarget(name, "old");
    }
    fixture.questions.answers = {s_skip, {CopyDecision::Replace, true}};
    fixture.copy(sources);
    QCOMPARE(int(fixture.questions.asked.size()), 2);
    QCOMPARE(fixture.questions.asked[0].remaining, 2);
    QCOMPARE(fixture.questions.asked[1].remaining, 1);
    QVERIFY(fixture.targetContent() == FolderContent({{"a", "old"}, {"b", "new"}, {"c", "new"}}));
}

void CopyEngineTest::fewOpenFiles_areEnough()
{
    CopyFixture fixture;
    QStringList sources;
    for (int i = 0; i < 300; ++i)
        sources.append(fixture.addSource("f" + std::to_string(i), "x"));
    rlimit before{};
    QCOMPARE(getrlimit(RLIMIT_NOFILE, &before), 0);
    const rlimit few{40, before.rlim_max};
    QCOMPARE(setrlimit(RLIMIT_NOFILE, &few), 0);
    const auto outcomes = fixture.copy(sources);
    QCOMPARE(setrlimit(RLIMIT_NOFILE, &before), 0);
    QVERIFY(std::all_of(outcomes.begin(), outcomes.end(),
                        [](const Record& outcome) { return outcome.outcome == Outcome::Copied; }));
    QVERIFY(fixture.targetContent() == fixture.sourceContent());
}

void CopyEngineTest::memoryStaysFlat()
{
    CopyFixture fixture;
    const std::string path = fixture.source("sparse");
    Testing::writeFile(path, "");
    constexpr off_t size = off_t(128) << 20;
    QCOMPARE(truncate(path.c_str(), size), 0);
    Testing::FaultySystem system;
    system.removeRangeCopy();
    system.removeHoles();
    rusage before{};
    rusage after{};
    QCOMPARE(getrusage(RUSAGE_SELF, &before), 0);
    const auto outcomes = fixture.copy({pathFromBytes(path)}, system.calls);
    QCOMPARE(getrusage(RUSAGE_SELF, &after), 0);
    QCOMPARE(outcomes[0].outcome, Outcome::Copied);
    QCOMPARE(qint64(statusOf(fixture.target("sparse")).st_size), qint64(size));
    const long grownKibibytes = after.ru_maxrss - before.ru_maxrss;
    QVERIFY2(grownKibibytes < 8 * 1024, qPrintable(QString::number(grownKibibytes)));
}

ZORVANE_TEST(CopyEngineTest)
#include "CopyEngineTest.moc"
