#include "Utilities/ReferenceIndicatorDelegate.h"

#include "Host/Widgets/ZVGuiTools.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Utilities/ReferenceFixtures.h"

#include <QtGui/QAccessible>
#include <QtGui/QHelpEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QToolTip>
#include <QtWidgets/QTreeView>

#include <functional>

using namespace Zorvane;
using namespace Zorvane::Testing;
using Delegate = ReferenceIndicatorDelegate;

namespace {

/** Lets the test see what the delegate makes of an option. */
class OpenDelegate : public ReferenceIndicatorDelegate
{
public:
    using ReferenceIndicatorDelegate::initStyleOption;
    using ReferenceIndicatorDelegate::ReferenceIndicatorDelegate;
};

/** One cell, drawn by somebody on white. */
QImage cellImage(const std::function<void(QPainter*, const QStyleOptionViewItem&)>& draw)
{
    QImage image = blankImage(s_cell, 1.0, Qt::white);
    QPainter painter(&image);
    draw(&painter, optionFor({}, lightPalette()));
    return image;
}

QImage cellOf(const QModelIndex& index, QStyle::State without = QStyle::State_None)
{
    const Delegate delegate(nullptr);
    return cellImage([&](QPainter* painter, QStyleOptionViewItem option) {
        option.state &= ~without;
        delegate.paint(painter, option, index);
    });
}

QImage plainCell()
{
    return blankImage(s_cell, 1.0, Qt::white);
}

QRect patchOf(const QStyleOptionViewItem& option)
{
    return option.rect.adjusted(1, 2, -2, -3);
}

/** What the user reads who points at the cell; empty if the delegate has nothing to say. */
QString toolTipOf(References& model)
{
    QTreeView view;
    view.setModel(&model);
    Delegate delegate(nullptr);
    view.show();
    QHelpEvent event(QEvent::ToolTip, {5, 5}, view.viewport()->mapToGlobal({5, 5}));
    const bool isShown =
        delegate.helpEvent(&event, &view, optionFor({}, lightPalette()), model.cell());
    return isShown ? QToolTip::text() : QString();
}

} // namespace

class ReferenceIndicatorDelegateTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void rolesAreTheAgreedNumbers();
    void drawsNothingWithoutReferences_data();
    void drawsNothingWithoutReferences();
    void drawsNothingWithoutAllColors_data();
    void drawsNothingWithoutAllColors();
    void drawsOneColor();
    void drawsTwoColors();
    void drawsThreeColors();
    void drawsPointsForMore_data();
    void drawsPointsForMore();
    void drawsOverTheBaseCell();
    void greysADisabledItem_data();
    void greysADisabledItem();
    void followsTheApplicationsStyle_data();
    void followsTheApplicationsStyle();
    void leavesThePainterAsItWas_data();
    void leavesThePainterAsItWas();
    void showsNoFocus();
    void opensNoEditor();
    void namesTheReferences_data();
    void namesTheReferences();
    void isReadToThoseWhoCannotSeeIt();
    void showsTheCountAsAToolTip();
    void leavesTheModelsToolTipAlone();
};

void ReferenceIndicatorDelegateTest::initTestCase()
{
    TestCase::initTestCase();
    QApplication::setStyle(QStringLiteral("fusion"));
    fillColors();
}

void ReferenceIndicatorDelegateTest::cleanup()
{
    ZVGuiTools::setFlatStyle(false);
    QToolTip::hideText();
    TestCase::cleanup();
}

void ReferenceIndicatorDelegateTest::rolesAreTheAgreedNumbers()
{
    QCOMPARE(int(Delegate::NumberOfReferencesRole), 457);
    QCOMPARE(int(Delegate::FirstColorRole), 458);
    QCOMPARE(int(Delegate::SecondColorRole), 459);
    QCOMPARE(int(Delegate::ThirdColorRole), 460);
}

void ReferenceIndicatorDelegateTest::drawsNothingWithoutReferences_data()
{
    QTest::addColumn<QVariant>("count");
    QTest::newRow("no count") << QVariant();
    QTest::newRow("a null count") << QVariant(QVariant::Int);
    QTest::newRow("zero") << QVariant(0);
    QTest::newRow("negative") << QVariant(-3);
    QTest::newRow("no number") << QVariant(QStringLiteral("many"));
}

void ReferenceIndicatorDelegateTest::drawsNothingWithoutReferences()
{
    QFETCH(QVariant, count);
    const References model(count, {Steel, Brass, Green});
    QCOMPARE(cellOf(model.cell()), plainCell());
}

