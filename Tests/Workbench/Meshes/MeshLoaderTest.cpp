#include "Workbench/Meshes/MeshLoader.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Design/DesignFiles.h"
#include "Tests/Workbench/Meshes/MeshFiles.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QSignalSpy>

using namespace Zorvane::Testing;
using namespace Zorvane::Workbench;

class MeshLoaderTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void deliversMeshAndFacts();
    void answersOnlyFromTheEventLoop();
    void tellsFailures();
    void readsManyFilesAndTellsProgress();
    void answersInOrderForCachedFiles();
    void firstGoesBeforeAllThatWaits();
    void raisingTheLimitStartsWhatWaits();
    void asksOnceForTheSameFile();
    void cancelDropsAllAnswers();
    void cancelFromAnswerAndStartAnew();
    void cancelWhileIdleTellsNothing();
    void anAnswerMayRequestTheNext();
    void readsChangedFileAgain();
    void readsTouchedFileAgain();
    void changeWhileReadingIsReadAgain();
    void failureForgetsFacts();
    void keepsMeshesWithinTheLimit();
    void mayBeDestroyedWhileReading();

private:
    QString write(int number, float size)
    {
        return writeFile(m_folder->filePath(QStringLiteral("%1.stl").arg(number)),
                         binaryStl(cube(size)));
    }
    QStringList writeMany(int count)
    {
        QStringList files;
        for (int i = 0; i < count; ++i)
            files.append(write(i, static_cast<float>(i + 1)));
        return files;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MeshLoader> m_loader;
    QStringList m_answers;
    int m_finished = 0;
};

void MeshLoaderTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_loader = std::make_unique<MeshLoader>();
    m_answers.clear();
    m_finished = 0;
    const auto note = [this](const QString& path) { m_answers.append(path); };
    connect(m_loader.get(), &MeshLoader::loaded, this, note);
    connect(m_loader.get(), &MeshLoader::failed, this, note);
    connect(m_loader.get(), &MeshLoader::finished, this, [this] { ++m_finished; });
}

void MeshLoaderTest::deliversMeshAndFacts()
{
    QSignalSpy loaded(m_loader.get(), &MeshLoader::loaded);
    const QString file = write(1, 10);
    m_loader->request({file});
    QTRY_COMPARE(loaded.count(), 1);
    QCOMPARE(loaded.at(0).at(0).toString(), file);
    QCOMPARE(loaded.at(0).at(1).value<SharedMesh>()->triangles.size(), std::size_t(12));
    QCOMPARE(loaded.at(0).at(2).value<MeshFacts>().surface, 600.0);
    QVERIFY(m_loader->mesh(file) == loaded.at(0).at(1).value<SharedMesh>());
    QVERIFY(m_loader->facts(file)->watertight);
    QVERIFY(!m_loader->problem(file));
    QTRY_COMPARE(m_finished, 1);
    QVERIFY(!m_loader->isBusy());
}

void MeshLoaderTest::answersOnlyFromTheEventLoop()
{
    const QString file = write(1, 10);
    m_loader->request({file});
    QTRY_COMPARE(m_answers.size(), 1);
    // It is kept now, and still not told at once.
    m_loader->request({file});
    QCOMPARE(m_answers.size(), 1);
    QTRY_COMPARE(m_answers.size(), 2);
}

void MeshLoaderTest::tellsFailures()
{
    const QString broken = writeFile(m_folder->filePath(QStringLiteral("broken.stl")), "text");
    const QString missing = m_folder->filePath(QStringLiteral("missing.stl"));
    const QString good = write(1, 10);
    QSignalSpy failed(m_loader.get(), &MeshLoader::failed);
    m_loader->request({broken, missing, good});
    QTRY_COMPARE(m_finished, 1);
    QCOMPARE(failed.count(), 2);
    for (const QList<QVariant>& answer : failed)
        QCOMPARE(answer.at(1).value<Problem>().file, answer.at(0).toString());
    QVERIFY(m_loader->problem(broken));
    QVERIFY(!m_loader->facts(broken));
    QVERIFY(m_loader->facts(good));
}

