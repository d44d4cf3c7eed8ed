#include "TreeModel/ModelItem.h"

#include "Tests/Support/TestCase.h"
#include "Tests/TreeModel/ModelFixtures.h"

#include <type_traits>

using namespace Zorvane;
using namespace Zorvane::GenericTreeViewModelHandling;
using Testing::Items;
using Testing::makeItem;

class ModelItemTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void takesEveryKindOfId();
    void startsWithoutChildren();
    void addChildrenAppendsInOrder();
    void addChildrenTwiceYieldsThemTwice();
    void addChildrenOfItsOwnListDoublesIt();
    void addChildrenGivenAwayAppendsInOrder();
    void addChildrenGivenAwayEmptyChangesNothing();
    void setChildrenReplaces();
    void setChildrenToItsOwnListChangesNothing();
    void setChildrenToTheListOfADyingChild();
    void setChildrenToNothingMakesALeaf();
    void isNotPolymorphic();
    void copySharesTheChildren();
    void deepChainDies();
    void deepCombDies();
    void dyingTreeLeavesSharedItemsWhole();
    void itemHeldTwiceInOneTreeDiesOnce();
    void replacedDeepChildrenDie();
};

void ModelItemTest::takesEveryKindOfId()
{
    const GUIdentifier part = GUIdentifier::create();
    QVERIFY(ModelItem(part, "part").getId() == IDCombiner(part));
    QVERIFY(ModelItem(Identifier(4, 2), "tool").getId() == IDCombiner(Identifier(4, 2)));
    QVERIFY(ModelItem(IDCombiner(), "none").getId() == IDCombiner());
    QCOMPARE(ModelItem(Identifier(4), "Käfer").getName(), std::string("Käfer"));
}

void ModelItemTest::startsWithoutChildren()
{
    const ModelItem item(Identifier(1), "leaf");
    QVERIFY(!item.hasChildren());
    QVERIFY(item.getChildren().empty());
}

void ModelItemTest::addChildrenAppendsInOrder()
{
    const Items items{makeItem(1), makeItem(2), makeItem(3)};
    ModelItem parent(Identifier(9), "parent");
    parent.addChildren({items[0], items[1]});
    parent.addChildren(Items());
    const Items more{items[2]};
    parent.addChildren(more);
    QVERIFY(parent.getChildren() == items);
    QVERIFY(parent.hasChildren());
}

void ModelItemTest::addChildrenTwiceYieldsThemTwice()
{
    const Items items{makeItem(1), makeItem(2)};
    ModelItem parent(Identifier(9), "parent");
    parent.addChildren(items);
    parent.addChildren(items);
    const Items expected{items[0], items[1], items[0], items[1]};
    QVERIFY(parent.getChildren() == expected);
}

void ModelItemTest::addChildrenOfItsOwnListDoublesIt()
{
    const Items items{makeItem(1), makeItem(2)};
    ModelItem parent(Identifier(9), "parent");
    parent.addChildren(items);
    parent.addChildren(parent.getChildren());
    const Items expected{items[0], items[1], items[0], items[1]};
    QVERIFY(parent.getChildren() == expected);
}

void ModelItemTest::addChildrenGivenAwayAppendsInOrder()
{
    const Items items{makeItem(1), makeItem(2), makeItem(3)};
    ModelItem parent(Identifier(9), "parent");
    Items first{items[0]};
    Items rest{items[1], items[2]};
    parent.addChildren(std::move(first));
    parent.addChildren(std::move(rest));
    QVERIFY(parent.getChildren() == items);
    QVERIFY(first.empty());
    QVERIFY(rest.empty());
    QCOMPARE(items[2].use_count(), 2L);
}

void ModelItemTest::addChildrenGivenAwayEmptyChangesNothing()
{
    const Items items{makeItem(1)};
    ModelItem parent(Identifier(9), "parent");
    parent.addChildren(items);
    parent.addChildren(Items());
    QVERIFY(parent.getChildren() == items);
}

