#include "Host/Widgets/ZVTreeViewRefresh.h"

#include "Tests/Host/Widgets/TreeEdit.h"
#include "Tests/Support/ModelMirror.h"
#include "Tests/Support/ModelSignalRecorder.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QConcatenateTablesProxyModel>
#include <QtCore/QSortFilterProxyModel>
#include <QtWidgets/QTreeView>

#include <optional>
#include <stdexcept>

using namespace Zorvane;
using Testing::appendNumbered;
using Testing::appendRows;
using Testing::TreeEdit;

namespace {

QStringList signalLines(const char* lines)
{
    return QString::fromLatin1(lines).split(QStringLiteral("; "));
}

/** A model with everything attached that watches it. */
struct WatchedModel
{
    WatchedModel()
    {
        sorted.setSourceModel(&model);
        sorted.sort(0);
        QObject::connect(&model, &ZVTreeViewModel::aboutToPublish, &recorder,
                         [this] { recorder.note(QStringLiteral("aboutToPublish")); });
        QObject::connect(&model, &ZVTreeViewModel::published, &recorder,
                         [this] { recorder.note(QStringLiteral("published")); });
    }

    ZVTreeViewItem* root() const { return model.rootItem(); }

    /** What is announced of a plan between "aboutToPublish" and "published". */
    QStringList announced(TreeEdit& edit)
    {
        recorder.take();
        edit.applyTo(&model);
        QStringList lines = recorder.take();
        const bool isFramed = lines.size() > 2 && lines.takeFirst() == u"aboutToPublish" &&
                              lines.takeLast() == u"published";
        return isFramed ? lines : QStringList(QStringLiteral("no frame")) + lines;
    }

    ZVTreeViewModel model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::QtTest};
    Testing::ModelMirror mirror{&model};
    Testing::ModelSignalRecorder recorder{&model};
    QSortFilterProxyModel sorted;
};

constexpr int longList = 1200;
const char* const lockedWarning = "^Rows cannot be inserted or taken while";

} // namespace

class ZVTreeViewRefreshTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    // What is announced
    void nothingToDo_announcesNothing();
    void texts_areOneRangeAParentAndComeFirst();
    void rowsInOrder_areAnnouncedInRanges();
    void manyRangesOfOneList_keepTheirSignals();
    void newOrder_isInsertedLaidOutAndRemoved();
    void manyLists_shareOneLayoutChange();
    void exactModel_announcesEveryCount();
    void concatenatedTables_followLists_data();
    void concatenatedTables_followLists();
    void selectionOfEverything_doesNotGrow();
    void persistentIndexes_followThroughALayoutChange();
    void leavingRows_areKnownBeforehand();
    void leavingRow_livesUntilEverythingIsAnnounced();
    // Values
    void values_areOneRangeAParentAtTheEnd();
    void sortedProxy_staysInStepWithScatteredValues();
    void nestedRefreshes_announceOnce();
    // Slots
    void slotThatChangesRows_isRefusedAtEverySignal();
    void slotThatWritesValues_isHeardAtEverySignal();
    void slotThatRefreshes_waitsUntilTheEnd();
    void throwingSlot_isAWarningAndAReset();
    void rowThatThrows_leavesTheTreeWhole();

private:
    ZVTreeViewItem* root() const { return m_tree->root(); }

    std::optional<WatchedModel> m_tree;
};

void ZVTreeViewRefreshTest::init()
{
    m_tree.emplace();
}

void ZVTreeViewRefreshTest::cleanup()
{
    QCOMPARE(Testing::textsOf(root()), Testing::textsOf(m_tree->model));
    QCOMPARE(m_tree->mirror.difference(), QString());
    m_tree.reset();
    TestCase::cleanup();
}

void ZVTreeViewRefreshTest::nothingToDo_announcesNothing()
{
    appendRows(root(), "a b");
    m_tree->recorder.take();
    TreeEdit().applyTo(&m_tree->model);
    QCOMPARE(m_tree->recorder.take(), QStringList());
}

void ZVTreeViewRefreshTest::texts_areOneRangeAParentAndComeFirst()
{
    appendRows(root(), "a b c d e");
    appendRows(root()->child(4), "x");
    TreeEdit edit;
    for (int row : {1, 3, 2})
        edit.setText(root()->child(row), "t");
    edit.setText(root()->child(4)->child(0), "t").remove(root(), 0);
    QCOMPARE(m_tree->announced(edit),
             signalLines("dataChanged / 1:0 3:0 [0 2]; dataChanged e 0:0 0:0 [0 2]; "
                         "rowsRemoved / 0 0"));
}

