#include "Host/Widgets/ZVTreeViewModel.h"

#include "Tests/Host/Widgets/TreeRows.h"
#include "Tests/Support/ModelMirror.h"
#include "Tests/Support/ModelSignalRecorder.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QSortFilterProxyModel>
#include <QtGui/QStandardItemModel>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTreeView>

#include <optional>

using namespace Zorvane;
using namespace Zorvane::Testing;

namespace {

/** A row that goes away when its text is set to nothing, as a caller's own class may do. */
class VanishingRow : public ZVTreeViewItem
{
public:
    bool setData(int column, int role, const QVariant& value) override
    {
        if (role != Qt::EditRole || !value.toString().isEmpty())
            return ZVTreeViewItem::setData(column, role, value);
        delete this;
        return true;
    }
};

/** Shows its row number: views ask rows, not what was stored. */
class CountingRow : public ZVTreeViewItem
{
public:
    QVariant data(int column, int role) const override
    {
        return role == Qt::DisplayRole ? QVariant(row()) : ZVTreeViewItem::data(column, role);
    }
};

void setEditable(ZVTreeViewItem* row)
{
    row->setFlags(row->flags() | Qt::ItemIsEditable);
}

QStringList selectedTexts(const QTreeView& view)
{
    QStringList texts;
    for (const QModelIndex& index : view.selectionModel()->selectedRows())
        texts << index.data().toString();
    texts.sort();
    return texts;
}

} // namespace

class ZVTreeViewModelTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    // Columns and headers
    void oneColumnAtFirst();
    void labelsMakeColumns();
    void headersAreNumberedUntilNamed();
    void headerDataIsSilentWhenEqual();
    void badHeaderSectionIsRefused();
    void columnCountChangesByReset();
    void valuesBehindTheLastColumnAreKeptUnannounced();
    // Indexes
    void indexesLeadThereAndBack();
    void indexOutsideIsInvalid();
    void onlyColumnZeroHasChildren();
    void foreignIndexIsNobodys();
    void foreignRowHasNoIndex();
    void siblingsStandInTheSameParent();
    void matchFindsTexts();
    // Values
    void modelShowsWhatRowsAnswer();
    void editingChangesTheRowAndTellsIt();
    void refusedEditIsNotTold();
    void rowMayVanishWhileItIsEdited();
    void slotMayDeleteTheRowThatIsEdited();
    void flagsAreThoseOfTheRow();
    void draggingIsOffUnlessFlagged();
    // Announcements
    void oneAnnouncementForManyRows();
    void deletionOfASubtreeIsAnnouncedOnce();
    void detachedRowsAnnounceNothing();
    void valueIsAnnouncedInItsCell();
    // With views and proxies
    void persistentIndexesFollow();
    void proxiesFollow();
    void rowPutBelowAnotherParent_isRemovedAndInserted();
    void twoViewsKeepTheirPlaces();
    void viewEditsWithItsEditor();
    void modelMayGoBeforeItsViews();

private:
    ZVTreeViewItem* root() const { return m_model->rootItem(); }

    std::optional<ZVTreeViewModel> m_model;
    std::optional<QAbstractItemModelTester> m_tester;
    std::optional<ModelMirror> m_mirror;
    std::optional<ModelSignalRecorder> m_recorder;
};

