// The synchronizer on the real host: random trees end as the plain rules say, whatever was handed
// on again, typed over or changed in between, and everything that watches the model has followed.

#include "Host/Widgets/ZVTreeViewModel.h"
#include "Tests/Support/ModelMirror.h"
#include "Tests/Support/TestCase.h"
#include "Tests/TreeModel/AlignmentRules.h"
#include "Tests/TreeModel/RandomTrees.h"
#include "Tests/TreeModel/WatchingProxies.h"
#include "TreeModel/ModelItemToZVTreeModelSyncronizer.h"

#include <QtCore/QPersistentModelIndex>
#include <QtWidgets/QTreeView>

#include <rapidcheck.h>

#include <map>

using namespace Zorvane;
using namespace Zorvane::GenericTreeViewModelHandling;
using namespace Zorvane::Testing;

namespace {

constexpr int IdRole = ModelItemToZVTreeModelSyncronizer::DefaultIdRole;

struct NoLog
{
    void inserted(int, int, int) {}
    void taken(int, int, int) {}
    void appended(int, const std::vector<int>&) {}
    void deleted(int) {}
    void texted(int) {}
};

using Rules = AlignmentRules<NoLog>;
using Items = std::vector<std::shared_ptr<ModelItem>>;
using Listed = std::vector<std::pair<IDCombiner, const ZVTreeViewItem*>>;

class ListRecorder : public ZVTreeItemDataProviderInterface
{
public:
    Qt::ItemFlags getItemFlags() override { return Qt::NoItemFlags; }
    void addDataTo(const RowList& rows) override { added.assign(rows.begin(), rows.end()); }
    void updateDataOf(const RowList& rows) override { updated.assign(rows.begin(), rows.end()); }
    void registerUpdateCallback(std::function<void()>) override {}

    Listed added;
    Listed updated;
};

/** A row that keeps its id where only its class knows of it. */
class OwnRow : public ZVTreeViewItem
{
public:
    QVariant data(int column, int role) const override
    {
        return column == 0 && role == IdRole ? m_id : ZVTreeViewItem::data(column, role);
    }
    bool setData(int column, int role, const QVariant& value) override
    {
        if (column != 0 || role != IdRole)
            return ZVTreeViewItem::setData(column, role, value);
        m_id = value;
        return true;
    }

private:
    QVariant m_id;
};

class TwoColumns : public ZVTreeViewModel
{
public:
    TwoColumns() { setColumnCount(2); }
};

/** A model's rows and their twins, to which the plain rules are applied. */
class Scene
{
public:
    Scene(const std::vector<RowPlan>& plans, Source kind)
        : source(kind)
    {
        model.setExact(source == Source::ExactTree);
        build(model.rootItem(), twin, plans);
        proxies = std::make_unique<WatchingProxies>(&model, source);
        view.setModel(&model);
        syncronizer.setDataProvider(recorder);
        rememberPlaces();
    }

    void build(ZVTreeViewItem* parent, Rules::Row& copy, const std::vector<RowPlan>& plans)
    {
        for (const RowPlan& plan : plans) {
            ZVTreeViewItem* row = plan.number % 17 == 1 ? new OwnRow : new ZVTreeViewItem;
            parent->insertChild(parent->childCount(), row);
            auto made = std::make_unique<Rules::Row>();
            made->serial = ++lastSerial;
            rowOfSerial[made->serial] = row;
            made->id = RandomTrees::readId(plan);
            row->setData(0, IdRole, RandomTrees::storedValue(plan));
            build(row, *made, plan.children);
            copy.children.push_back(std::move(made));
        }
    }

    /** Every row knows its place now; it has to keep it for as long as it is there. */
    void rememberPlaces()
    {
        places.clear();
        std::map<int, const Rules::Row*> present;
        note(twin, present);
        for (const auto& [serial, copy] : present) {
            const QModelIndex index = model.indexFromItem(rowOfSerial.at(serial));
            places.emplace(serial, index);
            if (!copy->children.empty())
                view.expand(index);
            view.selectionModel()->select(index, serial % 5 == 0 ? QItemSelectionModel::Select
                                                                 : QItemSelectionModel::Deselect);
        }
    }

    /** What other code does to a row between two refreshes, and to its twin. */
    void disturb(RandomTrees& random)
    {
        ZVTreeViewItem* parent = model.rootItem();
        Rules::Row* copy = &twin;
        while (!copy->children.empty() && source != Source::List && random.below(4) != 0) {
            const int child = random.below(int(copy->children.size()));
            parent = parent->child(child);
            copy = copy->children[std::size_t(child)].get();
        }
        const int action = random.below(3);
        if (action == 0 && copy != &twin) {
            parent->setText("typed");
            copy->text = "typed";
        } else if (action == 1 && !copy->children.empty()) {
            const int child = random.below(int(copy->children.size()));
            parent->deleteChild(child);
            copy->children.erase(copy->children.begin() + child);
        } else {
            std::vector<RowPlan> plans{{StoredId::Typed, random.below(30), {}}};
            build(parent, *copy, plans);
        }
    }

    /** Refreshes rows and twins; returns what the data provider should have been handed. */
    Listed refresh(const Items& items, bool updatesAll)
    {
        const auto root = std::make_shared<ModelRoot>();
        root->addTopLevelItems(items);
        NoLog log;
        Rules rules(log, lastSerial);
        rules.synchronize(twin, items);
        if (updatesAll)
            syncronizer.syncronizeAndUpdateViewModel(&model, root);
        else
            syncronizer.syncronizeViewModel(&model, root);
        RC_ASSERT(matches(model.rootItem(), twin));
        lastSerial = rules.lastSerial();
        return rowsOf(updatesAll ? identified() : rules.created());
    }

