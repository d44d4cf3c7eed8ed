#include "Host/Widgets/ZVTreeViewModelBatch.h"
#include "Tests/Host/Widgets/FlatRows.h"
#include "Tests/Support/ModelMirror.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QSortFilterProxyModel>
#include <QtWidgets/QTreeView>

#include <rapidcheck.h>

#include <map>
#include <memory>
#include <optional>
#include <random>
#include <vector>

using namespace Zorvane;

namespace {

/** One random change; what it does depends on the tree that it meets. */
struct Step
{
    int kind;
    unsigned first;
    unsigned second;
};

[[maybe_unused]] void showValue(const Step& step, std::ostream& out)
{
    out << "{" << step.kind << ", " << step.first << ", " << step.second << "}";
}

enum Kind
{
    InsertNew,
    InsertTree,
    MoveWithin,
    MoveAcross,
    Delete,
    DeleteDirectly,
    Rename,
    SetOther,
    TakeAndKeep,
    PutBack,
    PutBelowKept,
    NestBatch,
    KindCount
};

class TestModel : public ZVTreeViewModel
{
public:
    explicit TestModel(int columns) { setColumnCount(columns); }
};

constexpr int SerialRole = Qt::UserRole;

/** Rows are told apart by number: the address of a deleted one may come back. */
std::uint64_t serialOf(const ZVTreeViewItem* row)
{
    return row->id(SerialRole)->getIdentifier().getValue();
}

/** Runs random changes in batches with everything attached that watches a tree. */
class Playground
{
public:
    explicit Playground(int columns)
        : model(columns)
        , tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest)
        , mirror(&model)
    {
        plain.setSourceModel(&model);
        sorted.setSourceModel(&model);
        sorted.sort(0);
        chained.setRecursiveFilteringEnabled(true);
        chained.setFilterRegularExpression(QStringLiteral("[1-4]"));
        chained.setSourceModel(&sorted);
        chainMirror.emplace(&chained);
        flatRows = Testing::flatRowsOf(&model);
        view.setModel(&model);
        proxyView.setModel(&sorted);
    }

    ~Playground()
    {
        for (ZVTreeViewItem* row : kept)
            delete row;
    }

    ZVTreeViewItem* newRow()
    {
        auto row = std::make_unique<ZVTreeViewItem>();
        row->setText(std::to_string(names() % 50));
        row->setId(SerialRole, Identifier(++lastSerial));
        return row.release();
    }

    std::vector<ZVTreeViewItem*> rowsBelow(ZVTreeViewItem* parent) const
    {
        std::vector<ZVTreeViewItem*> rows;
        for (int i = 0; i < parent->childCount(); ++i) {
            rows.push_back(parent->child(i));
            const auto below = rowsBelow(parent->child(i));
            rows.insert(rows.end(), below.begin(), below.end());
        }
        return rows;
    }

    ZVTreeViewItem* pick(unsigned number) const
    {
        const auto rows = rowsBelow(model.rootItem());
        return rows.empty() ? nullptr : rows[number % rows.size()];
    }

    ZVTreeViewItem* pickParent(unsigned number) const
    {
        ZVTreeViewItem* row = number % 3 == 0 ? nullptr : pick(number / 3);
        return row ? row : model.rootItem();
    }

    static int position(const ZVTreeViewItem* parent, unsigned number)
    {
        return int(number % unsigned(parent->childCount() + 1));
    }

