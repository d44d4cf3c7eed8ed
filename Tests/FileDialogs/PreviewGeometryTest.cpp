#include "FileDialogs/ScreenGeometry.h"

#include "Tests/Support/TestCase.h"

#include <QtGui/QScreen>

#include <rapidcheck.h>

using namespace Zorvane;

namespace {

const QSize s_margin(30, 30);
const QRect s_area(QPoint(0, 0), QPoint(1919, 1039));

/** Any screen that people put beside, above or below others. */
QRect anyArea()
{
    const int left = *rc::gen::inRange(-4000, 4000);
    const int top = *rc::gen::inRange(-3000, 3000);
    return {left, top, *rc::gen::inRange(300, 4000), *rc::gen::inRange(200, 2500)};
}

QRect anyRectangle(const QRect& around)
{
    const int left = *rc::gen::inRange(around.left() - 1000, around.right() + 1000);
    const int top = *rc::gen::inRange(around.top() - 1000, around.bottom() + 1000);
    return {left, top, *rc::gen::inRange(1, 3000), *rc::gen::inRange(1, 2000)};
}

/** A dialog and a preview, before and after they are put side by side. */
struct Pair
{
    QRect area = anyArea();
    QRect dialogBefore = anyRectangle(area);
    QSize margin{*rc::gen::inRange(0, 100), *rc::gen::inRange(0, 100)};
    QRect dialog = dialogBefore;
    QRect preview = anyRectangle(area);

    Pair() { place(); }
    void place() { placeSideBySide(dialog, preview, area, margin); }
    int roomForDialog() const
    {
        return area.width() - 1 - preview.width() - 2 * margin.width() - distanceToPreview;
    }
};

} // namespace

class PreviewGeometryTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void dialogAndPreviewStandSideBySide_data();
    void dialogAndPreviewStandSideBySide();
    void nothingOverlaps();
    void sizesStayWhereTheyFit();
    void bothStayInsideWhereTheyFit();
    void tallPreviewsMoveUp();
    void repeatingChangesNothing();
    void narrowedDialog_getsItsMinimumFromTheMargins_data();
    void narrowedDialog_getsItsMinimumFromTheMargins();
    void theScreenWithTheDialogsMiddleCounts_data();
    void theScreenWithTheDialogsMiddleCounts();
    void screensOfTheApplication();
};

void PreviewGeometryTest::dialogAndPreviewStandSideBySide_data()
{
    QTest::addColumn<QRect>("area");
    QTest::addColumn<QRect>("dialog");
    QTest::addColumn<QSize>("preview");
    QTest::addColumn<QRect>("dialogAfter");
    QTest::addColumn<QPoint>("previewAfter");
    const auto row = [](const char* name, const QRect& dialog, const QSize& preview,
                        const QRect& dialogAfter, const QPoint& previewAfter,
                        const QRect& area = s_area) {
        QTest::newRow(name) << area << dialog << preview << dialogAfter << previewAfter;
    };
    const QRect right(1920, 0, 1280, 1024);
    const QRect below(0, 1080, 1920, 1080);
    const QRect above(0, -1080, 1920, 1080);
    // clang-format off
    row("both fit where the dialog is",           {100, 100, 625, 600},  {400, 300},
                                                  {100, 100, 625, 600},  {729, 100});
    row("dialog moves left to make room",         {1500, 100, 625, 600}, {400, 300},
                                                  {859, 100, 625, 600},  {1489, 100});
    row("dialog is narrowed to make room",        {1500, 100, 625, 600}, {1300, 300},
                                                  {QPoint(30, 100), QPoint(584, 699)}, {589, 100});
    row("dialog moves off the left margin",       {10, 100, 625, 600},   {400, 300},
                                                  {30, 100, 625, 600},   {659, 100});
    row("dialog comes back from the left",        {-5000, 100, 625, 600},{400, 300},
                                                  {30, 100, 625, 600},   {659, 100});
    row("preview just fits",                      {860, 100, 625, 600},  {400, 300},
                                                  {860, 100, 625, 600},  {1489, 100});
    row("a pixel more and the dialog moves",      {861, 100, 625, 600},  {400, 300},
                                                  {859, 100, 625, 600},  {1489, 100});
    row("dialog just keeps its width",            {1500, 100, 625, 600}, {1229, 300},
                                                  {30, 100, 625, 600},   {660, 100});
    row("a pixel less and it is narrowed",        {1500, 100, 625, 600}, {1230, 300},
                                                  {QPoint(30, 100), QPoint(654, 699)}, {659, 100});
    row("tall preview moves up",                  {100, 200, 625, 600},  {400, 1000},
                                                  {100, 200, 625, 600},  {729, 34});
    row("preview as tall as the screen",          {100, 200, 625, 600},  {400, 1040},
                                                  {100, 200, 625, 600},  {729, 30});
    row("dialog above the margin",                {100, 10, 625, 600},   {400, 1040},
                                                  {100, 10, 625, 600},   {729, 10});
    row("dialog reaching above the screen",       {100, -50, 625, 600},  {400, 300},
                                                  {100, -50, 625, 600},  {729, -50});
    row("screen to the right",                    {1900, 100, 625, 600}, {400, 300},
                                                  {1950, 100, 625, 600}, {2579, 100}, right);
    row("right end of the screen to the right",   {2900, 100, 625, 600}, {400, 300},
                                                  {2139, 100, 625, 600}, {2769, 100}, right);
    row("screen below",                           {100, 1700, 625, 600}, {400, 600},
                                                  {100, 1700, 625, 600}, {729, 1554}, below);
    // The margin counts from the desktop's top: up there it keeps no preview from the bottom.
    row("screen above",                           {100, -300, 625, 600}, {400, 600},
                                                  {100, -300, 625, 600}, {729, -300}, above);
    row("no room for a dialog at all",            {100, 100, 625, 600},  {1900, 300},
                                                  {QPoint(30, 100), QPoint(-16, 699)}, {-11, 100});
    // clang-format on
}

