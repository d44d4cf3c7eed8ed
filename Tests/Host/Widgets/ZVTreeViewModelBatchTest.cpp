#include "Host/Widgets/ZVTreeViewModelBatch.h"

#include "Tests/Host/Widgets/BatchFixture.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QItemSelectionModel>
#include <QtWidgets/QTreeView>

#include <algorithm>
#include <optional>

using namespace Zorvane;
using namespace Zorvane::Testing;

namespace {

QStringList linesOf(const char* lines)
{
    return QString::fromLatin1(lines).split(QStringLiteral("; "));
}

/** Tells when it is deleted. */
class MortalRow : public ZVTreeViewItem
{
public:
    explicit MortalRow(bool& alive)
        : m_alive(alive)
    {
        m_alive = true;
    }
    ~MortalRow() override { m_alive = false; }

private:
    bool& m_alive;
};

void moveRow(ZVTreeViewItem* parent, int from, ZVTreeViewItem* newParent, int to)
{
    newParent->insertChild(to, parent->takeChild(from));
}

void reverse(ZVTreeViewItem* parent)
{
    for (int i = 0; i < parent->childCount(); ++i)
        moveRow(parent, parent->childCount() - 1, parent, i);
}

constexpr int LongList = 1200;

} // namespace

class ZVTreeViewModelBatchTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    // What is announced
    void nothingIsAnnouncedInside();
    void batchWithoutChangeAnnouncesNothing();
    void whatComesBackIsNotAnnounced();
    void newRowThatGoesAgainIsNotAnnounced();
    void fewRangesAreExact();
    void neighboursAreOneRange();
    void eightRangesAreExactNineAreNot();
    void rangesCountOverTheWholeBatch();
    void aNewOrderIsOneChangeOfLayout();
    void manyListsChangeWithOneLayout();
    void longListKeepsItsCountInTheLayout();
    void exactAnnouncementsOfLongListsToo();
    void rowThatGoesElsewhereIsAChangeOfLayout();
    void subtreeComesAndGoesWithItsTop();
    // Values
    void valueChangedBackIsToldAtMostOnce();
    void valueInAColumnThatIsTakenAwayIsNotAnnounced();
    // Nesting and closing
    void outermostBatchAnnounces();
    void closingTwiceDoesNothing();
    void noModelIsNoHarm();
    void modelMayGoInsideABatch();
    // Rows, places, ownership
    void viewsAskOfWhatWasPublished();
    void isLeavingTellsWhatWillGo();
    void whatWasPublishedStaysAlive();
    void directDeletionAnnouncesAtOnce();
    void takenRowsOutliveBatchAndModel();
    void persistentIndexesFollowBetweenParents();
    void placeIsKeptByWayOfANewRow();
    void rowGoesBelowItsFormerChild();
    void rowGoesFromModelToModel();
    void viewsKeepTheirPlaces_data();
    void viewsKeepTheirPlaces();
    void selectionOfEverythingDoesNotGrow();
    void selectionOfEverythingFollowsBetweenParents();
    void nothingIsLostInADeepTree();

private:
    ZVTreeViewItem* root() const { return m_tree->root(); }
    QStringList inBatch(const std::function<void()>& changes) { return m_tree->inBatch(changes); }

    std::optional<BatchFixture> m_tree;
};

void ZVTreeViewModelBatchTest::init()
{
    m_tree.emplace();
}

void ZVTreeViewModelBatchTest::cleanup()
{
    if (m_tree)
        QCOMPARE(m_tree->difference(), QString());
    m_tree.reset();
    TestCase::cleanup();
}

