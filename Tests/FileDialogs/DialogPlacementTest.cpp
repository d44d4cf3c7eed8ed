#include "FileDialogs/ScreenGeometry.h"

#include "FileDialogs/FileDialogConfiguration.h"
#include "Tests/Support/TestCase.h"

#include <rapidcheck.h>

#include <QtCore/QSettings>
#include <QtGui/QScreen>

using namespace Zorvane;

Q_DECLARE_METATYPE(std::vector<QRect>)

namespace {

const QRect s_desktop(0, 0, 1920, 1080);

QRect anyRect(int leastSize, int size)
{
    const int left = *rc::gen::inRange(-5000, 5000);
    const int top = *rc::gen::inRange(-5000, 5000);
    return {left, top, *rc::gen::inRange(leastSize, size), *rc::gen::inRange(leastSize, size)};
}

std::vector<QRect> anyScreens()
{
    std::vector<QRect> screens;
    for (int i = *rc::gen::inRange(1, 6); i > 0; --i)
        screens.push_back(anyRect(100, 4000));
    return screens;
}

std::vector<ScreenArea> areasOf(const std::vector<QRect>& geometries)
{
    std::vector<ScreenArea> areas;
    for (const QRect& geometry : geometries)
        areas.push_back({geometry, geometry});
    return areas;
}

} // namespace

class DialogPlacementTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void theDesktopSpansAllScreens();
    void rectanglesAreMovedOntoTheDesktop_data();
    void rectanglesAreMovedOntoTheDesktop();
    void whatFitsLiesOnTheDesktop();
    void fittingTwiceChangesNothing();
    void rectanglesAreMovedOntoTheNearestScreen_data();
    void rectanglesAreMovedOntoTheNearestScreen();
    void someOfItIsAlwaysShown();

    void offsetsCountFromTheCornerOfTheScreen_data();
    void offsetsCountFromTheCornerOfTheScreen();
    void storedRectangleIsTaken();
    void withoutOneOffsetAndSizeAreTaken();
    void emptyStoredRectangleIsNone();
    void storedRectangleElsewhereIsFitted();
    void recordedRectangle_givesTheWindowItsSize();
    void rectangleThatFillsAScreen_isKnown();
};

void DialogPlacementTest::init()
{
    QSettings().clear();
}

void DialogPlacementTest::theDesktopSpansAllScreens()
{
    QCOMPARE(boundingGeometry({}), QRect());
    QCOMPARE(boundingGeometry(areasOf({QRect(0, 0, 1920, 1080), QRect(1920, -200, 1280, 1024)})),
             QRect(QPoint(0, -200), QPoint(3199, 1079)));
}

void DialogPlacementTest::rectanglesAreMovedOntoTheDesktop_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QRect>("desktop");
    QTest::addColumn<QRect>("fitted");
    const auto row = [](const char* rule, const QRect& rect, const QRect& desktop,
                        const QRect& fitted) { QTest::newRow(rule) << rect << desktop << fitted; };
    row("inside", QRect(100, 50, 625, 600), s_desktop, QRect(100, 50, 625, 600));
    row("the whole desktop", s_desktop, s_desktop, s_desktop);
    row("beyond the left", QRect(-30, 50, 625, 600), s_desktop, QRect(0, 50, 625, 600));
    row("above", QRect(10, -1, 625, 600), s_desktop, QRect(10, 0, 625, 600));
    row("beyond the right", QRect(1800, 50, 625, 600), s_desktop, QRect(1295, 50, 625, 600));
    row("below", QRect(10, 1000, 625, 600), s_desktop, QRect(10, 480, 625, 600));
    row("far away", QRect(9000, 9000, 625, 600), s_desktop, QRect(1295, 480, 625, 600));
    row("wider than the desktop", QRect(-500, 50, 4000, 600), s_desktop, QRect(0, 50, 1919, 600));
    row("higher than the desktop", QRect(10, 400, 625, 2000), s_desktop, QRect(10, 0, 625, 1079));
    row("both", QRect(3000, 3000, 4000, 4000), s_desktop, QRect(0, 0, 1919, 1079));
    row("desktop left of and above its origin", QRect(-3000, -900, 600, 500),
        QRect(-1280, -200, 3200, 1280), QRect(-1280, -200, 600, 500));
    row("one pixel beyond the right is let be", QRect(1296, 50, 625, 600), s_desktop,
        QRect(1296, 50, 625, 600));
    row("two are not", QRect(1297, 50, 625, 600), s_desktop, QRect(1295, 50, 625, 600));
}

