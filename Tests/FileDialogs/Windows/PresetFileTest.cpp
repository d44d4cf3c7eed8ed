#include "FileDialogs/Windows/CFileInitializeSelectHandler.h"

#include "FileDialogs/Windows/DialogGuard.h"
#include "Files/Windows/ComApartment.h"
#include "Tests/FileDialogs/Windows/NativeDialogFixture.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Support/Windows/FakeItemDialog.h"
#include "Tests/Support/Windows/FakeShellView.h"
#include "Tests/Support/Windows/TaskMemorySpy.h"

#include <optional>

using namespace Zorvane;
using Testing::Counted;

namespace {

const QStringList s_files{QStringLiteral("a.stl"), QStringLiteral("b.stl"),
                          QStringLiteral("notes.txt")};
const QStringList s_callsToSelectB{QStringLiteral("QueryServices"),
                                   QStringLiteral("QueryService"),
                                   QStringLiteral("QueryActiveShellView"),
                                   QStringLiteral("QueryFolderView"),
                                   QStringLiteral("GetFolder"),
                                   QStringLiteral("ItemCount"),
                                   QStringLiteral("Item(0)"),
                                   QStringLiteral("Item(1)"),
                                   QStringLiteral("SelectItem(b.stl,29)")};

} // namespace

/** The listener that shows a preset file selected, against a dialog of the test's own. */
class PresetFileTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void selectsTheFile();
    void theFileIsSelectedOnlyOnce();
    void withoutANameNothingIsSelected();
    void onlyTheWholeNameCounts_data();
    void onlyTheWholeNameCounts();
    void aDialogWithoutAViewIsLeftAlone();
    void withoutADialogNothingHappens();
    void aFailureEndsTheSearchUnlessAnotherItemFollows_data();
    void aFailureEndsTheSearchUnlessAnotherItemFollows();
    void wantOfMemoryStaysOutOfTheSystemsCode();

private:
    /** Tells a new listener that the selection has changed. */
    void change(const QString& fileName, int times = 1);

    int m_taskMemory = 0;
    std::optional<ComApartment> m_apartment;
    std::optional<Testing::DialogFolder> m_folder;
    Testing::ItemDialogScript m_script;
    /** What the calls are from the change on. */
    Testing::CallScript m_failing;
    std::optional<Testing::FakeItemDialogs> m_dialogs;
    ComPointer<IServiceProvider> m_services;
};

/** What the system keeps for itself from its first use on is not ours. */
void PresetFileTest::initTestCase()
{
    TestCase::initTestCase();
    Testing::livingTaskMemory();
    init();
    change(QStringLiteral("b.stl"));
    m_services.reset();
    m_dialogs.reset();
    m_taskMemory = Testing::livingTaskMemory();
    cleanup();
}

void PresetFileTest::init()
{
    m_taskMemory = Testing::livingTaskMemory();
    m_apartment.emplace();
    m_folder.emplace();
    m_script = {};
    m_failing = {};
    m_services = Testing::fakeShellServices(m_folder->folder(), s_files, m_script.calls);
    m_script.services = m_services.get();
    m_dialogs.emplace(m_script);
}

void PresetFileTest::cleanup()
{
    m_services.reset();
    m_dialogs.reset();
    QCOMPARE(Testing::livingTaskMemory(), m_taskMemory);
    QCOMPARE(Counted::living(), 0);
    m_folder.reset();
    m_apartment.reset();
    TestCase::cleanup();
}

void PresetFileTest::change(const QString& fileName, int times)
{
    ComPointer<IFileOpenDialog> dialog;
    QCOMPARE(CoCreateInstance(CLSID_FileOpenDialog, nullptr, CLSCTX_INPROC_SERVER,
                              IID_PPV_ARGS(dialog.put())),
             S_OK);
    m_script.calls = m_failing;
    const auto guard = std::make_shared<DialogGuard>(dialog.get());
    auto events = ComPointer<CFileInitializeSelectHandler>::adopt(
        new CFileInitializeSelectHandler(fileName, *guard));
    for (int i = 0; i < times; ++i)
        QCOMPARE(events->OnSelectionChange(dialog.get()), S_OK);
    guard->rethrow();
}

void PresetFileTest::selectsTheFile()
{
    change(QStringLiteral("b.stl"));
    QCOMPARE(m_script.calls.calls(), s_callsToSelectB);
}

void PresetFileTest::theFileIsSelectedOnlyOnce()
{
    change(QStringLiteral("b.stl"), 3);
    QCOMPARE(m_script.calls.calls(), s_callsToSelectB);
}

void PresetFileTest::withoutANameNothingIsSelected()
{
    change(QString());
    QVERIFY(m_script.calls.calls().isEmpty());
}

void PresetFileTest::onlyTheWholeNameCounts_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << QStringLiteral("missing.stl");
    QTest::newRow("a part of a name") << QStringLiteral("a");
    QTest::newRow("not in the list") << QStringLiteral("c d.obj");
    QTest::newRow("a path") << QStringLiteral("x\\a.stl");
}

void PresetFileTest::onlyTheWholeNameCounts()
{
    QFETCH(QString, name);
    change(name);
    QVERIFY(m_script.calls.names().contains(QStringLiteral("Item")));
    QVERIFY(!m_script.calls.names().contains(QStringLiteral("SelectItem")));
}

void PresetFileTest::aDialogWithoutAViewIsLeftAlone()
{
    m_script.services = nullptr;
    change(QStringLiteral("b.stl"));
    QVERIFY(m_script.calls.calls().isEmpty());
}

void PresetFileTest::withoutADialogNothingHappens()
{
    const auto guard = std::make_shared<DialogGuard>(nullptr);
    const auto events = ComPointer<CFileInitializeSelectHandler>::adopt(
        new CFileInitializeSelectHandler(QStringLiteral("b.stl"), *guard));
    QCOMPARE(events->OnSelectionChange(nullptr), S_OK);
}

void PresetFileTest::aFailureEndsTheSearchUnlessAnotherItemFollows_data()
{
    QTest::addColumn<int>("place");
    for (int i = 0; i < s_callsToSelectB.size(); ++i)
        QTest::newRow(qPrintable(s_callsToSelectB.at(i))) << i;
}

void PresetFileTest::aFailureEndsTheSearchUnlessAnotherItemFollows()
{
    QFETCH(int, place);
    m_failing.failCallAt(place, E_ACCESSDENIED);
    change(QStringLiteral("b.stl"));
    const QString failing = s_callsToSelectB.at(place);
    QCOMPARE(m_script.calls.calls().at(place), failing);
    // An item that cannot be had is not the file; any other failure ends the search.
    const bool goesOn = failing == QLatin1String("Item(0)");
    QCOMPARE(m_script.calls.hasCall(s_callsToSelectB.last()),
             goesOn || failing == s_callsToSelectB.last());
}

void PresetFileTest::wantOfMemoryStaysOutOfTheSystemsCode()
{
    m_failing.throwAtCalls(QStringLiteral("ItemCount"));
    QVERIFY_EXCEPTION_THROWN(change(QStringLiteral("b.stl"), 2), std::bad_alloc);
    QCOMPARE(m_script.calls.callsOf(QStringLiteral("ItemCount")).size(), 1);
    QCOMPARE(m_script.calls.names().last(), QStringLiteral("Close"));
}

ZORVANE_TEST(PresetFileTest)
#include "PresetFileTest.moc"
