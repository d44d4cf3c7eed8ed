#include "Workbench/MeshView/Rasterizer.h"

#include "Tests/Support/TestCase.h"

#include <cmath>
#include <limits>

namespace Zorvane::Workbench {

namespace {

const QSize s_size(40, 30);
const MeshColours s_colours{QColor(0, 0, 255), QColor(255, 0, 0), QColor(0, 255, 0),
                            QColor(255, 255, 255), QColor(255, 255, 255)};
constexpr QRgb s_background = 0xffffffff;
constexpr QRgb s_edge = 0xff00ff00;

/** One pixel a millimetre, x and y as in the picture, so that the viewer is at minus z. */
ViewTransform fromAbove()
{
    return {{1, 0, 0}, {0, -1, 0}, {0, 0, -1}, {}, {}, 1};
}

/** The points' third value is their nearness to the viewer. */
DrawableMesh mesh(std::vector<QVector3D> points, std::vector<TriangleMesh::Triangle> triangles)
{
    for (QVector3D& point : points)
        point.setZ(-point.z());
    return prepareForDrawing(
        std::make_shared<TriangleMesh>(TriangleMesh{std::move(points), std::move(triangles)}));
}

int countPixels(const QImage& image, QRgb colour)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixel(x, y) == colour;
    return count;
}

bool isBluish(QRgb colour)
{
    return colour != s_background && qBlue(colour) > 2 * qRed(colour);
}

bool isReddish(QRgb colour)
{
    return colour != s_background && qRed(colour) > 2 * qBlue(colour);
}

} // namespace

class RasterizerTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void aTriangleCoversThePixelsWhoseCentresLieInIt();
    void neighboursLeaveNoGapAndDoNotOverlap();
    void nearerTrianglesHideFartherOnesInAnyOrder_data();
    void nearerTrianglesHideFartherOnesInAnyOrder();
    void crossingTrianglesMeetWhereTheyCross();
    void bothSidesAreDrawnEachInItsColour();
    void facesTurnedAwayFromTheLightAreDarkerAndNeverBlack();
    void whatLiesOutsideThePictureIsCutOff_data();
    void whatLiesOutsideThePictureIsCutOff();
    void trianglesWithoutAreaDrawNothing_data();
    void trianglesWithoutAreaDrawNothing();
    void pointsThatAreNotNumbersAreLeftOut();
    void anEmptyMeshShowsTheBackground();
    void edgesShowInFrontAndHideBehind();
    void smoothPicturesHaveTheSizeAskedFor();
    void aNewPictureForgetsTheOneBefore();
    void aPictureOfNoSizeIsHarmless();

private:
    QImage draw(const DrawableMesh& drawable);

    Rasterizer m_rasterizer;
};

void RasterizerTest::init()
{
    m_rasterizer = Rasterizer();
}

QImage RasterizerTest::draw(const DrawableMesh& drawable)
{
    m_rasterizer.begin(s_size, s_colours);
    m_rasterizer.drawTriangles(drawable, fromAbove());
    return m_rasterizer.image();
}

void RasterizerTest::aTriangleCoversThePixelsWhoseCentresLieInIt()
{
    const QImage image = draw(mesh({{2, 2, 0}, {2, 12, 0}, {12, 2, 0}}, {{0, 1, 2}}));
    for (int y = 0; y < s_size.height(); ++y) {
        for (int x = 0; x < s_size.width(); ++x) {
            const double diagonal = x + 0.5 + y + 0.5;
            const bool inside = x >= 2 && y >= 2 && diagonal < 14;
            QVERIFY2(inside == (image.pixel(x, y) != s_background),
                     qPrintable(QStringLiteral("%1, %2").arg(x).arg(y)));
        }
    }
}

void RasterizerTest::neighboursLeaveNoGapAndDoNotOverlap()
{
    // A fan around a crooked middle: every pixel of the square belongs to just one triangle.
    const std::vector<QVector3D> points{
        {5, 5, 0}, {25, 5, 0}, {25, 25, 0}, {5, 25, 0}, {13.37f, 17.9f, 0}};
    int sum = 0;
    for (const TriangleMesh::Triangle& triangle :
         std::vector<TriangleMesh::Triangle>{{0, 1, 4}, {1, 2, 4}, {2, 3, 4}, {3, 0, 4}}) {
        const QImage image = draw(mesh(points, {triangle}));
        sum += image.width() * image.height() - countPixels(image, s_background);
    }
    QCOMPARE(sum, 20 * 20);
    const QImage all = draw(mesh(points, {{0, 1, 4}, {1, 2, 4}, {2, 3, 4}, {3, 0, 4}}));
    QCOMPARE(countPixels(all, s_background), s_size.width() * s_size.height() - 20 * 20);
}

