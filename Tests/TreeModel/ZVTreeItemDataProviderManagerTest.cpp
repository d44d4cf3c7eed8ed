#include "TreeModel/ZVTreeItemDataProviderManager.h"

#include "Tests/Support/TestCase.h"
#include "Tests/TreeModel/DataProviderFixtures.h"

#include <memory>
#include <string>

using namespace Zorvane;
using namespace Zorvane::GenericTreeViewModelHandling;
using Testing::NotingDataProvider;
using Testing::RowList;

namespace {

/** The consumer talks to a manager through the interface only. */
void registerWith(ZVTreeItemDataProviderInterface& provider, std::function<void()> callback)
{
    provider.registerUpdateCallback(std::move(callback));
}

} // namespace

class ZVTreeItemDataProviderManagerTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_log.clear(); }

    void withoutProvidersDoesNothing();
    void unitesTheFlags();
    void handsRowsToProvidersInOrder();
    void refreshesPendingProvidersOnly();
    void handsEachAnnouncementOnAtOnce();
    void withoutCallbackTheProviderStaysPending();
    void laterCallbackReplacesTheEarlierOne();
    void emptyCallbackIsSkipped();
    void callbackMayRefreshAtOnce();
    void managersMayBeNested();
    void providerMayOutliveItsManager();
    void callbackMayDropTheManager();
    void copySharesTheProviders();
    void copyMayOutliveTheOriginal();
    void lastManagerToldOfAProviderHearsIt();

private:
    std::shared_ptr<NotingDataProvider> provider(const std::string& name,
                                                 Qt::ItemFlags flags = Qt::NoItemFlags)
    {
        return std::make_shared<NotingDataProvider>(name, m_log, flags);
    }

    const RowList m_rows{{IDCombiner(), nullptr}, {Identifier(1), nullptr}};
    std::string m_log;
};

void ZVTreeItemDataProviderManagerTest::withoutProvidersDoesNothing()
{
    ZVTreeItemDataProviderManager manager;
    QCOMPARE(manager.getItemFlags(), Qt::ItemFlags());
    manager.addDataTo(m_rows);
    manager.updateDataOf(m_rows);
}

void ZVTreeItemDataProviderManagerTest::unitesTheFlags()
{
    ZVTreeItemDataProviderManager manager;
    manager.addProvider(provider("a", Qt::ItemIsUserCheckable));
    manager.addProvider(provider("b"));
    manager.addProvider(provider("c", Qt::ItemIsDragEnabled));
    QCOMPARE(manager.getItemFlags(), Qt::ItemIsUserCheckable | Qt::ItemIsDragEnabled);
}

void ZVTreeItemDataProviderManagerTest::handsRowsToProvidersInOrder()
{
    ZVTreeItemDataProviderManager manager;
    manager.addProvider(provider("a"));
    manager.addProvider(provider("b"));
    manager.addProvider(provider("c"));
    manager.addDataTo(m_rows);
    QCOMPARE(m_log, std::string("a2 b2 c2 "));
}

void ZVTreeItemDataProviderManagerTest::refreshesPendingProvidersOnly()
{
    const auto b = provider("b");
    const auto c = provider("c");
    ZVTreeItemDataProviderManager manager;
    manager.addProvider(provider("a"));
    manager.addProvider(b);
    manager.addProvider(c);
    // Refreshed in order of addition, whoever announced first.
    c->callUpdateFunction();
    b->callUpdateFunction();
    manager.updateDataOf(m_rows);
    manager.updateDataOf(m_rows);
    QCOMPARE(m_log, std::string("b2 c2 "));
}

void ZVTreeItemDataProviderManagerTest::handsEachAnnouncementOnAtOnce()
{
    const auto a = provider("a");
    const auto b = provider("b");
    int calls = 0;
    ZVTreeItemDataProviderManager manager;
    manager.addProvider(a);
    registerWith(manager, [&calls] { ++calls; });
    manager.addProvider(b);
    a->callUpdateFunction();
    QCOMPARE(calls, 1);
    b->callUpdateFunction();
    b->callUpdateFunction();
    QCOMPARE(calls, 3);
}

void ZVTreeItemDataProviderManagerTest::withoutCallbackTheProviderStaysPending()
{
    const auto a = provider("a");
    ZVTreeItemDataProviderManager manager;
    manager.addProvider(a);
    a->callUpdateFunction();
    QVERIFY(a->isUpdatePending());
    manager.updateDataOf(m_rows);
    QCOMPARE(m_log, std::string("a2 "));
}

