#include "Host/Widgets/ZVMessageBox.h"
#include "Host/ScopedReplacement.h"
#include "Tests/Support/CapitalTexts.h"
#include "Tests/Support/ExpectedModals.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtGui/QImage>
#include <QtGui/QPalette>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QDesktopWidget>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QToolButton>

#include <algorithm>
#include <cmath>
#include <memory>

using namespace Zorvane;

namespace {

constexpr Qt::WindowFlags s_frameless = Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                        Qt::WindowCloseButtonHint | Qt::FramelessWindowHint;

const QString s_longText = QStringLiteral(
    "<html><body><div>The current design has not been saved since the last change and contains "
    "simulation results.</div><br><div>Do you want to save the changes to \"door outer left.zvd\" "
    "prior to closing?</div></body></html>");

QToolButton* titleCloseButton(const QWidget& box)
{
    return box.findChild<QToolButton*>(QStringLiteral("titleCloseButton"));
}

QPalette standardPaletteOf(const char* style)
{
    return std::unique_ptr<QStyle>(QStyleFactory::create(QLatin1String(style)))->standardPalette();
}

struct Roles
{
    QRgb window;
    QRgb windowText;
    QRgb base;
    QRgb button;
    QRgb highlight;
};

/** Sets what a hand-made palette usually sets; the other roles stay those of a light palette. */
QPalette paletteOf(const Roles& roles)
{
    QPalette palette = standardPaletteOf("Fusion");
    palette.setColor(QPalette::Window, roles.window);
    palette.setColor(QPalette::WindowText, roles.windowText);
    palette.setColor(QPalette::Base, roles.base);
    palette.setColor(QPalette::Text, roles.windowText);
    palette.setColor(QPalette::Button, roles.button);
    palette.setColor(QPalette::ButtonText, roles.windowText);
    palette.setColor(QPalette::Highlight, roles.highlight);
    return palette;
}

/** By the definition of WCAG 2. */
double luminanceOf(const QColor& color)
{
    const auto linear = [](double c) {
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

/** The contrast between the background of a picture, its first pixel, and what differs most. */
double contrastIn(const QImage& picture)
{
    const double background = luminanceOf(picture.pixelColor(0, 0));
    double most = 1;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            const double drawn = luminanceOf(picture.pixelColor(x, y));
            most = std::max(most, (std::max(background, drawn) + 0.05) /
                                      (std::min(background, drawn) + 0.05));
        }
    return most;
}

/** Bold and large, so that some pixels have the full colour of the text. */
void showWithTitle(ZVMessageBox& box)
{
    QFont font = box.font();
    font.setPointSize(24);
    font.setBold(true);
    box.setFont(font);
    box.setMaximumWidth(500);
    box.show();
}

/** The title bar's parts, each with the background around it. */
QImage pictureOf(const QWidget& box, QWidget* part)
{
    const QRect place(part->mapTo(&box, QPoint(-1, -1)), part->size() + QSize(2, 2));
    return const_cast<QWidget&>(box).grab(place).toImage();
}

QLabel* titleLabel(const QWidget& box)
{
    for (QLabel* label : box.findChildren<QLabel*>())
        if (label->text() == box.windowTitle())
            return label;
    return nullptr;
}

} // namespace

class ZVMessageBoxTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void pressedButtonIsReturned();
    void staticBoxesShowTheirIcon_data();
    void staticBoxesShowTheirIcon();
    void staticBoxThatGoesWithItsParentPressesNothing();
    void staticWarningTakesTheDesktopAsParent();
    void defaultButtonAnswersReturn();
    void flagsAreTakenAsGiven();
    void framelessBoxHasItsOwnTitle();
    void framedBoxHasNoTitleOfItsOwn();
    void titleCloseButtonPressesTheEscapeButton();
    void closingWithoutEscapeButtonPressesNothing();
    void hiddenTitleCloseButtonKeepsTheBoxOpen();
    void boxWithoutPressableButtonCanAlwaysBeClosed();
    void boxWithoutPressableButtonGetsOne_data();
    void boxWithoutPressableButtonGetsOne();
    void hiddenButtonStaysHidden();
    void maximumWidthWrapsTheText_data();
    void maximumWidthWrapsTheText();
    void changedStyle_keepsButtonsHidden();
    void changedLanguage_keepsGivenTexts();
    void everyPalette_titleCanBeRead_data();
    void everyPalette_titleCanBeRead();
    void everyStyleSheet_titleCanBeRead_data();
    void everyStyleSheet_titleCanBeRead();
    void replacedPresenter_answersAllBoxes();
    void unansweredBox_countsAsClosed();
};

