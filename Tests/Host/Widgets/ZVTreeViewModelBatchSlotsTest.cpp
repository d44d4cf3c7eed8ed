#include "Host/Widgets/ZVTreeViewModelBatch.h"

#include "Tests/Host/Widgets/BatchFixture.h"
#include "Tests/Support/TestCase.h"

#include <optional>
#include <stdexcept>

using namespace Zorvane;
using namespace Zorvane::Testing;

namespace {

/** When a slot gets its turn while a batch is announced. */
enum Moment
{
    AboutToPublish,
    DataChanged,
    RowsAboutToBeRemoved,
    RowsRemoved,
    RowsAboutToBeInserted,
    RowsInserted,
    LayoutAboutToBeChanged,
    LayoutChanged,
    Published
};

/** What the batch does, so that the slot meets either kind of announcement. */
enum Kind
{
    Exact,
    Layout,
    LongLayout
};

enum Deed
{
    ChangesValues,
    InsertsRows,
    DeletesRows,
    DeletesNewRows,
    DeletesDirectly,
    DeletesNewRowsDirectly,
    MovesRows,
    TurnsRowsRound,
    PutsBackWhatGoes,
    OpensABatch
};

/** Lets its end change the model that it was in. */
class RowWithWill : public ZVTreeViewItem
{
public:
    explicit RowWithWill(std::function<void()> will)
        : m_will(std::move(will))
    {}
    ~RowWithWill() override { m_will(); }

private:
    std::function<void()> m_will;
};

} // namespace

class ZVTreeViewModelBatchSlotsTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void slotsDoWhatTheyWant_data();
    void slotsDoWhatTheyWant();
    void changesOfSlotsAreAnnouncedAfterwards();
    void valueToldWhileRowsMoveIsAnnouncedWhereTheyAre();
    void valueOfARowAnnouncedGoneIsForgotten();
    void placesSurviveASlotThatChangesRows();
    void throwingSlotIsAWarningAndAReset();
    void slotThatAlwaysThrowsEndsNothing();
    void modelGoesOnAfterAThrow();
    void slotMayCloseTheBatchAgain();
    void changesAfterTheAnnouncementAreAnnouncedToo();
    void rowsMayChangeTheModelWhenTheyEnd();
    void slotMayPutElsewhereWhatIsOnItsWay_data();
    void slotMayPutElsewhereWhatIsOnItsWay();
    void slotMayEmptyTheListThatARowGoesTo();

private:
    ZVTreeViewItem* root() const { return m_tree->root(); }
    void at(Moment moment, const std::function<void()>& deed);
    void act(Deed deed);
    void change(Kind kind);

    std::optional<BatchFixture> m_tree;
    bool m_isAnnouncing = false;
    bool m_isDone = false;
    /** Taken out by the batch, the caller's from then on. */
    std::unique_ptr<ZVTreeViewItem> m_kept;
};

void ZVTreeViewModelBatchSlotsTest::init()
{
    m_tree.emplace();
    m_isAnnouncing = m_isDone = false;
}

void ZVTreeViewModelBatchSlotsTest::cleanup()
{
    QCOMPARE(m_tree->difference(), QString());
    m_kept.reset();
    m_tree.reset();
    TestCase::cleanup();
}

/** Does it the first time that the signal comes of a batch. */
void ZVTreeViewModelBatchSlotsTest::at(Moment moment, const std::function<void()>& deed)
{
    const auto connectTo = [&](auto signal) {
        connect(&m_tree->model, signal, this, [this, deed] {
            if (m_isAnnouncing && !std::exchange(m_isDone, true))
                deed();
        });
    };
    connect(&m_tree->model, &ZVTreeViewModel::aboutToPublish, this,
            [this] { m_isAnnouncing = true; });
    switch (moment) {
    case AboutToPublish:
        return connectTo(&ZVTreeViewModel::aboutToPublish);
    case DataChanged:
        return connectTo(&QAbstractItemModel::dataChanged);
    case RowsAboutToBeRemoved:
        return connectTo(&QAbstractItemModel::rowsAboutToBeRemoved);
    case RowsRemoved:
        return connectTo(&QAbstractItemModel::rowsRemoved);
    case RowsAboutToBeInserted:
        return connectTo(&QAbstractItemModel::rowsAboutToBeInserted);
    case RowsInserted:
        return connectTo(&QAbstractItemModel::rowsInserted);
    case LayoutAboutToBeChanged:
        return connectTo(&QAbstractItemModel::layoutAboutToBeChanged);
    case LayoutChanged:
        return connectTo(&QAbstractItemModel::layoutChanged);
    case Published:
        return connectTo(&ZVTreeViewModel::published);
    }
}