void ZVTreeViewModelBatchTest::nothingIsAnnouncedInside()
{
    appendRows(root(), "a b c");
    m_tree->recorder.take();
    ZVTreeViewModelBatch batch(&m_tree->model);
    root()->child(0)->setText("A");
    root()->deleteChild(1);
    appendRows(root(), "d e");
    moveRow(root(), 3, root(), 0);
    QCOMPARE(m_tree->recorder.take(), QStringList());
    QCOMPARE(textsOf(root()), QStringLiteral("e A c d"));
    batch.close();
    QCOMPARE(m_tree->recorder.take(),
             linesOf("aboutToPublish; dataChanged / 0:0 0:0 [0 2]; rowsRemoved / 1 1; "
                     "rowsInserted / 0 0; rowsInserted / 3 3; published"));
}

void ZVTreeViewModelBatchTest::batchWithoutChangeAnnouncesNothing()
{
    appendRows(root(), "a b");
    QCOMPARE(inBatch([] {}), QStringList());
    QCOMPARE(inBatch([this] {
                 root()->child(0)->setText("a");
                 root()->appendChildren({});
                 QVERIFY(!root()->takeChild(2));
             }),
             QStringList());
}

void ZVTreeViewModelBatchTest::whatComesBackIsNotAnnounced()
{
    appendRows(root(), "a b c");
    appendRows(root()->child(0), "x y");
    QCOMPARE(inBatch([this] {
                 moveRow(root(), 0, root(), 2);
                 moveRow(root()->child(2), 0, root()->child(2), 1);
                 moveRow(root(), 2, root(), 0);
                 moveRow(root()->child(0), 1, root()->child(0), 0);
             }),
             QStringList());
    QCOMPARE(textsOf(root()), QStringLiteral("a(x y) b c"));
}

void ZVTreeViewModelBatchTest::newRowThatGoesAgainIsNotAnnounced()
{
    appendRows(root(), "a");
    QCOMPARE(inBatch([this] {
                 appendRows(root(), "b c");
                 root()->deleteChild(1);
                 delete root()->child(1);
             }),
             QStringList());
}

void ZVTreeViewModelBatchTest::fewRangesAreExact()
{
    appendRows(root(), "a b c d e");
    QCOMPARE(inBatch([this] {
                 root()->deleteChild(3);
                 root()->deleteChild(0);
                 root()->insertChild(1, newRow(QStringLiteral("x")));
                 appendRows(root()->child(0), "y z");
             }),
             linesOf("rowsRemoved / 3 3; rowsRemoved / 0 0; rowsInserted / 1 1; "
                     "rowsInserted b 0 1"));
}

void ZVTreeViewModelBatchTest::neighboursAreOneRange()
{
    appendRows(root(), "a b c d");
    QCOMPARE(inBatch([this] {
                 root()->deleteChild(1);
                 root()->deleteChild(1);
                 for (const char* word : {"x", "y", "z"})
                     appendRows(root(), word);
             }),
             linesOf("rowsRemoved / 1 2; rowsInserted / 2 4"));
}

void ZVTreeViewModelBatchTest::eightRangesAreExactNineAreNot()
{
    appendNumbered(root(), 40);
    const auto deleteEveryOther = [this](int count) {
        for (int row = 0; row < count; ++row)
            root()->deleteChild(row);
    };
    const QStringList exact = inBatch([=] { deleteEveryOther(8); });
    QCOMPARE(exact.size(), 8);
    QCOMPARE(exact.first(), QStringLiteral("rowsRemoved / 14 14"));
    QCOMPARE(inBatch([=] { deleteEveryOther(9); }), linesOf("layoutChanged"));
}

void ZVTreeViewModelBatchTest::rangesCountOverTheWholeBatch()
{
    appendNumbered(root(), 9);
    for (int i = 0; i < 9; ++i)
        appendRows(root()->child(i), "x y");
    QCOMPARE(inBatch([this] {
                 for (int i = 0; i < 9; ++i)
                     root()->child(i)->deleteChild(0);
             }),
             linesOf("layoutChanged"));
}

