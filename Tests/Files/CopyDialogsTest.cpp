#include "Files/CopyCollisionDialog.h"
#include "Files/CopyProgressDialog.h"
#include "Files/CopyTexts.h"
#include "Files/DialogCopyProgress.h"
#include "Files/DialogCopyQuestions.h"
#include "Tests/Support/ExpectedModals.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QDir>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>

using namespace Zorvane;
using Testing::ExpectedModals;

namespace {

CopyCollision collision(CollisionKind kind = CollisionKind::ExistingFile, int remaining = 3)
{
    const QDateTime day(QDate(2024, 5, 17), QTime(9, 30));
    CopyCollision result;
    result.kind = kind;
    result.source = {QStringLiteral("/parts/<b>door.stl"), 2048, day.addDays(1)};
    result.target = {QStringLiteral("/designs/<b>door.stl"), 1024, day};
    result.keepBothName = QStringLiteral("<b>door (2).stl");
    result.remaining = remaining;
    return result;
}

bool showsText(const QWidget& window, const QString& text)
{
    const auto labels = window.findChildren<QLabel*>();
    return std::any_of(labels.begin(), labels.end(),
                       [&](const QLabel* label) { return label->text().contains(text); });
}

/** A progress whose time passes only when a test says so. */
struct Progress
{
    qint64 time = 0;
    DialogCopyProgress progress{nullptr, [this] { return time; }};
    CopyProgressState state{
        CopyProgressState::Stage::Copying, QStringLiteral("door.stl"), 0, 1 << 30, 0, 4};

    bool passMilliseconds(qint64 milliseconds, qint64 bytes = 0)
    {
        time += milliseconds;
        state.bytesDone += bytes;
        return progress.goOn(state);
    }
};

} // namespace

class CopyDialogsTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void collisionButtonsDecide_data();
    void collisionButtonsDecide();
    void collisionShowsBothFiles();
    void collisionOffersReplaceForFilesOnly_data();
    void collisionOffersReplaceForFilesOnly();
    void collisionDefaultLosesNothing();
    void collisionKeysDecide_data();
    void collisionKeysDecide();
    void collisionAnswersForAllWhereMoreMayFollow();
    void forAllText_fitsWhatFollows_data();
    void forAllText_fitsWhatFollows();
    void protectedFile_isNamedSo();
    void collisionIsAccessible();
    void questionsAskByDialog();
    void questionClosedWithItsOwnerCancels();
    void failuresAreTold_data();
    void failuresAreTold();
    void failuresOfOneName_areToldApart();
    void remarksAlone_areNoFailures();
    void thousandsOfFailures_areCutOff();
    void spaceIsAskedAbout_data();
    void spaceIsAskedAbout();
    void progressIsShownAfterHalfASecond();
    void questionsDoNotCountAsTime();
    void progressShowsAmountSpeedAndTime();
    void checking_showsFilesOnly();
    void progressCancels_data();
    void progressCancels();
    void windowLivesOnWhileACancelledCopyIsTidiedUp();
    void progressEndsWithItsOwner();
    void windowStaysResponsive();
    void inputWaitsUntilTheDialogIsThere();
    void timeLeftIsRounded_data();
    void timeLeftIsRounded();
};

void CopyDialogsTest::collisionButtonsDecide_data()
{
    QTest::addColumn<int>("decision");
    QTest::newRow("replace") << int(CopyDecision::Replace);
    QTest::newRow("skip") << int(CopyDecision::Skip);
    QTest::newRow("keep both") << int(CopyDecision::KeepBoth);
    QTest::newRow("cancel") << int(CopyDecision::Cancel);
}

void CopyDialogsTest::collisionButtonsDecide()
{
    QFETCH(int, decision);
    CopyCollisionDialog dialog(collision());
    dialog.show();
    QTest::mouseClick(dialog.button(static_cast<CopyDecision>(decision)), Qt::LeftButton);
    QCOMPARE(int(dialog.answer().decision), decision);
    QVERIFY(!dialog.answer().forAll);
    QVERIFY(!dialog.isVisible());
}

