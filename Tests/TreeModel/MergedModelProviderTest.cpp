#include "TreeModel/MergedModelProvider.h"

#include "Tests/Support/TestCase.h"
#include "Tests/TreeModel/ModelFixtures.h"
#include "TreeModel/IdsOfModelProviderExtractor.h"

using namespace Zorvane;
using namespace Zorvane::GenericTreeViewModelHandling;
using Testing::FixedModelProvider;
using Testing::Items;
using Testing::makeItem;

class MergedModelProviderTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void withoutProvidersGivesAnEmptyRoot();
    void concatenatesInOrderOfAddition();
    void sharesTheItems();
    void givesANewRootEachTime();
    void asksAnewEachTime();
    void keepsRootsAliveWhileMerging();
    void missingRootCountsAsEmpty();
    void callbackReachesProvidersHeld();
    void callbackReachesProvidersAddedLater();
    void addingRegistersWithNewProvidersOnly();
    void laterCallbackReplacesTheEarlierOne();
    void registersInOrderOfAddition();
    void emptyCallbackIsKeptButNotHandedOn();
    void leafCallsTheConsumerDirectly();
};

void MergedModelProviderTest::withoutProvidersGivesAnEmptyRoot()
{
    MergedModelProvider merged;
    merged.addSubModelProvider({});
    QVERIFY(merged.provideModel());
    QVERIFY(merged.provideModel()->empty());
}

void MergedModelProviderTest::concatenatesInOrderOfAddition()
{
    const auto k = makeItem(1);
    const auto l = makeItem(2);
    const auto m = makeItem(3);
    MergedModelProvider merged;
    merged.addSubModelProvider({std::make_shared<FixedModelProvider>(Items{k, l}),
                                std::make_shared<FixedModelProvider>(Items{l, m})});
    merged.addSubModelProvider({std::make_shared<FixedModelProvider>(Items{k})});
    const Items expected{k, l, l, m, k};
    QVERIFY(merged.provideModel()->getTopLevelItems() == expected);
}

void MergedModelProviderTest::sharesTheItems()
{
    const auto parent = makeItem(1, {makeItem(2)});
    MergedModelProvider merged;
    merged.addSubModelProvider({std::make_shared<FixedModelProvider>(Items{parent}),
                                std::make_shared<FixedModelProvider>(Items{parent})});
    const auto root = merged.provideModel();
    QVERIFY(root->getTopLevelItems()[0] == root->getTopLevelItems()[1]);
    QCOMPARE(parent->getChildren().size(), std::size_t(1));
}

void MergedModelProviderTest::givesANewRootEachTime()
{
    const auto input = std::make_shared<FixedModelProvider>(Items{makeItem(1)});
    MergedModelProvider merged;
    merged.addSubModelProvider({input});
    const auto first = merged.provideModel();
    QVERIFY(first != merged.provideModel());
    QVERIFY(first != input->root);
}

void MergedModelProviderTest::asksAnewEachTime()
{
    const auto input = std::make_shared<FixedModelProvider>(Items{makeItem(1)});
    MergedModelProvider merged;
    merged.addSubModelProvider({input});
    QCOMPARE(merged.provideModel()->totalItemCount(), std::uint64_t(1));
    input->root = Testing::makeRoot({makeItem(1), makeItem(2, {makeItem(3)})});
    QCOMPARE(merged.provideModel()->totalItemCount(), std::uint64_t(3));
}

void MergedModelProviderTest::keepsRootsAliveWhileMerging()
{
    /** Drops the root of the other provider once it is asked itself. */
    class Dropping : public FixedModelProvider
    {
    public:
        explicit Dropping(std::shared_ptr<FixedModelProvider> other)
            : m_other(std::move(other))
        {}
        std::shared_ptr<ModelRoot> provideModel() override
        {
            m_other->root.reset();
            return FixedModelProvider::provideModel();
        }

    private:
        std::shared_ptr<FixedModelProvider> m_other;
    };

    const auto first = std::make_shared<FixedModelProvider>(Items{makeItem(1), makeItem(2)});
    MergedModelProvider merged;
    merged.addSubModelProvider({first, std::make_shared<Dropping>(first)});
    const auto root = merged.provideModel();
    QCOMPARE(root->getTopLevelItems().size(), std::size_t(2));
    QCOMPARE(root->getTopLevelItems()[1]->getName(), std::string("item 2"));
}