void ZVTreeViewRefreshTest::rowsInOrder_areAnnouncedInRanges()
{
    appendRows(root(), "a b c d e");
    TreeEdit edit;
    edit.remove(root(), 3).remove(root(), 0).insert(root(), 1, "x").insert(root(), 2, "y");
    QCOMPARE(m_tree->announced(edit),
             signalLines("rowsRemoved / 3 3; rowsRemoved / 0 0; rowsInserted / 1 2"));
    QCOMPARE(Testing::textsOf(root()), QStringLiteral("b x y c e"));
}

void ZVTreeViewRefreshTest::manyRangesOfOneList_keepTheirSignals()
{
    appendNumbered(root(), 40);
    TreeEdit edit;
    for (int row = 0; row < 9; ++row)
        edit.remove(root(), row);
    QCOMPARE(m_tree->announced(edit), signalLines("layoutChanged; rowsRemoved / 31 39"));
}

void ZVTreeViewRefreshTest::newOrder_isInsertedLaidOutAndRemoved()
{
    appendRows(root(), "a b c");
    TreeEdit edit;
    edit.setText(root()->child(1), "B").reverse(root()).remove(root(), 2).insert(root(), 0, "d");
    QCOMPARE(m_tree->announced(edit),
             signalLines("dataChanged / 1:0 1:0 [0 2]; rowsInserted / 3 3; "
                         "layoutChanged; rowsRemoved / 3 3"));
    QCOMPARE(Testing::textsOf(root()), QStringLiteral("d c B"));
}

namespace {

/** Each of very many groups loses one row and gets another. */
TreeEdit changeOfManyGroups(ZVTreeViewItem* root)
{
    TreeEdit edit;
    for (int group = 0; group < root->childCount(); ++group)
        edit.move(root->child(group), 1, 0).remove(root->child(group), 1);
    return edit;
}

void appendManyGroups(ZVTreeViewItem* root)
{
    appendNumbered(root, 300);
    for (int group = 0; group < 300; ++group)
        appendRows(root->child(group), "x y");
}

} // namespace

void ZVTreeViewRefreshTest::manyLists_shareOneLayoutChange()
{
    appendManyGroups(root());
    TreeEdit edit = changeOfManyGroups(root());
    QCOMPARE(m_tree->announced(edit), signalLines("layoutChanged"));
    QCOMPARE(Testing::textsOf(root()->child(299)), QStringLiteral("y"));
}

void ZVTreeViewRefreshTest::exactModel_announcesEveryCount()
{
    m_tree->model.setExact(true);
    appendManyGroups(root());
    TreeEdit edit = changeOfManyGroups(root());
    QCOMPARE(m_tree->announced(edit).filter(QStringLiteral("rowsRemoved")).size(), 300);
}

void ZVTreeViewRefreshTest::concatenatedTables_followLists_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    QTest::newRow("9 scattered rows fewer") << 40 << 31;
    QTest::newRow("20 rows more") << 20 << 40;
}

void ZVTreeViewRefreshTest::concatenatedTables_followLists()
{
    QFETCH(int, before);
    QFETCH(int, after);
    appendNumbered(root(), before);
    QConcatenateTablesProxyModel tables;
    tables.addSourceModel(&m_tree->model);
    TreeEdit edit;
    for (int row = 0; row < before - after; ++row)
        edit.remove(root(), row);
    for (int row = 0; row < after - before; ++row)
        edit.insert(root(), 2 * row, "new");
    edit.applyTo(&m_tree->model);
    QCOMPARE(tables.rowCount(), after);
    for (int row = 0; row < after; ++row)
        QCOMPARE(tables.index(row, 0).data(), m_tree->model.index(row, 0).data());
}

void ZVTreeViewRefreshTest::selectionOfEverything_doesNotGrow()
{
    appendNumbered(root(), longList);
    QItemSelectionModel selection(&m_tree->model);
    selection.select({m_tree->model.index(0, 0), m_tree->model.index(longList - 1, 0)},
                     QItemSelectionModel::Select);
    TreeEdit()
        .reverse(root())
        .remove(root(), 10)
        .insert(root(), 0, "new")
        .insert(root(), 600, "new, too")
        .applyTo(&m_tree->model);
    QCOMPARE(selection.selectedRows().size(), longList - 1);
    for (int row = 0; row < m_tree->model.rowCount(); ++row)
        QCOMPARE(selection.isSelected(m_tree->model.index(row, 0)), row != 0 && row != 600);
}

void ZVTreeViewRefreshTest::persistentIndexes_followThroughALayoutChange()
{
    m_tree->model.setColumnCount(2);
    appendManyGroups(root());
    const QPersistentModelIndex gone = m_tree->model.index(0, 1, m_tree->model.index(7, 0));
    const QPersistentModelIndex kept = m_tree->model.index(1, 1, m_tree->model.index(7, 0));
    changeOfManyGroups(root()).reverse(root()).applyTo(&m_tree->model);
    QVERIFY(!gone.isValid());
    QCOMPARE(QModelIndex(kept), m_tree->model.index(0, 1, m_tree->model.index(292, 0)));
}

