#include "TreeModel/AddStaticParentToModuleProvider.h"

#include "Tests/Support/TestCase.h"
#include "Tests/TreeModel/InputCallbackRules.h"
#include "Tests/TreeModel/ModelFixtures.h"
#include "TreeModel/IdsOfModelProviderExtractor.h"

#include <rapidcheck.h>

using namespace Zorvane;
using namespace Zorvane::GenericTreeViewModelHandling;
namespace InputCallbackRules = Testing::InputCallbackRules;
using Testing::FixedModelProvider;
using Testing::idOf;
using Testing::Items;
using Testing::makeItem;

namespace {

std::uint64_t leavesByRule(const Items& items)
{
    std::uint64_t count = 0;
    for (const auto& item : items)
        count += item->hasChildren() ? leavesByRule(item->getChildren()) : 1;
    return count;
}

Items randomItems(int levels)
{
    Items items;
    const int count = levels > 0 ? *rc::gen::inRange(0, 4) : 0;
    for (int i = 0; i < count; ++i)
        items.push_back(makeItem(static_cast<std::uint64_t>(i), randomItems(levels - 1)));
    return items;
}

/** The text of the one row that a provider named "Name" with the count shows over the items. */
std::string nameOver(const Items& items)
{
    AddStaticParentToModuleProvider provider(idOf(100), "Name");
    provider.setInputModelProvider(std::make_shared<FixedModelProvider>(items));
    provider.appendNumberOfChildrenToName();
    provider.addParentAlsoForEmptyChildTree();
    return provider.provideModel()->getTopLevelItems().front()->getName();
}

} // namespace

Q_DECLARE_METATYPE(Items)

class AddStaticParentToModuleProviderTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void putsOneRowAboveTheModel();
    void adoptsTheInputsItems();
    void givesNewRowsEachTime();
    void emptyInputGivesNoRow();
    void emptyInputGivesARowWhenWished();
    void missingInputGivesNoRow();
    void missingInputGivesARowWhenWished();
    void inputWithoutARootCountsAsMissing();
    void countsTheLeaves_data();
    void countsTheLeaves();
    void countsTheLeavesOfAnyTree();
    void countsTheLeavesOfAVeryDeepTree();
    void nameStaysBareWithoutTheWish();
    void callbackReachesTheInput();
    void callbackReachesALaterInput();
    void emptyCallbackReachesTheInput();
    void emptyCallbackDoesNotReachALaterInput();
    void laterCallbackReplacesTheEarlierOne();
    void replacedInputIsToldNothing();
    void inputMayBeTakenAway();
};

void AddStaticParentToModuleProviderTest::putsOneRowAboveTheModel()
{
    const Items items{makeItem(1), makeItem(2)};
    AddStaticParentToModuleProvider provider(idOf(100), "Parts");
    provider.setInputModelProvider(std::make_shared<FixedModelProvider>(items));
    const auto root = provider.provideModel();
    QCOMPARE(root->getTopLevelItems().size(), std::size_t(1));
    const ModelItem& parent = *root->getTopLevelItems().front();
    QVERIFY(parent.getId() == idOf(100));
    QCOMPARE(parent.getName(), std::string("Parts"));
    QVERIFY(parent.getChildren() == items);
}

void AddStaticParentToModuleProviderTest::adoptsTheInputsItems()
{
    const auto input = std::make_shared<FixedModelProvider>(Items{makeItem(1)});
    AddStaticParentToModuleProvider provider(idOf(100), "Parts");
    provider.setInputModelProvider(input);
    const auto root = provider.provideModel();
    QVERIFY(root->getTopLevelItems().front()->getChildren().front() ==
            input->root->getTopLevelItems().front());
    QCOMPARE(input->root->getTopLevelItems().size(), std::size_t(1));
}

void AddStaticParentToModuleProviderTest::givesNewRowsEachTime()
{
    AddStaticParentToModuleProvider provider(idOf(100), "Parts");
    provider.setInputModelProvider(std::make_shared<FixedModelProvider>(Items{makeItem(1)}));
    const auto first = provider.provideModel();
    const auto second = provider.provideModel();
    QVERIFY(first != second);
    QVERIFY(first->getTopLevelItems() != second->getTopLevelItems());
}

void AddStaticParentToModuleProviderTest::emptyInputGivesNoRow()
{
    AddStaticParentToModuleProvider provider(idOf(100), "Parts");
    provider.setInputModelProvider(std::make_shared<FixedModelProvider>());
    provider.appendNumberOfChildrenToName();
    QVERIFY(provider.provideModel()->empty());
}

void AddStaticParentToModuleProviderTest::emptyInputGivesARowWhenWished()
{
    AddStaticParentToModuleProvider provider(idOf(100), "Parts");
    provider.setInputModelProvider(std::make_shared<FixedModelProvider>());
    provider.addParentAlsoForEmptyChildTree();
    const auto root = provider.provideModel();
    QCOMPARE(root->getTopLevelItems().size(), std::size_t(1));
    QVERIFY(!root->getTopLevelItems().front()->hasChildren());
    QCOMPARE(root->getTopLevelItems().front()->getName(), std::string("Parts"));
}

