#include "TreeModel/ModelItemFilterCombiner.h"

#include "Tests/Support/TestCase.h"
#include "Tests/TreeModel/FilterFixtures.h"

using namespace Zorvane;
using namespace Zorvane::GenericTreeViewModelHandling;
using Testing::NotingFilter;
using Combination = ModelItemFilterCombiner::Combination;
using Filters = std::vector<std::shared_ptr<ModelItemFilterInterface>>;

Q_DECLARE_METATYPE(Combination)

class ModelItemFilterCombinerTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_log.clear(); }

    void allMustAcceptIsTwo();
    void asksFiltersUntilTheAnswerIsKnown_data();
    void asksFiltersUntilTheAnswerIsKnown();
    void eachOverloadAsksTheSameOne();
    void seriesReachesEveryFilterInOrder();
    void changeOfAnyFilterReachesEverySlotOnce();
    void filterListedTwiceIsAskedTwiceAndHeardOnce();
    void slotsAreCalledInOrderOfConnection();
    void disconnectedSlotHearsNothing();
    void replacedFiltersAreNotHeardAnyMore();
    void filtersGivenAwayAreHeard();
    void settingFiltersAnnouncesNothing();
    void filterListMayBeEmptied();
    void subscriptionsEndWithTheCombiner();
    void listenerMayDropTheCombiner();
    void listenerMayReplaceTheFilters();
    void combinersMayBeNested();

private:
    std::shared_ptr<NotingFilter> filter(const std::string& name, bool answer = true)
    {
        return std::make_shared<NotingFilter>(name, answer, m_log);
    }

    std::string m_log;
};

void ModelItemFilterCombinerTest::allMustAcceptIsTwo()
{
    QCOMPARE(static_cast<int>(ModelItemFilterCombiner::AllMustAccept), 2);
}

void ModelItemFilterCombinerTest::asksFiltersUntilTheAnswerIsKnown_data()
{
    QTest::addColumn<Combination>("combination");
    QTest::addColumn<QVector<bool>>("answers");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<std::string>("asked");
    using List = QVector<bool>;
    const auto all = ModelItemFilterCombiner::AllMustAccept;
    const auto any = ModelItemFilterCombiner::AnyMayAccept;
    const auto other = static_cast<Combination>(0);
    const std::string none;
    const std::string one = "0.combined ";
    const std::string two = one + "1.combined ";
    const std::string three = two + "2.combined ";
    // clang-format off
    QTest::newRow("all of none")                << all   << List()                    << true  << none;
    QTest::newRow("all agree")                  << all   << List{true, true, true}    << true  << three;
    QTest::newRow("first refusal ends it")      << all   << List{true, false, true}   << false << two;
    QTest::newRow("any of none")                << any   << List()                    << false << none;
    QTest::newRow("none agrees")                << any   << List{false, false, false} << false << three;
    QTest::newRow("first acceptance ends it")   << any   << List{true, false, true}   << true  << one;
    QTest::newRow("last acceptance is enough")  << any   << List{false, false, true}  << true  << three;
    QTest::newRow("other value, of none")       << other << List()                    << false << none;
    QTest::newRow("other value, one agrees")    << other << List{false, true}         << true  << two;
    // clang-format on
}

void ModelItemFilterCombinerTest::asksFiltersUntilTheAnswerIsKnown()
{
    QFETCH(Combination, combination);
    QFETCH(QVector<bool>, answers);
    QFETCH(bool, accepted);
    QFETCH(std::string, asked);
    Filters filters;
    for (int i = 0; i < answers.size(); ++i)
        filters.push_back(filter(std::to_string(i), answers.at(i)));
    ModelItemFilterCombiner combiner(combination);
    combiner.setFilterToCombine(filters);
    QCOMPARE(combiner.accept(IDCombiner()), accepted);
    QCOMPARE(m_log, asked);
}

