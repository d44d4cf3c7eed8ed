#include "Files/FileNameRules.h"
#include "Files/PathText.h"
#include "Files/Portable/TemporaryNames.h"
#include "Tests/Files/Portable/CopyFixture.h"
#include "Tests/Files/Portable/CopyMeans.h"
#include "Tests/Files/Portable/FaultySystem.h"
#include "Tests/Support/TestCase.h"

#include <rapidcheck.h>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

using namespace Zorvane;
using namespace Zorvane::Testing;

namespace {

/** A file of a temporary's name, locked as long as this lives. */
class UsedTemporary
{
public:
    explicit UsedTemporary(const std::string& path)
        : m_file(::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600))
    {
        ::flock(m_file, LOCK_EX | LOCK_NB);
    }
    ~UsedTemporary() { ::close(m_file); }

    UsedTemporary(const UsedTemporary&) = delete;
    UsedTemporary& operator=(const UsedTemporary&) = delete;

private:
    int m_file;
};

} // namespace

/** What a copy leaves in the folder that it shouldn't, and what it does about it. */
class CopyLeftoversTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void temporaryNames_areLegalEverywhere();
    void otherNames_areNotTakenForTemporaries_data();
    void otherNames_areNotTakenForTemporaries();
    void unnamedFiles_areTriedOutWithoutANewName();
    void folderWithoutRemoving_getsOneFileAtMost_data();
    void folderWithoutRemoving_getsOneFileAtMost();
    void secondLinkThatStays_isReported();
    void abandonedFiles_areRemoved_data() { addMeansRows(); }
    void abandonedFiles_areRemoved();
    void usedFiles_areNotRemoved();
    void temporariesInUse_areLocked_data();
    void temporariesInUse_areLocked();
    void fileRemovedBeforeItsLock_isMadeAgain();
};

void CopyLeftoversTest::temporaryNames_areLegalEverywhere()
{
    QVERIFY(rc::check("of any number", [] {
        const std::string name = temporaryCopyName(*rc::gen::arbitrary<quint64>());
        RC_ASSERT(isTemporaryCopyName(name));
        RC_ASSERT(name.front() == '.');
        const QString text = pathFromBytes(name);
        RC_ASSERT(faultOfFileName(text, PathSyntax::Windows) == FileNameFault::None);
        RC_ASSERT(faultOfFileName(text, PathSyntax::Posix) == FileNameFault::None);
    }));
    QVERIFY(temporaryCopyName(1) != temporaryCopyName(2));
}

void CopyLeftoversTest::otherNames_areNotTakenForTemporaries_data()
{
    QTest::addColumn<QByteArray>("name");
    const QByteArray ours = QByteArray::fromStdString(temporaryCopyName(5));
    QTest::newRow("another machine's") << QByteArray(ours).replace(8, 8, "00000000");
    QTest::newRow("shorter") << ours.left(ours.size() - 1);
    QTest::newRow("longer") << ours + "0";
    QTest::newRow("other letters") << QByteArray(ours).replace(ours.size() - 1, 1, "Z");
    QTest::newRow("a user's") << QByteArray("part.stl");
}

void CopyLeftoversTest::otherNames_areNotTakenForTemporaries()
{
    QFETCH(QByteArray, name);
    CopyFixture fixture;
    fixture.addTarget(name.toStdString(), "theirs");
    fixture.copy({fixture.addSource("a", "1")});
    QCOMPARE(int(fixture.targetContent().count(name.toStdString())), 1);
}

void CopyLeftoversTest::unnamedFiles_areTriedOutWithoutANewName()
{
    CopyFixture fixture;
    FaultySystem system;
    fixture.copy({fixture.addSource("a", "1")}, system.calls);
    QCOMPARE(system.countOf("linkUnnamed"), 2);
    QCOMPARE(system.countOf("unlink"), 0);
    QCOMPARE(system.countOf("rename") + system.countOf("renameNoReplace"), 0);
}

void CopyLeftoversTest::folderWithoutRemoving_getsOneFileAtMost_data()
{
    addMeansColumn();
    QTest::newRow("renaming without replacing") << int(RenameNoReplace);
    QTest::newRow("hard links only") << int(Link);
}

