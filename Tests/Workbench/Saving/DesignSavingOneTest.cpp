#include "Files/CopyCollisionDialog.h"
#include "Tests/Support/ExpectedModals.h"
#include "Tests/Support/PlatformCopies.h"
#include "Tests/Workbench/Saving/SavingFixture.h"
#include "Workbench/Design/DesignWriter.h"

#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>
#include <QtCore/QScopeGuard>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QPushButton>

using namespace Zorvane;
using namespace Zorvane::Testing;
using namespace Zorvane::Workbench;

/** Saving one design under another name, and closing one of several. */
class DesignSavingOneTest : public SavingFixture
{
    Q_OBJECT

private:
    QString withoutIds();
    void addRib();

    Testing::PlatformCopies m_copies;

private Q_SLOTS:
    void init() { setUp(); }
    void cleanup() { tearDown(); }
    void saveAsThatCostsNothingAsksNothing();
    void saveAsLeavesOutdatedResultsOnTheUsersWord();
    void saveAsOfAnOlderDesignAsks();
    void undoGoesOnAfterSaveAs_data();
    void undoGoesOnAfterSaveAs();
    void undoFollowsFilesThatGotOtherNames();
    void undoTakesNoStrangersFile();
    void redoTakesNoStrangersFile();
    void undoTakesTheFileThatCameAlong();
    void undoEndsAtWhatSaveAsLeftOut();
    void undoStaysWithTheDesignThatWasSavedAs();
    void copyLeavesOutdatedResultsToTheDesign();
    void closesOneDesign();
    void closingOneUnderAnotherNameClosesThat();
    void closingOneStopsItsSimulationOnlyOnTheUsersWord();
};

/** What the first design is written as. */
QString DesignSavingOneTest::withoutIds()
{
    static const QRegularExpression id(QStringLiteral("[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}"));
    return QString::fromUtf8(DesignWriter::toJson(design())).remove(id);
}

void DesignSavingOneTest::addRib()
{
    const QString mesh = writeFile(m_opened->path(QStringLiteral("rib.stl")), binaryStl(cube()));
    QVERIFY(session().addFiles(design().id, {mesh}).empty());
}

void DesignSavingOneTest::saveAsThatCostsNothingAsksNothing()
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

void DesignSavingOneTest::saveAsLeavesOutdatedResultsOnTheUsersWord()
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

void DesignSavingOneTest::saveAsOfAnOlderDesignAsks()
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

void DesignSavingOneTest::undoGoesOnAfterSaveAs_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("beside it") << QStringLiteral("other.dsg");
    QTest::newRow("elsewhere") << QStringLiteral("elsewhere/other.dsg");
}

void DesignSavingOneTest::undoGoesOnAfterSaveAs()
{
    QFETCH(QString, name);
    const QString before = withoutIds();
    const QString mesh = writeFile(m_opened->path(QStringLiteral("rib.stl")), binaryStl(cube()));
    QVERIFY(session().addFiles(design().id, {mesh}).empty());
    const GUIdentifier rib = design().parts.back().id;
    session().rename(rib, QStringLiteral("Rib"));
    session().setQuantity(rib, Quantity::Thickness, 3);
    session().take(design().id, {rib, objectId(10), objectId(41)});
    session().setQuantity(objectId(2), Quantity::Thickness, 4);
    const QString after = withoutIds();
    m_history->undo();
    chooseForSaveAs(name);
    QVERIFY(m_saving->saveAs(design().id));
    QCOMPARE(QFileInfo(design().file), QFileInfo(m_opened->path(name)));
    const QSignalSpy refused(m_history.get(), &EditHistory::refused);
    QCOMPARE(m_history->count(), 5);
    m_history->redo();
    QCOMPARE(withoutIds(), after);
    while (m_history->canUndo())
        m_history->undo();
    QCOMPARE(withoutIds(), before);
    QVERIFY(session().isModified());
    // What refers to what was taken out refers to it again.
    QCOMPARE(design().materials.front().file, design().files.back().id);
    QCOMPARE(design().parts.front().geometry, design().files.front().id);
    while (m_history->canRedo())
        m_history->redo();
    QCOMPARE(withoutIds(), after);
    QCOMPARE(refused.count(), 0);
}

void DesignSavingOneTest::undoFollowsFilesThatGotOtherNames()
{
    addRib();
    writeFile(m_opened->path(QStringLiteral("elsewhere/rib.stl")), "taken");
    chooseForSaveAs(QStringLiteral("elsewhere/other.dsg"));
    ExpectedModals modals;
    // The engine that stands in for a shell keeps both by itself.
    if (PlatformCopies::askByOurDialog())
        modals.expectDialog<CopyCollisionDialog>(
            QStringLiteral("collision"),
            [](CopyCollisionDialog& dialog) { dialog.button(CopyDecision::KeepBoth)->click(); });
    QVERIFY(m_saving->saveAs(design().id));
    const QString path = design().files.back().path;
    QVERIFY(path != QStringLiteral("rib.stl"));
    m_history->undo();
    QCOMPARE(design().files.size(), std::size_t(2));
    m_history->redo();
    QCOMPARE(design().files.back().path, path);
    QCOMPARE(int(design().files.back().state), int(FileState::Exists));
}

