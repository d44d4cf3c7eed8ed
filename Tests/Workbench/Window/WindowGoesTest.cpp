#include "FileDialogs/FileDialogDriver.h"
#include "Files/CopyCollisionDialog.h"
#include "Tests/Support/ExpectedModals.h"
#include "Tests/Support/PlatformCopies.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Import/ImportFixture.h"
#include "Workbench/Commands/FileCommands.h"
#include "Workbench/Commands/WindowCommands.h"
#include "Workbench/Import/FileExchange.h"
#include "Workbench/Solver/SimulationRunner.h"
#include "Workbench/Window/MainWindow.h"

#include <QtCore/QPointer>
#include <QtWidgets/QFileDialog>

#include <functional>
#include <memory>
#include <utility>

namespace Zorvane::Workbench {

using Testing::ExpectedModals;
using Testing::objectId;

namespace {

const QString s_anyBox = QStringLiteral("^Warning$");
const QString s_conflict = QStringLiteral("Another program");
constexpr int s_stepsWithoutEnd = 100000;

/** Sees the window go, and itself with it, before it answers. */
class LateChooser : public FileChooser
{
public:
    LateChooser(std::function<void()> wait, QString answer)
        : m_wait(std::move(wait))
        , m_answer(std::move(answer))
    {}

    QStringList files(QWidget*, const FileChoice&) override { return {answer()}; }
    QString folder(QWidget*, const FileChoice&) override { return answer(); }
    QString fileToSave(QWidget*, const FileChoice&, const QString&) override { return answer(); }
    QString fileToSaveBeside(QWidget*, const FileChoice&, const QString&) override
    {
        return answer();
    }

private:
    QString answer()
    {
        const QString kept = m_answer;
        const std::function<void()> wait = m_wait;
        wait();
        return kept;
    }

    std::function<void()> m_wait;
    QString m_answer;
};

} // namespace

/**
 * The window is destroyed while it asks something. The command that asked ends there: it touches
 * nothing that went, and leaves the files as they are.
 */
class WindowGoesTest : public Testing::TestCase
{
    Q_OBJECT

public:
    using Scene = std::function<void(WindowGoesTest&, ExpectedModals&)>;

private:
    template <typename Id>
    void trigger(Id id)
    {
        const QPointer<QAction> action = m_window->commands()[id];
        QVERIFY(action->isEnabled());
        action->trigger();
    }
    void edit() { m_window->session().rename(objectId(10), QStringLiteral("Left door")); }
    void addOutdatedResult();
    void changeFileElsewhere();
    /** The next box is what the window goes at. */
    void goAt(ExpectedModals& modals, const QString& box);
    void goAtCollision(ExpectedModals& modals);
    void goWhileChoosing(const QString& answer);
    template <typename Id>
    static Scene choosing(Id command, bool isFolder = false);
    template <typename Id>
    static Scene inTheDialog(Id command);
    template <typename Id>
    static Scene closing(Id command, const QString& box);

