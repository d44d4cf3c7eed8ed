#include "FileDialogs/ScreenGeometry.h"

#include "Tests/Support/TestCase.h"

#include <rapidcheck.h>

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

using namespace Zorvane;

Q_DECLARE_METATYPE(std::vector<Zorvane::ScreenArea>)

class ScreenScaleTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void rectanglesAreConvertedBothWays_data();
    void rectanglesAreConvertedBothWays();
    void thereAndBackChangesNothing();
    void screensOfTheApplication();
};

void ScreenScaleTest::rectanglesAreConvertedBothWays_data()
{
    using Screens = std::vector<ScreenArea>;
    QTest::addColumn<Screens>("screens");
    QTest::addColumn<QRect>("inQts");
    QTest::addColumn<QRect>("inScreens");
    // All but the smallest have 1920 x 1080 pixels of their own.
    const Screens plain{{QRect(0, 0, 1920, 1080), {}, 1.0}};
    const Screens scaled{{QRect(0, 0, 1280, 720), {}, 1.5}};
    const Screens scaledRight{{QRect(0, 0, 1920, 1080), {}, 1.0},
                              {QRect(1920, 0, 1280, 720), {}, 1.5}};
    const Screens plainRight{{QRect(0, 0, 1280, 720), {}, 1.5},
                             {QRect(1920, 0, 1920, 1080), {}, 1.0}};
    const Screens scaledLeft{{QRect(0, 0, 1920, 1080), {}, 1.0},
                             {QRect(-1920, 90, 1280, 720), {}, 1.5}};
    // clang-format off
    const auto row = [](const char* name, const Screens& screens, const QRect& inQts,
                        const QRect& inScreens) {
        QTest::newRow(name) << screens << inQts << inScreens;
    };
    row("no screen",                           {},          {100, 50, 600, 400},    {100, 50, 600, 400});
    row("100 %",                               plain,       {100, 50, 600, 400},    {100, 50, 600, 400});
    row("150 %",                               scaled,      {100, 50, 600, 400},    {150, 75, 900, 600});
    row("150 %, halves are rounded up",        scaled,      {1, 3, 5, 7},           {2, 5, 8, 11});
    row("150 %, beyond the screen",            scaled,      {-600, -400, 100, 100}, {-900, -600, 150, 150});
    row("150 % to the right, on the left",     scaledRight, {100, 50, 600, 400},    {100, 50, 600, 400});
    row("150 % to the right, on it",           scaledRight, {2020, 100, 600, 400},  {2070, 150, 900, 600});
    row("100 % to the right, on the left",     plainRight,  {1000, 50, 200, 200},   {1500, 75, 300, 300});
    row("100 % to the right, on it",           plainRight,  {2000, 50, 600, 400},   {2000, 50, 600, 400});
    row("150 % left of the origin",            scaledLeft,  {-1820, 100, 600, 400}, {-1770, 105, 900, 600});
    row("across both, most on the scaled one", scaledRight, {1820, 100, 600, 400},  {1770, 150, 900, 600});
    row("across both, most on the other",      scaledRight, {1420, 100, 600, 400},  {1420, 100, 600, 400});
    // clang-format on
}

void ScreenScaleTest::rectanglesAreConvertedBothWays()
{
    QFETCH(std::vector<ScreenArea>, screens);
    QFETCH(QRect, inQts);
    QFETCH(QRect, inScreens);
    QCOMPARE(inScreenPixels(inQts, screens), inScreens);
    QCOMPARE(inQtPixels(inScreens, screens), inQts);
}

void ScreenScaleTest::thereAndBackChangesNothing()
{
    const bool holds = rc::check("a dialog stays where it is however often it is opened", [] {
        const std::vector<ScreenArea> screens{
            {QRect(*rc::gen::inRange(-4000, 4000), *rc::gen::inRange(-4000, 4000), 1280, 720),
             {},
             *rc::gen::inRange(4, 16) / 4.0}};
        const QRect rect(*rc::gen::inRange(-4000, 4000), *rc::gen::inRange(-4000, 4000),
                         *rc::gen::inRange(1, 4000), *rc::gen::inRange(1, 4000));
        RC_ASSERT(inQtPixels(inScreenPixels(rect, screens), screens) == rect);
    });
    QVERIFY(holds);
}

void ScreenScaleTest::screensOfTheApplication()
{
    const std::vector<ScreenArea> screens = currentScreens();
    QCOMPARE(int(screens.size()), QGuiApplication::screens().size());
    QCOMPARE(screens.front().full, QGuiApplication::primaryScreen()->geometry());
    QCOMPARE(screens.front().pixelRatio, QGuiApplication::primaryScreen()->devicePixelRatio());
}

ZORVANE_TEST(ScreenScaleTest)
#include "ScreenScaleTest.moc"