void ZVTreeViewModelBatchTest::aNewOrderIsOneChangeOfLayout()
{
    appendRows(root(), "a b c");
    QCOMPARE(inBatch([this] {
                 root()->child(1)->setText("B");
                 reverse(root());
                 root()->deleteChild(2);
                 appendRows(root(), "d");
             }),
             linesOf("dataChanged / 1:0 1:0 [0 2]; layoutChanged"));
    QCOMPARE(textsOf(m_tree->model), QStringLiteral("c B d"));
}

void ZVTreeViewModelBatchTest::manyListsChangeWithOneLayout()
{
    appendRows(root(), "a b");
    appendRows(root()->child(0), "c d");
    appendRows(root()->child(1), "e f");
    QCOMPARE(inBatch([this] {
                 reverse(root());
                 reverse(root()->child(0));
                 reverse(root()->child(1));
             }),
             linesOf("layoutChanged"));
    QCOMPARE(textsOf(m_tree->model), QStringLiteral("b(f e) a(d c)"));
}

void ZVTreeViewModelBatchTest::longListKeepsItsCountInTheLayout()
{
    appendNumbered(root(), LongList);
    QList<int> counts;
    const auto count = [&] { counts << m_tree->model.rowCount(); };
    connect(&m_tree->model, &QAbstractItemModel::layoutAboutToBeChanged, this, count);
    connect(&m_tree->model, &QAbstractItemModel::layoutChanged, this, count);
    QCOMPARE(inBatch([this] {
                 reverse(root());
                 root()->deleteChild(5);
                 root()->deleteChild(9);
                 root()->insertChild(3, newRow(QStringLiteral("new")));
             }),
             linesOf("rowsInserted / 1200 1200; layoutChanged; rowsRemoved / 1199 1200"));
    QCOMPARE(counts, QList<int>({1201, 1201}));
}

void ZVTreeViewModelBatchTest::exactAnnouncementsOfLongListsToo()
{
    appendNumbered(root(), LongList);
    QCOMPARE(inBatch([this] {
                 root()->deleteChild(5);
                 root()->insertChild(3, newRow(QStringLiteral("new")));
             }),
             linesOf("rowsRemoved / 5 5; rowsInserted / 3 3"));
}

void ZVTreeViewModelBatchTest::rowThatGoesElsewhereIsAChangeOfLayout()
{
    appendRows(root(), "a b");
    appendRows(root()->child(0), "x y");
    QCOMPARE(inBatch([this] { moveRow(root()->child(0), 0, root()->child(1), 0); }),
             linesOf("layoutChanged"));
    QCOMPARE(textsOf(m_tree->model), QStringLiteral("a(y) b(x)"));
}

void ZVTreeViewModelBatchTest::subtreeComesAndGoesWithItsTop()
{
    appendRows(root(), "a b");
    appendRows(root()->child(0), "x y");
    QCOMPARE(inBatch([this] {
                 root()->child(0)->deleteChild(1);
                 root()->deleteChild(0);
                 appendRows(root(), "c");
                 appendRows(root()->child(1), "d e");
                 root()->child(1)->deleteChild(0);
             }),
             linesOf("rowsRemoved / 0 0; rowsInserted / 1 1"));
    QCOMPARE(textsOf(m_tree->model), QStringLiteral("b c(e)"));
}

void ZVTreeViewModelBatchTest::valueChangedBackIsToldAtMostOnce()
{
    appendRows(root(), "a");
    const QStringList lines = inBatch([this] {
        root()->child(0)->setText("b");
        root()->child(0)->setText("a");
    });
    QCOMPARE(lines, linesOf("dataChanged / 0:0 0:0 [0 2]"));
}

void ZVTreeViewModelBatchTest::valueInAColumnThatIsTakenAwayIsNotAnnounced()
{
    m_tree->model.setColumnCount(3);
    appendRows(root(), "a");
    const QStringList lines = inBatch([this] {
        root()->child(0)->setData(2, Qt::ToolTipRole, 1);
        m_tree->recorder.take();
        m_tree->model.setColumnCount(1);
        m_tree->recorder.take();
    });
    QCOMPARE(lines, linesOf("aboutToPublish; published"));
}

