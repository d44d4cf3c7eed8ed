#include "Tests/FileDialogs/Windows/NativeDialogFixture.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Support/Windows/DialogPilot.h"

#include <QtCore/QSettings>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

using namespace Zorvane;
using Testing::DialogPilot;
using Testing::DialogWindow;

/** The system's own dialog on a screen that Qt scales by a half. */
class ScaledDialogTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void geometryIsInQtsPixels();
};

void ScaledDialogTest::geometryIsInQtsPixels()
{
    QCOMPARE(QGuiApplication::primaryScreen()->devicePixelRatio(), 1.5);
    QSettings().clear();
    const Testing::DialogFolder folder;
    Testing::EventRecorder handler;
    Testing::GeometryRecorder configuration(QStringLiteral("Scaled"));
    FileDialogConfiguration::CustomItem box;
    box.content = QStringLiteral("Box");
    configuration.addCustomControl(box);
    configuration.setEventHandler(&handler);
    FileDialogRequest request = folder.request();
    request.configuration = &configuration;

    const auto clickBox = [](const DialogWindow& dialog) {
        dialog.click(dialog.findControl(L"Button", QStringLiteral("Box")));
    };
    QRect told;
    DialogPilot pilot;
    pilot.then([&](const DialogWindow& dialog) {
        configuration.storeFileDialogGeometry(QRect(20, 20, 480, 340));
        handler.reaction = [&](const FileDialogCallbackInterface& callbacks) {
            callbacks.placeDialog(&configuration);
        };
        clickBox(dialog);
    });
    pilot.waitUntil("the dialog at its place", [](const DialogWindow& dialog) {
        const RECT rect = dialog.rectangle();
        return QRect(rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top) ==
               QRect(30, 30, 720, 510);
    });
    pilot.then([&](const DialogWindow& dialog) {
        handler.reaction = [&told](const FileDialogCallbackInterface& callbacks) {
            told = callbacks.getDialogGeometry();
        };
        clickBox(dialog);
        NotifyWinEvent(EVENT_SYSTEM_MOVESIZEEND, dialog.handle(), OBJID_WINDOW, CHILDID_SELF);
    });
    pilot.waitUntil("a recorded move",
                    [&](const DialogWindow&) { return configuration.stored.size() == 2; });
    pilot.then([](const DialogWindow& dialog) { dialog.cancel(); });
    QVERIFY(createNativeFileDialogDriver()->run(request).isCancelled());
    QVERIFY(pilot.isDone());
    QCOMPARE(told, QRect(20, 20, 480, 340));
    // The system's right and bottom are one more.
    QCOMPARE(configuration.stored.back(), QRect(20, 20, 481, 341));
}

static int runScaled(int argc, char** argv)
{
    qputenv("QT_SCALE_FACTOR", "1.5");
    return Testing::runTest<ScaledDialogTest>(argc, argv);
}

ZORVANE_TEST_RUN_BY(ScaledDialogTest, &runScaled)
#include "ScaledDialogTest.moc"
