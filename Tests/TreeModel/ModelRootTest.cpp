#include "TreeModel/ModelRoot.h"

#include "Tests/Support/TestCase.h"
#include "Tests/TreeModel/CountedAllocations.h"
#include "Tests/TreeModel/ModelFixtures.h"

#include <rapidcheck.h>

using namespace Zorvane;
using namespace Zorvane::GenericTreeViewModelHandling;
using Testing::Items;
using Testing::makeItem;
using Testing::makeRoot;

Q_DECLARE_METATYPE(std::shared_ptr<Zorvane::GenericTreeViewModelHandling::ModelRoot>)

namespace {

std::uint64_t countByRule(const Items& items)
{
    std::uint64_t count = items.size();
    for (const auto& item : items)
        count += countByRule(item->getChildren());
    return count;
}

Items randomTopLevelItems(int levels)
{
    Items items;
    const int count = levels > 0 ? *rc::gen::inRange(0, 5) : 0;
    for (int i = 0; i < count; ++i)
        items.push_back(makeItem(static_cast<std::uint64_t>(i), randomTopLevelItems(levels - 1)));
    return items;
}

} // namespace

class ModelRootTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty();
    void addTopLevelItemsAppendsInOrder();
    void addTopLevelItemsGivenAwayAppendsInOrder();
    void emptyListAddedChangesNothing();
    void emptyListGivenAwayEmptiesTheRoot();
    void ownListAddedDoublesIt();
    void isNotPolymorphic();
    void countsEveryLevel();
    void countsAnItemOnceForEachOccurrence();
    void countsAnyTreeAsTheRuleSays();
    void countsAVeryDeepChain();
    void countsADeepTreeWithBranchesAtEveryLevel();
    void countingDoesNotAllocate_data();
    void countingDoesNotAllocate();
};

void ModelRootTest::startsEmpty()
{
    const ModelRoot root;
    QVERIFY(root.empty());
    QVERIFY(root.getTopLevelItems().empty());
    QCOMPARE(root.totalItemCount(), std::uint64_t(0));
}

void ModelRootTest::addTopLevelItemsAppendsInOrder()
{
    const Items items{makeItem(1), makeItem(2), makeItem(1)};
    const Items first{items[0], items[1]};
    const Items rest{items[2]};
    ModelRoot root;
    root.addTopLevelItems(first);
    root.addTopLevelItems(rest);
    QVERIFY(root.getTopLevelItems() == items);
    QVERIFY(!root.empty());
}

void ModelRootTest::addTopLevelItemsGivenAwayAppendsInOrder()
{
    const Items items{makeItem(1), makeItem(2)};
    Items first{items[0]};
    Items rest{items[1]};
    ModelRoot root;
    root.addTopLevelItems(std::move(first));
    root.addTopLevelItems(std::move(rest));
    QVERIFY(root.getTopLevelItems() == items);
    QVERIFY(rest.empty());
}

void ModelRootTest::emptyListAddedChangesNothing()
{
    const Items items{makeItem(1)};
    const Items nothing;
    ModelRoot root;
    root.addTopLevelItems(items);
    root.addTopLevelItems(nothing);
    QVERIFY(root.getTopLevelItems() == items);
}

void ModelRootTest::emptyListGivenAwayEmptiesTheRoot()
{
    ModelRoot root;
    root.addTopLevelItems({makeItem(1)});
    root.addTopLevelItems(Items());
    QVERIFY(root.empty());
    QCOMPARE(root.totalItemCount(), std::uint64_t(0));
}

void ModelRootTest::ownListAddedDoublesIt()
{
    const Items items{makeItem(1), makeItem(2)};
    ModelRoot root;
    root.addTopLevelItems(items);
    root.addTopLevelItems(root.getTopLevelItems());
    const Items expected{items[0], items[1], items[0], items[1]};
    QVERIFY(root.getTopLevelItems() == expected);
}

void ModelRootTest::isNotPolymorphic()
{
    QVERIFY(!std::is_polymorphic_v<ModelRoot>);
}

void ModelRootTest::countsEveryLevel()
{
    const auto first =
        makeItem(1, {makeItem(2, {makeItem(3), makeItem(4)}), makeItem(5), makeItem(6)});
    QCOMPARE(makeRoot({first, makeItem(7)})->totalItemCount(), std::uint64_t(2 + 3 + 2));
}

void ModelRootTest::countsAnItemOnceForEachOccurrence()
{
    const auto shared = makeItem(1, {makeItem(2)});
    const auto root = makeRoot({shared, makeItem(3, {shared}), shared});
    QCOMPARE(root->totalItemCount(), std::uint64_t(7));
}

void ModelRootTest::countsAnyTreeAsTheRuleSays()
{
    QVERIFY(rc::check("total count of a random tree", [] {
        const Items items = randomTopLevelItems(6);
        RC_ASSERT(makeRoot(items)->totalItemCount() == countByRule(items));
    }));
}

void ModelRootTest::countsAVeryDeepChain()
{
    const auto root = makeRoot({Testing::makeChain(200000)});
    QCOMPARE(root->totalItemCount(), std::uint64_t(200000));
}

void ModelRootTest::countsADeepTreeWithBranchesAtEveryLevel()
{
    auto deep = makeItem(0);
    for (std::uint64_t level = 1; level <= 100000; ++level)
        deep = makeItem(level, {deep, makeItem(level, {makeItem(level)})});
    QCOMPARE(makeRoot({deep})->totalItemCount(), std::uint64_t(3 * 100000 + 1));
}

void ModelRootTest::countingDoesNotAllocate_data()
{
    QTest::addColumn<std::shared_ptr<ModelRoot>>("root");
    Items wide;
    for (std::uint64_t i = 0; i < 1000; ++i)
        wide.push_back(makeItem(i, {makeItem(i), makeItem(i, {makeItem(i)})}));
    auto comb = makeItem(0);
    for (std::uint64_t level = 1; level < 100000; ++level)
        comb = makeItem(level, {comb, makeItem(level)});
    auto branched = makeItem(0);
    for (std::uint64_t level = 1; level < 500; ++level)
        branched = makeItem(level, {branched, makeItem(level, {makeItem(level)})});
    QTest::newRow("empty") << makeRoot({});
    QTest::newRow("wide") << makeRoot(wide);
    QTest::newRow("chain of 100,000 levels") << makeRoot({Testing::makeChain(100000)});
    QTest::newRow("100,000 levels, a leaf beside each") << makeRoot({comb});
    QTest::newRow("500 levels, a branch beside each") << makeRoot({branched});
}

void ModelRootTest::countingDoesNotAllocate()
{
    QFETCH(std::shared_ptr<ModelRoot>, root);
    const std::size_t atFirst = Testing::countedAllocations();
    ModelRoot().addTopLevelItems({std::shared_ptr<ModelItem>()});
    const std::size_t before = Testing::countedAllocations();
    if (before < atFirst + 2)
        QSKIP("this platform keeps the library's allocations apart from the program's");
    const std::uint64_t count = root->totalItemCount();
    const std::size_t after = Testing::countedAllocations();
    QCOMPARE(after, before);
    QCOMPARE(count == 0, root->empty());
}

ZORVANE_TEST(ModelRootTest)
#include "ModelRootTest.moc"