void ZVTreeViewModelBatchTest::outermostBatchAnnounces()
{
    ZVTreeViewModelBatch outer(&m_tree->model);
    {
        const ZVTreeViewModelBatch inner(&m_tree->model);
        appendRows(root(), "a");
    }
    QCOMPARE(m_tree->recorder.lines(), QStringList());
    ZVTreeViewModelBatch second(&m_tree->model);
    outer.close();
    QCOMPARE(m_tree->recorder.lines(), QStringList());
    second.close();
    QCOMPARE(m_tree->recorder.take(), linesOf("aboutToPublish; rowsInserted / 0 0; published"));
    appendRows(root(), "b");
    QCOMPARE(m_tree->recorder.take(), linesOf("rowsInserted / 1 1"));
}

void ZVTreeViewModelBatchTest::closingTwiceDoesNothing()
{
    const ZVTreeViewModelBatch outer(&m_tree->model);
    ZVTreeViewModelBatch inner(&m_tree->model);
    inner.close();
    inner.close();
    appendRows(root(), "a");
    QCOMPARE(m_tree->recorder.lines(), QStringList());
}

void ZVTreeViewModelBatchTest::noModelIsNoHarm()
{
    ZVTreeViewModelBatch batch(nullptr);
    batch.close();
}

void ZVTreeViewModelBatchTest::modelMayGoInsideABatch()
{
    bool retired = false;
    bool present = false;
    bool fresh = false;
    root()->appendChildren({new MortalRow(retired), new MortalRow(present)});
    ZVTreeViewModelBatch batch(&m_tree->model);
    root()->deleteChild(0);
    root()->appendChildren({new MortalRow(fresh)});
    QVERIFY(retired);
    m_tree.reset();
    QVERIFY(!retired && !present && !fresh);
    batch.close();
}

void ZVTreeViewModelBatchTest::viewsAskOfWhatWasPublished()
{
    appendRows(root(), "a b c");
    appendRows(root()->child(1), "x y");
    ZVTreeViewModel& model = m_tree->model;
    const QModelIndex b = model.index(1, 0);
    inBatch([&] {
        ZVTreeViewItem* row = root()->takeChild(1);
        row->deleteChild(0);
        QCOMPARE(row->row(), -1);
        QVERIFY(!row->parent() && !row->model());
        root()->insertChild(0, row);
        appendRows(root(), "d");
        QCOMPARE(textsOf(root()), QStringLiteral("b(y) a c d"));
        QCOMPARE(textsOf(model), QStringLiteral("a b(x y) c"));
        QCOMPARE(model.indexFromItem(row), b);
        QCOMPARE(model.parent(model.index(1, 0, b)), b);
        QVERIFY(!model.indexFromItem(root()->child(3)).isValid());
    });
}

void ZVTreeViewModelBatchTest::isLeavingTellsWhatWillGo()
{
    appendRows(root(), "a b");
    appendRows(root()->child(0), "x y");
    ZVTreeViewModel& model = m_tree->model;
    const QModelIndex a = model.index(0, 0);
    const QModelIndex x = model.index(0, 0, a);
    const QModelIndex y = model.index(1, 0, a);
    QVERIFY(!model.isLeaving(a));
    inBatch([&] {
        moveRow(root()->child(0), 1, root()->child(1), 0);
        root()->deleteChild(0);
        QVERIFY(model.isLeaving(a));
        QVERIFY(model.isLeaving(x));
        QVERIFY(!model.isLeaving(y));
        QVERIFY(!model.isLeaving(model.index(1, 0)));
        QVERIFY(!model.isLeaving(QModelIndex()));
    });
    QCOMPARE(textsOf(model), QStringLiteral("b(y)"));
}

