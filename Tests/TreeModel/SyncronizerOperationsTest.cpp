// Compiled against a host of its own (see RecordingHost/), whose rows write down what is done to
// them. It knows no batches, so this is also the proof that such a host is served.

#include "Tests/TreeModel/AlignmentRules.h"
#include "Tests/TreeModel/RandomTrees.h"
#include "TreeModel/ModelItemToZVTreeModelSyncronizer.h"

#include "Host/Widgets/ZVTreeViewModel.h"

#include <QtTest/QtTest>

#include <rapidcheck.h>

using namespace Zorvane;
using namespace Zorvane::GenericTreeViewModelHandling;
using namespace Zorvane::Testing;

namespace {

constexpr int IdRole = ModelItemToZVTreeModelSyncronizer::DefaultIdRole;

/** Writes down what the plain rules do, in the form in which rows write it down. */
struct RuleLog
{
    void inserted(int parent, int index, int row)
    {
        operations.push_back({"insert", parent, index, {row}});
    }
    void taken(int parent, int index, int row)
    {
        operations.push_back({"take", parent, index, {row}});
    }
    void appended(int parent, const std::vector<int>& rows)
    {
        operations.push_back({"append", parent, -1, rows});
    }
    void deleted(int row) { operations.push_back({"delete", row, -1, {}}); }
    void texted(int row) { operations.push_back({"text", row, -1, {}}); }

    std::vector<RowOperation> operations;
};

using Rules = AlignmentRules<RuleLog>;

class ListRecorder : public ZVTreeItemDataProviderInterface
{
public:
    Qt::ItemFlags getItemFlags() override { return Qt::NoItemFlags; }
    void addDataTo(const RowList& rows) override { added.push_back(serials(rows)); }
    void updateDataOf(const RowList& rows) override { updated.push_back(serials(rows)); }
    void registerUpdateCallback(std::function<void()>) override {}

    static std::vector<std::pair<IDCombiner, int>> serials(const RowList& rows)
    {
        std::vector<std::pair<IDCombiner, int>> list;
        for (const auto& [id, row] : rows)
            list.emplace_back(id, row->serial);
        return list;
    }

    std::vector<std::vector<std::pair<IDCombiner, int>>> added;
    std::vector<std::vector<std::pair<IDCombiner, int>>> updated;
};

void build(ZVTreeViewItem* parent, Rules::Row& twin, const std::vector<RowPlan>& plans)
{
    for (const RowPlan& plan : plans) {
        auto* row = new ZVTreeViewItem;
        auto copy = std::make_unique<Rules::Row>();
        copy->serial = row->serial;
        copy->id = RandomTrees::readId(plan);
        row->setData(0, IdRole, RandomTrees::storedValue(plan));
        build(row, *copy, plan.children);
        parent->appendChildren({row});
        twin.children.push_back(std::move(copy));
    }
}

bool sameRows(const ZVTreeViewItem* row, const Rules::Row& twin)
{
    if (row->childCount() != int(twin.children.size()))
        return false;
    for (int i = 0; i < row->childCount(); ++i) {
        const ZVTreeViewItem* child = row->child(i);
        const Rules::Row& other = *twin.children[std::size_t(i)];
        if (child->serial != other.serial || !sameRows(child, other) ||
            child->data(0, Qt::DisplayRole).toString().toStdString() != other.text)
            return false;
    }
    return true;
}

/** Sorted by id as the list is; the order among equal ids is nobody's promise. */
bool sameList(std::vector<std::pair<IDCombiner, int>> list,
              std::vector<std::pair<IDCombiner, int>> expected)
{
    const bool sorted = std::is_sorted(
        list.begin(), list.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    std::sort(list.begin(), list.end());
    std::sort(expected.begin(), expected.end());
    return sorted && list == expected;
}

std::string told(const std::vector<RowOperation>& operations)
{
    std::string text;
    for (const RowOperation& operation : operations) {
        text += operation.name + " " + std::to_string(operation.parent) + "@" +
                std::to_string(operation.index) + ":";
        for (int row : operation.rows)
            text += " " + std::to_string(row);
        text += "\n";
    }
    return text;
}

void checkOneTree(unsigned seed)
{
    RandomTrees random(seed);
    rowLog() = {};
    {
        ZVTreeViewModel model;
        Rules::Row twin;
        twin.serial = model.rootItem()->serial;
        const auto plans = random.rows();
        build(model.rootItem(), twin, plans);
        const auto items = random.refresh(plans);
        auto root = std::make_shared<ModelRoot>();
        root->addTopLevelItems(static_cast<const decltype(items)&>(items));

        RuleLog expected;
        Rules rules(expected, rowLog().lastSerial);
        rules.synchronize(twin, items);
        std::vector<std::pair<IDCombiner, int>> identified;
        Rules::identified(twin, identified);

        rowLog().operations.clear();
        const auto recorder = std::make_shared<ListRecorder>();
        ModelItemToZVTreeModelSyncronizer syncronizer;
        syncronizer.setDataProvider(recorder);
        const bool updateAll = random.below(2) == 0;
        if (updateAll)
            syncronizer.syncronizeAndUpdateViewModel(&model, root);
        else
            syncronizer.syncronizeViewModel(&model, root);

        RC_ASSERT(told(rowLog().operations) == told(expected.operations));
        RC_ASSERT(sameRows(model.rootItem(), twin));
        RC_ASSERT(recorder->added.size() == 1U);
        RC_ASSERT(sameList(recorder->added.front(), updateAll ? identified : rules.created()));
        syncronizer.updateViewModelItems(&model);
        RC_ASSERT(sameList(recorder->updated.front(), identified));
    }
    RC_ASSERT(rowLog().livingRows == 0);
}

} // namespace

class SyncronizerOperationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void operationsComeInTheOrderOfThePlainRules();
};

void SyncronizerOperationsTest::initTestCase()
{
    RandomTrees::registerConverter();
    if (!qEnvironmentVariableIsSet("RC_PARAMS"))
        qputenv("RC_PARAMS", qEnvironmentVariableIsSet("ZORVANE_LONG_TESTS") ? "max_success=20000"
                                                                             : "max_success=500");
}

void SyncronizerOperationsTest::operationsComeInTheOrderOfThePlainRules()
{
    const bool held = rc::check("random trees", [] {
        // A seed, not a size: all of them from the start, and nothing to shrink.
        const auto anySeed = rc::gen::resize(rc::kNominalSize, rc::gen::arbitrary<unsigned>());
        checkOneTree(*rc::gen::noShrink(anySeed));
    });
    QVERIFY(held);
}

QTEST_GUILESS_MAIN(SyncronizerOperationsTest)
#include "SyncronizerOperationsTest.moc"
