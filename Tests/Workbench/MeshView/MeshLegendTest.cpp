#include "Workbench/MeshView/MeshLegend.h"

#include "Host/Identifiers/GUIdentifier.h"
#include "Tests/Support/TestCase.h"
#include "Workbench/MeshView/MeshView.h"

namespace Zorvane::Workbench {

namespace {

std::vector<LegendEntry> entries(int count)
{
    std::vector<LegendEntry> all;
    for (int number = 0; number < count; ++number)
        all.push_back({GUIdentifier::create(), QStringLiteral("Part %1").arg(number),
                       QColor::fromHsv(number * 37 % 360, 160, 160), number == 1});
    return all;
}

std::shared_ptr<TriangleMesh> triangle()
{
    auto mesh = std::make_shared<TriangleMesh>();
    mesh->points = {{0, 0, 0}, {60, 0, 0}, {0, 60, 0}};
    mesh->triangles = {{0, 1, 2}};
    return mesh;
}

} // namespace

class MeshLegendTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void isHiddenWithoutEntries();
    void tellsNamesAndColours();
    void marksWhatIsShown();
    void aClickChoosesAnObject();
    void keysChooseAnObject();
    void staysInTheUpperCorner_data();
    void staysInTheUpperCorner();
    void manyEntriesLeaveRoomForTheMesh();
    void aMessageHasNoLegend();
    void theSameEntriesKeepTheKeyboardsPlace();
    void theMeshIsDrawnInItsColour_data();
    void theMeshIsDrawnInItsColour();

private:
    MeshLegend* legend() const { return m_view->findChild<MeshLegend*>(); }

    std::unique_ptr<MeshView> m_view;
};

void MeshLegendTest::init()
{
    m_view = std::make_unique<MeshView>();
    m_view->resize(500, 400);
    m_view->setMesh(triangle(), QStringLiteral("Triangle"));
    m_view->setLegend(entries(4));
    m_view->show();
}

void MeshLegendTest::cleanup()
{
    m_view.reset();
    TestCase::cleanup();
}

void MeshLegendTest::isHiddenWithoutEntries()
{
    QVERIFY(legend()->isVisible());
    m_view->setLegend({});
    QVERIFY(!legend()->isVisible());
}

void MeshLegendTest::tellsNamesAndColours()
{
    const std::vector<LegendEntry> wanted = legend()->entries();
    QCOMPARE(legend()->count(), 4);
    for (int row = 0; row < 4; ++row) {
        QCOMPARE(legend()->item(row)->text(), wanted[std::size_t(row)].name);
        const QPixmap patch = legend()->item(row)->icon().pixmap(12, 12);
        const QColor middle = patch.toImage().pixelColor(6, 6);
        const QColor colour = wanted[std::size_t(row)].colour;
        QVERIFY2(std::abs(middle.hsvHue() - colour.hsvHue()) < 4, qPrintable(middle.name()));
    }
}

void MeshLegendTest::marksWhatIsShown()
{
    for (int row = 0; row < 4; ++row)
        QCOMPARE(legend()->item(row)->font().bold(), row == 1);
    QCOMPARE(legend()->currentRow(), 1);
}

void MeshLegendTest::aClickChoosesAnObject()
{
    IDCombiner chosen;
    connect(m_view.get(), &MeshView::objectChosen, this,
            [&chosen](const IDCombiner& id) { chosen = id; });
    QTest::mouseClick(legend()->viewport(), Qt::LeftButton, {},
                      legend()->visualItemRect(legend()->item(2)).center());
    QVERIFY(chosen == legend()->entries()[2].id);
}

void MeshLegendTest::keysChooseAnObject()
{
    IDCombiner chosen;
    connect(m_view.get(), &MeshView::objectChosen, this,
            [&chosen](const IDCombiner& id) { chosen = id; });
    QTest::keyClick(legend(), Qt::Key_Down);
    QTest::keyClick(legend(), Qt::Key_Return);
    QVERIFY(chosen == legend()->entries()[2].id);
}

void MeshLegendTest::staysInTheUpperCorner_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void MeshLegendTest::staysInTheUpperCorner()
{
    QFETCH(Qt::LayoutDirection, direction);
    m_view->setLayoutDirection(direction);
    m_view->resize(640, 480);
    const QRect place = legend()->geometry();
    QVERIFY(m_view->rect().contains(place));
    QVERIFY(place.top() < 20);
    QCOMPARE(place.center().x() > m_view->width() / 2, direction == Qt::LeftToRight);
}

void MeshLegendTest::manyEntriesLeaveRoomForTheMesh()
{
    m_view->setLegend(entries(200));
    QVERIFY(legend()->height() <= m_view->height() / 2);
    QVERIFY(legend()->width() <= m_view->width() / 2);
}

void MeshLegendTest::aMessageHasNoLegend()
{
    m_view->showMessage(QStringLiteral("No mesh."));
    QVERIFY(!legend()->isVisible());
}

void MeshLegendTest::theSameEntriesKeepTheKeyboardsPlace()
{
    legend()->setCurrentRow(3);
    m_view->setLegend(std::vector<LegendEntry>(legend()->entries()));
    QCOMPARE(legend()->currentRow(), 3);
}

void MeshLegendTest::theMeshIsDrawnInItsColour_data()
{
    QTest::addColumn<QColor>("colour");
    QTest::newRow("green") << QColor(0x65, 0x97, 0x68);
    QTest::newRow("violet") << QColor(0x97, 0x65, 0x93);
}

void MeshLegendTest::theMeshIsDrawnInItsColour()
{
    QFETCH(QColor, colour);
    m_view->setLegend({});
    m_view->setMesh(triangle(), QStringLiteral("Triangle"), colour);
    m_view->setDirection(ViewDirection::Top);
    const QImage picture = m_view->grab().toImage();
    const QColor drawn = picture.pixelColor(picture.width() / 2 - 20, picture.height() / 2 + 20);
    QVERIFY2(std::abs(drawn.hslHue() - colour.hslHue()) < 8, qPrintable(drawn.name()));
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::MeshLegendTest;
ZORVANE_TEST(MeshLegendTest)
#include "MeshLegendTest.moc"
