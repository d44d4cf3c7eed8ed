#include "Host/Widgets/ZVGuiTools.h"

#include "Tests/Support/TestCase.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <functional>

using namespace Zorvane;

namespace {

using Draw = std::function<void(QPainter*, const QRect&)>;

constexpr QSize s_paper(60, 40);
constexpr QRect s_patch(10, 8, 36, 20);
const QColor s_red(200, 40, 40);
const QColor s_green(40, 160, 40);
const QColor s_blue(40, 40, 200);

/** White paper of a scale, drawn on by a painter that was prepared first. */
QImage drawnOn(qreal scale, const Draw& draw, const std::function<void(QPainter&)>& prepare = {})
{
    QImage paper(s_paper * scale, QImage::Format_ARGB32_Premultiplied);
    paper.setDevicePixelRatio(scale);
    paper.fill(Qt::white);
    QPainter painter(&paper);
    if (prepare)
        prepare(painter);
    draw(&painter, s_patch);
    return paper;
}

QImage drawn(const Draw& draw)
{
    return drawnOn(1.0, draw);
}

void mirrorReading(QPainter& painter)
{
    painter.setLayoutDirection(Qt::RightToLeft);
}

void drawOne(QPainter* painter, const QRect& rect)
{
    ZVGuiTools::drawBeautifiedColorPatch(painter, rect, s_red, true, 255);
}

void drawTwo(QPainter* painter, const QRect& rect)
{
    ZVGuiTools::drawBeautifiedTwoColorPatchDiagonal(painter, rect, s_red, s_green,
                                                    ZVGuiTools::RisingDiagonal, true);
}

void drawTwoFalling(QPainter* painter, const QRect& rect)
{
    ZVGuiTools::drawBeautifiedTwoColorPatchDiagonal(painter, rect, s_red, s_green,
                                                    ZVGuiTools::FallingDiagonal, true);
}

void drawThree(QPainter* painter, const QRect& rect)
{
    ZVGuiTools::drawBeautifiedThreeColorPatchDiagonal(painter, rect, s_red, s_green, s_blue, true);
}

void drawWithPoints(QPainter* painter, const QRect& rect)
{
    ZVGuiTools::drawBeautifiedColorPatchDiagonalWithPoints(painter, rect, s_red, s_green, true);
}

/** Places well inside of the patch, away from rims and edges. */
const QPoint s_left = s_patch.center() - QPoint(12, 0);
const QPoint s_right = s_patch.center() + QPoint(12, 0);
const QPoint s_middle = s_patch.center();

} // namespace

Q_DECLARE_METATYPE(Draw)

class ZVGuiToolsTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void firstColorStandsWhereReadingStarts();
    void diagonalsRiseOrFall();
    void anyOtherDiagonalRises();
    void threeColorsComeInOrder();
    void pointsStandInTheMiddle();
    void alphaAppliesToTheWholePatch();
    void shadingIsLeftOutWhenFlat();
    void drawsNothingOfWhatItCannot_data();
    void drawsNothingOfWhatItCannot();
    void staysInsideItsRectangle_data();
    void staysInsideItsRectangle();
    void isSharpAtEveryScale_data();
    void isSharpAtEveryScale();
    void drawsTheSameAgain_data();
    void drawsTheSameAgain();
    void followsMovedPainters();
    void followsTurnedPainters();
    void drawsLargePatches();
    void drawsTinyPatches();
    void leavesThePainterAsItWas();
    void theFlatStyleIsTheApplicationsChoice();
};

void ZVGuiToolsTest::firstColorStandsWhereReadingStarts()
{
    const QImage leftToRight = drawn(drawTwo);
    QCOMPARE(leftToRight.pixelColor(s_left), s_red);
    QCOMPARE(leftToRight.pixelColor(s_right), s_green);
    const QImage rightToLeft = drawnOn(1.0, drawTwo, mirrorReading);
    QCOMPARE(rightToLeft.pixelColor(s_left), s_green);
    QCOMPARE(rightToLeft.pixelColor(s_right), s_red);
}

