#include "Host/Widgets/ZVGuiTools.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Utilities/ImageComparison.h"
#include "Tests/Utilities/ReferenceFixtures.h"
#include "Utilities/ReferenceIndicatorDelegate.h"

#include <QtGui/QPainter>
#include <QtWidgets/QApplication>

using namespace Zorvane;
using namespace Zorvane::Testing;
using Delegate = ReferenceIndicatorDelegate;

namespace {

/**
 * Every kind of patch in every state: counts downwards, states from left to right, and then once
 * more for a right-to-left layout.
 */
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
            delegate.paint(&painter, option, model.cell());
        }
    }
    return sheet;
}

} // namespace

/** The delegate on our own host, whose drawing is what these pictures are of. */
class ReferencePicturesTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void looksAsKept_data();
    void looksAsKept();
    void comparingPicturesFindsDifferences();
};

void ReferencePicturesTest::initTestCase()
{
    TestCase::initTestCase();
    QApplication::setStyle(QStringLiteral("fusion"));
    fillColors();
}

void ReferencePicturesTest::looksAsKept_data()
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

void ReferencePicturesTest::looksAsKept()
{
    QFETCH(bool, isDark);
    QFETCH(qreal, scale);
    const QImage sheet = sheetOf(isDark ? darkPalette() : lightPalette(), scale);
    QString message;
    QVERIFY2(
        Testing::isReferenceImage(sheet, QString::fromLatin1(QTest::currentDataTag()), message),
        qPrintable(message));
}

void ReferencePicturesTest::comparingPicturesFindsDifferences()
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

ZORVANE_TEST(ReferencePicturesTest)
#include "ReferencePicturesTest.moc"