void CopyDialogsTest::collisionShowsBothFiles()
{
    const CopyCollisionDialog dialog(collision());
    QVERIFY(showsText(dialog, QStringLiteral("<b>door.stl")));
    QVERIFY(showsText(dialog, QStringLiteral("parts")));
    QVERIFY(showsText(dialog, QStringLiteral("designs")));
    QVERIFY(showsText(dialog, sizeForDisplay(2048)));
    QVERIFY(showsText(dialog, sizeForDisplay(1024)));
    QVERIFY(showsText(dialog, QStringLiteral("(newer)")));
    QVERIFY(showsText(dialog, QStringLiteral("<b>door (2).stl")));
    for (const QLabel* label : dialog.findChildren<QLabel*>())
        QCOMPARE(label->textFormat(), Qt::PlainText);
}

void CopyDialogsTest::collisionOffersReplaceForFilesOnly_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("replace");
    QTest::newRow("file") << int(CollisionKind::ExistingFile) << true;
    QTest::newRow("write-protected file") << int(CollisionKind::ProtectedFile) << true;
    QTest::newRow("same file") << int(CollisionKind::SameFile) << false;
    QTest::newRow("within the batch") << int(CollisionKind::WithinBatch) << false;
    QTest::newRow("folder") << int(CollisionKind::NotAFile) << false;
}

void CopyDialogsTest::collisionOffersReplaceForFilesOnly()
{
    QFETCH(int, kind);
    QFETCH(bool, replace);
    const CopyCollisionDialog dialog(collision(static_cast<CollisionKind>(kind)));
    QCOMPARE(dialog.button(CopyDecision::Replace) != nullptr, replace);
    QVERIFY(dialog.button(CopyDecision::Skip));
    QVERIFY(dialog.button(CopyDecision::KeepBoth)->isDefault());
}

void CopyDialogsTest::collisionDefaultLosesNothing()
{
    CopyCollisionDialog dialog(collision());
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Return);
    QCOMPARE(dialog.answer().decision, CopyDecision::KeepBoth);
}

void CopyDialogsTest::collisionKeysDecide_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<int>("decision");
    QTest::newRow("Escape") << int(Qt::Key_Escape) << 0 << int(CopyDecision::Cancel);
    QTest::newRow("Alt+R") << int(Qt::Key_R) << int(Qt::AltModifier) << int(CopyDecision::Replace);
    QTest::newRow("Alt+S") << int(Qt::Key_S) << int(Qt::AltModifier) << int(CopyDecision::Skip);
    QTest::newRow("Alt+B") << int(Qt::Key_B) << int(Qt::AltModifier) << int(CopyDecision::KeepBoth);
    QTest::newRow("Alt+C") << int(Qt::Key_C) << int(Qt::AltModifier) << int(CopyDecision::Cancel);
}

void CopyDialogsTest::collisionKeysDecide()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(int, decision);
    CopyCollisionDialog dialog(collision());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog, Zorvane::Testing::patience));
    QTest::keyClick(&dialog, static_cast<Qt::Key>(key), Qt::KeyboardModifiers(modifiers));
    QTRY_VERIFY(!dialog.isVisible());
    QCOMPARE(int(dialog.answer().decision), decision);
}

void CopyDialogsTest::collisionAnswersForAllWhereMoreMayFollow()
{
    CopyCollisionDialog dialog(collision());
    QVERIFY(dialog.forAllBox()->text().contains(QLatin1Char('3')));
    QVERIFY(!dialog.forAllBox()->isChecked());
    dialog.forAllBox()->setChecked(true);
    dialog.button(CopyDecision::Skip)->click();
    QVERIFY(dialog.answer().forAll);
    QCOMPARE(CopyCollisionDialog(collision(CollisionKind::ExistingFile, 0)).forAllBox(), nullptr);
}

void CopyDialogsTest::forAllText_fitsWhatFollows_data()
{
    QTest::addColumn<int>("remaining");
    QTest::addColumn<bool>("isLate");
    QTest::addColumn<QString>("text");
    QTest::newRow("one") << 1 << false << QStringLiteral("&Do this for the remaining one, too");
    QTest::newRow("many") << 7 << false << QStringLiteral("&Do this for all 7 remaining");
    QTest::newRow("late") << 7 << true << QStringLiteral("&Do this for all that follow");
}

void CopyDialogsTest::forAllText_fitsWhatFollows()
{
    QFETCH(int, remaining);
    QFETCH(bool, isLate);
    QFETCH(QString, text);
    CopyCollision asked = collision(CollisionKind::ExistingFile, remaining);
    asked.isLate = isLate;
    QCOMPARE(CopyCollisionDialog(asked).forAllBox()->text(), text);
}

