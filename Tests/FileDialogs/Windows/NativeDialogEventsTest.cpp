#include "FileDialogs/FileDialogDriver.h"
#include "FileDialogs/ScreenGeometry.h"
#include "FileDialogs/Windows/CFileOpenDialogEventHandler.h"
#include "FileDialogs/Windows/DialogGuard.h"
#include "Files/Windows/ComApartment.h"
#include "Files/Windows/ComPointer.h"
#include "Tests/FileDialogs/Windows/NativeDialogFixture.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Support/Windows/DialogPilot.h"

#include <QtCore/QSettings>

#include <algorithm>
#include <optional>
#include <stdexcept>

using namespace Zorvane;
using Testing::DialogPilot;
using Testing::DialogWindow;
using Testing::EventRecorder;
using Testing::GeometryRecorder;

namespace {

using CustomItem = FileDialogConfiguration::CustomItem;

enum ControlId
{
    Preview = 5,
    Unit = 6,
    Quality = 7,
    Repair = 8,
    Secret = 9
};

CustomItem checkBox(int id, const char* label, bool isChecked)
{
    CustomItem item;
    item.controlId = id;
    item.content = QString::fromLatin1(label);
    item.initialValue = isChecked;
    return item;
}

CustomItem comboBox(int id, const QStringList& texts, int selected)
{
    CustomItem item;
    item.controlId = id;
    item.controlType = FileDialogConfiguration::ComboBox;
    item.content = texts;
    item.initialValue = selected;
    return item;
}

void addControls(FileDialogConfiguration& configuration)
{
    CustomItem unit = comboBox(Unit, {QStringLiteral("mm"), QStringLiteral("inch")}, 1);
    unit.groupLabel = QStringLiteral("Unit");
    CustomItem quality = comboBox(
        Quality, {QStringLiteral("low"), QStringLiteral("middle"), QStringLiteral("high")}, 0);
    quality.groupLabel = QStringLiteral("Quality");
    quality.prominent = true;
    CustomItem repair = checkBox(Repair, "Repair", false);
    repair.controlState = FileDialogConfiguration::ControlVisible;
    CustomItem secret = checkBox(Secret, "Secret", false);
    secret.controlState = FileDialogConfiguration::ControlEnabled;
    for (const CustomItem& item :
         {checkBox(Preview, "Show preview", true), unit, quality, repair, secret})
        configuration.addCustomControl(item);
}

QRect rectOf(const RECT& rect)
{
    return {QPoint(rect.left, rect.top), QPoint(rect.right, rect.bottom)};
}

void raise(DWORD event, HWND window, LONG object = OBJID_WINDOW)
{
    NotifyWinEvent(event, window, object, CHILDID_SELF);
}

} // namespace

class NativeDialogEventsTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void controlsAreThere();
    void withoutAHandlerNoControlsAreShown();
    void eventsComeInOrder();
    void selectionIsInOrderOfTheFileNameBox();
    void nothingSelectedIsAnEmptySelection();
    void handlerThatThrowsClosesTheDialog_data();
    void handlerThatThrowsClosesTheDialog();
    void handlerThatThrowsAtOnceEndsTheCall();
    void configurationThatThrowsClosesTheDialog_data();
    void configurationThatThrowsClosesTheDialog();
    void handlerSetsStatesOfControls();
    void handlerIsToldTheGeometry();
    void handlerPlacesTheDialog();
    void theDialogIsPlacedAsSoonAsVisible();
    void maximizedDialogIsPlaced();
    void placingADialogThatIsGone();
    void geometryIsRecorded();
    void recordedDialog_isPlacedAsItWas();
    void otherEventsAreNotRecorded();
    void nothingIsRecordedAfterwards();
    void withoutAConfigurationGeometryGoesToTheStandardKey_data();
    void withoutAConfigurationGeometryGoesToTheStandardKey();
    void nestedDialogsRecordEachItsOwn();