void DialogPlacementTest::rectanglesAreMovedOntoTheDesktop()
{
    QFETCH(QRect, rect);
    QFETCH(QRect, desktop);
    QTEST(fittedOntoDesktop(rect, desktop), "fitted");
}

void DialogPlacementTest::whatFitsLiesOnTheDesktop()
{
    const bool holds = rc::check("a fitted rectangle lies on the desktop, but for a pixel", [] {
        const QRect desktop = anyRect(2, 4000);
        const QRect fitted = fittedOntoDesktop(anyRect(1, 6000), desktop);
        RC_ASSERT(desktop.adjusted(0, 0, 1, 1).contains(fitted));
    });
    QVERIFY(holds);
}

void DialogPlacementTest::fittingTwiceChangesNothing()
{
    const bool holds = rc::check("fitting what is fitted changes nothing", [] {
        const QRect desktop = anyRect(2, 4000);
        const QRect fitted = fittedOntoDesktop(anyRect(1, 6000), desktop);
        RC_ASSERT(fittedOntoDesktop(fitted, desktop) == fitted);
    });
    QVERIFY(holds);
}

void DialogPlacementTest::rectanglesAreMovedOntoTheNearestScreen_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<std::vector<QRect>>("screens");
    QTest::addColumn<QRect>("fitted");
    const QRect large(0, 0, 1920, 1080);
    const QRect small(1920, 0, 1280, 720);
    const QRect scaled(0, 0, 1536, 864);
    const auto row = [](const char* rule, const QRect& rect, const std::vector<QRect>& screens,
                        const QRect& fitted) { QTest::newRow(rule) << rect << screens << fitted; };
    row("on the second screen", QRect(2000, 50, 625, 600), {large, small},
        QRect(2000, 50, 625, 600));
    row("the second screen is gone", QRect(2000, 50, 625, 600), {large}, QRect(1295, 50, 625, 600));
    row("the screen to the left is gone", QRect(-1900, 50, 625, 600), {large},
        QRect(0, 50, 625, 600));
    row("over both", QRect(1600, 50, 625, 600), {large, small}, QRect(1600, 50, 625, 600));
    row("half in the gap below the smaller", QRect(2000, 500, 625, 500), {large, small},
        QRect(2000, 500, 625, 500));
    row("wholly in the gap", QRect(2000, 750, 625, 300), {large, small},
        QRect(2000, 420, 625, 300));
    row("stored before the screen was scaled", QRect(1200, 400, 625, 600), {scaled},
        QRect(911, 264, 625, 600));
    row("no screen at all", QRect(10, 10, 625, 600), {}, QRect(10, 10, 625, 600));
}

void DialogPlacementTest::rectanglesAreMovedOntoTheNearestScreen()
{
    QFETCH(QRect, rect);
    QFETCH(std::vector<QRect>, screens);
    QTEST(fittedOntoScreens(rect, areasOf(screens)), "fitted");
}

void DialogPlacementTest::someOfItIsAlwaysShown()
{
    const bool holds = rc::check("some screen shows some of it", [] {
        const std::vector<QRect> screens = anyScreens();
        const QRect fitted = fittedOntoScreens(anyRect(1, 6000), areasOf(screens));
        bool isShown = false;
        for (const QRect& screen : screens)
            isShown = isShown || screen.intersects(fitted);
        RC_ASSERT(isShown);
    });
    QVERIFY(holds);
}