void ReferenceIndicatorDelegateTest::drawsNothingWithoutAllColors_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QVector<QVariant>>("colors");
    using Colors = QVector<QVariant>;
    const QVariant null(QVariant::Int);
    QTest::newRow("one without") << 1 << Colors{};
    QTest::newRow("one with a null colour") << 1 << Colors{null};
    QTest::newRow("two without the second") << 2 << Colors{Steel};
    QTest::newRow("two without the first") << 2 << Colors{QVariant(), Brass};
    QTest::newRow("three without the third") << 3 << Colors{Steel, Brass};
    QTest::newRow("three with a null second") << 3 << Colors{Steel, null, Green};
    QTest::newRow("four without the second") << 4 << Colors{Steel, QVariant(), Green};
}

void ReferenceIndicatorDelegateTest::drawsNothingWithoutAllColors()
{
    QFETCH(int, count);
    QFETCH(QVector<QVariant>, colors);
    const References model(count, colors);
    QCOMPARE(cellOf(model.cell()), plainCell());
}

void ReferenceIndicatorDelegateTest::drawsOneColor()
{
    const References model(1, {Steel});
    QCOMPARE(cellOf(model.cell()), cellImage([](auto* painter, const auto& option) {
                 ZVGuiTools::drawBeautifiedColorPatch(painter, patchOf(option), colorOf(Steel),
                                                      false, 255);
             }));
}

void ReferenceIndicatorDelegateTest::drawsTwoColors()
{
    const References model(2, {Steel, Brass});
    QCOMPARE(cellOf(model.cell()), cellImage([](auto* painter, const auto& option) {
                 ZVGuiTools::drawBeautifiedTwoColorPatchDiagonal(
                     painter, patchOf(option), colorOf(Steel), colorOf(Brass), 0, false);
             }));
}

void ReferenceIndicatorDelegateTest::drawsThreeColors()
{
    const References model(3, {Steel, Brass, Green});
    QCOMPARE(cellOf(model.cell()), cellImage([](auto* painter, const auto& option) {
                 ZVGuiTools::drawBeautifiedThreeColorPatchDiagonal(painter, patchOf(option),
                                                                   colorOf(Steel), colorOf(Brass),
                                                                   colorOf(Green), false);
             }));
}

void ReferenceIndicatorDelegateTest::drawsPointsForMore_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QVector<QVariant>>("colors");
    QTest::newRow("four") << 4 << QVector<QVariant>{Steel, Brass};
    QTest::newRow("seven, third colour not looked at")
        << 7 << QVector<QVariant>{Steel, Brass, Green};
    QTest::newRow("very many") << 2'000'000'000 << QVector<QVariant>{Steel, Brass};
}

void ReferenceIndicatorDelegateTest::drawsPointsForMore()
{
    QFETCH(int, count);
    QFETCH(QVector<QVariant>, colors);
    const References model(count, colors);
    QCOMPARE(cellOf(model.cell()), cellImage([](auto* painter, const auto& option) {
                 ZVGuiTools::drawBeautifiedColorPatchDiagonalWithPoints(
                     painter, patchOf(option), colorOf(Steel), colorOf(Brass), false);
             }));
}

void ReferenceIndicatorDelegateTest::drawsOverTheBaseCell()
{
    References model(1, {Steel});
    model.setData(model.cell(), QBrush(Qt::red), Qt::BackgroundRole);
    const QImage cell = cellOf(model.cell());
    QCOMPARE(cell.pixelColor(0, 0), QColor(Qt::red));
    QVERIFY(cell.pixelColor(20, 10) != QColor(Qt::red));
}

void ReferenceIndicatorDelegateTest::greysADisabledItem_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("one colour") << 1;
    QTest::newRow("two colours") << 2;
    QTest::newRow("three colours") << 3;
    QTest::newRow("points") << 4;
}

void ReferenceIndicatorDelegateTest::greysADisabledItem()
{
    QFETCH(int, count);
    References model(count, {Steel, Brass, Green});
    const QImage enabled = cellOf(model.cell());
    const QImage inDisabledView = cellOf(model.cell(), QStyle::State_Enabled);
    model.item(0)->setEnabled(false);
    const QImage disabled = cellOf(model.cell());
    QVERIFY(enabled != disabled);
    QCOMPARE(inDisabledView, disabled);
    QCOMPARE(cellOf(model.cell(), QStyle::State_Enabled), disabled);
    // Paler in every place, and no colour that had a hue has lost all of it.
    for (const int x : {5, 20, 33}) {
        const QColor before = enabled.pixelColor(x, 13);
        const QColor after = disabled.pixelColor(x, 13);
        QVERIFY(after.hslSaturation() < before.hslSaturation() || after == QColor(Qt::white));
    }
}

void ReferenceIndicatorDelegateTest::followsTheApplicationsStyle_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("one colour") << 1;
    QTest::newRow("two colours") << 2;
    QTest::newRow("three colours") << 3;
    QTest::newRow("points") << 4;
}