void ModelItemFilterCombinerTest::eachOverloadAsksTheSameOne()
{
    ModelItemFilterCombiner combiner(ModelItemFilterCombiner::AllMustAccept);
    combiner.setFilterToCombine({filter("a"), filter("b")});
    QVERIFY(combiner.accept(Identifier(1)));
    QVERIFY(combiner.accept(GUIdentifier::create()));
    QVERIFY(combiner.accept(IDCombiner()));
    QCOMPARE(m_log, std::string("a.id b.id a.gui b.gui a.combined b.combined "));
}

void ModelItemFilterCombinerTest::seriesReachesEveryFilterInOrder()
{
    ModelItemFilterCombiner combiner(ModelItemFilterCombiner::AnyMayAccept);
    combiner.setFilterToCombine({filter("a"), filter("b")});
    combiner.beginFiltering();
    combiner.endFiltering();
    QCOMPARE(m_log, std::string("a.begin b.begin a.end b.end "));
}

void ModelItemFilterCombinerTest::changeOfAnyFilterReachesEverySlotOnce()
{
    const auto a = filter("a");
    const auto b = filter("b");
    int first = 0;
    int second = 0;
    ModelItemFilterCombiner combiner(ModelItemFilterCombiner::AnyMayAccept);
    combiner.setFilterToCombine(Filters{a, b});
    combiner.connectToChanged([&first] { ++first; });
    combiner.connectToChanged([&second] { ++second; });
    a->changed();
    b->changed();
    b->changed();
    QCOMPARE(first, 3);
    QCOMPARE(second, 3);
}

void ModelItemFilterCombinerTest::filterListedTwiceIsAskedTwiceAndHeardOnce()
{
    const auto a = filter("a");
    const auto b = filter("b");
    int calls = 0;
    ModelItemFilterCombiner combiner(ModelItemFilterCombiner::AllMustAccept);
    combiner.setFilterToCombine(Filters{a, b, a});
    combiner.connectToChanged([&calls] { ++calls; });
    a->changed();
    QCOMPARE(calls, 1);
    b->changed();
    QCOMPARE(calls, 2);
    combiner.beginFiltering();
    QVERIFY(combiner.accept(IDCombiner()));
    QCOMPARE(m_log, std::string("a.begin b.begin a.begin a.combined b.combined a.combined "));
    combiner.setFilterToCombine({b});
    QVERIFY(a->changed.empty());
}

void ModelItemFilterCombinerTest::slotsAreCalledInOrderOfConnection()
{
    const auto a = filter("a");
    ModelItemFilterCombiner combiner(ModelItemFilterCombiner::AnyMayAccept);
    combiner.setFilterToCombine({a});
    combiner.connectToChanged([this] { m_log += "1"; });
    combiner.connectToChanged([this] { m_log += "2"; });
    a->changed();
    QCOMPARE(m_log, std::string("12"));
}

void ModelItemFilterCombinerTest::disconnectedSlotHearsNothing()
{
    const auto a = filter("a");
    int calls = 0;
    ModelItemFilterCombiner combiner(ModelItemFilterCombiner::AnyMayAccept);
    combiner.setFilterToCombine({a});
    const Signals::Connection connection = combiner.connectToChanged([&calls] { ++calls; });
    connection.disconnect();
    a->changed();
    QCOMPARE(calls, 0);
}

void ModelItemFilterCombinerTest::replacedFiltersAreNotHeardAnyMore()
{
    const auto former = filter("former");
    const auto both = filter("both");
    const auto latter = filter("latter");
    int calls = 0;
    ModelItemFilterCombiner combiner(ModelItemFilterCombiner::AnyMayAccept);
    combiner.connectToChanged([&calls] { ++calls; });
    combiner.setFilterToCombine(Filters{former, both});
    combiner.setFilterToCombine(Filters{both, latter});
    former->changed();
    QCOMPARE(calls, 0);
    both->changed();
    latter->changed();
    QCOMPARE(calls, 2);
    QVERIFY(former->changed.empty());
    QCOMPARE(both->changed.slotCount(), std::size_t(1));
}