private:
    void renewConfiguration();
    FileDialogResult open() { return createNativeFileDialogDriver()->run(m_request); }
    /** Opens a dialog and cancels it after the steps. */
    void runToTheEnd(DialogPilot& pilot)
    {
        pilot.then([](const DialogWindow& dialog) { dialog.cancel(); });
        QVERIFY(open().isCancelled());
        QVERIFY(pilot.isDone());
    }

    std::optional<Testing::DialogFolder> m_folder;
    FileDialogRequest m_request;
    std::optional<EventRecorder> m_handler;
    std::optional<GeometryRecorder> m_configuration;
};

void NativeDialogEventsTest::init()
{
    QSettings().clear();
    m_folder.emplace();
    m_request = m_folder->request();
    renewConfiguration();
}

void NativeDialogEventsTest::renewConfiguration()
{
    m_handler.emplace();
    m_configuration.emplace(QStringLiteral("Events"));
    m_configuration->setEventHandler(&*m_handler);
    m_request.configuration = &*m_configuration;
}

void NativeDialogEventsTest::cleanup()
{
    QVERIFY(DialogWindow::all().empty());
    m_folder.reset();
    TestCase::cleanup();
}

void NativeDialogEventsTest::controlsAreThere()
{
    addControls(*m_configuration);
    DialogPilot pilot;
    pilot.then([](const DialogWindow& dialog) {
        const HWND preview = dialog.findControl(L"Button", QStringLiteral("Show preview"));
        QVERIFY(preview);
        QCOMPARE(SendMessageW(preview, BM_GETCHECK, 0, 0), LRESULT(BST_CHECKED));
        QVERIFY(IsWindowVisible(preview));
        QVERIFY(IsWindowEnabled(preview));

        const std::vector<HWND> boxes = dialog.comboBoxes();
        QCOMPARE(boxes.size(), 2U);
        QCOMPARE(Testing::itemsOf(boxes[0]),
                 QStringList({QStringLiteral("mm"), QStringLiteral("inch")}));
        QCOMPARE(Testing::selectedItemOf(boxes[0]), 1);
        QCOMPARE(Testing::itemsOf(boxes[1]).size(), 3);
        QCOMPARE(Testing::selectedItemOf(boxes[1]), 0);
        QVERIFY(dialog.findControl(L"Static", QStringLiteral("Unit")));
        QVERIFY(dialog.findControl(L"Static", QStringLiteral("Quality")));

        const HWND repair = dialog.findControl(L"Button", QStringLiteral("Repair"));
        QVERIFY(IsWindowVisible(repair));
        QVERIFY(!IsWindowEnabled(repair));
        QCOMPARE(SendMessageW(repair, BM_GETCHECK, 0, 0), LRESULT(BST_UNCHECKED));
        QVERIFY(!IsWindowVisible(dialog.findControl(L"Button", QStringLiteral("Secret"))));
    });
    runToTheEnd(pilot);
}

void NativeDialogEventsTest::withoutAHandlerNoControlsAreShown()
{
    addControls(*m_configuration);
    m_configuration->setEventHandler(nullptr);
    DialogPilot pilot;
    pilot.then([](const DialogWindow& dialog) {
        QVERIFY(!dialog.findControl(L"Button", QStringLiteral("Show preview")));
        QVERIFY(dialog.comboBoxes().empty());
    });
    runToTheEnd(pilot);
    QVERIFY(m_handler->events.isEmpty());
}

void NativeDialogEventsTest::eventsComeInOrder()
{
    addControls(*m_configuration);
    DialogPilot pilot;
    pilot.waitUntil("files in the list",
                    [](const DialogWindow& dialog) { return !dialog.files().isEmpty(); });
    pilot.then([](const DialogWindow& dialog) { dialog.selectFiles({QStringLiteral("b.stl")}); });
    pilot.then([](const DialogWindow& dialog) {
        dialog.click(dialog.findControl(L"Button", QStringLiteral("Show preview")));
    });
    pilot.then([](const DialogWindow& dialog) { dialog.chooseItem(dialog.comboBoxes()[1], 2); });
    pilot.then([](const DialogWindow& dialog) {
        dialog.click(dialog.findControl(L"Button", QStringLiteral("Show preview")));
    });
    pilot.then([](const DialogWindow& dialog) { dialog.chooseItem(dialog.comboBoxes()[0], 0); });
    pilot.then([](const DialogWindow& dialog) { dialog.chooseFileType(1); });
    pilot.then([](const DialogWindow& dialog) { dialog.accept(); });
    const FileDialogResult result = open();
    QVERIFY(pilot.isDone());
    QCOMPARE(result.paths, QStringList{m_folder->path("b.stl")});
    // The first is the type that the dialog opens with. The new type shows other files.
    const QStringList expected{QStringLiteral("type"),
                               QStringLiteral("selected b.stl"),
                               QStringLiteral("check box 5 off"),
                               QStringLiteral("item 2 of 7"),
                               QStringLiteral("check box 5 on"),
                               QStringLiteral("item 0 of 6"),
                               QStringLiteral("type")};
    QCOMPARE(Testing::withoutRepeatedSelections(m_handler->events), expected);
}

