#include "Workbench/Commands/WindowCommands.h"

#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Tree/TreeFixture.h"
#include "Workbench/Help/HelpWindow.h"
#include "Workbench/MeshView/MeshView.h"
#include "Workbench/Tree/FilterBar.h"
#include "Workbench/Window/MainWindow.h"

#include <QtCore/QMetaEnum>
#include <QtGui/QTextCursor>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QTextBrowser>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QTreeView>

#include <set>

Q_DECLARE_METATYPE(Zorvane::Workbench::WindowMode)

namespace Zorvane::Workbench {

using Main = ZVMainActions;
using Testing::objectId;

class WindowCommandsTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void menusAndToolBarsHoldTheCommandsOfTheMode_data() { addModes(); }
    void menusAndToolBarsHoldTheCommandsOfTheMode();
    void eachModeInstallsItsOwnCommandsOnly_data() { addModes(); }
    void eachModeInstallsItsOwnCommandsOnly();
    void everyShortcutTriggersItsCommandAndNoOther_data() { addModes(); }
    void everyShortcutTriggersItsCommandAndNoOther();
    void lettersAreStillTypedIntoTheFilter();
    void modesAreChosenInTheMenu();
    void everyMenuFitsASmallScreen_data() { addModes(); }
    void everyMenuFitsASmallScreen();

    void togglesShowKindsInTheTree_data();
    void togglesShowKindsInTheTree();
    void toolsComeAndGoBySide();
    void hidingTheToolTakesItOutOfTheMeshView();
    void theSheetIsShownAsSurfacesOrOutlines();
    void sidesExcludeOneAnother();
    void togglesNeedSomethingOpen();
    void showingOnlyTheGeometryGivesTheTogglesBack();

    void theWindowMayCloseWhileOnlyTheGeometryIsShown();

    void viewCommandsTurnTheView_data();
    void viewCommandsTurnTheView();
    void theFontGrowsAndShrinks();

    void helpShowsTheDocumentation();
    void helpShowsLongTitlesWhole();
    void helpFollowsLinks();
    void helpFollowsTheColours();
    void theTableGoesWithTheLastWindow();

private:
    static void addModes();
    void openDesign();
    WindowCommands& commands() { return m_window->commands(); }
    bool isShown(int object) { return m_window->tree().indexOf(objectId(object)).isValid(); }
    /** The commands that have a shortcut which is a key at all. */
    QList<QAction*> installedWithKeys() const;

    std::unique_ptr<Testing::OpenedDesign> m_files;
    std::unique_ptr<MainWindow> m_window;
};

void WindowCommandsTest::init()
{
    m_files = std::make_unique<Testing::OpenedDesign>();
    m_window = std::make_unique<MainWindow>();
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get(), Zorvane::Testing::patience));
}

void WindowCommandsTest::cleanup()
{
    m_window.reset();
    m_files.reset();
    TestCase::cleanup();
}

void WindowCommandsTest::addModes()
{
    QTest::addColumn<WindowMode>("mode");
    QTest::newRow("forming") << WindowMode::Forming;
    QTest::newRow("tube") << WindowMode::Tube;
    QTest::newRow("tandrel") << WindowMode::Tandrel;
}

void WindowCommandsTest::openDesign()
{
    m_window->open({m_files->folder.path()});
    QTRY_VERIFY(!m_window->loader().isBusy());
    m_window->tree().refreshNow();
}

QList<QAction*> WindowCommandsTest::installedWithKeys() const
{
    QList<QAction*> found;
    for (QAction* const action : m_window->actions())
        if (!action->shortcut().isEmpty())
            found.append(action);
    return found;
}

void WindowCommandsTest::menusAndToolBarsHoldTheCommandsOfTheMode()
{
    QFETCH(WindowMode, mode);
    commands().setMode(WindowMode::Tube);
    commands().setMode(mode);
    QList<QAction*> inMenus;
    for (const QMenu* const menu : m_window->findChildren<QMenu*>())
        inMenus += menu->actions();
    QList<QAction*> inBars;
    for (const QToolBar* const bar : m_window->findChildren<QToolBar*>())
        inBars += bar->actions();
    for (const Command& command : commandTable()) {
        QAction* const action = commands().actionOf(command);
        if (!action)
            continue;
        const bool isHere = command.isIn(mode);
        QCOMPARE(inMenus.count(action), isHere ? 1 : 0);
        QCOMPARE(inBars.count(action), isHere && command.bar != CommandBar::None ? 1 : 0);
        QVERIFY2(command.bar == CommandBar::None || !action->icon().isNull(),
                 qPrintable(action->text()));
        QVERIFY(!action->text().isEmpty());
    }
}

