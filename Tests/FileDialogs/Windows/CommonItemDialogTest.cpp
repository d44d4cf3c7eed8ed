#include "FileDialogs/Windows/CommonItemDialogDriver.h"

#include "FileDialogs/FileDialog.h"
#include "FileDialogs/Windows/DialogEvents.h"
#include "FileDialogs/Windows/WinFileDialogCallbacks.h"
#include "Tests/FileDialogs/DialogFixtures.h"
#include "Tests/FileDialogs/Windows/CommonItemDialogTestCase.h"
#include "Tests/Support/ExpectedModals.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Support/Windows/SpyItemArray.h"

#include <stdexcept>

using namespace Zorvane;
using Testing::item;
using Testing::s_failure;

namespace {

/** Without arguments: folders have another name in each test. */
QStringList namesOf(QStringList calls)
{
    return calls.replaceInStrings(QRegularExpression(QStringLiteral("\\(.*")), QString());
}

/** Calls whose failure the dialog is shown without. */
bool isSkippedOnFailure(const QString& name)
{
    return name == QLatin1String("SetFolder") || name == QLatin1String("AddPlace") ||
           name == QLatin1String("Unadvise");
}

/** One call of them fails in each row. */
void addRowForEach(const QStringList& calls)
{
    QTest::addColumn<int>("place");
    QTest::addColumn<QStringList>("calls");
    for (int i = 0; i < calls.size(); ++i)
        QTest::addRow("%d, %s", i, qPrintable(calls.at(i))) << i << calls;
}

} // namespace

/** What a dialog is asked, call by call, and what becomes of a call that fails. */
class CommonItemDialogTest : public Testing::CommonItemDialogTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void openInThisOrder();
    void saveInThisOrder();
    void plainOpenAsksForNoMore();
    void controlsInThisOrder();
    void controlOfAnUnknownTypeLeavesItsGroupEmpty();
    void optionsAreAdded_data();
    void optionsAreAdded();
    void resultsInTheirOrder();
    void cancelIsTold();
    void oneFailureOfOpen_data();
    void oneFailureOfOpen();
    void oneFailureOfSave_data();
    void oneFailureOfSave();
    void listenersGetEventsByTheirInterfaces();
    void listenersLeaveQuestionsToTheDialog();
    void aFailureInAnEventStillTellsTheHandler_data();
    void aFailureInAnEventStillTellsTheHandler();
    void selectionFollowsTheFileNameBox();
    void callbacksOfADialogWithoutControls();
    void foldersOfEveryKind_data();
    void foldersOfEveryKind();
    void saveUnderAConfiguration_hasItsControlsAndEvents();
    void cancelInAnyForm_isACancel_data();
    void cancelInAnyForm_isACancel();
    void emptyPlaceIsNone();
    void aListenerThatCannotBeMadeIsNotAdvised();
    void facadeTakesTheNativeDialog();
    void facadeFallsBack_data();
    void facadeFallsBack();
    void facadeFallsBackForSave();

private:
    void expectFailure(const FileDialogResult& result, int place, const QStringList& calls);
};

void CommonItemDialogTest::openInThisOrder()
{
    const QString folder = m_folder->folder();
    const QStringList expected{
        QStringLiteral("Create"),
        QStringLiteral("SetTitle(Choose a Part)"),
        QStringLiteral("GetOptions"),
        QStringLiteral("SetOptions(%1)").arg(0x800 + 0x200 + 0x40),
        QStringLiteral("SetFileTypes(Meshes (*.stl *.obj)=*.stl;*.obj|All Files (*.*)=*.*)"),
        QStringLiteral("SetFileTypeIndex(0)"),
        QStringLiteral("SetDefaultExtension(*.*)"),
        QStringLiteral("SetFolder(%1)").arg(folder),
        QStringLiteral("SetFileName(a.stl)"),
        QStringLiteral("Advise"),
        QStringLiteral("AddPlace(%1,0)").arg(folder),
        QStringLiteral("AddPlace(%1,0)").arg(folder),
        QStringLiteral("Advise"),
        QStringLiteral("QueryCustomize"),
        QStringLiteral("Show"),
        QStringLiteral("GetResults"),
        QStringLiteral("GetCount"),
        QStringLiteral("GetItemAt(0)"),
        QStringLiteral("GetDisplayName"),
        QStringLiteral("GetItemAt(1)"),
        QStringLiteral("GetDisplayName"),
        QStringLiteral("Unadvise(2)"),
        QStringLiteral("Unadvise(1)")};
    QCOMPARE(openCalls(), expected);
    QVERIFY(!m_script.owner);
}

