#include "FileDialogs/Windows/CommonItemDialogDriver.h"

#include "Tests/FileDialogs/Windows/CommonItemDialogTestCase.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QScopeGuard>
#include <QtWidgets/QWidget>

#include <stdexcept>
#include <thread>

using namespace Zorvane;
using Testing::FakeItemDialogs;
using Testing::s_failure;

namespace {

/** The window event hooks that a driver has asked for. */
struct HookRecord
{
    HWINEVENTHOOK given = nullptr;
    QVector<DWORD> arguments;
    QVector<HWINEVENTHOOK> takenBack;
};
HookRecord s_hooks;

HWINEVENTHOOK WINAPI hookEvents(DWORD first, DWORD last, HMODULE, WINEVENTPROC, DWORD process,
                                DWORD thread, DWORD flags)
{
    s_hooks.arguments = {first, last, process, thread, flags};
    return s_hooks.given;
}

BOOL WINAPI unhookEvents(HWINEVENTHOOK hook)
{
    s_hooks.takenBack.append(hook);
    return TRUE;
}

/** Tells where to be placed, and counts how often it is asked. */
class GeometryByTurns : public FileDialogConfiguration
{
public:
    using FileDialogConfiguration::FileDialogConfiguration;

    bool getFileDialogGeometry(QRect& rect) override
    {
        ++turns;
        rect = place;
        return true;
    }

    QRect place{10, 20, 300, 200};
    int turns = 0;
};

/** How a run of a dialog ends. */
enum Ending
{
    Chosen,
    Cancelled,
    NotShown,
    Thrown
};

void addEndings()
{
    QTest::addColumn<bool>("isSave");
    QTest::addColumn<int>("ending");
    QTest::newRow("open") << false << int(Chosen);
    QTest::newRow("open, cancelled") << false << int(Cancelled);
    QTest::newRow("open, not shown") << false << int(NotShown);
    QTest::newRow("open, with a handler that throws") << false << int(Thrown);
    QTest::newRow("save") << true << int(Chosen);
    QTest::newRow("save, cancelled") << true << int(Cancelled);
    QTest::newRow("save, not shown") << true << int(NotShown);
}

qintptr s_previousContext = 0;
QVector<qintptr> s_contexts;

const QWidget* s_owner = nullptr;
bool s_hadOwnersWindow = false;

DPI_AWARENESS_CONTEXT WINAPI setContext(DPI_AWARENESS_CONTEXT context)
{
    if (s_owner && s_contexts.isEmpty())
        s_hadOwnersWindow = s_owner->internalWinId() != 0;
    s_contexts.append(qintptr(context));
    return reinterpret_cast<DPI_AWARENESS_CONTEXT>(s_previousContext);
}

} // namespace

/** What a dialog's run changes around it, and takes back however the run ends. */
class CommonItemDialogRunTest : public Testing::CommonItemDialogTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void refusedDpiAwareness_isNotTakenBack();
    void ownersWindow_isMadeForTheApplicationsAwareness();
    void awarenessOfEachScreensScalingIsTakenBack_data();
    void awarenessOfEachScreensScalingIsTakenBack();
    void windowEventsAreLeft_data();
    void windowEventsAreLeft();
    void noWindowEventsToBeHad();
    void apartmentIsLeft_data();
    void apartmentIsLeft();
    void aMultithreadedApartmentIsRefused();
    void handlerThatThrowsClosesTheDialogAndIsUnadvised();
    void placingStartsAgainUntilVisible();

private:
    /** Whether it came to an exception. */
    bool runTo(CommonItemDialogDriver& driver, bool isSave, int ending);
};

bool CommonItemDialogRunTest::runTo(CommonItemDialogDriver& driver, bool isSave, int ending)
{
    if (ending == Cancelled)
        m_script.showResult = HRESULT_FROM_WIN32(ERROR_CANCELLED);
    if (ending == NotShown)
        m_script.calls.failCalls(QStringLiteral("Show"), s_failure);
    m_handler.reaction = [=](const FileDialogCallbackInterface&) {
        if (ending == Thrown)
            throw std::length_error("too long");
    };
    m_script.whileShown = [=](IFileDialog* dialog,
                              const std::vector<IFileDialogEvents*>& listeners) {
        if (ending == Thrown)
            listeners[1]->OnTypeChange(dialog);
    };
    try {
        isSave ? driver.run(Testing::forSaving(m_request)) : driver.run(m_request);
    } catch (const std::length_error&) {
        return true;
    }
    return false;
}

void CommonItemDialogRunTest::refusedDpiAwareness_isNotTakenBack()
{
    s_previousContext = 0;
    s_contexts.clear();
    CommonItemDialogDriver driver(L"shell32.dll", {}, setContext);
    QCOMPARE(runTo(driver, false, Chosen), false);
    QCOMPARE(s_contexts, QVector<qintptr>{qintptr(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2)});
}

void CommonItemDialogRunTest::ownersWindow_isMadeForTheApplicationsAwareness()
{
    QWidget owner;
    m_request.owner = &owner;
    s_previousContext = -2;
    s_owner = &owner;
    const auto noOwner = qScopeGuard([] { s_owner = nullptr; });
    s_hadOwnersWindow = false;
    s_contexts.clear();
    CommonItemDialogDriver driver(L"shell32.dll", {}, setContext);
    QCOMPARE(runTo(driver, false, Chosen), false);
    QVERIFY(s_hadOwnersWindow);
}