    std::vector<std::pair<IDCombiner, int>> identified() const
    {
        std::vector<std::pair<IDCombiner, int>> rows;
        Rules::identified(twin, rows);
        return rows;
    }

    /** Old rows are the same objects; new ones are learned by where they are. */
    bool matches(const ZVTreeViewItem* parent, const Rules::Row& copy)
    {
        if (parent->childCount() != int(copy.children.size()))
            return false;
        for (int i = 0; i < parent->childCount(); ++i) {
            ZVTreeViewItem* row = parent->child(i);
            const Rules::Row& other = *copy.children[std::size_t(i)];
            if (other.serial > lastSerial)
                rowOfSerial[other.serial] = row;
            if (rowOfSerial.at(other.serial) != row || row->row() != i ||
                row->text().toStdString() != other.text || !matches(row, other))
                return false;
        }
        return true;
    }

    Listed rowsOf(const std::vector<std::pair<IDCombiner, int>>& serials) const
    {
        Listed rows;
        for (const auto& [id, serial] : serials)
            rows.emplace_back(id, rowOfSerial.at(serial));
        return rows;
    }

    /** Rows that are still there kept their index, expansion and selection, the others lost it. */
    void checkPlaces() const
    {
        std::map<int, const Rules::Row*> present;
        note(twin, present);
        for (const auto& [serial, index] : places) {
            RC_ASSERT(index.isValid() == (present.count(serial) == 1));
            if (!index.isValid())
                continue;
            RC_ASSERT((model.itemFromIndex(index) == rowOfSerial.at(serial)) == true);
            RC_ASSERT(view.selectionModel()->isSelected(index) == (serial % 5 == 0));
        }
    }

    void checkWatchers() const
    {
        RC_ASSERT(mirror.difference().toStdString() == std::string());
        RC_ASSERT(mirror.resets() == 0);
        RC_ASSERT(proxies->difference().toStdString() == std::string());
    }

    static void note(const Rules::Row& row, std::map<int, const Rules::Row*>& present)
    {
        for (const auto& child : row.children) {
            present[child->serial] = child.get();
            note(*child, present);
        }
    }

    const Source source;
    TwoColumns model;
    ModelMirror mirror{&model};
    std::unique_ptr<WatchingProxies> proxies;
    QTreeView view;
    const std::shared_ptr<ListRecorder> recorder = std::make_shared<ListRecorder>();
    ModelItemToZVTreeModelSyncronizer syncronizer;
    Rules::Row twin;
    int lastSerial = 0;
    std::map<int, ZVTreeViewItem*> rowOfSerial;
    std::map<int, QPersistentModelIndex> places;
};

/** Sorted by id as the list is; the order among equal ids is nobody's promise. */
bool sameList(Listed list, Listed expected)
{
    const bool sorted = std::is_sorted(
        list.begin(), list.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    std::sort(list.begin(), list.end());
    std::sort(expected.begin(), expected.end());
    return sorted && list == expected;
}

void checkOneTree(unsigned seed)
{
    RandomTrees random(seed);
    const auto source = Source(random.below(3));
    if (source == Source::List)
        random.drawListsOnly();
    const auto plans = random.rows();
    Scene scene(plans, source);
    const QAbstractItemModelTester tester(&scene.model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    Items items;
    for (int refreshes = 1 + random.below(4); refreshes > 0; --refreshes) {
        const bool anew = items.empty() || random.below(3) == 0;
        items = anew ? random.refresh(plans) : random.handedOn(items);
        const Listed expected = scene.refresh(items, random.below(2) == 0);
        RC_ASSERT(sameList(scene.recorder->added, expected));
        scene.checkPlaces();
        scene.checkWatchers();
        scene.syncronizer.updateViewModelItems(&scene.model);
        RC_ASSERT(sameList(scene.recorder->updated, scene.rowsOf(scene.identified())));
        for (int changes = random.below(3); changes > 0; --changes)
            scene.disturb(random);
        scene.rememberPlaces();
    }
}

/** So many lists change their counts at once that they are not announced one by one. */
void checkManyLists(unsigned seed)
{
    RandomTrees random(seed);
    std::vector<RowPlan> plans(120);
    for (std::size_t i = 0; i < plans.size(); ++i) {
        plans[i] = {StoredId::Typed, int(i), {}};
        for (int child = random.below(4); child > 0; --child)
            plans[i].children.push_back({StoredId::Typed, random.below(30), {}});
    }
    Scene scene(plans, Source(random.below(2)));
    scene.refresh(random.variation(plans), false);
    scene.checkPlaces();
    scene.checkWatchers();
}

bool holds(const char* what, void (*check)(unsigned seed))
{
    return rc::check(what, [check] {
        // A seed, not a size: all of them from the start, and nothing to shrink.
        const auto anySeed = rc::gen::resize(rc::kNominalSize, rc::gen::arbitrary<unsigned>());
        check(*rc::gen::noShrink(anySeed));
    });
}

} // namespace

class SyncronizerRowsTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void anyTree_endsAsThePlainRulesSay();
    void manyLists_endAsThePlainRulesSay();
};

void SyncronizerRowsTest::initTestCase()
{
    TestCase::initTestCase();
    RandomTrees::registerConverter();
    if (!qEnvironmentVariableIsSet("RC_PARAMS"))
        qputenv("RC_PARAMS", Testing::isLongRun() ? "max_success=2000" : "max_success=100");
}

void SyncronizerRowsTest::anyTree_endsAsThePlainRulesSay()
{
    QVERIFY(holds("random trees", checkOneTree));
}

void SyncronizerRowsTest::manyLists_endAsThePlainRulesSay()
{
    QVERIFY(holds("many lists", checkManyLists));
}

ZORVANE_TEST(SyncronizerRowsTest)
#include "SyncronizerRowsTest.moc"
