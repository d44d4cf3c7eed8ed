#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Design/DesignFiles.h"
#include "Workbench/Tree/FilterBar.h"
#include "Workbench/Window/Appearance.h"
#include "Workbench/Window/MainWindow.h"
#include "Workbench/Window/MessageBar.h"
#include "Workbench/Window/ProblemsPanel.h"
#include "Workbench/Window/RecentPaths.h"
#include "Workbench/Window/WorkbenchStyle.h"

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeWidget>

namespace Zorvane::Workbench {

namespace {

/**
 * Qt fades in and out the button that clears a line, and never deletes a fade whose line goes
 * first. True when the button has got there.
 */
bool waitForClearButton(const FilterBar& bar, bool visible)
{
    const auto* button = bar.findChild<QLineEdit*>()->findChild<QToolButton*>();
    return QTest::qWaitFor(
        [&] {
            return qFuzzyCompare(1 + button->property("opacity").toReal(), visible ? 2.0 : 1.0);
        },
        Testing::patience);
}

} // namespace

class WindowPartsTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void recentPathsComeNewestFirstOnceAndTenAtMost();
    void theAppearanceIsKept();
    void theFilterBarTellsTextsAndKinds();
    void severalKindsAreToggledAtOnce();
    void escapeClearsTheFilterText();
    void theMessageBarTellsTheNewestAndCloses();
    void theMessageBarFollowsTheAppearance();
    void buttonsForMoreCommandsAreSeen_data();
    void buttonsForMoreCommandsAreSeen();
    void problemsAreListedAndActivated();
};

void WindowPartsTest::recentPathsComeNewestFirstOnceAndTenAtMost()
{
    RecentPaths::clear();
    const QString absolute = QDir::tempPath() + QLatin1Char('/');
    for (int number = 0; number < 12; ++number)
        RecentPaths::add(absolute + QString::number(number));
    RecentPaths::add(absolute + QStringLiteral("5"));
    const QStringList paths = RecentPaths::paths();
    QCOMPARE(paths.size(), 10);
    QCOMPARE(paths.first(), absolute + QStringLiteral("5"));
    QCOMPARE(paths.count(absolute + QStringLiteral("5")), 1);
    RecentPaths::clear();
    QVERIFY(RecentPaths::paths().isEmpty());
}

void WindowPartsTest::theAppearanceIsKept()
{
    QCOMPARE(storedAppearance(), Appearance::System);
    storeAppearance(Appearance::Dark);
    QCOMPARE(storedAppearance(), Appearance::Dark);
    storeAppearance(Appearance::System);
}

void WindowPartsTest::theFilterBarTellsTextsAndKinds()
{
    FilterBar bar;
    QSignalSpy texts(&bar, &FilterBar::textChanged);
    int toggles = 0;
    connect(&bar, &FilterBar::kindToggled, this, [&toggles] { ++toggles; });
    bar.setText(QStringLiteral("die"));
    QCOMPARE(texts.count(), 1);
    auto* kinds = bar.findChild<QToolButton*>();
    const QString before = kinds->text();
    bar.setKindShown(ObjectKind::File, false);
    QCOMPARE(toggles, 1);
    QVERIFY(kinds->text() != before);
    QVERIFY(kinds->accessibleName().contains(kinds->text()));
    bar.setKindShown(ObjectKind::Design, false);
    QCOMPARE(toggles, 1);
    bar.showAllKinds();
    QCOMPARE(toggles, 2);
    QCOMPARE(kinds->text(), before);
    QVERIFY(waitForClearButton(bar, true));
}

void WindowPartsTest::severalKindsAreToggledAtOnce()
{
    FilterBar bar;
    QMenu& menu = *bar.findChild<QToolButton*>()->menu();
    menu.popup({0, 0});
    QTRY_VERIFY(menu.isVisible());
    QAction* const first = menu.actions().at(0);
    QAction* const second = menu.actions().at(1);
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(first).center());
    QVERIFY(!first->isChecked());
    QVERIFY(menu.isVisible());
    menu.setActiveAction(second);
    QTest::keyClick(&menu, Qt::Key_Space);
    QVERIFY(!second->isChecked());
    QVERIFY(menu.isVisible());
    QTest::keyClick(&menu, Qt::Key_Return);
    QVERIFY(second->isChecked());
    QVERIFY(!menu.isVisible());
    menu.popup({0, 0});
    QTRY_VERIFY(menu.isVisible());
    QAction* const all = menu.actions().last();
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(all).center());
    QVERIFY(first->isChecked());
    QVERIFY(!menu.isVisible());
}

