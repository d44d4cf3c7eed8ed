#include "Utilities/IdentifierToColorMap.h"

#include "Tests/Support/TestCase.h"

#include <QtGui/QColor>

#include <algorithm>
#include <climits>
#include <rapidcheck.h>
#include <string>
#include <tuple>
#include <vector>

using namespace Zorvane;

namespace {

/** The rules in their plainest form: a vector of slots, searched from its beginning. */
class PlainSlots
{
public:
    int colorIndex(const std::string& id) { return id.empty() ? -1 : int(assign(id) % 8); }
    void setColorIndex(const std::string& id, int index)
    {
        unassign(id);
        auto slot = std::size_t(index);
        while (slot < m_slots.size() && !m_slots[slot].empty())
            slot += 8;
        if (slot >= m_slots.size())
            m_slots.resize(slot + 1);
        m_slots[slot] = id;
    }
    void reassign(const std::string& oldId, const std::string& newId)
    {
        const auto slot = find(oldId);
        if (oldId.empty() || slot == m_slots.end())
            assign(newId);
        else
            *slot = newId;
    }
    void unassign(const std::string& id)
    {
        const auto slot = find(id);
        if (slot != m_slots.end())
            slot->clear();
    }
    void clear() { m_slots.clear(); }

private:
    std::vector<std::string>::iterator find(const std::string& id)
    {
        return std::find(m_slots.begin(), m_slots.end(), id);
    }
    std::size_t assign(const std::string& id)
    {
        auto slot = find(id);
        if (slot == m_slots.end())
            slot = find({});
        if (slot == m_slots.end())
            slot = m_slots.insert(slot, id);
        *slot = id;
        return std::size_t(slot - m_slots.begin());
    }

    std::vector<std::string> m_slots;
};

/** One of few texts, so that they meet often; the empty one among them. */
std::string idOf(int number)
{
    return number == 0 ? std::string() : "part " + std::to_string(number);
}

void fill(IdentifierToColorMap& map, int count)
{
    for (int i = 1; i <= count; ++i)
        map.getColorIndex(idOf(i));
}

} // namespace

class IdentifierToColorMapTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void givesPaletteColorsInOrder_data();
    void givesPaletteColorsInOrder();
    void askingForAColorTakesASlot();
    void theNinthIdentifierSharesTheFirstColor();
    void keepsAnIdentifiersColor();
    void theEmptyTextHasNoColor();
    void aFreedSlotIsReusedFirst();
    void theLowestFreedSlotIsReusedFirst();
    void unassigningAnUnknownIdentifierDoesNothing();
    void movesToTheColorAskedFor_data();
    void movesToTheColorAskedFor();
    void movingLeavesTheOldSlotFree();
    void movingSkipsSlotsThatAreTaken();
    void movingTakesTheFirstFreeSlotOfItsColor();
    void slotsBeforeAMovedIdentifierAreFree();
    void farSlotsCostNothing();
    void handsAColorOver();
    void handingOverFromAnUnknownIdentifierAssigns();
    void handingOverToOneWithASlotKeepsBoth();
    void handingOverToTheEmptyTextFreesTheSlot();
    void handingOverToItselfChangesNothing();
    void clearForgetsEverything();
    void copiesAreIndependent();
    void oneInstanceIsShared();
    void colorsStayWhereTheyAre();
    void followsThePlainRules();
};

void IdentifierToColorMapTest::givesPaletteColorsInOrder_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QColor>("color");
    // clang-format off
    QTest::newRow("first")   << 1 << QColor(0x5f, 0x71, 0x9d);
    QTest::newRow("second")  << 2 << QColor(0xaf, 0x89, 0x59);
    QTest::newRow("third")   << 3 << QColor(0x65, 0x97, 0x68);
    QTest::newRow("fourth")  << 4 << QColor(0x97, 0x65, 0x93);
    QTest::newRow("fifth")   << 5 << QColor(0x5f, 0x8e, 0x83);
    QTest::newRow("sixth")   << 6 << QColor(0x91, 0x5e, 0x69);
    QTest::newRow("seventh") << 7 << QColor(0x82, 0x91, 0x64);
    QTest::newRow("eighth")  << 8 << QColor(0x80, 0x72, 0xa0);
    QTest::newRow("ninth")   << 9 << QColor(0x5f, 0x71, 0x9d);
    QTest::newRow("tenth")   << 10 << QColor(0xaf, 0x89, 0x59);
    // clang-format on
}

