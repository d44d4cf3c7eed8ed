#include "Workbench/Tree/PartColours.h"

#include "Host/Configuration/ColorConfiguration.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Tree/TreeFixture.h"
#include "Utilities/IdentifierToColorMap.h"

#include <memory>

namespace Zorvane::Workbench {

using Testing::objectId;

class PartColoursTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void blanksPartsAndToolsHaveColoursInTheirOrder();
    void othersHaveNone();
    void coloursAreThoseOfTheSharedMap();
    void coloursStayOverReloadAndReordering();
    void coloursStayWhileAnObjectIsAway();
    void coloursAreGivenOutAgainAfterClosing();
    void looseMeshFilesHaveColours();
    void theColourTableKnowsThem();

private:
    int indexOf(int number) const { return indexOf(objectId(number)); }
    int indexOf(const GUIdentifier& id) const
    {
        return PartColours::colorId(m_colours->colourOf(id)) - PartColours::firstColorId;
    }
    void rewrite(const QJsonObject& design);

    std::unique_ptr<Testing::OpenedDesign> m_opened;
    std::unique_ptr<PartColours> m_colours;
};

void PartColoursTest::init()
{
    m_opened = std::make_unique<Testing::OpenedDesign>();
    m_colours = std::make_unique<PartColours>();
    m_colours->follow(m_opened->session);
}

void PartColoursTest::cleanup()
{
    m_colours.reset();
    m_opened.reset();
    TestCase::cleanup();
}

void PartColoursTest::rewrite(const QJsonObject& design)
{
    Testing::replaceFile(m_opened->designFile(), Testing::toText(design));
    m_opened->session.reload();
    m_colours->follow(m_opened->session);
}

void PartColoursTest::blanksPartsAndToolsHaveColoursInTheirOrder()
{
    const int objects[] = {2, 10, 21, 22};
    for (int place = 0; place < 4; ++place) {
        QCOMPARE(m_colours->colourOf(objectId(objects[place])),
                 PartColours::palette()[std::size_t(place)]);
        QCOMPARE(indexOf(objects[place]), place);
    }
}

void PartColoursTest::othersHaveNone()
{
    for (const int number : {1, 20, 30, 40, 99})
        QVERIFY(!m_colours->colourOf(objectId(number)).isValid());
    QVERIFY(!m_colours->colourOf(GUIdentifier()).isValid());
}

void PartColoursTest::coloursAreThoseOfTheSharedMap()
{
    IdentifierToColorMap& shared = IdentifierToColorMap::s_identifierToColorMap;
    shared.setColorIndex(objectId(10).getUUID(), 6);
    QCOMPARE(m_colours->colourOf(objectId(10)), PartColours::palette()[6]);
    QCOMPARE(m_colours->colourOf(objectId(21)), shared.getColor(objectId(21).getUUID()));
}

void PartColoursTest::coloursStayOverReloadAndReordering()
{
    QJsonObject design = Testing::smallDesign();
    QJsonArray parts = design[QLatin1String("parts")].toArray();
    parts.prepend(Testing::entry(11, QStringLiteral("Flange")));
    design[QLatin1String("parts")] = parts;
    QJsonArray operations = design[QLatin1String("operations")].toArray();
    QJsonObject draw = operations[0].toObject();
    const QJsonArray tools = draw[QLatin1String("tools")].toArray();
    draw[QLatin1String("tools")] = QJsonArray{tools[1], tools[0]};
    operations[0] = draw;
    design[QLatin1String("operations")] = operations;
    rewrite(design);
    QCOMPARE(m_opened->session.designs().front().parts.front().id, objectId(11));
    QCOMPARE(indexOf(10), 1);
    QCOMPARE(indexOf(21), 2);
    QCOMPARE(indexOf(22), 3);
    QCOMPARE(indexOf(11), 4);
}

void PartColoursTest::coloursStayWhileAnObjectIsAway()
{
    QJsonObject design = Testing::smallDesign();
    design[QLatin1String("parts")] = QJsonArray{Testing::entry(11, QStringLiteral("Flange"))};
    rewrite(design);
    QCOMPARE(indexOf(11), 4);
    rewrite(Testing::smallDesign());
    QCOMPARE(indexOf(10), 1);
}

void PartColoursTest::coloursAreGivenOutAgainAfterClosing()
{
    m_opened->session.close();
    m_colours->follow(m_opened->session);
    QVERIFY(!m_colours->colourOf(objectId(10)).isValid());
    QCOMPARE(IdentifierToColorMap::s_identifierToColorMap.getColorIndex("another"), 0);
    IdentifierToColorMap::s_identifierToColorMap.unassignColor("another");
}

void PartColoursTest::looseMeshFilesHaveColours()
{
    for (const char* name : {"many/a.stl", "many/b.stl"})
        Testing::writeFile(m_opened->path(QLatin1String(name)),
                           Testing::binaryStl(Testing::cube()));
    m_opened->session.open({m_opened->path(QStringLiteral("many"))});
    m_colours->follow(m_opened->session);
    QCOMPARE(indexOf(m_opened->session.looseParts()[0].id), 4);
    QCOMPARE(indexOf(m_opened->session.looseParts()[1].id), 5);
}

void PartColoursTest::theColourTableKnowsThem()
{
    const auto table = ColorConfiguration::getRegisteredInstance();
    for (const QColor& colour : PartColours::palette()) {
        QVERIFY(table->hasColor(PartColours::colorId(colour)));
        const ColorConfiguration::Color entry = table->getColor(PartColours::colorId(colour));
        QCOMPARE(QColor::fromRgbF(qreal(entry.red), qreal(entry.green), qreal(entry.blue)).rgb(),
                 colour.rgb());
    }
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::PartColoursTest;
ZORVANE_TEST(PartColoursTest)
#include "PartColoursTest.moc"
