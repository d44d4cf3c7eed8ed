#include "FileDialogs/PreviewFileDialogConfiguration.h"
#include "FileDialogs/ScreenGeometry.h"
#include "Tests/FileDialogs/DialogFixtures.h"
#include "Tests/FileDialogs/Portable/SecondScreen.h"
#include "Tests/FileDialogs/PreviewFixtures.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QSettings>
#include <QtGui/QGuiApplication>
#include <QtGui/QWindow>
#include <QtWidgets/QWidget>

using namespace Zorvane;
using Testing::SecondScreen;

namespace {

constexpr QPoint s_margin(30, 30);

/** A preview on the screen of that number, and the configuration of its dialog. */
struct Preview
{
    explicit Preview(int screenNumber)
    {
        editor->screenNumber = screenNumber;
        configuration.setEventHandler(&handler);
    }

    std::shared_ptr<Testing::RecordingEditor> editor = std::make_shared<Testing::RecordingEditor>();
    PreviewFileDialogEventHandler handler{editor};
    PreviewFileDialogConfiguration configuration = Testing::previewConfiguration();
};

} // namespace

class TwoScreensTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QSettings().clear(); }
    void thereAreTwo();
    void dialogStartsOnTheScreenOfTheMainWindow();
    void rectangleOnTheSecondScreenIsKept();
    void offsetIsTheMarginOnThePreviewsScreen();
    void previewGoesBesideTheDialogOnItsScreen();
    void dialogOnNoScreenComesToThePreviews();
};

void TwoScreensTest::thereAreTwo()
{
    const QRect first = QGuiApplication::primaryScreen()->geometry();
    const SecondScreen second;
    QCOMPARE(QGuiApplication::screens().size(), 2);
    QVERIFY(!first.intersects(SecondScreen::full()));
    const std::vector<ScreenArea> areas = currentScreens();
    QCOMPARE(areas.size(), std::size_t(2));
    QCOMPARE(areas[0].full, first);
    QCOMPARE(areas[1].full, SecondScreen::full());
    QCOMPARE(areas[1].available, SecondScreen::available());
}

void TwoScreensTest::dialogStartsOnTheScreenOfTheMainWindow()
{
    const SecondScreen second;
    QWidget window;
    const Testing::MainWindowProperty property(&window);
    window.setGeometry(100, 100, 300, 200);
    window.winId(); // makes the window
    FileDialogConfiguration configuration;
    QCOMPARE(configuration.getTopLeftOffset(), QSize(0, 0));
    window.move(2000, 200);
    window.windowHandle()->setScreen(second.screen());
    QCOMPARE(configuration.getTopLeftOffset(), QSize(1920, 40));
    configuration.setTopLeftOffset(QSize(30, 20));
    QCOMPARE(configuration.getTopLeftOffset(), QSize(1950, 60));
    QCOMPARE(dialogPlacement(configuration), QRect(1950, 60, 625, 600));
    window.windowHandle()->setScreen(QGuiApplication::primaryScreen());
}

void TwoScreensTest::rectangleOnTheSecondScreenIsKept()
{
    FileDialogConfiguration configuration;
    const QRect stored(2000, 100, 500, 400);
    configuration.storeFileDialogGeometry(stored);
    {
        const SecondScreen second;
        QCOMPARE(dialogPlacement(configuration), stored);
    }
    // The screen was unplugged.
    const QRect placed = dialogPlacement(configuration);
    QCOMPARE(placed.size(), stored.size());
    QVERIFY(QGuiApplication::primaryScreen()->geometry().adjusted(0, 0, 1, 1).contains(placed));
}

void TwoScreensTest::offsetIsTheMarginOnThePreviewsScreen()
{
    const SecondScreen second;
    QCOMPARE(Preview(0).configuration.getTopLeftOffset(), QSize(30, 30));
    QCOMPARE(Preview(-1).configuration.getTopLeftOffset(), QSize(30, 30));
    QCOMPARE(Preview(1).configuration.getTopLeftOffset(), QSize(1950, 70));
    QCOMPARE(Preview(2).configuration.getTopLeftOffset(), QSize(-1, -1));
}

void TwoScreensTest::previewGoesBesideTheDialogOnItsScreen()
{
    const SecondScreen second;
    // Whatever screen the preview was on before.
    for (const int screenNumber : {0, 1}) {
        Preview preview(screenNumber);
        QRect dialog(2000, 150, 350, 300);
        preview.configuration.storeFileDialogGeometry(dialog);
        QRect wanted = preview.editor->geometry;
        placeSideBySide(dialog, wanted, SecondScreen::available(), {30, 30});
        QCOMPARE(preview.configuration.getPositionForPreviewer(), wanted.topLeft());
        QCOMPARE(wanted.topLeft(), QPoint(2000 + 350 + 4, 150));
    }
    // Only its middle is on the second screen, above the available area.
    Preview preview(0);
    preview.configuration.storeFileDialogGeometry({1700, -60, 600, 250});
    QVERIFY(preview.configuration.getPositionForPreviewer().x() > SecondScreen::full().left());
}

void TwoScreensTest::dialogOnNoScreenComesToThePreviews()
{
    const SecondScreen second;
    for (const int screenNumber : {0, 1}) {
        const QRect area = QGuiApplication::screens().at(screenNumber)->availableGeometry();
        Preview preview(screenNumber);
        preview.configuration.storeFileDialogGeometry({20'000, 20'000, 350, 300});
        preview.configuration.getPositionForPreviewer();
        QRect dialog;
        QVERIFY(preview.configuration.getFileDialogGeometry(dialog));
        QCOMPARE(dialog.topLeft(), area.topLeft() + s_margin);
        QSettings().clear();
    }
}

ZORVANE_TEST(TwoScreensTest)
#include "TwoScreensTest.moc"
