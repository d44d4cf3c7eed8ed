#include "Tests/Support/ExpectedModals.h"

#include "Host/Widgets/ZVMessageBox.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QTimer>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QInputDialog>

using namespace Zorvane;

class ExpectedModalsTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyWindowNeedsItsExpectation_data();
    void everyWindowNeedsItsExpectation();
    void expectationsAreMetInOrder();
    void answersMayOpenFurtherWindows();
    void answerThatLeavesItsWindowOpenFails();
    void buttonThatCannotBePressedFails_data();
    void buttonThatCannotBePressedFails();
    void windowOfAnotherClassFails();
    void windowsThatAreNotModalAreLeftAlone();
    void toleratedWindowsAreLeftAlone();
    void windowsThatCloseThemselvesAtOnceHaveNotCome();
};

void ExpectedModalsTest::everyWindowNeedsItsExpectation_data()
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

void ExpectedModalsTest::everyWindowNeedsItsExpectation()
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

void ExpectedModalsTest::answersMayOpenFurtherWindows()
{
    Testing::ExpectedModals modals;
    modals.expectDialog<QDialog>(QStringLiteral("outer"), [](QDialog& outer) {
        ZVMessageBox::information(&outer, QStringLiteral("title"), QStringLiteral("inner"));
        outer.accept();
    });
    modals.expectMessageBox(QStringLiteral("inner"), QMessageBox::Ok);
    QDialog outer;
    QCOMPARE(outer.exec(), int(QDialog::Accepted));
    QVERIFY(modals.allMet());
}

void ExpectedModalsTest::toleratedWindowsAreLeftAlone()
{
    Testing::ExpectedModals modals;
    modals.tolerate<QDialog>();
    QDialog progress;
    QTimer::singleShot(0, &progress, &QDialog::accept);
    QCOMPARE(progress.exec(), int(QDialog::Accepted));
    QVERIFY(modals.allMet());
}

void ExpectedModalsTest::windowsThatCloseThemselvesAtOnceHaveNotCome()
{
    Testing::ExpectedModals modals;
    QDialog dialog;
    QMetaObject::invokeMethod(&dialog, &QDialog::accept, Qt::QueuedConnection);
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCoreApplication::processEvents();
    QVERIFY(modals.allMet());
}

void ExpectedModalsTest::expectationsAreMetInOrder()
{
    Testing::ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("first"), QMessageBox::Yes);
    modals.expectMessageBox(QStringLiteral("second"), QMessageBox::No);
    const QString title = QStringLiteral("title");
    QCOMPARE(ZVMessageBox::question(nullptr, title, QStringLiteral("first")), QMessageBox::Yes);
    QVERIFY(!modals.allMet());
    QCOMPARE(ZVMessageBox::question(nullptr, title, QStringLiteral("second")), QMessageBox::No);
    QVERIFY(modals.allMet());
}

void ExpectedModalsTest::answerThatLeavesItsWindowOpenFails()
{
    Testing::ExpectedModals modals;
    modals.expectDialog<QDialog>(QStringLiteral("idle"), [](QDialog&) {});
    QDialog dialog;
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QCOMPARE(modals.takeFailures(),
             QStringList{QStringLiteral("the answer left the window open: QDialog")});
}

void ExpectedModalsTest::buttonThatCannotBePressedFails_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("not there") << int(QMessageBox::Cancel) << true;
    QTest::newRow("disabled") << int(QMessageBox::Save) << false;
}

void ExpectedModalsTest::buttonThatCannotBePressedFails()
{
    QFETCH(int, button);
    QFETCH(bool, enabled);
    Testing::ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("text"), QMessageBox::StandardButton(button));
    ZVMessageBox box(QMessageBox::Question, QStringLiteral("title"), QStringLiteral("text"),
                     QMessageBox::Save | QMessageBox::Discard);
    box.button(QMessageBox::Save)->setEnabled(enabled);
    box.exec();
    QVERIFY(!box.clickedButton());
    const QStringList failures = modals.takeFailures();
    QCOMPARE(failures.size(), 1);
    QVERIFY2(failures.front().startsWith(QStringLiteral("cannot press button")),
             qPrintable(failures.front()));
}

void ExpectedModalsTest::windowOfAnotherClassFails()
{
    Testing::ExpectedModals modals;
    modals.expectDialog<QInputDialog>(QStringLiteral("a name"),
                                      [](QInputDialog& dialog) { dialog.accept(); });
    QDialog dialog;
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QCOMPARE(modals.failures(),
             QStringList{QStringLiteral("expected a name but there came: QDialog")});
    QInputDialog input;
    QCOMPARE(input.exec(), int(QDialog::Accepted));
    QCOMPARE(modals.takeFailures().size(), 1);
}

void ExpectedModalsTest::windowsThatAreNotModalAreLeftAlone()
{
    Testing::ExpectedModals modals;
    QDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog, Zorvane::Testing::patience));
    QCoreApplication::processEvents();
    QVERIFY(dialog.isVisible());
    QVERIFY(modals.allMet());
}

ZORVANE_TEST(ExpectedModalsTest)
#include "ExpectedModalsTest.moc"