void ZVTreeViewModelBatchSlotsTest::act(Deed deed)
{
    ZVTreeViewItem* last = root()->child(root()->childCount() - 1);
    switch (deed) {
    case ChangesValues:
        for (int row = 0; row < root()->childCount(); row += 3)
            root()->child(row)->setText("changed");
        last->child(0)->setText("changed");
        break;
    case InsertsRows:
        root()->insertChild(0, newRow(QStringLiteral("inserted")));
        appendRows(last, "p q r");
        break;
    case DeletesRows:
        root()->deleteChild(2);
        root()->deleteChild(0);
        last->deleteChild(0);
        break;
    case DeletesNewRows:
        // The batch has put two new rows to the front.
        root()->deleteChild(0);
        root()->deleteChild(0);
        break;
    case DeletesDirectly:
        delete root()->child(4);
        m_kept.reset();
        break;
    case DeletesNewRowsDirectly:
        delete root()->child(1);
        break;
    case MovesRows:
        root()->insertChild(0, root()->takeChild(root()->childCount() - 1));
        last->insertChild(1, root()->takeChild(3));
        root()->insertChild(2, last->takeChild(0));
        break;
    case TurnsRowsRound:
        // So often that the list finds it worth its while to keep another order of its own.
        for (int moves = 0, row = 0; moves < 100; ++moves, row = (row + 1) % 10)
            root()->insertChild(row, root()->takeChild(root()->childCount() - 1));
        root()->takeChild(last);
        root()->insertChild(1, last);
        break;
    case PutsBackWhatGoes:
        if (root()->insertChild(1, m_kept.get()))
            m_kept.release();
        break;
    case OpensABatch: {
        ZVTreeViewModelBatch batch(&m_tree->model);
        root()->deleteChild(1);
        appendRows(root(), "nested");
        batch.close();
        root()->child(0)->setText("nested");
        break;
    }
    }
}

void ZVTreeViewModelBatchSlotsTest::change(Kind kind)
{
    appendNumbered(root(), kind == LongLayout ? 1010 : 12);
    for (int row = 0; row < 12; ++row)
        appendRows(root()->child(row), "x y z");
    appendRows(root()->child(root()->childCount() - 1), "u v w");
    const ZVTreeViewModelBatch batch(&m_tree->model);
    root()->child(5)->setText("five");
    root()->child(8)->child(1)->setText("xx");
    m_kept.reset(root()->takeChild(9));
    m_kept->child(0)->setText("below what goes");
    m_kept->deleteChild(2);
    root()->deleteChild(7);
    root()->insertChild(0, newRow(QStringLiteral("new")));
    root()->insertChild(0, newRow(QStringLiteral("newer")));
    if (kind != Exact)
        root()->insertChild(3, root()->takeChild(8));
}

void ZVTreeViewModelBatchSlotsTest::slotsDoWhatTheyWant_data()
{
    QTest::addColumn<int>("moment");
    QTest::addColumn<int>("deed");
    QTest::addColumn<int>("kind");
    static const std::pair<const char*, Moment> moments[] = {
        {"aboutToPublish", AboutToPublish},
        {"dataChanged", DataChanged},
        {"rowsAboutToBeRemoved", RowsAboutToBeRemoved},
        {"rowsRemoved", RowsRemoved},
        {"rowsAboutToBeInserted", RowsAboutToBeInserted},
        {"rowsInserted", RowsInserted},
        {"layoutAboutToBeChanged", LayoutAboutToBeChanged},
        {"layoutChanged", LayoutChanged},
        {"published", Published}};
    static const std::pair<const char*, Deed> deeds[] = {
        {"changes values", ChangesValues},
        {"inserts rows", InsertsRows},
        {"deletes rows", DeletesRows},
        {"deletes new rows", DeletesNewRows},
        {"deletes rows directly", DeletesDirectly},
        {"deletes a new row directly", DeletesNewRowsDirectly},
        {"moves rows", MovesRows},
        {"turns rows round", TurnsRowsRound},
        {"puts back what goes", PutsBackWhatGoes},
        {"opens a batch", OpensABatch}};
    static const std::pair<const char*, Kind> kinds[] = {
        {"exact", Exact}, {"layout", Layout}, {"long layout", LongLayout}};
    for (const auto& [momentName, moment] : moments) {
        for (const auto& [deedName, deed] : deeds) {
            for (const auto& [kindName, kind] : kinds) {
                const bool isExact = moment >= RowsAboutToBeRemoved && moment <= RowsInserted;
                const bool isLayout = moment == LayoutAboutToBeChanged || moment == LayoutChanged;
                // The model tester wants the rows beside a removal to keep their texts.
                if (moment == RowsAboutToBeRemoved && deed == ChangesValues && kind == Exact)
                    continue;
                if ((isExact && kind == Layout) || (isLayout && kind == Exact))
                    continue;
                QTest::addRow("%s: %s (%s)", momentName, deedName, kindName)
                    << int(moment) << int(deed) << int(kind);
            }
        }
    }
}

