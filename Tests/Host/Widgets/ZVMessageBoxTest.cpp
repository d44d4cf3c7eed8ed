#include "Host/Widgets/ZVMessageBox.h"
#include "Tests/Support/ExpectedModals.h"
#include "Tests/Support/TestCase.h"

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
    void staticWarningTakesTheDesktopAsParent();
    void defaultButtonAnswersReturn();
    void flagsAreTakenAsGiven();
    void framelessBoxHasItsOwnTitle();
    void framedBoxHasNoTitleOfItsOwn();
    void titleCloseButtonPressesTheEscapeButton();
    void closingWithoutEscapeButtonPressesNothing();
    void hiddenTitleCloseButtonKeepsTheBoxOpen();
    void boxWithoutPressableButtonCanAlwaysBeClosed();
    void hiddenButtonStaysHidden();
    void maximumWidthWrapsTheText_data();
    void maximumWidthWrapsTheText();
    void expectedModals_data();
    void expectedModals();
    void expectedModalsNest();
    void expectedModalsTolerate();
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

void ZVMessageBoxTest::expectedModals_data()
{
    QTest::addColumn<QString>("expected");
    QTest::addColumn<int>("shown");
    QTest::addColumn<QStringList>("failures");
    const QString none;
    // clang-format off
    QTest::newRow("met")        << QStringLiteral("^text 0$") << 1 << QStringList();
    QTest::newRow("none")       << none                       << 0 << QStringList();
    QTest::newRow("unexpected") << none                       << 1 << QStringList{QStringLiteral("^unexpected modal window: .*text 0")};
    QTest::newRow("second")     << QStringLiteral("^text 0$") << 2 << QStringList{QStringLiteral("^unexpected modal window: .*text 1")};
    QTest::newRow("unmet")      << QStringLiteral("^text 0$") << 0 << QStringList{QStringLiteral("never came: message box")};
    QTest::newRow("other")      << QStringLiteral("^other$")  << 1 << QStringList{QStringLiteral("^expected message box .other.*but there came.*text 0"), QStringLiteral("never came: message box")};
    // clang-format on
}

void ZVMessageBoxTest::expectedModals()
{
    QFETCH(QString, expected);
    QFETCH(int, shown);
    QFETCH(QStringList, failures);
    Testing::ExpectedModals modals;
    if (!expected.isEmpty())
        modals.expectMessageBox(expected, QMessageBox::Ok);
    for (int i = 0; i < shown; ++i)
        ZVMessageBox::information(nullptr, QStringLiteral("title"),
                                  QStringLiteral("text %1").arg(i));
    QCOMPARE(modals.allMet(), failures.isEmpty());
    const QStringList found = modals.takeFailures();
    QCOMPARE(found.size(), failures.size());
    for (int i = 0; i < found.size(); ++i)
        QVERIFY2(QRegularExpression(failures.at(i)).match(found.at(i)).hasMatch(),
                 qPrintable(found.at(i)));
}

void ZVMessageBoxTest::expectedModalsNest()
{
    Testing::ExpectedModals modals;
    modals.expectDialog<QDialog>(QStringLiteral("outer"), [](QDialog& outer) {
        ZVMessageBox::information(&outer, QStringLiteral("title"), QStringLiteral("inner"));
        outer.accept();
    });
    modals.expectMessageBox(QStringLiteral("inner"), QMessageBox::Ok);
    QDialog outer;
    QCOMPARE(outer.exec(), int(QDialog::Accepted));
    modals.expectDialog<QDialog>(QStringLiteral("idle"), [](QDialog&) {});
    QCOMPARE(outer.exec(), int(QDialog::Rejected));
    QCOMPARE(modals.takeFailures(),
             QStringList{QStringLiteral("the answer left the window open: QDialog")});
}

void ZVMessageBoxTest::expectedModalsTolerate()
{
    Testing::ExpectedModals modals;
    modals.tolerate<QDialog>();
    QDialog progress;
    QTimer::singleShot(0, &progress, &QDialog::accept);
    QCOMPARE(progress.exec(), int(QDialog::Accepted));
    QVERIFY(modals.allMet());
}

ZORVANE_TEST_MAIN(ZVMessageBoxTest)
#include "ZVMessageBoxTest.moc"