void MeshLoaderTest::readsManyFilesAndTellsProgress()
{
    const QStringList files = writeMany(500);
    QSignalSpy progress(m_loader.get(), &MeshLoader::progress);
    m_loader->request(files);
    QCOMPARE(m_loader->total(), 500);
    QTRY_COMPARE(m_finished, 1);
    QCOMPARE(m_answers.size(), 500);
    QCOMPARE(progress.count(), 501);
    for (int i = 0; i < progress.count(); ++i) {
        QCOMPARE(progress.at(i).at(0).toInt(), i);
        QCOMPARE(progress.at(i).at(1).toInt(), 500);
    }
    for (int i = 0; i < files.size(); ++i)
        QCOMPARE(m_loader->facts(files.at(i))->surface, 6.0 * (i + 1) * (i + 1));
}

void MeshLoaderTest::answersInOrderForCachedFiles()
{
    const QStringList files = writeMany(20);
    m_loader->request(files);
    QTRY_COMPARE(m_finished, 1);
    m_answers.clear();
    m_loader->request(files);
    QTRY_COMPARE(m_finished, 2);
    QCOMPARE(m_answers, files);
}

void MeshLoaderTest::firstGoesBeforeAllThatWaits()
{
    // Answers come in the order of reading only where one file is read at a time.
    m_loader->setMostReadAtOnce(1);
    QStringList files = writeMany(30);
    m_loader->request(files);
    m_loader->requestFirst(files.back());
    const QString other = write(100, 1);
    m_loader->requestFirst(other);
    QCOMPARE(m_loader->total(), 31);
    QTRY_COMPARE(m_finished, 1);
    // Only the one being read when they were asked for comes before them.
    files.insert(1, other);
    files.insert(2, files.takeLast());
    QCOMPARE(m_answers, files);
}

void MeshLoaderTest::raisingTheLimitStartsWhatWaits()
{
    const QStringList files = writeMany(3);
    m_loader->request(files);
    QTRY_COMPARE(m_finished, 1);
    m_answers.clear();
    // What is kept is answered in the order in which its reading starts.
    m_loader->setMostReadAtOnce(1);
    m_loader->request({files.at(0), files.at(1)});
    m_loader->setMostReadAtOnce(2);
    m_loader->requestFirst(files.at(2));
    QTRY_COMPARE(m_finished, 2);
    QCOMPARE(m_answers, files);
}

void MeshLoaderTest::asksOnceForTheSameFile()
{
    const QStringList files = writeMany(5);
    m_loader->request(files + files);
    m_loader->request(files);
    QCOMPARE(m_loader->total(), 5);
    QTRY_COMPARE(m_finished, 1);
    QCOMPARE(m_answers.size(), 5);
}

void MeshLoaderTest::cancelDropsAllAnswers()
{
    m_loader->request(writeMany(50));
    m_loader->cancel();
    QVERIFY(!m_loader->isBusy());
    QCOMPARE(m_finished, 1);
    // The answer to a later request comes behind all that were under way.
    const QString last = write(100, 1);
    m_loader->request({last});
    QTRY_COMPARE(m_finished, 2);
    QCOMPARE(m_answers, QStringList(last));
    QCOMPARE(m_loader->done(), 1);
    QCOMPARE(m_loader->total(), 1);
}

void MeshLoaderTest::cancelFromAnswerAndStartAnew()
{
    const QStringList files = writeMany(50);
    const QMetaObject::Connection connection =
        connect(m_loader.get(), &MeshLoader::loaded, this, [this] { m_loader->cancel(); });
    m_loader->request(files);
    QTRY_COMPARE(m_finished, 1);
    QCOMPARE(m_answers.size(), 1);
    disconnect(connection);
    m_loader->request(files);
    QTRY_COMPARE(m_finished, 2);
    QCOMPARE(m_answers.size(), 51);
}

void MeshLoaderTest::cancelWhileIdleTellsNothing()
{
    const QSignalSpy progress(m_loader.get(), &MeshLoader::progress);
    m_loader->cancel();
    QCOMPARE(m_finished, 0);
    QCOMPARE(progress.count(), 0);
}