void WindowCommandsTest::eachModeInstallsItsOwnCommandsOnly()
{
    QFETCH(WindowMode, mode);
    commands().setMode(WindowMode::Tandrel);
    commands().setMode(mode);
    std::set<QAction*> expected;
    for (const Command& command : commandTable())
        if (command.isIn(mode) && commands().actionOf(command))
            expected.insert(commands().actionOf(command));
    const QList<QAction*> installed = m_window->actions();
    QCOMPARE(std::set<QAction*>(installed.begin(), installed.end()), expected);
    QCOMPARE(installed.size(), int(expected.size()));
}

void WindowCommandsTest::everyShortcutTriggersItsCommandAndNoOther()
{
    QFETCH(WindowMode, mode);
    commands().setMode(mode);
    QStringList triggered;
    // The suite's own table outlives the window.
    const QObject connections;
    std::set<QAction*> all;
    for (const Command& command : commandTable())
        if (QAction* const action = commands().actionOf(command))
            all.insert(action);
    for (QAction* const action : all) {
        // What the commands do is no matter here, and one of them closes the window.
        action->disconnect(SIGNAL(triggered(bool)));
        action->disconnect(SIGNAL(toggled(bool)));
        action->setEnabled(true);
        connect(action, &QAction::triggered, &connections,
                [&triggered, action] { triggered.append(action->objectName()); });
    }
    m_window->treeView().setFocus();
    const QList<QAction*> actions = installedWithKeys();
    QVERIFY(actions.size() > 30);
    for (const QAction* const action : actions) {
        triggered.clear();
        QTest::keySequence(QApplication::focusWidget(), action->shortcut());
        QCOMPARE(triggered, QStringList{action->objectName()});
    }
}

void WindowCommandsTest::lettersAreStillTypedIntoTheFilter()
{
    openDesign();
    commands()[WorkbenchActions::Find]->trigger();
    const OrbitCamera before = m_window->meshView().camera();
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("wxyzestgWXYZ"));
    QCOMPARE(QApplication::focusWidget()->property("text").toString(),
             QStringLiteral("wxyzestgWXYZ"));
    QCOMPARE(m_window->meshView().camera().yaw(), before.yaw());
    QVERIFY(commands()[Main::ShowSheet]->isChecked());
}

void WindowCommandsTest::modesAreChosenInTheMenu()
{
    QMenu& menu = commands().subMenu(CommandSubMenu::Mode);
    QCOMPARE(menu.actions().size(), 3);
    QVERIFY(menu.actions()[0]->isChecked());
    menu.actions()[1]->trigger();
    QCOMPARE(commands().mode(), WindowMode::Tube);
    QVERIFY(m_window->actions().contains(commands()[Main::ShowFormedTube]));
    QVERIFY(!m_window->actions().contains(commands()[Main::ShowSheet]));
    menu.actions()[0]->trigger();
    QVERIFY(m_window->actions().contains(commands()[Main::ShowSheet]));
}

void WindowCommandsTest::everyMenuFitsASmallScreen()
{
    QFETCH(WindowMode, mode);
    commands().setMode(mode);
    for (const QAction* const title : m_window->menuBar()->actions()) {
        QMenu* const menu = title->menu();
        menu->ensurePolished();
        // A menu that is too tall breaks into columns.
        for (QAction* const action : menu->actions())
            QCOMPARE(menu->actionGeometry(action).left(),
                     menu->actionGeometry(menu->actions().first()).left());
        QVERIFY2(menu->sizeHint().height() < 768, qPrintable(title->text()));
    }
}

void WindowCommandsTest::togglesShowKindsInTheTree_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("kind");
    const auto row = [](const char* name, Main::Actions id, ObjectKind kind) {
        QTest::newRow(name) << int(id) << pluralText(kind);
    };
    row("parts", Main::ShowCurrentParts, ObjectKind::Part);
    row("blanks", Main::ShowBlank, ObjectKind::Blank);
    row("tubes", Main::ShowTube, ObjectKind::Blank);
    row("tools of an operation", Main::ShowCurrentOpTools, ObjectKind::Tool);
    row("tools of hydroforming", Main::ShowHydroOpTools, ObjectKind::Tool);
    row("tools of the mandrel", Main::ShowTandrelTools, ObjectKind::Tool);
}