void ZVTreeViewModelTest::init()
{
    m_model.emplace();
    m_tester.emplace(&*m_model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    m_mirror.emplace(&*m_model);
    m_recorder.emplace(&*m_model);
}

void ZVTreeViewModelTest::cleanup()
{
    if (m_model)
        QCOMPARE(m_mirror->difference(), QString());
    m_recorder.reset();
    m_mirror.reset();
    m_tester.reset();
    m_model.reset();
    TestCase::cleanup();
}

void ZVTreeViewModelTest::oneColumnAtFirst()
{
    QCOMPARE(m_model->columnCount(), 1);
    QCOMPARE(m_model->rowCount(), 0);
    QVERIFY(!m_model->hasChildren());
    QCOMPARE(root()->model(), &*m_model);
    QVERIFY(!root()->parent());
}

void ZVTreeViewModelTest::labelsMakeColumns()
{
    m_model->setHorizontalHeaderLabels({QStringLiteral("Name"), QStringLiteral("Kind")});
    QCOMPARE(m_model->columnCount(), 2);
    QCOMPARE(m_model->headerData(1, Qt::Horizontal).toString(), QStringLiteral("Kind"));
    m_model->setHorizontalHeaderLabels({});
    QCOMPARE(m_model->columnCount(), 1);
    QCOMPARE(m_model->headerData(0, Qt::Horizontal).toString(), QStringLiteral("Name"));
}

void ZVTreeViewModelTest::headersAreNumberedUntilNamed()
{
    m_model->setColumnCount(2);
    QCOMPARE(m_model->headerData(1, Qt::Horizontal).toInt(), 2);
    QVERIFY(m_model->setHeaderData(1, Qt::Horizontal, QStringLiteral("Kind")));
    QCOMPARE(m_model->headerData(1, Qt::Horizontal, Qt::EditRole).toString(),
             QStringLiteral("Kind"));
    QVERIFY(m_model->setHeaderData(1, Qt::Horizontal, QStringLiteral("tip"), Qt::ToolTipRole));
    QCOMPARE(m_model->headerData(1, Qt::Horizontal, Qt::ToolTipRole).toString(),
             QStringLiteral("tip"));
    QVERIFY(m_model->setHeaderData(1, Qt::Horizontal, QVariant()));
    QCOMPARE(m_model->headerData(1, Qt::Horizontal).toInt(), 2);
    QVERIFY(!m_model->headerData(0, Qt::Horizontal, Qt::ToolTipRole).isValid());
}

void ZVTreeViewModelTest::headerDataIsSilentWhenEqual()
{
    m_model->setColumnCount(2);
    m_recorder->take();
    m_model->setHeaderData(1, Qt::Horizontal, QStringLiteral("1"));
    QCOMPARE(m_recorder->take(), QStringList(QStringLiteral("headerDataChanged 1 1")));
    m_model->setHeaderData(1, Qt::Horizontal, QStringLiteral("1"));
    m_model->setHeaderData(0, Qt::Horizontal, QVariant());
    QCOMPARE(m_recorder->take(), QStringList());
    m_model->setHeaderData(1, Qt::Horizontal, 1);
    QCOMPARE(m_recorder->take().size(), 1);
}

void ZVTreeViewModelTest::badHeaderSectionIsRefused()
{
    QVERIFY(!m_model->setHeaderData(-1, Qt::Horizontal, 1));
    QVERIFY(!m_model->setHeaderData(1, Qt::Horizontal, 1));
    QVERIFY(!m_model->setHeaderData(0, Qt::Vertical, 1));
    QVERIFY(!m_model->headerData(-1, Qt::Horizontal, Qt::ToolTipRole).isValid());
}

void ZVTreeViewModelTest::columnCountChangesByReset()
{
    appendRows(root(), "a b");
    QTreeView view;
    view.setModel(&*m_model);
    m_recorder->take();
    m_model->setColumnCount(3);
    m_model->setColumnCount(3);
    QCOMPARE(m_recorder->take(), QStringList(QStringLiteral("modelReset")));
    QCOMPARE(m_model->columnCount(m_model->index(0, 0)), 3);
    QCOMPARE(view.header()->count(), 3);
    m_model->setColumnCount(-1);
    QCOMPARE(m_model->columnCount(), 1);
    QCOMPARE(view.header()->count(), 1);
}

void ZVTreeViewModelTest::valuesBehindTheLastColumnAreKeptUnannounced()
{
    appendRows(root(), "a");
    m_recorder->take();
    root()->child(0)->setData(2, Qt::DisplayRole, 7);
    QCOMPARE(m_recorder->take(), QStringList());
    m_model->setColumnCount(3);
    QCOMPARE(m_model->index(0, 2).data().toInt(), 7);
}

void ZVTreeViewModelTest::indexesLeadThereAndBack()
{
    m_model->setColumnCount(2);
    appendRows(root(), "a b");
    appendRows(root()->child(1), "c d");
    const ZVTreeViewItem* row = root()->child(1)->child(1);
    const QModelIndex index = m_model->indexFromItem(row, 1);
    QCOMPARE(index.row(), 1);
    QCOMPARE(index.column(), 1);
    QCOMPARE(m_model->itemFromIndex(index), row);
    QCOMPARE(index.parent(), m_model->index(1, 0));
    QCOMPARE(index.parent().parent(), QModelIndex());
    QCOMPARE(m_model->itemFromIndex(QModelIndex()), root());
    QCOMPARE(row->model(), &*m_model);
}

void ZVTreeViewModelTest::indexOutsideIsInvalid()
{
    appendRows(root(), "a b");
    QVERIFY(!m_model->index(-1, 0).isValid());
    QVERIFY(!m_model->index(2, 0).isValid());
    QVERIFY(!m_model->index(0, -1).isValid());
    QVERIFY(!m_model->index(0, 1).isValid());
    QVERIFY(!m_model->index(0, 0, m_model->index(0, 0)).isValid());
    QVERIFY(!m_model->indexFromItem(root()->child(0), 1).isValid());
    QVERIFY(!m_model->indexFromItem(root()->child(0), -1).isValid());
    QVERIFY(!m_model->data(QModelIndex()).isValid());
    QVERIFY(!m_model->setData(QModelIndex(), 1));
    QCOMPARE(m_model->flags(QModelIndex()), Qt::ItemFlags(Qt::NoItemFlags));
    QVERIFY(!m_model->parent(QModelIndex()).isValid());
}

void ZVTreeViewModelTest::onlyColumnZeroHasChildren()
{
    m_model->setColumnCount(2);
    appendRows(root(), "a");
    appendRows(root()->child(0), "b");
    const QModelIndex second = m_model->index(0, 1);
    QVERIFY(m_model->hasChildren(m_model->index(0, 0)));
    QVERIFY(!m_model->hasChildren(second));
    QCOMPARE(m_model->rowCount(second), 0);
    QCOMPARE(m_model->columnCount(second), 0);
    QVERIFY(!m_model->index(0, 0, second).isValid());
}

void ZVTreeViewModelTest::foreignIndexIsNobodys()
{
    appendRows(root(), "a b");
    QStandardItemModel foreign(2, 2);
    const QModelIndex index = foreign.index(1, 0);
    QVERIFY(!m_model->itemFromIndex(index));
    QVERIFY(!m_model->index(0, 0, index).isValid());
    QCOMPARE(m_model->rowCount(index), 0);
    QVERIFY(!m_model->hasChildren(index));
    QVERIFY(!m_model->data(index).isValid());
    QVERIFY(!m_model->setData(index, 1));
    QVERIFY(!m_model->parent(index).isValid());
    QVERIFY(!m_model->sibling(1, 0, index).isValid());
    QVERIFY(!m_model->isLeaving(index));
    QCOMPARE(m_model->flags(index), Qt::ItemFlags(Qt::NoItemFlags));
}

void ZVTreeViewModelTest::foreignRowHasNoIndex()
{
    ZVTreeViewModel other;
    appendRows(other.rootItem(), "a");
    const ZVTreeViewItem detached;
    QVERIFY(!m_model->indexFromItem(nullptr).isValid());
    QVERIFY(!m_model->indexFromItem(root()).isValid());
    QVERIFY(!m_model->indexFromItem(other.rootItem()->child(0)).isValid());
    QVERIFY(!m_model->indexFromItem(&detached).isValid());
}

void ZVTreeViewModelTest::siblingsStandInTheSameParent()
{
    m_model->setColumnCount(2);
    appendRows(root(), "a b");
    const QModelIndex index = m_model->index(0, 0);
    QCOMPARE(index.sibling(0, 1), m_model->index(0, 1));
    QCOMPARE(index.sibling(1, 1), m_model->index(1, 1));
    QVERIFY(!index.sibling(0, 2).isValid());
    QVERIFY(!index.sibling(2, 0).isValid());
    QVERIFY(!m_model->sibling(0, 0, QModelIndex()).isValid());
    QCOMPARE(m_model->buddy(index), index);
    QVERIFY(!m_model->canFetchMore(index));
}

void ZVTreeViewModelTest::matchFindsTexts()
{
    appendRows(root(), "a b");
    appendRows(root()->child(1), "punch");
    const QModelIndexList found = m_model->match(m_model->index(0, 0), Qt::DisplayRole,
                                                 QStringLiteral("punch"), -1, Qt::MatchRecursive);
    QCOMPARE(found, QModelIndexList{m_model->indexFromItem(root()->child(1)->child(0))});
}

void ZVTreeViewModelTest::modelShowsWhatRowsAnswer()
{
    root()->appendChildren({new CountingRow, new CountingRow});
    QCOMPARE(m_model->index(1, 0).data().toInt(), 1);
    QVERIFY(!m_model->index(1, 0).data(Qt::ToolTipRole).isValid());
}

void ZVTreeViewModelTest::editingChangesTheRowAndTellsIt()
{
    m_model->setColumnCount(2);
    appendRows(root(), "a b");
    m_recorder->take();
    const QSignalSpy edited(&*m_model, &ZVTreeViewModel::edited);
    QVERIFY(m_model->setData(m_model->index(1, 1), 7));
    QCOMPARE(root()->child(1)->data(1, Qt::DisplayRole), QVariant(7));
    QCOMPARE(m_recorder->take(), QStringList(QStringLiteral("dataChanged / 1:1 1:1 [0 2]")));
    QCOMPARE(edited.size(), 1);
    QCOMPARE(edited.first().at(0).toModelIndex(), m_model->index(1, 1));
    QCOMPARE(edited.first().at(1).value<QVariant>(), QVariant(7));
    QCOMPARE(edited.first().at(2).toInt(), int(Qt::EditRole));
    root()->child(1)->setText("by the program");
    QCOMPARE(edited.size(), 1);
}

void ZVTreeViewModelTest::refusedEditIsNotTold()
{
    class ReadOnlyRow : public ZVTreeViewItem
    {
    public:
        bool setData(int, int, const QVariant&) override { return false; }
    };
    root()->appendChildren({new ReadOnlyRow});
    const QSignalSpy edited(&*m_model, &ZVTreeViewModel::edited);
    QVERIFY(!m_model->setData(m_model->index(0, 0), 7));
    QCOMPARE(edited.size(), 0);
}

void ZVTreeViewModelTest::rowMayVanishWhileItIsEdited()
{
    appendRows(root(), "a");
    root()->appendChildren({new VanishingRow});
    m_recorder->take();
    const QSignalSpy edited(&*m_model, &ZVTreeViewModel::edited);
    QVERIFY(m_model->setData(m_model->index(1, 0), QString()));
    QCOMPARE(m_recorder->take(), QStringList(QStringLiteral("rowsRemoved / 1 1")));
    QCOMPARE(edited.size(), 0);
    QCOMPARE(textsOf(*m_model), QStringLiteral("a"));
}

void ZVTreeViewModelTest::slotMayDeleteTheRowThatIsEdited()
{
    appendRows(root(), "a b");
    connect(&*m_model, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex& index) { delete m_model->itemFromIndex(index); });
    QVERIFY(m_model->setData(m_model->index(0, 0), QStringLiteral("c")));
    QCOMPARE(textsOf(*m_model), QStringLiteral("b"));
}

