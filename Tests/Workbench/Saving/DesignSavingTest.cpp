#include "Workbench/Saving/DesignSaving.h"

#include "Host/DesignStatus/DesignStatus.h"
#include "Tests/Support/ExpectedModals.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Tree/TreeFixture.h"
#include "Workbench/Commands/FileCommands.h"
#include "Workbench/Solver/SimulationRunner.h"
#include "Workbench/Undo/EditHistory.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QLockFile>
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

/** Answers Save As with one file; empty for cancel. */
class OneFileChooser : public FileChooser
{
public:
    explicit OneFileChooser(QString file)
        : m_file(std::move(file))
    {}

    QStringList files(QWidget*, const FileChoice&) override { return {}; }
    QString folder(QWidget*, const FileChoice&) override { return {}; }
    QString fileToSave(QWidget*, const FileChoice&, const QString&) override { return m_file; }
    QString fileToSaveBeside(QWidget*, const FileChoice&, const QString&) override
    {
        return m_file;
    }

private:
    QString m_file;
};

/** Keeps a design's file from being written; false where it cannot. */
using Obstacle = std::function<bool(const QString& file)>;

bool putFolderInTheWay(const QString& file)
{
    return QFile::remove(file) && QDir().mkdir(file);
}

} // namespace

Q_DECLARE_METATYPE(Obstacle)

class DesignSavingTest : public TestCase
{
    Q_OBJECT

private:
    DesignSession& session() { return m_opened->session; }
    const Design& design() { return session().designs().front(); }
    QByteArray onDisk() const { return readFile(m_opened->designFile()); }
    QByteArray onOtherDisk() const { return readFile(m_opened->path(QStringLiteral("other.dsg"))); }
    void edit() { session().rename(objectId(10), QStringLiteral("Left door")); }
    bool isEditOnDisk() const { return onDisk().contains("Left door"); }
    void addResult();
    bool hasResult() { return results() > 0; }
    int results();
    void changeFileElsewhere();
    void reopenAsVersion1();
    std::unique_ptr<QLockFile> computeElsewhere();
    void chooseForSaveAs(const QString& name);

    std::unique_ptr<OpenedDesign> m_opened;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<EditHistory> m_history;
    std::unique_ptr<SimulationRunner> m_runner;
    FileCommands* m_files = nullptr;
    DesignSaving* m_saving = nullptr;
    QStringList m_told;
    QStringList m_failures;

private Q_SLOTS:
    void init();
    void cleanup();
    void savingThatCostsNothingAsksNothing();
    void outdatedResultsGoOnlyOnTheUsersWord();
    void resultsThatFitStay();
    void savingAnOlderDesignAsks();
    void runningDesignIsSavedElsewhereOrNotAtAll();
    void cancelledSaveAsLeavesEverything();
    void saveAsThatCostsNothingAsksNothing();
    void saveAsLeavesOutdatedResultsOnTheUsersWord();
    void saveAsOfAnOlderDesignAsks();
    void copyLeavesOutdatedResultsToTheDesign();
    void closesOneDesign();
    void closingOneUnderAnotherNameClosesThat();
    void closingOneStopsItsSimulationOnlyOnTheUsersWord();
    void changeByAnotherProgramIsReplacedOnlyOnTheUsersWord();
    void failedSaveBringsDroppedResultsBack();
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
    void startOnAnotherFileRunsThere();
    void startOfADesignComputedElsewhereIsRefused();
    void resultsAreTakenIntoTheDesignAndSaved();
    void resultsDoNotSaveTheUsersChanges();
    void resultsOfAClosedDesignStayOnTheDisk();
    void suppressedQuestionsNeverTouchARunningDesign();
};

void DesignSavingTest::init()
{
    m_opened = std::make_unique<OpenedDesign>();
    m_window = std::make_unique<QWidget>();
    m_history = std::make_unique<EditHistory>(session(), nullptr);
    m_runner = std::make_unique<SimulationRunner>();
    m_runner->setSteps(3);
    m_files = new FileCommands(session(), m_window.get());
    m_saving = new DesignSaving({session(), *m_history, *m_files, *m_runner}, m_window.get());
    m_told.clear();
    m_failures.clear();
    connect(m_saving, &DesignSaving::done, this, [this](const QString& t) { m_told << t; });
    connect(m_saving, &DesignSaving::failed, this, [this](const QString& t) { m_failures << t; });
}

void DesignSavingTest::cleanup()
{
    qApp->setProperty("SuppressSaveDialog", QVariant());
    m_window.reset();
    m_runner.reset();
    m_history.reset();
    m_opened.reset();
    TestCase::cleanup();
}

void DesignSavingTest::addResult()
{
    const QString file = writeFile(m_opened->path(QStringLiteral("draw.csv")), "stroke\n");
    QVERIFY(session().addFiles(design().id, {file}).empty());
    QVERIFY(session().save().empty());
}

int DesignSavingTest::results()
{
    int count = 0;
    for (const FileReference& file : design().files)
        count += file.kind == FileKind::Result ? 1 : 0;
    return count;
}

