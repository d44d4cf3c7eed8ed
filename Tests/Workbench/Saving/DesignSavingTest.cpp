#include "Tests/Support/ExpectedModals.h"
#include "Tests/Workbench/Saving/SavingFixture.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QScopeGuard>
#include <QtCore/QTemporaryFile>
#include <QtWidgets/QAbstractButton>

#include <functional>
#include <memory>

using namespace Zorvane;
using namespace Zorvane::Testing;
using namespace Zorvane::Workbench;

namespace {

const QString s_anyBox = QStringLiteral("^Warning$");
const QString s_question = QStringLiteral("prior to closing");

/** Keeps a design's file from being written; false where it cannot. */
using Obstacle = std::function<bool(const QString& file)>;

bool putFolderInTheWay(const QString& file)
{
    return QFile::remove(file) && QDir().mkdir(file);
}

} // namespace

Q_DECLARE_METATYPE(Obstacle)

class DesignSavingTest : public SavingFixture
{
    Q_OBJECT

private:
    void addOutdatedResult();
    /** The user saves, hears of another program's change, and gives up. */
    static void expectConflict(ExpectedModals& modals, const std::function<void()>& meanwhile);

private Q_SLOTS:
    void init() { setUp(); }
    void cleanup() { tearDown(); }
    void savingThatCostsNothingAsksNothing();
    void outdatedResultsGoOnlyOnTheUsersWord();
    void resultsThatFitStay();
    void savingAnOlderDesignAsks();
    void runningDesignIsSavedElsewhereOrNotAtAll();
    void cancelledSaveAsLeavesEverything();
    void changeByAnotherProgramIsReplacedOnlyOnTheUsersWord();
    void failedSaveBringsDroppedResultsBack();
    void failedSaveKeepsWhatCanBeMadeAgain();
    void failedSaveLeavesWhatOthersEditedMeanwhile();
    void failedStartLeavesWhatOthersEditedMeanwhile();
    void resultsBroughtBackMeanwhileAreThereOnce();
    void designThatCannotBeSavedIsNotOfferedSave_data();
    void designThatCannotBeSavedIsNotOfferedSave();
    void designThatCannotBeSavedIsSavedElsewhere();
    void designThatGoesWhileAskedAboutIsTold();
    void cancelAtOneDesignKeepsTheRest();
    void unmodifiedDesignsCloseWithoutAQuestion();
    void closingAsks_data();
    void closingAsks();
    void closingARunningDesignCannotSave();
    void closingStopsASimulationOnlyOnTheUsersWord();
    void startOfASavedDesignAsksNothing();
    void startSavesChangesFirst();
    void cancelledStartLeavesEverything();
    void startDropsTheResultsOfBefore();
    void startThatFailsBringsTheResultsBack();
    void startOnAnotherFileRunsThere();
    void startOfADesignComputedElsewhereIsRefused();
    void resultsAreTakenIntoTheDesignAndSaved();
    void resultsDoNotSaveTheUsersChanges();
    void resultsOfAClosedDesignStayOnTheDisk();
    void suppressedQuestionsNeverTouchARunningDesign();
};

void DesignSavingTest::addOutdatedResult()
{
    addResult();
    session().setQuantity(objectId(2), Quantity::Thickness, 1.75);
}

void DesignSavingTest::expectConflict(ExpectedModals& modals,
                                      const std::function<void()>& meanwhile)
{
    modals.expectMessageBox(s_anyBox, QMessageBox::Save);
    modals.expectMessageBox(QStringLiteral("Another program"), [meanwhile](QMessageBox& box) {
        meanwhile();
        box.button(QMessageBox::Cancel)->click();
    });
}

void DesignSavingTest::savingThatCostsNothingAsksNothing()
{
    const ExpectedModals none;
    edit();
    addResult();
    edit();
    QVERIFY(m_saving->saveAll());
    QVERIFY(isEditOnDisk());
    QVERIFY(!session().isModified());
    QVERIFY(m_saving->saveAll());
    QVERIFY(m_failures.isEmpty());
}