void CopyDialogsTest::protectedFile_isNamedSo()
{
    const CopyCollisionDialog dialog(collision(CollisionKind::ProtectedFile));
    QVERIFY(showsText(dialog, QStringLiteral("write-protected file named \"<b>door.stl\"")));
    QVERIFY(showsText(dialog, QStringLiteral("(newer)")));
}

void CopyDialogsTest::collisionIsAccessible()
{
    const CopyCollisionDialog dialog(collision());
    int panels = 0;
    for (const QFrame* frame : dialog.findChildren<QFrame*>()) {
        if (frame->accessibleDescription().isEmpty())
            continue;
        ++panels;
        QVERIFY(!frame->accessibleName().isEmpty());
        QVERIFY(frame->accessibleDescription().contains(QStringLiteral("door")));
    }
    QCOMPARE(panels, 2);
    QSet<QChar> mnemonics;
    for (const QPushButton* button : dialog.findChildren<QPushButton*>())
        mnemonics.insert(button->text().at(button->text().indexOf(QLatin1Char('&')) + 1).toLower());
    mnemonics.insert(QLatin1Char('d'));
    QCOMPARE(mnemonics.size(), 5);
}

void CopyDialogsTest::questionsAskByDialog()
{
    QWidget owner;
    owner.show();
    DialogCopyProgress progress(&owner);
    DialogCopyQuestions questions(progress);
    ExpectedModals modals;
    modals.expectDialog<CopyCollisionDialog>(QStringLiteral("collision"), [&](auto& dialog) {
        QCOMPARE(dialog.parentWidget(), &owner);
        dialog.forAllBox()->setChecked(true);
        dialog.button(CopyDecision::Replace)->click();
    });
    const CopyAnswer answer = questions.ask(collision());
    QCOMPARE(answer.decision, CopyDecision::Replace);
    QVERIFY(answer.forAll);
}

void CopyDialogsTest::questionClosedWithItsOwnerCancels()
{
    const QPointer<QWidget> owner = new QWidget;
    owner->show();
    DialogCopyProgress progress(owner);
    DialogCopyQuestions questions(progress);
    QTimer::singleShot(0, owner, [owner] { delete owner; });
    QCOMPARE(questions.ask(collision()).decision, CopyDecision::Cancel);
}

void CopyDialogsTest::failuresAreTold_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("text");
    QTest::newRow("one") << 1 << QStringLiteral("One file could not be copied.");
    QTest::newRow("many") << 9 << QStringLiteral("9 files could not be copied.");
}

void CopyDialogsTest::failuresAreTold()
{
    QFETCH(int, count);
    QFETCH(QString, text);
    QList<CopyRemark> failures;
    for (int i = 0; i < count; ++i)
        failures.append({QStringLiteral("/parts/f%1").arg(i), QStringLiteral("Reason.")});
    DialogCopyProgress progress(nullptr);
    ExpectedModals modals;
    modals.expectMessageBox(text, [&](QMessageBox& box) {
        QCOMPARE(box.icon(), QMessageBox::Warning);
        QVERIFY(box.informativeText().startsWith(QStringLiteral("f0: Reason.")));
        QCOMPARE(box.detailedText().count(QStringLiteral("Reason.")), count > 5 ? count : 0);
        box.button(QMessageBox::Ok)->click();
    });
    DialogCopyQuestions(progress).report(failures, {});
}

void CopyDialogsTest::failuresOfOneName_areToldApart()
{
    DialogCopyProgress progress(nullptr);
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("4 files could not be copied."), [&](QMessageBox& box) {
        const QStringList lines = box.informativeText().split(u'\n');
        const QChar slash = QDir::separator();
        QCOMPARE(lines[0], QStringLiteral("new%1left%1door.stl: A.").arg(slash));
        QCOMPARE(lines[1], QStringLiteral("right%1door.stl: B.").arg(slash));
        QCOMPARE(lines[2], QStringLiteral("old%1left%1door.stl: C.").arg(slash));
        QCOMPARE(lines[3], QStringLiteral("roof.stl: D."));
        box.button(QMessageBox::Ok)->click();
    });
    DialogCopyQuestions(progress).report(
        {{QStringLiteral("/new/left/door.stl"), QStringLiteral("A.")},
         {QStringLiteral("/new/right/door.stl"), QStringLiteral("B.")},
         {QStringLiteral("/old/left/door.stl"), QStringLiteral("C.")},
         {QStringLiteral("/new/left/roof.stl"), QStringLiteral("D.")}},
        {});
}

