#include "Workbench/Solver/SimulationRunner.h"

#include "Host/DesignStatus/DesignStatus.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Tree/TreeFixture.h"
#include "Workbench/Solver/SimulationProgress.h"

#include <QtCore/QDir>
#include <QtCore/QLockFile>
#include <QtWidgets/QPushButton>

#include <memory>

using namespace Zorvane;
using namespace Zorvane::Testing;
using namespace Zorvane::Workbench;

class SimulationRunnerTest : public TestCase
{
    Q_OBJECT

private:
    const Design& design() const { return m_opened->session.designs().front(); }
    bool isMarked() const;
    QStringList results() const
    {
        return QDir(m_opened->path(QStringLiteral("results"))).entryList(QDir::Files, QDir::Name);
    }

    std::unique_ptr<OpenedDesign> m_opened;
    std::unique_ptr<SimulationRunner> m_runner;

private Q_SLOTS:
    void init();
    void cleanup();
    void runsInSlicesAndLeavesATable();
    void fileIsMarkedAsLongAsItRuns();
    void secondResultGetsANameOfItsOwn();
    void stoppedRunLeavesNothing();
    void destroyedRunnerLeavesNothing();
    void onlyOneRunsAtATime();
    void designComputedElsewhereIsRefused();
    void unwritableResultsAreTold();
    void listenerMayStopTheLastSlice();
    void progressIsShownWithAStop();
};

void SimulationRunnerTest::init()
{
    m_opened = std::make_unique<OpenedDesign>();
    m_runner = std::make_unique<SimulationRunner>();
    m_runner->setSteps(5);
}

void SimulationRunnerTest::cleanup()
{
    m_runner.reset();
    m_opened.reset();
    TestCase::cleanup();
}

bool SimulationRunnerTest::isMarked() const
{
    DesignStatus status;
    status.reloadJobStatus(FileName(design().file), nullptr);
    return status.isJobRunning();
}

void SimulationRunnerTest::runsInSlicesAndLeavesATable()
{
    QSignalSpy progress(m_runner.get(), &SimulationRunner::progressed);
    QSignalSpy finished(m_runner.get(), &SimulationRunner::finished);
    QVERIFY(!m_runner->start(design()));
    QVERIFY(m_runner->isRunning());
    QCOMPARE(progress.size(), 1);
    QTRY_COMPARE(finished.size(), 1);
    QCOMPARE(progress.size(), 6);
    QCOMPARE(progress.last(), QVariantList({5, 5}));
    QVERIFY(!m_runner->isRunning());
    QCOMPARE(finished[0][0].toString(), design().file);
    QCOMPARE(finished[0][1].toString(),
             m_opened->path(QStringLiteral("results/small-simulation.csv")));
    QCOMPARE(readFile(finished[0][1].toString()).count('\n'), 6);
}

void SimulationRunnerTest::fileIsMarkedAsLongAsItRuns()
{
    QVERIFY(!m_runner->start(design()));
    QVERIFY(isMarked());
    bool wasMarkedAtTheEnd = true;
    connect(m_runner.get(), &SimulationRunner::finished, this,
            [&] { wasMarkedAtTheEnd = isMarked(); });
    QTRY_VERIFY(!m_runner->isRunning());
    QVERIFY(!wasMarkedAtTheEnd);
    QVERIFY(!QFile::exists(DesignStatus::getJobFile(FileName(design().file)).toQString()));
}

void SimulationRunnerTest::secondResultGetsANameOfItsOwn()
{
    for (int run = 0; run < 2; ++run) {
        QVERIFY(!m_runner->start(design()));
        QTRY_VERIFY(!m_runner->isRunning());
    }
    QCOMPARE(results(), QStringList({QStringLiteral("small-simulation (2).csv"),
                                     QStringLiteral("small-simulation.csv")}));
}

void SimulationRunnerTest::stoppedRunLeavesNothing()
{
    QSignalSpy stopped(m_runner.get(), &SimulationRunner::stopped);
    QVERIFY(!m_runner->start(design()));
    m_runner->stop();
    QCOMPARE(stopped.size(), 1);
    QVERIFY(!m_runner->isRunning());
    QVERIFY(!isMarked());
    QVERIFY(results().isEmpty());
    m_runner->stop();
    QCOMPARE(stopped.size(), 1);
}

void SimulationRunnerTest::destroyedRunnerLeavesNothing()
{
    QVERIFY(!m_runner->start(design()));
    m_runner.reset();
    QVERIFY(!isMarked());
    QVERIFY(results().isEmpty());
}

void SimulationRunnerTest::onlyOneRunsAtATime()
{
    QVERIFY(!m_runner->start(design()));
    QVERIFY(m_runner->start(design()));
    QVERIFY(m_runner->isRunning());
}

void SimulationRunnerTest::designComputedElsewhereIsRefused()
{
    QLockFile solver(DesignStatus::getJobFile(FileName(design().file)).toQString());
    QVERIFY(solver.tryLock(0));
    const std::optional<Problem> problem = m_runner->start(design());
    QVERIFY(problem);
    QCOMPARE(problem->reason, QStringLiteral("is being computed by another program"));
    QVERIFY(!m_runner->isRunning());
}

void SimulationRunnerTest::unwritableResultsAreTold()
{
    // A file stands where the folder would be.
    writeFile(m_opened->path(QStringLiteral("results")), "no folder");
    QSignalSpy failed(m_runner.get(), &SimulationRunner::failed);
    QSignalSpy finished(m_runner.get(), &SimulationRunner::finished);
    QVERIFY(!m_runner->start(design()));
    QTRY_COMPARE(failed.size(), 1);
    QVERIFY(finished.isEmpty());
    QVERIFY(!isMarked());
}

void SimulationRunnerTest::listenerMayStopTheLastSlice()
{
    QSignalSpy finished(m_runner.get(), &SimulationRunner::finished);
    connect(m_runner.get(), &SimulationRunner::progressed, this, [this](int done, int total) {
        if (done == total)
            m_runner->stop();
    });
    QVERIFY(!m_runner->start(design()));
    QTRY_VERIFY(!m_runner->isRunning());
    QVERIFY(finished.isEmpty());
    QVERIFY(results().isEmpty());
}

void SimulationRunnerTest::progressIsShownWithAStop()
{
    QWidget window;
    SimulationProgress progress(*m_runner, &window);
    QVERIFY(progress.isHidden());
    QVERIFY(!m_runner->start(design()));
    QVERIFY(!progress.isHidden());
    progress.findChild<QPushButton*>()->click();
    QVERIFY(progress.isHidden());
    QVERIFY(!m_runner->isRunning());
}

ZORVANE_TEST(SimulationRunnerTest)
#include "SimulationRunnerTest.moc"