void CommonItemDialogTest::saveInThisOrder()
{
    m_request.configuration = nullptr;
    const QString folder = m_folder->folder();
    const QStringList expected{
        QStringLiteral("Create"),
        QStringLiteral("SetTitle(Choose a Part)"),
        QStringLiteral("GetOptions"),
        QStringLiteral("SetOptions(%1)").arg(0x800 + 0x40),
        QStringLiteral("SetFileTypes(Meshes (*.stl *.obj)=*.stl;*.obj|All Files (*.*)=*.*)"),
        QStringLiteral("SetFileTypeIndex(0)"),
        QStringLiteral("SetDefaultExtension(*.*)"),
        QStringLiteral("SetFolder(%1)").arg(folder),
        QStringLiteral("SetFileName(a.stl)"),
        QStringLiteral("Advise"),
        QStringLiteral("AddPlace(%1,0)").arg(folder),
        QStringLiteral("AddPlace(%1,0)").arg(folder),
        QStringLiteral("Show"),
        QStringLiteral("GetResult"),
        QStringLiteral("GetDisplayName"),
        QStringLiteral("Unadvise(1)")};
    QCOMPARE(saveCalls(), expected);
}

void CommonItemDialogTest::plainOpenAsksForNoMore()
{
    QWidget owner;
    m_request = {};
    m_request.owner = &owner;
    const QStringList expected{QStringLiteral("Create"),
                               QStringLiteral("SetTitle()"),
                               QStringLiteral("GetOptions"),
                               QStringLiteral("SetOptions(%1)").arg(0x800 + 0x40),
                               QStringLiteral("SetFileTypes(All Files (*.*)=*.*)"),
                               QStringLiteral("SetFileTypeIndex(0)"),
                               QStringLiteral("SetDefaultExtension(null)"),
                               QStringLiteral("Show"),
                               QStringLiteral("GetResults"),
                               QStringLiteral("GetCount")};
    m_script.results.clear();
    QCOMPARE(openCalls(), expected);
    QCOMPARE(m_script.owner, reinterpret_cast<HWND>(owner.winId()));
}

void CommonItemDialogTest::controlsInThisOrder()
{
    addControls();
    const QStringList calls = openCalls();
    const int first = calls.indexOf(QStringLiteral("QueryCustomize")) + 1;
    const QStringList expected{QStringLiteral("AddCheckButton(5,Preview,1)"),
                               QStringLiteral("SetControlState(5,3)"),
                               QStringLiteral("MakeProminent(5)"),
                               QStringLiteral("StartVisualGroup(202,Unit)"),
                               QStringLiteral("AddComboBox(6)"),
                               QStringLiteral("AddControlItem(6,0,mm)"),
                               QStringLiteral("AddControlItem(6,1,inch)"),
                               QStringLiteral("SetSelectedControlItem(6,1)"),
                               QStringLiteral("SetControlState(6,2)"),
                               QStringLiteral("EndVisualGroup"),
                               QStringLiteral("MakeProminent(202)"),
                               QStringLiteral("Show")};
    QCOMPARE(QStringList(calls.mid(first, expected.size())), expected);
}

