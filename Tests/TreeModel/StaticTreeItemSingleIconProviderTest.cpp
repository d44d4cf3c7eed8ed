#include "TreeModel/StaticTreeItemSingleIconProvider.h"

#include "Tests/Support/TestCase.h"
#include "Tests/TreeModel/RecordingRow.h"

#include <QtGui/QPixmap>

using namespace Zorvane;
using namespace Zorvane::GenericTreeViewModelHandling;
using Testing::RecordedRows;

class StaticTreeItemSingleIconProviderTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void wantsNoFlags();
    void writesTheIconToEveryRow();
    void startsWithANullIcon();
    void newIconAsksForARefresh();
    void callbackMayRefreshAtOnce();
};

void StaticTreeItemSingleIconProviderTest::wantsNoFlags()
{
    QCOMPARE(StaticTreeItemSingleIconProvider(0, 0).getItemFlags(), Qt::ItemFlags());
}

void StaticTreeItemSingleIconProviderTest::writesTheIconToEveryRow()
{
    const QIcon icon(QPixmap(4, 4));
    RecordedRows rows({Identifier(1), Identifier(2)});
    StaticTreeItemSingleIconProvider provider(1, Qt::DecorationRole);
    provider.setIcon(icon);
    provider.addDataTo(rows.list());
    for (std::size_t row = 0; row < 2; ++row) {
        QCOMPARE(rows[row].writes.size(), std::size_t(1));
        QCOMPARE(rows[row].data(1, Qt::DecorationRole).value<QIcon>().cacheKey(), icon.cacheKey());
    }
    QCOMPARE(rows.writtenRows(), (QVector<int>{0, 1}));
}

void StaticTreeItemSingleIconProviderTest::startsWithANullIcon()
{
    RecordedRows rows({Identifier(1)});
    StaticTreeItemSingleIconProvider provider(1, Qt::DecorationRole);
    provider.addDataTo(rows.list());
    QCOMPARE(rows[0].data(1, Qt::DecorationRole).userType(), int(QMetaType::QIcon));
    QVERIFY(rows[0].data(1, Qt::DecorationRole).value<QIcon>().isNull());
}

void StaticTreeItemSingleIconProviderTest::newIconAsksForARefresh()
{
    RecordedRows rows({Identifier(1), Identifier(2)});
    int calls = 0;
    StaticTreeItemSingleIconProvider provider(0, Qt::DecorationRole);
    provider.registerUpdateCallback([&calls] { ++calls; });
    provider.updateDataOf(rows.list());
    QCOMPARE(rows.takeWriteCount(), std::size_t(0));
    provider.setIcon(QIcon(QPixmap(4, 4)));
    QCOMPARE(calls, 1);
    provider.updateDataOf(rows.list());
    provider.updateDataOf(rows.list());
    QCOMPARE(rows.takeWriteCount(), std::size_t(2));
}

void StaticTreeItemSingleIconProviderTest::callbackMayRefreshAtOnce()
{
    const QIcon icon(QPixmap(4, 4));
    RecordedRows rows({Identifier(1)});
    StaticTreeItemSingleIconProvider provider(0, Qt::DecorationRole);
    provider.registerUpdateCallback([&] { provider.updateDataOf(rows.list()); });
    provider.setIcon(icon);
    QCOMPARE(rows[0].data(0, Qt::DecorationRole).value<QIcon>().cacheKey(), icon.cacheKey());
}

ZORVANE_TEST(StaticTreeItemSingleIconProviderTest)
#include "StaticTreeItemSingleIconProviderTest.moc"
