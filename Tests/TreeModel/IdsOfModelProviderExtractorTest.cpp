#include "TreeModel/IdsOfModelProviderExtractor.h"

#include "Tests/Support/TestCase.h"
#include "Tests/TreeModel/InputCallbackRules.h"
#include "Tests/TreeModel/ModelFixtures.h"

#include <algorithm>

using namespace Zorvane;
using namespace Zorvane::GenericTreeViewModelHandling;
namespace InputCallbackRules = Testing::InputCallbackRules;
using Testing::FixedModelProvider;
using Testing::idOf;
using Testing::Items;
using Testing::makeItem;

class IdsOfModelProviderExtractorTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithAnEmptyCollection();
    void passesTheInputsRootThrough();
    void collectsAllIdsAscending();
    void keepsDuplicates();
    void collectionIsAlwaysTheSameObject();
    void withoutInputGivesNoRootAndEmptiesTheCollection();
    void inputWithoutARootIsPassedThrough();
    void collectsFromAVeryDeepTree();
    void collectionOutlivesTheExtractor();
    void copyHasACollectionOfItsOwn();
    void assignmentKeepsTheCollectionObject();
    void callbackReachesTheInput();
    void callbackReachesALaterInput();
    void emptyCallbackReachesTheInput();
    void emptyCallbackDoesNotReachALaterInput();
    void laterCallbackReplacesTheEarlierOne();
    void replacedInputIsToldNothing();
    void inputMayBeTakenAway();
};

void IdsOfModelProviderExtractorTest::startsWithAnEmptyCollection()
{
    const IdsOfModelProviderExtractor extractor;
    QVERIFY(extractor.getCollection());
    QVERIFY(extractor.getCollection()->empty());
}

void IdsOfModelProviderExtractorTest::passesTheInputsRootThrough()
{
    const auto input = std::make_shared<FixedModelProvider>(Items{makeItem(1)});
    IdsOfModelProviderExtractor extractor;
    extractor.setInputModelProvider(input);
    QVERIFY(extractor.provideModel() == input->root);
}

void IdsOfModelProviderExtractorTest::collectsAllIdsAscending()
{
    const GUIdentifier part = GUIdentifier::create();
    const Items items{makeItem(7, {makeItem(2), std::make_shared<ModelItem>(part, "part")}),
                      makeItem(5, {makeItem(9, {makeItem(1)})}),
                      std::make_shared<ModelItem>(IDCombiner(), "none")};
    IdsOfModelProviderExtractor extractor;
    extractor.setInputModelProvider(std::make_shared<FixedModelProvider>(items));
    QVERIFY(extractor.provideModel());
    const std::vector<IDCombiner> expected{IDCombiner(), idOf(1), idOf(2), idOf(5),
                                           idOf(7),      idOf(9), part};
    QVERIFY(*extractor.getCollection() == expected);
}

void IdsOfModelProviderExtractorTest::keepsDuplicates()
{
    const auto shared = makeItem(2, {makeItem(3)});
    IdsOfModelProviderExtractor extractor;
    extractor.setInputModelProvider(
        std::make_shared<FixedModelProvider>(Items{shared, makeItem(3), shared}));
    QVERIFY(extractor.provideModel());
    const std::vector<IDCombiner> expected{idOf(2), idOf(2), idOf(3), idOf(3), idOf(3)};
    QVERIFY(*extractor.getCollection() == expected);
}

void IdsOfModelProviderExtractorTest::collectionIsAlwaysTheSameObject()
{
    const auto input = std::make_shared<FixedModelProvider>(Items{makeItem(1), makeItem(2)});
    IdsOfModelProviderExtractor extractor;
    const auto collection = extractor.getCollection();
    extractor.setInputModelProvider(input);
    extractor.provideModel();
    QCOMPARE(collection->size(), std::size_t(2));
    input->root = Testing::makeRoot({makeItem(8)});
    extractor.provideModel();
    QVERIFY(*collection == std::vector<IDCombiner>{idOf(8)});
    QVERIFY(extractor.getCollection() == collection);
}

void IdsOfModelProviderExtractorTest::withoutInputGivesNoRootAndEmptiesTheCollection()
{
    IdsOfModelProviderExtractor extractor;
    QVERIFY(!extractor.provideModel());
    extractor.setInputModelProvider(std::make_shared<FixedModelProvider>(Items{makeItem(1)}));
    extractor.provideModel();
    QCOMPARE(extractor.getCollection()->size(), std::size_t(1));
    extractor.setInputModelProvider(nullptr);
    QVERIFY(!extractor.provideModel());
    QVERIFY(extractor.getCollection()->empty());
}