void ZVTreeViewModelBatchSlotsTest::slotsDoWhatTheyWant()
{
    QFETCH(int, moment);
    QFETCH(int, deed);
    QFETCH(int, kind);
    at(Moment(moment), [&] { act(Deed(deed)); });
    change(Kind(kind));
    QVERIFY(m_isDone);
    QCOMPARE(m_tree->recorder.take().last(), QStringLiteral("published"));
    QCOMPARE(m_tree->difference(), QString());
    // The batch is over: the next change is announced at once.
    appendRows(root(), "afterwards");
    QCOMPARE(m_tree->recorder.take().size(), 1);
}

void ZVTreeViewModelBatchSlotsTest::changesOfSlotsAreAnnouncedAfterwards()
{
    appendRows(root(), "a b c d");
    at(RowsRemoved, [this] {
        root()->child(1)->setText("C");
        appendRows(root(), "e");
        QCOMPARE(textsOf(root()), QStringLiteral("b C e"));
        QCOMPARE(textsOf(m_tree->model), QStringLiteral("a b C"));
    });
    const QStringList lines = m_tree->inBatch([this] {
        root()->deleteChild(3);
        root()->deleteChild(0);
    });
    QCOMPARE(lines, QStringList({QStringLiteral("rowsRemoved / 3 3"),
                                 QStringLiteral("dataChanged / 0:0 2:0 [0 2]"),
                                 QStringLiteral("rowsRemoved / 0 0"),
                                 QStringLiteral("rowsInserted / 2 2")}));
}

void ZVTreeViewModelBatchSlotsTest::valueToldWhileRowsMoveIsAnnouncedWhereTheyAre()
{
    appendNumbered(root(), 12);
    at(RowsRemoved, [this] { root()->child(9)->setText("last"); });
    m_tree->inBatch([this] {
        root()->deleteChild(10);
        root()->deleteChild(0);
    });
    QCOMPARE(m_tree->model.index(9, 0).data().toString(), QStringLiteral("last"));
    QCOMPARE(m_tree->difference(), QString());
}

void ZVTreeViewModelBatchSlotsTest::valueOfARowAnnouncedGoneIsForgotten()
{
    appendRows(root(), "a b");
    appendRows(root()->child(0), "x y");
    at(RowsAboutToBeRemoved, [this] { m_kept->child(0)->setText("X"); });
    const QStringList lines = m_tree->inBatch([this] { m_kept.reset(root()->takeChild(0)); });
    QCOMPARE(lines, QStringList(QStringLiteral("rowsRemoved / 0 0")));
    QVERIFY(!m_kept->model());
    m_tree->inBatch([this] { root()->child(0)->setText("B"); });
    QCOMPARE(textsOf(m_kept.get()), QStringLiteral("X y"));
}

void ZVTreeViewModelBatchSlotsTest::placesSurviveASlotThatChangesRows()
{
    appendNumbered(root(), 12);
    const QPersistentModelIndex index = m_tree->model.index(6, 0);
    for (const Moment moment : {RowsRemoved, RowsInserted, LayoutAboutToBeChanged, LayoutChanged}) {
        m_isDone = false;
        at(moment, [this] {
            root()->insertChild(0, root()->takeChild(root()->childCount() - 1));
            root()->deleteChild(1);
        });
    }
    const QStringList lines = m_tree->inBatch([this] {
        root()->deleteChild(11);
        root()->deleteChild(2);
        root()->insertChild(1, newRow(QStringLiteral("new")));
    });
    QVERIFY(!lines.contains(QStringLiteral("modelReset")));
    QCOMPARE(index.data().toString(), QStringLiteral("6"));
}

void ZVTreeViewModelBatchSlotsTest::throwingSlotIsAWarningAndAReset()
{
    for (const Moment moment : {AboutToPublish, DataChanged, RowsAboutToBeRemoved, RowsRemoved,
                                RowsAboutToBeInserted, RowsInserted}) {
        m_tree.emplace();
        m_isAnnouncing = m_isDone = false;
        at(moment, [] { throw std::runtime_error("out of paper"); });
        expectWarning(QStringLiteral("^A slot threw while .*: out of paper$"));
        change(Exact);
        QStringList lines = m_tree->recorder.take();
        QCOMPARE(lines.takeLast(), QStringLiteral("published"));
        QCOMPARE(lines.takeLast(), QStringLiteral("modelReset"));
        QCOMPARE(m_tree->difference(), QString());
        QVERIFY(!m_kept->parent());
        m_kept.reset();
    }
}