void NativeDialogEventsTest::selectionIsInOrderOfTheFileNameBox()
{
    m_request.purpose = FileDialogPurpose::OpenFiles;
    DialogPilot pilot;
    pilot.waitUntil("files in the list",
                    [](const DialogWindow& dialog) { return !dialog.files().isEmpty(); });
    pilot.then([](const DialogWindow& dialog) {
        dialog.selectFiles({QStringLiteral("c d.obj"), QStringLiteral("a.stl")});
    });
    pilot.then([this](const DialogWindow& dialog) {
        const QString box = dialog.fileName();
        const bool isSecondFirst =
            box.indexOf(QLatin1String("c d.obj")) < box.indexOf(QLatin1String("a.stl"));
        QStringList expected{m_folder->path("a.stl"), m_folder->path("c d.obj")};
        if (isSecondFirst)
            std::reverse(expected.begin(), expected.end());
        QCOMPARE(m_handler->selections.back(), expected);
    });
    runToTheEnd(pilot);
}

void NativeDialogEventsTest::nothingSelectedIsAnEmptySelection()
{
    // A dialog that is not shown has no selection, and fails to give it.
    const ComApartment apartment;
    ComPointer<IFileOpenDialog> dialog;
    QCOMPARE(CoCreateInstance(CLSID_FileOpenDialog, nullptr, CLSCTX_INPROC_SERVER,
                              IID_PPV_ARGS(dialog.put())),
             S_OK);
    ComPointer<IShellItemArray> items;
    QVERIFY(FAILED(dialog->GetSelectedItems(items.put())));
    const auto guard = std::make_shared<DialogGuard>(dialog.get());
    const auto events = ComPointer<CFileOpenDialogEventHandler>::adopt(
        new CFileOpenDialogEventHandler(*m_handler, *guard));
    QCOMPARE(events->OnSelectionChange(dialog.get()), S_OK);
    QCOMPARE(m_handler->selections.size(), 1U);
    QVERIFY(m_handler->selections.front().isEmpty());
}

void NativeDialogEventsTest::handlerThatThrowsClosesTheDialog_data()
{
    QTest::addColumn<bool>("isControl");
    QTest::newRow("at an event of the dialog") << false;
    QTest::newRow("at an event of a control") << true;
}

void NativeDialogEventsTest::handlerThatThrowsClosesTheDialog()
{
    QFETCH(bool, isControl);
    addControls(*m_configuration);
    DialogPilot pilot;
    pilot.waitUntil("files in the list",
                    [](const DialogWindow& dialog) { return !dialog.files().isEmpty(); });
    pilot.then([&](const DialogWindow& dialog) {
        m_handler->reaction = [](const FileDialogCallbackInterface&) {
            throw std::length_error("too long");
        };
        if (isControl)
            dialog.click(dialog.findControl(L"Button", QStringLiteral("Show preview")));
        else
            dialog.selectFiles({QStringLiteral("b.stl")});
    });
    QVERIFY_EXCEPTION_THROWN(open(), std::length_error);
    QVERIFY(pilot.isDone());
    // The next dialog starts afresh.
    m_handler->reaction = nullptr;
    DialogPilot next;
    runToTheEnd(next);
}