void MergedModelProviderTest::missingRootCountsAsEmpty()
{
    const Items items{makeItem(1)};
    MergedModelProvider merged;
    merged.addSubModelProvider({std::make_shared<IdsOfModelProviderExtractor>(),
                                std::make_shared<FixedModelProvider>(items)});
    QVERIFY(merged.provideModel()->getTopLevelItems() == items);
}

void MergedModelProviderTest::callbackReachesProvidersHeld()
{
    const auto first = std::make_shared<FixedModelProvider>();
    const auto second = std::make_shared<FixedModelProvider>();
    MergedModelProvider merged;
    merged.addSubModelProvider({first, second});
    QCOMPARE(first->registrations, 0);
    merged.registerUpdateCallback([] {});
    QCOMPARE(first->registrations, 1);
    QCOMPARE(second->registrations, 1);
    QVERIFY(second->callback);
}

void MergedModelProviderTest::callbackReachesProvidersAddedLater()
{
    const auto late = std::make_shared<FixedModelProvider>();
    int calls = 0;
    MergedModelProvider merged;
    merged.registerUpdateCallback([&calls] { ++calls; });
    merged.addSubModelProvider({late});
    QVERIFY(late->callback);
    late->callback();
    QCOMPARE(calls, 1);
}

void MergedModelProviderTest::addingRegistersWithNewProvidersOnly()
{
    const auto early = std::make_shared<FixedModelProvider>();
    const auto late = std::make_shared<FixedModelProvider>();
    MergedModelProvider merged;
    merged.addSubModelProvider({early});
    merged.registerUpdateCallback([] {});
    merged.addSubModelProvider({late});
    QCOMPARE(early->registrations, 1);
    QCOMPARE(late->registrations, 1);
}

void MergedModelProviderTest::laterCallbackReplacesTheEarlierOne()
{
    const auto held = std::make_shared<FixedModelProvider>();
    const auto later = std::make_shared<FixedModelProvider>();
    std::string log;
    MergedModelProvider merged;
    merged.addSubModelProvider({held});
    merged.registerUpdateCallback([&log] { log += "first "; });
    merged.registerUpdateCallback([&log] { log += "second "; });
    QCOMPARE(held->registrations, 2);
    held->callback();
    QCOMPARE(log, std::string("second "));
    merged.addSubModelProvider({later});
    later->callback();
    QCOMPARE(log, std::string("second second "));
}

void MergedModelProviderTest::registersInOrderOfAddition()
{
    /** Notes, in a log shared with others, that it was registered with. */
    class Noting : public FixedModelProvider
    {
    public:
        Noting(std::string name, std::string& log)
            : m_name(std::move(name))
            , m_log(log)
        {}
        void registerUpdateCallback(std::function<void()>) override { m_log += m_name; }

    private:
        std::string m_name;
        std::string& m_log;
    };

    std::string log;
    const auto noting = [&log](const char* name) { return std::make_shared<Noting>(name, log); };
    MergedModelProvider merged;
    merged.addSubModelProvider({noting("a"), noting("b")});
    merged.registerUpdateCallback([] {});
    QCOMPARE(log, std::string("ab"));
    merged.addSubModelProvider({noting("c"), noting("d")});
    QCOMPARE(log, std::string("abcd"));
}

void MergedModelProviderTest::emptyCallbackIsKeptButNotHandedOn()
{
    const auto early = std::make_shared<FixedModelProvider>();
    const auto late = std::make_shared<FixedModelProvider>();
    MergedModelProvider merged;
    merged.addSubModelProvider({early});
    merged.registerUpdateCallback([] {});
    merged.registerUpdateCallback({});
    QCOMPARE(early->registrations, 1);
    QVERIFY(early->callback);
    merged.addSubModelProvider({late});
    QCOMPARE(late->registrations, 0);
}

void MergedModelProviderTest::leafCallsTheConsumerDirectly()
{
    const auto leaf = std::make_shared<FixedModelProvider>();
    int calls = 0;
    {
        const auto inner = std::make_shared<MergedModelProvider>();
        MergedModelProvider outer;
        inner->addSubModelProvider({leaf});
        outer.addSubModelProvider({inner});
        outer.registerUpdateCallback([&calls] { ++calls; });
        leaf->callback();
        leaf->callback();
    }
    QCOMPARE(calls, 2);
    leaf->callback();
    QCOMPARE(calls, 3);
}

ZORVANE_TEST(MergedModelProviderTest)
#include "MergedModelProviderTest.moc"
