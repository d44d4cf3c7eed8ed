#include "Tests/Support/ExpectedModals.h"
#include "Tests/Workbench/Saving/SavingFixture.h"

#include <QtCore/QFileInfo>
#include <QtCore/QScopeGuard>
#include <QtWidgets/QAbstractButton>

using namespace Zorvane;
using namespace Zorvane::Testing;
using namespace Zorvane::Workbench;

/** Saving one design under another name, and closing one of several. */
class DesignSavingOneTest : public SavingFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init() { setUp(); }
    void cleanup() { tearDown(); }
    void saveAsThatCostsNothingAsksNothing();
    void saveAsLeavesOutdatedResultsOnTheUsersWord();
    void saveAsOfAnOlderDesignAsks();
    void copyLeavesOutdatedResultsToTheDesign();
    void closesOneDesign();
    void closingOneUnderAnotherNameClosesThat();
    void closingOneStopsItsSimulationOnlyOnTheUsersWord();
};

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

ZORVANE_TEST_MAIN(DesignSavingOneTest)
#include "DesignSavingOneTest.moc"