void CommonItemDialogTest::controlOfAnUnknownTypeLeavesItsGroupEmpty()
{
    m_configuration->addCustomControl(item(9, 77, "Group", QStringLiteral("text"), true, true, 1));
    const QStringList calls = openCalls();
    const int first = calls.indexOf(QStringLiteral("QueryCustomize")) + 1;
    const QStringList expected{QStringLiteral("StartVisualGroup(201,Group)"),
                               QStringLiteral("SetControlState(9,1)"),
                               QStringLiteral("EndVisualGroup"),
                               QStringLiteral("MakeProminent(201)"), QStringLiteral("Show")};
    QCOMPARE(QStringList(calls.mid(first, expected.size())), expected);
}

void CommonItemDialogTest::optionsAreAdded_data()
{
    QTest::addColumn<bool>("isMulti");
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    QTest::newRow("one file") << false << 0x1800 << 0x1840;
    QTest::newRow("several files") << true << 0x1800 << 0x1A40;
    QTest::newRow("none before") << false << 0 << 0x40;
    QTest::newRow("there already") << true << 0x240 << 0x240;
}

void CommonItemDialogTest::optionsAreAdded()
{
    QFETCH(bool, isMulti);
    QFETCH(int, before);
    QFETCH(int, after);
    m_request.purpose = isMulti ? FileDialogPurpose::OpenFiles : FileDialogPurpose::OpenFile;
    m_script.options = DWORD(before);
    QVERIFY(openCalls().contains(QStringLiteral("SetOptions(%1)").arg(after)));
}

void CommonItemDialogTest::resultsInTheirOrder()
{
    const FileDialogResult opened = m_driver.run(m_request);
    QCOMPARE(opened.nativeCode, 0);
    QCOMPARE(opened.paths, m_script.results);
    const FileDialogResult saved = m_driver.run(Testing::forSaving(m_request));
    QCOMPARE(saved.nativeCode, 0);
    QCOMPARE(saved.paths, QStringList{m_script.results.front()});
}

void CommonItemDialogTest::cancelIsTold()
{
    m_script.showResult = HRESULT_FROM_WIN32(ERROR_CANCELLED);
    QVERIFY(m_driver.run(m_request).isCancelled());
    QVERIFY(!m_script.calls.names().contains(QStringLiteral("GetResults")));
    QVERIFY(m_driver.run(Testing::forSaving(m_request)).isCancelled());
    QVERIFY(!m_script.calls.names().contains(QStringLiteral("GetResult")));
}

void CommonItemDialogTest::oneFailureOfOpen_data()
{
    init();
    addControls();
    addRowForEach(namesOf(openCalls()));
    cleanup();
}

void CommonItemDialogTest::oneFailureOfOpen()
{
    QFETCH(int, place);
    QFETCH(QStringList, calls);
    addControls();
    m_script.calls.failCallAt(place, s_failure);
    const FileDialogResult result = m_driver.run(m_request);
    expectFailure(result, place, calls);
}

void CommonItemDialogTest::oneFailureOfSave_data()
{
    init();
    addRowForEach(namesOf(saveCalls()));
    cleanup();
}

void CommonItemDialogTest::oneFailureOfSave()
{
    QFETCH(int, place);
    QFETCH(QStringList, calls);
    m_script.calls.failCallAt(place, s_failure);
    const FileDialogResult result = m_driver.run(Testing::forSaving(m_request));
    expectFailure(result, place, calls);
}

