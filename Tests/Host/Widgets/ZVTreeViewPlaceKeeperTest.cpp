#include "Host/Widgets/ZVTreeViewPlaceKeeper.h"
#include "Tests/Host/Widgets/TreeEdit.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QPersistentModelIndex>
#include <QtCore/QSortFilterProxyModel>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTreeView>

#include <rapidcheck.h>

#include <random>
#include <vector>

using namespace Zorvane;

namespace {

/** What a view shows the model through. */
enum class Through
{
    Nothing,
    Sorting,
    Filtering,
    FilteringOfSorted
};

/** A tree of 300 rows with children here and there, and two views of it with a keeper each. */
class Scene
{
public:
    explicit Scene(Through through = Through::Nothing)
        : tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest)
    {
        fill();
        QAbstractItemModel* shown = &model;
        if (through == Through::Sorting || through == Through::FilteringOfSorted) {
            proxy.setSourceModel(shown);
            proxy.sort(0);
            shown = &proxy;
        }
        if (through == Through::Filtering || through == Through::FilteringOfSorted) {
            // Nine of ten, and whatever has such a row below.
            filter.setRecursiveFilteringEnabled(true);
            filter.setFilterRegularExpression(QStringLiteral("[0-8]$"));
            filter.setSourceModel(shown);
            shown = &filter;
        }
        for (QTreeView* each : {&view, &second}) {
            each->setModel(shown);
            each->setSelectionMode(QAbstractItemView::ExtendedSelection);
            new ZVTreeViewPlaceKeeper(each);
            each->resize(200, 150);
            each->show();
            each->expandAll();
        }
        second.verticalScrollBar()->setValue(50);
        QCoreApplication::processEvents();
    }

    void fill()
    {
        QVector<ZVTreeViewItem*> rows;
        for (int i = 0; i < 100; ++i)
            rows.append(newRow(i));
        for (int i = 0; i < 100; i += 5) {
            for (int k = 0; k < 10; ++k)
                rows.at(i)->appendChildren({newRow(1000 + 10 * i + k)});
        }
        model.rootItem()->appendChildren(rows);
    }

    static ZVTreeViewItem* newRow(int number)
    {
        auto row = std::make_unique<ZVTreeViewItem>();
        row->setText(textOf(number));
        return row.release();
    }
    static std::string textOf(int number) { return "row " + std::to_string(10000 + number); }

    QString firstVisible(const QTreeView& of) const
    {
        return of.indexAt(QPoint(0, 0)).data().toString();
    }
    QModelIndex indexOf(const QString& text) const
    {
        const QAbstractItemModel& shown = *view.model();
        return shown
            .match(shown.index(0, 0), Qt::DisplayRole, text, 1,
                   Qt::MatchExactly | Qt::MatchRecursive)
            .value(0);
    }
    void scrollToTop(const QString& text)
    {
        view.scrollTo(indexOf(text), QAbstractItemView::PositionAtTop);
        QCOMPARE(firstVisible(view), text);
    }

    ZVTreeViewModel model;
    QAbstractItemModelTester tester;
    QSortFilterProxyModel proxy;
    QSortFilterProxyModel filter;
    QTreeView view;
    QTreeView second;
};

int below(std::minstd_rand& random, int bound)
{
    return int(random() % unsigned(bound));
}

void changeAnything(ZVTreeViewModel& model, std::minstd_rand& random)
{
    Testing::TreeEdit edit;
    for (int change = below(random, 20); change > 0; --change) {
        ZVTreeViewItem* parent = model.rootItem();
        if (ZVTreeViewItem* row = parent->child(below(random, parent->childCount()));
            row->childCount() > 3 && below(random, 2) == 0)
            parent = row;
        const int count = edit.count(parent);
        if (count < 2)
            continue;
        const int row = below(random, count);
        if (below(random, 3) == 0)
            edit.insert(parent, row, Scene::newRow(-1000 - change));
        else if (below(random, 4) == 0)
            edit.remove(parent, row);
        else if (below(random, 4) == 0)
            edit.setText(parent->child(below(random, parent->childCount())),
                         Scene::textOf(below(random, 100)));
        else
            edit.move(parent, row, below(random, count - 1));
    }
    edit.applyTo(&model);
}

/** A view's place, chosen at random: what is at its top, current, selected and expanded. */
class Places
{
public:
    Places(QTreeView& view, std::minstd_rand& random)
        : m_view(view)
    {
        const QAbstractItemModel& shown = *view.model();
        const auto* proxy = qobject_cast<const QSortFilterProxyModel*>(&shown);
        m_hides = proxy && !proxy->filterRegularExpression().pattern().isEmpty();
        const auto any = [&] {
            const QModelIndex top = shown.index(below(random, shown.rowCount()), 0);
            const int children = shown.rowCount(top);
            return children > 0 && below(random, 2) == 0
                       ? shown.index(below(random, children), 0, top)
                       : top;
        };
        view.setCurrentIndex(any());
        m_current = view.currentIndex();
        if (below(random, 2) == 0) {
            for (int i = 0; i < 5; ++i)
                view.selectionModel()->select(any(), QItemSelectionModel::Select);
        }
        const QModelIndex folded = any();
        view.setExpanded(folded, !view.isExpanded(folded));
        view.scrollTo(any(), QAbstractItemView::PositionAtTop);
        m_first = view.indexAt(QPoint(0, 0));
        remember({});
    }

