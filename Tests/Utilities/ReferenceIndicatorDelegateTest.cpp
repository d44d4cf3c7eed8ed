#include "Utilities/ReferenceIndicatorDelegate.h"

#include "Host/Configuration/ColorConfiguration.h"
#include "Host/Widgets/ZVGuiTools.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Utilities/ImageComparison.h"

#include <QtGui/QAccessible>
#include <QtGui/QHelpEvent>
#include <QtGui/QPainter>
#include <QtGui/QStandardItemModel>
#include <QtWidgets/QApplication>
#include <QtWidgets/QToolTip>
#include <QtWidgets/QTreeView>

#include <functional>
#include <memory>

using namespace Zorvane;
using Delegate = ReferenceIndicatorDelegate;

namespace {

enum ColorId
{
    Steel = 11,
    Brass = 12,
    Green = 13,
    Black = 14,
    White = 15,
    HighlightBlue = 16
};

constexpr QSize s_cell(40, 20);

/** A model with one item of that many references, and colours as long as the list goes. */
class References : public QStandardItemModel
{
public:
    explicit References(const QVariant& count, const QVector<QVariant>& colors = {})
    {
        auto* const item = new QStandardItem;
        appendRow(item);
        item->setData(count, Delegate::NumberOfReferencesRole);
        for (int i = 0; i < colors.size(); ++i)
            item->setData(colors.at(i), Delegate::FirstColorRole + i);
    }
    QModelIndex index() const { return QStandardItemModel::index(0, 0); }

    /** As models with references do: the text is looked up whenever somebody asks. */
    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role == Qt::AccessibleTextRole)
            return Delegate::textForReferences(
                QStandardItemModel::data(index, Delegate::NumberOfReferencesRole).toInt());
        return QStandardItemModel::data(index, role);
    }
};

/** Lets the test see what the delegate makes of an option. */
class OpenDelegate : public ReferenceIndicatorDelegate
{
public:
    using ReferenceIndicatorDelegate::initStyleOption;
    using ReferenceIndicatorDelegate::ReferenceIndicatorDelegate;
};

QPalette lightPalette()
{
    QPalette palette(Qt::black, Qt::white);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Highlight, QColor(0x30, 0x8c, 0xc6));
    return palette;
}

QPalette darkPalette()
{
    QPalette palette(Qt::white, QColor(0x2b, 0x2b, 0x2b));
    palette.setColor(QPalette::Base, QColor(0x23, 0x26, 0x29));
    palette.setColor(QPalette::Highlight, QColor(0x2a, 0x82, 0xda));
    return palette;
}

QStyleOptionViewItem optionFor(const QPoint& position, const QPalette& palette)
{
    QStyleOptionViewItem option;
    option.rect = QRect(position, s_cell);
    option.palette = palette;
    option.state = QStyle::State_Enabled | QStyle::State_Active;
    option.direction = Qt::LeftToRight;
    option.showDecorationSelected = true;
    return option;
}