void IdsOfModelProviderExtractorTest::inputWithoutARootIsPassedThrough()
{
    IdsOfModelProviderExtractor extractor;
    extractor.setInputModelProvider(std::make_shared<IdsOfModelProviderExtractor>());
    QVERIFY(!extractor.provideModel());
    QVERIFY(extractor.getCollection()->empty());
}

void IdsOfModelProviderExtractorTest::collectsFromAVeryDeepTree()
{
    IdsOfModelProviderExtractor extractor;
    extractor.setInputModelProvider(
        std::make_shared<FixedModelProvider>(Items{Testing::makeChain(100000)}));
    extractor.provideModel();
    const auto& ids = *extractor.getCollection();
    QCOMPARE(ids.size(), std::size_t(100000));
    QVERIFY(ids.front() == idOf(1));
    QVERIFY(ids.back() == idOf(100000));
    QVERIFY(std::is_sorted(ids.begin(), ids.end()));
}

void IdsOfModelProviderExtractorTest::collectionOutlivesTheExtractor()
{
    auto extractor = std::make_unique<IdsOfModelProviderExtractor>();
    extractor->setInputModelProvider(std::make_shared<FixedModelProvider>(Items{makeItem(4)}));
    extractor->provideModel();
    const auto collection = extractor->getCollection();
    extractor.reset();
    QVERIFY(*collection == std::vector<IDCombiner>{idOf(4)});
}

void IdsOfModelProviderExtractorTest::copyHasACollectionOfItsOwn()
{
    IdsOfModelProviderExtractor original;
    original.setInputModelProvider(std::make_shared<FixedModelProvider>(Items{makeItem(4)}));
    original.provideModel();
    IdsOfModelProviderExtractor copy(original);
    QVERIFY(copy.getCollection() != original.getCollection());
    QVERIFY(*copy.getCollection() == *original.getCollection());
    copy.setInputModelProvider(nullptr);
    copy.provideModel();
    QCOMPARE(original.getCollection()->size(), std::size_t(1));
}

void IdsOfModelProviderExtractorTest::assignmentKeepsTheCollectionObject()
{
    IdsOfModelProviderExtractor source;
    source.setInputModelProvider(std::make_shared<FixedModelProvider>(Items{makeItem(4)}));
    source.provideModel();
    IdsOfModelProviderExtractor target;
    const auto collection = target.getCollection();
    target = source;
    QVERIFY(target.getCollection() == collection);
    QVERIFY(*collection == std::vector<IDCombiner>{idOf(4)});
    QVERIFY(target.provideModel());
}

void IdsOfModelProviderExtractorTest::callbackReachesTheInput()
{
    InputCallbackRules::callbackReachesTheInput(IdsOfModelProviderExtractor());
}

void IdsOfModelProviderExtractorTest::callbackReachesALaterInput()
{
    InputCallbackRules::callbackReachesALaterInput(IdsOfModelProviderExtractor());
}

void IdsOfModelProviderExtractorTest::emptyCallbackReachesTheInput()
{
    InputCallbackRules::emptyCallbackReachesTheInput(IdsOfModelProviderExtractor());
}

void IdsOfModelProviderExtractorTest::emptyCallbackDoesNotReachALaterInput()
{
    InputCallbackRules::emptyCallbackDoesNotReachALaterInput(IdsOfModelProviderExtractor());
}

void IdsOfModelProviderExtractorTest::laterCallbackReplacesTheEarlierOne()
{
    InputCallbackRules::laterCallbackReplacesTheEarlierOne(IdsOfModelProviderExtractor());
}

void IdsOfModelProviderExtractorTest::replacedInputIsToldNothing()
{
    InputCallbackRules::replacedInputIsToldNothing(IdsOfModelProviderExtractor());
}

void IdsOfModelProviderExtractorTest::inputMayBeTakenAway()
{
    InputCallbackRules::inputMayBeTakenAway(IdsOfModelProviderExtractor());
}

ZORVANE_TEST(IdsOfModelProviderExtractorTest)
#include "IdsOfModelProviderExtractorTest.moc"