void IdentifierToColorMapTest::givesPaletteColorsInOrder()
{
    QFETCH(int, number);
    IdentifierToColorMap map;
    fill(map, number);
    QTEST(map.getColor(idOf(number)), "color");
}

void IdentifierToColorMapTest::askingForAColorTakesASlot()
{
    IdentifierToColorMap map;
    QCOMPARE(map.getColor("a"), QColor(QStringLiteral("#5f719d")));
    QCOMPARE(map.getColor("b"), QColor(QStringLiteral("#AF8959")));
    QCOMPARE(map.getColorIndex("b"), 1);
    QCOMPARE(map.getColorIndex("c"), 2);
}

void IdentifierToColorMapTest::theNinthIdentifierSharesTheFirstColor()
{
    IdentifierToColorMap map;
    for (int i = 0; i < 8; ++i)
        QCOMPARE(map.getColorIndex(idOf(i + 1)), i);
    QCOMPARE(map.getColorIndex(idOf(9)), 0);
}

void IdentifierToColorMapTest::keepsAnIdentifiersColor()
{
    IdentifierToColorMap map;
    fill(map, 20);
    for (int i = 20; i >= 1; --i)
        QCOMPARE(map.getColorIndex(idOf(i)), (i - 1) % 8);
}

void IdentifierToColorMapTest::theEmptyTextHasNoColor()
{
    IdentifierToColorMap map;
    QCOMPARE(map.getColorIndex({}), -1);
    QCOMPARE(map.getColor(std::string()), QColor(Qt::lightGray));
    map.setColorIndex({}, 0);
    map.reassignColor({}, {});
    map.unassignColor({});
    QCOMPARE(map.getColorIndex({}), -1);
    QCOMPARE(map.getColorIndex("first"), 0);
}

void IdentifierToColorMapTest::aFreedSlotIsReusedFirst()
{
    IdentifierToColorMap map;
    fill(map, 9);
    map.unassignColor(idOf(2));
    QCOMPARE(map.getColorIndex("new"), 1);
    QCOMPARE(map.getColorIndex("newer"), 1); // slot 9
}

void IdentifierToColorMapTest::theLowestFreedSlotIsReusedFirst()
{
    IdentifierToColorMap map;
    fill(map, 12);
    for (const int freed : {7, 11, 3})
        map.unassignColor(idOf(freed));
    QCOMPARE(map.getColorIndex("a"), 2);
    QCOMPARE(map.getColorIndex("b"), 6);
    QCOMPARE(map.getColorIndex("c"), 10 % 8);
    QCOMPARE(map.getColorIndex("d"), 12 % 8);
}

void IdentifierToColorMapTest::unassigningAnUnknownIdentifierDoesNothing()
{
    IdentifierToColorMap map;
    fill(map, 2);
    map.unassignColor("unknown");
    QCOMPARE(map.getColorIndex("new"), 2);
}

void IdentifierToColorMapTest::movesToTheColorAskedFor_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("color");
    QTest::newRow("first") << 0 << 0;
    QTest::newRow("fourth") << 3 << 3;
    QTest::newRow("last") << 7 << 7;
    QTest::newRow("beyond the palette") << 11 << 3;
    QTest::newRow("far beyond") << INT_MAX << 7;
    QTest::newRow("negative") << -1 << 7;
    QTest::newRow("most negative") << INT_MIN << 0;
}