void CopyDialogsTest::remarksAlone_areNoFailures()
{
    DialogCopyProgress progress(nullptr);
    ExpectedModals modals;
    modals.expectMessageBox(
        QStringLiteral("The files were copied, but there is something to know."),
        [&](QMessageBox& box) {
            QCOMPARE(box.informativeText(), QStringLiteral("door.stl: No date."));
            box.button(QMessageBox::Ok)->click();
        });
    DialogCopyQuestions(progress).report(
        {}, {{QStringLiteral("/parts/door.stl"), QStringLiteral("No date.")}});
}

void CopyDialogsTest::thousandsOfFailures_areCutOff()
{
    QList<CopyRemark> failures;
    for (int i = 0; i < 50000; ++i)
        failures.append({QStringLiteral("/parts/f%1").arg(i), QStringLiteral("Reason.")});
    DialogCopyProgress progress(nullptr);
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("50000 files could not be copied."),
                            [&](QMessageBox& box) {
                                QVERIFY(box.detailedText().endsWith(QStringLiteral(" more.")));
                                QVERIFY(box.detailedText().size() < 50000);
                                box.button(QMessageBox::Ok)->click();
                            });
    DialogCopyQuestions(progress).report(failures, {});
}

void CopyDialogsTest::spaceIsAskedAbout_data()
{
    QTest::addColumn<bool>("copy");
    QTest::newRow("copy") << true;
    QTest::newRow("don't copy") << false;
}

void CopyDialogsTest::spaceIsAskedAbout()
{
    QFETCH(bool, copy);
    DialogCopyProgress progress(nullptr);
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("only"), [&](QMessageBox& box) {
        QVERIFY(box.text().contains(sizeForDisplay(3 << 20)));
        QVERIFY(box.text().contains(sizeForDisplay(1 << 20)));
        QCOMPARE(box.defaultButton(), box.button(QMessageBox::No));
        box.button(copy ? QMessageBox::Yes : QMessageBox::No)->click();
    });
    QCOMPARE(DialogCopyQuestions(progress).copyInSpiteOfSpace(3 << 20, 1 << 20), copy);
}

void CopyDialogsTest::progressIsShownAfterHalfASecond()
{
    Progress test;
    QVERIFY(test.passMilliseconds(5));
    QVERIFY(test.passMilliseconds(499));
    QVERIFY(!test.progress.dialog());
    QVERIFY(test.passMilliseconds(21));
    QVERIFY(test.progress.dialog());
    QVERIFY(test.progress.dialog()->isVisible());
    QVERIFY(test.progress.dialog()->isModal());
}

void CopyDialogsTest::questionsDoNotCountAsTime()
{
    Progress test;
    QVERIFY(test.passMilliseconds(5));
    test.progress.pauseFor([&](QWidget*) { test.time += 60000; });
    QVERIFY(test.passMilliseconds(400));
    QVERIFY(!test.progress.dialog());
}

void CopyDialogsTest::progressShowsAmountSpeedAndTime()
{
    Progress test;
    for (int i = 0; i < 20; ++i)
        QVERIFY(test.passMilliseconds(100, 1 << 20));
    CopyProgressDialog& dialog = *test.progress.dialog();
    QVERIFY(showsText(dialog, QStringLiteral("door.stl")));
    QVERIFY(showsText(dialog, QStringLiteral("File 1 of 4")));
    QVERIFY(showsText(dialog, sizeForDisplay(20 << 20)));
    QVERIFY(showsText(dialog, sizeForDisplay(10 << 20) + QStringLiteral(" per second")));
    QVERIFY(showsText(dialog, QStringLiteral("About 2 minutes left")));
    QCOMPARE(dialog.findChild<QProgressBar*>()->value(), 19);
}

void CopyDialogsTest::checking_showsFilesOnly()
{
    Progress test;
    test.state.stage = CopyProgressState::Stage::Checking;
    test.state.bytesTotal = 0;
    test.state.filesDone = 1;
    QVERIFY(test.passMilliseconds(0));
    QVERIFY(test.passMilliseconds(600));
    QVERIFY(showsText(*test.progress.dialog(), QStringLiteral("Looking at the files")));
    QVERIFY(showsText(*test.progress.dialog(), QStringLiteral("File 2 of 4")));
    QVERIFY(!showsText(*test.progress.dialog(), sizeForDisplay(0)));
    QCOMPARE(test.progress.dialog()->findChild<QProgressBar*>()->value(), 250);
}