void WindowCommandsTest::togglesShowKindsInTheTree()
{
    QFETCH(int, id);
    QFETCH(QString, kind);
    openDesign();
    QAction* const toggle = commands().main()[id];
    const auto inFilterBar = [this, &kind]() -> QAction* {
        for (QAction* const action : m_window->filterBar().findChildren<QAction*>())
            if (action->text() == kind && action->isCheckable())
                return action;
        return nullptr;
    };
    const int all = m_window->tree().pipeline().shownCount();
    QVERIFY(toggle->isChecked());
    toggle->trigger();
    m_window->tree().refreshNow();
    QVERIFY(m_window->tree().pipeline().shownCount() < all);
    QVERIFY(!inFilterBar()->isChecked());
    inFilterBar()->trigger();
    m_window->tree().refreshNow();
    QCOMPARE(m_window->tree().pipeline().shownCount(), all);
    QVERIFY(toggle->isChecked());
}

void WindowCommandsTest::toolsComeAndGoBySide()
{
    openDesign();
    const std::vector<IDCombiner> tools = m_window->tree().catalog().idsOf(ObjectKind::Tool);
    QVERIFY(!tools.empty());
    const auto shown = [&](ToolSide side) {
        m_window->tree().refreshNow();
        int count = 0;
        for (const IDCombiner& tool : tools)
            if (m_window->tree().catalog().find(tool)->toolSide == side &&
                m_window->tree().indexOf(tool).isValid())
                ++count;
        return count;
    };
    const int upper = shown(ToolSide::Upper);
    const int unknown = shown(ToolSide::Unknown);
    QVERIFY(upper > 0);
    commands()[Main::ShowCurrentUpperOpTools]->trigger();
    QCOMPARE(shown(ToolSide::Upper), 0);
    QCOMPARE(shown(ToolSide::Unknown), unknown);
    QVERIFY2(!commands()[Main::ShowTandrelUpperTools]->isChecked(), "the modes agree");
    commands()[Main::ShowCurrentUpperOpTools]->trigger();
    QCOMPARE(shown(ToolSide::Upper), upper);
}

void WindowCommandsTest::hidingTheToolTakesItOutOfTheMeshView()
{
    openDesign();
    QVERIFY(m_window->tree().select(m_window->tree().catalog().idsOf(ObjectKind::Tool).front()));
    QVERIFY(m_window->meshView().hasMesh());
    commands()[Main::ShowCurrentOpTools]->trigger();
    m_window->tree().refreshNow();
    QVERIFY(!m_window->meshView().hasMesh());
}

void WindowCommandsTest::theSheetIsShownAsSurfacesOrOutlines()
{
    openDesign();
    QCOMPARE(m_window->meshView().look(), MeshLook::Surfaces);
    commands()[Main::ShowSheet]->trigger();
    QCOMPARE(m_window->meshView().look(), MeshLook::Outlines);
    QVERIFY(!commands()[Main::ShowFormedTube]->isChecked());
    commands().setMode(WindowMode::Tube);
    commands()[Main::ShowFormedTube]->trigger();
    QCOMPARE(m_window->meshView().look(), MeshLook::Surfaces);
}

void WindowCommandsTest::sidesExcludeOneAnother()
{
    openDesign();
    const auto sides = [this] { return m_window->meshView().sides(); };
    QVERIFY(commands()[Main::ShowBothSymmetricSides]->isChecked());
    commands()[Main::HidePrimarySymmetricSide]->trigger();
    QVERIFY(!sides().primary && sides().secondary);
    QVERIFY(!commands()[Main::ShowBothSymmetricSides]->isChecked());
    commands()[Main::HideSecondarySymmetricSide]->trigger();
    QVERIFY(sides().primary && !sides().secondary);
    QVERIFY(!commands()[Main::HidePrimarySymmetricSide]->isChecked());
    commands()[Main::ShowBothSymmetricSides]->trigger();
    QVERIFY(sides().isAll());
    QVERIFY(!commands()[Main::HideSecondarySymmetricSide]->isChecked());
    commands()[Main::ShowBothSymmetricSides]->trigger();
    QVERIFY2(commands()[Main::ShowBothSymmetricSides]->isChecked(),
             "there is nothing to go back to");
    commands()[Main::ShowMirroredSheet]->trigger();
    QVERIFY(sides().mirrored);
}

