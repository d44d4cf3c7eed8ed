#include "Workbench/Design/FileWatch.h"
#include "Tests/Support/PlatformFacts.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Design/DesignFiles.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QSignalSpy>

using namespace Zorvane::Testing;
using namespace Zorvane::Workbench;

class FileWatchTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void tellsOfRewritingInPlace();
    void tellsOfEveryReplacementByRename();
    void tellsOfRewritingAfterReplacement();
    void tellsOfDeletionAndReturn();
    void waitsForFileInFolderThatIsYetToCome();
    void tellsOfNewEntriesOfFolder();
    void forgetsWhatIsNoLongerWatched();
    void tellsBurstTogether();

private:
    QString path(const char* name) const { return m_folder->filePath(QString::fromUtf8(name)); }
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<FileWatch> m_watch;
    QStringList m_told;
    int m_times = 0;
};

void FileWatchTest::init()
{
    m_watch = std::make_unique<FileWatch>();
    m_folder = std::make_unique<QTemporaryDir>();
    m_told.clear();
    m_times = 0;
    connect(m_watch.get(), &FileWatch::changed, this, [this](const QStringList& files) {
        m_told += files;
        ++m_times;
    });
}

void FileWatchTest::tellsOfRewritingInPlace()
{
    const QString file = writeFile(path("a"), "1");
    m_watch->watch({file}, {});
    writeFile(file, "2");
    QTRY_VERIFY(m_told.contains(file));
    m_told.clear();
    writeFile(file, "three");
    QTRY_VERIFY(m_told.contains(file));
    m_told.clear();
}

void FileWatchTest::tellsOfEveryReplacementByRename()
{
    const QString file = writeFile(path("a"), "1");
    m_watch->watch({file}, {});
    for (int i = 0; i < 5; ++i) {
        replaceFile(file, QByteArray(i + 2, 'x'));
        QTRY_VERIFY(m_told.contains(file));
        m_told.clear();
    }
}

void FileWatchTest::tellsOfRewritingAfterReplacement()
{
    if (!openFilesCanBeReplaced())
        QSKIP("no file that is held open can be replaced on this platform");
    const QString file = writeFile(path("a"), "1");
    // Somebody who holds the old file open keeps it alive under no name.
    QFile holder(file);
    QVERIFY(holder.open(QIODevice::ReadOnly));
    m_watch->watch({file}, {});
    replaceFile(file, "22");
    QTRY_VERIFY(m_told.contains(file));
    m_told.clear();
    writeFile(file, "333");
    QTRY_VERIFY(m_told.contains(file));
    m_told.clear();
}

void FileWatchTest::tellsOfDeletionAndReturn()
{
    const QString file = writeFile(path("a"), "1");
    m_watch->watch({file}, {});
    QVERIFY(QFile::remove(file));
    QTRY_VERIFY(m_told.contains(file));
    m_told.clear();
    writeFile(file, "1");
    QTRY_VERIFY(m_told.contains(file));
    m_told.clear();
    writeFile(file, "22");
    QTRY_VERIFY(m_told.contains(file));
    m_told.clear();
}

void FileWatchTest::waitsForFileInFolderThatIsYetToCome()
{
    const QString file = path("deep/deeper/a");
    m_watch->watch({file}, {});
    QVERIFY(QDir().mkpath(path("deep")));
    QTRY_COMPARE(m_times, 1);
    QVERIFY(m_told.isEmpty());
    writeFile(file, "1");
    QTRY_VERIFY(m_told.contains(file));
    m_told.clear();
}

void FileWatchTest::tellsOfNewEntriesOfFolder()
{
    m_watch->watch({}, {m_folder->path()});
    writeFile(path("new"), "1");
    QTRY_VERIFY(m_times > 0);
    QVERIFY(m_told.isEmpty());
}

void FileWatchTest::forgetsWhatIsNoLongerWatched()
{
    const QString forgotten = writeFile(path("one/a"), "1");
    const QString watched = writeFile(path("two/b"), "1");
    m_watch->watch({forgotten, watched}, {});
    m_watch->watch({watched}, {});
    writeFile(forgotten, "22");
    writeFile(watched, "22");
    QTRY_VERIFY(m_told.contains(watched));
    QVERIFY(!m_told.contains(forgotten));
}

void FileWatchTest::tellsBurstTogether()
{
    QStringList files;
    for (int i = 0; i < 200; ++i)
        files.append(writeFile(path("f") + QString::number(i), "1"));
    m_watch->watch(files, {});
    for (const QString& file : files)
        writeFile(file, "22");
    const auto allTold = [&] {
        const QSet<QString> told(m_told.cbegin(), m_told.cend());
        return told == QSet<QString>(files.cbegin(), files.cend());
    };
    QTRY_VERIFY(allTold());
    QVERIFY(m_times < 200);
}

ZORVANE_TEST(FileWatchTest)
#include "FileWatchTest.moc"
