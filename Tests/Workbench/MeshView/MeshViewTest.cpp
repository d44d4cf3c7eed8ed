#include "Workbench/MeshView/MeshView.h"

#include "Tests/Support/TestCase.h"
#include "Workbench/MeshView/MeshViewOverlay.h"
#include "Workbench/Texts/SizeText.h"

#include <QtGui/QPainter>
#include <QtGui/QWheelEvent>

#include <functional>
#include <set>

namespace Zorvane::Workbench {

namespace {

std::shared_ptr<TriangleMesh> block()
{
    auto mesh = std::make_shared<TriangleMesh>();
    for (int corner = 0; corner < 8; ++corner)
        mesh->points.push_back(
            {corner & 1 ? 60.f : 0.f, corner & 2 ? 40.f : 0.f, corner & 4 ? 20.f : 0.f});
    mesh->triangles = {{0, 2, 1}, {1, 2, 3}, {4, 5, 6}, {5, 7, 6}, {0, 1, 4}, {1, 5, 4},
                       {2, 6, 3}, {3, 6, 7}, {0, 4, 2}, {2, 4, 6}, {1, 3, 5}, {3, 7, 5}};
    return mesh;
}

std::size_t colourCount(const QImage& image)
{
    std::set<QRgb> colours;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            colours.insert(image.pixel(x, y));
    return colours.size();
}

/** QTest moves the real pointer, which needs a window on a screen. */
void move(QWidget* widget, const QPoint& to, Qt::MouseButtons buttons)
{
    QMouseEvent event(QEvent::MouseMove, to, widget->mapToGlobal(to), Qt::NoButton, buttons,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

/** Where something is left on a white ground. */
QRect inkOf(const std::function<void(QPainter&, const QRect&)>& draw)
{
    QImage image(400, 300, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    draw(painter, image.rect());
    QRect drawn;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) != Qt::white)
                drawn |= QRect(x, y, 1, 1);
    return drawn;
}

QRect captionFor(const QString& size, int room)
{
    return inkOf([&](QPainter& painter, QRect area) {
        area.setWidth(room);
        drawCaption(painter, area, QStringLiteral("Part"), size);
    });
}

/** Without the room that a font leaves above and below. */
int heightOfDigits(int pixelSize)
{
    QFont font;
    font.setPixelSize(pixelSize);
    return QFontMetrics(font).tightBoundingRect(QStringLiteral("500")).height();
}

QPalette darkPalette()
{
    return QPalette(QColor(0x30, 0x30, 0x30), QColor(0x20, 0x20, 0x20));
}

} // namespace

class MeshViewTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void showsAMessageWithoutAMesh();
    void showsAMeshOnADifferentBackgroundInADarkPalette();
    void tellsWhatItShowsToScreenReaders();
    void aMeshWithoutTrianglesIsToldSo();
    void theSameMeshAgainKeepsTheView();
    void keysTurnMoveZoomAndFit_data();
    void keysTurnMoveZoomAndFit();
    void otherKeysAreLeftToOthers();
    void draggingTurns();
    void draggingWithShiftMoves();
    void theWheelZooms();
    void resizingFitsAgainUntilTheViewIsTurned();
    void picturesFollowTheScreensPixels();
    void aTabStopWithVisibleFocus();
    void figuresAreNeverCut();
    void theScaleIsWholeInAnyFont();

private:
    QImage picture() { return m_view->grab().toImage(); }

