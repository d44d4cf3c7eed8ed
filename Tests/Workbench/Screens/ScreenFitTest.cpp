#include "Workbench/Screens/ScreenFit.h"

#include "Tests/Support/TestCase.h"
#include "Workbench/DialogPanel/DialogPanel.h"
#include "Workbench/Help/HelpWindow.h"
#include "Workbench/Stress/StressWindow.h"
#include "Workbench/Window/MainWindow.h"

#include <QtGui/QScreen>
#include <QtWidgets/QStyle>

#include <functional>
#include <memory>

namespace Zorvane::Workbench {

/** Makes a window. */
using Maker = std::function<std::unique_ptr<QWidget>()>;

} // namespace Zorvane::Workbench

Q_DECLARE_METATYPE(Zorvane::Workbench::Maker)

namespace Zorvane::Workbench {

class ScreenFitTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void whatFitsStays();
    void largerWindowsLeaveRoomForTheirTitle();
    void newWindowsFit_data();
    void newWindowsFit();
};

void ScreenFitTest::whatFitsStays()
{
    const QWidget window;
    QCOMPARE(fittedToScreen(window, {200, 100}), QSize(200, 100));
}

void ScreenFitTest::largerWindowsLeaveRoomForTheirTitle()
{
    const QWidget window;
    const QSize screen = window.screen()->availableSize();
    const int title = window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    QVERIFY(title > 0);
    QCOMPARE(fittedToScreen(window, {100000, 100000}),
             QSize(screen.width(), screen.height() - title));
}

void ScreenFitTest::newWindowsFit_data()
{
    QTest::addColumn<Maker>("make");
    QTest::newRow("main") << Maker([] { return std::make_unique<MainWindow>(); });
    QTest::newRow("stress") << Maker([] { return std::make_unique<StressWindow>(); });
    QTest::newRow("dialogs") << Maker([] { return std::make_unique<DialogPanel>(); });
    QTest::newRow("help") << Maker([] { return std::make_unique<HelpWindow>(); });
}

void ScreenFitTest::newWindowsFit()
{
    QFETCH(Maker, make);
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPointSize(40);
    QApplication::setFont(large);
    const std::unique_ptr<QWidget> window = make();
    QApplication::setFont(before);
    QCOMPARE(window->size(), fittedToScreen(*window, window->size()));
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::ScreenFitTest;
ZORVANE_TEST(ScreenFitTest)
#include "ScreenFitTest.moc"