void ZVTreeViewModelBatchTest::whatWasPublishedStaysAlive()
{
    bool alive = false;
    bool aliveWhenAnnounced = false;
    root()->appendChildren({new MortalRow(alive)});
    root()->child(0)->setText("die");
    const QModelIndex index = m_tree->model.index(0, 0);
    connect(&m_tree->model, &QAbstractItemModel::rowsAboutToBeRemoved, this,
            [&] { aliveWhenAnnounced = alive && index.data().toString() == QLatin1String("die"); });
    inBatch([&] {
        QVERIFY(root()->deleteChild(0));
        QVERIFY(alive);
        QCOMPARE(index.data().toString(), QStringLiteral("die"));
        QCOMPARE(m_tree->model.rowCount(), 1);
        QCOMPARE(root()->childCount(), 0);
    });
    QVERIFY(aliveWhenAnnounced);
    QVERIFY(!alive);
}

void ZVTreeViewModelBatchTest::directDeletionAnnouncesAtOnce()
{
    appendRows(root(), "a b c");
    m_tree->recorder.take();
    ZVTreeViewModelBatch batch(&m_tree->model);
    root()->child(0)->setText("A");
    delete root()->child(1);
    QCOMPARE(m_tree->recorder.take(),
             linesOf("aboutToPublish; dataChanged / 0:0 0:0 [0 2]; rowsRemoved / 1 1; published"));
    root()->child(0)->setText("AA");
    QCOMPARE(m_tree->recorder.take(), QStringList());
    batch.close();
    QCOMPARE(m_tree->recorder.take(),
             linesOf("aboutToPublish; dataChanged / 0:0 0:0 [0 2]; published"));
}

void ZVTreeViewModelBatchTest::takenRowsOutliveBatchAndModel()
{
    appendRows(root(), "a b c d");
    appendRows(root()->child(3), "x y");
    std::vector<std::unique_ptr<ZVTreeViewItem>> taken;
    inBatch([&] { taken.emplace_back(root()->takeChild(0)); });
    QVERIFY(!taken[0]->model());
    ZVTreeViewModelBatch batch(&m_tree->model);
    taken.emplace_back(root()->takeChild(0));
    // One that views see elsewhere, and one below a new row.
    moveRow(root()->child(1), 0, root()->child(0), 0);
    taken.emplace_back(root()->child(0)->takeChild(0));
    appendRows(root(), "new");
    moveRow(root()->child(1), 0, root()->child(2), 0);
    taken.emplace_back(root()->takeChild(2));
    m_tree.reset();
    QCOMPARE(taken[1]->text(), QStringLiteral("b"));
    QCOMPARE(taken[2]->text(), QStringLiteral("x"));
    QCOMPARE(textsOf(taken[3].get()), QStringLiteral("y"));
    for (const auto& row : taken)
        QVERIFY(!row->parent() && !row->model());
}

void ZVTreeViewModelBatchTest::persistentIndexesFollowBetweenParents()
{
    m_tree->model.setColumnCount(2);
    appendRows(root(), "a b");
    appendRows(root()->child(0), "x y");
    ZVTreeViewItem* x = root()->child(0)->child(0);
    appendRows(x, "z");
    const ZVTreeViewModel& model = m_tree->model;
    const QPersistentModelIndex second = model.indexFromItem(x, 1);
    const QPersistentModelIndex below = model.indexFromItem(x->child(0));
    const QPersistentModelIndex gone = model.index(1, 0, model.index(0, 0));
    inBatch([&] {
        moveRow(root()->child(0), 0, root()->child(1), 0);
        root()->deleteChild(0);
    });
    QCOMPARE(QModelIndex(second), model.index(0, 1, model.index(0, 0)));
    QCOMPARE(QModelIndex(below), model.indexFromItem(x->child(0)));
    QVERIFY(!gone.isValid());
}