QImage blankImage(const QSize& size, qreal scale, const QColor& background)
{
    QImage image(size * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(background);
    return image;
}

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

QColor colorOf(int id)
{
    const auto color = ColorConfiguration::getRegisteredInstance()->getColor(id);
    return QColor::fromRgbF(qreal(color.red), qreal(color.green), qreal(color.blue));
}

void setColor(int id, const QColor& color)
{
    ColorConfiguration::getRegisteredInstance()->setColor(
        id, {float(color.redF()), float(color.greenF()), float(color.blueF())});
}

/** Every kind of patch in every state: counts downwards, states from left to right, twice. */
QImage sheetOf(const QPalette& palette, qreal scale)
{
    const QVector<QVector<QVariant>> colors{{Steel},        {Brass, Green}, {Steel, Brass, Green},
                                            {Green, Brass}, {Black},        {White, HighlightBlue},
                                            {HighlightBlue}};
    const QVector<int> counts{1, 2, 3, 4, 1, 2, 1};
    const QVector<QStyle::State> states{QStyle::State_Enabled | QStyle::State_Active,
                                        QStyle::State_Enabled | QStyle::State_Active |
                                            QStyle::State_Selected,
                                        QStyle::State_None, QStyle::State_Selected};
    const QSize size(2 * states.size() * s_cell.width(), counts.size() * s_cell.height());
    QImage sheet = blankImage(size, scale, palette.color(QPalette::Base));
    QPainter painter(&sheet);
    const Delegate delegate(nullptr);
    for (int row = 0; row < counts.size(); ++row) {
        const References model(counts.at(row), colors.at(row));
        for (int column = 0; column < 2 * states.size(); ++column) {
            const QPoint position(column * s_cell.width(), row * s_cell.height());
            QStyleOptionViewItem option = optionFor(position, palette);
            option.state = states.at(column % states.size());
            option.direction = column < states.size() ? Qt::LeftToRight : Qt::RightToLeft;
            delegate.paint(&painter, option, model.index());
        }
    }
    return sheet;
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
    void followsTheApplicationsStyle();
    void looksAsKept_data();
    void looksAsKept();
    void comparingPicturesFindsDifferences();
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
    setColor(Steel, QColor(0x5f, 0x71, 0x9d));
    setColor(Brass, QColor(0xaf, 0x89, 0x59));
    setColor(Green, QColor(0x65, 0x97, 0x68));
    setColor(Black, Qt::black);
    setColor(White, Qt::white);
    setColor(HighlightBlue, lightPalette().color(QPalette::Highlight));
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
    QCOMPARE(cellOf(model.index()), plainCell());
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
    QCOMPARE(cellOf(model.index()), plainCell());
}

void ReferenceIndicatorDelegateTest::drawsOneColor()
{
    const References model(1, {Steel});
    QCOMPARE(cellOf(model.index()), cellImage([](auto* painter, const auto& option) {
                 ZVGuiTools::drawBeautifiedColorPatch(painter, patchOf(option), colorOf(Steel),
                                                      false, 255);
             }));
}

void ReferenceIndicatorDelegateTest::drawsTwoColors()
{
    const References model(2, {Steel, Brass});
    QCOMPARE(cellOf(model.index()), cellImage([](auto* painter, const auto& option) {
                 ZVGuiTools::drawBeautifiedTwoColorPatchDiagonal(
                     painter, patchOf(option), colorOf(Steel), colorOf(Brass), 0, false);
             }));
}

void ReferenceIndicatorDelegateTest::drawsThreeColors()
{
    const References model(3, {Steel, Brass, Green});
    QCOMPARE(cellOf(model.index()), cellImage([](auto* painter, const auto& option) {
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
    QCOMPARE(cellOf(model.index()), cellImage([](auto* painter, const auto& option) {
                 ZVGuiTools::drawBeautifiedColorPatchDiagonalWithPoints(
                     painter, patchOf(option), colorOf(Steel), colorOf(Brass), false);
             }));
}

void ReferenceIndicatorDelegateTest::drawsOverTheBaseCell()
{
    References model(1, {Steel});
    model.setData(model.index(), QBrush(Qt::red), Qt::BackgroundRole);
    const QImage cell = cellOf(model.index());
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
    const QImage enabled = cellOf(model.index());
    const QImage inDisabledView = cellOf(model.index(), QStyle::State_Enabled);
    model.item(0)->setEnabled(false);
    const QImage disabled = cellOf(model.index());
    QVERIFY(enabled != disabled);
    QCOMPARE(inDisabledView, disabled);
    QCOMPARE(cellOf(model.index(), QStyle::State_Enabled), disabled);
    // Paler in every place, and no colour that had a hue has lost all of it.
    for (const int x : {5, 20, 33}) {
        const QColor before = enabled.pixelColor(x, 13);
        const QColor after = disabled.pixelColor(x, 13);
        QVERIFY(after.hslSaturation() < before.hslSaturation() || after == QColor(Qt::white));
    }
}

void ReferenceIndicatorDelegateTest::followsTheApplicationsStyle()
{
    const References model(1, {Steel});
    const QImage shaded = cellOf(model.index());
    ZVGuiTools::setFlatStyle(true);
    const QImage flat = cellOf(model.index());
    QVERIFY(shaded != flat);
    QCOMPARE(flat.pixelColor(20, 10), colorOf(Steel));
    QCOMPARE(flat.pixelColor(20, 6), colorOf(Steel));
}

void ReferenceIndicatorDelegateTest::looksAsKept_data()
{
    QTest::addColumn<bool>("isDark");
    QTest::addColumn<qreal>("scale");
    QTest::newRow("light-100") << false << 1.0;
    QTest::newRow("light-150") << false << 1.5;
    QTest::newRow("light-200") << false << 2.0;
    QTest::newRow("dark-100") << true << 1.0;
    QTest::newRow("dark-150") << true << 1.5;
    QTest::newRow("dark-200") << true << 2.0;
}

void ReferenceIndicatorDelegateTest::looksAsKept()
{
    QFETCH(bool, isDark);
    QFETCH(qreal, scale);
    const QImage sheet = sheetOf(isDark ? darkPalette() : lightPalette(), scale);
    QString message;
    QVERIFY2(
        Testing::isReferenceImage(sheet, QString::fromLatin1(QTest::currentDataTag()), message),
        qPrintable(message));
}

void ReferenceIndicatorDelegateTest::comparingPicturesFindsDifferences()
{
    const QImage sheet = sheetOf(lightPalette(), 1.0);
    QVERIFY(Testing::differenceOf(sheet, sheet).isTolerable());
    QVERIFY(!Testing::differenceOf(sheet, sheetOf(lightPalette(), 2.0)).isTolerable());
    QVERIFY(!Testing::differenceOf(sheet, sheetOf(darkPalette(), 1.0)).isTolerable());
    QVERIFY(!Testing::differenceOf({}, {}).isTolerable());

    // One patch of the sheet without its points, then every patch a pixel to the side.
    QImage other = sheet;
    QPainter painter(&other);
    ZVGuiTools::drawBeautifiedTwoColorPatchDiagonal(&painter, QRect(1, 62, 37, 15), colorOf(Green),
                                                    colorOf(Brass), 0, false);
    painter.end();
    QVERIFY(other != sheet);
    QVERIFY(
        !Testing::differenceOf(other.copy(0, 60, 40, 20), sheet.copy(0, 60, 40, 20)).isTolerable());
    QVERIFY(!Testing::differenceOf(sheet.copy(0, 0, 300, 140), sheet.copy(1, 0, 300, 140))
                 .isTolerable());
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
        Delegate(nullptr).paint(painter, option, model.index());
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
    OpenDelegate(nullptr).initStyleOption(&option, model.index());
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
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {},
                       view.visualRect(model.index()).center());
    QCOMPARE(view.viewport()->findChildren<QWidget*>().size(), widgetsBefore);
    QVERIFY(!view.isPersistentEditorOpen(model.index()));
    QVERIFY(!view.itemDelegate()->createEditor(view.viewport(), {}, model.index()));
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
    QTreeView view;
    view.setModel(&model);
    Delegate delegate(nullptr);
    view.show();
    QHelpEvent event(QEvent::ToolTip, {5, 5}, view.viewport()->mapToGlobal({5, 5}));
    QVERIFY(delegate.helpEvent(&event, &view, optionFor({}, lightPalette()), model.index()));
    QCOMPARE(QToolTip::text(), QStringLiteral("7 references"));
}

void ReferenceIndicatorDelegateTest::leavesTheModelsToolTipAlone()
{
    References model(7, {Steel, Brass});
    model.item(0)->setToolTip(QStringLiteral("Door, hood and five more"));
    QTreeView view;
    view.setModel(&model);
    Delegate delegate(nullptr);
    view.show();
    QHelpEvent event(QEvent::ToolTip, {5, 5}, view.viewport()->mapToGlobal({5, 5}));
    QVERIFY(delegate.helpEvent(&event, &view, optionFor({}, lightPalette()), model.index()));
    QCOMPARE(QToolTip::text(), QStringLiteral("Door, hood and five more"));
}

ZORVANE_TEST_MAIN(ReferenceIndicatorDelegateTest)
#include "ReferenceIndicatorDelegateTest.moc"