void NativeDialogEventsTest::handlerThatThrowsAtOnceEndsTheCall()
{
    // The first event comes before the dialog is visible.
    m_handler->reaction = [](const FileDialogCallbackInterface&) {
        throw std::length_error("too long");
    };
    QVERIFY_EXCEPTION_THROWN(open(), std::length_error);
    QCOMPARE(m_handler->events.size(), 1);
}

void NativeDialogEventsTest::configurationThatThrowsClosesTheDialog_data()
{
    QTest::addColumn<bool>("isPlacing");
    QTest::newRow("storing the geometry") << false;
    QTest::newRow("telling the place") << true;
}

void NativeDialogEventsTest::configurationThatThrowsClosesTheDialog()
{
    QFETCH(bool, isPlacing);
    addControls(*m_configuration);
    int calls = 0;
    (isPlacing ? m_configuration->onPlace : m_configuration->onStore) = [&] {
        ++calls;
        throw std::length_error("too long");
    };
    DialogPilot pilot;
    pilot.then([&](const DialogWindow& dialog) {
        m_handler->reaction = [this](const FileDialogCallbackInterface& callbacks) {
            callbacks.placeDialog(&*m_configuration);
        };
        if (isPlacing)
            dialog.click(dialog.findControl(L"Button", QStringLiteral("Show preview")));
        else
            raise(EVENT_SYSTEM_MOVESIZEEND, dialog.handle());
    });
    QVERIFY_EXCEPTION_THROWN(open(), std::length_error);
    QVERIFY(pilot.isDone());
    QCOMPARE(calls, 1);
    // The next dialog starts afresh.
    renewConfiguration();
    DialogPilot next;
    runToTheEnd(next);
}

void NativeDialogEventsTest::handlerSetsStatesOfControls()
{
    addControls(*m_configuration);
    DialogPilot pilot;
    pilot.then([this](const DialogWindow& dialog) {
        m_handler->reaction = [](const FileDialogCallbackInterface& callbacks) {
            callbacks.setControlState(Unit, FileDialogConfiguration::ControlVisible);
            callbacks.setControlState(Repair, FileDialogConfiguration::ControlEnabledVisible);
            callbacks.setControlState(Quality, 0);
            callbacks.setControlState(12345, FileDialogConfiguration::ControlEnabledVisible);
        };
        dialog.click(dialog.findControl(L"Button", QStringLiteral("Show preview")));
    });
    pilot.then([](const DialogWindow& dialog) {
        QVERIFY(!IsWindowEnabled(dialog.comboBoxes()[0]));
        QVERIFY(IsWindowVisible(dialog.comboBoxes()[0]));
        QVERIFY(!IsWindowVisible(dialog.comboBoxes()[1]));
        QVERIFY(IsWindowEnabled(dialog.findControl(L"Button", QStringLiteral("Repair"))));
    });
    runToTheEnd(pilot);
}

void NativeDialogEventsTest::handlerIsToldTheGeometry()
{
    addControls(*m_configuration);
    QRect fromCheckBox;
    QRect fromSelection;
    DialogPilot pilot;
    pilot.waitUntil("files in the list",
                    [](const DialogWindow& dialog) { return !dialog.files().isEmpty(); });
    pilot.then([&](const DialogWindow& dialog) {
        m_handler->reaction = [&](const FileDialogCallbackInterface& callbacks) {
            fromCheckBox = callbacks.getDialogGeometry();
        };
        dialog.click(dialog.findControl(L"Button", QStringLiteral("Show preview")));
    });
    pilot.then([&](const DialogWindow& dialog) {
        m_handler->reaction = [&](const FileDialogCallbackInterface& callbacks) {
            fromSelection = callbacks.getDialogGeometry();
        };
        dialog.selectFiles({QStringLiteral("b.stl")});
    });
    pilot.then([&](const DialogWindow& dialog) {
        const RECT rect = dialog.rectangle();
        const QRect expected(rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top);
        QCOMPARE(fromCheckBox, expected);
        QCOMPARE(fromCheckBox.right(), int(rect.right - 1));
        QCOMPARE(fromSelection, expected);
    });
    runToTheEnd(pilot);
}