    Testing::PlatformCopies m_copies;
    const NativeFileDialogReplacement m_qtDialogs{[] { return nullptr; }};
    std::unique_ptr<Testing::ImportFixture> m_files;
    std::unique_ptr<MainWindow> m_window;
    Testing::ScriptedChooser::Script m_script;

private Q_SLOTS:
    void init();
    void cleanup();
    void windowGoesWhileItAsks_data();
    void windowGoesWhileItAsks();
};

void WindowGoesTest::init()
{
    m_files = std::make_unique<Testing::ImportFixture>();
    m_window = std::make_unique<MainWindow>();
    m_script = {};
    m_window->fileCommands().setFileChooser(std::make_unique<Testing::ScriptedChooser>(m_script));
    m_window->fileExchange().setFileChooser(std::make_unique<Testing::ScriptedChooser>(m_script));
    m_window->show();
    m_window->open({m_files->designFile()});
    m_window->tree().refreshNow();
    QTRY_VERIFY(!m_window->loader().isBusy());
}

void WindowGoesTest::cleanup()
{
    m_window.reset();
    m_files.reset();
    TestCase::cleanup();
}

void WindowGoesTest::addOutdatedResult()
{
    const QString file = Testing::writeFile(m_files->path(QStringLiteral("draw.csv")), "stroke\n");
    QVERIFY(m_window->session().addFiles(objectId(1), {file}).empty());
    QVERIFY(m_window->session().save().empty());
    m_window->session().setQuantity(objectId(2), Quantity::Thickness, 1.75);
    m_window->tree().refreshNow();
}

void WindowGoesTest::changeFileElsewhere()
{
    QJsonObject theirs = Testing::smallDesign();
    theirs.insert(QStringLiteral("name"), QStringLiteral("Theirs"));
    Testing::replaceFile(m_files->designFile(), Testing::toText(theirs));
}

void WindowGoesTest::goAt(ExpectedModals& modals, const QString& box)
{
    modals.expectMessageBox(box, [this](QMessageBox&) { m_window.reset(); });
}

void WindowGoesTest::goAtCollision(ExpectedModals& modals)
{
    modals.expectDialog<CopyCollisionDialog>(QStringLiteral("collision"),
                                             [this](CopyCollisionDialog&) { m_window.reset(); });
}

void WindowGoesTest::goWhileChoosing(const QString& answer)
{
    const auto go = [this] { m_window.reset(); };
    m_window->fileCommands().setFileChooser(std::make_unique<LateChooser>(go, answer));
    m_window->fileExchange().setFileChooser(std::make_unique<LateChooser>(go, answer));
}

template <typename Id>
WindowGoesTest::Scene WindowGoesTest::choosing(Id command, bool isFolder)
{
    return [command, isFolder](WindowGoesTest& test, ExpectedModals&) {
        const QTemporaryDir& folder = test.m_files->elsewhere;
        test.goWhileChoosing(isFolder ? folder.path()
                                      : folder.filePath(QStringLiteral("other.dsg")));
        test.trigger(command);
    };
}

template <typename Id>
WindowGoesTest::Scene WindowGoesTest::inTheDialog(Id command)
{
    return [command](WindowGoesTest& test, ExpectedModals& modals) {
        test.m_window->fileCommands().setFileChooser(std::make_unique<DialogFileChooser>());
        test.m_window->fileExchange().setFileChooser(std::make_unique<DialogFileChooser>());
        modals.expectDialog<QFileDialog>(QStringLiteral("files"),
                                         [&test](QFileDialog&) { test.m_window.reset(); });
        test.trigger(command);
    };
}

template <typename Id>
WindowGoesTest::Scene WindowGoesTest::closing(Id command, const QString& box)
{
    return [command, box](WindowGoesTest& test, ExpectedModals& modals) {
        test.edit();
        test.m_window->tree().refreshNow();
        test.goAt(modals, box);
        test.trigger(command);
    };
}

} // namespace Zorvane::Workbench

Q_DECLARE_METATYPE(Zorvane::Workbench::WindowGoesTest::Scene)