void DesignSavingTest::outdatedResultsGoOnlyOnTheUsersWord()
{
    addOutdatedResult();
    const QByteArray before = onDisk();
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("The simulation results are deleted"),
                            QMessageBox::Cancel);
    QVERIFY(!m_saving->saveAll());
    QCOMPARE(onDisk(), before);
    QVERIFY(hasResult());
    modals.expectMessageBox(QStringLiteral("The simulation results are deleted"),
                            QMessageBox::Save);
    QVERIFY(m_saving->saveAll());
    QVERIFY(!hasResult());
    QVERIFY(!onDisk().contains("draw.csv"));
    // Nothing is lost for good.
    QVERIFY(QFile::exists(m_opened->path(QStringLiteral("draw.csv"))));
    m_history->undo();
    QVERIFY(hasResult());
}

void DesignSavingTest::resultsThatFitStay()
{
    addResult();
    edit();
    QVERIFY(m_saving->saveAll());
    QVERIFY(onDisk().contains("draw.csv"));
}

void DesignSavingTest::savingAnOlderDesignAsks()
{
    reopenAsVersion1();
    edit();
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("converted to the current version"),
                            QMessageBox::Cancel);
    QVERIFY(!m_saving->saveAll());
    QVERIFY(onDisk().contains("\"version\": 1"));
    modals.expectMessageBox(QStringLiteral("converted to the current version"), QMessageBox::Save);
    QVERIFY(m_saving->saveAll());
    QVERIFY(onDisk().contains("\"version\": 2"));
    edit();
    QVERIFY(m_saving->saveAll());
}

void DesignSavingTest::runningDesignIsSavedElsewhereOrNotAtAll()
{
    edit();
    const auto job = computeElsewhere();
    const QByteArray before = onDisk();
    chooseForSaveAs(QStringLiteral("other.dsg"));
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Saving is not allowed"), [](QMessageBox& box) {
        QVERIFY(!box.button(QMessageBox::Save)->isVisible());
        box.button(QMessageBox::SaveAll)->click();
    });
    QVERIFY(m_saving->saveAll());
    QCOMPARE(onDisk(), before);
    QVERIFY(readFile(m_opened->path(QStringLiteral("other.dsg"))).contains("Left door"));
    QCOMPARE(QFileInfo(design().file).fileName(), QStringLiteral("other.dsg"));
}

void DesignSavingTest::cancelledSaveAsLeavesEverything()
{
    addOutdatedResult();
    chooseForSaveAs(QString());
    const QByteArray before = onDisk();
    ExpectedModals modals;
    modals.expectMessageBox(s_anyBox, QMessageBox::SaveAll);
    QVERIFY(!m_saving->saveAll());
    QCOMPARE(onDisk(), before);
    QVERIFY(hasResult());
    QVERIFY(session().areQuantitiesModified(design().id));
}

void DesignSavingTest::changeByAnotherProgramIsReplacedOnlyOnTheUsersWord()
{
    edit();
    changeFileElsewhere();
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Another program"), QMessageBox::Cancel);
    QVERIFY(!m_saving->saveAll());
    QVERIFY(onDisk().contains("Theirs"));
    QVERIFY(session().isModified());
    modals.expectMessageBox(QStringLiteral("Another program"), QMessageBox::Save);
    QVERIFY(m_saving->saveAll());
    QVERIFY(isEditOnDisk());
}

void DesignSavingTest::failedSaveBringsDroppedResultsBack()
{
    addOutdatedResult();
    changeFileElsewhere();
    ExpectedModals modals;
    expectConflict(modals, [] {});
    const int edits = m_history->madeCount();
    QVERIFY(!m_saving->saveAll());
    QVERIFY(hasResult());
    QCOMPARE(m_history->madeCount(), edits);
    QCOMPARE(m_failures.size(), 1);
}

void DesignSavingTest::failedSaveKeepsWhatCanBeMadeAgain()
{
    addOutdatedResult();
    edit();
    m_history->undo();
    const QString again = m_history->redoText();
    const int edits = m_history->count();
    changeFileElsewhere();
    ExpectedModals modals;
    expectConflict(modals, [] {});
    const QSignalSpy changed(m_history.get(), &EditHistory::changed);
    QVERIFY(!m_saving->saveAll());
    QCOMPARE(m_history->redoText(), again);
    QCOMPARE(m_history->count(), edits);
    QVERIFY(changed.count() > 0);
    m_history->redo();
    QCOMPARE(session().name(objectId(10)), QStringLiteral("Left door"));
    QVERIFY(!m_history->canRedo());
    QCOMPARE(results(), 1);
}

