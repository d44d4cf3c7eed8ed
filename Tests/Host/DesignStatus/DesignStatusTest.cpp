#include "Host/DesignStatus/DesignStatus.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QFile>
#include <QtCore/QLockFile>
#include <QtCore/QSysInfo>
#include <QtCore/QTemporaryDir>

using namespace Zorvane;

class DesignStatusTest : public Testing::TestCase
{
    Q_OBJECT

private:
    FileName design() const { return FileName(m_dir.filePath(QStringLiteral("door.zvd"))); }
    QString mark() const { return DesignStatus::getJobFile(design()).toQString(); }
    bool writeMark(qint64 processId, const QString& computer) const;

    QString thisComputer() const;

    const QTemporaryDir m_dir;

private Q_SLOTS:
    void cleanup();
    void freshStatusHasNoJob();
    void designWithoutMarkHasNoJob();
    void heldMarkIsARunningJob();
    void jobThatEndedIsGone();
    void crashedJobOfThisComputerCountsForNothing();
    void jobOfAnotherComputerIsRunning();
    void emptyFileNameHasNoJob();
    void statusOfAnotherDesignIsForgotten();
};

/** As QLockFile writes it. */
bool DesignStatusTest::writeMark(qint64 processId, const QString& computer) const
{
    QFile file(mark());
    const QString text = QStringLiteral("%1\nsolver\n%2\n").arg(processId).arg(computer);
    return file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) == text.toUtf8().size();
}

/** As lock files name it, which is not how every platform spells a computer's name elsewhere. */
QString DesignStatusTest::thisComputer() const
{
    QLockFile lock(m_dir.filePath(QStringLiteral("probe")));
    qint64 processId = 0;
    QString computer;
    QString application;
    if (!lock.tryLock(0) || !lock.getLockInfo(&processId, &computer, &application))
        qFatal("cannot make a lock file");
    return computer;
}

void DesignStatusTest::cleanup()
{
    QFile::remove(mark());
    TestCase::cleanup();
}

void DesignStatusTest::freshStatusHasNoJob()
{
    QVERIFY(!DesignStatus().isJobRunning());
}

void DesignStatusTest::designWithoutMarkHasNoJob()
{
    DesignStatus status;
    DesignStatus::Job job{QStringLiteral("old"), QStringLiteral("old"), 7};
    status.reloadJobStatus(design(), &job);
    QVERIFY(!status.isJobRunning());
    QCOMPARE(job.application, QString());
    QCOMPARE(job.processId, qint64(0));
    QVERIFY(!QFile::exists(mark()));
}

void DesignStatusTest::heldMarkIsARunningJob()
{
    QLockFile solver(mark());
    solver.setStaleLockTime(0);
    QVERIFY(solver.tryLock(0));
    DesignStatus status;
    DesignStatus::Job job;
    status.reloadJobStatus(design(), &job);
    QVERIFY(status.isJobRunning());
    QCOMPARE(job.processId, QCoreApplication::applicationPid());
    QCOMPARE(job.computer, thisComputer());
    QCOMPARE(job.computer.toLower(), QSysInfo::machineHostName().toLower());
    QVERIFY(!job.application.isEmpty());
    status.reloadJobStatus(design(), nullptr);
    QVERIFY(status.isJobRunning());
    QVERIFY(QFile::exists(mark()));
}

void DesignStatusTest::jobThatEndedIsGone()
{
    QLockFile solver(mark());
    QVERIFY(solver.tryLock(0));
    DesignStatus status;
    status.reloadJobStatus(design(), nullptr);
    QVERIFY(status.isJobRunning());
    solver.unlock();
    QVERIFY(status.isJobRunning());
    status.reloadJobStatus(design(), nullptr);
    QVERIFY(!status.isJobRunning());
}

void DesignStatusTest::crashedJobOfThisComputerCountsForNothing()
{
    // No process can have the highest number there is.
    QVERIFY(writeMark(std::numeric_limits<int>::max(), thisComputer()));
    DesignStatus status;
    status.reloadJobStatus(design(), nullptr);
    QVERIFY(!status.isJobRunning());
    QVERIFY(!QFile::exists(mark()));
}

void DesignStatusTest::jobOfAnotherComputerIsRunning()
{
    QVERIFY(writeMark(4711, QStringLiteral("solver-node-7")));
    DesignStatus status;
    DesignStatus::Job job;
    status.reloadJobStatus(design(), &job);
    QVERIFY(status.isJobRunning());
    QCOMPARE(job.computer, QStringLiteral("solver-node-7"));
    QCOMPARE(job.application, QStringLiteral("solver"));
    QCOMPARE(job.processId, qint64(4711));
}

void DesignStatusTest::emptyFileNameHasNoJob()
{
    DesignStatus status;
    status.reloadJobStatus(FileName(), nullptr);
    QVERIFY(!status.isJobRunning());
    QVERIFY(DesignStatus::getJobFile(FileName()).isEmpty());
}

void DesignStatusTest::statusOfAnotherDesignIsForgotten()
{
    QLockFile solver(mark());
    QVERIFY(solver.tryLock(0));
    DesignStatus status;
    status.reloadJobStatus(design(), nullptr);
    status.reloadJobStatus(FileName(m_dir.filePath(QStringLiteral("hood.zvd"))), nullptr);
    QVERIFY(!status.isJobRunning());
}

ZORVANE_TEST(DesignStatusTest)
#include "DesignStatusTest.moc"