void CommonItemDialogTest::expectFailure(const FileDialogResult& result, int place,
                                         const QStringList& calls)
{
    const QStringList made = m_script.calls.names();
    const QString failing = made.at(place);
    if (isSkippedOnFailure(failing)) {
        QCOMPARE(result.nativeCode, 0);
        QCOMPARE(made, calls);
        QVERIFY(!result.paths.isEmpty());
        return;
    }
    QCOMPARE(result.nativeCode, std::int32_t(s_failure));
    QVERIFY(result.isFailure());
    QVERIFY(result.paths.isEmpty());
    // Nothing comes behind the failure but what takes back: each listener goes as it came.
    int listeners = m_script.calls.callsOf(QStringLiteral("Advise")).size();
    if (failing == QLatin1String("Advise"))
        --listeners;
    QCOMPARE(QStringList(made.mid(0, place + 1)), QStringList(calls.mid(0, place + 1)));
    QCOMPARE(made.size(), place + 1 + listeners);
    QCOMPARE(m_script.calls.callsOf(QStringLiteral("Unadvise")).size(), listeners);
}

void CommonItemDialogTest::listenersGetEventsByTheirInterfaces()
{
    m_script.whileShown = [](IFileDialog* dialog,
                             const std::vector<IFileDialogEvents*>& listeners) {
        QCOMPARE(listeners.size(), 2U);
        ComPointer<IFileDialogControlEvents> controls;
        QCOMPARE(listeners[0]->QueryInterface(IID_PPV_ARGS(controls.put())), E_NOINTERFACE);
        QCOMPARE(listeners[1]->QueryInterface(IID_PPV_ARGS(controls.put())), S_OK);
        ComPointer<IFileDialogCustomize> customize;
        QCOMPARE(dialog->QueryInterface(IID_PPV_ARGS(customize.put())), S_OK);
        QCOMPARE(listeners[1]->OnTypeChange(dialog), S_OK);
        QCOMPARE(listeners[1]->OnTypeChange(dialog), S_OK);
        QCOMPARE(controls->OnCheckButtonToggled(customize.get(), 5, TRUE), S_OK);
        QCOMPARE(controls->OnCheckButtonToggled(customize.get(), 5, TRUE), S_OK);
        QCOMPARE(controls->OnCheckButtonToggled(customize.get(), 6, FALSE), S_OK);
        QCOMPARE(controls->OnItemSelected(customize.get(), 7, 2), S_OK);
        QCOMPARE(controls->OnButtonClicked(customize.get(), 7), S_OK);
        QCOMPARE(controls->OnControlActivating(customize.get(), 7), S_OK);
        ComPointer<IUnknown> one;
        ComPointer<IUnknown> other;
        listeners[1]->QueryInterface(IID_PPV_ARGS(one.put()));
        controls->QueryInterface(IID_PPV_ARGS(other.put()));
        QCOMPARE(one.get(), other.get());
    };
    QCOMPARE(m_driver.run(m_request).nativeCode, 0);
    QCOMPARE(m_handler.events,
             QStringList({QStringLiteral("type"), QStringLiteral("type"),
                          QStringLiteral("check box 5 on"), QStringLiteral("check box 5 on"),
                          QStringLiteral("check box 6 off"), QStringLiteral("item 2 of 7")}));
}

void CommonItemDialogTest::listenersLeaveQuestionsToTheDialog()
{
    m_script.whileShown = [](IFileDialog* dialog,
                             const std::vector<IFileDialogEvents*>& listeners) {
        for (IFileDialogEvents* events : listeners) {
            QCOMPARE(events->OnFileOk(dialog), S_OK);
            QCOMPARE(events->OnFolderChanging(dialog, nullptr), S_OK);
            QCOMPARE(events->OnFolderChange(dialog), S_OK);
            FDE_SHAREVIOLATION_RESPONSE violation = FDESVR_DEFAULT;
            QCOMPARE(events->OnShareViolation(dialog, nullptr, &violation), E_NOTIMPL);
            FDE_OVERWRITE_RESPONSE overwrite = FDEOR_DEFAULT;
            QCOMPARE(events->OnOverwrite(dialog, nullptr, &overwrite), E_NOTIMPL);
        }
    };
    QCOMPARE(m_driver.run(m_request).nativeCode, 0);
    QVERIFY(m_handler.events.isEmpty());
}

