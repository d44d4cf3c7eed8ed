#include "Workbench/Stress/StressWindow.h"

#include "Tests/Workbench/Stress/StressRows.h"
#include "Workbench/Stress/TimeChart.h"

#include <QtGui/QAccessible>
#include <QtTest/QAbstractItemModelTester>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTreeView>

#include <algorithm>
#include <iterator>
#include <set>

namespace Zorvane::Workbench {

namespace {

using GenericTreeViewModelHandling::ModelItemToZVTreeModelSyncronizer;
using Edits = std::vector<StressEdit>;

constexpr int s_steps = 200;

using Id = std::uint64_t;

Id idOf(const QModelIndex& index)
{
    return index.data(ModelItemToZVTreeModelSyncronizer::DefaultIdRole)
        .value<IDCombiner>()
        .getIdentifier()
        .getValue();
}

/** What a person sees of every row: looked up through the model's data alone. */
struct Sight
{
    std::set<Id> all;
    std::set<Id> groups;
    std::set<Id> selected;
    std::set<Id> expanded;
    Id current = 0;

    explicit Sight(const QTreeView& view)
        : current(idOf(view.currentIndex()))
    {
        add(view, {});
    }

    void add(const QTreeView& view, const QModelIndex& parent)
    {
        for (int row = 0; row < view.model()->rowCount(parent); ++row) {
            const QModelIndex index = view.model()->index(row, 0, parent);
            const Id id = idOf(index);
            all.insert(id);
            if (view.selectionModel()->isSelected(index))
                selected.insert(id);
            // A row that has lost its children shows nothing of having been expanded.
            if (view.model()->hasChildren(index))
                groups.insert(id);
            if (view.model()->hasChildren(index) && view.isExpanded(index))
                expanded.insert(id);
            add(view, index);
        }
    }
};

std::set<Id> stillIn(const std::set<Id>& all, const std::set<Id>& ids)
{
    std::set<Id> result;
    std::set_intersection(all.begin(), all.end(), ids.begin(), ids.end(),
                          std::inserter(result, result.end()));
    return result;
}

bool includes(const std::set<Id>& all, const std::set<Id>& ids)
{
    return std::includes(all.begin(), all.end(), ids.begin(), ids.end());
}

QAbstractButton* buttonOf(const QWidget& window, const QString& text)
{
    for (auto* button : window.findChildren<QAbstractButton*>())
        if (button->text().remove(QLatin1Char('&')) == text)
            return button;
    return nullptr;
}

} // namespace

class StressWindowTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void placesAreKept_data();
    void placesAreKept();
    void theFirstRowInSightStays();
    void aFlatTreeChangesByFewAnnouncements_data();
    void aFlatTreeChangesByFewAnnouncements();
    void renamingAnnouncesValuesOnly();
    void rowsShowTheTree();
    void lostPlacesAreSeen();
    void theClockStepsUntilStopped();
    void choosingATreeFillsTheView();
    void closingStopsAndDeletes();
    void escapeCloses();
    void everyControlHasANameAndIsReachedByTab();
};

void StressWindowTest::placesAreKept_data()
{
    QTest::addColumn<StressShape>("shape");
    QTest::addColumn<Edits>("edits");
    for (const StressShape shape : {StressShape::Flat, StressShape::Deep}) {
        const char* name = shape == StressShape::Flat ? "flat" : "deep";
        const Edits fewer{StressEdit::Insert, StressEdit::Remove};
        QTest::addRow("%s, all edits", name) << shape << Testing::allStressEdits;
        QTest::addRow("%s, rows come and go", name) << shape << fewer;
        QTest::addRow("%s, rows change places", name) << shape << Edits{StressEdit::Move};
    }
}