void ModelItemTest::setChildrenReplaces()
{
    const Items items{makeItem(1), makeItem(2)};
    ModelItem parent(Identifier(9), "parent");
    parent.setChildren({makeItem(7)});
    parent.setChildren(items);
    QVERIFY(parent.getChildren() == items);
}

void ModelItemTest::setChildrenToItsOwnListChangesNothing()
{
    const Items items{makeItem(1), makeItem(2)};
    ModelItem parent(Identifier(9), "parent");
    parent.addChildren(items);
    parent.setChildren(parent.getChildren());
    QVERIFY(parent.getChildren() == items);
}

void ModelItemTest::setChildrenToTheListOfADyingChild()
{
    const Items items{makeItem(1), makeItem(2)};
    ModelItem parent(Identifier(9), "parent");
    // Two places to be filled, the first of which lets go of the list that is read.
    parent.addChildren({makeItem(7, items), makeItem(8)});
    parent.setChildren(parent.getChildren().front()->getChildren());
    QVERIFY(parent.getChildren() == items);
}

void ModelItemTest::setChildrenToNothingMakesALeaf()
{
    ModelItem parent(Identifier(9), "parent");
    parent.addChildren({makeItem(1)});
    parent.setChildren({});
    QVERIFY(!parent.hasChildren());
}

void ModelItemTest::isNotPolymorphic()
{
    QVERIFY(!std::is_polymorphic_v<ModelItem>);
}

void ModelItemTest::copySharesTheChildren()
{
    const Items items{makeItem(1)};
    const auto original = makeItem(9, items);
    ModelItem copy(*original);
    copy.addChildren({makeItem(2)});
    QVERIFY(copy.getChildren().front() == items.front());
    QCOMPARE(copy.getChildren().size(), std::size_t(2));
    QVERIFY(original->getChildren() == items);
}

void ModelItemTest::deepChainDies()
{
    auto chain = Testing::makeChain(200000);
    std::weak_ptr<ModelItem> below = chain->getChildren().front();
    chain.reset();
    QVERIFY(below.expired());
}

void ModelItemTest::deepCombDies()
{
    std::vector<std::weak_ptr<ModelItem>> watched;
    auto item = makeItem(0);
    for (std::uint64_t level = 1; level < 50000; ++level) {
        // The deep branch stands first, in the middle and last in turn.
        Items children{makeItem(level, {makeItem(level)}), makeItem(level)};
        const auto place = static_cast<std::ptrdiff_t>(level % 3);
        children.insert(children.begin() + place, item);
        watched.insert(watched.end(), children.begin(), children.end());
        item = makeItem(level, children);
    }
    item.reset();
    QVERIFY(std::all_of(watched.begin(), watched.end(), [](const auto& w) { return w.expired(); }));
}

void ModelItemTest::dyingTreeLeavesSharedItemsWhole()
{
    const Items leaves{makeItem(1), makeItem(2)};
    const auto shared = makeItem(3, leaves);
    auto tree = makeItem(5, {makeItem(4, {makeItem(6), shared, makeItem(7, {shared})})});
    tree.reset();
    QCOMPARE(shared.use_count(), 1L);
    QVERIFY(shared->getChildren() == leaves);
}

void ModelItemTest::itemHeldTwiceInOneTreeDiesOnce()
{
    auto item = makeItem(0);
    const std::weak_ptr<ModelItem> lowest = item;
    for (std::uint64_t level = 1; level < 64; ++level)
        item = makeItem(level, {item, item});
    item.reset();
    QVERIFY(lowest.expired());
}

void ModelItemTest::replacedDeepChildrenDie()
{
    ModelItem parent(Identifier(9), "parent");
    parent.addChildren({Testing::makeChain(200000)});
    const std::weak_ptr<ModelItem> below = parent.getChildren().front()->getChildren().front();
    parent.setChildren({});
    QVERIFY(below.expired());
}

ZORVANE_TEST(ModelItemTest)
#include "ModelItemTest.moc"