void CommonItemDialogTest::aFailureInAnEventStillTellsTheHandler_data()
{
    QTest::addColumn<QString>("call");
    QTest::addColumn<QString>("event");
    const QString ordered = QStringLiteral("selected b.stl|a.stl");
    QTest::newRow("none") << QString() << ordered;
    QTest::newRow("no file name") << QStringLiteral("GetFileName")
                                  << QStringLiteral("selected a.stl|b.stl");
    QTest::newRow("no selected items")
        << QStringLiteral("GetSelectedItems") << QStringLiteral("selected ");
    QTest::newRow("no count") << QStringLiteral("GetCount") << QStringLiteral("selected ");
    QTest::newRow("no item") << QStringLiteral("GetItemAt") << QStringLiteral("selected ");
    QTest::newRow("no path") << QStringLiteral("GetDisplayName") << QStringLiteral("selected ");
    QTest::newRow("no open dialog")
        << QStringLiteral("QueryOpenDialog") << QStringLiteral("selected ");
    QTest::newRow("no controls") << QStringLiteral("QueryCustomize") << ordered;
    QTest::newRow("no window to be asked for") << QStringLiteral("QueryWindow") << ordered;
    QTest::newRow("no window") << QStringLiteral("GetWindow") << ordered;
}

void CommonItemDialogTest::aFailureInAnEventStillTellsTheHandler()
{
    QFETCH(QString, call);
    QFETCH(QString, event);
    m_script.selected = QStringList{m_folder->path("a.stl"), m_folder->path("b.stl")};
    m_script.fileNameBox = QStringLiteral("\"b.stl\" \"a.stl\"");
    m_handler.reaction = [](const FileDialogCallbackInterface& callbacks) {
        callbacks.setControlState(5, 3);
        QVERIFY(callbacks.getDialogGeometry().isNull());
    };
    m_script.whileShown = [&](IFileDialog* dialog,
                              const std::vector<IFileDialogEvents*>& listeners) {
        m_script.calls.failCalls(call, s_failure);
        QCOMPARE(listeners[1]->OnSelectionChange(dialog), S_OK);
        QCOMPARE(listeners[0]->OnSelectionChange(dialog), S_OK);
        m_script.calls.failCalls(QString(), S_OK);
    };
    QCOMPARE(m_driver.run(m_request).nativeCode, 0);
    QCOMPARE(m_handler.events, QStringList{event});
    QCOMPARE(m_script.calls.hasCall(QStringLiteral("SetControlState(5,3)")),
             call != QLatin1String("QueryCustomize"));
}

void CommonItemDialogTest::selectionFollowsTheFileNameBox()
{
    m_script.selected =
        QStringList{m_folder->path("a.stl"), m_folder->path("c d.obj"), m_folder->path("b.stl")};
    m_script.fileNameBox = QStringLiteral(" \"c d.obj\" \"b.stl\" \"a.stl\" ");
    m_script.whileShown = [](IFileDialog* dialog,
                             const std::vector<IFileDialogEvents*>& listeners) {
        listeners[1]->OnSelectionChange(dialog);
    };
    m_driver.run(m_request);
    QCOMPARE(
        m_handler.selections.at(0),
        QStringList({m_folder->path("c d.obj"), m_folder->path("b.stl"), m_folder->path("a.stl")}));
}

void CommonItemDialogTest::callbacksOfADialogWithoutControls()
{
    const WinFileDialogCallbacks callbacks(nullptr, {});
    callbacks.setControlState(5, 3);
    callbacks.placeDialog(&*m_configuration);
    QVERIFY(callbacks.getDialogGeometry().isNull());
    // Something that is no dialog at all.
    const auto array = ComPointer<IUnknown>::adopt(new Testing::SpyItemArray({}, m_script.calls));
    const WinFileDialogCallbacks wrong(array.get(), {});
    wrong.setControlState(5, 3);
    wrong.placeDialog(&*m_configuration);
    QVERIFY(wrong.getDialogGeometry().isNull());
    QVERIFY(m_script.calls.calls().isEmpty());
}