void ZVTreeViewModelTest::flagsAreThoseOfTheRow()
{
    m_model->setColumnCount(2);
    appendRows(root(), "a");
    m_recorder->take();
    setEditable(root()->child(0));
    QCOMPARE(m_model->index(0, 0).flags(), root()->child(0)->flags());
    QCOMPARE(m_model->index(0, 1).flags(), root()->child(0)->flags());
    const QStringList lines = m_recorder->take();
    QCOMPARE(lines.size(), 1);
    QVERIFY(lines.first().startsWith(QStringLiteral("dataChanged / 0:0")));
}

void ZVTreeViewModelTest::draggingIsOffUnlessFlagged()
{
    appendRows(root(), "a b");
    ZVTreeViewItem* row = root()->child(1);
    row->setFlags(row->flags() | Qt::ItemIsDragEnabled);
    QVERIFY(!m_model->index(0, 0).flags().testFlag(Qt::ItemIsDragEnabled));
    QVERIFY(m_model->index(1, 0).flags().testFlag(Qt::ItemIsDragEnabled));
    QVERIFY(!m_model->flags(QModelIndex()).testFlag(Qt::ItemIsDropEnabled));
}

void ZVTreeViewModelTest::oneAnnouncementForManyRows()
{
    appendRows(root(), "a b");
    appendRows(root()->child(1), "c d e");
    appendRows(root(), "f g");
    QCOMPARE(m_recorder->take(), QStringList({QStringLiteral("rowsInserted / 0 1"),
                                              QStringLiteral("rowsInserted b 0 2"),
                                              QStringLiteral("rowsInserted / 2 3")}));
    ZVTreeViewItem* tree = newRow(QStringLiteral("h"));
    appendRows(tree, "i j");
    root()->insertChild(1, tree);
    QCOMPARE(m_recorder->take(), QStringList(QStringLiteral("rowsInserted / 1 1")));
    QCOMPARE(textsOf(*m_model), QStringLiteral("a h(i j) b(c d e) f g"));
}

