#include "Workbench/Window/WindowMenus.h"

#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Tree/TreeFixture.h"
#include "Workbench/Commands/WindowCommands.h"
#include "Workbench/Window/Appearance.h"
#include "Workbench/Window/MainWindow.h"
#include "Workbench/Window/RecentPaths.h"
#include "Workbench/Window/SampleDesigns.h"

#include <QtCore/QDir>
#include <QtWidgets/QMenu>

namespace Zorvane::Workbench {

/** The menus as the window has them, which opens what is chosen. */
class WindowMenusTest : public Testing::TestCase
{
    Q_OBJECT

private:
    QMenu& menu(CommandSubMenu id) { return m_window->commands().subMenu(id); }
    /** As it is when the user opens it. */
    QMenu& recent();

    std::unique_ptr<Testing::OpenedDesign> m_files;
    std::unique_ptr<MainWindow> m_window;

private Q_SLOTS:
    void init();
    void cleanup();
    void withoutRecentPathsTheMenuSaysSo();
    void recentPathsAreOpened();
    void longRecentPath_isElidedWithAllOfItAsToolTip();
    void recentPathsAreCleared();
    void samplesAreOpened();
    void theAppearanceInForceIsChecked();
    void anAppearanceChosenIsKept();
};

void WindowMenusTest::init()
{
    RecentPaths::clear();
    m_files = std::make_unique<Testing::OpenedDesign>();
    m_window = std::make_unique<MainWindow>();
}

void WindowMenusTest::cleanup()
{
    storeAppearance(Appearance::System);
    m_window.reset();
    m_files.reset();
    TestCase::cleanup();
}

QMenu& WindowMenusTest::recent()
{
    QMenu& recent = menu(CommandSubMenu::Recent);
    Q_EMIT recent.aboutToShow();
    return recent;
}

void WindowMenusTest::withoutRecentPathsTheMenuSaysSo()
{
    QVERIFY(!recent().actions().first()->isEnabled());
    QVERIFY(!recent().actions().first()->text().isEmpty());
}

void WindowMenusTest::recentPathsAreOpened()
{
    RecentPaths::add(m_files->designFile());
    QAction* const path = recent().actions().first();
    QCOMPARE(path->toolTip(), QDir::toNativeSeparators(m_files->designFile()));
    path->trigger();
    QCOMPARE(m_window->session().designs().size(), std::size_t(1));
    QTRY_VERIFY(!m_window->loader().isBusy());
}

void WindowMenusTest::longRecentPath_isElidedWithAllOfItAsToolTip()
{
    const QString path = QDir::tempPath() + QStringLiteral("/R&D") +
                         QString(200, QLatin1Char('x')) + QStringLiteral("/cup.dsg");
    RecentPaths::add(path);
    const QAction* const action = recent().actions().first();
    QVERIFY(action->text().size() < 80);
    QVERIFY(action->text().endsWith(QStringLiteral("cup.dsg")));
    QVERIFY(QKeySequence::mnemonic(action->text()).isEmpty());
    QCOMPARE(action->toolTip(), QDir::toNativeSeparators(path));
    QVERIFY(recent().toolTipsVisible());
}

void WindowMenusTest::recentPathsAreCleared()
{
    RecentPaths::add(m_files->designFile());
    recent().actions().last()->trigger();
    QVERIFY(RecentPaths::paths().isEmpty());
    QVERIFY(!recent().actions().first()->isEnabled());
}

void WindowMenusTest::samplesAreOpened()
{
    QMenu& samples = menu(CommandSubMenu::Samples);
    QVERIFY(!samples.isEmpty());
    QVERIFY(samples.isEnabled());
    QCOMPARE(std::size_t(samples.actions().size()), sampleDesigns().size());
    for (QAction* const sample : samples.actions()) {
        m_window->session().close();
        sample->trigger();
        QCOMPARE(m_window->session().designs().size(), std::size_t(1));
        QTRY_VERIFY(!m_window->loader().isBusy());
    }
}

void WindowMenusTest::theAppearanceInForceIsChecked()
{
    const QList<QAction*> choices = menu(CommandSubMenu::Appearance).actions();
    QCOMPARE(choices.size(), 3);
    for (QAction* const choice : choices)
        QCOMPARE(choice->isChecked(), choice == choices.first());
}

void WindowMenusTest::anAppearanceChosenIsKept()
{
    menu(CommandSubMenu::Appearance).actions().last()->trigger();
    QCOMPARE(storedAppearance(), Appearance::Dark);
    QVERIFY(m_window->palette().color(QPalette::Window).lightness() < 128);
    menu(CommandSubMenu::Appearance).actions().first()->trigger();
    QCOMPARE(storedAppearance(), Appearance::System);
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::WindowMenusTest;
ZORVANE_TEST(WindowMenusTest)
#include "WindowMenusTest.moc"