void DialogPlacementTest::offsetsCountFromTheCornerOfTheScreen_data()
{
    QTest::addColumn<QSize>("offset");
    QTest::addColumn<QRect>("screen");
    QTest::addColumn<QSize>("onScreen");
    const QRect right(1920, 0, 1280, 1024);
    const QRect leftAbove(-1280, -200, 1280, 1024);
    const auto row = [](const char* rule, const QSize& offset, const QRect& screen,
                        const QSize& onScreen) {
        QTest::newRow(rule) << offset << screen << onScreen;
    };
    row("none, on the first screen", QSize(0, 0), s_desktop, QSize(0, 0));
    row("none, on the screen to the right", QSize(0, 0), right, QSize(1920, 0));
    row("the margin, on the first screen", QSize(30, 30), s_desktop, QSize(30, 30));
    row("the margin, on the screen to the right", QSize(30, 30), right, QSize(1950, 30));
    row("to the left of and above the origin", QSize(30, 40), leftAbove, QSize(-1250, -160));
    row("no screen", QSize(30, 40), QRect(), QSize(30, 40));
}

void DialogPlacementTest::offsetsCountFromTheCornerOfTheScreen()
{
    QFETCH(QSize, offset);
    QFETCH(QRect, screen);
    QTEST(offsetOnScreen(offset, screen), "onScreen");
}

void DialogPlacementTest::storedRectangleIsTaken()
{
    FileDialogConfiguration configuration(QStringLiteral("Key"));
    configuration.storeFileDialogGeometry(QRect(20, 30, 400, 300));
    QCOMPARE(dialogPlacement(configuration), QRect(20, 30, 400, 300));
}

void DialogPlacementTest::withoutOneOffsetAndSizeAreTaken()
{
    FileDialogConfiguration configuration(QStringLiteral("Key"));
    configuration.setTopLeftOffset(QSize(12, 34));
    configuration.setDefaultDialogSize(QSize(500, 400));
    QCOMPARE(dialogPlacement(configuration), QRect(12, 34, 500, 400));
}

void DialogPlacementTest::emptyStoredRectangleIsNone()
{
    FileDialogConfiguration configuration(QStringLiteral("Key"));
    configuration.setDefaultDialogSize(QSize(500, 400));
    configuration.storeFileDialogGeometry(QRect());
    QCOMPARE(dialogPlacement(configuration), QRect(0, 0, 500, 400));
}

void DialogPlacementTest::storedRectangleElsewhereIsFitted()
{
    FileDialogConfiguration configuration(QStringLiteral("Key"));
    configuration.storeFileDialogGeometry(QRect(9000, 9000, 400, 300));
    const QRect placed = dialogPlacement(configuration);
    QCOMPARE(placed.size(), QSize(400, 300));
    QVERIFY(QGuiApplication::primaryScreen()->virtualGeometry().contains(placed));
}

void DialogPlacementTest::recordedRectangle_givesTheWindowItsSize()
{
    FileDialogConfiguration configuration(QStringLiteral("Key"));
    configuration.storeFileDialogGeometry(QRect(20, 30, 401, 301));
    QCOMPARE(dialogPlacement(configuration), QRect(20, 30, 401, 301));
    configuration.storeWindowSize(QSize(400, 300));
    QCOMPARE(dialogPlacement(configuration), QRect(20, 30, 400, 300));
    configuration.storeFileDialogGeometry(QRect(20, 30, 500, 301));
    QCOMPARE(dialogPlacement(configuration), QRect(20, 30, 500, 300));
}

void DialogPlacementTest::rectangleThatFillsAScreen_isKnown()
{
    const std::vector<ScreenArea> screens{{QRect(0, 0, 1920, 1080), QRect(0, 0, 1920, 1040)},
                                          {QRect(1920, 0, 1280, 720), QRect(1920, 0, 1280, 720)}};
    QVERIFY(fillsScreen(QRect(0, 0, 1920, 1040), screens));
    QVERIFY(fillsScreen(QRect(1912, -8, 1296, 736), screens));
    QVERIFY(!fillsScreen(QRect(0, 0, 1919, 1040), screens));
    QVERIFY(!fillsScreen(QRect(100, 100, 1920, 1040), screens));
    QVERIFY(!fillsScreen(QRect(0, 0, 800, 600), {}));
}

ZORVANE_TEST(DialogPlacementTest)
#include "DialogPlacementTest.moc"
