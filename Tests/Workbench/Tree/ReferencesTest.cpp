#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Tree/ShownTree.h"
#include "Utilities/ReferenceIndicatorDelegate.h"
#include "Workbench/Tree/DesignTree.h"

namespace Zorvane::Workbench {

using Testing::objectId;

namespace {

using Delegate = ReferenceIndicatorDelegate;

std::vector<IDCombiner> ids(std::initializer_list<int> numbers)
{
    std::vector<IDCombiner> result;
    for (const int number : numbers)
        result.push_back(objectId(number));
    return result;
}

/** The small design with a part that takes its material, too. */
QJsonObject designWithPartMaterial()
{
    QJsonObject design = Testing::smallDesign();
    QJsonObject part = design[QLatin1String("parts")].toArray()[0].toObject();
    part.insert(QStringLiteral("material"), Testing::uuidText(30));
    design[QLatin1String("parts")] = QJsonArray{part};
    return design;
}

} // namespace

class ReferencesTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void filesKnowWhoNeedsThem();
    void materialsAndTheirFilesKnowWhoNeedsThem();
    void linksLeadBothWays();
    void theSameFileTwiceIsOneReference();
    void deadLinksAreNoReferences();

    void theColumnTellsNumberAndColours();
    void theColumnIsReadAloud();
    void theToolTipListsTheNames();
    void rowsThatNothingCanReferToStayEmpty();
    void theColumnFollowsChanges();
    void aReferenceGoneLeavesNoPatch();
    void theColumnIsDrawnByTheDelegate();

private:
    QVariant usedBy(int number, int role) const
    {
        return m_shown->tree.indexOf(objectId(number))
            .siblingAtColumn(TreeColumn::UsedBy)
            .data(role);
    }
    void rewrite(const QJsonObject& design);

    std::unique_ptr<Testing::ShownTree> m_shown;
};

void ReferencesTest::init()
{
    m_shown = std::make_unique<Testing::ShownTree>();
}

void ReferencesTest::cleanup()
{
    m_shown.reset();
    TestCase::cleanup();
}

void ReferencesTest::rewrite(const QJsonObject& design)
{
    Testing::replaceFile(m_shown->designFile(), Testing::toText(design));
    m_shown->session.reload();
    m_shown->tree.refreshNow();
}

void ReferencesTest::filesKnowWhoNeedsThem()
{
    // Blank, part and die share one mesh.
    QVERIFY(m_shown->tree.catalog().find(objectId(40))->referrers == ids({2, 10, 21}));
}

void ReferencesTest::materialsAndTheirFilesKnowWhoNeedsThem()
{
    QVERIFY(m_shown->tree.catalog().find(objectId(30))->referrers == ids({2}));
    QVERIFY(m_shown->tree.catalog().find(objectId(41))->referrers == ids({2}));
    rewrite(designWithPartMaterial());
    QVERIFY(m_shown->tree.catalog().find(objectId(30))->referrers == ids({2, 10}));
    QVERIFY(m_shown->tree.catalog().find(objectId(41))->referrers == ids({2, 10}));
}

void ReferencesTest::linksLeadBothWays()
{
    QVERIFY(m_shown->tree.catalog().find(objectId(2))->links == ids({40, 30, 41}));
    QVERIFY(m_shown->tree.catalog().find(objectId(30))->links == ids({2, 41}));
    QVERIFY(m_shown->tree.catalog().find(objectId(41))->links == ids({2, 30}));
    QVERIFY(m_shown->tree.catalog().find(objectId(20))->links.empty());
}

void ReferencesTest::theSameFileTwiceIsOneReference()
{
    QJsonObject design = Testing::smallDesign();
    QJsonObject steel = design[QLatin1String("materials")].toArray()[0].toObject();
    steel[QLatin1String("file")] = Testing::uuidText(40);
    design[QLatin1String("materials")] = QJsonArray{steel};
    rewrite(design);
    QVERIFY(m_shown->tree.catalog().find(objectId(40))->referrers == ids({2, 10, 21}));
}

void ReferencesTest::deadLinksAreNoReferences()
{
    QJsonObject design = designWithPartMaterial();
    design.remove(QStringLiteral("materials"));
    rewrite(design);
    QVERIFY(m_shown->tree.catalog().find(objectId(10))->links == ids({40}));
    QVERIFY(m_shown->tree.catalog().find(objectId(41))->referrers.empty());
}