void WindowCommandsTest::togglesNeedSomethingOpen()
{
    QVERIFY(!commands()[Main::ShowBlank]->isEnabled());
    QVERIFY(!commands()[WorkbenchActions::ShowOnlyGeometry]->isEnabled());
    openDesign();
    QVERIFY(commands()[Main::ShowBlank]->isEnabled());
    QVERIFY(commands()[Main::ShowMirroredSheet]->isEnabled());
    QVERIFY(commands()[WorkbenchActions::ShowOnlyGeometry]->isEnabled());
}

void WindowCommandsTest::showingOnlyTheGeometryGivesTheTogglesBack()
{
    openDesign();
    commands()[Main::ShowBlank]->trigger();
    commands()[Main::ShowMirroredSheet]->trigger();
    QAction* const only = commands()[WorkbenchActions::ShowOnlyGeometry];
    only->trigger();
    for (const Main::Actions id :
         {Main::ShowBlank, Main::ShowCurrentOpTools, Main::ShowMirroredSheet, Main::ShowSheet})
        QVERIFY(!commands()[id]->isChecked());
    QVERIFY(commands()[Main::ShowCurrentParts]->isChecked());
    QCOMPARE(m_window->meshView().look(), MeshLook::Outlines);
    QVERIFY(!m_window->meshView().sides().mirrored);
    only->trigger();
    QVERIFY(!commands()[Main::ShowBlank]->isChecked());
    QVERIFY(commands()[Main::ShowCurrentOpTools]->isChecked());
    QVERIFY(commands()[Main::ShowMirroredSheet]->isChecked());
    QVERIFY(commands()[Main::ShowSheet]->isChecked());
    QVERIFY(m_window->meshView().sides().mirrored);
}

void WindowCommandsTest::theWindowMayCloseWhileOnlyTheGeometryIsShown()
{
    openDesign();
    commands()[WorkbenchActions::ShowOnlyGeometry]->trigger();
    m_window.reset();
    QVERIFY(!Main::getInstance());
}

void WindowCommandsTest::viewCommandsTurnTheView_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QVector3D>("viewer");
    QTest::addColumn<QVector3D>("up");
    const auto row = [](const char* name, Main::Actions id, const QVector3D& viewer,
                        const QVector3D& up) { QTest::newRow(name) << int(id) << viewer << up; };
    row("from +x", Main::ViewFromPosXAndFitScene, {1, 0, 0}, {0, 0, 1});
    row("from -x", Main::ViewFromNegXAndFitScene, {-1, 0, 0}, {0, 0, 1});
    row("from +y", Main::ViewFromPosYAndFitScene, {0, 1, 0}, {0, 0, 1});
    row("from -y", Main::ViewFromNegYAndFitScene, {0, -1, 0}, {0, 0, 1});
    row("from +z", Main::ViewFromPosZAndFitScene, {0, 0, 1}, {0, 1, 0});
    row("from -z", Main::ViewFromNegZAndFitScene, {0, 0, -1}, {0, -1, 0});
    // Seen from the front at first.
    row("rolled", Main::RotateViewAroundZ, {0, -1, 0}, {1, 0, 0});
    row("rolled back", Main::RotateViewAroundNegZ, {0, -1, 0}, {-1, 0, 0});
    row("flipped", Main::ViewFlip, {0, 1, 0}, {0, 0, 1});
    row("nearest end of y", Main::ViewFromYShortest, {0, -1, 0}, {0, 0, 1});
}

void WindowCommandsTest::viewCommandsTurnTheView()
{
    QFETCH(int, id);
    QFETCH(QVector3D, viewer);
    QFETCH(QVector3D, up);
    openDesign();
    MeshView& view = m_window->meshView();
    const auto transform = [&view] { return view.camera().transform(view.size()); };
    view.setDirection(ViewDirection::Front);
    const ViewTransform front = transform();
    commands().main()[id]->trigger();
    QVERIFY((transform().toViewer - viewer).length() < 1e-5F);
    QVERIFY((transform().up - up).length() < 1e-5F);
    const ViewTransform there = transform();
    commands()[Main::ViewLast]->trigger();
    QVERIFY((transform().toViewer - front.toViewer).length() < 1e-5F);
    QVERIFY((transform().up - front.up).length() < 1e-5F);
    commands()[Main::ViewLast]->trigger();
    QVERIFY((transform().toViewer - there.toViewer).length() < 1e-5F);
}