    void apply(const Step& step)
    {
        ZVTreeViewItem* parent = pickParent(step.first);
        ZVTreeViewItem* row = pick(step.first);
        switch (step.kind) {
        case InsertNew:
            parent->insertChild(position(parent, step.second), newRow());
            break;
        case InsertTree:
            insertTree(parent, step.second);
            break;
        case MoveWithin:
            if (row)
                moveTo(row, row->parent(), step.second);
            break;
        case MoveAcross:
            if (row)
                moveTo(row, pickParent(step.second), step.second);
            break;
        case Delete:
            if (row)
                QVERIFY(row->parent()->deleteChild(row->row()));
            break;
        case DeleteDirectly:
            announceInside();
            delete row;
            break;
        case Rename:
            if (row)
                row->setText(std::to_string(step.second % 50));
            break;
        case SetOther:
            if (row)
                row->setData(int(step.second % 3), Qt::ToolTipRole, int(step.second % 5));
            break;
        case TakeAndKeep:
            if (row && row->parent()->takeChild(row))
                kept.push_back(row);
            break;
        case PutBack:
            if (!kept.empty() && parent->insertChild(position(parent, step.second), kept.back()))
                kept.pop_back();
            break;
        case PutBelowKept:
            putBelowKept(step.second);
            break;
        default:
            break;
        }
    }

    /** The row taken out last goes below the one taken out before it. */
    void putBelowKept(unsigned number)
    {
        if (kept.size() < 2)
            return;
        ZVTreeViewItem* target = kept[kept.size() - 2];
        if (places.count(serialOf(target)) == 0)
            announceInside();
        // Out of the list before: slots may put rows back, too.
        ZVTreeViewItem* row = kept.back();
        kept.pop_back();
        if (!target->insertChild(position(target, number), row))
            kept.push_back(row);
    }

    void insertTree(ZVTreeViewItem* parent, unsigned seed)
    {
        QVector<ZVTreeViewItem*> rows;
        for (unsigned i = 0; i < 2 + seed % 3; ++i) {
            rows.append(newRow());
            rows.back()->appendChildren({newRow(), newRow()});
        }
        parent->appendChildren(rows);
    }

    static void moveTo(ZVTreeViewItem* row, ZVTreeViewItem* target, unsigned number)
    {
        ZVTreeViewItem* origin = row->parent();
        const int before = row->row();
        // Both ways of taking have to do the same.
        if (number % 2 == 0)
            origin->takeChild(before);
        else
            origin->takeChild(row);
        if (!target->insertChild(position(target, number), row))
            origin->insertChild(before, row);
    }

    /** Every signal of the model applies one of these, as an eager slot would. */
    void connectSlots(std::vector<Step> steps)
    {
        slotSteps = std::move(steps);
        const auto onAnnouncement = [this] {
            if (slotSteps.empty())
                return;
            const Step step = slotSteps.back();
            slotSteps.pop_back();
            if (step.kind != DeleteDirectly)
                apply(step);
        };
        const auto beforeIt = [this, onAnnouncement] {
            // The model tester wants the rows beside a change to keep their texts; from parent to
            // parent rows may not go at such moments.
            const int kind = slotSteps.empty() ? KindCount : slotSteps.back().kind;
            if (kind != Rename && kind != MoveAcross && kind != PutBack)
                onAnnouncement();
        };
        connections = {
            QObject::connect(&model, &ZVTreeViewModel::aboutToPublish, onAnnouncement),
            QObject::connect(&model, &ZVTreeViewModel::published, onAnnouncement),
            QObject::connect(&model, &QAbstractItemModel::dataChanged, onAnnouncement),
            QObject::connect(&model, &QAbstractItemModel::rowsInserted, onAnnouncement),
            QObject::connect(&model, &QAbstractItemModel::rowsRemoved, onAnnouncement),
            QObject::connect(&model, &QAbstractItemModel::layoutChanged, onAnnouncement),
            QObject::connect(&model, &QAbstractItemModel::layoutAboutToBeChanged, beforeIt),
            QObject::connect(&model, &QAbstractItemModel::rowsAboutToBeInserted, beforeIt),
            QObject::connect(&model, &QAbstractItemModel::rowsAboutToBeRemoved, beforeIt),
        };
    }

    void disconnectSlots()
    {
        for (const QMetaObject::Connection& connection : connections)
            QObject::disconnect(connection);
    }

    /** What a view can find out about the structure. */
    void shownRows(const QModelIndex& parent, std::vector<void*>& rows) const
    {
        for (int row = 0; row < model.rowCount(parent); ++row) {
            const QModelIndex index = model.index(row, 0, parent);
            rows.push_back(index.internalPointer());
            RC_ASSERT((index.parent() == parent) == true);
            shownRows(index, rows);
        }
        rows.push_back(nullptr);
    }