    std::unique_ptr<MeshView> m_view;
};

void MeshViewTest::init()
{
    m_view = std::make_unique<MeshView>();
    m_view->setPalette(QPalette(QColor(0xe0, 0xe0, 0xe0), QColor(0xf0, 0xf0, 0xf0)));
    m_view->resize(300, 200);
}

void MeshViewTest::cleanup()
{
    m_view.reset();
    TestCase::cleanup();
}

void MeshViewTest::showsAMessageWithoutAMesh()
{
    const QImage initial = picture();
    m_view->showMessage(QStringLiteral("The file is missing."));
    QVERIFY(picture() != initial);
    QVERIFY(!m_view->hasMesh());
    QCOMPARE(m_view->accessibleDescription(), QStringLiteral("The file is missing."));
}

void MeshViewTest::showsAMeshOnADifferentBackgroundInADarkPalette()
{
    m_view->setMesh(block(), QStringLiteral("Block"));
    const QImage light = picture();
    QVERIFY(colourCount(light) > 50);
    m_view->setPalette(darkPalette());
    const QImage dark = picture();
    QVERIFY(colourCount(dark) > 50);
    QVERIFY(qGray(light.pixel(290, 10)) > 180);
    QVERIFY(qGray(dark.pixel(290, 10)) < 90);
}

void MeshViewTest::tellsWhatItShowsToScreenReaders()
{
    QCOMPARE(m_view->accessibleName(), QStringLiteral("Mesh view"));
    m_view->setMesh(block(), QStringLiteral("Block"));
    const QString description = m_view->accessibleDescription();
    QVERIFY(description.startsWith(QStringLiteral("Block, 60 × 40 × 20 mm, 12 triangles")));
    QVERIFY(description.contains(QStringLiteral("Arrow keys turn")));
}

void MeshViewTest::aMeshWithoutTrianglesIsToldSo()
{
    m_view->setMesh(std::make_shared<TriangleMesh>(), QStringLiteral("Nothing"));
    QVERIFY(!m_view->hasMesh());
    QVERIFY(!m_view->accessibleDescription().isEmpty());
    picture();
}

void MeshViewTest::theSameMeshAgainKeepsTheView()
{
    const auto mesh = block();
    m_view->setMesh(mesh, QStringLiteral("Block"));
    m_view->zoomIn();
    const double zoomed = m_view->camera().pixelsPerMm();
    m_view->setMesh(mesh, QStringLiteral("Renamed"));
    QCOMPARE(m_view->camera().pixelsPerMm(), zoomed);
    m_view->setMesh(block(), QStringLiteral("Other"));
    QVERIFY(m_view->camera().pixelsPerMm() < zoomed);
}

void MeshViewTest::keysTurnMoveZoomAndFit_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("opposite");
    QTest::addColumn<bool>("control");
    QTest::newRow("turn left and right") << int(Qt::Key_Left) << int(Qt::Key_Right) << false;
    QTest::newRow("turn up and down") << int(Qt::Key_Up) << int(Qt::Key_Down) << false;
    QTest::newRow("move left and right") << int(Qt::Key_Left) << int(Qt::Key_Right) << true;
    QTest::newRow("move up and down") << int(Qt::Key_Up) << int(Qt::Key_Down) << true;
    QTest::newRow("zoom") << int(Qt::Key_Plus) << int(Qt::Key_Minus) << false;
    QTest::newRow("zoom and fit") << int(Qt::Key_Plus) << int(Qt::Key_Home) << false;
}

void MeshViewTest::keysTurnMoveZoomAndFit()
{
    QFETCH(int, key);
    QFETCH(int, opposite);
    QFETCH(bool, control);
    const Qt::KeyboardModifier modifier = control ? Qt::ControlModifier : Qt::NoModifier;
    m_view->setMesh(block(), QStringLiteral("Block"));
    const ViewTransform before = m_view->camera().transform(QSizeF(300, 200));
    const QVector3D corner = before.project({60, 40, 20});
    QTest::keyClick(m_view.get(), Qt::Key(key), modifier);
    const auto now = [&] {
        return m_view->camera().transform(QSizeF(300, 200)).project({60, 40, 20});
    };
    QVERIFY((now() - corner).length() > 1);
    QTest::keyClick(m_view.get(), Qt::Key(opposite), modifier);
    QVERIFY((now() - corner).length() < 0.1f);
}

