#include "Host/Widgets/ZVTreeViewPlaceKeeper.h"
#include "Host/Widgets/ZVTreeViewModelBatch.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QSortFilterProxyModel>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTreeView>

#include <rapidcheck.h>

#include <random>

using namespace Zorvane;

namespace {

/** A tree of 300 rows with children here and there, and a view of it with a keeper. */
class Scene
{
public:
    explicit Scene(bool sorted = false)
        : tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest)
    {
        fill();
        QAbstractItemModel* shown = &model;
        if (sorted) {
            proxy.setSourceModel(&model);
            proxy.sort(0);
            shown = &proxy;
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
        row->setText("row " + std::to_string(10000 + number));
        return row.release();
    }

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
    QTreeView view;
    QTreeView second;
};

/** Takes rows off the front and puts them behind. */
void rotate(ZVTreeViewItem* parent, int count)
{
    for (; count > 0; --count)
        parent->insertChild(parent->childCount() - 1, parent->takeChild(0));
}

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
    Scene scene(sorted);
    if (perPixel)
        scene.view.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    scene.scrollToTop(rowText(41));
    {
        const ZVTreeViewModelBatch batch(&scene.model);
        ZVTreeViewItem* root = scene.model.rootItem();
        for (int i = 0; i < 30; ++i)
            root->insertChild(2 * i, Scene::newRow(-500 + i));
        if (reverse)
            rotate(root, 70);
    }
    QCOMPARE(scene.firstVisible(scene.view), rowText(41));
    QCoreApplication::processEvents();
    QCOMPARE(scene.firstVisible(scene.view), rowText(41));
}

void ZVTreeViewPlaceKeeperTest::whenItGoesTheNextVisibleRowKeepsItsHeight()
{
    Scene scene;
    scene.scrollToTop(rowText(41));
    const int height = scene.view.visualRect(scene.indexOf(rowText(42))).top();
    {
        const ZVTreeViewModelBatch batch(&scene.model);
        QVERIFY(scene.model.rootItem()->deleteChild(41));
        for (int i = 0; i < 10; ++i)
            scene.model.rootItem()->insertChild(0, Scene::newRow(-500 + i));
    }
    QCoreApplication::processEvents();
    QCOMPARE(scene.view.visualRect(scene.indexOf(rowText(42))).top(), height);
}

void ZVTreeViewPlaceKeeperTest::everyViewKeepsItsOwnPlace()
{
    Scene scene;
    scene.scrollToTop(rowText(41));
    const QString second = scene.firstVisible(scene.second);
    QVERIFY(second != rowText(41));
    {
        const ZVTreeViewModelBatch batch(&scene.model);
        rotate(scene.model.rootItem(), 5);
    }
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
        {
            const ZVTreeViewModelBatch batch(&scene.model);
            for (int row : going)
                QVERIFY(scene.model.rootItem()->deleteChild(row));
            if (scattered)
                rotate(scene.model.rootItem(), 20);
        }
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
    {
        const ZVTreeViewModelBatch batch(&scene.model);
        QVERIFY(scene.model.rootItem()->deleteChild(41));
        rotate(scene.model.rootItem(), 20);
    }
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
    {
        const ZVTreeViewModelBatch batch(&other);
        other.rootItem()->insertChild(0, Scene::newRow(-1));
    }
    QCOMPARE(scene.firstVisible(scene.view), rowText(41));
    scene.view.setModel(nullptr);
    const ZVTreeViewModelBatch batch(&other);
    other.rootItem()->insertChild(0, Scene::newRow(-2));
}

void ZVTreeViewPlaceKeeperTest::anyRefreshKeepsThePlace()
{
    const bool held = rc::check("any refresh", [](bool sorted) {
        Scene scene(sorted);
        std::minstd_rand random(*rc::gen::inRange(1U, 100000U));
        const auto below = [&random](int bound) { return int(random() % unsigned(bound)); };
        for (int round = 0; round < 4; ++round) {
            const int top = below(80);
            scene.view.scrollTo(scene.indexOf(rowText(top)), QAbstractItemView::PositionAtTop);
            const QPersistentModelIndex first = scene.view.indexAt(QPoint(0, 0));
            const QPersistentModelIndex selected =
                scene.view.model()->index(below(scene.view.model()->rowCount()), 0);
            scene.view.setCurrentIndex(selected);
            scene.view.scrollTo(first, QAbstractItemView::PositionAtTop);
            const bool wasFirst = scene.view.indexAt(QPoint(0, 0)) == first;
            const QPersistentModelIndex expanded = scene.indexOf(rowText(5 * below(20)));
            {
                const ZVTreeViewModelBatch batch(&scene.model);
                ZVTreeViewItem* root = scene.model.rootItem();
                for (int change = below(20); change > 0; --change) {
                    const int row = below(root->childCount());
                    const int target = below(root->childCount() - 1);
                    if (below(3) == 0)
                        root->insertChild(row, Scene::newRow(-1000 - change));
                    else if (below(4) == 0)
                        root->deleteChild(row);
                    else
                        root->insertChild(target, root->takeChild(row));
                }
            }
            QCoreApplication::processEvents();
            QScrollBar& bar = *scene.view.verticalScrollBar();
            if (first.isValid() && wasFirst && bar.value() < bar.maximum())
                RC_ASSERT((scene.view.indexAt(QPoint(0, 0)) == first) == true);
            RC_ASSERT(scene.view.currentIndex().isValid());
            if (selected.isValid())
                RC_ASSERT((scene.view.currentIndex() == selected) == true);
            RC_ASSERT(scene.view.selectionModel()->isSelected(scene.view.currentIndex()));
            if (expanded.isValid() && scene.view.model()->rowCount(expanded) > 0)
                RC_ASSERT(scene.view.isExpanded(expanded));
        }
    });
    QVERIFY(held);
}

ZORVANE_TEST_MAIN(ZVTreeViewPlaceKeeperTest)
#include "ZVTreeViewPlaceKeeperTest.moc"
