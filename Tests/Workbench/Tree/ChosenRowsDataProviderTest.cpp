#include "Workbench/Tree/ChosenRowsDataProvider.h"

#include "Host/Widgets/ZVTreeViewItem.h"
#include "Tests/Support/TestCase.h"

namespace Zorvane::Workbench {

namespace {

class Recorder : public ChosenRowsDataProvider::Provider
{
public:
    Qt::ItemFlags getItemFlags() override { return Qt::ItemIsUserCheckable; }
    void addDataTo(const RowList& rows) override { added = rows; }
    void updateDataOf(const RowList& rows) override { updated = rows; }
    void registerUpdateCallback(std::function<void()> newCallback) override
    {
        callback = std::move(newCallback);
    }

    RowList added;
    RowList updated;
    std::function<void()> callback;
};

} // namespace

class ChosenRowsDataProviderTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void handsOnTheRowsChosenInTheirOrder();
    void handsOnFlagsAndCallback();
};

void ChosenRowsDataProviderTest::handsOnTheRowsChosenInTheirOrder()
{
    const auto recorder = std::make_shared<Recorder>();
    ChosenRowsDataProvider provider(
        recorder, [](const IDCombiner& id) { return id.getIdentifier().getValue() % 2 == 1; });
    ZVTreeViewItem row;
    ChosenRowsDataProvider::RowList rows;
    for (std::uint64_t id = 1; id <= 5; ++id)
        rows.emplace_back(Identifier(id), &row);
    const ChosenRowsDataProvider::RowList odd{rows[0], rows[2], rows[4]};
    provider.addDataTo(rows);
    QVERIFY(recorder->added == odd);
    QVERIFY(recorder->updated.empty());
    provider.updateDataOf(rows);
    QVERIFY(recorder->updated == odd);
    provider.addDataTo({});
    QVERIFY(recorder->added.empty());
}

void ChosenRowsDataProviderTest::handsOnFlagsAndCallback()
{
    const auto recorder = std::make_shared<Recorder>();
    ChosenRowsDataProvider provider(recorder, [](const IDCombiner&) { return false; });
    QCOMPARE(provider.getItemFlags(), Qt::ItemFlags(Qt::ItemIsUserCheckable));
    int calls = 0;
    provider.registerUpdateCallback([&calls] { ++calls; });
    recorder->callback();
    QCOMPARE(calls, 1);
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::ChosenRowsDataProviderTest;
ZORVANE_TEST(ChosenRowsDataProviderTest)
#include "ChosenRowsDataProviderTest.moc"
