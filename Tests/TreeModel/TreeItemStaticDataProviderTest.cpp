#include "TreeModel/TreeItemStaticDataProvider.h"

#include "Tests/Support/TestCase.h"
#include "Tests/TreeModel/RecordingRow.h"

using namespace Zorvane;
using namespace Zorvane::GenericTreeViewModelHandling;
using Testing::RecordedRows;
using Testing::RecordingRow;

class TreeItemStaticDataProviderTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void wantsNoFlags();
    void writesIntoEveryColumnInListOrder();
    void withoutColumnsWritesNothing();
    void neverRefreshes();
};

void TreeItemStaticDataProviderTest::wantsNoFlags()
{
    QCOMPARE(TreeItemStaticDataProvider({0}, 0, 1).getItemFlags(), Qt::ItemFlags());
}

void TreeItemStaticDataProviderTest::writesIntoEveryColumnInListOrder()
{
    RecordedRows rows({Identifier(1), Identifier(2)});
    TreeItemStaticDataProvider provider({2, 0}, Qt::UserRole, 7);
    provider.addDataTo(rows.list());
    const std::vector<RecordingRow::Write> expected{{2, Qt::UserRole, 7}, {0, Qt::UserRole, 7}};
    QVERIFY(rows[0].writes == expected);
    QVERIFY(rows[1].writes == expected);
    QCOMPARE(rows.writtenRows(), (QVector<int>{0, 0, 1, 1}));
    QVERIFY(!rows[0].data(1, Qt::UserRole).isValid());
}

void TreeItemStaticDataProviderTest::withoutColumnsWritesNothing()
{
    RecordedRows rows({Identifier(1)});
    TreeItemStaticDataProvider provider({}, Qt::UserRole, 7);
    provider.addDataTo(rows.list());
    QCOMPARE(rows.takeWriteCount(), std::size_t(0));
}

void TreeItemStaticDataProviderTest::neverRefreshes()
{
    RecordedRows rows({Identifier(1)});
    TreeItemStaticDataProvider provider({0}, Qt::UserRole, 7);
    provider.addDataTo(rows.list());
    rows.takeWriteCount();
    provider.updateDataOf(rows.list());
    QCOMPARE(rows.takeWriteCount(), std::size_t(0));
}

ZORVANE_TEST(TreeItemStaticDataProviderTest)
#include "TreeItemStaticDataProviderTest.moc"