void IdentifierToColorMapTest::movesToTheColorAskedFor()
{
    QFETCH(int, index);
    QFETCH(int, color);
    IdentifierToColorMap empty;
    empty.setColorIndex("id", index);
    QCOMPARE(empty.getColorIndex("id"), color);
    IdentifierToColorMap full;
    fill(full, 30);
    full.setColorIndex(idOf(12), index);
    QCOMPARE(full.getColorIndex(idOf(12)), color);
}

void IdentifierToColorMapTest::movingLeavesTheOldSlotFree()
{
    IdentifierToColorMap map;
    fill(map, 3);
    map.setColorIndex(idOf(1), 5);
    QCOMPARE(map.getColorIndex("new"), 0);
}

void IdentifierToColorMapTest::movingSkipsSlotsThatAreTaken()
{
    IdentifierToColorMap map;
    fill(map, 3);
    map.setColorIndex("a", 1);
    QCOMPARE(map.getColorIndex("a"), 1);
    QCOMPARE(map.getColorIndex(idOf(2)), 1);
    // It went to slot 9: the next new ones fill what lies before.
    for (const int color : {3, 4, 5, 6, 7, 0, 2})
        QCOMPARE(map.getColorIndex("new " + std::to_string(color)), color);
}

void IdentifierToColorMapTest::movingTakesTheFirstFreeSlotOfItsColor()
{
    IdentifierToColorMap map;
    fill(map, 20);
    map.unassignColor(idOf(12)); // slot 11
    map.setColorIndex("a", 3);
    map.unassignColor(idOf(4)); // slot 3
    map.setColorIndex("b", 11);
    QCOMPARE(map.getColorIndex("a"), 3);
    QCOMPARE(map.getColorIndex("b"), 3);
    // 11 was taken by a, so b went on to 19, though 3 was free.
    QCOMPARE(map.getColorIndex("c"), 3);
    QCOMPARE(map.getColorIndex("d"), 20 % 8);
}

void IdentifierToColorMapTest::slotsBeforeAMovedIdentifierAreFree()
{
    IdentifierToColorMap map;
    map.setColorIndex("id", 3);
    QCOMPARE(map.getColorIndex("id"), 3);
    for (const int color : {0, 1, 2, 4})
        QCOMPARE(map.getColorIndex("new " + std::to_string(color)), color);
}

void IdentifierToColorMapTest::farSlotsCostNothing()
{
    IdentifierToColorMap map;
    for (int i = 0; i < 100; ++i)
        map.setColorIndex(idOf(i + 1), INT_MAX - i);
    QCOMPARE(map.getColorIndex(idOf(1)), 7);
    QCOMPARE(map.getColorIndex(idOf(100)), (INT_MAX - 99) % 8);
    QCOMPARE(map.getColorIndex("new"), 0);
}

void IdentifierToColorMapTest::handsAColorOver()
{
    IdentifierToColorMap map;
    fill(map, 3);
    map.reassignColor(idOf(2), "new");
    QCOMPARE(map.getColorIndex("new"), 1);
    QCOMPARE(map.getColorIndex(idOf(2)), 3);
}

void IdentifierToColorMapTest::handingOverFromAnUnknownIdentifierAssigns()
{
    IdentifierToColorMap map;
    map.reassignColor("unknown", "a");
    QCOMPARE(map.getColorIndex("a"), 0);
    map.reassignColor({}, "b");
    QCOMPARE(map.getColorIndex("b"), 1);
    map.reassignColor("unknown", "a");
    QCOMPARE(map.getColorIndex("a"), 0);
    QCOMPARE(map.getColorIndex("unknown"), 2);
}

void IdentifierToColorMapTest::handingOverToOneWithASlotKeepsBoth()
{
    IdentifierToColorMap map;
    fill(map, 4);
    map.reassignColor(idOf(4), idOf(2));
    QCOMPARE(map.getColorIndex(idOf(2)), 1);
    map.reassignColor(idOf(1), idOf(2));
    QCOMPARE(map.getColorIndex(idOf(2)), 0);
    QCOMPARE(map.getColorIndex("new"), 4);
    // Slots come free one by one, the lowest first.
    map.unassignColor(idOf(2));
    QCOMPARE(map.getColorIndex(idOf(2)), 1);
    map.unassignColor(idOf(2));
    QCOMPARE(map.getColorIndex(idOf(2)), 3);
}