void DesignSavingTest::failedSaveLeavesWhatOthersEditedMeanwhile()
{
    addOutdatedResult();
    changeFileElsewhere();
    ExpectedModals modals;
    expectConflict(modals, [this] {
        QVERIFY(!hasResult());
        edit();
    });
    QVERIFY(!m_saving->saveAll());
    QCOMPARE(session().name(objectId(10)), QStringLiteral("Left door"));
    QCOMPARE(results(), 1);
    // One step each, the last first.
    m_history->undo();
    QCOMPARE(results(), 0);
    QCOMPARE(session().name(objectId(10)), QStringLiteral("Left door"));
    m_history->undo();
    QVERIFY(session().name(objectId(10)) != QStringLiteral("Left door"));
    m_history->undo();
    QCOMPARE(results(), 1);
}

void DesignSavingTest::failedStartLeavesWhatOthersEditedMeanwhile()
{
    addResult();
    changeFileElsewhere();
    ExpectedModals modals;
    expectConflict(modals, [this] {
        QVERIFY(!hasResult());
        edit();
    });
    QVERIFY(!m_saving->start(design().id));
    QCOMPARE(session().name(objectId(10)), QStringLiteral("Left door"));
    QCOMPARE(results(), 1);
}

void DesignSavingTest::resultsBroughtBackMeanwhileAreThereOnce()
{
    addOutdatedResult();
    changeFileElsewhere();
    ExpectedModals modals;
    expectConflict(modals, [this] { m_history->undo(); });
    QVERIFY(!m_saving->saveAll());
    QCOMPARE(results(), 1);
    QVERIFY(session().areQuantitiesModified(design().id));
}

void DesignSavingTest::designThatCannotBeSavedIsNotOfferedSave_data()
{
    QTest::addColumn<Obstacle>("putInTheWay");
    QTest::newRow("folder is gone")
        << Obstacle([](const QString& file) { return QFileInfo(file).dir().removeRecursively(); });
    QTest::newRow("folder of that name") << Obstacle(putFolderInTheWay);
    QTest::newRow("read-only file") << Obstacle([](const QString& file) {
        return QFile::setPermissions(file, QFile::ReadOwner) && !QFileInfo(file).isWritable();
    });
    QTest::newRow("read-only folder") << Obstacle([](const QString& file) {
        const QString folder = QFileInfo(file).path();
        return QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner) &&
               !QTemporaryFile(folder + QStringLiteral("/XXXXXX")).open();
    });
}

void DesignSavingTest::designThatCannotBeSavedIsNotOfferedSave()
{
    QFETCH(Obstacle, putInTheWay);
    edit();
    const bool isInTheWay = putInTheWay(m_opened->designFile());
    const auto unlock = qScopeGuard([this] {
        for (const QString& path : {m_opened->folder.path(), m_opened->designFile()})
            QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    });
    if (!isInTheWay)
        QSKIP("nothing of the kind keeps this user from writing on this platform");
    ExpectedModals modals;
    for (int i = 0; i < 2; ++i) {
        modals.expectMessageBox(s_anyBox, [](QMessageBox& box) {
            QVERIFY(!box.button(QMessageBox::Save));
            QVERIFY(box.button(QMessageBox::SaveAll)->isVisible());
            box.button(QMessageBox::Cancel)->click();
        });
    }
    QVERIFY(!m_saving->mayClose());
    QVERIFY(!m_saving->start(design().id));
    QVERIFY(session().isModified());
}

void DesignSavingTest::designThatCannotBeSavedIsSavedElsewhere()
{
    edit();
    QVERIFY(putFolderInTheWay(m_opened->designFile()));
    chooseForSaveAs(QStringLiteral("other.dsg"));
    ExpectedModals modals;
    modals.expectMessageBox(s_anyBox, QMessageBox::SaveAll);
    QVERIFY(m_saving->mayClose());
    QVERIFY(readFile(m_opened->path(QStringLiteral("other.dsg"))).contains("Left door"));
}

