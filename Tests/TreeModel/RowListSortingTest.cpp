#include "TreeModel/RowListSorting.h"
#include "Tests/Support/TestCase.h"

#include <rapidcheck.h>

#include <algorithm>

using namespace Zorvane;
using namespace Zorvane::GenericTreeViewModelHandling;

namespace {

using RowList = ZVTreeItemDataProviderInterface::RowList;

/** Rows are only carried along, so any number will do for an address. */
ZVTreeViewItem* rowNumber(std::size_t number)
{
    return reinterpret_cast<ZVTreeViewItem*>(number);
}

IDCombiner anyId()
{
    switch (*rc::gen::inRange(0, 4)) {
    case 0:
        return GUIdentifier::create();
    case 1:
        return {};
    default:
        return Identifier(*rc::gen::arbitrary<std::uint64_t>(), *rc::gen::inRange<quint16>(0, 3));
    }
}

} // namespace

class RowListSortingTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void anyListComesOutSortedWithItsRows();
    void longListsAreSortedAsShortOnes_data();
    void longListsAreSortedAsShortOnes();
};

void RowListSortingTest::anyListComesOutSortedWithItsRows()
{
    const bool held = rc::check("any list", [] {
        RowList rows;
        for (int i = *rc::gen::inRange(0, 50); i > 0; --i)
            rows.emplace_back(anyId(), rowNumber(std::size_t(i)));
        RowList expected = rows;
        sortById(rows);
        RC_ASSERT(std::is_sorted(rows.begin(), rows.end(),
                                 [](const auto& a, const auto& b) { return a.first < b.first; }));
        std::sort(rows.begin(), rows.end());
        std::sort(expected.begin(), expected.end());
        const bool same = rows == expected;
        RC_ASSERT(same);
    });
    QVERIFY(held);
}

void RowListSortingTest::longListsAreSortedAsShortOnes_data()
{
    QTest::addColumn<quint64>("factor");
    QTest::addColumn<int>("subValues");
    QTest::newRow("scattered over 64 bits") << quint64(0x9e3779b97f4a7c15) << 1;
    QTest::newRow("small numbers, backwards") << ~quint64(0) << 1;
    QTest::newRow("told apart by sub-values") << quint64(0x9e3779b97f4a7c15) << 5;
    QTest::newRow("one value only") << quint64(0) << 3;
}

void RowListSortingTest::longListsAreSortedAsShortOnes()
{
    QFETCH(quint64, factor);
    QFETCH(int, subValues);
    RowList rows;
    for (std::size_t i = 1; i <= 5000; ++i) {
        const auto subValue = quint16(subValues - int(i % std::size_t(subValues)));
        rows.emplace_back(Identifier((i / std::size_t(subValues)) * factor, subValue),
                          rowNumber(i));
    }
    RowList expected = rows;
    std::stable_sort(expected.begin(), expected.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    sortById(rows);
    QCOMPARE(rows.size(), expected.size());
    for (std::size_t i = 0; i < rows.size(); ++i)
        QVERIFY(rows[i].first == expected[i].first);
    std::sort(rows.begin(), rows.end());
    std::sort(expected.begin(), expected.end());
    QVERIFY(rows == expected);
}

ZORVANE_TEST(RowListSortingTest)
#include "RowListSortingTest.moc"