void DesignSavingOneTest::undoTakesNoStrangersFile()
{
    addRib();
    session().take(design().id, {design().parts.back().id, design().files.back().id});
    edit();
    writeFile(m_opened->path(QStringLiteral("elsewhere/rib.stl")), "a stranger's");
    chooseForSaveAs(QStringLiteral("elsewhere/other.dsg"));
    QVERIFY(m_saving->saveAs(design().id));
    QCOMPARE(m_history->count(), 1);
    m_history->undo();
    QCOMPARE(design().parts.front().name, QStringLiteral("Cup"));
    QVERIFY(!m_history->canUndo());
    QCOMPARE(design().files.size(), std::size_t(2));
}

void DesignSavingOneTest::redoTakesNoStrangersFile()
{
    edit();
    addRib();
    m_history->undo();
    m_history->undo();
    writeFile(m_opened->path(QStringLiteral("elsewhere/rib.stl")), "a stranger's");
    chooseForSaveAs(QStringLiteral("elsewhere/other.dsg"));
    QVERIFY(m_saving->saveAs(design().id));
    m_history->redo();
    QCOMPARE(design().parts.front().name, QStringLiteral("Left door"));
    QVERIFY(!m_history->canRedo());
    QCOMPARE(design().files.size(), std::size_t(2));
}

void DesignSavingOneTest::undoTakesTheFileThatCameAlong()
{
    addRib();
    session().take(design().id, {design().parts.back().id, design().files.back().id});
    addRib();
    chooseForSaveAs(QStringLiteral("elsewhere/other.dsg"));
    QVERIFY(m_saving->saveAs(design().id));
    QCOMPARE(m_history->count(), 3);
    m_history->undo();
    m_history->undo();
    QCOMPARE(design().files.back().path, QStringLiteral("rib.stl"));
    QCOMPARE(int(design().files.back().state), int(FileState::Exists));
}

void DesignSavingOneTest::undoEndsAtWhatSaveAsLeftOut()
{
    edit();
    addResult();
    session().setQuantity(objectId(2), Quantity::Thickness, 1.75);
    session().setQuantity(objectId(10), Quantity::Thickness, 2);
    m_history->undo();
    chooseForSaveAs(QStringLiteral("other.dsg"));
    QVERIFY(m_files->saveAs(design().id, FileCommands::Results::LeaveOut));
    QVERIFY(!hasResult());
    QCOMPARE(m_history->count(), 2);
    m_history->redo();
    QCOMPARE(design().parts.front().thickness, 2.0);
    m_history->undo();
    m_history->undo();
    QCOMPARE(design().blank->thickness, 1.25);
    QVERIFY(!m_history->canUndo());
    QCOMPARE(design().parts.front().name, QStringLiteral("Left door"));
}

void DesignSavingOneTest::undoStaysWithTheDesignThatWasSavedAs()
{
    const QString file = m_opened->path(QStringLiteral("frame.dsg"));
    const QJsonArray files{fileEntry(61, QStringLiteral("Small"), QStringLiteral("design"),
                                     QStringLiteral("small.dsg"))};
    session().open({writeFile(file, toText(designWithFiles(60, QStringLiteral("Frame"), files)))});
    edit();
    session().rename(objectId(60), QStringLiteral("Door frame"));
    chooseForSaveAs(QStringLiteral("other.dsg"));
    QVERIFY(m_saving->saveAs(objectId(1)));
    // The frame refers to the former one, which is as it lies on the disk.
    QCOMPARE(session().name(objectId(10)), QStringLiteral("Cup"));
    QCOMPARE(m_history->count(), 2);
    m_history->undo();
    QCOMPARE(session().name(objectId(60)), QStringLiteral("Frame"));
    m_history->undo();
    QCOMPARE(session().designs().front().parts.front().name, QStringLiteral("Cup"));
    QVERIFY(session().isDesignModified(session().designs().front().id));
    QVERIFY(!session().isDesignModified(objectId(1)));
}

void DesignSavingOneTest::copyLeavesOutdatedResultsToTheDesign()
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
    QVERIFY(!m_history->canRedo());
}

void DesignSavingOneTest::closesOneDesign()
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

void DesignSavingOneTest::closingOneUnderAnotherNameClosesThat()
{
    qApp->setProperty("AddSaveAsToSaveDialog", true);
    const auto restore = qScopeGuard([] { qApp->setProperty("AddSaveAsToSaveDialog", {}); });
    edit();
    chooseForSaveAs(QStringLiteral("other.dsg"));
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("prior to closing"), QMessageBox::SaveAll);
    QVERIFY(m_saving->close(design().id));
    QVERIFY(session().designs().empty());
    QVERIFY(onOtherDisk().contains("Left door"));
}

void DesignSavingOneTest::closingOneStopsItsSimulationOnlyOnTheUsersWord()
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

ZORVANE_TEST(DesignSavingOneTest)
#include "DesignSavingOneTest.moc"
