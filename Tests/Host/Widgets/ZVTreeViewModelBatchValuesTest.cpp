#include "Host/Widgets/ZVTreeViewModelBatch.h"

#include "Tests/Host/Widgets/BatchFixture.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QSortFilterProxyModel>

#include <optional>

using namespace Zorvane;
using namespace Zorvane::Testing;

namespace {

QStringList linesOf(const char* lines)
{
    return QString::fromLatin1(lines).split(QStringLiteral("; "));
}

} // namespace

class ZVTreeViewModelBatchValuesTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void valuesComeFirstAndInOneRangeAParent();
    void aRangeNamesTheRolesOfAllItsValues();
    void manyScatteredValuesAreOneRange();
    void valuesOfRemovedRowsAreNotAnnounced();
    void valuesOfRemovedRowsBesideOthersAreInTheirRange();
    void valuesFarApartKeepASortedProxyInStep();
    void valuesOfNewRowsAreNotAnnounced();

private:
    ZVTreeViewItem* root() const { return m_tree->root(); }
    QStringList inBatch(const std::function<void()>& changes) { return m_tree->inBatch(changes); }

    std::optional<BatchFixture> m_tree;
};

void ZVTreeViewModelBatchValuesTest::init()
{
    m_tree.emplace();
}

void ZVTreeViewModelBatchValuesTest::cleanup()
{
    if (m_tree)
        QCOMPARE(m_tree->difference(), QString());
    m_tree.reset();
    TestCase::cleanup();
}

void ZVTreeViewModelBatchValuesTest::valuesComeFirstAndInOneRangeAParent()
{
    m_tree->model.setColumnCount(2);
    appendRows(root(), "a b c d e");
    appendRows(root()->child(4), "x");
    QCOMPARE(inBatch([this] {
                 root()->deleteChild(0);
                 for (int row : {0, 2, 1})
                     root()->child(row)->setText("t");
                 root()->child(3)->child(0)->setData(1, Qt::ToolTipRole, 1);
             }),
             linesOf("dataChanged / 1:0 3:0 [0 2]; dataChanged e 0:1 0:1 [3]; rowsRemoved / 0 0"));
}

void ZVTreeViewModelBatchValuesTest::aRangeNamesTheRolesOfAllItsValues()
{
    appendRows(root(), "a b");
    QCOMPARE(inBatch([this] {
                 root()->child(0)->setData(0, Qt::ToolTipRole, 1);
                 root()->child(1)->setText("B");
                 root()->child(1)->setData(0, Qt::ToolTipRole, 1);
             }),
             linesOf("dataChanged / 0:0 1:0 [3 0 2]"));
}

void ZVTreeViewModelBatchValuesTest::manyScatteredValuesAreOneRange()
{
    appendNumbered(root(), 100);
    QCOMPARE(inBatch([this] {
                 for (int row = 1; row < 100; row += 3)
                     root()->child(row)->setText("t");
             }),
             linesOf("dataChanged / 1:0 97:0 [0 2]"));
}

void ZVTreeViewModelBatchValuesTest::valuesOfRemovedRowsAreNotAnnounced()
{
    appendRows(root(), "a b c d");
    appendRows(root()->child(0), "x");
    QCOMPARE(inBatch([this] {
                 root()->child(0)->child(0)->setText("X");
                 for (int row : {0, 1})
                     root()->child(row)->setText("t");
                 root()->deleteChild(1);
                 root()->deleteChild(0);
             }),
             linesOf("rowsRemoved / 0 1"));
}

void ZVTreeViewModelBatchValuesTest::valuesOfRemovedRowsBesideOthersAreInTheirRange()
{
    appendRows(root(), "a b c");
    QSortFilterProxyModel sorted;
    sorted.setSourceModel(&m_tree->model);
    sorted.sort(0);
    QCOMPARE(inBatch([this] {
                 root()->child(0)->setText("x");
                 root()->child(1)->setText("d");
                 root()->deleteChild(0);
             }),
             linesOf("dataChanged / 0:0 1:0 [0 2]; rowsRemoved / 0 0"));
    QCOMPARE(sorted.index(0, 0).data().toString(), QStringLiteral("c"));
    QCOMPARE(sorted.index(1, 0).data().toString(), QStringLiteral("d"));
}

void ZVTreeViewModelBatchValuesTest::valuesFarApartKeepASortedProxyInStep()
{
    appendNumbered(root(), 100);
    QSortFilterProxyModel sorted;
    sorted.setSourceModel(&m_tree->model);
    sorted.sort(0);
    QCOMPARE(sorted.rowCount(), 100);
    inBatch([this] {
        root()->child(3)->setText("zz");
        root()->child(60)->setText("a");
        root()->child(97)->setText("m");
    });
    for (int row = 1; row < 100; ++row) {
        QVERIFY(sorted.index(row - 1, 0).data().toString() <=
                sorted.index(row, 0).data().toString());
    }
}

void ZVTreeViewModelBatchValuesTest::valuesOfNewRowsAreNotAnnounced()
{
    QCOMPARE(inBatch([this] {
                 appendRows(root(), "a");
                 root()->child(0)->setText("A");
                 appendRows(root()->child(0), "b");
                 root()->child(0)->child(0)->setText("B");
             }),
             linesOf("rowsInserted / 0 0"));
    QCOMPARE(textsOf(m_tree->model), QStringLiteral("A(B)"));
}

ZORVANE_TEST(ZVTreeViewModelBatchValuesTest)
#include "ZVTreeViewModelBatchValuesTest.moc"