void NativeDialogEventsTest::handlerPlacesTheDialog()
{
    addControls(*m_configuration);
    const QRect place(20, 30, 700, 510);
    DialogPilot pilot;
    pilot.then([&](const DialogWindow& dialog) {
        m_configuration->storeFileDialogGeometry(place.translated(50, 60));
        m_handler->reaction = [&, this](const FileDialogCallbackInterface& callbacks) {
            const QRect before = callbacks.getDialogGeometry();
            callbacks.placeDialog(&*m_configuration);
            callbacks.placeDialog(nullptr);
            // Not before the event is over, and to where the dialog belongs by then.
            QCOMPARE(callbacks.getDialogGeometry(), before);
            m_configuration->storeFileDialogGeometry(place);
        };
        dialog.click(dialog.findControl(L"Button", QStringLiteral("Show preview")));
    });
    pilot.waitUntil("the dialog at its place", [&](const DialogWindow& dialog) {
        const RECT rect = dialog.rectangle();
        return QRect(rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top) == place;
    });
    runToTheEnd(pilot);
}

void NativeDialogEventsTest::theDialogIsPlacedAsSoonAsVisible()
{
    // The dialog tells of its first file type before it is visible.
    const QRect place(40, 50, 720, 530);
    m_configuration->storeFileDialogGeometry(place);
    bool wasVisible = true;
    m_handler->reaction = [&](const FileDialogCallbackInterface& callbacks) {
        wasVisible = !DialogWindow::all().empty();
        callbacks.placeDialog(&*m_configuration);
        m_handler->reaction = nullptr;
    };
    DialogPilot pilot;
    pilot.waitUntil("the dialog at its place", [&](const DialogWindow& dialog) {
        const RECT rect = dialog.rectangle();
        return QRect(rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top) == place;
    });
    runToTheEnd(pilot);
    QVERIFY(!wasVisible);
}

void NativeDialogEventsTest::maximizedDialogIsPlaced()
{
    addControls(*m_configuration);
    const QRect place(10, 20, 710, 500);
    m_configuration->storeFileDialogGeometry(place);
    DialogPilot pilot;
    pilot.then([&](const DialogWindow& dialog) {
        ShowWindow(dialog.handle(), SW_SHOWMAXIMIZED);
        QVERIFY(IsZoomed(dialog.handle()));
        m_handler->reaction = [this](const FileDialogCallbackInterface& callbacks) {
            callbacks.placeDialog(&*m_configuration);
        };
        dialog.click(dialog.findControl(L"Button", QStringLiteral("Show preview")));
    });
    pilot.waitUntil("the dialog at its place", [&](const DialogWindow& dialog) {
        const RECT rect = dialog.rectangle();
        return !IsZoomed(dialog.handle()) && rect.left == place.left() &&
               rect.right - rect.left == place.width();
    });
    runToTheEnd(pilot);
}

void NativeDialogEventsTest::placingADialogThatIsGone()
{
    // The handler places the dialog with the user's last word, so that the window goes first.
    addControls(*m_configuration);
    std::optional<FileDialogConfiguration> shortLived(QStringLiteral("Gone"));
    DialogPilot pilot;
    pilot.then([&](const DialogWindow& dialog) {
        m_handler->reaction = [&](const FileDialogCallbackInterface& callbacks) {
            callbacks.placeDialog(&*shortLived);
            dialog.cancel();
        };
        dialog.click(dialog.findControl(L"Button", QStringLiteral("Show preview")));
    });
    QVERIFY(open().isCancelled());
    QVERIFY(pilot.isDone());
    shortLived.reset();
    // A later dialog is at its place only after the time of the first one has come.
    renewConfiguration();
    handlerPlacesTheDialog();
}