/** As a drop folder on a share: names can be made there, but neither changed nor removed. */
void CopyLeftoversTest::folderWithoutRemoving_getsOneFileAtMost()
{
    QFETCH(int, means);
    CopyFixture fixture;
    FaultySystem system;
    restrictTo(system, means);
    system.before = [](const FaultySystem::Call& call) {
        const bool removes =
            call.name == "unlink" || call.name == "rename" || call.name == "renameNoReplace";
        return removes ? EACCES : 0;
    };
    const auto outcomes = fixture.copy({fixture.addSource("a", "1")}, system.calls);
    QCOMPARE(outcomes[0].outcome, Outcome::Failed);
    const FolderContent left = fixture.targetContent();
    QCOMPARE(int(left.size()), 1);
    QVERIFY(isTemporaryCopyName(left.begin()->first));
    QCOMPARE(fixture.questions.remarks.size(), 1);
    QCOMPARE(pathToBytes(fixture.questions.remarks[0].path), fixture.target(left.begin()->first));
}

void CopyLeftoversTest::secondLinkThatStays_isReported()
{
    CopyFixture fixture;
    FaultySystem system;
    restrictTo(system, Link);
    // The first three try out the folder.
    system.before = [](const FaultySystem::Call& call) {
        return call.name == "unlink" && call.sameIndex >= 3 ? EACCES : 0;
    };
    const auto outcomes = fixture.copy({fixture.addSource("a", "1")}, system.calls);
    QCOMPARE(outcomes[0].outcome, Outcome::Copied);
    QCOMPARE(int(fixture.targetContent().size()), 2);
    QCOMPARE(fixture.questions.remarks.size(), 1);
    QVERIFY(isTemporaryCopyName(
        pathToBytes(fixture.questions.remarks[0].path.section(QLatin1Char('/'), -1))));
}

void CopyLeftoversTest::abandonedFiles_areRemoved()
{
    QFETCH(int, means);
    CopyFixture fixture;
    FaultySystem system;
    restrictTo(system, means);
    for (const unsigned number : {1U, 2U, 3U})
        fixture.addTarget(temporaryCopyName(number), "half a file");
    ::chmod(fixture.target(temporaryCopyName(2)).c_str(), 0444);
    fixture.copy({fixture.addSource("a", "1")}, system.calls);
    QVERIFY(fixture.targetContent() == FolderContent({{"a", "1"}}));
}

void CopyLeftoversTest::usedFiles_areNotRemoved()
{
    CopyFixture fixture;
    const std::string name = temporaryCopyName(7);
    const UsedTemporary used(fixture.target(name));
    fixture.copy({fixture.addSource("a", "1")});
    QVERIFY(fixture.targetContent() == FolderContent({{"a", "1"}, {name, ""}}));
}

void CopyLeftoversTest::temporariesInUse_areLocked_data()
{
    addMeansColumn();
    QTest::addColumn<QString>("call");
    QTest::newRow("renaming without replacing") << int(RenameNoReplace) << QStringLiteral("flush");
    QTest::newRow("hard links only") << int(Link) << QStringLiteral("flush");
    QTest::newRow("the moment of replacing") << int(LinkUnnamed) << QStringLiteral("rename");
}

/** Another copy into the same folder starts meanwhile. */
void CopyLeftoversTest::temporariesInUse_areLocked()
{
    QFETCH(int, means);
    QFETCH(QString, call);
    CopyFixture fixture;
    fixture.addTarget("a", "old");
    const QString source = fixture.addSource("a", "new");
    const QString other = fixture.addSource("b", "other");
    fixture.questions.answers = {{CopyDecision::Replace, false}};
    FaultySystem system;
    restrictTo(system, means);
    int temporaries = 0;
    system.beforeFirst(call.toStdString(), [&] {
        ScriptedQuestions questions;
        ScriptedProgress progress;
        CopyEngine(questions, progress).run({other}, fixture.targetFolder());
        for (const auto& [name, content] : fixture.targetContent())
            temporaries += isTemporaryCopyName(name) ? 1 : 0;
    });
    const auto outcomes = fixture.copy({source}, system.calls);
    QCOMPARE(temporaries, 1);
    QCOMPARE(outcomes[0].outcome, Outcome::Copied);
    QVERIFY(fixture.targetContent() == FolderContent({{"a", "new"}, {"b", "other"}}));
}

void CopyLeftoversTest::fileRemovedBeforeItsLock_isMadeAgain()
{
    CopyFixture fixture;
    const QString source = fixture.addSource("a", "1");
    FaultySystem system;
    restrictTo(system, RenameNoReplace);
    system.beforeFirst("lock", [&] {
        for (const auto& [name, content] : fixture.targetContent())
            ::unlink(fixture.target(name).c_str());
    });
    const auto outcomes = fixture.copy({source}, system.calls);
    QCOMPARE(outcomes[0].outcome, Outcome::Copied);
    QVERIFY(fixture.targetContent() == FolderContent({{"a", "1"}}));
}

ZORVANE_TEST(CopyLeftoversTest)
#include "CopyLeftoversTest.moc"
