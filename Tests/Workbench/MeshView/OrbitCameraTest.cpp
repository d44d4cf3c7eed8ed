#include "Workbench/MeshView/OrbitCamera.h"

#include "Tests/Support/TestCase.h"
#include "Workbench/MeshView/MeshViewOverlay.h"

#include <cmath>

Q_DECLARE_METATYPE(Zorvane::Workbench::ViewDirection)

namespace Zorvane::Workbench {

namespace {

const QSizeF s_viewport(400, 300);
const BoundingBox s_box{{-50, -20, 0}, {50, 20, 10}};

QPointF onScreen(const OrbitCamera& camera, const QVector3D& point)
{
    const QVector3D projected = camera.transform(s_viewport).project(point);
    return {double(projected.x()), double(projected.y())};
}

double distance(const QPointF& left, const QPointF& right)
{
    return std::hypot(left.x() - right.x(), left.y() - right.y());
}

QString axisText(const QVector3D& axis)
{
    const char letters[] = "xyz";
    for (int i = 0; i < 3; ++i)
        if (std::abs(axis[i]) > 0.99f)
            return QStringLiteral("%1%2").arg(axis[i] > 0 ? QStringLiteral("+")
                                                          : QStringLiteral("-"),
                                              QString(QLatin1Char(letters[i])));
    return QStringLiteral("slanted");
}

} // namespace

class OrbitCameraTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void standardDirectionsLookAlongTheirAxes_data();
    void standardDirectionsLookAlongTheirAxes();
    void fittingShowsTheWholeBoxFromEverySide();
    void fittingAPointOrNothingKeepsAUsableScale();
    void turningStopsStraightAboveAndBelow();
    void draggingMovesTheObjectAlong();
    void zoomingKeepsWhatIsUnderThePointer();
    void zoomingHasLimits();
    void nearerPointsHaveMoreDepth();
    void scaleBarsTakeRoundLengths_data();
    void scaleBarsTakeRoundLengths();
};

void OrbitCameraTest::standardDirectionsLookAlongTheirAxes_data()
{
    QTest::addColumn<ViewDirection>("direction");
    QTest::addColumn<QString>("right");
    QTest::addColumn<QString>("up");
    QTest::addColumn<QString>("toViewer");
    // clang-format off
    QTest::newRow("top")    << ViewDirection::Top    << "+x" << "+y" << "+z";
    QTest::newRow("bottom") << ViewDirection::Bottom << "+x" << "-y" << "-z";
    QTest::newRow("front")  << ViewDirection::Front  << "+x" << "+z" << "-y";
    QTest::newRow("back")   << ViewDirection::Back   << "-x" << "+z" << "+y";
    QTest::newRow("left")   << ViewDirection::Left   << "-y" << "+z" << "-x";
    QTest::newRow("right")  << ViewDirection::Right  << "+y" << "+z" << "+x";
    // clang-format on
}

void OrbitCameraTest::standardDirectionsLookAlongTheirAxes()
{
    QFETCH(ViewDirection, direction);
    OrbitCamera camera;
    camera.setDirection(direction);
    const ViewTransform view = camera.transform(s_viewport);
    QTEST(axisText(view.right), "right");
    QTEST(axisText(view.up), "up");
    QTEST(axisText(view.toViewer), "toViewer");
}

void OrbitCameraTest::fittingShowsTheWholeBoxFromEverySide()
{
    OrbitCamera camera;
    for (int step = 0; step < 50; ++step) {
        camera.orbit(step * 37, step % 2 ? 23 : -31);
        camera.fit(s_box, s_viewport);
        for (int corner = 0; corner < 8; ++corner) {
            const QVector3D point(corner & 1 ? 50 : -50, corner & 2 ? 20 : -20,
                                  corner & 4 ? 10 : 0);
            QVERIFY(QRectF({0, 0}, s_viewport).contains(onScreen(camera, point)));
        }
    }
}

void OrbitCameraTest::fittingAPointOrNothingKeepsAUsableScale()
{
    OrbitCamera camera;
    camera.fit({{5, 5, 5}, {5, 5, 5}}, s_viewport);
    QCOMPARE(camera.pixelsPerMm(), 1.0);
    QVERIFY(distance(onScreen(camera, {5, 5, 5}), {200, 150}) < 1e-3);
    camera.fit(s_box, QSizeF(0, 0));
    QCOMPARE(camera.pixelsPerMm(), 1.0);
}

void OrbitCameraTest::turningStopsStraightAboveAndBelow()
{
    OrbitCamera camera;
    camera.orbit(0, 1000);
    QCOMPARE(camera.pitch(), 90.0);
    camera.orbit(0, -1000);
    QCOMPARE(camera.pitch(), -90.0);
    camera.orbit(725, 0);
    QVERIFY(std::abs(camera.yaw()) <= 180);
}

void OrbitCameraTest::draggingMovesTheObjectAlong()
{
    OrbitCamera camera;
    camera.fit(s_box, s_viewport);
    const QPointF before = onScreen(camera, {1, 2, 3});
    camera.pan({30, -12});
    QVERIFY(distance(onScreen(camera, {1, 2, 3}), before + QPointF(30, -12)) < 1e-2);
}

void OrbitCameraTest::zoomingKeepsWhatIsUnderThePointer()
{
    OrbitCamera camera;
    camera.fit(s_box, s_viewport);
    const QVector3D point(40, -15, 7);
    const QPointF cursor = onScreen(camera, point);
    camera.zoomAt(cursor, 3, s_viewport);
    QVERIFY(distance(onScreen(camera, point), cursor) < 1e-1);
    camera.zoomAt(cursor, 0.2, s_viewport);
    QVERIFY(distance(onScreen(camera, point), cursor) < 1e-1);
}

void OrbitCameraTest::zoomingHasLimits()
{
    OrbitCamera camera;
    camera.fit(s_box, s_viewport);
    const double fitted = camera.pixelsPerMm();
    for (int step = 0; step < 200; ++step)
        camera.zoomAt({0, 0}, 2, s_viewport);
    QVERIFY(camera.pixelsPerMm() < fitted * 1e4);
    for (int step = 0; step < 400; ++step)
        camera.zoomAt({0, 0}, 0.5, s_viewport);
    QVERIFY(camera.pixelsPerMm() > fitted * 1e-2);
}

void OrbitCameraTest::nearerPointsHaveMoreDepth()
{
    OrbitCamera camera;
    camera.setDirection(ViewDirection::Top);
    const ViewTransform view = camera.transform(s_viewport);
    QVERIFY(view.project({0, 0, 5}).z() > view.project({0, 0, -5}).z());
}

void OrbitCameraTest::scaleBarsTakeRoundLengths_data()
{
    QTest::addColumn<double>("pixelsPerMm");
    QTest::addColumn<double>("millimetres");
    QTest::newRow("ten pixels a millimetre") << 10.0 << 10.0;
    QTest::newRow("two fits") << 70.0 << 2.0;
    QTest::newRow("five fits") << 30.0 << 5.0;
    QTest::newRow("metres") << 0.05 << 2000.0;
    QTest::newRow("parts of a millimetre") << 3000.0 << 0.05;
}

void OrbitCameraTest::scaleBarsTakeRoundLengths()
{
    QFETCH(double, pixelsPerMm);
    QFETCH(double, millimetres);
    const ScaleBar bar = scaleBarFor(pixelsPerMm, 160);
    QCOMPARE(bar.millimetres, millimetres);
    QCOMPARE(bar.pixels, millimetres * pixelsPerMm);
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::OrbitCameraTest;
ZORVANE_TEST(OrbitCameraTest)
#include "OrbitCameraTest.moc"