void ZVTreeViewModelTest::deletionOfASubtreeIsAnnouncedOnce()
{
    appendRows(root(), "a b c");
    appendRows(root()->child(0), "x y");
    appendRows(root()->child(1), "x y");
    appendRows(root()->child(2), "x y");
    m_recorder->take();
    delete root()->child(0);
    root()->deleteChild(1);
    delete root()->takeChild(0);
    QCOMPARE(m_recorder->take(),
             QStringList({QStringLiteral("rowsRemoved / 0 0"), QStringLiteral("rowsRemoved / 1 1"),
                          QStringLiteral("rowsRemoved / 0 0")}));
}

void ZVTreeViewModelTest::detachedRowsAnnounceNothing()
{
    appendRows(root(), "a");
    const std::unique_ptr<ZVTreeViewItem> taken(root()->takeChild(0));
    m_recorder->take();
    taken->setText("b");
    appendRows(taken.get(), "c d");
    taken->deleteChild(0);
    QCOMPARE(m_recorder->take(), QStringList());
}

void ZVTreeViewModelTest::valueIsAnnouncedInItsCell()
{
    m_model->setColumnCount(3);
    appendRows(root(), "a b");
    appendRows(root()->child(1), "c d");
    m_recorder->take();
    root()->child(1)->child(1)->setData(2, Qt::ToolTipRole, 1);
    root()->child(0)->setText("A");
    QCOMPARE(m_recorder->take(), QStringList({QStringLiteral("dataChanged b 1:2 1:2 [3]"),
                                              QStringLiteral("dataChanged / 0:0 0:0 [0 2]")}));
}