void ZVGuiToolsTest::diagonalsRiseOrFall()
{
    const QPoint above = s_middle + QPoint(1, -6);
    const QPoint below = s_middle + QPoint(1, 6);
    const QImage rising = drawn(drawTwo);
    QCOMPARE(rising.pixelColor(above), s_red);
    QCOMPARE(rising.pixelColor(below), s_green);
    const QImage falling = drawn(drawTwoFalling);
    QCOMPARE(falling.pixelColor(above), s_green);
    QCOMPARE(falling.pixelColor(below), s_red);
}

void ZVGuiToolsTest::anyOtherDiagonalRises()
{
    for (const int other : {-1, 2, 1000}) {
        QCOMPARE(drawn([other](QPainter* painter, const QRect& rect) {
                     ZVGuiTools::drawBeautifiedTwoColorPatchDiagonal(painter, rect, s_red, s_green,
                                                                     other, true);
                 }),
                 drawn(drawTwo));
    }
}

void ZVGuiToolsTest::threeColorsComeInOrder()
{
    const QImage image = drawn(drawThree);
    QCOMPARE(image.pixelColor(s_left), s_red);
    QCOMPARE(image.pixelColor(s_middle), s_green);
    QCOMPARE(image.pixelColor(s_right), s_blue);
    const QImage mirrored = drawnOn(1.0, drawThree, mirrorReading);
    QCOMPARE(mirrored.pixelColor(s_left), s_blue);
    QCOMPARE(mirrored.pixelColor(s_right), s_red);
}

void ZVGuiToolsTest::pointsStandInTheMiddle()
{
    const QImage plain = drawn(drawTwo);
    const QImage image = drawn(drawWithPoints);
    QVERIFY(image.pixelColor(s_middle).lightness() > 230);
    QCOMPARE(image.pixelColor(s_left), plain.pixelColor(s_left));
    QCOMPARE(image.pixelColor(s_right), plain.pixelColor(s_right));
}

void ZVGuiToolsTest::alphaAppliesToTheWholePatch()
{
    const auto drawFaded = [](int alpha) {
        return drawn([alpha](QPainter* painter, const QRect& rect) {
            ZVGuiTools::drawBeautifiedColorPatch(painter, rect, s_red, true, alpha);
        });
    };
    const QImage full = drawFaded(255);
    QCOMPARE(drawFaded(1000), full);
    const QImage nothing = drawn([](QPainter*, const QRect&) {});
    QCOMPARE(drawFaded(0), nothing);
    QCOMPARE(drawFaded(-5), nothing);
    // Half-way between patch and paper, in the middle as on the rim.
    const QImage half = drawFaded(128);
    for (const QPoint place : {s_middle, QPoint(s_middle.x(), s_patch.top())}) {
        const int between = (full.pixelColor(place).green() + 255) / 2;
        QVERIFY(std::abs(half.pixelColor(place).green() - between) <= 2);
    }
}

void ZVGuiToolsTest::shadingIsLeftOutWhenFlat()
{
    const auto draw = [](bool isFlat) {
        return drawn([isFlat](QPainter* painter, const QRect& rect) {
            ZVGuiTools::drawBeautifiedColorPatch(painter, rect, s_red, isFlat, 255);
        });
    };
    const QPoint above = s_middle - QPoint(0, 6);
    const QPoint below = s_middle + QPoint(0, 6);
    QCOMPARE(draw(true).pixelColor(above), s_red);
    QCOMPARE(draw(true).pixelColor(below), s_red);
    QVERIFY(draw(false).pixelColor(above).lightness() > s_red.lightness());
    QVERIFY(draw(false).pixelColor(below).lightness() < s_red.lightness());
}