void CommonItemDialogTest::saveUnderAConfiguration_hasItsControlsAndEvents()
{
    addControls();
    m_script.whileShown = [](IFileDialog* dialog,
                             const std::vector<IFileDialogEvents*>& listeners) {
        QCOMPARE(listeners.size(), 2U);
        listeners[1]->OnTypeChange(dialog);
    };
    QCOMPARE(m_driver.run(Testing::forSaving(m_request)).nativeCode, 0);
    QVERIFY(m_script.calls.hasCall(QStringLiteral("AddCheckButton(5,Preview,1)")));
    QCOMPARE(m_handler.events, QStringList{QStringLiteral("type")});
}

void CommonItemDialogTest::cancelInAnyForm_isACancel_data()
{
    QTest::addColumn<int>("code");
    QTest::newRow("the system's") << int(HRESULT_FROM_WIN32(ERROR_CANCELLED));
    QTest::newRow("with other high bits") << int(0x8AAA0000U | 1223U);
}

void CommonItemDialogTest::cancelInAnyForm_isACancel()
{
    QFETCH(int, code);
    m_script.showResult = code;
    const FileDialogResult result = m_driver.run(m_request);
    QVERIFY(result.isCancelled());
    QCOMPARE(result.nativeCode, code);
    QVERIFY(result.paths.isEmpty());
}

void CommonItemDialogTest::foldersOfEveryKind_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("set");
    const QString longName(255, QLatin1Char('n'));
    const QString none;
    QTest::newRow("none") << QString() << none;
    QTest::newRow("missing") << QStringLiteral("C:\\no such folder") << none;
    QTest::newRow("no path at all") << QStringLiteral("?:\\<>") << none;
    QTest::newRow("network that is not there")
        << QStringLiteral("\\\\nowhere.invalid\\share") << none;
    QTest::newRow("more than 260 characters")
        << QStringLiteral("C:\\") + longName + QLatin1Char('\\') + longName << none;
    QTest::newRow("root of a drive") << QStringLiteral("C:\\") << QStringLiteral("C:\\");
    QTest::newRow("root of a drive, with a slash")
        << QStringLiteral("C:/") << QStringLiteral("C:\\");
    QTest::newRow("slashes and detours")
        << QStringLiteral("C:/windows/./system32/../") << QStringLiteral("C:\\windows");
}

void CommonItemDialogTest::foldersOfEveryKind()
{
    QFETCH(QString, folder);
    QFETCH(QString, set);
    const bool isOpenedAtFile = !folder.isEmpty() && !QFileInfo(folder).isDir();
    m_request.start = isOpenedAtFile ? folder + QStringLiteral("\\x.stl") : folder;
    const QStringList calls = openCalls().filter(QStringLiteral("SetFolder"));
    const QStringList expected{QStringLiteral("SetFolder(%1)").arg(set)};
    QCOMPARE(calls, set.isEmpty() ? QStringList() : expected);
}

void CommonItemDialogTest::emptyPlaceIsNone()
{
    // To the shell, no path at all is the desktop.
    m_request.places = {QString(), m_folder->folder(), QLatin1String("")};
    m_request.start = QString();
    const QStringList calls = openCalls();
    QCOMPARE(calls.filter(QStringLiteral("AddPlace")),
             QStringList{QStringLiteral("AddPlace(%1,0)").arg(m_folder->folder())});
    QVERIFY(calls.filter(QStringLiteral("SetFolder")).isEmpty());
}

void CommonItemDialogTest::aListenerThatCannotBeMadeIsNotAdvised()
{
    ComPointer<IFileOpenDialog> dialog;
    QCOMPARE(CoCreateInstance(CLSID_FileOpenDialog, nullptr, CLSCTX_INPROC_SERVER,
                              IID_PPV_ARGS(dialog.put())),
             S_OK);
    {
        AdvisedEvents events(dialog.get());
        QCOMPARE(events.advise(nullptr), E_OUTOFMEMORY);
    }
    QCOMPARE(m_script.calls.names(), QStringList{QStringLiteral("Create")});
}