void ZVTreeViewModelTest::persistentIndexesFollow()
{
    m_model->setColumnCount(2);
    appendRows(root(), "a b c");
    appendRows(root()->child(1), "x");
    const QPersistentModelIndex parent = m_model->index(1, 1);
    const QPersistentModelIndex child = m_model->index(0, 0, m_model->index(1, 0));
    root()->insertChild(0, newRow(QStringLiteral("d")));
    QCOMPARE(parent.row(), 2);
    QCOMPARE(QModelIndex(parent), m_model->index(2, 1));
    root()->deleteChild(1);
    QCOMPARE(parent.row(), 1);
    QCOMPARE(child.data().toString(), QStringLiteral("x"));
    root()->deleteChild(1);
    QVERIFY(!parent.isValid());
    QVERIFY(!child.isValid());
}

void ZVTreeViewModelTest::proxiesFollow()
{
    QSortFilterProxyModel sorted;
    sorted.setSourceModel(&*m_model);
    sorted.sort(0);
    QSortFilterProxyModel filtered;
    filtered.setRecursiveFilteringEnabled(true);
    filtered.setSourceModel(&sorted);
    filtered.setFilterRegularExpression(QStringLiteral("^[a-m]"));
    const QAbstractItemModelTester sortedTester(
        &sorted, QAbstractItemModelTester::FailureReportingMode::QtTest);
    const ModelMirror mirror(&filtered);
    appendRows(root(), "c a z b");
    appendRows(root()->child(2), "y d x");
    QCOMPARE(textsOf(sorted), QStringLiteral("a b c z(d x y)"));
    QCOMPARE(textsOf(filtered), QStringLiteral("a b c z(d)"));
    root()->child(0)->setText("n");
    root()->child(2)->child(0)->setText("e");
    root()->insertChild(0, root()->takeChild(3));
    root()->deleteChild(2);
    QCOMPARE(textsOf(sorted), QStringLiteral("b n z(d e x)"));
    QCOMPARE(textsOf(filtered), QStringLiteral("b z(d e)"));
    QCOMPARE(mirror.difference(), QString());
}