void ZVTreeViewModelBatchTest::placeIsKeptByWayOfANewRow()
{
    appendNumbered(root(), LongList);
    const QPersistentModelIndex index = m_tree->model.index(700, 0);
    const ZVTreeViewItem* row = root()->child(700);
    const QStringList lines = inBatch([this] {
        appendRows(root(), "new");
        appendRows(root()->child(LongList), "x y");
        moveRow(root(), 700, root()->child(LongList), 1);
        QCOMPARE(textsOf(root()->child(LongList - 1)), QStringLiteral("x 700 y"));
        moveRow(root()->child(LongList - 1), 1, root(), 700);
        root()->deleteChild(LongList);
        reverse(root());
    });
    QCOMPARE(lines, linesOf("layoutChanged"));
    QCOMPARE(QModelIndex(index), m_tree->model.indexFromItem(row));
    QCOMPARE(index.row(), 499);
}

void ZVTreeViewModelBatchTest::rowGoesBelowItsFormerChild()
{
    appendRows(root(), "a b");
    appendRows(root()->child(0), "x y");
    const ZVTreeViewModel& model = m_tree->model;
    ZVTreeViewItem* a = root()->child(0);
    ZVTreeViewItem* x = a->child(0);
    const QPersistentModelIndex indexOfA = model.indexFromItem(a);
    const QPersistentModelIndex indexOfX = model.indexFromItem(x);
    const QStringList lines = inBatch([=] {
        // Views see x below a while a is below x and both are taken out.
        a->takeChild(x);
        root()->takeChild(a);
        QVERIFY(x->insertChild(0, a));
        QVERIFY(!x->model());
        QVERIFY(root()->insertChild(0, x));
        QCOMPARE(x->model(), &m_tree->model);
    });
    QCOMPARE(lines, linesOf("layoutChanged"));
    QCOMPARE(textsOf(model), QStringLiteral("x(a(y)) b"));
    QCOMPARE(QModelIndex(indexOfX), model.index(0, 0));
    QCOMPARE(QModelIndex(indexOfA), model.index(0, 0, model.index(0, 0)));
}

void ZVTreeViewModelBatchTest::rowGoesFromModelToModel()
{
    BatchFixture other;
    appendRows(root(), "a b");
    appendRows(root()->child(0), "x");
    appendRows(other.root(), "c");
    m_tree->recorder.take();
    other.recorder.take();
    {
        const ZVTreeViewModelBatch batch(&m_tree->model);
        const ZVTreeViewModelBatch otherBatch(&other.model);
        ZVTreeViewItem* row = root()->takeChild(0);
        row->setText("A");
        QVERIFY(other.root()->insertChild(0, row));
        // The first model's views must not see a row of the second.
        QVERIFY(m_tree->recorder.lines().contains(QStringLiteral("rowsRemoved / 0 0")));
        QCOMPARE(other.recorder.lines(), QStringList());
        row->setText("AA");
        QCOMPARE(row->model(), &other.model);
    }
    QCOMPARE(other.recorder.take(), linesOf("aboutToPublish; rowsInserted / 0 0; published"));
    QCOMPARE(textsOf(m_tree->model), QStringLiteral("b"));
    QCOMPARE(textsOf(other.model), QStringLiteral("AA(x) c"));
    QCOMPARE(other.difference(), QString());
}

void ZVTreeViewModelBatchTest::viewsKeepTheirPlaces_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("short list") << 20;
    QTest::newRow("long list") << LongList;
}

