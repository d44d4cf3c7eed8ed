#include "TreeModel/WidgetStateDataProvider.h"

#include "Tests/Support/TestCase.h"
#include "Tests/TreeModel/RecordingRow.h"

#include <functional>

using namespace Zorvane;
using namespace Zorvane::GenericTreeViewModelHandling;
using Testing::RecordedRows;

class WidgetStateDataProviderTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void wantsNoFlags();
    void writesTheStateOfEachRowAsAnInt();
    void asksOncePerRowWithIdAndRow();
    void laterFunctionReplacesTheEarlierOne();
    void withoutFunctionFails();
    void withoutFunctionAndRowsDoesNothing();
    void neverRefreshesByItself();
};

void WidgetStateDataProviderTest::wantsNoFlags()
{
    QCOMPARE(WidgetStateDataProvider(0, 0).getItemFlags(), Qt::ItemFlags());
}

void WidgetStateDataProviderTest::writesTheStateOfEachRowAsAnInt()
{
    RecordedRows rows({Identifier(1), Identifier(2)});
    WidgetStateDataProvider provider(1, Qt::UserRole);
    provider.setStatiProviderFunction([](const IDCombiner& id, ZVTreeViewItem*) {
        return id == IDCombiner(Identifier(1)) ? ZVWidgetStatus::Missing | ZVWidgetStatus::Modified
                                               : ZVWidgetStatus::Stati();
    });
    provider.addDataTo(rows.list());
    QCOMPARE(rows[0].data(1, Qt::UserRole).userType(), int(QMetaType::Int));
    QCOMPARE(rows[0].data(1, Qt::UserRole).toInt(), 3);
    QCOMPARE(rows[1].data(1, Qt::UserRole).userType(), int(QMetaType::Int));
    QCOMPARE(rows[1].data(1, Qt::UserRole).toInt(), 0);
}

void WidgetStateDataProviderTest::asksOncePerRowWithIdAndRow()
{
    RecordedRows rows({Identifier(1), Identifier(2)});
    WidgetStateDataProvider::RowList asked;
    WidgetStateDataProvider provider(0, Qt::UserRole);
    provider.setStatiProviderFunction([&asked](const IDCombiner& id, ZVTreeViewItem* row) {
        asked.emplace_back(id, row);
        return ZVWidgetStatus::Stati();
    });
    provider.addDataTo(rows.list());
    QVERIFY(asked == rows.list());
    QCOMPARE(rows.writtenRows(), (QVector<int>{0, 1}));
}

void WidgetStateDataProviderTest::laterFunctionReplacesTheEarlierOne()
{
    const auto always = [](ZVWidgetStatus::Status status) {
        return
            [status](const IDCombiner&, ZVTreeViewItem*) { return ZVWidgetStatus::Stati(status); };
    };
    RecordedRows rows({Identifier(1)});
    WidgetStateDataProvider provider(0, Qt::UserRole);
    provider.setStatiProviderFunction(always(ZVWidgetStatus::Error));
    provider.setStatiProviderFunction(always(ZVWidgetStatus::Busy));
    provider.addDataTo(rows.list());
    QCOMPARE(rows[0].data(0, Qt::UserRole).toInt(), int(ZVWidgetStatus::Busy));
}

void WidgetStateDataProviderTest::withoutFunctionFails()
{
    RecordedRows rows({Identifier(1)});
    WidgetStateDataProvider provider(0, Qt::UserRole);
    QVERIFY_EXCEPTION_THROWN(provider.addDataTo(rows.list()), std::bad_function_call);
    QCOMPARE(rows.takeWriteCount(), std::size_t(0));
}

void WidgetStateDataProviderTest::withoutFunctionAndRowsDoesNothing()
{
    WidgetStateDataProvider provider(0, Qt::UserRole);
    provider.addDataTo({});
    provider.updateDataOf(RecordedRows({Identifier(1)}).list());
}

void WidgetStateDataProviderTest::neverRefreshesByItself()
{
    RecordedRows rows({Identifier(1)});
    int calls = 0;
    WidgetStateDataProvider provider(0, Qt::UserRole);
    provider.registerUpdateCallback([&calls] { ++calls; });
    provider.setStatiProviderFunction(
        [](const IDCombiner&, ZVTreeViewItem*) { return ZVWidgetStatus::Stati(); });
    provider.updateDataOf(rows.list());
    QCOMPARE(calls, 0);
    QCOMPARE(rows.takeWriteCount(), std::size_t(0));
}

ZORVANE_TEST(WidgetStateDataProviderTest)
#include "WidgetStateDataProviderTest.moc"
