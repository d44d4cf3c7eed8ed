#include "Host/DesignStatus/DesignStatus.h"
#include "Host/Widgets/ZVConverterDialog.h"
#include "Tests/Support/ExpectedModals.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Tree/TreeFixture.h"
#include "Workbench/Solver/SimulationRunner.h"
#include "Workbench/Undo/EditHistory.h"
#include "Workbench/Window/MainWindow.h"
#include "Workbench/Window/MessageBar.h"

#include <QtWidgets/QAction>
#include <QtWidgets/QTreeView>

#include <memory>

namespace Zorvane::Workbench {

using Testing::objectId;

/** Commands of the window that change, save and compute designs. */
class WindowEditsTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void undoAndRedoFollowTheHistory();
    void undoTellsWhatItLeavesAsItIs();
    void undoKeysWorkInTheTree();
    void namesInCommandsAreNoKeys();
    void removedPartComesBackWithUndo();
    void onlyWhatNothingRefersToIsRemoved();
    void startAndStopFollowTheSimulation();
    void resultsAreShownWhenTheSimulationIsDone();
    void closingWhileSimulatingAsks();
    void reloadEndsTheHistory();
    void fileCommandsActOnTheCurrentDesign();
    void fileCommandsNeedOneDesign();
    void aDesignReferredToIsNotClosedByItself();
    void convertShowsOneWindow();

private:
    QAction* action(const QString& text) const;
    void openSecond(const QJsonArray& files = {});

    std::unique_ptr<Testing::OpenedDesign> m_files;
    std::unique_ptr<MainWindow> m_window;
};

void WindowEditsTest::init()
{
    m_files = std::make_unique<Testing::OpenedDesign>();
    m_window = std::make_unique<MainWindow>();
    m_window->show();
    m_window->open({m_files->folder.path()});
    QTRY_VERIFY(!m_window->loader().isBusy());
    m_window->tree().refreshNow();
}

void WindowEditsTest::cleanup()
{
    m_window.reset();
    m_files.reset();
    TestCase::cleanup();
}

/** The first one whose text begins so. */
QAction* WindowEditsTest::action(const QString& text) const
{
    for (QAction* found : m_window->actions())
        if (QString(found->text()).remove(QLatin1Char('&')).startsWith(text))
            return found;
    return nullptr;
}

void WindowEditsTest::undoAndRedoFollowTheHistory()
{
    QAction* undo = action(QStringLiteral("Undo"));
    QAction* redo = action(QStringLiteral("Redo"));
    QVERIFY(!undo->isEnabled() && !redo->isEnabled());
    const QString before = m_window->session().name(objectId(10));
    m_window->session().rename(objectId(10), QStringLiteral("Left door"));
    QVERIFY(undo->isEnabled());
    QCOMPARE(undo->text(), QStringLiteral("&Undo: Rename %1").arg(before));
    undo->trigger();
    QCOMPARE(m_window->session().name(objectId(10)), before);
    QVERIFY(!undo->isEnabled() && redo->isEnabled());
    redo->trigger();
    QCOMPARE(m_window->session().name(objectId(10)), QStringLiteral("Left door"));
}

void WindowEditsTest::undoTellsWhatItLeavesAsItIs()
{
    DesignSession& session = m_window->session();
    const QString file = m_files->path(QStringLiteral("second.dsg"));
    Testing::writeFile(file,
                       Testing::toText(Testing::designWithFiles(60, QStringLiteral("Second"), {})));
    QVERIFY(session.addFiles(objectId(1), {file}).empty());
    session.rename(objectId(60), QStringLiteral("Second, changed"));
    QVERIFY(session.save().empty());
    session.take(objectId(1), {session.findDesign(objectId(1))->files.back().id});
    QVERIFY(session.findDesign(objectId(60)) == nullptr);
    Testing::replaceFile(
        file, Testing::toText(Testing::designWithFiles(60, QStringLiteral("Theirs"), {})));
    action(QStringLiteral("Undo"))->trigger();
    QVERIFY(m_window->messageBar().text().isEmpty());
    action(QStringLiteral("Undo"))->trigger();
    QVERIFY(m_window->messageBar().text().contains(
        QStringLiteral("Theirs has been changed by another program")));
    QCOMPARE(session.name(objectId(60)), QStringLiteral("Theirs"));
    QCOMPARE(action(QStringLiteral("Undo"))->text(), QStringLiteral("&Undo: Add second"));
}