void ZVMessageBoxTest::pressedButtonIsReturned()
{
    Testing::ExpectedModals modals;
    ZVMessageBox box(QMessageBox::Question, QStringLiteral("Save"), QStringLiteral("Really?"),
                     QMessageBox::Yes | QMessageBox::No);
    modals.expectMessageBox(QStringLiteral("Really"), QMessageBox::Yes);
    QCOMPARE(box.exec(), int(QMessageBox::Yes));
    modals.expectMessageBox(QStringLiteral("Really"), QMessageBox::No);
    QCOMPARE(box.exec(), int(QMessageBox::No));
}

void ZVMessageBoxTest::staticBoxesShowTheirIcon_data()
{
    QTest::addColumn<int>("icon");
    QTest::newRow("critical") << int(QMessageBox::Critical);
    QTest::newRow("information") << int(QMessageBox::Information);
    QTest::newRow("question") << int(QMessageBox::Question);
    QTest::newRow("warning") << int(QMessageBox::Warning);
}

void ZVMessageBoxTest::staticBoxesShowTheirIcon()
{
    QFETCH(int, icon);
    const auto show = [icon] {
        switch (icon) {
        case QMessageBox::Critical:
            return &ZVMessageBox::critical;
        case QMessageBox::Information:
            return &ZVMessageBox::information;
        case QMessageBox::Question:
            return &ZVMessageBox::question;
        default:
            return &ZVMessageBox::warning;
        }
    }();
    Testing::ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("^text$"), [icon](QMessageBox& box) {
        QCOMPARE(int(box.icon()), icon);
        QCOMPARE(box.windowTitle(), QStringLiteral("title"));
        QCOMPARE(box.standardButtons(), QMessageBox::Retry | QMessageBox::Abort);
        box.button(QMessageBox::Retry)->click();
    });
    QCOMPARE(show(nullptr, QStringLiteral("title"), QStringLiteral("text"),
                  QMessageBox::Retry | QMessageBox::Abort, QMessageBox::Abort),
             QMessageBox::Retry);
}

void ZVMessageBoxTest::staticBoxThatGoesWithItsParentPressesNothing()
{
    const QPointer<QWidget> parent = new QWidget;
    parent->show();
    QTimer::singleShot(0, parent, [parent] { delete parent; });
    QCOMPARE(ZVMessageBox::question(parent, QStringLiteral("Save"), QStringLiteral("Really?")),
             QMessageBox::NoButton);
    QVERIFY(!parent);
}

void ZVMessageBoxTest::staticWarningTakesTheDesktopAsParent()
{
    Testing::ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Undefined action called"), QMessageBox::Ok);
    const QString text = QStringLiteral("Undefined action called");
    QCOMPARE(ZVMessageBox::warning(QApplication::desktop(), text, text, QMessageBox::Ok,
                                   QMessageBox::NoButton),
             QMessageBox::Ok);
}

void ZVMessageBoxTest::defaultButtonAnswersReturn()
{
    Testing::ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("text"),
                            [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });
    QCOMPARE(ZVMessageBox::question(nullptr, QStringLiteral("title"), QStringLiteral("text"),
                                    QMessageBox::Yes | QMessageBox::No, QMessageBox::No),
             QMessageBox::No);
}

void ZVMessageBoxTest::flagsAreTakenAsGiven()
{
    const Qt::WindowFlags flags = Qt::WindowCloseButtonHint | Qt::CustomizeWindowHint |
                                  Qt::WindowTitleHint | Qt::FramelessWindowHint;
    Testing::ExpectedModals modals;
    ZVMessageBox box(QMessageBox::Warning, QStringLiteral("title"), QStringLiteral("text"),
                     QMessageBox::Ok, nullptr, flags);
    modals.expectMessageBox(QStringLiteral("title"), [flags](QMessageBox& shown) {
        QCOMPARE(shown.windowFlags() & flags, flags);
        QVERIFY(!shown.windowFlags().testFlag(Qt::WindowSystemMenuHint));
        QCOMPARE(shown.windowType(), Qt::Dialog);
        shown.button(QMessageBox::Ok)->click();
    });
    box.exec();
}