    void check() const
    {
        const QScrollBar& bar = *m_view.verticalScrollBar();
        // At its end a view has no more rows to put the first one to the top.
        if (m_first.isValid() && bar.value() < bar.maximum())
            RC_ASSERT((m_view.indexAt(QPoint(0, 0)) == m_first) == true);
        if (m_current.isValid())
            RC_ASSERT((m_view.currentIndex() == m_current) == true);
        else if (!m_hides)
            RC_ASSERT(m_view.currentIndex().isValid());
        for (const QPersistentModelIndex& index : m_expanded) {
            if (index.isValid() && index.model()->hasChildren(index))
                RC_ASSERT(m_view.isExpanded(index));
        }
        checkSelected();
    }

private:
    void remember(const QModelIndex& parent)
    {
        const QAbstractItemModel& shown = *m_view.model();
        for (int row = 0; row < shown.rowCount(parent); ++row) {
            const QModelIndex index = shown.index(row, 0, parent);
            if (m_view.isExpanded(index))
                m_expanded.emplace_back(index);
            if (m_view.selectionModel()->isSelected(index))
                m_selected.emplace_back(index);
            remember(index);
        }
    }

    /** Those that are still there, and the current one when the only one has gone. */
    void checkSelected() const
    {
        const QItemSelectionModel& selection = *m_view.selectionModel();
        int count = 0;
        for (const QPersistentModelIndex& index : m_selected) {
            if (index.isValid())
                RC_ASSERT(selection.isSelected(index));
            count += index.isValid() ? 1 : 0;
        }
        if (count == 0 && m_selected.size() == 1) {
            if (m_hides)
                return;
            RC_ASSERT(selection.isSelected(m_view.currentIndex()));
            count = 1;
        }
        RC_ASSERT(selection.selectedRows().size() == count);
    }

    QTreeView& m_view;
    /** A filter may hide rows that stay in the model; what is current then is the view's choice. */
    bool m_hides;
    QPersistentModelIndex m_first;
    QPersistentModelIndex m_current;
    std::vector<QPersistentModelIndex> m_selected;
    std::vector<QPersistentModelIndex> m_expanded;
};

QString rowText(int number)
{
    return QStringLiteral("row %1").arg(10000 + number);
}

} // namespace

class ZVTreeViewPlaceKeeperTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void firstVisibleRowStays_data();
    void firstVisibleRowStays();
    void whenItGoesTheNextVisibleRowKeepsItsHeight();
    void everyViewKeepsItsOwnPlace();
    void neighbourBecomesCurrent_data();
    void neighbourBecomesCurrent();
    void otherSelectedRowsStaySelected();
    void aViewMayGetAnotherModel();
    void anyRefreshKeepsThePlace();
};

void ZVTreeViewPlaceKeeperTest::firstVisibleRowStays_data()
{
    QTest::addColumn<bool>("sorted");
    QTest::addColumn<bool>("perPixel");
    QTest::addColumn<bool>("reverse");
    QTest::newRow("rows come before it") << false << false << false;
    QTest::newRow("rows come before it, by pixels") << false << true << false;
    QTest::newRow("rows change places") << false << false << true;
    QTest::newRow("rows change places, by pixels") << false << true << true;
    QTest::newRow("sorted proxy between") << true << false << false;
    QTest::newRow("sorted proxy, rows change places") << true << true << true;
}

void ZVTreeViewPlaceKeeperTest::firstVisibleRowStays()
{
    QFETCH(bool, sorted);
    QFETCH(bool, perPixel);
    QFETCH(bool, reverse);
    Scene scene(sorted ? Through::Sorting : Through::Nothing);
    if (perPixel)
        scene.view.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    scene.scrollToTop(rowText(41));
    ZVTreeViewItem* root = scene.model.rootItem();
    Testing::TreeEdit edit;
    for (int i = 0; i < 30; ++i)
        edit.insert(root, 2 * i, Scene::newRow(-500 + i));
    if (reverse)
        edit.rotate(root, 70);
    edit.applyTo(&scene.model);
    QCOMPARE(scene.firstVisible(scene.view), rowText(41));
    QCoreApplication::processEvents();
    QCOMPARE(scene.firstVisible(scene.view), rowText(41));
}