void PreviewGeometryTest::dialogAndPreviewStandSideBySide()
{
    QFETCH(QRect, area);
    QFETCH(QRect, dialog);
    QFETCH(QSize, preview);
    QFETCH(QRect, dialogAfter);
    QFETCH(QPoint, previewAfter);
    QRect placed(QPoint(7, 11), preview);
    placeSideBySide(dialog, placed, area, s_margin);
    QCOMPARE(dialog, dialogAfter);
    QCOMPARE(placed, QRect(previewAfter, preview));
}

void PreviewGeometryTest::nothingOverlaps()
{
    QVERIFY(rc::check("the preview begins behind the dialog's end", [] {
        const Pair pair;
        RC_ASSERT(pair.preview.left() - pair.dialog.right() >= distanceToPreview);
        RC_ASSERT(!pair.preview.intersects(pair.dialog) || !pair.dialog.isValid());
    }));
}

void PreviewGeometryTest::sizesStayWhereTheyFit()
{
    QVERIFY(rc::check("the dialog keeps top and height, and its width where it fits", [] {
        const Pair pair;
        RC_ASSERT(pair.dialog.top() == pair.dialogBefore.top());
        RC_ASSERT(pair.dialog.height() == pair.dialogBefore.height());
        if (pair.dialogBefore.width() <= pair.roomForDialog())
            RC_ASSERT(pair.dialog.width() == pair.dialogBefore.width());
        else
            RC_ASSERT(pair.dialog.width() <= pair.dialogBefore.width());
    }));
    QVERIFY(rc::check("the preview keeps its size", [] {
        QRect dialog = anyRectangle(s_area);
        QRect preview = anyRectangle(s_area);
        const QSize size = preview.size();
        placeSideBySide(dialog, preview, anyArea(), s_margin);
        RC_ASSERT(preview.size() == size);
    }));
}

void PreviewGeometryTest::bothStayInsideWhereTheyFit()
{
    QVERIFY(rc::check("both keep the margin to the left and to the right", [] {
        const Pair pair;
        const int leftLimit = pair.area.left() + pair.margin.width();
        const int rightLimit = pair.area.right() - pair.margin.width();
        RC_ASSERT(pair.dialog.left() >= leftLimit);
        RC_ASSERT(pair.preview.right() < rightLimit);
        if (pair.roomForDialog() >= 0)
            RC_ASSERT(pair.preview.left() > leftLimit);
    }));
    QVERIFY(rc::check("a preview beside a dialog inside the area is inside it", [] {
        Pair pair;
        pair.area.moveTop(*rc::gen::inRange(0, 3000));
        const int room = pair.area.height() - 1 - distanceToPreview;
        pair.preview.setHeight(*rc::gen::inRange(1, room - pair.margin.height() + 1));
        pair.dialog.moveTop(*rc::gen::inRange(pair.area.top(), pair.area.bottom()));
        pair.place();
        RC_ASSERT(pair.preview.top() >= pair.area.top());
        RC_ASSERT(pair.preview.bottom() < pair.area.bottom() - distanceToPreview);
    }));
}

void PreviewGeometryTest::tallPreviewsMoveUp()
{
    QVERIFY(rc::check("the preview's top is the dialog's, or above it", [] {
        const Pair pair;
        RC_ASSERT(pair.preview.top() <= pair.dialog.top());
        const bool fits =
            pair.dialog.top() + pair.preview.height() + distanceToPreview <= pair.area.bottom();
        if (fits || pair.dialog.top() <= pair.margin.height())
            RC_ASSERT(pair.preview.top() == pair.dialog.top());
    }));
}