void ZVTreeViewRefreshTest::leavingRows_areKnownBeforehand()
{
    appendRows(root(), "a b");
    appendRows(root()->child(0), "x");
    ZVTreeViewModel& model = m_tree->model;
    const QModelIndex a = model.index(0, 0);
    const QModelIndex x = model.index(0, 0, a);
    bool isAsked = false;
    connect(&model, &ZVTreeViewModel::aboutToPublish, this, [&] {
        isAsked = true;
        QVERIFY(model.isLeaving(a) && model.isLeaving(x));
        QVERIFY(!model.isLeaving(model.index(1, 0)) && !model.isLeaving(QModelIndex()));
    });
    TreeEdit().remove(root(), 0).applyTo(&model);
    QVERIFY(isAsked);
    QVERIFY(!model.isLeaving(model.index(0, 0)));
}

void ZVTreeViewRefreshTest::leavingRow_livesUntilEverythingIsAnnounced()
{
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
    bool isAlive = false;
    bool wasAlive = false;
    root()->appendChildren({new MortalRow(isAlive)});
    connect(&m_tree->model, &QAbstractItemModel::rowsRemoved, this, [&] { wasAlive = isAlive; });
    TreeEdit().remove(root(), 0).applyTo(&m_tree->model);
    QVERIFY(wasAlive);
    QVERIFY(!isAlive);
}

void ZVTreeViewRefreshTest::values_areOneRangeAParentAtTheEnd()
{
    m_tree->model.setColumnCount(3);
    appendRows(root(), "a b c");
    appendRows(root()->child(1), "x");
    m_tree->recorder.take();
    {
        const ZVTreeViewRefresh refresh(&m_tree->model);
        root()->child(2)->setData(1, Qt::ToolTipRole, 1);
        root()->child(0)->setText("A");
        root()->child(1)->child(0)->setFlags(Qt::ItemIsEnabled);
        root()->child(1)->setData(2, Qt::ToolTipRole, 1);
        QCOMPARE(m_tree->recorder.lines(), QStringList());
    }
    QCOMPARE(m_tree->recorder.take(),
             signalLines("aboutToPublish; dataChanged / 0:0 2:2 [3 0 2]; dataChanged b 0:0 0:0 []; "
                         "published"));
}

void ZVTreeViewRefreshTest::sortedProxy_staysInStepWithScatteredValues()
{
    appendNumbered(root(), 100);
    QCOMPARE(m_tree->sorted.rowCount(), 100);
    {
        const ZVTreeViewRefresh refresh(&m_tree->model);
        root()->child(3)->setText("zz");
        root()->child(60)->setText("a");
        root()->child(97)->setText("m");
    }
    for (int row = 1; row < 100; ++row) {
        QVERIFY(m_tree->sorted.index(row - 1, 0).data().toString() <=
                m_tree->sorted.index(row, 0).data().toString());
    }
}

void ZVTreeViewRefreshTest::nestedRefreshes_announceOnce()
{
    appendRows(root(), "a b");
    m_tree->recorder.take();
    {
        const ZVTreeViewRefresh outer(&m_tree->model);
        {
            const ZVTreeViewRefresh inner(&m_tree->model);
            root()->child(0)->setText("A");
        }
        QVERIFY(ZVTreeViewRefresh::isRunning(&m_tree->model));
        root()->child(1)->setText("B");
        expectWarning(QStringLiteral("^A plan for a tree model is ignored"));
        TreeEdit().remove(root(), 0).applyTo(&m_tree->model);
    }
    QVERIFY(!ZVTreeViewRefresh::isRunning(&m_tree->model));
    QCOMPARE(m_tree->recorder.take(),
             signalLines("aboutToPublish; dataChanged / 0:0 1:0 [0 2]; published"));
}

namespace {

/** Calls the task at every signal of a refresh but the last one. */
void connectToAll(ZVTreeViewModel& model, QObject* context, const std::function<void()>& task)
{
    using Model = QAbstractItemModel;
    QObject::connect(&model, &ZVTreeViewModel::aboutToPublish, context, task);
    QObject::connect(&model, &Model::dataChanged, context, task);
    QObject::connect(&model, &Model::rowsAboutToBeInserted, context, task);
    QObject::connect(&model, &Model::rowsInserted, context, task);
    QObject::connect(&model, &Model::layoutAboutToBeChanged, context, task);
    QObject::connect(&model, &Model::layoutChanged, context, task);
    QObject::connect(&model, &Model::rowsAboutToBeRemoved, context, task);
    QObject::connect(&model, &Model::rowsRemoved, context, task);
}

/** A change of all kinds: nine signals of the above. */
TreeEdit mixedChange(ZVTreeViewItem* root)
{
    TreeEdit edit;
    edit.setText(root->child(0), "A").reverse(root).remove(root, 1).insert(root, 0, "new");
    return edit;
}

} // namespace

