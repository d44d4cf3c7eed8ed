#include "TreeModel/FlagManipulationDataProvider.h"

#include "Tests/Support/TestCase.h"
#include "Tests/TreeModel/RecordingRow.h"

using namespace Zorvane;
using namespace Zorvane::GenericTreeViewModelHandling;
using Testing::RecordedRows;

Q_DECLARE_METATYPE(Qt::ItemFlags)

class FlagManipulationDataProviderTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void wantsNoFlags();
    void changesTheFlags_data();
    void changesTheFlags();
    void changesNothingAtFirst();
    void refreshAppliesTheSameEachTime();
    void callbackIsDropped();
};

void FlagManipulationDataProviderTest::wantsNoFlags()
{
    FlagManipulationDataProvider provider;
    provider.setFlagsToAdd(Qt::ItemIsUserCheckable);
    QCOMPARE(provider.getItemFlags(), Qt::ItemFlags());
}

void FlagManipulationDataProviderTest::changesTheFlags_data()
{
    QTest::addColumn<Qt::ItemFlags>("before");
    QTest::addColumn<Qt::ItemFlags>("add");
    QTest::addColumn<Qt::ItemFlags>("remove");
    QTest::addColumn<Qt::ItemFlags>("after");
    const Qt::ItemFlags none;
    const Qt::ItemFlags enabled = Qt::ItemIsEnabled;
    const Qt::ItemFlags checkable = Qt::ItemIsUserCheckable;
    const Qt::ItemFlags editable = Qt::ItemIsEditable;
    // clang-format off
    QTest::newRow("added to the present ones") << enabled              << checkable << none      << (enabled | checkable);
    QTest::newRow("added once more")           << (enabled | checkable) << checkable << none      << (enabled | checkable);
    QTest::newRow("removed")                   << (enabled | editable)  << none      << editable  << enabled;
    QTest::newRow("removed, but not there")    << enabled              << none      << editable  << enabled;
    QTest::newRow("one added, one removed")    << (enabled | editable)  << checkable << editable  << (enabled | checkable);
    QTest::newRow("same flag for both")        << enabled              << editable  << editable  << (enabled | editable);
    QTest::newRow("same flag for both, set")   << (enabled | editable)  << editable  << editable  << (enabled | editable);
    // clang-format on
}

void FlagManipulationDataProviderTest::changesTheFlags()
{
    QFETCH(Qt::ItemFlags, before);
    QFETCH(Qt::ItemFlags, add);
    QFETCH(Qt::ItemFlags, remove);
    QFETCH(Qt::ItemFlags, after);
    RecordedRows rows({Identifier(1), Identifier(2)});
    rows[0].setFlags(before);
    rows[1].setFlags(before);
    FlagManipulationDataProvider provider;
    provider.setFlagsToAdd(add);
    provider.setFlagsToRemove(remove);
    provider.addDataTo(rows.list());
    QCOMPARE(rows[0].flags(), after);
    QCOMPARE(rows[1].flags(), after);
    QCOMPARE(rows.takeWriteCount(), std::size_t(0));
}

void FlagManipulationDataProviderTest::changesNothingAtFirst()
{
    RecordedRows rows({Identifier(1)});
    const Qt::ItemFlags before = rows[0].flags();
    FlagManipulationDataProvider provider;
    provider.addDataTo(rows.list());
    QCOMPARE(rows[0].flags(), before);
}

void FlagManipulationDataProviderTest::refreshAppliesTheSameEachTime()
{
    RecordedRows rows({Identifier(1)});
    FlagManipulationDataProvider provider;
    provider.setFlagsToAdd(Qt::ItemIsUserCheckable);
    for (int time = 0; time < 2; ++time) {
        rows[0].setFlags(Qt::ItemIsEnabled);
        provider.updateDataOf(rows.list());
        QCOMPARE(rows[0].flags(), Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
    }
}

void FlagManipulationDataProviderTest::callbackIsDropped()
{
    const auto held = std::make_shared<int>(0);
    FlagManipulationDataProvider provider;
    provider.registerUpdateCallback([held] { ++*held; });
    provider.setFlagsToAdd(Qt::ItemIsUserCheckable);
    provider.setFlagsToRemove(Qt::ItemIsEditable);
    QCOMPARE(*held, 0);
    QCOMPARE(held.use_count(), 1L);
}

ZORVANE_TEST(FlagManipulationDataProviderTest)
#include "FlagManipulationDataProviderTest.moc"