void ZVTreeViewModelBatchTest::viewsKeepTheirPlaces()
{
    QFETCH(int, count);
    appendNumbered(root(), count);
    for (int row : {3, 5})
        appendRows(root()->child(row), "x y");
    QTreeView views[2];
    views[0].setModel(&m_tree->model);
    views[1].setModel(&m_tree->sorted);
    const auto indexIn = [&](const QTreeView& view, int row) {
        const QModelIndex index = m_tree->model.indexFromItem(root()->child(row));
        return view.model() == &m_tree->sorted ? m_tree->sorted.mapFromSource(index) : index;
    };
    for (QTreeView& view : views) {
        view.setSelectionMode(QAbstractItemView::ExtendedSelection);
        view.setCurrentIndex(indexIn(view, 3));
        view.expand(indexIn(view, 3));
        view.selectionModel()->select(indexIn(view, 7), QItemSelectionModel::Select);
    }
    inBatch([&] {
        reverse(root());
        root()->deleteChild(0);
        root()->insertChild(0, newRow(QStringLiteral("new")));
    });
    for (const QTreeView& view : views) {
        QCOMPARE(view.currentIndex(), indexIn(view, count - 4));
        QVERIFY(view.isExpanded(indexIn(view, count - 4)));
        QVERIFY(!view.isExpanded(indexIn(view, count - 6)));
        QCOMPARE(view.selectionModel()->selectedRows().size(), 2);
        QVERIFY(view.selectionModel()->isSelected(indexIn(view, count - 8)));
    }
}

void ZVTreeViewModelBatchTest::selectionOfEverythingDoesNotGrow()
{
    appendNumbered(root(), LongList);
    QItemSelectionModel selection(&m_tree->model);
    selection.select({m_tree->model.index(0, 0), m_tree->model.index(LongList - 1, 0)},
                     QItemSelectionModel::Select);
    inBatch([&] {
        reverse(root());
        root()->deleteChild(10);
        root()->insertChild(0, newRow(QStringLiteral("new")));
        root()->insertChild(600, newRow(QStringLiteral("new, too")));
    });
    QCOMPARE(selection.selectedRows().size(), LongList - 1);
    for (int row = 0; row < m_tree->model.rowCount(); ++row)
        QCOMPARE(selection.isSelected(m_tree->model.index(row, 0)), row != 0 && row != 600);
}

void ZVTreeViewModelBatchTest::selectionOfEverythingFollowsBetweenParents()
{
    appendRows(root(), "a b");
    for (int i = 0; i < 2; ++i)
        appendNumbered(root()->child(i), LongList);
    const ZVTreeViewModel& model = m_tree->model;
    const QModelIndex a = model.index(0, 0);
    QItemSelectionModel selection(&m_tree->model);
    selection.select({model.index(0, 0, a), model.index(LongList - 1, 0, a)},
                     QItemSelectionModel::Select);
    const ZVTreeViewItem* moved = root()->child(0)->child(5);
    const ZVTreeViewItem* fresh = nullptr;
    inBatch([&] {
        moveRow(root()->child(0), 5, root()->child(1), 0);
        moveRow(root()->child(1), 7, root()->child(0), 9);
        appendRows(root()->child(0), "new");
        fresh = root()->child(0)->child(LongList);
        moveRow(root()->child(0), LongList, root()->child(0), 0);
        root()->child(0)->deleteChild(3);
    });
    QCOMPARE(selection.selectedRows().size(), LongList - 1);
    QVERIFY(selection.isSelected(model.indexFromItem(moved)));
    QVERIFY(!selection.isSelected(model.indexFromItem(fresh)));
}

void ZVTreeViewModelBatchTest::nothingIsLostInADeepTree()
{
    ZVTreeViewItem* parent = root();
    std::vector<QPersistentModelIndex> indexes;
    for (int depth = 0; depth < 200; ++depth) {
        appendRows(parent, "a b");
        parent = parent->child(0);
        indexes.emplace_back(m_tree->model.indexFromItem(parent));
    }
    inBatch([this] {
        for (ZVTreeViewItem* row = root(); row->childCount() > 0; row = row->child(1))
            reverse(row);
    });
    for (const QPersistentModelIndex& index : indexes)
        QCOMPARE(index.row(), 1);
}

ZORVANE_TEST(ZVTreeViewModelBatchTest)
#include "ZVTreeViewModelBatchTest.moc"