    void rememberPlaces()
    {
        isAnnouncedInside = false;
        places.clear();
        for (ZVTreeViewItem* row : rowsBelow(model.rootItem())) {
            places[serialOf(row)] =
                QPersistentModelIndex(model.indexFromItem(row, model.columnCount() - 1));
            if (row->childCount() > 0)
                view.setExpanded(model.indexFromItem(row), true);
        }
    }

    /**
     * A direct deletion announces what has been gathered, and so does putting a row below one that
     * views do not know. Rows taken out by then lose their places.
     */
    void announceInside()
    {
        isAnnouncedInside = true;
        for (ZVTreeViewItem* row : kept) {
            places.erase(serialOf(row));
            for (const ZVTreeViewItem* below : rowsBelow(row))
                places.erase(serialOf(below));
        }
    }

    void checkPlaces() const
    {
        std::map<std::uint64_t, const ZVTreeViewItem*> present;
        for (const ZVTreeViewItem* row : rowsBelow(model.rootItem()))
            present[serialOf(row)] = row;
        for (const auto& [serial, index] : places) {
            const auto found = present.find(serial);
            RC_ASSERT(index.isValid() == (found != present.end()));
            if (!index.isValid())
                continue;
            const QModelIndex expected = model.indexFromItem(found->second, index.column());
            RC_ASSERT((index == expected) == true);
        }
    }

    void checkAll(bool expectNoReset = true) const
    {
        const QString difference = mirror.difference();
        RC_ASSERT(difference.toStdString() == std::string());
        if (expectNoReset)
            RC_ASSERT(mirror.resets() == 0);
        if (flatRows)
            RC_ASSERT(flatRows->rowCount() == int(rowsBelow(model.rootItem()).size()));
        checkProxy(plain, QModelIndex(), false);
        checkProxy(sorted, QModelIndex(), true);
        RC_ASSERT(chainMirror->difference().toStdString() == std::string());
        RC_ASSERT(countBelow(chained, {}) == acceptedBelow(sorted, {}));
    }

    static int countBelow(const QAbstractItemModel& counted, const QModelIndex& parent)
    {
        int count = counted.rowCount(parent);
        for (int row = 0; row < counted.rowCount(parent); ++row)
            count += countBelow(counted, counted.index(row, 0, parent));
        return count;
    }

    /** The rows that the chained proxy has to show: those that match, and all above them. */
    int acceptedBelow(const QAbstractItemModel& source, const QModelIndex& parent) const
    {
        int count = 0;
        for (int row = 0; row < source.rowCount(parent); ++row) {
            const QModelIndex index = source.index(row, 0, parent);
            const int below = acceptedBelow(source, index);
            const bool matches =
                chained.filterRegularExpression().match(index.data().toString()).hasMatch();
            count += below + (matches || below > 0 ? 1 : 0);
        }
        return count;
    }

    void checkProxy(const QSortFilterProxyModel& proxy, const QModelIndex& parent,
                    bool ordered) const
    {
        const QModelIndex source = proxy.mapToSource(parent);
        RC_ASSERT(proxy.rowCount(parent) == model.rowCount(source));
        for (int row = 0; row < proxy.rowCount(parent); ++row) {
            const QModelIndex index = proxy.index(row, 0, parent);
            RC_ASSERT((proxy.mapFromSource(proxy.mapToSource(index)) == index) == true);
            if (ordered && row > 0) {
                const QString before = proxy.index(row - 1, 0, parent).data().toString();
                RC_ASSERT(QString::compare(before, index.data().toString()) <= 0);
            }
            checkProxy(proxy, index, ordered);
        }
    }