void CopyDialogsTest::progressCancels_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("button") << QStringLiteral("button");
    QTest::newRow("Escape") << QStringLiteral("Escape");
    QTest::newRow("closing") << QStringLiteral("closing");
}

void CopyDialogsTest::progressCancels()
{
    QFETCH(QString, way);
    Progress test;
    QVERIFY(test.passMilliseconds(0));
    QVERIFY(test.passMilliseconds(600));
    CopyProgressDialog& dialog = *test.progress.dialog();
    if (way == QLatin1String("button"))
        QTest::mouseClick(dialog.cancelButton(), Qt::LeftButton);
    else if (way == QLatin1String("Escape"))
        QTest::keyClick(&dialog, Qt::Key_Escape);
    else
        dialog.close();
    QVERIFY(!test.passMilliseconds(20));
    QVERIFY(!test.passMilliseconds(1));
    QVERIFY(!dialog.cancelButton()->isEnabled());
}

void CopyDialogsTest::windowLivesOnWhileACancelledCopyIsTidiedUp()
{
    Progress test;
    QVERIFY(test.passMilliseconds(0));
    QVERIFY(test.passMilliseconds(600));
    test.progress.dialog()->reject();
    QVERIFY(!test.passMilliseconds(20));
    int handled = 0;
    QTimer::singleShot(0, qApp, [&] { ++handled; });
    QVERIFY(!test.passMilliseconds(20));
    QCOMPARE(handled, 1);
    delete test.progress.dialog();
    QVERIFY(!test.passMilliseconds(20));
    QVERIFY(!test.progress.dialog());
}

void CopyDialogsTest::progressEndsWithItsOwner()
{
    auto owner = std::make_unique<QWidget>();
    qint64 time = 0;
    DialogCopyProgress progress(owner.get(), [&] { return time; });
    QVERIFY(progress.goOn({}));
    time = 600;
    QVERIFY(progress.goOn({}));
    QVERIFY(progress.dialog());
    owner.reset();
    QVERIFY(!progress.dialog());
    time = 700;
    QVERIFY(!progress.goOn({}));
}

void CopyDialogsTest::windowStaysResponsive()
{
    Progress test;
    int handled = 0;
    QVERIFY(test.passMilliseconds(0));
    for (int i = 1; i <= 5; ++i) {
        QTimer::singleShot(0, qApp, [&] { ++handled; });
        QVERIFY(test.passMilliseconds(20));
        QCOMPARE(handled, i);
    }
}

void CopyDialogsTest::inputWaitsUntilTheDialogIsThere()
{
    Progress test;
    QPushButton other(QStringLiteral("elsewhere"));
    other.show();
    QVERIFY(QTest::qWaitForWindowExposed(&other, Zorvane::Testing::patience));
    int clicks = 0;
    connect(&other, &QPushButton::clicked, this, [&] { ++clicks; });
    QVERIFY(test.passMilliseconds(0));
    QVERIFY(test.passMilliseconds(600));
    QTest::mouseClick(other.windowHandle(), Qt::LeftButton, {}, QPoint(5, 5));
    QVERIFY(test.passMilliseconds(20));
    QCOMPARE(clicks, 0);
}

void CopyDialogsTest::timeLeftIsRounded_data()
{
    QTest::addColumn<qint64>("seconds");
    QTest::addColumn<QString>("text");
    const auto row = [](qint64 seconds, const char* text) {
        QTest::addRow("%d s", int(seconds)) << seconds << QString::fromLatin1(text);
    };
    row(0, "About 5 seconds left");
    row(7, "About 10 seconds left");
    row(89, "About 90 seconds left");
    row(91, "About 2 minutes left");
    row(5399, "About 90 minutes left");
    row(5400, "About 2 hours left");
}

void CopyDialogsTest::timeLeftIsRounded()
{
    QFETCH(qint64, seconds);
    QFETCH(QString, text);
    QCOMPARE(timeLeftForDisplay(seconds), text);
}

ZORVANE_TEST(CopyDialogsTest)
#include "CopyDialogsTest.moc"