void MeshViewTest::otherKeysAreLeftToOthers()
{
    QKeyEvent letter(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
    QCoreApplication::sendEvent(m_view.get(), &letter);
    QVERIFY(!letter.isAccepted());
}

void MeshViewTest::draggingTurns()
{
    m_view->setMesh(block(), QStringLiteral("Block"));
    const QImage before = picture();
    const double yaw = m_view->camera().yaw();
    QTest::mousePress(m_view.get(), Qt::LeftButton, {}, {100, 100});
    move(m_view.get(), {150, 100}, Qt::LeftButton);
    QTest::mouseRelease(m_view.get(), Qt::LeftButton, {}, {150, 100});
    QVERIFY(m_view->camera().yaw() < yaw - 5);
    QVERIFY(picture() != before);
    const double turned = m_view->camera().yaw();
    move(m_view.get(), {20, 20}, Qt::NoButton);
    QCOMPARE(m_view->camera().yaw(), turned);
}

void MeshViewTest::draggingWithShiftMoves()
{
    m_view->setMesh(block(), QStringLiteral("Block"));
    const double yaw = m_view->camera().yaw();
    const ViewTransform before = m_view->camera().transform(QSizeF(300, 200));
    QTest::mousePress(m_view.get(), Qt::LeftButton, Qt::ShiftModifier, {100, 100});
    move(m_view.get(), {120, 90}, Qt::LeftButton);
    const ViewTransform after = m_view->camera().transform(QSizeF(300, 200));
    const QVector3D way = after.project({}) - before.project({});
    QVERIFY((QVector3D(way.x(), way.y(), 0) - QVector3D(20, -10, 0)).length() < 0.1f);
    QCOMPARE(m_view->camera().yaw(), yaw);
}

void MeshViewTest::theWheelZooms()
{
    m_view->setMesh(block(), QStringLiteral("Block"));
    const double before = m_view->camera().pixelsPerMm();
    QWheelEvent towards({50, 50}, m_view->mapToGlobal(QPoint(50, 50)), {}, {0, 120}, Qt::NoButton,
                        Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(m_view.get(), &towards);
    QVERIFY(m_view->camera().pixelsPerMm() > before);
    QWheelEvent sideways({50, 50}, m_view->mapToGlobal(QPoint(50, 50)), {}, {120, 0}, Qt::NoButton,
                         Qt::NoModifier, Qt::NoScrollPhase, false);
    const double zoomed = m_view->camera().pixelsPerMm();
    QCoreApplication::sendEvent(m_view.get(), &sideways);
    QCOMPARE(m_view->camera().pixelsPerMm(), zoomed);
}

void MeshViewTest::resizingFitsAgainUntilTheViewIsTurned()
{
    m_view->setMesh(block(), QStringLiteral("Block"));
    m_view->show();
    const double small = m_view->camera().pixelsPerMm();
    m_view->resize(600, 400);
    QVERIFY(m_view->camera().pixelsPerMm() > small * 1.5);
    m_view->turn(10, 0);
    const double turned = m_view->camera().pixelsPerMm();
    m_view->resize(300, 200);
    QCOMPARE(m_view->camera().pixelsPerMm(), turned);
}

void MeshViewTest::picturesFollowTheScreensPixels()
{
    m_view->setMesh(block(), QStringLiteral("Block"));
    QImage fine(600, 400, QImage::Format_RGB32);
    fine.setDevicePixelRatio(2);
    m_view->render(&fine);
    QVERIFY(colourCount(fine) > 50);
}

void MeshViewTest::aTabStopWithVisibleFocus()
{
    QVERIFY(m_view->focusPolicy() & Qt::TabFocus);
    m_view->show();
    m_view->activateWindow();
    m_view->clearFocus();
    const QImage without = picture();
    m_view->setFocus();
    QTRY_VERIFY(m_view->hasFocus());
    QVERIFY(picture() != without);
}

void MeshViewTest::figuresAreNeverCut()
{
    const QString size = sizeText({1370, 1198, 141}, QLocale::c());
    const QRect whole = captionFor(size, 400);
    const int room = whole.right() * 3 / 4;
    const QRect narrow = captionFor(size, room);
    QVERIFY(narrow.right() < room);
    QVERIFY2(narrow.bottom() > whole.bottom(), "goes on in another line");
}

void MeshViewTest::theScaleIsWholeInAnyFont()
{
    for (const int pixelSize : {12, 30, 60}) {
        const QRect drawn = inkOf([pixelSize](QPainter& painter, const QRect& area) {
            QFont font = painter.font();
            font.setPixelSize(pixelSize);
            painter.setFont(font);
            drawScaleBar(painter, area, 0.3, Qt::black);
        });
        QVERIFY2(drawn.height() >= heightOfDigits(pixelSize),
                 qPrintable(QString::number(pixelSize)));
    }
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::MeshViewTest;
ZORVANE_TEST(MeshViewTest)
#include "MeshViewTest.moc"
