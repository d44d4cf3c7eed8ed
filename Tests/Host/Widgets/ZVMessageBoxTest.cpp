#include "Host/Widgets/ZVMessageBox.h"
#include "Tests/Support/ExpectedModals.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QDesktopWidget>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>

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

ZORVANE_TEST(ZVMessageBoxTest)
#include "ZVMessageBoxTest.moc"