void StressWindowTest::placesAreKept()
{
    QFETCH(StressShape, shape);
    QFETCH(Edits, edits);
    StressWindow window;
    // Few enough rows for the model tester, which looks at all of them again and again.
    window.fill(shape, 120);
    window.show();
    const QAbstractItemModelTester tester(window.view().model(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    window.setEdits(edits, 8);
    Sight before(window.view());
    QVERIFY(before.selected.size() >= 10 && before.selected.size() < 100);
    QVERIFY(before.expanded == before.groups);
    for (int step = 0; step < s_steps; ++step) {
        window.step();
        const Sight now(window.view());
        QVERIFY(includes(now.selected, stillIn(now.all, before.selected)));
        QVERIFY(includes(now.expanded, stillIn(now.groups, before.expanded)));
        QVERIFY(now.all.count(now.current) == 1);
        if (now.all.count(before.current) == 1)
            QCOMPARE(now.current, before.current);
        before = now;
    }
    QCOMPARE(window.totals().steps, s_steps);
    QCOMPARE(window.totals().lost, 0);
}

void StressWindowTest::theFirstRowInSightStays()
{
    StressWindow window;
    window.fill(StressShape::Flat, 1000);
    window.show();
    window.setEdits({StressEdit::Insert, StressEdit::Move, StressEdit::Rename}, 20);
    for (int step = 0; step < 50; ++step) {
        const Id first = idOf(window.view().indexAt({0, 0}));
        QVERIFY(first != 0);
        window.step();
        const QModelIndex now = window.view().indexAt({0, 0});
        // A row that went to the end cannot stand at the top.
        if (now.row() < window.run().tree()->rowCount() - 100)
            QCOMPARE(idOf(now), first);
    }
}

void StressWindowTest::aFlatTreeChangesByFewAnnouncements_data()
{
    QTest::addColumn<Edits>("edits");
    QTest::addColumn<int>("editsPerStep");
    QTest::newRow("rows come") << Edits{StressEdit::Insert} << 50;
    QTest::newRow("rows go") << Edits{StressEdit::Remove} << 4;
    QTest::newRow("rows move") << Edits{StressEdit::Move} << 50;
    QTest::newRow("shuffled") << Edits{StressEdit::Shuffle} << 1;
    QTest::newRow("everything") << Testing::allStressEdits << 50;
    QTest::newRow("everything, little of it") << Testing::allStressEdits << 3;
}

void StressWindowTest::aFlatTreeChangesByFewAnnouncements()
{
    QFETCH(Edits, edits);
    QFETCH(int, editsPerStep);
    StressWindow window;
    window.fill(StressShape::Flat, 1000);
    window.setEdits(edits, editsPerStep);
    for (int step = 0; step < s_steps; ++step) {
        window.step();
        QVERIFY2(window.lastFacts().structural <= 4,
                 qPrintable(QString::number(window.lastFacts().structural)));
    }
    QVERIFY(window.totals().mostStructural >= 1);
}

void StressWindowTest::renamingAnnouncesValuesOnly()
{
    StressWindow window;
    window.setEdits({StressEdit::Rename}, 5);
    window.step();
    QCOMPARE(window.lastFacts().structural, 0);
    QVERIFY(window.lastFacts().values >= 1);
    window.setEdits({}, 5);
    window.step();
    QCOMPARE(window.lastFacts().values, 0);
    QCOMPARE(window.totals().steps, 2);
}

void StressWindowTest::rowsShowTheTree()
{
    StressWindow window;
    for (const StressShape shape : {StressShape::Flat, StressShape::Deep}) {
        window.fill(shape, 1000);
        window.setEdits(Testing::allStressEdits, 100);
        for (int step = 0; step < 20; ++step)
            window.step();
        // Rows that have moved are labelled anew when they are next found in place.
        window.setEdits({}, 1);
        window.step();
        const auto root = window.run().tree()->root();
        QCOMPARE(window.view().model()->rowCount(), int(root->getTopLevelItems().size()));
        int row = 0;
        for (const auto& item : root->getTopLevelItems()) {
            const QModelIndex index = window.view().model()->index(row++, 0);
            QCOMPARE(index.data().toString(), QString::fromStdString(item->getName()));
            QCOMPARE(window.view().model()->rowCount(index), int(item->getChildren().size()));
        }
        QCOMPARE(int(Sight(window.view()).all.size()), window.run().tree()->rowCount());
    }
}

void StressWindowTest::lostPlacesAreSeen()
{
    StressWindow window;
    window.fill(StressShape::Deep, 1000);
    QTreeView& view = window.view();
    // A view that forgets: what a refresh must not do is done behind the window's back.
    connect(view.model(), &QAbstractItemModel::dataChanged, &view, [&view] {
        view.collapse(view.model()->index(0, 0));
        view.selectionModel()->clear();
    });
    window.setEdits({StressEdit::Rename}, 1);
    window.step();
    QVERIFY(window.lastKept().selection.expected > 0);
    QCOMPARE(window.lastKept().selection.kept, 0);
    QCOMPARE(window.lastKept().expansion.kept, window.lastKept().expansion.expected - 1);
    QVERIFY(!window.lastKept().current);
    QCOMPARE(window.totals().lost, window.lastKept().selection.expected + 2);
}

void StressWindowTest::theClockStepsUntilStopped()
{
    StressWindow window;
    window.show();
    QAbstractButton* start = buttonOf(window, QStringLiteral("Start"));
    QVERIFY(start != nullptr);
    start->click();
    QVERIFY(window.isRunning());
    QCOMPARE(start->text().remove(QLatin1Char('&')), QStringLiteral("Stop"));
    QTRY_VERIFY(window.totals().steps >= 3);
    start->click();
    QVERIFY(!window.isRunning());
    const int steps = window.totals().steps;
    QCoreApplication::processEvents();
    QCOMPARE(window.totals().steps, steps);
    buttonOf(window, QStringLiteral("One Refresh"))->click();
    QCOMPARE(window.totals().steps, steps + 1);
}

void StressWindowTest::choosingATreeFillsTheView()
{
    StressWindow window;
    window.setEdits(Testing::allStressEdits, 10);
    window.step();
    const QList<QComboBox*> choices = window.findChildren<QComboBox*>();
    QCOMPARE(choices.size(), 2);
    choices[0]->setFocus();
    for (QComboBox* choice : choices)
        QTest::keyClick(choice, Qt::Key_Home);
    QTest::keyClick(choices[0], Qt::Key_Down);
    QCOMPARE(window.view().model()->rowCount(), 10'000);
    QCOMPARE(window.totals().steps, 0);
    QVERIFY(window.findChild<TimeChart*>()->isEmpty());
    QVERIFY(window.view().currentIndex().isValid());
}

void StressWindowTest::closingStopsAndDeletes()
{
    const QPointer<StressWindow> window = new StressWindow;
    window->show();
    window->setRunning(true);
    window->close();
    QTRY_VERIFY(!window);
}

void StressWindowTest::escapeCloses()
{
    const QPointer<StressWindow> window = new StressWindow;
    window->show();
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window, Zorvane::Testing::patience));
    window->view().setFocus();
    // Leaves the name first that is being edited.
    window->view().edit(window->view().currentIndex());
    QTRY_VERIFY(qobject_cast<QLineEdit*>(QApplication::focusWidget()));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QTRY_VERIFY(!qobject_cast<QLineEdit*>(QApplication::focusWidget()));
    QVERIFY(window->isVisible());
    QTest::keyClick(&window->view(), Qt::Key_Escape);
    QTRY_VERIFY(!window);
}

void StressWindowTest::everyControlHasANameAndIsReachedByTab()
{
    StressWindow window;
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window, Zorvane::Testing::patience));
    window.view().setFocus();
    std::set<QWidget*> reached;
    while (reached.insert(QApplication::focusWidget()).second) {
        QWidget* now = QApplication::focusWidget();
        QVERIFY2(!QAccessible::queryAccessibleInterface(now)->text(QAccessible::Name).isEmpty(),
                 now->metaObject()->className());
        QTest::keyClick(now, Qt::Key_Tab);
    }
    for (QWidget* control : window.findChildren<QWidget*>()) {
        if (qobject_cast<QAbstractButton*>(control) || qobject_cast<QComboBox*>(control) ||
            qobject_cast<QAbstractSpinBox*>(control))
            QVERIFY2(reached.count(control) == 1, control->metaObject()->className());
    }
    QVERIFY(!window.findChild<TimeChart*>()->accessibleName().isEmpty());
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::StressWindowTest;
ZORVANE_TEST(StressWindowTest)
#include "StressWindowTest.moc"
