#include "TreeModel/DataProviderBaseWithUpdateFunction.h"

#include "Tests/Support/TestCase.h"
#include "Tests/TreeModel/DataProviderFixtures.h"

#include <memory>
#include <stdexcept>
#include <string>

using namespace Zorvane;
using namespace Zorvane::GenericTreeViewModelHandling;
using Testing::NotingDataProvider;
using Testing::RowList;

class DataProviderBaseWithUpdateFunctionTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_log.clear(); }

    void freshProviderUpdatesNothing();
    void announcedChangeIsWrittenOnce();
    void severalChangesAreWrittenOnce();
    void addingDataLeavesThePendingMark();
    void callbackRunsAtOnceForEachChange();
    void changeIsPendingWhenTheCallbackRuns();
    void callbackMayRefreshAtOnce();
    void withoutCallbackOnlyTheMarkIsSet();
    void laterCallbackReplacesTheEarlierOne();
    void emptyCallbackIsSkipped();
    void callbackMayReplaceItself();
    void callbackMayDropTheProvider();
    void failedRefreshStaysPending();

private:
    const RowList m_rows{{IDCombiner(), nullptr}, {Identifier(1), nullptr}};
    std::string m_log;
};

void DataProviderBaseWithUpdateFunctionTest::freshProviderUpdatesNothing()
{
    NotingDataProvider provider("a", m_log);
    QVERIFY(!provider.isUpdatePending());
    provider.updateDataOf(m_rows);
    QCOMPARE(m_log, std::string());
}

void DataProviderBaseWithUpdateFunctionTest::announcedChangeIsWrittenOnce()
{
    NotingDataProvider provider("a", m_log);
    provider.callUpdateFunction();
    QVERIFY(provider.isUpdatePending());
    provider.updateDataOf(m_rows);
    QVERIFY(!provider.isUpdatePending());
    provider.updateDataOf(m_rows);
    QCOMPARE(m_log, std::string("a2 "));
}

void DataProviderBaseWithUpdateFunctionTest::severalChangesAreWrittenOnce()
{
    NotingDataProvider provider("a", m_log);
    provider.callUpdateFunction();
    provider.callUpdateFunction();
    provider.updateDataOf(m_rows);
    provider.updateDataOf(m_rows);
    QCOMPARE(m_log, std::string("a2 "));
}

void DataProviderBaseWithUpdateFunctionTest::addingDataLeavesThePendingMark()
{
    NotingDataProvider provider("a", m_log);
    provider.callUpdateFunction();
    provider.addDataTo(m_rows);
    QVERIFY(provider.isUpdatePending());
}

void DataProviderBaseWithUpdateFunctionTest::callbackRunsAtOnceForEachChange()
{
    NotingDataProvider provider("a", m_log);
    int calls = 0;
    provider.registerUpdateCallback([&calls] { ++calls; });
    QCOMPARE(calls, 0);
    provider.callUpdateFunction();
    QCOMPARE(calls, 1);
    provider.callUpdateFunction();
    QCOMPARE(calls, 2);
}

void DataProviderBaseWithUpdateFunctionTest::changeIsPendingWhenTheCallbackRuns()
{
    NotingDataProvider provider("a", m_log);
    bool pending = false;
    provider.registerUpdateCallback([&] { pending = provider.isUpdatePending(); });
    provider.callUpdateFunction();
    QVERIFY(pending);
}

void DataProviderBaseWithUpdateFunctionTest::callbackMayRefreshAtOnce()
{
    NotingDataProvider provider("a", m_log);
    provider.registerUpdateCallback([&] { provider.updateDataOf(m_rows); });
    provider.callUpdateFunction();
    QCOMPARE(m_log, std::string("a2 "));
    QVERIFY(!provider.isUpdatePending());
}

void DataProviderBaseWithUpdateFunctionTest::withoutCallbackOnlyTheMarkIsSet()
{
    NotingDataProvider provider("a", m_log);
    provider.callUpdateFunction();
    QVERIFY(provider.isUpdatePending());
    QCOMPARE(m_log, std::string());
}

void DataProviderBaseWithUpdateFunctionTest::laterCallbackReplacesTheEarlierOne()
{
    NotingDataProvider provider("a", m_log);
    provider.registerUpdateCallback([this] { m_log += "first "; });
    provider.registerUpdateCallback([this] { m_log += "second "; });
    provider.callUpdateFunction();
    QCOMPARE(m_log, std::string("second "));
}

void DataProviderBaseWithUpdateFunctionTest::emptyCallbackIsSkipped()
{
    NotingDataProvider provider("a", m_log);
    provider.registerUpdateCallback([this] { m_log += "first "; });
    provider.registerUpdateCallback({});
    provider.callUpdateFunction();
    QCOMPARE(m_log, std::string());
    QVERIFY(provider.isUpdatePending());
}

void DataProviderBaseWithUpdateFunctionTest::callbackMayReplaceItself()
{
    NotingDataProvider provider("a", m_log);
    const std::string word = "a word too long for the text's own room ";
    provider.registerUpdateCallback([this, &provider, word] {
        provider.registerUpdateCallback({});
        m_log += word;
    });
    provider.callUpdateFunction();
    provider.callUpdateFunction();
    QCOMPARE(m_log, word);
}

void DataProviderBaseWithUpdateFunctionTest::callbackMayDropTheProvider()
{
    auto provider = std::make_unique<NotingDataProvider>("a", m_log);
    const std::string word = "a word too long for the text's own room ";
    provider->registerUpdateCallback([this, &provider, word] {
        provider.reset();
        m_log += word;
    });
    provider->callUpdateFunction();
    QCOMPARE(m_log, word);
}

void DataProviderBaseWithUpdateFunctionTest::failedRefreshStaysPending()
{
    class Failing : public NotingDataProvider
    {
    public:
        using NotingDataProvider::NotingDataProvider;
        void addDataTo(const RowList& rows) override
        {
            if (failing)
                throw std::runtime_error("no data");
            NotingDataProvider::addDataTo(rows);
        }
        bool failing = true;
    };

    Failing provider("a", m_log);
    provider.callUpdateFunction();
    QVERIFY_EXCEPTION_THROWN(provider.updateDataOf(m_rows), std::runtime_error);
    QVERIFY(provider.isUpdatePending());
    provider.failing = false;
    provider.updateDataOf(m_rows);
    QCOMPARE(m_log, std::string("a2 "));
}

ZORVANE_TEST(DataProviderBaseWithUpdateFunctionTest)
#include "DataProviderBaseWithUpdateFunctionTest.moc"