void IdentifierToColorMapTest::handingOverToTheEmptyTextFreesTheSlot()
{
    IdentifierToColorMap map;
    fill(map, 3);
    map.reassignColor(idOf(2), {});
    QCOMPARE(map.getColorIndex("new"), 1);
}

void IdentifierToColorMapTest::handingOverToItselfChangesNothing()
{
    IdentifierToColorMap map;
    fill(map, 3);
    map.reassignColor(idOf(2), idOf(2));
    QCOMPARE(map.getColorIndex(idOf(2)), 1);
    QCOMPARE(map.getColorIndex("new"), 3);
}

void IdentifierToColorMapTest::clearForgetsEverything()
{
    IdentifierToColorMap map;
    fill(map, 5);
    map.reassignColor(idOf(5), idOf(1));
    map.clear();
    QCOMPARE(map.getColorIndex(idOf(3)), 0);
    QCOMPARE(map.getColorIndex(idOf(1)), 1);
    map.unassignColor(idOf(1));
    QCOMPARE(map.getColorIndex(idOf(1)), 1);
}

void IdentifierToColorMapTest::copiesAreIndependent()
{
    IdentifierToColorMap map;
    fill(map, 2);
    IdentifierToColorMap copy = map;
    copy.unassignColor(idOf(1));
    QCOMPARE(copy.getColorIndex("new"), 0);
    QCOMPARE(map.getColorIndex(idOf(1)), 0);
    QCOMPARE(map.getColorIndex("new"), 2);
}

void IdentifierToColorMapTest::oneInstanceIsShared()
{
    IdentifierToColorMap& shared = IdentifierToColorMap::s_identifierToColorMap;
    QCOMPARE(shared.getColorIndex("id"), 0);
    IdentifierToColorMap own;
    own.setColorIndex("id", 5);
    QCOMPARE(IdentifierToColorMap::s_identifierToColorMap.getColorIndex("id"), 0);
    shared.clear();
}

void IdentifierToColorMapTest::colorsStayWhereTheyAre()
{
    IdentifierToColorMap map;
    const QColor* const first = &map.getColor("a");
    const QColor* const none = &map.getColor(std::string());
    fill(map, 1000);
    map.clear();
    QCOMPARE(&map.getColor("b"), first);
    QCOMPARE(&IdentifierToColorMap().getColor(std::string()), none);
}

void IdentifierToColorMapTest::followsThePlainRules()
{
    using Step = std::tuple<int, int, int, int>;
    constexpr int ids = 25;
    QVERIFY(rc::check([] {
        const auto steps = *rc::gen::container<std::vector<Step>>(
            rc::gen::tuple(rc::gen::inRange(0, 25), rc::gen::inRange(0, ids),
                           rc::gen::inRange(0, ids), rc::gen::inRange(0, 40)));
        IdentifierToColorMap map;
        PlainSlots plain;
        for (const auto& [deed, first, second, index] : steps) {
            const std::string id = idOf(first);
            if (deed < 10) {
                RC_ASSERT(map.getColorIndex(id) == plain.colorIndex(id));
            } else if (deed < 15) {
                map.setColorIndex(id, index);
                plain.setColorIndex(id, index);
            } else if (deed < 20) {
                map.reassignColor(id, idOf(second));
                plain.reassign(id, idOf(second));
            } else if (deed < 24) {
                map.unassignColor(id);
                plain.unassign(id);
            } else {
                map.clear();
                plain.clear();
            }
        }
        for (int i = 0; i < 2 * ids; ++i)
            RC_ASSERT(map.getColorIndex(idOf(i)) == plain.colorIndex(idOf(i)));
    }));
}

ZORVANE_TEST(IdentifierToColorMapTest)
#include "IdentifierToColorMapTest.moc"