void ZVTreeViewRefreshTest::slotThatChangesRows_isRefusedAtEverySignal()
{
    appendRows(root(), "a b c");
    ZVTreeViewItem other;
    int calls = 0;
    connectToAll(m_tree->model, this, [&] {
        ++calls;
        for (int warning = 0; warning < 4; ++warning)
            expectWarning(QString::fromLatin1(lockedWarning));
        QVERIFY(!root()->insertChild(0, &other));
        QVERIFY(!root()->appendChildren({&other}));
        QVERIFY(!root()->takeChild(0));
        QVERIFY(!root()->deleteChild(0));
    });
    mixedChange(root()).applyTo(&m_tree->model);
    QCOMPARE(calls, 8);
    QCOMPARE(Testing::textsOf(root()), QStringLiteral("new c A"));
}

void ZVTreeViewRefreshTest::slotThatWritesValues_isHeardAtEverySignal()
{
    appendRows(root(), "a b c");
    int calls = 0;
    connectToAll(m_tree->model, this, [&] {
        // Not for ever: the announcement of the last one is a signal, too.
        if (++calls > 9)
            return;
        for (int row = 0; row < root()->childCount(); ++row)
            root()->child(row)->setText(std::to_string(10 * calls + row));
    });
    mixedChange(root()).applyTo(&m_tree->model);
    QVERIFY(calls >= 9);
    QCOMPARE(m_tree->mirror.difference(), QString());
}

void ZVTreeViewRefreshTest::slotThatRefreshes_waitsUntilTheEnd()
{
    appendRows(root(), "a b");
    bool isDone = false;
    connect(&m_tree->model, &QAbstractItemModel::rowsInserted, this, [&] {
        ZVTreeViewRefresh::whenDone(&m_tree->model, [&] {
            isDone = true;
            QVERIFY(!ZVTreeViewRefresh::isRunning(&m_tree->model));
        });
        QVERIFY(!isDone);
    });
    TreeEdit().insert(root(), 0, "new").applyTo(&m_tree->model);
    QVERIFY(isDone);
    connect(&m_tree->model, &QAbstractItemModel::rowsRemoved, this, [&] {
        ZVTreeViewRefresh::whenDone(&m_tree->model, [] { throw std::runtime_error("no paper"); });
    });
    expectWarning(QStringLiteral("no paper$"));
    TreeEdit().remove(root(), 0).applyTo(&m_tree->model);
}

void ZVTreeViewRefreshTest::throwingSlot_isAWarningAndAReset()
{
    for (int throwing = 1; throwing <= 8; ++throwing) {
        m_tree.emplace();
        appendRows(root(), "a b c");
        int calls = 0;
        QObject context;
        connectToAll(m_tree->model, &context, [&] {
            if (++calls == throwing)
                throw std::runtime_error("out of paper");
        });
        expectWarning(QStringLiteral("^A slot threw while .*: out of paper$"));
        mixedChange(root()).applyTo(&m_tree->model);
        QCOMPARE(calls, throwing);
        QStringList lines = m_tree->recorder.take();
        QCOMPARE(lines.takeLast(), QStringLiteral("published"));
        QCOMPARE(lines.takeLast(), QStringLiteral("modelReset"));
        QCOMPARE(Testing::textsOf(root()), QStringLiteral("new c A"));
        QCOMPARE(m_tree->mirror.difference(), QString());
        root()->child(0)->setText("afterwards");
        QCOMPARE(m_tree->recorder.take(), signalLines("dataChanged / 0:0 0:0 [0 2]"));
    }
}

void ZVTreeViewRefreshTest::rowThatThrows_leavesTheTreeWhole()
{
    class ThrowingRow : public ZVTreeViewItem
    {
    public:
        bool setData(int, int, const QVariant&) override { throw std::runtime_error("no text"); }
    };
    appendRows(root(), "a b");
    root()->appendChildren({new ThrowingRow});
    appendRows(root()->child(2), "x");
    TreeEdit edit;
    edit.setText(root()->child(0), "A").setText(root()->child(2), "C").reverse(root());
    edit.insert(root(), 0, "new");
    QVERIFY_EXCEPTION_THROWN(edit.applyTo(&m_tree->model), std::runtime_error);
    QCOMPARE(Testing::textsOf(root()), QStringLiteral("A b (x)"));
    TreeEdit().remove(root(), 2).applyTo(&m_tree->model);
}

ZORVANE_TEST(ZVTreeViewRefreshTest)
#include "ZVTreeViewRefreshTest.moc"