void AddStaticParentToModuleProviderTest::missingInputGivesNoRow()
{
    AddStaticParentToModuleProvider provider(idOf(100), "Parts");
    QVERIFY(provider.provideModel());
    QVERIFY(provider.provideModel()->empty());
}

void AddStaticParentToModuleProviderTest::missingInputGivesARowWhenWished()
{
    AddStaticParentToModuleProvider provider(idOf(100), "Parts");
    provider.addParentAlsoForEmptyChildTree();
    provider.appendNumberOfChildrenToName();
    const auto root = provider.provideModel();
    QCOMPARE(root->totalItemCount(), std::uint64_t(1));
    // Nothing to count: there is no input that could be empty.
    QCOMPARE(root->getTopLevelItems().front()->getName(), std::string("Parts"));
}

void AddStaticParentToModuleProviderTest::inputWithoutARootCountsAsMissing()
{
    AddStaticParentToModuleProvider provider(idOf(100), "Parts");
    provider.setInputModelProvider(std::make_shared<IdsOfModelProviderExtractor>());
    QVERIFY(provider.provideModel()->empty());
    provider.addParentAlsoForEmptyChildTree();
    QCOMPARE(provider.provideModel()->totalItemCount(), std::uint64_t(1));
}

void AddStaticParentToModuleProviderTest::countsTheLeaves_data()
{
    QTest::addColumn<Items>("items");
    QTest::addColumn<std::string>("name");
    const auto k = makeItem(1, {makeItem(2), makeItem(3, {makeItem(4), makeItem(5)})});
    QTest::newRow("items with children are not counted")
        << Items{k, makeItem(6)} << std::string("Name (4)");
    QTest::newRow("childless items") << Items{makeItem(1), makeItem(2)} << std::string("Name (2)");
    QTest::newRow("empty model") << Items() << std::string("Name (0)");
    QTest::newRow("each occurrence") << Items{k, k} << std::string("Name (6)");
    QTest::newRow("plain digits") << Items(12345, makeItem(1)) << std::string("Name (12345)");
}

void AddStaticParentToModuleProviderTest::countsTheLeaves()
{
    QFETCH(Items, items);
    QFETCH(std::string, name);
    QCOMPARE(nameOver(items), name);
}

void AddStaticParentToModuleProviderTest::countsTheLeavesOfAnyTree()
{
    QVERIFY(rc::check("leaf count of a random tree", [] {
        const Items items = randomItems(5);
        RC_ASSERT(nameOver(items) == "Name (" + std::to_string(leavesByRule(items)) + ")");
    }));
}

void AddStaticParentToModuleProviderTest::countsTheLeavesOfAVeryDeepTree()
{
    auto deep = makeItem(0);
    for (std::uint64_t level = 1; level <= 100000; ++level)
        deep = makeItem(level, {deep, makeItem(level)});
    QCOMPARE(nameOver({deep}), std::string("Name (100001)"));
}

void AddStaticParentToModuleProviderTest::nameStaysBareWithoutTheWish()
{
    AddStaticParentToModuleProvider provider(idOf(100), "Teile für Tür");
    provider.setInputModelProvider(std::make_shared<FixedModelProvider>(Items{makeItem(1)}));
    QCOMPARE(provider.provideModel()->getTopLevelItems().front()->getName(),
             std::string("Teile für Tür"));
}

void AddStaticParentToModuleProviderTest::callbackReachesTheInput()
{
    InputCallbackRules::callbackReachesTheInput(
        AddStaticParentToModuleProvider(idOf(100), "Parts"));
}

void AddStaticParentToModuleProviderTest::callbackReachesALaterInput()
{
    InputCallbackRules::callbackReachesALaterInput(
        AddStaticParentToModuleProvider(idOf(100), "Parts"));
}

void AddStaticParentToModuleProviderTest::emptyCallbackReachesTheInput()
{
    InputCallbackRules::emptyCallbackReachesTheInput(
        AddStaticParentToModuleProvider(idOf(100), "Parts"));
}

void AddStaticParentToModuleProviderTest::emptyCallbackDoesNotReachALaterInput()
{
    InputCallbackRules::emptyCallbackDoesNotReachALaterInput(
        AddStaticParentToModuleProvider(idOf(100), "Parts"));
}

void AddStaticParentToModuleProviderTest::laterCallbackReplacesTheEarlierOne()
{
    InputCallbackRules::laterCallbackReplacesTheEarlierOne(
        AddStaticParentToModuleProvider(idOf(100), "Parts"));
}

void AddStaticParentToModuleProviderTest::replacedInputIsToldNothing()
{
    InputCallbackRules::replacedInputIsToldNothing(
        AddStaticParentToModuleProvider(idOf(100), "Parts"));
}

void AddStaticParentToModuleProviderTest::inputMayBeTakenAway()
{
    InputCallbackRules::inputMayBeTakenAway(AddStaticParentToModuleProvider(idOf(100), "Parts"));
}

ZORVANE_TEST(AddStaticParentToModuleProviderTest)
#include "AddStaticParentToModuleProviderTest.moc"