void CommonItemDialogTest::facadeTakesTheNativeDialog()
{
    Testing::ScriptedPathProvider provider;
    provider.path = m_folder->folder();
    m_script.whileShown = [](IFileDialog*, const std::vector<IFileDialogEvents*>&) {
        QCOMPARE(FileDialog::getOpenDialogsCount(), 1);
    };
    QCOMPARE(FileDialog::getOpenFileName(QStringLiteral("Open"), QStringLiteral("All (*)"),
                                         &provider, QStringLiteral("Design")),
             m_folder->path("b.stl"));
    QCOMPARE(m_script.dialogs, 1);
    QCOMPARE(FileDialog::getOpenDialogsCount(), 0);
    QCOMPARE(FileDialog::getSaveFileName(QStringLiteral("Save"), QStringLiteral("All (*)"),
                                         &provider, QStringLiteral("Design"),
                                         QStringLiteral("x.stl")),
             m_folder->path("b.stl"));
    QCOMPARE(m_script.dialogs, 2);
    QVERIFY(m_script.calls.hasCall(QStringLiteral("SetFileTypes(All (*)=*.*)")));
    QVERIFY(m_script.calls.hasCall(QStringLiteral("SetFileName(x.stl)")));
}

void CommonItemDialogTest::facadeFallsBack_data()
{
    QTest::addColumn<QString>("failing");
    QTest::newRow("no such class") << QStringLiteral("Create");
    QTest::newRow("a setting refused") << QStringLiteral("SetFileTypes");
    QTest::newRow("a control refused") << QStringLiteral("AddCheckButton");
    QTest::newRow("not shown") << QStringLiteral("Show");
    QTest::newRow("no results") << QStringLiteral("GetResults");
}

void CommonItemDialogTest::facadeFallsBack()
{
    QFETCH(QString, failing);
    addControls();
    Testing::ScriptedPathProvider provider;
    provider.path = m_folder->folder();
    m_script.calls.failCalls(failing, s_failure);
    Testing::ExpectedModals modals;
    modals.expectDialog<QFileDialog>(QStringLiteral("Qt's dialog"), [&](QFileDialog& dialog) {
        QCOMPARE(FileDialog::getOpenDialogsCount(), 1);
        dialog.selectFile(m_folder->path("a.stl"));
        dialog.reject();
    });
    QVERIFY(FileDialog::getOpenFileName(QStringLiteral("Open"), QStringLiteral("All (*)"),
                                        &provider, QStringLiteral("Design"), &*m_configuration)
                .isEmpty());
    QVERIFY(modals.allMet());
    QVERIFY(m_script.calls.names().contains(failing));
    QCOMPARE(FileDialog::getOpenDialogsCount(), 0);
}

void CommonItemDialogTest::facadeFallsBackForSave()
{
    Testing::ScriptedPathProvider provider;
    provider.path = m_folder->folder();
    m_script.calls.failCalls(QStringLiteral("GetResult"), s_failure);
    Testing::ExpectedModals modals;
    modals.expectDialog<QFileDialog>(QStringLiteral("Qt's dialog"), [&](QFileDialog& dialog) {
        QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptSave);
        dialog.reject();
    });
    QVERIFY(FileDialog::getSaveFileName(QStringLiteral("Save"), QStringLiteral("All (*)"),
                                        &provider, QStringLiteral("Design"),
                                        QStringLiteral("x.stl"))
                .isEmpty());
    QVERIFY(modals.allMet());
    QCOMPARE(m_script.dialogs, 1);
    QCOMPARE(FileDialog::getOpenDialogsCount(), 0);
}

ZORVANE_TEST(CommonItemDialogTest)
#include "CommonItemDialogTest.moc"