void RasterizerTest::nearerTrianglesHideFartherOnesInAnyOrder_data()
{
    QTest::addColumn<bool>("nearFirst");
    QTest::newRow("near first") << true;
    QTest::newRow("far first") << false;
}

void RasterizerTest::nearerTrianglesHideFartherOnesInAnyOrder()
{
    QFETCH(bool, nearFirst);
    const TriangleMesh::Triangle nearOne{0, 1, 2};
    const TriangleMesh::Triangle farOne{3, 5, 4};
    std::vector<TriangleMesh::Triangle> triangles{nearOne, farOne};
    if (!nearFirst)
        std::swap(triangles[0], triangles[1]);
    const QImage image = draw(
        mesh({{0, 0, 9}, {0, 20, 9}, {20, 0, 9}, {0, 0, 1}, {0, 30, 1}, {30, 0, 1}}, triangles));
    QVERIFY(isReddish(image.pixel(3, 3)) != isReddish(image.pixel(22, 3)));
    QCOMPARE(m_rasterizer.depthAt(3, 3), 9.f);
    QCOMPARE(m_rasterizer.depthAt(22, 3), 1.f);
    QVERIFY(std::isinf(m_rasterizer.depthAt(39, 29)));
    QVERIFY(std::isinf(m_rasterizer.depthAt(-1, 100)));
}

void RasterizerTest::crossingTrianglesMeetWhereTheyCross()
{
    // One rises to the right, the other falls: they cross in the column x = 15.
    draw(mesh({{0, 0, 0}, {30, 0, 30}, {0, 30, 0}, {0, 0, 30}, {30, 0, 0}, {0, 30, 30}},
              {{0, 1, 2}, {3, 4, 5}}));
    QVERIFY(std::abs(m_rasterizer.depthAt(5, 2) - 24.5f) < 1e-3f);
    QVERIFY(std::abs(m_rasterizer.depthAt(24, 2) - 24.5f) < 1e-3f);
    QVERIFY(std::abs(m_rasterizer.depthAt(15, 2) - 15.5f) < 1e-3f);
}

void RasterizerTest::bothSidesAreDrawnEachInItsColour()
{
    const std::vector<QVector3D> points{{0, 0, 0}, {0, 20, 0}, {20, 0, 0}};
    QVERIFY(isBluish(draw(mesh(points, {{0, 1, 2}})).pixel(3, 3)));
    QVERIFY(isReddish(draw(mesh(points, {{0, 2, 1}})).pixel(3, 3)));
}

void RasterizerTest::facesTurnedAwayFromTheLightAreDarkerAndNeverBlack()
{
    const QImage facing = draw(mesh({{0, 0, 0}, {0, 20, 0}, {20, 0, 0}}, {{0, 1, 2}}));
    const QImage away = draw(mesh({{0, 0, 0}, {0, 20, -60}, {20, 0, 0}}, {{0, 1, 2}}));
    const int bright = qBlue(facing.pixel(3, 3));
    const int dark = qBlue(away.pixel(3, 3));
    QVERIFY(bright > dark + 20);
    QVERIFY(dark > 40);
}

void RasterizerTest::whatLiesOutsideThePictureIsCutOff_data()
{
    QTest::addColumn<float>("size");
    QTest::newRow("a little") << 100.f;
    QTest::newRow("a lot") << 1e6f;
    QTest::newRow("beyond every pixel number") << 1e15f;
}

void RasterizerTest::whatLiesOutsideThePictureIsCutOff()
{
    QFETCH(float, size);
    const QImage image =
        draw(mesh({{-size, -size, 0}, {-size, 3 * size, 0}, {3 * size, -size, 0}}, {{0, 1, 2}}));
    QCOMPARE(countPixels(image, s_background), 0);
    const QImage beside =
        draw(mesh({{-size, -size, 0}, {-size, -1, 0}, {-1, -size, 0}}, {{0, 1, 2}}));
    QCOMPARE(countPixels(beside, s_background), s_size.width() * s_size.height());
}

