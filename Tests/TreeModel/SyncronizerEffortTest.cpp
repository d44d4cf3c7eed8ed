// What a refresh may cost, in steps that can be counted: how often rows are asked for their id, and
// how often memory is allocated.

#include "Host/Widgets/ZVTreeViewModel.h"
#include "Tests/Support/TestCase.h"
#include "Tests/TreeModel/CountedAllocations.h"
#include "Tests/TreeModel/DataProviderFixtures.h"
#include "TreeModel/ModelItemToZVTreeModelSyncronizer.h"

#include <algorithm>
#include <random>

using namespace Zorvane;
using namespace Zorvane::GenericTreeViewModelHandling;
using namespace Zorvane::Testing;

namespace {

constexpr int IdRole = ModelItemToZVTreeModelSyncronizer::DefaultIdRole;

using Items = std::vector<std::shared_ptr<ModelItem>>;

/** Counts how often anybody reads an id. */
class CountingRow : public ZVTreeViewItem
{
public:
    explicit CountingRow(int& reads)
        : m_reads(reads)
    {}

    QVariant data(int column, int role) const override
    {
        m_reads += role == IdRole ? 1 : 0;
        return ZVTreeViewItem::data(column, role);
    }

private:
    int& m_reads;
};

/** Items 1 to `count`; with `distinct` below that, their ids repeat. */
Items numbered(int count, int distinct)
{
    Items items;
    for (int i = 0; i < count; ++i)
        items.push_back(
            std::make_shared<ModelItem>(Identifier(std::uint64_t(i % distinct + 1)), "row"));
    return items;
}

Items numbered(int count)
{
    return numbered(count, count);
}

std::shared_ptr<ModelRoot> rootOf(const Items& items)
{
    auto root = std::make_shared<ModelRoot>();
    root->addTopLevelItems(items);
    return root;
}

class Scene
{
public:
    Scene() { syncronizer.setDataProvider(std::make_shared<NoData>()); }

    void fillWithCountingRows(const Items& items)
    {
        QVector<ZVTreeViewItem*> rows;
        for (const auto& item : items) {
            rows.append(new CountingRow(reads));
            rows.back()->setId(IdRole, item->getId());
        }
        model.rootItem()->appendChildren(rows);
    }

    int readsOfRefresh(const Items& items)
    {
        reads = 0;
        syncronizer.syncronizeViewModel(&model, rootOf(items));
        return reads;
    }

    std::size_t allocationsOfRefresh(const Items& items)
    {
        const auto root = rootOf(items);
        const std::size_t before = countedAllocations();
        syncronizer.syncronizeViewModel(&model, root);
        return countedAllocations() - before;
    }

    int reads = 0;
    ZVTreeViewModel model;
    ModelItemToZVTreeModelSyncronizer syncronizer;
};

constexpr int Count = 3000;

} // namespace

class SyncronizerEffortTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void rowsInPlaceAreAskedForTheirIdOnce();
    void rowsInPlaceAllocateNothing();
    void anyOrderAsksEachRowAFewTimes_data();
    void anyOrderAsksEachRowAFewTimes();
};

void SyncronizerEffortTest::rowsInPlaceAreAskedForTheirIdOnce()
{
    Scene scene;
    scene.fillWithCountingRows(numbered(Count));
    QCOMPARE(scene.readsOfRefresh(numbered(Count)), Count);
}

void SyncronizerEffortTest::rowsInPlaceAllocateNothing()
{
    // A new row is allocated by the library.
    if (Scene().allocationsOfRefresh(numbered(1)) == 0)
        QSKIP("this platform keeps the library's allocations apart from the program's");
    const auto allocationsFor = [](int count) {
        Scene scene;
        const Items items = numbered(count);
        scene.syncronizer.syncronizeViewModel(&scene.model, rootOf(items));
        return scene.allocationsOfRefresh(items);
    };
    // The list for the data provider is reserved once; nothing more comes with more rows.
    QCOMPARE(allocationsFor(Count), allocationsFor(10));
    QVERIFY(allocationsFor(Count) < 5);
}

void SyncronizerEffortTest::anyOrderAsksEachRowAFewTimes_data()
{
    QTest::addColumn<int>("distinct");
    QTest::addColumn<QString>("change");
    for (const char* change : {"reverse", "rotate", "shuffle", "thin out", "replace", "add"}) {
        QTest::addRow("%s", change) << Count << QString::fromLatin1(change);
        QTest::addRow("%s, ids in pairs", change) << Count / 2 << QString::fromLatin1(change);
        QTest::addRow("%s, few ids", change) << 3 << QString::fromLatin1(change);
    }
}

void SyncronizerEffortTest::anyOrderAsksEachRowAFewTimes()
{
    QFETCH(int, distinct);
    QFETCH(QString, change);
    Scene scene;
    Items items = numbered(Count, distinct);
    scene.fillWithCountingRows(items);
    std::minstd_rand random;
    const auto isChosen = [&random](const auto&) { return random() % 2 == 0; };
    if (change == QLatin1String("reverse"))
        std::reverse(items.begin(), items.end());
    else if (change == QLatin1String("rotate"))
        std::rotate(items.begin(), items.begin() + 1, items.end());
    else if (change == QLatin1String("shuffle"))
        std::shuffle(items.begin(), items.end(), random);
    else if (change == QLatin1String("thin out"))
        items.erase(std::remove_if(items.begin(), items.end(), isChosen), items.end());
    else
        std::replace_if(items.begin(), items.end(), isChosen,
                        std::make_shared<ModelItem>(Identifier(Count + 1), "new"));
    if (change == QLatin1String("add")) {
        const Items more = items;
        items.insert(items.begin() + Count / 2, more.begin(), more.end());
    }
    const int reads = scene.readsOfRefresh(items);
    QVERIFY2(reads <= 8 * Count, qPrintable(QString::number(reads)));
}

ZORVANE_TEST(SyncronizerEffortTest)
#include "SyncronizerEffortTest.moc"