void WindowPartsTest::escapeClearsTheFilterText()
{
    FilterBar bar;
    bar.show();
    bar.activateWindow();
    bar.setText(QStringLiteral("die"));
    bar.focusText();
    auto* text = bar.findChild<QLineEdit*>();
    QTRY_VERIFY(text->hasFocus());
    QVERIFY(waitForClearButton(bar, true));
    QTest::keyClick(text, Qt::Key_Escape);
    QCOMPARE(text->text(), QString());
    QVERIFY(waitForClearButton(bar, false));
}

void WindowPartsTest::theMessageBarTellsTheNewestAndCloses()
{
    MessageBar bar;
    QCOMPARE(bar.text(), QString());
    bar.say(QStringLiteral("one"));
    bar.say(QStringLiteral("two"));
    QCOMPARE(bar.text(), QStringLiteral("two"));
    QTest::mouseClick(bar.findChild<QToolButton*>(), Qt::LeftButton);
    QCOMPARE(bar.text(), QString());
}

void WindowPartsTest::theMessageBarFollowsTheAppearance()
{
    MessageBar bar;
    bar.say(QStringLiteral("one"));
    applyAppearance(*qApp, Appearance::Dark);
    QTRY_VERIFY(bar.palette().color(QPalette::Window).lightness() < 128);
    QVERIFY(bar.palette().color(QPalette::WindowText).lightness() > 128);
    applyAppearance(*qApp, Appearance::Light);
    QTRY_VERIFY(bar.palette().color(QPalette::Window).lightness() > 128);
}

void WindowPartsTest::buttonsForMoreCommandsAreSeen_data()
{
    QTest::addColumn<int>("icon");
    QTest::newRow("on the right") << int(QStyle::SP_ToolBarHorizontalExtensionButton);
    QTest::newRow("below") << int(QStyle::SP_ToolBarVerticalExtensionButton);
}

void WindowPartsTest::buttonsForMoreCommandsAreSeen()
{
    QFETCH(int, icon);
    // The resources are the window's.
    const MainWindow window;
    const WorkbenchStyle style;
    const QIcon shown = style.standardIcon(QStyle::StandardPixmap(icon));
    const auto lightness = [&shown] {
        const QImage image = shown.pixmap(16, 16).toImage();
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y).alpha() > 250)
                    return image.pixelColor(x, y).lightness();
        return -1;
    };
    applyAppearance(*qApp, Appearance::Dark);
    QVERIFY(lightness() > 128);
    applyAppearance(*qApp, Appearance::Light);
    QVERIFY(lightness() >= 0 && lightness() < 128);
}

void WindowPartsTest::problemsAreListedAndActivated()
{
    ProblemsPanel panel;
    const Problems problems{
        {QStringLiteral("/a/one.stl"), {}, QStringLiteral("is cut off")},
        {QStringLiteral("/a/two.dsg"), QStringLiteral("line 3"), QStringLiteral("is no JSON")}};
    panel.show(problems);
    auto* list = panel.findChild<QTreeWidget*>();
    QCOMPARE(list->topLevelItemCount(), 2);
    QCOMPARE(list->topLevelItem(1)->text(0), QStringLiteral("two.dsg"));
    QCOMPARE(list->topLevelItem(1)->text(1), QStringLiteral("line 3"));
    QCOMPARE(list->topLevelItem(1)->text(2), QStringLiteral("is no JSON"));
    QString activated;
    connect(&panel, &ProblemsPanel::activated, this,
            [&activated](const Problem& problem) { activated = problem.file; });
    Q_EMIT list->itemActivated(list->topLevelItem(0), 0);
    QCOMPARE(activated, QStringLiteral("/a/one.stl"));
    panel.show({});
    QCOMPARE(list->topLevelItemCount(), 0);
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::WindowPartsTest;
ZORVANE_TEST(WindowPartsTest)
#include "WindowPartsTest.moc"
