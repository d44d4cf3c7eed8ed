#include "Workbench/Convert/BackgroundWork.h"

#include "Tests/Support/ExpectedModals.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QPointer>
#include <QtCore/QSemaphore>
#include <QtCore/QThread>
#include <QtCore/QThreadPool>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressDialog>
#include <QtWidgets/QPushButton>

#include <atomic>
#include <memory>
#include <stdexcept>

using namespace Zorvane;
using Workbench::workInBackground;

namespace {

/** Long enough for the dialog to come: it waits until it is told to end. */
struct LongWork
{
    QSemaphore mayEnd;
    std::atomic<bool> hasEnded{false};
};

} // namespace

class BackgroundWorkTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void workIsDoneInAnotherThreadBeforeItReturns();
    void eventsGoOnMeanwhile();
    void longWorkShowsADialogUntilItIsDone();
    void cancelledWorkEndsByItself();
    void windowThatGoesMeanwhileCancels();
    void rejectingTheDialogCancels();
    void windowsCanScaleImagesMeanwhile();
    void exceptionsArriveWhereTheWorkIsWaitedFor();
};

void BackgroundWorkTest::workIsDoneInAnotherThreadBeforeItReturns()
{
    QThread* worker = nullptr;
    QVERIFY(
        workInBackground(QStringLiteral("text"), [&worker] { worker = QThread::currentThread(); }));
    QVERIFY(worker);
    QVERIFY(worker != QThread::currentThread());
}

void BackgroundWorkTest::eventsGoOnMeanwhile()
{
    const auto work = std::make_shared<LongWork>();
    QTimer::singleShot(0, this, [work] { work->mayEnd.release(); });
    QVERIFY(workInBackground(QStringLiteral("text"), [work] { work->mayEnd.acquire(); }));
}

void BackgroundWorkTest::longWorkShowsADialogUntilItIsDone()
{
    const auto work = std::make_shared<LongWork>();
    Testing::ExpectedModals modals;
    modals.expectDialog<QProgressDialog>(QStringLiteral("progress"), [&](QProgressDialog& shown) {
        QCOMPARE(shown.labelText(), QStringLiteral("Reading die.stl..."));
        QVERIFY(shown.isModal());
        work->mayEnd.release();
        QTRY_VERIFY(work->hasEnded);
        shown.hide();
    });
    QVERIFY(workInBackground(QStringLiteral("Reading die.stl..."), [work] {
        work->mayEnd.acquire();
        work->hasEnded = true;
    }));
}

void BackgroundWorkTest::cancelledWorkEndsByItself()
{
    const auto work = std::make_shared<LongWork>();
    Testing::ExpectedModals modals;
    modals.expectDialog<QProgressDialog>(QStringLiteral("progress"), [](QProgressDialog& shown) {
        QTest::mouseClick(shown.findChild<QPushButton*>(), Qt::LeftButton);
    });
    QVERIFY(!workInBackground(QStringLiteral("text"), [work] {
        work->mayEnd.acquire();
        work->hasEnded = true;
    }));
    QVERIFY(!work->hasEnded);
    work->mayEnd.release();
    QTRY_VERIFY(work->hasEnded);
    // The word of its end finds nobody.
    QTRY_COMPARE(work.use_count(), 1L);
}

void BackgroundWorkTest::windowThatGoesMeanwhileCancels()
{
    const QPointer<QWidget> window = new QWidget;
    window->show();
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window, Zorvane::Testing::patience));
    const auto work = std::make_shared<LongWork>();
    Testing::ExpectedModals modals;
    modals.expectDialog<QProgressDialog>(QStringLiteral("progress"), [window](QProgressDialog& d) {
        QCOMPARE(d.parentWidget(), window.data());
        delete window;
    });
    QVERIFY(!workInBackground(QStringLiteral("text"), [work] { work->mayEnd.acquire(); }));
    QVERIFY(!window);
    work->mayEnd.release();
    QTRY_COMPARE(work.use_count(), 1L);
}

void BackgroundWorkTest::rejectingTheDialogCancels()
{
    const auto work = std::make_shared<LongWork>();
    Testing::ExpectedModals modals;
    modals.expectDialog<QProgressDialog>(QStringLiteral("progress"),
                                         [](QProgressDialog& shown) { shown.reject(); });
    QVERIFY(!workInBackground(QStringLiteral("text"), [work] { work->mayEnd.acquire(); }));
    work->mayEnd.release();
    QTRY_COMPARE(work.use_count(), 1L);
}

void BackgroundWorkTest::windowsCanScaleImagesMeanwhile()
{
    // Qt scales large images in the global pool and waits for it.
    const auto work = std::make_shared<LongWork>();
    QTimer::singleShot(0, this, [work] {
        QThreadPool::globalInstance()->setMaxThreadCount(1);
        QThreadPool::globalInstance()->start([work] { work->mayEnd.release(); });
    });
    QVERIFY(workInBackground(QStringLiteral("text"), [work] { work->mayEnd.acquire(); }));
}

void BackgroundWorkTest::exceptionsArriveWhereTheWorkIsWaitedFor()
{
    QVERIFY_EXCEPTION_THROWN(
        workInBackground(QStringLiteral("text"), [] { throw std::runtime_error("out of paper"); }),
        std::runtime_error);
}

ZORVANE_TEST(BackgroundWorkTest)
#include "BackgroundWorkTest.moc"