void ZVTreeViewModelBatchSlotsTest::slotThatAlwaysThrowsEndsNothing()
{
    appendRows(root(), "a b");
    const auto fail = [] { throw 7; };
    connect(&m_tree->model, &QAbstractItemModel::dataChanged, this, fail);
    connect(&m_tree->model, &QAbstractItemModel::modelAboutToBeReset, this, fail);
    connect(&m_tree->model, &QAbstractItemModel::modelReset, this, fail);
    connect(&m_tree->model, &ZVTreeViewModel::published, this, fail);
    for (int i = 0; i < 4; ++i)
        expectWarning(QStringLiteral("^A slot threw while a tree model announced changes$"));
    m_tree->inBatch([this] {
        root()->child(0)->setText("A");
        root()->deleteChild(1);
    });
    QCOMPARE(textsOf(m_tree->model), QStringLiteral("A"));
}

void ZVTreeViewModelBatchSlotsTest::modelGoesOnAfterAThrow()
{
    at(LayoutChanged, [] { throw std::runtime_error("out of paper"); });
    expectWarning(QStringLiteral("out of paper"));
    change(LongLayout);
    m_tree->recorder.take();
    root()->child(3)->setText("at once");
    QCOMPARE(m_tree->recorder.take(), QStringList(QStringLiteral("dataChanged / 3:0 3:0 [0 2]")));
    QCOMPARE(m_tree->inBatch([this] { root()->deleteChild(5); }),
             QStringList(QStringLiteral("rowsRemoved / 5 5")));
}

void ZVTreeViewModelBatchSlotsTest::slotMayCloseTheBatchAgain()
{
    ZVTreeViewModelBatch batch(&m_tree->model);
    at(RowsInserted, [&batch] { batch.close(); });
    appendRows(root(), "a");
    batch.close();
    m_tree->recorder.take();
    appendRows(root(), "b");
    QCOMPARE(m_tree->recorder.take(), QStringList(QStringLiteral("rowsInserted / 1 1")));
}

void ZVTreeViewModelBatchSlotsTest::changesAfterTheAnnouncementAreAnnouncedToo()
{
    at(Published, [this] { appendRows(root(), "b"); });
    const QStringList lines = m_tree->inBatch([this] { appendRows(root(), "a"); });
    QCOMPARE(lines,
             QStringList({QStringLiteral("rowsInserted / 0 0"), QStringLiteral("published"),
                          QStringLiteral("aboutToPublish"), QStringLiteral("rowsInserted / 1 1")}));
}

void ZVTreeViewModelBatchSlotsTest::rowsMayChangeTheModelWhenTheyEnd()
{
    appendRows(root(), "a b");
    root()->appendChildren({new RowWithWill([this] { root()->child(0)->setText("A"); }),
                            new RowWithWill([this] { root()->deleteChild(1); })});
    m_tree->inBatch([this] {
        root()->deleteChild(3);
        root()->deleteChild(2);
    });
    QCOMPARE(textsOf(m_tree->model), QStringLiteral("A"));
    appendRows(root(), "c");
    QCOMPARE(textsOf(m_tree->model), QStringLiteral("A c"));
}

void ZVTreeViewModelBatchSlotsTest::slotMayPutElsewhereWhatIsOnItsWay_data()
{
    QTest::addColumn<bool>("isAppended");
    QTest::newRow("inserted") << false;
    QTest::newRow("appended") << true;
}

void ZVTreeViewModelBatchSlotsTest::slotMayPutElsewhereWhatIsOnItsWay()
{
    QFETCH(bool, isAppended);
    appendRows(root(), "a b");
    ZVTreeViewItem target;
    ZVTreeViewItem other;
    const ZVTreeViewModelBatch batch(&m_tree->model);
    ZVTreeViewItem* a = root()->takeChild(0);
    at(Published, [&] { QVERIFY(other.insertChild(0, a)); });
    // Leaving the model, the row has to be announced gone first.
    QVERIFY(!(isAppended ? target.appendChildren({a}) : target.insertChild(0, a)));
    QCOMPARE(target.childCount(), 0);
    QCOMPARE(a->parent(), &other);
}

void ZVTreeViewModelBatchSlotsTest::slotMayEmptyTheListThatARowGoesTo()
{
    appendRows(root(), "a b");
    ZVTreeViewItem target;
    appendRows(&target, "x y");
    const ZVTreeViewModelBatch batch(&m_tree->model);
    m_kept.reset(root()->takeChild(0));
    at(Published, [&] {
        target.deleteChild(1);
        target.deleteChild(0);
    });
    QVERIFY(!target.insertChild(2, m_kept.get()));
    QCOMPARE(target.childCount(), 0);
    QVERIFY(!m_kept->parent());
}

ZORVANE_TEST(ZVTreeViewModelBatchSlotsTest)
#include "ZVTreeViewModelBatchSlotsTest.moc"
