#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Design/DesignFiles.h"
#include "Workbench/Design/DesignSession.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QSignalSpy>

using namespace Zorvane;
using namespace Zorvane::Testing;
using namespace Zorvane::Workbench;

class ReloadTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void dropsUnsavedChanges();
    void triesAgainWhatCouldNotBeOpened_data();
    void triesAgainWhatCouldNotBeOpened();
    void aDesignFileReadBeforeItsWatchTellsIsReadOnce();
    void keepsProblemsThatAreStillThere();
    void tellsOnce();

private:
    QTemporaryDir m_folder;
};

void ReloadTest::dropsUnsavedChanges()
{
    const QString file =
        writeFile(m_folder.filePath(QStringLiteral("a.dsg")), toText(smallDesign()));
    DesignSession session;
    session.open({file});
    session.rename(session.designs().front().id, QStringLiteral("Other"));
    session.reload();
    QVERIFY(!session.isModified());
    QCOMPARE(session.designs().front().name, QStringLiteral("Small"));
}

void ReloadTest::triesAgainWhatCouldNotBeOpened_data()
{
    QTest::addColumn<QString>("opened");
    QTest::addColumn<QByteArray>("before");
    QTest::newRow("file that was not there") << QStringLiteral("late/b.dsg") << QByteArray();
    QTest::newRow("folder that was not there") << QStringLiteral("late") << QByteArray();
    QTest::newRow("broken file") << QStringLiteral("late/b.dsg") << QByteArray("{");
    QTest::newRow("folder of a broken file") << QStringLiteral("late") << QByteArray("{");
}

void ReloadTest::triesAgainWhatCouldNotBeOpened()
{
    QFETCH(QString, opened);
    QFETCH(QByteArray, before);
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("late/b.dsg"));
    if (!before.isEmpty())
        writeFile(file, before);
    DesignSession session;
    session.open({folder.filePath(opened)});
    QVERIFY(session.designs().empty());
    QVERIFY(!session.problems().empty());
    writeFile(file, toText(smallDesign()));
    session.reload();
    QCOMPARE(session.designs().size(), std::size_t(1));
    QVERIFY(session.problems().empty());
}

void ReloadTest::aDesignFileReadBeforeItsWatchTellsIsReadOnce()
{
    const QTemporaryDir folder;
    const QString file = writeFile(folder.filePath(QStringLiteral("b.dsg")), "{");
    DesignSession session;
    session.open({file});
    replaceFile(file, toText(smallDesign()));
    session.reload();
    QSignalSpy fileChanged(&session, &DesignSession::fileChanged);
    QTRY_VERIFY(fileChanged.count() > 0);
    QCOMPARE(session.designs().size(), std::size_t(1));
    QVERIFY(session.problems().empty());
}

void ReloadTest::keepsProblemsThatAreStillThere()
{
    DesignSession session;
    session.open({m_folder.filePath(QStringLiteral("nowhere")), QString()});
    const std::size_t before = session.problems().size();
    QCOMPARE(before, std::size_t(2));
    session.reload();
    QCOMPARE(session.problems().size(), before);
}

void ReloadTest::tellsOnce()
{
    DesignSession session;
    QSignalSpy changed(&session, &DesignSession::changed);
    session.reload();
    QCOMPARE(changed.count(), 1);
}

ZORVANE_TEST(ReloadTest)
#include "ReloadTest.moc"