void ModelItemFilterCombinerTest::filtersGivenAwayAreHeard()
{
    const auto a = filter("a");
    Filters filters{a};
    int calls = 0;
    ModelItemFilterCombiner combiner(ModelItemFilterCombiner::AllMustAccept);
    combiner.connectToChanged([&calls] { ++calls; });
    combiner.setFilterToCombine(filters);
    combiner.setFilterToCombine(std::move(filters));
    a->changed();
    QCOMPARE(calls, 1);
    QVERIFY(combiner.accept(IDCombiner()));
    QCOMPARE(m_log, std::string("a.combined "));
}

void ModelItemFilterCombinerTest::settingFiltersAnnouncesNothing()
{
    int calls = 0;
    ModelItemFilterCombiner combiner(ModelItemFilterCombiner::AnyMayAccept);
    combiner.connectToChanged([&calls] { ++calls; });
    combiner.setFilterToCombine({filter("a")});
    QCOMPARE(calls, 0);
}

void ModelItemFilterCombinerTest::filterListMayBeEmptied()
{
    const auto a = filter("a");
    ModelItemFilterCombiner combiner(ModelItemFilterCombiner::AllMustAccept);
    combiner.setFilterToCombine({a});
    combiner.setFilterToCombine(Filters());
    QVERIFY(combiner.accept(Identifier(1)));
    QVERIFY(a->changed.empty());
    QCOMPARE(a.use_count(), 1L);
}

void ModelItemFilterCombinerTest::subscriptionsEndWithTheCombiner()
{
    const auto a = filter("a");
    int calls = 0;
    {
        ModelItemFilterCombiner combiner(ModelItemFilterCombiner::AllMustAccept);
        combiner.connectToChanged([&calls] { ++calls; });
        combiner.setFilterToCombine({a});
        QCOMPARE(a->changed.slotCount(), std::size_t(1));
    }
    QVERIFY(a->changed.empty());
    a->changed();
    QCOMPARE(calls, 0);
}

void ModelItemFilterCombinerTest::listenerMayDropTheCombiner()
{
    const auto a = filter("a");
    auto combiner =
        std::make_shared<ModelItemFilterCombiner>(ModelItemFilterCombiner::AllMustAccept);
    combiner->setFilterToCombine({a});
    combiner->connectToChanged([this, &combiner] {
        m_log += "1";
        combiner.reset();
    });
    a->changed();
    a->changed();
    QCOMPARE(m_log, std::string("1"));
    QVERIFY(a->changed.empty());
}

void ModelItemFilterCombinerTest::listenerMayReplaceTheFilters()
{
    const auto a = filter("a");
    const auto b = filter("b");
    ModelItemFilterCombiner combiner(ModelItemFilterCombiner::AllMustAccept);
    combiner.setFilterToCombine({a});
    combiner.connectToChanged([this, &combiner, b] {
        m_log += "1";
        combiner.setFilterToCombine({b});
    });
    a->changed();
    a->changed();
    b->changed();
    QCOMPARE(m_log, std::string("11"));
}

void ModelItemFilterCombinerTest::combinersMayBeNested()
{
    const auto a = filter("a", false);
    const auto b = filter("b");
    const auto any =
        std::make_shared<ModelItemFilterCombiner>(ModelItemFilterCombiner::AnyMayAccept);
    any->setFilterToCombine(Filters{a, b});
    ModelItemFilterCombiner all(ModelItemFilterCombiner::AllMustAccept);
    all.setFilterToCombine({any, b});
    int calls = 0;
    all.connectToChanged([&calls] { ++calls; });
    QVERIFY(all.accept(Identifier(1)));
    QCOMPARE(m_log, std::string("a.id b.id b.id "));
    a->changed();
    QCOMPARE(calls, 1);
}

ZORVANE_TEST(ModelItemFilterCombinerTest)
#include "ModelItemFilterCombinerTest.moc"