void PreviewGeometryTest::repeatingChangesNothing()
{
    QVERIFY(rc::check("the dialog stays; the preview closes a gap of one pixel, then stays", [] {
        Pair pair;
        const QRect dialog = pair.dialog;
        const QRect preview = pair.preview;
        const int gap = preview.left() - dialog.right();
        pair.place();
        RC_ASSERT(pair.dialog == dialog);
        // A dialog that had to move ends six pixels before the preview instead of five.
        RC_ASSERT(gap == distanceToPreview || gap == distanceToPreview + 1);
        RC_ASSERT(pair.preview == preview.translated(distanceToPreview - gap, 0));
        const QRect closed = pair.preview;
        pair.place();
        RC_ASSERT(pair.dialog == dialog);
        RC_ASSERT(pair.preview == closed);
    }));
}

void PreviewGeometryTest::narrowedDialog_getsItsMinimumFromTheMargins_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<QRect>("dialog");
    QTest::addColumn<QRect>("preview");
    // In an area of 800 x 600, at first 30..364 and 369..768.
    QTest::newRow("wide enough") << 335 << QRect(30, 50, 335, 400) << QRect(369, 50, 400, 400);
    QTest::newRow("the right margin does")
        << 360 << QRect(30, 50, 360, 400) << QRect(394, 50, 400, 400);
    QTest::newRow("the left one as well")
        << 386 << QRect(10, 50, 386, 400) << QRect(400, 50, 400, 400);
    QTest::newRow("no room for both") << 420 << QRect(0, 50, 420, 400) << QRect(400, 50, 400, 400);
}

void PreviewGeometryTest::narrowedDialog_getsItsMinimumFromTheMargins()
{
    QFETCH(int, minimum);
    const QRect area(0, 0, 800, 600);
    QRect dialog(30, 50, 335, 400);
    QRect preview(369, 50, 400, 400);
    keepMinimumWidth(dialog, preview, area, minimum);
    QTEST(dialog, "dialog");
    QTEST(preview, "preview");
}

void PreviewGeometryTest::theScreenWithTheDialogsMiddleCounts_data()
{
    QTest::addColumn<QRect>("dialog");
    QTest::addColumn<int>("screen");
    // clang-format off
    QTest::newRow("whole on the first")             << QRect(100, 100, 600, 600)    << 0;
    QTest::newRow("whole on the second")            << QRect(2000, 100, 600, 600)   << 1;
    QTest::newRow("middle on the second")           << QRect(1700, 100, 600, 600)   << 1;
    QTest::newRow("middle on the last of several")  << QRect(1500, 900, 600, 600)   << 2;
    QTest::newRow("middle on a task bar")           << QRect(100, 1050, 20, 20)     << 0;
    QTest::newRow("reaches in from the left")       << QRect(-500, 100, 600, 600)   << 0;
    QTest::newRow("reaches into two, middle on none")<< QRect(1800, -900, 600, 1000) << 0;
    QTest::newRow("touches from outside")           << QRect(-600, 100, 600, 600)   << -1;
    QTest::newRow("on none")                        << QRect(9000, 9000, 600, 600)  << -1;
    QTest::newRow("on a screen that is gone")       << QRect(-1500, 100, 600, 600)  << -1;
    // clang-format on
}

void PreviewGeometryTest::theScreenWithTheDialogsMiddleCounts()
{
    QFETCH(QRect, dialog);
    QFETCH(int, screen);
    const std::vector<ScreenArea> screens{
        {{0, 0, 1920, 1080}, {0, 0, 1920, 1040}},
        {{1920, 0, 1280, 1024}, {1920, 0, 1280, 984}},
        {{0, 1080, 1920, 1080}, {0, 1120, 1920, 1040}},
    };
    const QRect wanted = screen < 0 ? QRect() : screens[std::size_t(screen)].available;
    QCOMPARE(availableAreaWith(dialog, screens), wanted);
    QCOMPARE(availableAreaWith(dialog, {}), QRect());
}

void PreviewGeometryTest::screensOfTheApplication()
{
    const std::vector<ScreenArea> screens = currentScreens();
    QCOMPARE(int(screens.size()), QGuiApplication::screens().size());
    QCOMPARE(screens.front().full, QGuiApplication::screens().front()->geometry());
    QCOMPARE(screens.front().available, QGuiApplication::screens().front()->availableGeometry());
}

ZORVANE_TEST(PreviewGeometryTest)
#include "PreviewGeometryTest.moc"
