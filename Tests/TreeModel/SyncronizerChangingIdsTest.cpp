// Rows of own classes that change ids while the synchronizer puts their list in order: a row is
// taken for an item only if it carries the item's id at that moment, one that comes by an id later
// may be replaced by a new row, and nothing happens to the others.

#include "Host/Widgets/ZVTreeViewModel.h"
#include "Tests/Support/ModelMirror.h"
#include "Tests/Support/TestCase.h"
#include "Tests/TreeModel/DataProviderFixtures.h"
#include "TreeModel/ModelItemToZVTreeModelSyncronizer.h"

#include <rapidcheck.h>

#include <algorithm>
#include <functional>
#include <map>
#include <numeric>
#include <random>

using namespace Zorvane;
using namespace Zorvane::GenericTreeViewModelHandling;

namespace {

constexpr int IdRole = ModelItemToZVTreeModelSyncronizer::DefaultIdRole;

IDCombiner idOf(int number)
{
    return Identifier(std::uint64_t(number));
}

using Items = std::vector<std::shared_ptr<ModelItem>>;

std::shared_ptr<ModelItem> item(int number)
{
    return std::make_shared<ModelItem>(idOf(number), std::to_string(number));
}

Items items(const std::vector<int>& numbers)
{
    Items made;
    for (int number : numbers)
        made.push_back(item(number));
    return made;
}

/** Does something whenever its text is written, that is, when it has been found in place. */
class ActingRow : public ZVTreeViewItem
{
public:
    bool setData(int column, int role, const QVariant& value) override
    {
        if (role == Qt::DisplayRole && onText)
            onText();
        return ZVTreeViewItem::setData(column, role, value);
    }

    std::function<void()> onText;
};

class Scene
{
public:
    explicit Scene(const std::vector<int>& numbers)
        : mirror(&model)
    {
        syncronizer.setDataProvider(std::make_shared<Testing::NoData>());
        QVector<ZVTreeViewItem*> made;
        for (int number : numbers) {
            rows.push_back(new ActingRow);
            rows.back()->setId(IdRole, idOf(number));
            made.append(rows.back());
        }
        model.rootItem()->appendChildren(made);
    }

    /** Each item gets a row. */
    void show(const Items& wanted)
    {
        const auto root = std::make_shared<ModelRoot>();
        root->addTopLevelItems(wanted);
        syncronizer.syncronizeViewModel(&model, root);
        QCOMPARE(model.rowCount(), int(wanted.size()));
        QCOMPARE(mirror.difference(), QString());
    }

    const ZVTreeViewItem* shown(int row) const { return model.rootItem()->child(row); }
    int positionOf(const ZVTreeViewItem* row) const
    {
        for (int i = 0; i < model.rowCount(); ++i) {
            if (shown(i) == row)
                return i;
        }
        return -1;
    }

    ModelItemToZVTreeModelSyncronizer syncronizer;
    ZVTreeViewModel model;
    Testing::ModelMirror mirror;
    std::vector<ActingRow*> rows;
};

/** 100 to 199: one of the last, wanted first, is far away enough to make an index worth it. */
std::vector<int> manyNumbers()
{
    std::vector<int> numbers(100);
    std::iota(numbers.begin(), numbers.end(), 100);
    return numbers;
}

/** The given ones first, then those that are left of the others. */
std::vector<int> startingWith(std::vector<int> first, const std::vector<int>& others)
{
    for (int number : others) {
        if (std::count(first.begin(), first.end(), number) == 0)
            first.push_back(number);
    }
    return first;
}

/** Carries another id each time that it is asked. */
class FickleRow : public ZVTreeViewItem
{
public:
    explicit FickleRow(unsigned seed)
        : m_random(seed)
    {}

    QVariant data(int column, int role) const override
    {
        return column == 0 && role == IdRole ? QVariant::fromValue(idOf(int(m_random() % 12)))
                                             : ZVTreeViewItem::data(column, role);
    }

private:
    mutable std::minstd_rand m_random;
};

/** Rows with numbers below 12 take each other's ids whenever one of them is found in place. */
void checkOneList(unsigned seed)
{
    std::minstd_rand random(seed);
    const auto below = [&random](int bound) { return int(random() % unsigned(bound)); };
    std::vector<int> numbers(std::size_t(below(200)));
    for (std::size_t i = 0; i < numbers.size(); ++i)
        numbers[i] = below(3) == 0 ? below(12) : 100 + int(i);
    Scene scene(numbers);
    std::vector<ActingRow*> changing;
    std::map<int, const ZVTreeViewItem*> steady;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        if (numbers[i] < 12)
            changing.push_back(scene.rows[i]);
        else
            steady[numbers[i]] = scene.rows[i];
    }
    for (ActingRow* row : changing)
        row->onText = [&, row] {
            row->setId(IdRole, idOf(below(12)));
            changing[std::size_t(below(int(changing.size())))]->setId(IdRole, idOf(below(12)));
        };
    for (int i = below(4); i > 0; --i)
        scene.model.rootItem()->insertChild(below(scene.model.rowCount() + 1),
                                            new FickleRow(unsigned(random())));