void ZVTreeViewModelTest::rowPutBelowAnotherParent_isRemovedAndInserted()
{
    appendRows(root(), "a b z");
    appendRows(root()->child(0), "c d");
    QSortFilterProxyModel filtered;
    filtered.setRecursiveFilteringEnabled(true);
    filtered.setFilterRegularExpression(QStringLiteral("^[a-m]"));
    filtered.setSourceModel(&*m_model);
    const ModelMirror mirror(&filtered);
    QCOMPARE(textsOf(filtered), QStringLiteral("a(c d) b"));
    m_recorder->take();
    ZVTreeViewItem* moved = root()->child(0)->takeChild(0);
    QVERIFY(root()->child(2)->insertChild(0, moved));
    QCOMPARE(m_recorder->take(), QStringList({QStringLiteral("rowsRemoved a 0 0"),
                                              QStringLiteral("rowsInserted z 0 0")}));
    QCOMPARE(textsOf(filtered), QStringLiteral("a(d) b z(c)"));
    QCOMPARE(mirror.difference(), QString());
}

void ZVTreeViewModelTest::twoViewsKeepTheirPlaces()
{
    appendRows(root(), "a b c d");
    for (int i = 0; i < 4; ++i)
        appendRows(root()->child(i), "x y");
    QTreeView views[2];
    for (int i = 0; i < 2; ++i) {
        views[i].setModel(&*m_model);
        views[i].setSelectionMode(QAbstractItemView::ExtendedSelection);
        views[i].setExpanded(m_model->index(i + 1, 0), true);
        views[i].setCurrentIndex(m_model->index(i + 1, 0));
        views[i].selectionModel()->select(m_model->index(3, 0), QItemSelectionModel::Select);
    }
    root()->insertChild(0, newRow(QStringLiteral("e")));
    root()->deleteChild(1);
    root()->insertChild(2, newRow(QStringLiteral("f")));
    QCOMPARE(textsOf(*m_model), QStringLiteral("e b(x y) f c(x y) d(x y)"));
    for (int i = 0; i < 2; ++i) {
        const QModelIndex current = m_model->index(i == 0 ? 1 : 3, 0);
        QCOMPARE(views[i].currentIndex(), current);
        QVERIFY(views[i].isExpanded(current));
        QVERIFY(!views[i].isExpanded(m_model->index(4, 0)));
        QCOMPARE(selectedTexts(views[i]),
                 QStringList({current.data().toString(), QStringLiteral("d")}));
    }
}

void ZVTreeViewModelTest::viewEditsWithItsEditor()
{
    appendRows(root(), "cup die");
    setEditable(root()->child(1));
    QTreeView view;
    view.setModel(&*m_model);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view, Zorvane::Testing::patience));
    const QSignalSpy edited(&*m_model, &ZVTreeViewModel::edited);
    view.edit(m_model->index(1, 0));
    auto* editor = view.viewport()->findChild<QLineEdit*>();
    QVERIFY(editor);
    QCOMPARE(editor->text(), QStringLiteral("die"));
    QTest::keyClicks(editor, QStringLiteral("draw die"));
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(edited.size(), 1);
    QCOMPARE(root()->child(1)->text(), QStringLiteral("draw die"));
    QCOMPARE(m_recorder->take().last(), QStringLiteral("dataChanged / 1:0 1:0 [0 2]"));
}

void ZVTreeViewModelTest::modelMayGoBeforeItsViews()
{
    appendRows(root(), "a b");
    appendRows(root()->child(0), "c d");
    QSortFilterProxyModel proxy;
    proxy.setSourceModel(&*m_model);
    QTreeView view;
    view.setModel(&*m_model);
    view.expandAll();
    view.selectAll();
    QTreeView proxyView;
    proxyView.setModel(&proxy);
    proxyView.expandAll();
    const QPersistentModelIndex lasting = m_model->index(0, 0);
    m_mirror.reset();
    m_tester.reset();
    m_model.reset();
    QVERIFY(!lasting.isValid());
    QCOMPARE(proxy.rowCount(), 0);
    QVERIFY(!view.currentIndex().isValid());
    // Not the proxy's view: no proxy of Qt tells its views that its source has gone.
    view.grab();
}

ZORVANE_TEST(ZVTreeViewModelTest)
#include "ZVTreeViewModelTest.moc"