namespace Zorvane::Workbench {

void WindowGoesTest::windowGoesWhileItAsks_data()
{
    QTest::addColumn<Scene>("scene");
    const auto row = [](const char* name, const Scene& scene) { QTest::newRow(name) << scene; };

    row("saving results away", [](WindowGoesTest& test, ExpectedModals& modals) {
        test.addOutdatedResult();
        test.goAt(modals, s_anyBox);
        test.trigger(ZVMainActions::Save);
    });
    row("saving over another program's change", [](WindowGoesTest& test, ExpectedModals& modals) {
        test.addOutdatedResult();
        test.changeFileElsewhere();
        modals.expectMessageBox(s_anyBox, QMessageBox::Save);
        test.goAt(modals, s_conflict);
        test.trigger(ZVMainActions::Save);
    });
    row("starting a simulation", [](WindowGoesTest& test, ExpectedModals& modals) {
        test.addOutdatedResult();
        test.goAt(modals, s_anyBox);
        test.trigger(ZVMainActions::ComputeSimulation);
    });
    row("starting over another program's change", [](WindowGoesTest& test, ExpectedModals& modals) {
        test.addOutdatedResult();
        test.changeFileElsewhere();
        modals.expectMessageBox(s_anyBox, QMessageBox::Save);
        test.goAt(modals, s_conflict);
        test.trigger(ZVMainActions::ComputeSimulation);
    });
    row("stopping a simulation", [](WindowGoesTest& test, ExpectedModals& modals) {
        test.m_window->simulation().setSteps(s_stepsWithoutEnd);
        test.trigger(ZVMainActions::ComputeSimulation);
        test.goAt(modals, QStringLiteral("Stop it and lose"));
        test.trigger(ZVMainActions::Close);
    });
    row("closing one", closing(ZVMainActions::Close, s_anyBox));
    row("closing all", closing(WorkbenchActions::CloseAll, s_anyBox));
    row("closing the window", closing(ZVMainActions::Exit, s_anyBox));
    row("closing over another program's change", [](WindowGoesTest& test, ExpectedModals& modals) {
        test.edit();
        test.changeFileElsewhere();
        modals.expectMessageBox(s_anyBox, QMessageBox::Save);
        test.goAt(modals, s_conflict);
        test.trigger(WorkbenchActions::CloseAll);
    });
    row("reopening one", closing(ZVMainActions::ReOpen, QStringLiteral("Unsaved Changes")));
    row("reopening all", closing(WorkbenchActions::ReopenAll, QStringLiteral("Unsaved Changes")));
    row("reopening over another program's change",
        [](WindowGoesTest& test, ExpectedModals& modals) {
            test.edit();
            test.changeFileElsewhere();
            modals.expectMessageBox(QStringLiteral("Unsaved Changes"), QMessageBox::Save);
            test.goAt(modals, s_conflict);
            test.trigger(ZVMainActions::ReOpen);
        });
    row("choosing files to open", choosing(ZVMainActions::Open));
    row("choosing a folder to open", choosing(WorkbenchActions::OpenFolder, true));
    row("choosing where to save", choosing(ZVMainActions::SaveAs));
    row("choosing where to save a copy", choosing(WorkbenchActions::SaveCopy));
    row("choosing files to import", choosing(WorkbenchActions::Import));
    row("choosing a folder to export to", choosing(ZVMainActions::Export, true));
    row("the dialog to open", inTheDialog(ZVMainActions::Open));
    row("the dialog to open a folder", inTheDialog(WorkbenchActions::OpenFolder));
    row("the dialog to save", inTheDialog(ZVMainActions::SaveAs));
    row("the dialog to save a copy", inTheDialog(WorkbenchActions::SaveCopy));
    row("the dialog to import", inTheDialog(WorkbenchActions::Import));
    row("the dialog to export", inTheDialog(ZVMainActions::Export));
    row("about", [](WindowGoesTest& test, ExpectedModals& modals) {
        test.goAt(modals, QStringLiteral("About the Workbench"));
        test.trigger(WorkbenchActions::About);
    });
    row("importing from elsewhere", [](WindowGoesTest& test, ExpectedModals& modals) {
        test.m_script.files = QStringList{test.m_files->outsideMesh(QStringLiteral("rib.stl"))};
        test.goAt(modals, QStringLiteral("Copy File"));
        test.trigger(WorkbenchActions::Import);
    });
    if (!Testing::PlatformCopies::askByOurDialog())
        return;
    row("importing over a file", [](WindowGoesTest& test, ExpectedModals& modals) {
        test.m_script.files =
            QStringList{test.m_files->outside(QStringLiteral("steel.json"), "{}")};
        modals.expectMessageBox(QStringLiteral("Copy File"), QMessageBox::Yes);
        test.goAtCollision(modals);
        test.trigger(WorkbenchActions::Import);
    });
    row("exporting over a file", [](WindowGoesTest& test, ExpectedModals& modals) {
        test.m_script.folder = test.m_files->elsewhere.path();
        test.m_files->outside(QStringLiteral("die.stl"), "old");
        test.goAtCollision(modals);
        test.trigger(ZVMainActions::Export);
    });
    row("bringing files along", [](WindowGoesTest& test, ExpectedModals& modals) {
        test.m_script.saved = test.m_files->elsewhere.filePath(QStringLiteral("other.dsg"));
        test.m_files->outside(QStringLiteral("steel.json"), "old");
        test.goAtCollision(modals);
        test.trigger(ZVMainActions::SaveAs);
    });
}

void WindowGoesTest::windowGoesWhileItAsks()
{
    QFETCH(Scene, scene);
    ExpectedModals modals;
    scene(*this, modals);
    QVERIFY(modals.allMet());
    QVERIFY(!m_window);
    QVERIFY(!Testing::readFile(m_files->designFile()).contains("Left door"));
    QVERIFY(!QFile::exists(m_files->elsewhere.filePath(QStringLiteral("other.dsg"))));
    QVERIFY(!QFile::exists(m_files->path(QStringLiteral("rib.stl"))));
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::WindowGoesTest;
ZORVANE_TEST(WindowGoesTest)
#include "WindowGoesTest.moc"