void WindowEditsTest::undoKeysWorkInTheTree()
{
    const QString before = m_window->session().name(objectId(10));
    m_window->session().rename(objectId(10), QStringLiteral("Left door"));
    QVERIFY(QTest::qWaitForWindowActive(m_window.get(), Zorvane::Testing::patience));
    m_window->treeView().setFocus();
    QTest::keyClick(&m_window->treeView(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(m_window->session().name(objectId(10)), before);
    QTest::keyClick(&m_window->treeView(), Qt::Key_Y, Qt::ControlModifier);
    QCOMPARE(m_window->session().name(objectId(10)), QStringLiteral("Left door"));
}

void WindowEditsTest::namesInCommandsAreNoKeys()
{
    m_window->session().rename(objectId(10), QStringLiteral("R&D"));
    m_window->session().setQuantity(objectId(10), Quantity::Thickness, 3);
    QCOMPARE(action(QStringLiteral("Undo"))->text(),
             QStringLiteral("&Undo: Change Thickness of R&&D"));
}

void WindowEditsTest::removedPartComesBackWithUndo()
{
    m_window->tree().select(objectId(10));
    QAction* remove = action(QStringLiteral("Remove from Design"));
    QVERIFY(remove->isEnabled());
    remove->trigger();
    QVERIFY(m_window->session().designs().front().parts.empty());
    QVERIFY(QFile::exists(m_files->path(QStringLiteral("geometry/die.stl"))));
    action(QStringLiteral("Undo"))->trigger();
    QCOMPARE(m_window->session().designs().front().parts.size(), std::size_t(1));
    QVERIFY(!m_window->session().isModified());
}

void WindowEditsTest::onlyWhatNothingRefersToIsRemoved()
{
    const DesignSession& session = m_window->session();
    for (const int number : {1, 2, 20, 21, 30, 40, 41, 99})
        QVERIFY2(!session.canTake(objectId(number)), qPrintable(QString::number(number)));
    const QString table = Testing::writeFile(m_files->path(QStringLiteral("draw.csv")), "stroke\n");
    m_window->session().addFiles(objectId(1), {table});
    QVERIFY(session.canTake(session.designs().front().files.back().id));
    m_window->tree().refreshNow();
    m_window->tree().select(objectId(21));
    QVERIFY(!action(QStringLiteral("Remove from Design"))->isEnabled());
}

void WindowEditsTest::startAndStopFollowTheSimulation()
{
    QAction* start = action(QStringLiteral("Compute"));
    QAction* stop = action(QStringLiteral("Stop Simulation"));
    QVERIFY(start->isEnabled() && !stop->isEnabled());
    m_window->simulation().setSteps(100000);
    start->trigger();
    QVERIFY(m_window->simulation().isRunning());
    QVERIFY(!start->isEnabled() && stop->isEnabled());
    stop->trigger();
    QVERIFY(start->isEnabled() && !stop->isEnabled());
    m_window->session().close();
    QVERIFY(!start->isEnabled());
}

void WindowEditsTest::resultsAreShownWhenTheSimulationIsDone()
{
    m_window->simulation().setSteps(2);
    action(QStringLiteral("Compute"))->trigger();
    QTRY_VERIFY(!m_window->simulation().isRunning());
    m_window->tree().refreshNow();
    const Design& design = m_window->session().designs().front();
    QCOMPARE(design.files.back().kind, FileKind::Result);
    QVERIFY(m_window->tree().select(design.files.back().id));
    QVERIFY(!m_window->isWindowModified());
}

void WindowEditsTest::closingWhileSimulatingAsks()
{
    m_window->simulation().setSteps(100000);
    action(QStringLiteral("Compute"))->trigger();
    Testing::ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Stop it and lose"), QMessageBox::No);
    QVERIFY(!m_window->close());
    QVERIFY(m_window->simulation().isRunning());
    modals.expectMessageBox(QStringLiteral("Stop it and lose"), QMessageBox::Yes);
    QVERIFY(m_window->close());
    DesignStatus status;
    status.reloadJobStatus(FileName(m_files->designFile()), nullptr);
    QVERIFY(!status.isJobRunning());
}

void WindowEditsTest::reloadEndsTheHistory()
{
    m_window->session().rename(objectId(10), QStringLiteral("Left door"));
    Testing::ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Save them before"), QMessageBox::Discard);
    m_window->reload();
    QVERIFY(!m_window->session().isModified());
    QVERIFY(!action(QStringLiteral("Undo"))->isEnabled());
}

/** Which has the identifier 60. */
void WindowEditsTest::openSecond(const QJsonArray& files)
{
    const QJsonObject second = Testing::designWithFiles(60, QStringLiteral("Second"), files);
    m_window->open(
        {Testing::writeFile(m_files->path(QStringLiteral("second.dsg")), Testing::toText(second))});
    m_window->tree().refreshNow();
}

void WindowEditsTest::fileCommandsActOnTheCurrentDesign()
{
    openSecond();
    DesignSession& session = m_window->session();
    session.rename(objectId(10), QStringLiteral("Left door"));
    QVERIFY(m_window->tree().select(objectId(60)));
    QVERIFY2(!action(QStringLiteral("Save"))->isEnabled(), "this one is as it was saved");
    session.rename(objectId(60), QStringLiteral("Changed"));
    m_window->tree().refreshNow();
    action(QStringLiteral("Save"))->trigger();
    QVERIFY(!session.isDesignModified(objectId(60)));
    QVERIFY(session.isDesignModified(objectId(1)));

    session.rename(objectId(60), QStringLiteral("Changed again"));
    Testing::ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Save them before"), QMessageBox::Discard);
    action(QStringLiteral("Reopen"))->trigger();
    QCOMPARE(session.name(objectId(60)), QStringLiteral("Changed"));
    QVERIFY(session.isDesignModified(objectId(1)));

    QVERIFY(m_window->tree().select(objectId(60)));
    action(QStringLiteral("Close"))->trigger();
    QCOMPARE(session.designs().size(), std::size_t(1));
    QCOMPARE(session.name(objectId(10)), QStringLiteral("Left door"));
}

void WindowEditsTest::fileCommandsNeedOneDesign()
{
    const auto enabled = [this](const char* text) {
        return action(QString::fromLatin1(text))->isEnabled();
    };
    m_window->treeView().setCurrentIndex({});
    for (const char* text : {"Close", "Reopen", "Save As", "Save a Copy"})
        QVERIFY2(enabled(text), text);
    openSecond();
    m_window->treeView().setCurrentIndex({});
    for (const char* text : {"Close", "Reopen", "Save As", "Save a Copy"})
        QVERIFY2(!enabled(text), text);
    const QModelIndex group = m_window->tree().indexOf(objectId(10)).parent();
    QVERIFY(m_window->tree().idAt(group).getCombinedPart() != objectId(1));
    m_window->treeView().setCurrentIndex(group);
    for (const char* text : {"Close", "Reopen", "Save As", "Save a Copy"})
        QVERIFY2(enabled(text), text);
    QVERIFY(enabled("Close All") && enabled("Reopen All"));
    action(QStringLiteral("Close All"))->trigger();
    QVERIFY(m_window->session().designs().empty());
    m_window->tree().refreshNow();
    QVERIFY(!enabled("Close") && !enabled("Close All"));
}

void WindowEditsTest::aDesignReferredToIsNotClosedByItself()
{
    openSecond({Testing::fileEntry(61, QStringLiteral("Small"), QStringLiteral("design"),
                                   QStringLiteral("small.dsg"))});
    QVERIFY(m_window->tree().select(objectId(1)));
    QVERIFY(!action(QStringLiteral("Close"))->isEnabled());
    QVERIFY(m_window->tree().select(objectId(60)));
    QVERIFY(action(QStringLiteral("Close"))->isEnabled());
    action(QStringLiteral("Close"))->trigger();
    QVERIFY(m_window->session().canClose(objectId(1)));
}

void WindowEditsTest::convertShowsOneWindow()
{
    QAction* convert = action(QStringLiteral("Convert Meshes"));
    convert->trigger();
    auto* converter = m_window->findChild<ZVConverterDialog*>();
    QVERIFY(converter && converter->isVisible());
    converter->close();
    convert->trigger();
    QCOMPARE(m_window->findChildren<ZVConverterDialog*>().size(), 1);
    QVERIFY(converter->isVisible());
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::WindowEditsTest;
ZORVANE_TEST(WindowEditsTest)
#include "WindowEditsTest.moc"