void ZVTreeItemDataProviderManagerTest::laterCallbackReplacesTheEarlierOne()
{
    const auto a = provider("a");
    ZVTreeItemDataProviderManager manager;
    manager.addProvider(a);
    registerWith(manager, [this] { m_log += "first "; });
    registerWith(manager, [this] { m_log += "second "; });
    a->callUpdateFunction();
    QCOMPARE(m_log, std::string("second "));
}

void ZVTreeItemDataProviderManagerTest::emptyCallbackIsSkipped()
{
    const auto a = provider("a");
    ZVTreeItemDataProviderManager manager;
    manager.addProvider(a);
    registerWith(manager, [this] { m_log += "first "; });
    registerWith(manager, {});
    a->callUpdateFunction();
    QCOMPARE(m_log, std::string());
}

void ZVTreeItemDataProviderManagerTest::callbackMayRefreshAtOnce()
{
    const auto a = provider("a");
    ZVTreeItemDataProviderManager manager;
    manager.addProvider(a);
    manager.addProvider(provider("b"));
    registerWith(manager, [this, &manager] { manager.updateDataOf(m_rows); });
    a->callUpdateFunction();
    a->callUpdateFunction();
    QCOMPARE(m_log, std::string("a2 a2 "));
}

void ZVTreeItemDataProviderManagerTest::managersMayBeNested()
{
    const auto a = provider("a", Qt::ItemIsUserCheckable);
    int calls = 0;
    const auto inner = std::make_shared<ZVTreeItemDataProviderManager>();
    ZVTreeItemDataProviderManager outer;
    inner->addProvider(a);
    outer.addProvider(inner);
    outer.addProvider(provider("b"));
    registerWith(outer, [&calls] { ++calls; });
    QCOMPARE(outer.getItemFlags(), Qt::ItemFlags(Qt::ItemIsUserCheckable));
    a->callUpdateFunction();
    QCOMPARE(calls, 1);
    outer.updateDataOf(m_rows);
    outer.addDataTo(m_rows);
    QCOMPARE(m_log, std::string("a2 a2 b2 "));
}

void ZVTreeItemDataProviderManagerTest::providerMayOutliveItsManager()
{
    const auto a = provider("a");
    int calls = 0;
    {
        ZVTreeItemDataProviderManager manager;
        manager.addProvider(a);
        registerWith(manager, [&calls] { ++calls; });
    }
    a->callUpdateFunction();
    QCOMPARE(calls, 0);
    QVERIFY(a->isUpdatePending());
}

void ZVTreeItemDataProviderManagerTest::callbackMayDropTheManager()
{
    const auto a = provider("a");
    auto manager = std::make_shared<ZVTreeItemDataProviderManager>();
    manager->addProvider(a);
    const std::string word = "a word too long for the text's own room ";
    registerWith(*manager, [this, &manager, word] {
        manager.reset();
        m_log += word;
    });
    a->callUpdateFunction();
    a->callUpdateFunction();
    QCOMPARE(m_log, word);
}

void ZVTreeItemDataProviderManagerTest::copySharesTheProviders()
{
    const auto a = provider("a");
    ZVTreeItemDataProviderManager original;
    original.addProvider(a);
    registerWith(original, [this] { m_log += "original "; });
    ZVTreeItemDataProviderManager copy(original);
    registerWith(copy, [this] { m_log += "copy "; });
    copy.addProvider(provider("b"));
    a->callUpdateFunction();
    QCOMPARE(m_log, std::string("original "));
    copy.addDataTo(m_rows);
    original.addDataTo(m_rows);
    QCOMPARE(m_log, std::string("original a2 b2 a2 "));
}

void ZVTreeItemDataProviderManagerTest::copyMayOutliveTheOriginal()
{
    const auto a = provider("a");
    ZVTreeItemDataProviderManager copy;
    {
        ZVTreeItemDataProviderManager original;
        original.addProvider(a);
        copy = original;
    }
    a->callUpdateFunction();
    copy.updateDataOf(m_rows);
    QCOMPARE(m_log, std::string("a2 "));
}

void ZVTreeItemDataProviderManagerTest::lastManagerToldOfAProviderHearsIt()
{
    const auto a = provider("a");
    ZVTreeItemDataProviderManager first;
    ZVTreeItemDataProviderManager second;
    registerWith(first, [this] { m_log += "first "; });
    registerWith(second, [this] { m_log += "second "; });
    first.addProvider(a);
    second.addProvider(a);
    a->callUpdateFunction();
    QCOMPARE(m_log, std::string("second "));
}

ZORVANE_TEST(ZVTreeItemDataProviderManagerTest)
#include "ZVTreeItemDataProviderManagerTest.moc"
