#include "Workbench/Stress/StressTree.h"

#include "Tests/Workbench/Stress/StressRows.h"

#include <algorithm>
#include <iterator>

namespace Zorvane::Workbench {

namespace {

using GenericTreeViewModelHandling::ModelItem;
using GenericTreeViewModelHandling::ModelRoot;

using Items = std::vector<std::shared_ptr<ModelItem>>;

/** Ids and texts in the order shown, with the depth of each row. */
void describe(const Items& items, int depth, QStringList& lines)
{
    for (const auto& item : items) {
        lines << QStringLiteral("%1 %2 %3")
                     .arg(depth)
                     .arg(item->getId().getIdentifier().getValue())
                     .arg(QString::fromStdString(item->getName()));
        describe(item->getChildren(), depth + 1, lines);
    }
}

QStringList described(const ModelRoot& root)
{
    QStringList lines;
    describe(root.getTopLevelItems(), 0, lines);
    return lines;
}

void addIds(const Items& items, std::vector<IDCombiner>& ids)
{
    for (const auto& item : items) {
        ids.push_back(item->getId());
        addIds(item->getChildren(), ids);
    }
}

std::vector<IDCombiner> sortedIds(const ModelRoot& root)
{
    std::vector<IDCombiner> ids;
    addIds(root.getTopLevelItems(), ids);
    std::sort(ids.begin(), ids.end());
    return ids;
}

std::vector<IDCombiner> missing(const std::vector<IDCombiner>& from,
                                const std::vector<IDCombiner>& in)
{
    std::vector<IDCombiner> result;
    std::set_difference(from.begin(), from.end(), in.begin(), in.end(), std::back_inserter(result));
    return result;
}

} // namespace

class StressTreeTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasTheChosenSizeAndShape_data();
    void hasTheChosenSizeAndShape();
    void theSameSeedGivesTheSameEdits();
    void whatWasHandedOutDoesNotChange();
    void eachKindDoesWhatItSays_data();
    void eachKindDoesWhatItSays();
    void tellsWhatItRemoved();
    void growsToTwiceItsSizeAtMost();
    void neverRunsOutOfRows();
    void withoutKindsNothingIsEdited();
};

void StressTreeTest::hasTheChosenSizeAndShape_data()
{
    QTest::addColumn<StressShape>("shape");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("topLevelRows");
    QTest::newRow("flat") << StressShape::Flat << 1000 << 1000 << 1000;
    QTest::newRow("deep") << StressShape::Deep << 1000 << 1000 << 10;
    QTest::newRow("deep, odd number") << StressShape::Deep << 1237 << 1237 << 10;
    QTest::newRow("deep with too few rows for a second level") << StressShape::Deep << 7 << 7 << 7;
    QTest::newRow("nothing is one row") << StressShape::Flat << 0 << 1 << 1;
}

void StressTreeTest::hasTheChosenSizeAndShape()
{
    QFETCH(StressShape, shape);
    QFETCH(int, size);
    QFETCH(int, rows);
    QFETCH(int, topLevelRows);
    const StressTree tree(shape, size, 1);
    QCOMPARE(tree.rowCount(), rows);
    QCOMPARE(int(tree.root()->totalItemCount()), rows);
    QCOMPARE(int(tree.root()->getTopLevelItems().size()), topLevelRows);
}

void StressTreeTest::theSameSeedGivesTheSameEdits()
{
    StressTree one(StressShape::Deep, 300, 5);
    StressTree two(StressShape::Deep, 300, 5);
    StressTree other(StressShape::Deep, 300, 6);
    for (StressTree* tree : {&one, &two, &other})
        tree->edit(Testing::allStressEdits, 50);
    QCOMPARE(described(*one.root()), described(*two.root()));
    QVERIFY(described(*one.root()) != described(*other.root()));
}