void ZVMessageBoxTest::framelessBoxHasItsOwnTitle()
{
    Testing::ExpectedModals modals;
    ZVMessageBox box(QMessageBox::Question, QStringLiteral("Copy Files"), s_longText,
                     QMessageBox::Yes | QMessageBox::No, nullptr, s_frameless);
    modals.expectMessageBox(QStringLiteral("Copy Files"), [](QMessageBox& shown) {
        const QList<QLabel*> labels = shown.findChildren<QLabel*>();
        const auto isTitle = [](const QLabel* label) {
            return label->text() == QStringLiteral("Copy Files");
        };
        const auto title = std::find_if(labels.begin(), labels.end(), isTitle);
        QVERIFY(title != labels.end());
        const auto* text = shown.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
        const int titleBottom = (*title)->mapTo(&shown, (*title)->rect().bottomLeft()).y();
        QVERIFY(titleBottom < text->mapTo(&shown, QPoint()).y());
        shown.setWindowTitle(QStringLiteral("Copy File"));
        QCOMPARE((*title)->text(), QStringLiteral("Copy File"));
        shown.button(QMessageBox::Yes)->click();
    });
    box.exec();
}

void ZVMessageBoxTest::framedBoxHasNoTitleOfItsOwn()
{
    ZVMessageBox box(QMessageBox::Question, QStringLiteral("Copy Files"), QStringLiteral("text"));
    QVERIFY(!titleCloseButton(box));
    QVERIFY(box.isTitleCloseButtonVisible());
    box.setTitleCloseButtonVisible(false);
    QVERIFY(!box.isTitleCloseButtonVisible());
    QVERIFY(!box.windowFlags().testFlag(Qt::WindowCloseButtonHint));
}

void ZVMessageBoxTest::titleCloseButtonPressesTheEscapeButton()
{
    Testing::ExpectedModals modals;
    ZVMessageBox box(QMessageBox::Question, QStringLiteral("title"), QStringLiteral("text"),
                     QMessageBox::Yes | QMessageBox::No, nullptr, s_frameless);
    modals.expectMessageBox(QStringLiteral("title"), [](QMessageBox& shown) {
        QTest::mouseClick(titleCloseButton(shown), Qt::LeftButton);
    });
    QCOMPARE(box.exec(), int(QMessageBox::No));
}

void ZVMessageBoxTest::closingWithoutEscapeButtonPressesNothing()
{
    Testing::ExpectedModals modals;
    ZVMessageBox box(QMessageBox::Question, QStringLiteral("title"), QStringLiteral("text"),
                     QMessageBox::Save | QMessageBox::Discard, nullptr, s_frameless);
    modals.expectMessageBox(QStringLiteral("title"),
                            [](QMessageBox& shown) { QTest::keyClick(&shown, Qt::Key_Escape); });
    QCOMPARE(box.exec(), 0);
    QVERIFY(!box.clickedButton());
}

void ZVMessageBoxTest::hiddenTitleCloseButtonKeepsTheBoxOpen()
{
    Testing::ExpectedModals modals;
    ZVMessageBox box(QMessageBox::Question, QStringLiteral("title"), QStringLiteral("text"),
                     QMessageBox::Save, nullptr, s_frameless);
    box.setTitleCloseButtonVisible(false);
    modals.expectMessageBox(QStringLiteral("title"), [](QMessageBox& shown) {
        QVERIFY(!titleCloseButton(shown)->isVisible());
        QTest::keyClick(&shown, Qt::Key_Escape);
        QVERIFY(!shown.close());
        QVERIFY(shown.isVisible());
        shown.button(QMessageBox::Save)->click();
    });
    QCOMPARE(box.exec(), int(QMessageBox::Save));
}

void ZVMessageBoxTest::boxWithoutPressableButtonCanAlwaysBeClosed()
{
    Testing::ExpectedModals modals;
    ZVMessageBox box(QMessageBox::Question, QStringLiteral("title"), QStringLiteral("text"),
                     QMessageBox::Save, nullptr, s_frameless);
    box.setTitleCloseButtonVisible(false);
    box.button(QMessageBox::Save)->setVisible(false);
    modals.expectMessageBox(QStringLiteral("title"),
                            [](QMessageBox& shown) { QTest::keyClick(&shown, Qt::Key_Escape); });
    box.exec();
}

void ZVMessageBoxTest::boxWithoutPressableButtonGetsOne_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Enter") << int(Qt::Key_Return);
    QTest::newRow("Escape") << int(Qt::Key_Escape);
}

void ZVMessageBoxTest::boxWithoutPressableButtonGetsOne()
{
    QFETCH(int, key);
    Testing::ExpectedModals modals;
    for (const QMessageBox::StandardButton save : {QMessageBox::Save, QMessageBox::NoButton}) {
        ZVMessageBox box(QMessageBox::Question, QStringLiteral("title"), QStringLiteral("text"),
                         save, nullptr, s_frameless);
        box.setTitleCloseButtonVisible(false);
        if (box.button(save))
            box.button(save)->setVisible(false);
        modals.expectMessageBox(QStringLiteral("title"), [key, save](QMessageBox& shown) {
            QVERIFY(shown.button(QMessageBox::Ok)->isVisible());
            QVERIFY(!shown.button(save) || !shown.button(save)->isVisible());
            QTest::keyClick(&shown, Qt::Key(key));
        });
        QCOMPARE(box.exec(), int(QMessageBox::Ok));
    }
}