void ReferencesTest::theColumnTellsNumberAndColours()
{
    QCOMPARE(usedBy(40, Delegate::NumberOfReferencesRole).toInt(), 3);
    const int roles[] = {Delegate::FirstColorRole, Delegate::SecondColorRole,
                         Delegate::ThirdColorRole};
    const int objects[] = {2, 10, 21};
    for (int place = 0; place < 3; ++place)
        QCOMPARE(
            usedBy(40, roles[place]).toInt(),
            PartColours::colorId(m_shown->tree.catalog().find(objectId(objects[place]))->colour));
    QCOMPARE(usedBy(30, Delegate::NumberOfReferencesRole).toInt(), 1);
    QVERIFY(!usedBy(30, Delegate::SecondColorRole).isValid());
}

void ReferencesTest::theColumnIsReadAloud()
{
    QCOMPARE(usedBy(40, Qt::AccessibleTextRole).toString(), Delegate::textForReferences(3));
    QCOMPARE(usedBy(30, Qt::AccessibleTextRole).toString(), Delegate::textForReferences(1));
}

void ReferencesTest::theToolTipListsTheNames()
{
    QCOMPARE(usedBy(40, Qt::ToolTipRole).toString(), QStringLiteral("Blank\nCup\nDie"));
    m_shown->session.rename(objectId(10), QStringLiteral("Bowl"));
    m_shown->tree.refreshNow();
    QCOMPARE(usedBy(40, Qt::ToolTipRole).toString(), QStringLiteral("Blank\nBowl\nDie"));
}

void ReferencesTest::rowsThatNothingCanReferToStayEmpty()
{
    for (const int number : {1, 2, 10, 20, 21}) {
        QVERIFY(!usedBy(number, Delegate::NumberOfReferencesRole).isValid());
        QVERIFY(!usedBy(number, Qt::AccessibleTextRole).isValid());
        QVERIFY(!usedBy(number, Qt::ToolTipRole).isValid());
    }
}

void ReferencesTest::theColumnFollowsChanges()
{
    Testing::replaceFile(m_shown->designFile(), Testing::toText(designWithPartMaterial()));
    QTRY_COMPARE(usedBy(30, Delegate::NumberOfReferencesRole).toInt(), 2);
    QCOMPARE(usedBy(41, Delegate::NumberOfReferencesRole).toInt(), 2);
    QVERIFY(usedBy(30, Delegate::SecondColorRole).isValid());
}

void ReferencesTest::aReferenceGoneLeavesNoPatch()
{
    QJsonObject design = Testing::smallDesign();
    design.remove(QStringLiteral("blank"));
    rewrite(design);
    QVERIFY(!usedBy(30, Delegate::NumberOfReferencesRole).isValid());
    QVERIFY(!usedBy(30, Delegate::FirstColorRole).isValid());
    QVERIFY(!usedBy(30, Qt::ToolTipRole).isValid());
    QCOMPARE(usedBy(30, Qt::AccessibleTextRole).toString(), Delegate::textForReferences(0));
}

void ReferencesTest::theColumnIsDrawnByTheDelegate()
{
    const QModelIndex index =
        m_shown->tree.indexOf(objectId(40)).siblingAtColumn(TreeColumn::UsedBy);
    QVERIFY(qobject_cast<Delegate*>(m_shown->view.itemDelegate(index)) != nullptr);
    m_shown->view.resize(900, 500);
    m_shown->view.show();
    const QRect cell = m_shown->view.visualRect(index);
    const QImage picture = m_shown->view.viewport()->grab(cell).toImage();
    // In the middle of the first of three parts, clear of rims.
    const QColor drawn = picture.pixelColor(picture.width() / 8, picture.height() / 2);
    const QColor wanted = m_shown->tree.catalog().find(objectId(2))->colour;
    QVERIFY2(std::abs(drawn.hslHue() - wanted.hslHue()) < 12, qPrintable(drawn.name()));
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::ReferencesTest;
ZORVANE_TEST(ReferencesTest)
#include "ReferencesTest.moc"