void DesignSavingTest::changeFileElsewhere()
{
    QJsonObject theirs = smallDesign();
    theirs.insert(QStringLiteral("name"), QStringLiteral("Theirs"));
    replaceFile(m_opened->designFile(), toText(theirs));
}

void DesignSavingTest::reopenAsVersion1()
{
    QJsonObject old = smallDesign();
    old.insert(QStringLiteral("version"), 1);
    session().close();
    replaceFile(m_opened->designFile(), toText(old));
    session().open({m_opened->designFile()});
}

std::unique_ptr<QLockFile> DesignSavingTest::computeElsewhere()
{
    auto mark =
        std::make_unique<QLockFile>(DesignStatus::getJobFile(FileName(design().file)).toQString());
    mark->setStaleLockTime(0);
    if (!mark->tryLock(0))
        qWarning("The design could not be marked as being computed.");
    return mark;
}

void DesignSavingTest::chooseForSaveAs(const QString& name)
{
    m_files->setFileChooser(
        std::make_unique<OneFileChooser>(name.isEmpty() ? QString() : m_opened->path(name)));
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
    addResult();
    session().setQuantity(objectId(2), Quantity::Thickness, 1.75);
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
    addResult();
    session().setQuantity(objectId(2), Quantity::Thickness, 1.75);
    chooseForSaveAs(QString());
    const QByteArray before = onDisk();
    ExpectedModals modals;
    modals.expectMessageBox(s_anyBox, QMessageBox::SaveAll);
    QVERIFY(!m_saving->saveAll());
    QCOMPARE(onDisk(), before);
    QVERIFY(hasResult());
    QVERIFY(session().areQuantitiesModified(design().id));
}

void DesignSavingTest::saveAsThatCostsNothingAsksNothing()
{
    addResult();
    edit();
    const auto job = computeElsewhere();
    chooseForSaveAs(QStringLiteral("other.dsg"));
    const ExpectedModals none;
    QVERIFY(m_saving->saveAs(design().id));
    QCOMPARE(QFileInfo(design().file).fileName(), QStringLiteral("other.dsg"));
    QVERIFY(onOtherDisk().contains("draw.csv"));
    QVERIFY(!isEditOnDisk());
    QVERIFY(!m_saving->saveAs(GUIdentifier()));
}

void DesignSavingTest::saveAsLeavesOutdatedResultsOnTheUsersWord()
{
    addResult();
    session().setQuantity(objectId(2), Quantity::Thickness, 1.75);
    chooseForSaveAs(QStringLiteral("other.dsg"));
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("The simulation results are deleted"),
                            QMessageBox::Cancel);
    QVERIFY(!m_saving->saveAs(design().id));
    QVERIFY(!QFile::exists(m_opened->path(QStringLiteral("other.dsg"))));
    QVERIFY(hasResult());
    modals.expectMessageBox(QStringLiteral("The simulation results are deleted"),
                            [](QMessageBox& box) {
                                QVERIFY(!box.button(QMessageBox::Save));
                                box.button(QMessageBox::SaveAll)->click();
                            });
    QVERIFY(m_saving->saveAs(design().id));
    QVERIFY(onOtherDisk().contains("1.75"));
    QVERIFY(!onOtherDisk().contains("draw.csv"));
    QVERIFY2(onDisk().contains("draw.csv"), "the design that it was stays as it is");
    QVERIFY(!hasResult());
}

void DesignSavingTest::saveAsOfAnOlderDesignAsks()
{
    reopenAsVersion1();
    chooseForSaveAs(QStringLiteral("other.dsg"));
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("converted to the current version"),
                            QMessageBox::Cancel);
    QVERIFY(!m_saving->saveAs(design().id));
    modals.expectMessageBox(QStringLiteral("converted to the current version"),
                            QMessageBox::Cancel);
    QVERIFY(!m_saving->saveCopy(design().id));
    QVERIFY(!QFile::exists(m_opened->path(QStringLiteral("other.dsg"))));
    modals.expectMessageBox(QStringLiteral("converted to the current version"),
                            QMessageBox::SaveAll);
    QVERIFY(m_saving->saveAs(design().id));
    QVERIFY(onOtherDisk().contains("\"version\": 2"));
    QVERIFY(onDisk().contains("\"version\": 1"));
}

void DesignSavingTest::copyLeavesOutdatedResultsToTheDesign()
{
    addResult();
    session().setQuantity(objectId(2), Quantity::Thickness, 1.75);
    chooseForSaveAs(QStringLiteral("other.dsg"));
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("The simulation results are deleted"),
                            QMessageBox::SaveAll);
    QVERIFY(m_saving->saveCopy(design().id));
    QVERIFY(!onOtherDisk().contains("draw.csv"));
    QVERIFY(hasResult());
    QVERIFY(session().areQuantitiesModified(design().id));
    QVERIFY(!m_history->stack().canRedo());
}

