// The synchronizer on the real host, with its typed ids and its batches: random trees end as the
// plain rules say, also after several refreshes in one batch, and everybody who watches the model
// has followed.

#include "Host/Widgets/ZVTreeViewModel.h"
#include "Host/Widgets/ZVTreeViewModelBatch.h"
#include "Tests/Support/ModelMirror.h"
#include "Tests/Support/TestCase.h"
#include "Tests/TreeModel/AlignmentRules.h"
#include "Tests/TreeModel/RandomTrees.h"
#include "TreeModel/ModelItemToZVTreeModelSyncronizer.h"

#include <QtCore/QPersistentModelIndex>
#include <QtCore/QSortFilterProxyModel>
#include <QtWidgets/QTreeView>

#include <rapidcheck.h>

#include <map>
#include <optional>

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

/** A view's rows and their twins, to which the plain rules are applied. */
class Scene
{
public:
    explicit Scene(const std::vector<RowPlan>& plans)
    {
        build(model.rootItem(), twin, plans);
        view.setModel(&model);
        sorted.setSourceModel(&model);
        sorted.sort(0);
        for (const auto& [serial, row] : rowOfSerial) {
            places.emplace(serial, model.indexFromItem(row));
            if (row->childCount() > 0)
                view.expand(places.at(serial));
            if (serial % 5 == 0)
                view.selectionModel()->select(places.at(serial), QItemSelectionModel::Select);
        }
    }

    void build(ZVTreeViewItem* parent, Rules::Row& copy, const std::vector<RowPlan>& plans)
    {
        for (const RowPlan& plan : plans) {
            ZVTreeViewItem* row = plan.number % 7 == 1 ? new OwnRow : new ZVTreeViewItem;
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
        std::map<int, bool> present;
        note(twin, present);
        for (const auto& [serial, index] : places) {
            RC_ASSERT(index.isValid() == (present.count(serial) == 1));
            if (!index.isValid())
                continue;
            RC_ASSERT((model.itemFromIndex(index) == rowOfSerial.at(serial)) == true);
            RC_ASSERT(view.selectionModel()->isSelected(index) == (serial % 5 == 0));
            if (hadChildren.count(serial) == 1 && model.hasChildren(index))
                RC_ASSERT(view.isExpanded(index));
        }
    }

    static void note(const Rules::Row& row, std::map<int, bool>& present)
    {
        for (const auto& child : row.children) {
            present[child->serial] = true;
            note(*child, present);
        }
    }

    ZVTreeViewModel model;
    ModelMirror mirror{&model};
    QSortFilterProxyModel sorted;
    QTreeView view;
    Rules::Row twin;
    int lastSerial = 0;
    std::map<int, ZVTreeViewItem*> rowOfSerial;
    std::map<int, QPersistentModelIndex> places;
    std::map<int, bool> hadChildren;
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
    const auto plans = random.rows();
    Scene scene(plans);
    for (const auto& [serial, row] : scene.rowOfSerial) {
        if (row->childCount() > 0)
            scene.hadChildren[serial] = true;
    }
    const auto recorder = std::make_shared<ListRecorder>();
    ModelItemToZVTreeModelSyncronizer syncronizer;
    syncronizer.setDataProvider(recorder);
    std::vector<std::pair<IDCombiner, int>> expectedList;
    std::optional<ZVTreeViewModelBatch> outer;
    const int refreshes = 1 + random.below(3);
    if (refreshes > 1)
        outer.emplace(&scene.model);
    int lastSerial = scene.lastSerial;
    for (int i = 0; i < refreshes; ++i) {
        const auto items = random.refresh(plans);
        const auto root = std::make_shared<ModelRoot>();
        root->addTopLevelItems(static_cast<const decltype(items)&>(items));
        NoLog log;
        Rules rules(log, lastSerial);
        rules.synchronize(scene.twin, items);
        lastSerial = rules.lastSerial();
        if (random.below(2) == 0) {
            expectedList.clear();
            Rules::identified(scene.twin, expectedList);
            syncronizer.syncronizeAndUpdateViewModel(&scene.model, root);
        } else {
            expectedList = rules.created();
            syncronizer.syncronizeViewModel(&scene.model, root);
        }
    }
    outer.reset();

    RC_ASSERT(scene.matches(scene.model.rootItem(), scene.twin));
    RC_ASSERT(sameList(recorder->added, scene.rowsOf(expectedList)));
    std::vector<std::pair<IDCombiner, int>> identified;
    Rules::identified(scene.twin, identified);
    syncronizer.updateViewModelItems(&scene.model);
    RC_ASSERT(sameList(recorder->updated, scene.rowsOf(identified)));
    RC_ASSERT(scene.mirror.difference().toStdString() == std::string());
    RC_ASSERT(scene.mirror.resets() == 0);
    scene.checkPlaces();
}

} // namespace

class SyncronizerRowsTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void rowsEndAsThePlainRulesSay();
};

void SyncronizerRowsTest::initTestCase()
{
    TestCase::initTestCase();
    RandomTrees::registerConverter();
    if (!qEnvironmentVariableIsSet("RC_PARAMS"))
        qputenv("RC_PARAMS", Testing::isLongRun() ? "max_success=2000" : "max_success=200");
}

void SyncronizerRowsTest::rowsEndAsThePlainRulesSay()
{
    const bool held = rc::check("random trees", [] {
        const auto anySeed = rc::gen::resize(rc::kNominalSize, rc::gen::arbitrary<unsigned>());
        checkOneTree(*rc::gen::noShrink(anySeed));
    });
    QVERIFY(held);
}

ZORVANE_TEST(SyncronizerRowsTest)
#include "SyncronizerRowsTest.moc"