void DesignSavingTest::designThatGoesWhileAskedAboutIsTold()
{
    edit();
    ExpectedModals modals;
    modals.expectMessageBox(s_question, [this](QMessageBox& box) {
        session().close();
        box.button(QMessageBox::Save)->click();
    });
    QVERIFY(!m_saving->mayClose());
    QCOMPARE(m_failures, QStringList(QStringLiteral("The design is no longer open.")));
}

void DesignSavingTest::cancelAtOneDesignKeepsTheRest()
{
    QJsonObject second = designWithFiles(60, QStringLiteral("Second"), {});
    session().open({writeFile(m_opened->path(QStringLiteral("second.dsg")), toText(second))});
    edit();
    session().rename(objectId(60), QStringLiteral("Second, changed"));
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("small.dsg"), QMessageBox::Cancel);
    QVERIFY(!m_saving->mayClose());
    QVERIFY(session().isDesignModified(objectId(60)));
    modals.expectMessageBox(QStringLiteral("small.dsg"), QMessageBox::Discard);
    modals.expectMessageBox(QStringLiteral("second.dsg"), QMessageBox::Save);
    QVERIFY(m_saving->mayClose());
    QVERIFY(!isEditOnDisk());
    QVERIFY(!session().isDesignModified(objectId(60)));
}

void DesignSavingTest::unmodifiedDesignsCloseWithoutAQuestion()
{
    const ExpectedModals none;
    QVERIFY(m_saving->mayClose());
    reopenAsVersion1();
    QVERIFY(m_saving->mayClose());
}

void DesignSavingTest::closingAsks_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("closes");
    QTest::addColumn<bool>("saves");
    QTest::newRow("Save") << int(QMessageBox::Save) << true << true;
    QTest::newRow("Don't Save") << int(QMessageBox::Discard) << true << false;
    QTest::newRow("Cancel") << int(QMessageBox::Cancel) << false << false;
}

void DesignSavingTest::closingAsks()
{
    QFETCH(int, button);
    edit();
    ExpectedModals modals;
    modals.expectMessageBox(s_question, QMessageBox::StandardButton(button));
    QTEST(m_saving->mayClose(), "closes");
    QTEST(isEditOnDisk(), "saves");
}

void DesignSavingTest::closingARunningDesignCannotSave()
{
    edit();
    const auto job = computeElsewhere();
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("still running"), [](QMessageBox& box) {
        QVERIFY(!box.button(QMessageBox::Save)->isVisible());
        QTest::keyClick(&box, Qt::Key_Return);
    });
    QVERIFY(!m_saving->mayClose());
    modals.expectMessageBox(QStringLiteral("still running"), QMessageBox::Discard);
    QVERIFY(m_saving->mayClose());
    QVERIFY(!isEditOnDisk());
}

void DesignSavingTest::closingStopsASimulationOnlyOnTheUsersWord()
{
    m_runner->setSteps(100000);
    QVERIFY(m_saving->start(design().id));
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Stop it and lose"),
                            [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });
    QVERIFY(!m_saving->mayClose());
    QVERIFY(m_runner->isRunning());
    modals.expectMessageBox(QStringLiteral("Stop it and lose"), QMessageBox::Yes);
    QVERIFY(m_saving->mayClose());
    QVERIFY(!m_runner->isRunning());
}

void DesignSavingTest::startOfASavedDesignAsksNothing()
{
    const ExpectedModals none;
    QVERIFY(m_saving->start(design().id));
    QVERIFY(m_runner->isRunning());
    QVERIFY(!m_saving->start(GUIdentifier()));
}

void DesignSavingTest::startSavesChangesFirst()
{
    edit();
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("not been saved since"), [](QMessageBox& box) {
        QCOMPARE(box.button(QMessageBox::Save)->text(), QStringLiteral("Start"));
        box.button(QMessageBox::Save)->click();
    });
    QVERIFY(m_saving->start(design().id));
    QVERIFY(isEditOnDisk());
    QVERIFY(m_runner->isRunning());
}

void DesignSavingTest::cancelledStartLeavesEverything()
{
    addResult();
    edit();
    const QByteArray before = onDisk();
    ExpectedModals modals;
    modals.expectMessageBox(s_anyBox, QMessageBox::Cancel);
    QVERIFY(!m_saving->start(design().id));
    QVERIFY(!m_runner->isRunning());
    QCOMPARE(onDisk(), before);
    QVERIFY(hasResult());
}