void MeshLoaderTest::anAnswerMayRequestTheNext()
{
    const QStringList files = writeMany(3);
    connect(m_loader.get(), &MeshLoader::loaded, this, [&](const QString& path) {
        if (files.indexOf(path) + 1 < files.size())
            m_loader->request({files.at(files.indexOf(path) + 1)});
    });
    m_loader->request({files.front()});
    QTRY_COMPARE(m_answers, files);
    QTRY_VERIFY(!m_loader->isBusy());
}

void MeshLoaderTest::readsChangedFileAgain()
{
    const QString file = write(1, 10);
    m_loader->request({file});
    QTRY_COMPARE(m_finished, 1);
    writeFile(file, asciiStl(cube(20)));
    m_loader->request({file});
    QTRY_COMPARE(m_finished, 2);
    QCOMPARE(m_loader->facts(file)->surface, 2400.0);
}

void MeshLoaderTest::readsTouchedFileAgain()
{
    const QString file = write(1, 10);
    m_loader->request({file});
    QTRY_COMPARE(m_finished, 1);
    const QDateTime time = QFileInfo(file).lastModified();
    write(1, 20);
    QFile same(file);
    QVERIFY(same.open(QIODevice::ReadWrite));
    QVERIFY(same.setFileTime(time, QFileDevice::FileModificationTime));
    same.close();
    m_loader->request({file});
    QTRY_COMPARE(m_finished, 2);
    QCOMPARE(m_loader->facts(file)->surface, 600.0);
    m_loader->requestAnew(file);
    QTRY_COMPARE(m_finished, 3);
    QCOMPARE(m_loader->facts(file)->surface, 2400.0);
}

void MeshLoaderTest::changeWhileReadingIsReadAgain()
{
    const QString file = write(1, 10);
    QSignalSpy loaded(m_loader.get(), &MeshLoader::loaded);
    m_loader->request({file});
    write(1, 20);
    m_loader->requestAnew(file);
    QTRY_COMPARE(m_finished, 1);
    QCOMPARE(loaded.count(), 1);
    QCOMPARE(loaded.at(0).at(2).value<MeshFacts>().surface, 2400.0);
    QCOMPARE(m_loader->total(), 1);
}

void MeshLoaderTest::failureForgetsFacts()
{
    const QString file = write(1, 10);
    m_loader->request({file});
    QTRY_COMPARE(m_finished, 1);
    writeFile(file, "broken");
    m_loader->request({file});
    QTRY_COMPARE(m_finished, 2);
    QVERIFY(!m_loader->facts(file));
    QVERIFY(!m_loader->mesh(file));
    QVERIFY(m_loader->problem(file));
    QCOMPARE(m_loader->cachedBytes(), std::size_t(0));
}

void MeshLoaderTest::keepsMeshesWithinTheLimit()
{
    const QStringList files = writeMany(10);
    const std::size_t one = 8 * sizeof(QVector3D) + 12 * sizeof(TriangleMesh::Triangle);
    m_loader->setCacheLimit(3 * one);
    for (const QString& file : files) {
        m_loader->request({file});
        QTRY_VERIFY(m_loader->facts(file).has_value());
        QTRY_VERIFY(!m_loader->isBusy());
        // Used all the time, so never the one to go.
        QVERIFY(m_loader->mesh(files.front()));
        QVERIFY(m_loader->cachedBytes() <= 3 * one);
    }
    QCOMPARE(m_loader->cachedBytes(), 3 * one);
    QVERIFY(m_loader->mesh(files.at(9)));
    QVERIFY(m_loader->mesh(files.at(8)));
    QVERIFY(!m_loader->mesh(files.at(7)));
    QVERIFY(m_loader->facts(files.at(7)));
    // Asked for again, it is read again.
    m_loader->request({files.at(7)});
    QTRY_VERIFY(!m_loader->isBusy());
    QVERIFY(m_loader->mesh(files.at(7)));
    m_loader->setCacheLimit(0);
    QCOMPARE(m_loader->cachedBytes(), std::size_t(0));
}

void MeshLoaderTest::mayBeDestroyedWhileReading()
{
    m_loader->request(writeMany(50));
    m_loader.reset();
    QCoreApplication::processEvents();
    QVERIFY(m_answers.isEmpty());
}

ZORVANE_TEST(MeshLoaderTest)
#include "MeshLoaderTest.moc"
