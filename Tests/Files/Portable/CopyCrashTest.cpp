#include "Files/Portable/TemporaryNames.h"
#include "Tests/Files/Portable/CopyFixture.h"
#include "Tests/Files/Portable/FaultySystem.h"
#include "Tests/Support/TestCase.h"

#include <algorithm>
#include <sys/wait.h>
#include <unistd.h>

using namespace Zorvane;
using namespace Zorvane::Testing;

namespace {

constexpr int s_crashed = 42;
constexpr int s_finished = 43;

/** Runs the copy in a child process that dies at a system call; what it did stays on the disk. */
int copyInChild(CopyFixture& fixture, const QStringList& sources, FaultySystem& system, int dieAt)
{
    const pid_t child = fork();
    if (child == 0) {
        system.before = [dieAt](const FaultySystem::Call& call) {
            if (call.index == dieAt)
                _exit(s_crashed);
            return 0;
        };
        fixture.copy(sources, system.calls);
        _exit(s_finished);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

std::ptrdiff_t countTemporaries(const FolderContent& content)
{
    return std::count_if(content.begin(), content.end(),
                         [](const auto& entry) { return isTemporaryCopyName(entry.first); });
}

} // namespace

/** The program is killed before each system call of a copy, which is after each one before. */
class CopyCrashTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void finalNameIsWholeAtEveryMoment_data();
    void finalNameIsWholeAtEveryMoment();
};

void CopyCrashTest::finalNameIsWholeAtEveryMoment_data()
{
    QTest::addColumn<bool>("unnamed");
    QTest::addColumn<bool>("noReplace");
    QTest::newRow("unnamed files") << true << true;
    QTest::newRow("renaming without replacing") << false << true;
    QTest::newRow("hard links only") << false << false;
}

void CopyCrashTest::finalNameIsWholeAtEveryMoment()
{
    QFETCH(bool, unnamed);
    QFETCH(bool, noReplace);
    const std::string large(5 * 1024 * 1024, 'l');
    const std::string old = "old";
    for (int dieAt = 0;; ++dieAt) {
        CopyFixture fixture;
        fixture.addTarget("replaced", old);
        fixture.addTarget("kept", old);
        const QStringList sources{fixture.addSource("new", large),
                                  fixture.addSource("replaced", "new replaced"),
                                  fixture.addSource("kept", "new kept")};
        const FolderContent sourcesBefore = fixture.sourceContent();
        fixture.questions.answers = {{CopyDecision::Replace, false},
                                     {CopyDecision::KeepBoth, false}};
        FaultySystem system;
        system.dontWaitForDisks(); // a dead process takes nothing along that it has written
        if (!unnamed)
            system.removeUnnamedFiles();
        if (!noReplace)
            system.removeNoReplaceRename();
        const int end = copyInChild(fixture, sources, system, dieAt);

        QVERIFY(fixture.sourceContent() == sourcesBefore);
        FolderContent target = fixture.targetContent();
        const QByteArray where = "killed at call " + QByteArray::number(dieAt);
        QVERIFY2(target.count("new") == 0 || target["new"] == large, where);
        QVERIFY2(target["replaced"] == old || target["replaced"] == "new replaced", where);
        QVERIFY2(target["kept"] == old, where);
        QVERIFY2(target.count("kept (2)") == 0 || target["kept (2)"] == "new kept", where);
        const auto temporaries = countTemporaries(target);
        // A file without a name ends with its process; only the moment of replacing needs a name.
        QVERIFY2(temporaries <= (unnamed ? 1 : 3), where);
        const std::size_t whole = target.size() - static_cast<std::size_t>(temporaries);
        FaultySystem next;
        next.dontWaitForDisks();
        fixture.copy({fixture.addSource("next", "next")}, next.calls);
        const FolderContent later = fixture.targetContent();
        QVERIFY2(countTemporaries(later) == 0 && later.size() == whole + 1, where);
        if (end == s_finished) {
            QVERIFY(dieAt > 10);
            QCOMPARE(int(target.size()), 4);
            return;
        }
        QCOMPARE(end, s_crashed);
    }
}

ZORVANE_TEST(CopyCrashTest)
#include "CopyCrashTest.moc"