void DesignSavingTest::startDropsTheResultsOfBefore()
{
    addResult();
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("The simulation results are deleted"),
                            QMessageBox::Save);
    QVERIFY(m_saving->start(design().id));
    QVERIFY(!onDisk().contains("draw.csv"));
    QVERIFY(m_runner->isRunning());
}

void DesignSavingTest::startThatFailsBringsTheResultsBack()
{
    addResult();
    const QString other = m_opened->path(QStringLiteral("other/other.dsg"));
    session().open({writeFile(other, toText(designWithFiles(70, QStringLiteral("Other"), {})))});
    m_runner->setSteps(1000000);
    QVERIFY(!m_runner->start(*session().findDesign(objectId(70))));
    edit();
    const QString again = m_history->undoText();
    m_history->undo();
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("The simulation results are deleted"),
                            QMessageBox::Save);
    QVERIFY(!m_saving->start(design().id));
    QCOMPARE(m_failures.size(), 1);
    QVERIFY(m_failures.front().contains(QStringLiteral("is running already")));
    QCOMPARE(results(), 1);
    QCOMPARE(m_history->redoText(), again);
    m_runner->stop();
}

void DesignSavingTest::startOnAnotherFileRunsThere()
{
    edit();
    const QByteArray before = onDisk();
    chooseForSaveAs(QStringLiteral("other.dsg"));
    ExpectedModals modals;
    modals.expectMessageBox(s_anyBox, QMessageBox::SaveAll);
    QVERIFY(m_saving->start(design().id));
    QCOMPARE(onDisk(), before);
    QCOMPARE(QFileInfo(m_runner->designFile()).fileName(), QStringLiteral("other.dsg"));
    QTRY_VERIFY(!m_runner->isRunning());
    QVERIFY(readFile(m_opened->path(QStringLiteral("other.dsg"))).contains("simulation.csv"));
}

void DesignSavingTest::startOfADesignComputedElsewhereIsRefused()
{
    const auto job = computeElsewhere();
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Starting is not allowed"), [](QMessageBox& box) {
        QVERIFY(!box.button(QMessageBox::Save)->isVisible());
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    QVERIFY(!m_saving->start(design().id));
    QVERIFY(!m_runner->isRunning());
}

void DesignSavingTest::resultsAreTakenIntoTheDesignAndSaved()
{
    QVERIFY(m_saving->start(design().id));
    QTRY_COMPARE(m_told.size(), 1);
    QVERIFY(hasResult());
    QVERIFY(!session().isModified());
    QVERIFY(onDisk().contains("results/small-simulation.csv"));
    QCOMPARE(m_told.front(),
             QStringLiteral("The simulation of small.dsg is done; the design has its results."));
}

void DesignSavingTest::resultsDoNotSaveTheUsersChanges()
{
    QVERIFY(m_saving->start(design().id));
    edit();
    QTRY_COMPARE(m_told.size(), 1);
    QVERIFY(hasResult());
    QVERIFY(session().isModified());
    QVERIFY(!isEditOnDisk());
    QVERIFY(m_told.front().contains(QStringLiteral("Save the design")));
}

void DesignSavingTest::resultsOfAClosedDesignStayOnTheDisk()
{
    QVERIFY(m_saving->start(design().id));
    session().close();
    QTRY_COMPARE(m_told.size(), 1);
    QVERIFY(QFile::exists(m_opened->path(QStringLiteral("results/small-simulation.csv"))));
    QVERIFY(m_told.front().contains(QStringLiteral("small-simulation.csv")));
}

void DesignSavingTest::suppressedQuestionsNeverTouchARunningDesign()
{
    qApp->setProperty("SuppressSaveDialog", true);
    const ExpectedModals none;
    edit();
    {
        const auto job = computeElsewhere();
        const QByteArray before = onDisk();
        QVERIFY(!m_saving->saveAll());
        QVERIFY(!m_saving->start(design().id));
        QCOMPARE(onDisk(), before);
        QCOMPARE(m_failures.size(), 2);
    }
    QVERIFY(m_saving->saveAll());
    QVERIFY(isEditOnDisk());
}

ZORVANE_TEST(DesignSavingTest)
#include "DesignSavingTest.moc"
