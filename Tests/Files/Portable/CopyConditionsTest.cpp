#include "Files/PathText.h"
#include "Files/Portable/TemporaryNames.h"
#include "Tests/Files/Portable/CopyFixture.h"
#include "Tests/Files/Portable/CopyMeans.h"
#include "Tests/Files/Portable/FaultySystem.h"
#include "Tests/Files/Portable/MountedFolder.h"
#include "Tests/Support/TestCase.h"

#include <algorithm>
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Zorvane;
using namespace Zorvane::Testing;

namespace {

constexpr const char* noMounts = "file systems may not be mounted here";

/** The flag that allows a folder new names only, as long as this lives. */
class AppendOnly
{
public:
    explicit AppendOnly(const std::string& folder)
        : m_folder(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
        , m_isSet(change(FS_APPEND_FL))
    {}
    ~AppendOnly()
    {
        if (m_isSet)
            change(0);
        ::close(m_folder);
    }

    AppendOnly(const AppendOnly&) = delete;
    AppendOnly& operator=(const AppendOnly&) = delete;

    bool isSet() const { return m_isSet; }

private:
    bool change(int flag) const
    {
        int flags = 0;
        if (::ioctl(m_folder, FS_IOC_GETFLAGS, &flags) != 0)
            return false;
        flags = (flags & ~FS_APPEND_FL) | flag;
        return ::ioctl(m_folder, FS_IOC_SETFLAGS, &flags) == 0;
    }

    int m_folder;
    bool m_isSet;
};

/** Everything that is reported as copied is there and whole, and nothing else has changed. */
void compareWithReport(const CopyFixture& fixture, const std::string& folder,
                       const FolderContent& before, const Records& records)
{
    const FolderContent now = contentOf(folder);
    const FolderContent expected = reportedContent(before, records, fixture.sourceContent());
    QVERIFY2(now == expected, describe(now));
}

} // namespace

/** Real file systems that are full, write-protected or allow only new names. */
class CopyConditionsTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void fullDisk_keepsOldFiles_data();
    void fullDisk_keepsOldFiles();
    void fullDisk_isAskedAboutBeforeAnythingIsCopied();
    void readOnlyDisk_isReported();
    void appendOnlyFolder_getsNewFiles();
    void appendOnlyFolder_keepsWhatItHas();
    void appendOnlyFolder_getsNoTemporaries_data();
    void appendOnlyFolder_getsNoTemporaries();
};

void CopyConditionsTest::fullDisk_keepsOldFiles_data()
{
    QTest::addColumn<QString>("fileSystem");
    QTest::addColumn<int>("means");
    QTest::newRow("memory, unnamed files") << QStringLiteral("memory") << int(LinkUnnamed);
    QTest::newRow("memory, renaming") << QStringLiteral("memory") << int(RenameNoReplace);
    QTest::newRow("ext4, unnamed files") << QStringLiteral("ext4") << int(LinkUnnamed);
    QTest::newRow("ext4, hard links") << QStringLiteral("ext4") << int(Link);
}

void CopyConditionsTest::fullDisk_keepsOldFiles()
{
    QFETCH(QString, fileSystem);
    QFETCH(int, means);
    CopyFixture fixture;
    MountedFolder disk;
    const QTemporaryDir images;
    const QString image = images.filePath(QStringLiteral("image"));
    const bool isMounted = fileSystem == QLatin1String("memory")
                               ? disk.mountMemory(6 * 1024)
                               : MountedFolder::makeImage(image, 8) && disk.mountImage(image);
    if (!isMounted)
        QSKIP(noMounts);
    const std::string folder = pathToBytes(disk.path());
    ::rmdir((folder + "/lost+found").c_str());
    constexpr std::size_t mebibyte = 1 << 20;
    writeFile(folder + "/a", std::string(mebibyte, 'o'));
    const FolderContent before = contentOf(folder);
    fixture.questions.copiesInSpiteOfSpace = true;
    fixture.questions.fallback = {CopyDecision::Replace, false};
    FaultySystem system;
    restrictTo(system, means);
    QStringList sources{fixture.addSource("first", "1")};
    for (const char* name : {"a", "b", "c", "d"})
        sources.append(fixture.addSource(name, std::string(3 * mebibyte, *name)));
    const Records records =
        CopyEngine(fixture.questions, fixture.progress, system.calls).run(sources, disk.path());
    compareWithReport(fixture, folder, before, records);
    QCOMPARE(records[0].outcome, Outcome::Copied);
    QVERIFY(std::any_of(records.begin(), records.end(), [](const Record& record) {
        return record.outcome == Outcome::Failed && !record.reason.isEmpty();
    }));
    QVERIFY(!fixture.questions.failures.isEmpty());
}