void CommonItemDialogRunTest::awarenessOfEachScreensScalingIsTakenBack_data()
{
    addEndings();
}

void CommonItemDialogRunTest::awarenessOfEachScreensScalingIsTakenBack()
{
    QFETCH(bool, isSave);
    QFETCH(int, ending);
    const auto v2 = qintptr(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
    s_previousContext = -2;
    s_contexts.clear();
    m_script.atShow = [=] { QCOMPARE(s_contexts, QVector<qintptr>{v2}); };
    CommonItemDialogDriver driver(L"shell32.dll", {}, setContext);
    QCOMPARE(runTo(driver, isSave, ending), ending == Thrown);
    QVERIFY(m_script.calls.names().contains(QStringLiteral("Show")));
    QCOMPARE(s_contexts, QVector<qintptr>({v2, s_previousContext}));
}

void CommonItemDialogRunTest::windowEventsAreLeft_data()
{
    addEndings();
}

void CommonItemDialogRunTest::windowEventsAreLeft()
{
    QFETCH(bool, isSave);
    QFETCH(int, ending);
    s_hooks = {};
    s_hooks.given = reinterpret_cast<HWINEVENTHOOK>(qintptr(17));
    CommonItemDialogDriver driver(L"shell32.dll", {hookEvents, unhookEvents});
    QCOMPARE(runTo(driver, isSave, ending), ending == Thrown);
    QCOMPARE(s_hooks.arguments, QVector<DWORD>({EVENT_SYSTEM_MOVESIZEEND, EVENT_SYSTEM_DIALOGEND, 0,
                                                0, WINEVENT_OUTOFCONTEXT}));
    QCOMPARE(s_hooks.takenBack, QVector<HWINEVENTHOOK>{s_hooks.given});
}

void CommonItemDialogRunTest::noWindowEventsToBeHad()
{
    s_hooks = {};
    CommonItemDialogDriver driver(L"shell32.dll", {hookEvents, unhookEvents});
    QCOMPARE(driver.run(m_request).nativeCode, 0);
    QCOMPARE(s_hooks.arguments.size(), 5);
    QVERIFY(s_hooks.takenBack.isEmpty());
}

void CommonItemDialogRunTest::apartmentIsLeft_data()
{
    addEndings();
}

void CommonItemDialogRunTest::apartmentIsLeft()
{
    QFETCH(bool, isSave);
    QFETCH(int, ending);
    m_dialogs.reset();
    HRESULT result = S_OK;
    bool hasThrown = false;
    std::thread([&] {
        {
            // The dialogs of the test stand in an apartment that ends before, and is entered anew.
            const ComApartment apartment;
            m_dialogs = std::make_unique<FakeItemDialogs>(m_script);
            hasThrown = runTo(m_driver, isSave, ending);
            m_dialogs.reset();
        }
        APTTYPE type = APTTYPE_CURRENT;
        APTTYPEQUALIFIER qualifier = APTTYPEQUALIFIER_NONE;
        result = CoGetApartmentType(&type, &qualifier);
    }).join();
    QCOMPARE(m_script.dialogs, 1);
    QCOMPARE(hasThrown, ending == Thrown);
    QCOMPARE(result, CO_E_NOTINITIALIZED);
}

void CommonItemDialogRunTest::aMultithreadedApartmentIsRefused()
{
    // A dialog could be had on that thread, and would hang.
    m_dialogs.reset();
    FileDialogResult opened;
    std::thread([&] {
        CoInitializeEx(nullptr, COINIT_MULTITHREADED);
        m_dialogs = std::make_unique<FakeItemDialogs>(m_script);
        opened = m_driver.run(m_request);
        m_dialogs.reset();
        CoUninitialize();
    }).join();
    QCOMPARE(opened.nativeCode, std::int32_t(RPC_E_CHANGED_MODE));
    QCOMPARE(m_script.dialogs, 0);
}

void CommonItemDialogRunTest::handlerThatThrowsClosesTheDialogAndIsUnadvised()
{
    addControls();
    QVERIFY(runTo(m_driver, false, Thrown));
    const QStringList calls = m_script.calls.names();
    QCOMPARE(calls.count(QStringLiteral("Close")), 1);
    QVERIFY(!calls.contains(QStringLiteral("GetResults")));
    QCOMPARE(calls.count(QStringLiteral("Unadvise")), 2);
}

void CommonItemDialogRunTest::placingStartsAgainUntilVisible()
{
    GeometryByTurns configuration(QStringLiteral("Turns"));
    QWidget window;
    m_script.window = reinterpret_cast<HWND>(window.winId());
    m_handler.reaction = [&](const FileDialogCallbackInterface& callbacks) {
        callbacks.placeDialog(&configuration);
    };
    const QRect last(60, 70, 500, 400);
    QRect placed;
    m_script.whileShown = [&](IFileDialog* dialog,
                              const std::vector<IFileDialogEvents*>& listeners) {
        listeners[1]->OnTypeChange(dialog);
        QCOMPARE(configuration.turns, 0);
        QTRY_VERIFY(configuration.turns >= 3);
        configuration.place = last;
        window.show();
        RECT rect{};
        QTRY_VERIFY(GetWindowRect(m_script.window, &rect) && rect.left == last.left() &&
                    rect.right - rect.left == last.width());
        placed = QRect(rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top);
    };
    QCOMPARE(m_driver.run(m_request).nativeCode, 0);
    QCOMPARE(placed, last);
}

ZORVANE_TEST(CommonItemDialogRunTest)
#include "CommonItemDialogRunTest.moc"