void ZVMessageBoxTest::hiddenButtonStaysHidden()
{
    Testing::ExpectedModals modals;
    ZVMessageBox box(QMessageBox::Question, QStringLiteral("title"), QStringLiteral("text"),
                     QMessageBox::Save | QMessageBox::Cancel, nullptr, s_frameless);
    box.button(QMessageBox::Save)->setVisible(false);
    modals.expectMessageBox(QStringLiteral("title"), [](QMessageBox& shown) {
        QVERIFY(!shown.button(QMessageBox::Save)->isVisible());
        QVERIFY(shown.button(QMessageBox::Cancel)->isVisible());
        shown.button(QMessageBox::Cancel)->click();
    });
    QCOMPARE(box.exec(), int(QMessageBox::Cancel));
}

void ZVMessageBoxTest::maximumWidthWrapsTheText_data()
{
    QTest::addColumn<int>("flags");
    QTest::newRow("framed") << int(ZVMessageBox::s_framedFlags);
    QTest::newRow("frameless") << int(s_frameless);
}

void ZVMessageBoxTest::maximumWidthWrapsTheText()
{
    QFETCH(int, flags);
    Testing::ExpectedModals modals;
    ZVMessageBox box(QMessageBox::Warning, QStringLiteral("Warning"), s_longText,
                     QMessageBox::Save | QMessageBox::Cancel, nullptr, Qt::WindowFlags(flags));
    box.setMaximumWidth(300);
    modals.expectMessageBox(QStringLiteral("Warning"), [](QMessageBox& shown) {
        QCOMPARE(shown.width(), 300);
        const auto* label = shown.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
        QVERIFY(label->height() >= label->heightForWidth(label->width()));
        shown.button(QMessageBox::Cancel)->click();
    });
    box.exec();
}

void ZVMessageBoxTest::changedStyle_keepsButtonsHidden()
{
    ZVMessageBox box(QMessageBox::Question, QStringLiteral("title"), QStringLiteral("text"),
                     QMessageBox::Save | QMessageBox::Cancel, nullptr, s_frameless);
    box.button(QMessageBox::Save)->hide();
    box.show();
    const QString before = QApplication::style()->objectName();
    QApplication::setStyle(before == QLatin1String("windows") ? QStringLiteral("fusion")
                                                              : QStringLiteral("windows"));
    QVERIFY(!box.button(QMessageBox::Save)->isVisible());
    QVERIFY(box.button(QMessageBox::Cancel)->isVisible());
    box.setStyleSheet(QStringLiteral("QPushButton { padding: 3px; }"));
    QVERIFY(!box.button(QMessageBox::Save)->isVisible());
    QVERIFY(box.button(QMessageBox::Cancel)->isVisible());
    QApplication::setStyle(before);
}

void ZVMessageBoxTest::changedLanguage_keepsGivenTexts()
{
    ZVMessageBox box(QMessageBox::Question, QStringLiteral("title"), QStringLiteral("text"),
                     QMessageBox::Save | QMessageBox::Cancel, nullptr, s_frameless);
    box.button(QMessageBox::Save)->setText(QStringLiteral("Save As..."));
    box.button(QMessageBox::Save)->setShortcut(QKeySequence(int(Qt::ALT) | Qt::Key_A));
    box.show();
    box.setStyleSheet(QStringLiteral("QPushButton { padding: 3px; }"));
    const QString cancel = box.button(QMessageBox::Cancel)->text();
    {
        Testing::CapitalTexts language;
        QVERIFY(QCoreApplication::installTranslator(&language));
        QCoreApplication::processEvents();
        QCOMPARE(box.button(QMessageBox::Save)->text(), QStringLiteral("Save As..."));
        QCOMPARE(box.button(QMessageBox::Save)->shortcut(), QKeySequence(int(Qt::ALT) | Qt::Key_A));
        QCOMPARE(box.button(QMessageBox::Cancel)->text(), cancel.toUpper());
        QCOMPARE(titleCloseButton(box)->toolTip(), QStringLiteral("CLOSE"));
    }
    QCoreApplication::processEvents();
    QCOMPARE(box.button(QMessageBox::Save)->text(), QStringLiteral("Save As..."));
    QCOMPARE(box.button(QMessageBox::Cancel)->text(), cancel);
}