void CopyConditionsTest::fullDisk_isAskedAboutBeforeAnythingIsCopied()
{
    CopyFixture fixture;
    MountedFolder disk;
    if (!disk.mountMemory(1024))
        QSKIP(noMounts);
    const std::string content(2 << 20, 'x');
    const Records records =
        CopyEngine(fixture.questions, fixture.progress)
            .run({fixture.addSource("small", "1"), fixture.addSource("large", content)},
                 disk.path());
    QCOMPARE(int(fixture.questions.spaceAsked.size()), 1);
    QCOMPARE(fixture.questions.spaceAsked[0].second, qint64(1 << 20));
    QCOMPARE(records[0].outcome, Outcome::Cancelled);
    QVERIFY(contentOf(pathToBytes(disk.path())).empty());
}

void CopyConditionsTest::readOnlyDisk_isReported()
{
    CopyFixture fixture;
    MountedFolder disk;
    if (!disk.mountMemory(1024))
        QSKIP(noMounts);
    const std::string folder = pathToBytes(disk.path());
    writeFile(folder + "/a", "old");
    QVERIFY(disk.mountAgain(QStringLiteral("ro")));
    const Records records = CopyEngine(fixture.questions, fixture.progress)
                                .run({fixture.addSource("a", "1")}, disk.path());
    QCOMPARE(records[0].outcome, Outcome::Failed);
    QCOMPARE(records[0].reason, QStringLiteral("The disk is write-protected."));
    QCOMPARE(fixture.questions.failures.size(), 1);
    QVERIFY(contentOf(folder) == FolderContent({{"a", "old"}}));
}

void CopyConditionsTest::appendOnlyFolder_getsNewFiles()
{
    CopyFixture fixture;
    const AppendOnly flag(fixture.target("."));
    if (!flag.isSet())
        QSKIP("folders cannot be made append-only here");
    const Records records =
        fixture.copy({fixture.addSource("a", "1"), fixture.addSource("b", "2")});
    const FolderContent now = fixture.targetContent();
    if (records[0].outcome == Outcome::Copied)
        QVERIFY2(now == FolderContent({{"a", "1"}, {"b", "2"}}), describe(now));
    else
        QVERIFY2(now.empty(), describe(now)); // a file system without unnamed files
    QVERIFY(fixture.questions.remarks.isEmpty());
}

void CopyConditionsTest::appendOnlyFolder_keepsWhatItHas()
{
    CopyFixture fixture;
    fixture.addTarget("a", "old");
    const AppendOnly flag(fixture.target("."));
    if (!flag.isSet())
        QSKIP("folders cannot be made append-only here");
    fixture.questions.answers = {{CopyDecision::Replace, false}};
    const Records records = fixture.copy({fixture.addSource("a", "new")});
    QCOMPARE(records[0].outcome, Outcome::Failed);
    const FolderContent now = fixture.targetContent();
    QVERIFY2(now == FolderContent({{"a", "old"}}), describe(now));
}

void CopyConditionsTest::appendOnlyFolder_getsNoTemporaries_data()
{
    addMeansColumn();
    QTest::newRow("renaming without replacing") << int(RenameNoReplace);
    QTest::newRow("hard links only") << int(Link);
}

void CopyConditionsTest::appendOnlyFolder_getsNoTemporaries()
{
    QFETCH(int, means);
    CopyFixture fixture;
    const AppendOnly flag(fixture.target("."));
    if (!flag.isSet())
        QSKIP("folders cannot be made append-only here");
    FaultySystem system;
    restrictTo(system, means);
    const Records records = fixture.copy({fixture.addSource("a", "1")}, system.calls);
    QCOMPARE(records[0].outcome, Outcome::Failed);
    const FolderContent now = fixture.targetContent();
    QVERIFY2(now.empty(), describe(now));
}

ZORVANE_TEST(CopyConditionsTest)
#include "CopyConditionsTest.moc"