void ZVGuiToolsTest::drawsNothingOfWhatItCannot_data()
{
    QTest::addColumn<Draw>("draw");
    const QColor none;
    QTest::newRow("empty rectangle")
        << Draw([](QPainter* painter, const QRect&) { drawTwo(painter, QRect(5, 5, 0, 10)); });
    QTest::newRow("rectangle inside out")
        << Draw([](QPainter* painter, const QRect&) { drawTwo(painter, QRect(9, 9, -4, -4)); });
    QTest::newRow("no painter") << Draw(
        [](QPainter*, const QRect& rect) { drawThree(nullptr, rect); });
    QTest::newRow("one without a colour") << Draw([none](QPainter* painter, const QRect& rect) {
        ZVGuiTools::drawBeautifiedColorPatch(painter, rect, none, true, 255);
    });
    QTest::newRow("two without the second") << Draw([none](QPainter* painter, const QRect& rect) {
        ZVGuiTools::drawBeautifiedTwoColorPatchDiagonal(painter, rect, s_red, none, 0, true);
    });
    QTest::newRow("three without the first") << Draw([none](QPainter* painter, const QRect& rect) {
        ZVGuiTools::drawBeautifiedThreeColorPatchDiagonal(painter, rect, none, s_red, s_red, true);
    });
    QTest::newRow("points without a colour") << Draw([none](QPainter* painter, const QRect& rect) {
        ZVGuiTools::drawBeautifiedColorPatchDiagonalWithPoints(painter, rect, s_red, none, true);
    });
}

void ZVGuiToolsTest::drawsNothingOfWhatItCannot()
{
    QFETCH(Draw, draw);
    QCOMPARE(drawn(draw), drawn([](QPainter*, const QRect&) {}));
}

void ZVGuiToolsTest::staysInsideItsRectangle_data()
{
    QTest::addColumn<qreal>("scale");
    for (const qreal scale : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0})
        QTest::addRow("%d %%", int(scale * 100)) << scale;
}

void ZVGuiToolsTest::staysInsideItsRectangle()
{
    QFETCH(qreal, scale);
    const QImage image = drawnOn(scale, drawThree);
    const QRect inside(QPoint(qRound(s_patch.x() * scale), qRound(s_patch.y() * scale)),
                       QPoint(qRound((s_patch.right() + 1) * scale) - 1,
                              qRound((s_patch.bottom() + 1) * scale) - 1));
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (!inside.contains(x, y))
                QCOMPARE(image.pixelColor(x, y), QColor(Qt::white));
        }
    }
    // And it fills it: the rim is there on all four sides.
    const QPoint middle = inside.center();
    for (const QPoint place :
         {QPoint(inside.left(), middle.y()), QPoint(inside.right(), middle.y()),
          QPoint(middle.x(), inside.top()), QPoint(middle.x(), inside.bottom())})
        QVERIFY(image.pixelColor(place) != QColor(Qt::white));
}

void ZVGuiToolsTest::isSharpAtEveryScale_data()
{
    staysInsideItsRectangle_data();
}

void ZVGuiToolsTest::isSharpAtEveryScale()
{
    QFETCH(qreal, scale);
    // Down the middle of a side all rows are alike: no row is half of something.
    const QImage image = drawnOn(scale, drawOne);
    const int left = qRound(s_patch.left() * scale);
    const int middle = qRound(s_middle.y() * scale);
    const QColor rim = image.pixelColor(left, middle);
    QVERIFY(rim.lightness() < s_red.lightness());
    for (int y = middle - qRound(4 * scale); y < middle + qRound(4 * scale); ++y)
        QCOMPARE(image.pixelColor(left, y), rim);
    QCOMPARE(image.pixelColor(qRound(s_middle.x() * scale), middle), s_red);
}

void ZVGuiToolsTest::drawsTheSameAgain_data()
{
    QTest::addColumn<Draw>("draw");
    QTest::newRow("one colour") << Draw(drawOne);
    QTest::newRow("two colours") << Draw(drawTwo);
    QTest::newRow("two colours, falling") << Draw(drawTwoFalling);
    QTest::newRow("three colours") << Draw(drawThree);
    QTest::newRow("points") << Draw(drawWithPoints);
}