void ZVMessageBoxTest::everyPalette_titleCanBeRead_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::newRow("Fusion") << standardPaletteOf("Fusion");
    QTest::newRow("Windows") << standardPaletteOf("Windows");
    QTest::newRow("Fusion on a dark desktop")
        << paletteOf({0xff323232, 0xffffffff, 0xff242424, 0xff323232, 0xff308cc6});
    QTest::newRow("dark, made by hand")
        << paletteOf({0xff353535, 0xffffffff, 0xff191919, 0xff353535, 0xff2a82da});
    QTest::newRow("of one colour, derived by Qt") << QPalette(QColor(0x20, 0x30, 0x40));
    QTest::newRow("little contrast")
        << paletteOf({0xff808080, 0xff909090, 0xff808080, 0xff808080, 0xff2a82da});
}

void ZVMessageBoxTest::everyPalette_titleCanBeRead()
{
    QFETCH(QPalette, palette);
    ZVMessageBox box(QMessageBox::Warning, QStringLiteral("Warning"), QStringLiteral("text"),
                     QMessageBox::Ok, nullptr, s_frameless);
    box.setPalette(palette);
    showWithTitle(box);
    QVERIFY(contrastIn(pictureOf(box, titleLabel(box))) >= 4.5);
    QVERIFY(contrastIn(pictureOf(box, titleCloseButton(box))) >= 3); // what WCAG asks of icons
}

void ZVMessageBoxTest::everyStyleSheet_titleCanBeRead_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::newRow("dark widgets") << "QWidget { background-color: #2b2b2b; color: #dddddd; }";
    QTest::newRow("dark box, light labels")
        << "QMessageBox { background-color: #2b2b2b; } QLabel { color: #dddddd; }";
    QTest::newRow("dark labels only") << "QLabel { color: #202020; }";
    QTest::newRow("light text only") << "QWidget { color: #eeeeee; }";
}

void ZVMessageBoxTest::everyStyleSheet_titleCanBeRead()
{
    QFETCH(QString, sheet);
    qApp->setStyleSheet(sheet);
    ZVMessageBox box(QMessageBox::Warning, QStringLiteral("Warning"), QStringLiteral("text"),
                     QMessageBox::Ok, nullptr, s_frameless);
    showWithTitle(box);
    QVERIFY(contrastIn(pictureOf(box, titleLabel(box))) >= 4.5);
    QVERIFY(contrastIn(pictureOf(box, titleCloseButton(box))) >= 3);
    qApp->setStyleSheet({});
}

void ZVMessageBoxTest::replacedPresenter_answersAllBoxes()
{
    struct Script : MessageBoxPresenter
    {
        void present(ZVMessageBox& box) override
        {
            asked.append(box.windowTitle() + QLatin1Char('/') + box.text());
            box.button(QMessageBox::No)->click();
        }
        QStringList asked;
    };
    const auto script = std::make_shared<Script>();
    const Testing::ExpectedModals none;
    {
        const ScopedReplacement<MessageBoxPresenter> answers(script);
        QCOMPARE(ZVMessageBox::question(nullptr, QStringLiteral("Save"), QStringLiteral("Really?")),
                 QMessageBox::No);
        ZVMessageBox box(QMessageBox::Warning, QStringLiteral("Copy"), QStringLiteral("Again?"),
                         QMessageBox::Yes | QMessageBox::No, nullptr, s_frameless);
        QCOMPARE(box.exec(), int(QMessageBox::No));
    }
    QCOMPARE(script->asked,
             (QStringList{QStringLiteral("Save/Really?"), QStringLiteral("Copy/Again?")}));
    QVERIFY(none.allMet());
}

void ZVMessageBoxTest::unansweredBox_countsAsClosed()
{
    struct Silent : MessageBoxPresenter
    {
        void present(ZVMessageBox& box) override
        {
            if (deletesParent)
                delete box.parentWidget();
        }
        bool deletesParent = false;
    };
    const auto silent = std::make_shared<Silent>();
    const ScopedReplacement<MessageBoxPresenter> answers(silent);
    const QPointer<QWidget> parent = new QWidget;
    const QString text = QStringLiteral("text");
    QCOMPARE(ZVMessageBox::question(parent, text, text), QMessageBox::NoButton);
    silent->deletesParent = true;
    QCOMPARE(ZVMessageBox::question(parent, text, text), QMessageBox::NoButton);
    QVERIFY(!parent);
}

ZORVANE_TEST(ZVMessageBoxTest)
#include "ZVMessageBoxTest.moc"