void DesignSavingTest::closesOneDesign()
{
    QJsonObject second = designWithFiles(60, QStringLiteral("Second"), {});
    session().open({writeFile(m_opened->path(QStringLiteral("second.dsg")), toText(second))});
    edit();
    session().rename(objectId(60), QStringLiteral("Second, changed"));
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("second.dsg"), QMessageBox::Cancel);
    QVERIFY(!m_saving->close(objectId(60)));
    QCOMPARE(session().designs().size(), std::size_t(2));
    modals.expectMessageBox(QStringLiteral("second.dsg"), QMessageBox::Discard);
    QVERIFY(m_saving->close(objectId(60)));
    QCOMPARE(session().designs().size(), std::size_t(1));
    QVERIFY2(session().isModified(objectId(10)), "nobody asked about the other one");
    QVERIFY(!m_saving->close(objectId(60)));
}

void DesignSavingTest::closingOneUnderAnotherNameClosesThat()
{
    qApp->setProperty("AddSaveAsToSaveDialog", true);
    const auto restore = qScopeGuard([] { qApp->setProperty("AddSaveAsToSaveDialog", {}); });
    edit();
    chooseForSaveAs(QStringLiteral("other.dsg"));
    ExpectedModals modals;
    modals.expectMessageBox(s_question, QMessageBox::SaveAll);
    QVERIFY(m_saving->close(design().id));
    QVERIFY(session().designs().empty());
    QVERIFY(onOtherDisk().contains("Left door"));
}

void DesignSavingTest::closingOneStopsItsSimulationOnlyOnTheUsersWord()
{
    QJsonObject second = designWithFiles(60, QStringLiteral("Second"), {});
    session().open({writeFile(m_opened->path(QStringLiteral("second.dsg")), toText(second))});
    m_runner->setSteps(100000);
    QVERIFY(m_saving->start(objectId(1)));
    ExpectedModals modals;
    QVERIFY(m_saving->close(objectId(60)));
    QVERIFY(m_runner->isRunning());
    modals.expectMessageBox(QStringLiteral("Stop it and lose"), QMessageBox::No);
    QVERIFY(!m_saving->close(objectId(1)));
    modals.expectMessageBox(QStringLiteral("Stop it and lose"), QMessageBox::Yes);
    QVERIFY(m_saving->close(objectId(1)));
    QVERIFY(!m_runner->isRunning());
    QVERIFY(session().designs().empty());
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
    addResult();
    session().setQuantity(objectId(2), Quantity::Thickness, 1.75);
    changeFileElsewhere();
    ExpectedModals modals;
    modals.expectMessageBox(s_anyBox, QMessageBox::Save);
    modals.expectMessageBox(QStringLiteral("Another program"), QMessageBox::Cancel);
    const int edits = m_history->stack().index();
    QVERIFY(!m_saving->saveAll());
    QVERIFY(hasResult());
    QCOMPARE(m_history->stack().index(), edits);
    QCOMPARE(m_failures.size(), 1);
}

void DesignSavingTest::failedSaveLeavesWhatOthersEditedMeanwhile()
{
    addResult();
    session().setQuantity(objectId(2), Quantity::Thickness, 1.75);
    changeFileElsewhere();
    ExpectedModals modals;
    modals.expectMessageBox(s_anyBox, QMessageBox::Save);
    modals.expectMessageBox(QStringLiteral("Another program"), [this](QMessageBox& box) {
        QVERIFY(!hasResult());
        edit();
        box.button(QMessageBox::Cancel)->click();
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
    modals.expectMessageBox(s_anyBox, QMessageBox::Save);
    modals.expectMessageBox(QStringLiteral("Another program"), [this](QMessageBox& box) {
        QVERIFY(!hasResult());
        edit();
        box.button(QMessageBox::Cancel)->click();
    });
    QVERIFY(!m_saving->start(design().id));
    QCOMPARE(session().name(objectId(10)), QStringLiteral("Left door"));
    QCOMPARE(results(), 1);
}

void DesignSavingTest::resultsBroughtBackMeanwhileAreThereOnce()
{
    addResult();
    session().setQuantity(objectId(2), Quantity::Thickness, 1.75);
    changeFileElsewhere();
    ExpectedModals modals;
    modals.expectMessageBox(s_anyBox, QMessageBox::Save);
    modals.expectMessageBox(QStringLiteral("Another program"), [this](QMessageBox& box) {
        m_history->undo();
        box.button(QMessageBox::Cancel)->click();
    });
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
    QTRY_VERIFY_WITH_TIMEOUT(!m_runner->isRunning(), patience);
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
    QTRY_COMPARE_WITH_TIMEOUT(m_told.size(), 1, patience);
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
    QTRY_COMPARE_WITH_TIMEOUT(m_told.size(), 1, patience);
    QVERIFY(hasResult());
    QVERIFY(session().isModified());
    QVERIFY(!isEditOnDisk());
    QVERIFY(m_told.front().contains(QStringLiteral("Save the design")));
}

void DesignSavingTest::resultsOfAClosedDesignStayOnTheDisk()
{
    QVERIFY(m_saving->start(design().id));
    session().close();
    QTRY_COMPARE_WITH_TIMEOUT(m_told.size(), 1, patience);
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

ZORVANE_TEST_MAIN(DesignSavingTest)
#include "DesignSavingTest.moc"