    TestModel model;
    QAbstractItemModelTester tester;
    Testing::ModelMirror mirror;
    QSortFilterProxyModel plain;
    QSortFilterProxyModel sorted;
    QSortFilterProxyModel chained;
    std::optional<Testing::ModelMirror> chainMirror;
    std::unique_ptr<QAbstractItemModel> flatRows;
    QTreeView view;
    QTreeView proxyView;
    std::vector<Step> slotSteps;
    std::vector<QMetaObject::Connection> connections;
    std::vector<ZVTreeViewItem*> kept;
    std::map<std::uint64_t, QPersistentModelIndex> places;
    bool isAnnouncedInside = false;
    std::uint64_t lastSerial = 0;
    std::minstd_rand names;
};

rc::Gen<std::vector<Step>> steps(int kinds)
{
    return rc::gen::container<std::vector<Step>>(
        rc::gen::build<Step>(rc::gen::set(&Step::kind, rc::gen::inRange(0, kinds)),
                             rc::gen::set(&Step::first, rc::gen::inRange(0U, 1000U)),
                             rc::gen::set(&Step::second, rc::gen::inRange(0U, 1000U))));
}

} // namespace

class ZVTreeViewModelBatchPropertyTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyWatcherFollowsRandomBatches();
    void everyWatcherFollowsSingleChanges();
    void longListsKeepEverybodyInStep();
    void slotsMayChangeRowsAtEverySignal();
};

void ZVTreeViewModelBatchPropertyTest::everyWatcherFollowsRandomBatches()
{
    const bool held = rc::check("random batches", [](bool twoColumns) {
        Playground playground(twoColumns ? 2 : 1);
        playground.insertTree(playground.model.rootItem(), 2);
        for (int round = 0; round < 3; ++round) {
            playground.rememberPlaces();
            std::vector<void*> before;
            playground.shownRows(QModelIndex(), before);
            {
                ZVTreeViewModelBatch batch(&playground.model);
                for (const Step& step : *steps(KindCount)) {
                    playground.apply(step);
                    if (step.kind == NestBatch)
                        ZVTreeViewModelBatch nested(&playground.model);
                }
                if (!playground.isAnnouncedInside && playground.kept.empty()) {
                    std::vector<void*> now;
                    playground.shownRows(QModelIndex(), now);
                    const bool unchanged = now == before;
                    RC_ASSERT(unchanged);
                }
            }
            playground.checkPlaces();
            playground.checkAll();
        }
    });
    QVERIFY(held);
}

void ZVTreeViewModelBatchPropertyTest::everyWatcherFollowsSingleChanges()
{
    const bool held = rc::check("single changes", [] {
        Playground playground(2);
        for (const Step& step : *steps(PutBack + 1)) {
            playground.apply(step);
            playground.checkAll();
        }
    });
    QVERIFY(held);
}

void ZVTreeViewModelBatchPropertyTest::longListsKeepEverybodyInStep()
{
    const bool held = rc::check("long lists", [] {
        Playground playground(1);
        QVector<ZVTreeViewItem*> rows;
        for (int i = 0; i < 1100; ++i)
            rows.append(playground.newRow());
        playground.model.rootItem()->appendChildren(rows);
        playground.rememberPlaces();
        {
            ZVTreeViewModelBatch batch(&playground.model);
            for (const Step& step : *steps(TakeAndKeep))
                playground.apply(step);
        }
        playground.checkPlaces();
        playground.checkAll();
    });
    QVERIFY(held);
}

void ZVTreeViewModelBatchPropertyTest::slotsMayChangeRowsAtEverySignal()
{
    const bool held = rc::check("changes by slots", [] {
        Playground playground(2);
        playground.insertTree(playground.model.rootItem(), 2);
        playground.insertTree(playground.model.rootItem()->child(0), 2);
        for (int round = 0; round < 3; ++round) {
            playground.connectSlots(*steps(PutBack + 1));
            {
                ZVTreeViewModelBatch batch(&playground.model);
                for (const Step& step : *steps(KindCount))
                    playground.apply(step);
            }
            playground.disconnectSlots();
            playground.checkAll(false);
        }
    });
    QVERIFY(held);
}

ZORVANE_TEST(ZVTreeViewModelBatchPropertyTest)
#include "ZVTreeViewModelBatchPropertyTest.moc"