void WindowCommandsTest::theFontGrowsAndShrinks()
{
    const QFont before = QApplication::font();
    commands()[Main::FontSizeIncrease]->trigger();
    QCOMPARE(QApplication::font().pointSize(), before.pointSize() + 1);
    commands()[Main::FontSizeDecrease]->trigger();
    QCOMPARE(QApplication::font().pointSize(), before.pointSize());
    for (int i = 0; i < 40; ++i)
        commands()[Main::FontSizeDecrease]->trigger();
    QCOMPARE(QApplication::font().pointSize(), 6);
    QApplication::setFont(before);
}

void WindowCommandsTest::helpShowsTheDocumentation()
{
    QVERIFY2(!HelpWindow::documentationFolder().isEmpty(), "the build has its documentation");
    commands()[ZVGlobalActions::HelpContents]->trigger();
    QPointer<HelpWindow> help = m_window->findChild<HelpWindow*>();
    QVERIFY(help && help->isVisible());
    QCOMPARE(help->currentPage(), QStringLiteral("Workbench.md"));
    QVERIFY(help->findChild<QListWidget*>()->count() >= 8);
    help->activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), help.data());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QVERIFY(!help || !help->isVisible());
    QTRY_VERIFY(!help);
}

void WindowCommandsTest::helpShowsLongTitlesWhole()
{
    HelpWindow help;
    auto& pages = *help.findChild<QListWidget*>();
    help.show();
    pages.setMaximumWidth(20 * pages.fontMetrics().averageCharWidth());
    QTRY_VERIFY(pages.width() <= pages.maximumWidth());
    int longTitles = 0;
    for (int row = 0; row < pages.count(); ++row) {
        const QString title = pages.item(row)->text();
        const auto isWhole = [&] {
            const QRect room = pages.visualItemRect(pages.item(row));
            const QRect taken = pages.fontMetrics().boundingRect(QRect(0, 0, room.width(), 1),
                                                                 Qt::TextWordWrap, title);
            return room.height() >= taken.height() && pages.viewport()->width() >= room.width();
        };
        QTRY_VERIFY2(isWhole(), qPrintable(title));
        longTitles += title.size() > 20 ? 1 : 0;
    }
    QVERIFY(longTitles > 3);
}

void WindowCommandsTest::helpFollowsLinks()
{
    HelpWindow help;
    QVERIFY(help.showPage(QStringLiteral("Actions.md")));
    QCOMPARE(help.currentPage(), QStringLiteral("Actions.md"));
    QVERIFY(!help.showPage(QStringLiteral("NoSuchPage.md")));
    QCOMPARE(help.currentPage(), QStringLiteral("Actions.md"));
}

void WindowCommandsTest::helpFollowsTheColours()
{
    const auto colourOfLink = [](const HelpWindow& help) {
        QTextCursor cursor(help.findChild<QTextBrowser*>()->document());
        while (!cursor.charFormat().isAnchor() && cursor.movePosition(QTextCursor::NextCharacter)) {
        }
        return cursor.charFormat().foreground().color();
    };
    const QPalette before = QApplication::palette();
    HelpWindow help;
    QVERIFY(help.showPage(QStringLiteral("Workbench.md")));
    QPalette changed = before;
    changed.setColor(QPalette::Link, QColor(10, 200, 30));
    QApplication::setPalette(changed);
    const QColor after = colourOfLink(help);
    QApplication::setPalette(before);
    QCOMPARE(after, QColor(10, 200, 30));
    QCOMPARE(help.currentPage(), QStringLiteral("Workbench.md"));
}

void WindowCommandsTest::theTableGoesWithTheLastWindow()
{
    QVERIFY(Main::getInstance());
    m_window.reset();
    QVERIFY(!Main::getInstance());
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::WindowCommandsTest;
ZORVANE_TEST(WindowCommandsTest)
#include "WindowCommandsTest.moc"