void StressTreeTest::whatWasHandedOutDoesNotChange()
{
    for (const StressShape shape : {StressShape::Flat, StressShape::Deep}) {
        StressTree tree(shape, 500, 3);
        const auto before = tree.root();
        const QStringList lines = described(*before);
        tree.edit(Testing::allStressEdits, 200);
        QCOMPARE(described(*before), lines);
        QVERIFY(described(*tree.root()) != lines);
    }
}

void StressTreeTest::eachKindDoesWhatItSays_data()
{
    QTest::addColumn<StressEdit>("kind");
    QTest::addColumn<bool>("adds");
    QTest::addColumn<bool>("takesAway");
    QTest::addColumn<bool>("renames");
    QTest::newRow("insert") << StressEdit::Insert << true << false << false;
    QTest::newRow("remove") << StressEdit::Remove << false << true << false;
    QTest::newRow("move") << StressEdit::Move << false << false << false;
    QTest::newRow("rename") << StressEdit::Rename << false << false << true;
    QTest::newRow("shuffle") << StressEdit::Shuffle << false << false << false;
}

void StressTreeTest::eachKindDoesWhatItSays()
{
    QFETCH(StressEdit, kind);
    QFETCH(bool, adds);
    QFETCH(bool, takesAway);
    QFETCH(bool, renames);
    for (const StressShape shape : {StressShape::Flat, StressShape::Deep}) {
        StressTree tree(shape, 400, 11);
        const auto before = tree.root();
        tree.edit({kind}, 30);
        const auto after = tree.root();
        QCOMPARE(missing(sortedIds(*after), sortedIds(*before)).empty(), !adds);
        QCOMPARE(missing(sortedIds(*before), sortedIds(*after)).empty(), !takesAway);
        QStringList from = described(*before);
        QStringList to = described(*after);
        QVERIFY(from != to);
        from.sort();
        to.sort();
        if (!adds && !takesAway)
            QCOMPARE(from != to, renames);
    }
}

void StressTreeTest::tellsWhatItRemoved()
{
    for (const StressShape shape : {StressShape::Flat, StressShape::Deep}) {
        StressTree tree(shape, 600, 17);
        for (int step = 0; step < 20; ++step) {
            const std::vector<IDCombiner> before = sortedIds(*tree.root());
            tree.edit({StressEdit::Remove, StressEdit::Move, StressEdit::Rename}, 10);
            const std::vector<IDCombiner> after = sortedIds(*tree.root());
            QVERIFY(!tree.removed().empty());
            QVERIFY(tree.removed() == missing(before, after));
            QCOMPARE(tree.rowCount(), int(after.size()));
        }
    }
}

void StressTreeTest::growsToTwiceItsSizeAtMost()
{
    StressTree flat(StressShape::Flat, 20, 1);
    flat.edit({StressEdit::Insert}, 100);
    QCOMPARE(flat.rowCount(), 40);
    StressTree deep(StressShape::Deep, 100, 1);
    deep.edit({StressEdit::Insert}, 1000);
    QVERIFY(deep.rowCount() >= 200 && deep.rowCount() <= 210);
}

void StressTreeTest::neverRunsOutOfRows()
{
    StressTree flat(StressShape::Flat, 20, 1);
    flat.edit({StressEdit::Remove}, 100);
    QCOMPARE(flat.rowCount(), 1);
    StressTree deep(StressShape::Deep, 1000, 1);
    deep.edit({StressEdit::Remove}, 10'000);
    QVERIFY(deep.rowCount() >= 1);
    QCOMPARE(int(deep.root()->totalItemCount()), deep.rowCount());
}

void StressTreeTest::withoutKindsNothingIsEdited()
{
    StressTree tree(StressShape::Deep, 50, 1);
    const QStringList before = described(*tree.root());
    tree.edit({}, 100);
    QCOMPARE(described(*tree.root()), before);
    QVERIFY(tree.removed().empty());
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::StressTreeTest;
ZORVANE_TEST(StressTreeTest)
#include "StressTreeTest.moc"