void ReferenceIndicatorDelegateTest::followsTheApplicationsStyle()
{
    QFETCH(int, count);
    const References model(count, {Steel, Brass, Green});
    const QImage shaded = cellOf(model.cell());
    ZVGuiTools::setFlatStyle(true);
    const QImage flat = cellOf(model.cell());
    QVERIFY(shaded != flat);
    // Unshaded, the first colour is the same at any height.
    QCOMPARE(flat.pixelColor(5, 10), colorOf(Steel));
    QCOMPARE(flat.pixelColor(5, 6), colorOf(Steel));
}

void ReferenceIndicatorDelegateTest::leavesThePainterAsItWas_data()
{
    QTest::addColumn<QVariant>("count");
    QTest::newRow("nothing") << QVariant();
    QTest::newRow("one colour") << QVariant(1);
    QTest::newRow("colours missing") << QVariant(3);
    QTest::newRow("points") << QVariant(5);
}

void ReferenceIndicatorDelegateTest::leavesThePainterAsItWas()
{
    QFETCH(QVariant, count);
    const References model(count, {Steel, Brass});
    cellImage([&](QPainter* painter, QStyleOptionViewItem option) {
        option.direction = Qt::RightToLeft;
        painter->setPen(Qt::magenta);
        painter->setOpacity(0.75);
        painter->setLayoutDirection(Qt::LeftToRight);
        const QTransform transform = painter->transform();
        const QPainter::RenderHints hints = painter->renderHints();
        Delegate(nullptr).paint(painter, option, model.cell());
        QCOMPARE(painter->pen().color(), QColor(Qt::magenta));
        QCOMPARE(painter->opacity(), 0.75);
        QCOMPARE(painter->layoutDirection(), Qt::LeftToRight);
        QCOMPARE(painter->transform(), transform);
        QCOMPARE(painter->renderHints(), hints);
    });
}

void ReferenceIndicatorDelegateTest::showsNoFocus()
{
    const References model(1, {Steel});
    QStyleOptionViewItem option = optionFor({}, lightPalette());
    option.state |= QStyle::State_HasFocus | QStyle::State_Selected;
    OpenDelegate(nullptr).initStyleOption(&option, model.cell());
    QVERIFY(!option.state.testFlag(QStyle::State_HasFocus));
    QVERIFY(option.state.testFlag(QStyle::State_Selected));
    QVERIFY(option.state.testFlag(QStyle::State_Enabled));
}

void ReferenceIndicatorDelegateTest::opensNoEditor()
{
    References model(1, {Steel});
    QTreeView view;
    view.setModel(&model);
    view.setEditTriggers(QAbstractItemView::AllEditTriggers);
    view.setItemDelegate(new ReferenceIndicatorDelegate(&view));
    view.show();
    const auto widgetsBefore = view.viewport()->findChildren<QWidget*>().size();
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(model.cell()).center());
    QCOMPARE(view.viewport()->findChildren<QWidget*>().size(), widgetsBefore);
    QVERIFY(!view.isPersistentEditorOpen(model.cell()));
    QVERIFY(!view.itemDelegate()->createEditor(view.viewport(), {}, model.cell()));
}

void ReferenceIndicatorDelegateTest::namesTheReferences_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("text");
    QTest::newRow("negative") << -1 << QStringLiteral("No references");
    QTest::newRow("none") << 0 << QStringLiteral("No references");
    QTest::newRow("one") << 1 << QStringLiteral("One reference");
    QTest::newRow("two") << 2 << QStringLiteral("2 references");
    QTest::newRow("more than the patch tells") << 17 << QStringLiteral("17 references");
}

void ReferenceIndicatorDelegateTest::namesTheReferences()
{
    QFETCH(int, count);
    QTEST(Delegate::textForReferences(count), "text");
}

void ReferenceIndicatorDelegateTest::isReadToThoseWhoCannotSeeIt()
{
    References model(7, {Steel, Brass});
    QTreeView view;
    view.setModel(&model);
    view.setHeaderHidden(true);
    view.setItemDelegate(new ReferenceIndicatorDelegate(&view));
    view.show();
    QAccessibleInterface* const tree = QAccessible::queryAccessibleInterface(&view);
    QVERIFY(tree && tree->childCount() > 0);
    const QAccessibleInterface* const cell = tree->child(tree->childCount() - 1);
    QVERIFY(cell);
    QCOMPARE(cell->text(QAccessible::Name), QStringLiteral("7 references"));
}

void ReferenceIndicatorDelegateTest::showsTheCountAsAToolTip()
{
    References model(7, {Steel, Brass});
    QCOMPARE(toolTipOf(model), QStringLiteral("7 references"));
}

void ReferenceIndicatorDelegateTest::leavesTheModelsToolTipAlone()
{
    References model(7, {Steel, Brass});
    model.item(0)->setToolTip(QStringLiteral("Door, hood and five more"));
    QCOMPARE(toolTipOf(model), QStringLiteral("Door, hood and five more"));
}

ZORVANE_TEST(ReferenceIndicatorDelegateTest)
#include "ReferenceIndicatorDelegateTest.moc"