    std::vector<int> wanted;
    for (int number : numbers) {
        if (below(6) > 0)
            wanted.push_back(number < 12 ? below(12) : number);
    }
    if (below(2) == 0)
        std::shuffle(wanted.begin(), wanted.end(), random);
    scene.show(items(wanted));
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        if (wanted[i] >= 12)
            RC_ASSERT((scene.shown(int(i)) == steady.at(wanted[i])) == true);
    }
}

} // namespace

class SyncronizerChangingIdsTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void rowThatLosesItsIdIsNotTakenForIt();
    void rowLookedUpAheadThatLosesItsIdIsNotTakenForIt();
    void otherRowsWithTheFormerIdAreFound();
    void placedRowMayChangeItsId();
    void rowThatGetsItsIdInPlaceIsKept();
    void rowThatComesByAnIdLaterMayBeReplaced();
    void rowsThatKeepTheirIdsAreKept();
};

void SyncronizerChangingIdsTest::rowThatLosesItsIdIsNotTakenForIt()
{
    Scene scene(manyNumbers());
    const ZVTreeViewItem* changed = scene.rows[50];
    scene.rows[0]->onText = [&] { scene.rows[50]->setId(IdRole, idOf(7)); };
    scene.show(items(startingWith({190, 100, 150}, manyNumbers())));
    QCOMPARE(scene.shown(2)->text(), QStringLiteral("150"));
    QCOMPARE(scene.positionOf(changed), -1);
}

void SyncronizerChangingIdsTest::rowLookedUpAheadThatLosesItsIdIsNotTakenForIt()
{
    Scene scene(manyNumbers());
    const ZVTreeViewItem* changed = scene.rows[35];
    scene.rows[0]->onText = [&] { scene.rows[35]->setId(IdRole, idOf(7)); };
    // Scattered ones first: after some of them, many are looked up at once.
    const std::vector<int> first{190, 110, 130, 150, 170, 120, 140, 160, 180, 195, 115, 100, 135};
    scene.show(items(startingWith(first, manyNumbers())));
    QCOMPARE(scene.shown(12)->text(), QStringLiteral("135"));
    QCOMPARE(scene.positionOf(changed), -1);
}

void SyncronizerChangingIdsTest::otherRowsWithTheFormerIdAreFound()
{
    Scene scene(startingWith({100, 5, 5}, manyNumbers()));
    const ZVTreeViewItem* other = scene.rows[2];
    scene.rows[0]->onText = [&] { scene.rows[1]->setId(IdRole, idOf(7)); };
    scene.show(items(startingWith({190, 100, 5}, manyNumbers())));
    QCOMPARE(scene.positionOf(other), 2);
}

void SyncronizerChangingIdsTest::placedRowMayChangeItsId()
{
    Scene scene(startingWith({5, 101, 5}, manyNumbers()));
    const ZVTreeViewItem* first = scene.rows[0];
    const ZVTreeViewItem* second = scene.rows[2];
    scene.rows[0]->onText = [&] { scene.rows[0]->setId(IdRole, idOf(7)); };
    scene.show(items(startingWith({190, 5, 180, 5}, manyNumbers())));
    QCOMPARE(scene.positionOf(first), 1);
    QCOMPARE(scene.positionOf(second), 3);
}

void SyncronizerChangingIdsTest::rowThatGetsItsIdInPlaceIsKept()
{
    Scene scene(manyNumbers());
    const ZVTreeViewItem* changed = scene.rows[1];
    scene.rows[0]->onText = [&] { scene.rows[1]->setId(IdRole, idOf(7)); };
    scene.show(items(startingWith({190, 100, 7}, manyNumbers())));
    QCOMPARE(scene.positionOf(changed), 2);
}

void SyncronizerChangingIdsTest::rowThatComesByAnIdLaterMayBeReplaced()
{
    Scene scene(manyNumbers());
    scene.rows[0]->onText = [&] { scene.rows[50]->setId(IdRole, idOf(7)); };
    scene.show(items(startingWith({190, 100, 7}, manyNumbers())));
    QVERIFY(scene.shown(2)->data(0, IdRole).value<IDCombiner>() == idOf(7));
}

void SyncronizerChangingIdsTest::rowsThatKeepTheirIdsAreKept()
{
    const bool held = rc::check("random lists", [] {
        const auto anySeed = rc::gen::resize(rc::kNominalSize, rc::gen::arbitrary<unsigned>());
        checkOneList(*rc::gen::noShrink(anySeed));
    });
    QVERIFY(held);
}

ZORVANE_TEST(SyncronizerChangingIdsTest)
#include "SyncronizerChangingIdsTest.moc"