void ZVGuiToolsTest::drawsTheSameAgain()
{
    QFETCH(Draw, draw);
    const QImage before = drawn(draw);
    const QImage enlarged = drawnOn(2.0, draw);
    // Enough others to push what was kept out.
    for (int i = 0; i < 2000; ++i)
        drawn([i](QPainter* painter, const QRect& rect) {
            ZVGuiTools::drawBeautifiedColorPatch(painter, rect, QColor::fromRgb(QRgb(i * 977)),
                                                 true, 255);
        });
    QCOMPARE(drawn(draw), before);
    QCOMPARE(drawn(draw), before);
    QCOMPARE(drawnOn(2.0, draw), enlarged);
}

void ZVGuiToolsTest::followsMovedPainters()
{
    const QImage moved =
        drawnOn(1.5, drawThree, [](QPainter& painter) { painter.translate(4.0, 2.0); });
    const QImage drawnThere = drawnOn(1.5, [](QPainter* painter, const QRect& rect) {
        drawThree(painter, rect.translated(4, 2));
    });
    QCOMPARE(moved, drawnThere);
}

void ZVGuiToolsTest::followsTurnedPainters()
{
    const QImage turned = drawnOn(1.0, drawTwo, [](QPainter& painter) {
        painter.translate(s_patch.center());
        painter.rotate(180.0);
        painter.translate(-s_patch.center());
    });
    QCOMPARE(turned.pixelColor(s_left), s_green);
    QCOMPARE(turned.pixelColor(s_right), s_red);
}

void ZVGuiToolsTest::drawsLargePatches()
{
    QImage paper(1200, 800, QImage::Format_ARGB32_Premultiplied);
    paper.fill(Qt::white);
    QPainter painter(&paper);
    drawThree(&painter, paper.rect());
    painter.end();
    QCOMPARE(paper.pixelColor(50, 400), s_red);
    QCOMPARE(paper.pixelColor(600, 400), s_green);
    QCOMPARE(paper.pixelColor(1150, 400), s_blue);
}

void ZVGuiToolsTest::drawsTinyPatches()
{
    for (const QSize size : {QSize(1, 1), QSize(2, 1), QSize(3, 3), QSize(1, 20), QSize(30, 2)}) {
        const QImage image = drawn([size](QPainter* painter, const QRect& rect) {
            drawWithPoints(painter, QRect(rect.topLeft(), size));
        });
        QVERIFY(image.pixelColor(s_patch.topLeft()) != QColor(Qt::white));
        QCOMPARE(image.pixelColor(s_patch.topLeft() + QPoint(size.width(), size.height())),
                 QColor(Qt::white));
    }
}

void ZVGuiToolsTest::leavesThePainterAsItWas()
{
    drawn([](QPainter* painter, const QRect& rect) {
        painter->setPen(Qt::magenta);
        painter->setBrush(Qt::cyan);
        painter->setOpacity(0.5);
        const QTransform transform = painter->transform();
        const QPainter::RenderHints hints = painter->renderHints();
        ZVGuiTools::drawBeautifiedColorPatch(painter, rect, s_red, false, 100);
        drawWithPoints(painter, QRect(0, 0, 2000, 1000));
        QCOMPARE(painter->pen().color(), QColor(Qt::magenta));
        QCOMPARE(painter->brush().color(), QColor(Qt::cyan));
        QCOMPARE(painter->opacity(), 0.5);
        QCOMPARE(painter->transform(), transform);
        QCOMPARE(painter->renderHints(), hints);
    });
}

void ZVGuiToolsTest::theFlatStyleIsTheApplicationsChoice()
{
    QVERIFY(!ZVGuiTools::isFlatStyle());
    ZVGuiTools::setFlatStyle(true);
    QVERIFY(ZVGuiTools::isFlatStyle());
    ZVGuiTools::setFlatStyle(false);
    QVERIFY(!ZVGuiTools::isFlatStyle());
}

ZORVANE_TEST(ZVGuiToolsTest)
#include "ZVGuiToolsTest.moc"