void NativeDialogEventsTest::geometryIsRecorded()
{
    QRect moved;
    DialogPilot pilot;
    pilot.then([&](const DialogWindow& dialog) {
        MoveWindow(dialog.handle(), 33, 44, 755, 544, TRUE);
        moved = rectOf(dialog.rectangle());
        raise(EVENT_SYSTEM_MOVESIZEEND, dialog.handle());
    });
    pilot.waitUntil("a recorded move",
                    [&](const DialogWindow&) { return m_configuration->stored.size() == 1; });
    pilot.then([&](const DialogWindow& dialog) {
        QCOMPARE(m_configuration->stored.back(), moved);
        MoveWindow(dialog.handle(), 55, 66, 777, 566, TRUE);
        moved = rectOf(dialog.rectangle());
        raise(EVENT_SYSTEM_DIALOGEND, dialog.handle());
    });
    pilot.waitUntil("a recorded end",
                    [&](const DialogWindow&) { return m_configuration->stored.size() == 2; });
    runToTheEnd(pilot);
    // Corners as the system has them: one pixel more than the geometry that handlers are told.
    QCOMPARE(m_configuration->stored[1], QRect(QPoint(55, 66), QPoint(55 + 777, 66 + 566)));
    QCOMPARE(m_configuration->stored[1], moved);
    QRect stored;
    QVERIFY(FileDialogConfiguration(QStringLiteral("Events")).getFileDialogGeometry(stored));
    QCOMPARE(stored, moved);
}

void NativeDialogEventsTest::recordedDialog_isPlacedAsItWas()
{
    addControls(*m_configuration);
    const RECT left{33, 44, 33 + 755, 44 + 544};
    const auto isAsLeft = [&left](const DialogWindow& dialog) {
        const RECT rect = dialog.rectangle();
        return EqualRect(&rect, &left) != FALSE;
    };
    DialogPilot pilot;
    pilot.then([&](const DialogWindow& dialog) {
        MoveWindow(dialog.handle(), 33, 44, 755, 544, TRUE);
        raise(EVENT_SYSTEM_MOVESIZEEND, dialog.handle());
    });
    pilot.waitUntil("a record",
                    [&](const DialogWindow&) { return m_configuration->stored.size() == 1; });
    runToTheEnd(pilot);

    // Placed twice, in a dialog that opens elsewhere, and recorded again.
    for (int i = 0; i < 2; ++i) {
        m_configuration->stored.clear();
        m_handler->reaction = [this](const FileDialogCallbackInterface& callbacks) {
            m_handler->reaction = nullptr;
            callbacks.placeDialog(&*m_configuration);
        };
        DialogPilot again;
        again.waitUntil("the dialog as it was left", isAsLeft);
        again.then(
            [](const DialogWindow& dialog) { raise(EVENT_SYSTEM_MOVESIZEEND, dialog.handle()); });
        again.waitUntil("another record",
                        [&](const DialogWindow&) { return m_configuration->stored.size() == 1; });
        runToTheEnd(again);
        QCOMPARE(m_configuration->stored.back(), QRect(QPoint(33, 44), QPoint(788, 588)));
    }
}

void NativeDialogEventsTest::otherEventsAreNotRecorded()
{
    DialogPilot pilot;
    pilot.then([&](const DialogWindow& dialog) {
        raise(EVENT_SYSTEM_MOVESIZEEND, dialog.handle(), OBJID_CLIENT);
        raise(EVENT_SYSTEM_MOVESIZEEND, dialog.handle(), OBJID_CURSOR);
        raise(EVENT_SYSTEM_CONTEXTHELPSTART, dialog.handle());
        raise(EVENT_SYSTEM_DIALOGSTART, dialog.handle());
        raise(EVENT_SYSTEM_MOVESIZESTART, dialog.handle());
        raise(EVENT_SYSTEM_MOVESIZEEND, HWND(nullptr));
        // The last one is recorded, and comes behind all others.
        raise(EVENT_SYSTEM_MOVESIZEEND, dialog.handle());
    });
    pilot.waitUntil("the last event",
                    [&](const DialogWindow&) { return !m_configuration->stored.empty(); });
    runToTheEnd(pilot);
    QCOMPARE(m_configuration->stored.size(), 1U);
}