void ZVTreeViewPlaceKeeperTest::whenItGoesTheNextVisibleRowKeepsItsHeight()
{
    Scene scene;
    scene.scrollToTop(rowText(41));
    const int height = scene.view.visualRect(scene.indexOf(rowText(42))).top();
    Testing::TreeEdit edit;
    edit.remove(scene.model.rootItem(), 41);
    for (int i = 0; i < 10; ++i)
        edit.insert(scene.model.rootItem(), 0, Scene::newRow(-500 + i));
    edit.applyTo(&scene.model);
    QCoreApplication::processEvents();
    QCOMPARE(scene.view.visualRect(scene.indexOf(rowText(42))).top(), height);
}

void ZVTreeViewPlaceKeeperTest::everyViewKeepsItsOwnPlace()
{
    Scene scene;
    scene.scrollToTop(rowText(41));
    const QString second = scene.firstVisible(scene.second);
    QVERIFY(second != rowText(41));
    Testing::TreeEdit().rotate(scene.model.rootItem(), 5).applyTo(&scene.model);
    QCoreApplication::processEvents();
    QCOMPARE(scene.firstVisible(scene.view), rowText(41));
    QCOMPARE(scene.firstVisible(scene.second), second);
}

void ZVTreeViewPlaceKeeperTest::neighbourBecomesCurrent_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<QVector<int>>("going");
    QTest::addColumn<int>("expected");
    QTest::newRow("the next row") << 41 << QVector<int>{41} << 42;
    QTest::newRow("the next row that stays") << 41 << QVector<int>{43, 42, 41} << 44;
    QTest::newRow("the row before when it was the last") << 99 << QVector<int>{99} << 98;
    QTest::newRow("of the parent when that goes, too") << 1052 << QVector<int>{5} << 6;
    QTest::newRow("itself when it stays") << 41 << QVector<int>{40, 39, 3} << 41;
}

void ZVTreeViewPlaceKeeperTest::neighbourBecomesCurrent()
{
    QFETCH(int, current);
    QFETCH(QVector<int>, going);
    QFETCH(int, expected);
    for (const bool scattered : {false, true}) {
        Scene scene;
        scene.view.setCurrentIndex(scene.indexOf(rowText(current)));
        Testing::TreeEdit edit;
        for (int row : going)
            edit.remove(scene.model.rootItem(), row);
        if (scattered)
            edit.rotate(scene.model.rootItem(), 20);
        edit.applyTo(&scene.model);
        QCOMPARE(scene.view.currentIndex().data().toString(), rowText(expected));
        QCOMPARE(scene.view.selectionModel()->selectedRows().size(), 1);
        QVERIFY(scene.view.selectionModel()->isSelected(scene.view.currentIndex()));
    }
}

void ZVTreeViewPlaceKeeperTest::otherSelectedRowsStaySelected()
{
    Scene scene;
    scene.view.setCurrentIndex(scene.indexOf(rowText(41)));
    scene.view.selectionModel()->select(scene.indexOf(rowText(60)), QItemSelectionModel::Select);
    ZVTreeViewItem* root = scene.model.rootItem();
    Testing::TreeEdit().remove(root, 41).rotate(root, 20).applyTo(&scene.model);
    QCOMPARE(scene.view.currentIndex().data().toString(), rowText(42));
    QCOMPARE(scene.view.selectionModel()->selectedRows().size(), 1);
    QVERIFY(scene.view.selectionModel()->isSelected(scene.indexOf(rowText(60))));
}

void ZVTreeViewPlaceKeeperTest::aViewMayGetAnotherModel()
{
    Scene scene;
    ZVTreeViewModel other;
    for (int i = 0; i < 100; ++i)
        other.rootItem()->appendChildren({Scene::newRow(i)});
    scene.view.setModel(&other);
    QVERIFY(QTest::qWaitForWindowExposed(&scene.view, Zorvane::Testing::patience));
    scene.view.viewport()->repaint();
    scene.scrollToTop(rowText(41));
    Testing::TreeEdit().insert(other.rootItem(), 0, Scene::newRow(-1)).applyTo(&other);
    QCOMPARE(scene.firstVisible(scene.view), rowText(41));
    scene.view.setModel(nullptr);
    Testing::TreeEdit().insert(other.rootItem(), 0, Scene::newRow(-2)).applyTo(&other);
}

void ZVTreeViewPlaceKeeperTest::anyRefreshKeepsThePlace()
{
    const bool held = rc::check("any refresh", [] {
        Scene scene(Through(*rc::gen::inRange(0, 4)));
        std::minstd_rand random(*rc::gen::inRange(1U, 100000U));
        for (int round = 0; round < 4; ++round) {
            Places first(scene.view, random);
            Places second(scene.second, random);
            changeAnything(scene.model, random);
            QCoreApplication::processEvents();
            first.check();
            second.check();
        }
    });
    QVERIFY(held);
}

ZORVANE_TEST(ZVTreeViewPlaceKeeperTest)
#include "ZVTreeViewPlaceKeeperTest.moc"