void RasterizerTest::trianglesWithoutAreaDrawNothing_data()
{
    QTest::addColumn<QVector3D>("third");
    QTest::newRow("a point") << QVector3D(5, 5, 0);
    QTest::newRow("a line") << QVector3D(20, 20, 0);
    QTest::newRow("seen from the side") << QVector3D(5, 5, 30);
}

void RasterizerTest::trianglesWithoutAreaDrawNothing()
{
    QFETCH(QVector3D, third);
    const QImage image = draw(mesh({{5, 5, 0}, {5, 5, 0}, third}, {{0, 1, 2}}));
    QCOMPARE(countPixels(image, s_background), s_size.width() * s_size.height());
}

void RasterizerTest::pointsThatAreNotNumbersAreLeftOut()
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float infinity = std::numeric_limits<float>::infinity();
    const DrawableMesh broken =
        mesh({{0, 0, 0}, {0, 20, 0}, {20, 0, 0}, {nan, 1, 1}, {1, infinity, 1}},
             {{0, 1, 3}, {0, 4, 2}, {0, 1, 2}});
    m_rasterizer.begin(s_size, s_colours);
    m_rasterizer.drawTriangles(broken, fromAbove());
    m_rasterizer.drawEdges(broken, fromAbove(), 2);
    QVERIFY(m_rasterizer.image().pixel(3, 3) != s_background);
    QCOMPARE(m_rasterizer.image().pixel(35, 25), s_background);
}

void RasterizerTest::anEmptyMeshShowsTheBackground()
{
    const QImage image =
        renderMesh(m_rasterizer, DrawableMesh(), fromAbove(), s_size, s_colours, 2);
    QCOMPARE(image.size(), s_size);
    QCOMPARE(countPixels(image, s_background), s_size.width() * s_size.height());
}

void RasterizerTest::edgesShowInFrontAndHideBehind()
{
    const DrawableMesh front = mesh({{2, 2, 9}, {2, 28, 9}, {38, 2, 9}}, {{0, 1, 2}});
    const DrawableMesh behind = mesh({{4, 4, 1}, {4, 14, 1}, {14, 4, 1}}, {{0, 1, 2}});
    m_rasterizer.begin(s_size, s_colours);
    m_rasterizer.drawTriangles(front, fromAbove());
    m_rasterizer.drawEdges(behind, fromAbove(), 1);
    QCOMPARE(countPixels(m_rasterizer.image(), s_edge), 0);
    m_rasterizer.drawEdges(front, fromAbove(), 1);
    QVERIFY(countPixels(m_rasterizer.image(), s_edge) > 36 + 26);
}

void RasterizerTest::smoothPicturesHaveTheSizeAskedFor()
{
    const DrawableMesh triangle = mesh({{2, 2, 0}, {2, 12, 0}, {22, 2, 0}}, {{0, 1, 2}});
    const QImage smooth = renderMesh(m_rasterizer, triangle, fromAbove(), s_size, s_colours, 2);
    QCOMPARE(smooth.size(), s_size);
    const QImage plain = renderMesh(m_rasterizer, triangle, fromAbove(), s_size, s_colours, 1);
    QCOMPARE(plain.size(), s_size);
    QVERIFY(plain != smooth);
}

void RasterizerTest::aNewPictureForgetsTheOneBefore()
{
    draw(mesh({{0, 0, 9}, {0, 90, 9}, {90, 0, 9}}, {{0, 1, 2}}));
    m_rasterizer.begin(s_size, s_colours);
    QCOMPARE(countPixels(m_rasterizer.image(), s_background), s_size.width() * s_size.height());
    QVERIFY(std::isinf(m_rasterizer.depthAt(3, 3)));
}

void RasterizerTest::aPictureOfNoSizeIsHarmless()
{
    m_rasterizer.begin({0, 0}, s_colours);
    m_rasterizer.drawTriangles(mesh({{0, 0, 0}, {0, 2, 0}, {2, 0, 0}}, {{0, 1, 2}}), fromAbove());
    QCOMPARE(m_rasterizer.image().size(), QSize(1, 1));
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::RasterizerTest;
ZORVANE_TEST(RasterizerTest)
#include "RasterizerTest.moc"