void NativeDialogEventsTest::nothingIsRecordedAfterwards()
{
    QWidget window;
    window.show();
    const auto handle = reinterpret_cast<HWND>(window.winId());
    DialogPilot pilot;
    // Any window counts while the dialog is open.
    pilot.then([&](const DialogWindow&) { raise(EVENT_SYSTEM_MOVESIZEEND, handle); });
    pilot.waitUntil("a recorded move",
                    [&](const DialogWindow&) { return m_configuration->stored.size() == 1; });
    runToTheEnd(pilot);
    // A later dialog hears of moves after the first one would have.
    GeometryRecorder later(QStringLiteral("Later"));
    m_request.configuration = &later;
    DialogPilot next;
    raise(EVENT_SYSTEM_MOVESIZEEND, handle);
    next.then([&](const DialogWindow&) { raise(EVENT_SYSTEM_MOVESIZEEND, handle); });
    next.waitUntil("a record of the later dialog",
                   [&](const DialogWindow&) { return !later.stored.empty(); });
    runToTheEnd(next);
    QCOMPARE(m_configuration->stored.size(), 1U);
}

void NativeDialogEventsTest::withoutAConfigurationGeometryGoesToTheStandardKey_data()
{
    QTest::addColumn<bool>("isSave");
    QTest::newRow("open") << false;
    QTest::newRow("save") << true;
}

void NativeDialogEventsTest::withoutAConfigurationGeometryGoesToTheStandardKey()
{
    QFETCH(bool, isSave);
    m_request.configuration = nullptr;
    QRect stored;
    FileDialogConfiguration standard;
    DialogPilot pilot;
    pilot.then([&](const DialogWindow& dialog) {
        MoveWindow(dialog.handle(), 33, 44, 755, 544, TRUE);
        raise(EVENT_SYSTEM_MOVESIZEEND, dialog.handle());
    });
    pilot.waitUntil("stored geometry",
                    [&](const DialogWindow&) { return standard.getFileDialogGeometry(stored); });
    pilot.then([](const DialogWindow& dialog) { dialog.cancel(); });
    const auto driver = createNativeFileDialogDriver();
    QVERIFY((isSave ? driver->run(Testing::forSaving(m_request)) : driver->run(m_request))
                .isCancelled());
    QVERIFY(pilot.isDone());
    QCOMPARE(stored, QRect(QPoint(33, 44), QPoint(33 + 755, 44 + 544)));
    QCOMPARE(QSettings().value(QStringLiteral("StandardFileDialog/topLeft")).toPoint(),
             QPoint(33, 44));
    QVERIFY(m_configuration->stored.empty());
    QVERIFY(m_handler->events.isEmpty());
}

void NativeDialogEventsTest::nestedDialogsRecordEachItsOwn()
{
    addControls(*m_configuration);
    GeometryRecorder inner(QStringLiteral("Inner"));
    FileDialogRequest innerRequest = m_folder->request();
    innerRequest.configuration = &inner;
    DialogPilot pilot;
    bool isInnerDone = false;
    m_handler->reaction = nullptr;
    pilot.then([&](const DialogWindow& dialog) {
        m_handler->reaction = [&](const FileDialogCallbackInterface&) {
            m_handler->reaction = nullptr;
            DialogPilot innerPilot;
            innerPilot.then(
                [](const DialogWindow& box) { raise(EVENT_SYSTEM_MOVESIZEEND, box.handle()); });
            innerPilot.waitUntil("both records", [&](const DialogWindow&) {
                return inner.stored.size() == 1 && m_configuration->stored.size() == 1;
            });
            innerPilot.then([](const DialogWindow& box) { box.cancel(); });
            QVERIFY(createNativeFileDialogDriver()->run(innerRequest).isCancelled());
            QVERIFY(innerPilot.isDone());
            isInnerDone = true;
        };
        dialog.click(dialog.findControl(L"Button", QStringLiteral("Show preview")));
    });
    pilot.waitUntil("the end of the inner dialog",
                    [&](const DialogWindow&) { return isInnerDone; });
    pilot.then(
        [](const DialogWindow& dialog) { raise(EVENT_SYSTEM_MOVESIZEEND, dialog.handle()); });
    pilot.waitUntil("a record of the outer dialog alone",
                    [&](const DialogWindow&) { return m_configuration->stored.size() == 2; });
    runToTheEnd(pilot);
    QCOMPARE(inner.stored.size(), 1U);
}

ZORVANE_TEST(NativeDialogEventsTest)
#include "NativeDialogEventsTest.moc"
