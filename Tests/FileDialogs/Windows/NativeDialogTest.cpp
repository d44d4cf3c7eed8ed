#include "FileDialogs/DialogTexts.h"
#include "FileDialogs/FileDialog.h"
#include "FileDialogs/FileDialogDriver.h"
#include "FileDialogs/Windows/CommonItemDialogDriver.h"
#include "Tests/FileDialogs/DialogFixtures.h"
#include "Tests/FileDialogs/Windows/NativeDialogFixture.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Support/Windows/DialogPilot.h"

#include <QtWidgets/QWidget>

#include <optional>
#include <thread>

using namespace Zorvane;
using Testing::DialogPilot;
using Testing::DialogWindow;

class NativeDialogTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void opensOneFile();
    void opensSeveralFiles();
    void saves();
    void cancelInAnyWayGivesNothing_data();
    void cancelInAnyWayGivesNothing();
    void showsWhatWasAskedFor();
    void saveShowsWhatWasAskedFor();
    void presetFileIsShownSelected();
    void laterSelectionsAreTheUsers();
    void pathsOfEveryKind_data();
    void pathsOfEveryKind();
    void rootOfADriveIsShown();
    void forwardSlashesAreFine();
    void unicodeNamesComeThrough();
    void defaultSaveConfirmsOverwriting();
    void aMissingEntryPointIsAFailure();
    void aMultithreadedApartmentIsRefused();
    void dialogsOpenOneAfterAnother();
    void ownerThatGoesTakesTheDialogAlong_data();
    void ownerThatGoesTakesTheDialogAlong();
    void theFacadeHandsOverOwnerPathAndPlaces();

private:
    QString path(const char* below) const { return m_folder->path(below); }
    FileDialogResult open() { return createNativeFileDialogDriver()->run(m_request); }
    FileDialogResult save()
    {
        return createNativeFileDialogDriver()->run(Testing::forSaving(m_request));
    }

    std::optional<Testing::DialogFolder> m_folder;
    FileDialogRequest m_request;
};

void NativeDialogTest::init()
{
    m_folder.emplace();
    m_request = m_folder->request();
}

void NativeDialogTest::cleanup()
{
    QVERIFY(DialogWindow::all().empty());
    m_folder.reset();
    TestCase::cleanup();
}

void NativeDialogTest::opensOneFile()
{
    DialogPilot pilot;
    pilot.then([](const DialogWindow& dialog) { dialog.typeFileName(QStringLiteral("b.stl")); });
    pilot.then([](const DialogWindow& dialog) { dialog.accept(); });
    const FileDialogResult result = open();
    QVERIFY(pilot.isDone());
    QCOMPARE(result.nativeCode, 0);
    QCOMPARE(result.paths, QStringList{path("b.stl")});
}

void NativeDialogTest::opensSeveralFiles()
{
    m_request.purpose = FileDialogPurpose::OpenFiles;
    DialogPilot pilot;
    pilot.then([](const DialogWindow& dialog) {
        dialog.typeFileName(QStringLiteral("\"c d.obj\" \"a.stl\""));
    });
    pilot.then([](const DialogWindow& dialog) { dialog.accept(); });
    const FileDialogResult result = open();
    QVERIFY(pilot.isDone());
    QCOMPARE(result.nativeCode, 0);
    QCOMPARE(result.paths, QStringList({path("c d.obj"), path("a.stl")}));
}

void NativeDialogTest::saves()
{
    DialogPilot pilot;
    pilot.then([](const DialogWindow& dialog) { dialog.typeFileName(QStringLiteral("new.stl")); });
    pilot.then([](const DialogWindow& dialog) { dialog.accept(); });
    const FileDialogResult result = save();
    QVERIFY(pilot.isDone());
    QCOMPARE(result.nativeCode, 0);
    QCOMPARE(result.paths.size(), 1);
    QVERIFY2(result.paths[0].startsWith(path("new.stl")), qPrintable(result.paths[0]));
}

void NativeDialogTest::cancelInAnyWayGivesNothing_data()
{
    QTest::addColumn<bool>("isSave");
    QTest::addColumn<int>("way");
    const char* const kinds[] = {"open", "save"};
    const char* const ways[] = {"Cancel", "Esc", "the window's close button"};
    for (int kind = 0; kind < 2; ++kind) {
        for (int way = 0; way < 3; ++way)
            QTest::addRow("%s, %s", kinds[kind], ways[way]) << (kind == 1) << way;
    }
}

void NativeDialogTest::cancelInAnyWayGivesNothing()
{
    QFETCH(bool, isSave);
    QFETCH(int, way);
    DialogPilot pilot;
    pilot.then([](const DialogWindow& dialog) { dialog.typeFileName(QStringLiteral("b.stl")); });
    pilot.then([way](const DialogWindow& dialog) {
        if (way == 0)
            dialog.cancel();
        else if (way == 1)
            dialog.pressEscape();
        else
            dialog.close();
    });
    const FileDialogResult result = isSave ? save() : open();
    QVERIFY(pilot.isDone());
    QCOMPARE(result.nativeCode, std::int32_t(0x800704C7));
    QVERIFY(result.isCancelled());
    QVERIFY(result.paths.isEmpty());
}

void NativeDialogTest::showsWhatWasAskedFor()
{
    QWidget owner;
    owner.show();
    m_request.owner = &owner;
    m_request.selectedFilter = QStringLiteral("All Files (*.*)");
    m_request.places = {path("missing"), m_folder->folder()};
    DialogPilot pilot;
    pilot.waitUntil("files in the list",
                    [](const DialogWindow& dialog) { return !dialog.files().isEmpty(); });
    pilot.then([&](const DialogWindow& dialog) {
        QCOMPARE(dialog.title(), m_request.caption);
        QCOMPARE(dialog.owner(), reinterpret_cast<HWND>(owner.winId()));
        QCOMPARE(dialog.fileTypes(), filterTypes(m_request.filter));
        QCOMPARE(dialog.selectedFileType(), 0);
        QCOMPARE(dialog.files(), QStringList({QStringLiteral("a.stl"), QStringLiteral("b.stl"),
                                              QStringLiteral("c d.obj")}));
        QVERIFY(dialog.fileName().isEmpty());
    });
    pilot.then([](const DialogWindow& dialog) { dialog.cancel(); });
    QVERIFY(open().isCancelled());
    QVERIFY(pilot.isDone());
}

void NativeDialogTest::saveShowsWhatWasAskedFor()
{
    QWidget owner;
    owner.show();
    m_request.owner = &owner;
    m_request.start = path("part.stl");
    DialogPilot pilot;
    pilot.then([&](const DialogWindow& dialog) {
        QCOMPARE(dialog.title(), m_request.caption);
        QCOMPARE(dialog.owner(), reinterpret_cast<HWND>(owner.winId()));
        QCOMPARE(dialog.fileTypes(), filterTypes(m_request.filter));
        QCOMPARE(dialog.fileName(), QStringLiteral("part.stl"));
    });
    pilot.then([](const DialogWindow& dialog) { dialog.cancel(); });
    QVERIFY(save().isCancelled());
    QVERIFY(pilot.isDone());
}

void NativeDialogTest::presetFileIsShownSelected()
{
    m_request.start = path("c d.obj");
    DialogPilot pilot;
    pilot.waitUntil("files in the list",
                    [](const DialogWindow& dialog) { return !dialog.files().isEmpty(); });
    pilot.then([](const DialogWindow& dialog) {
        QCOMPARE(dialog.fileName(), QStringLiteral("c d.obj"));
        // Windows tells of a first selection by itself, as it opens; Wine has to be given one.
        dialog.selectFiles({QStringLiteral("a.stl")});
    });
    pilot.then([](const DialogWindow& dialog) {
        QCOMPARE(dialog.selectedFiles(), QStringList{QStringLiteral("c d.obj")});
        dialog.accept();
    });
    const FileDialogResult result = open();
    QVERIFY(pilot.isDone());
    QCOMPARE(result.paths, QStringList{path("c d.obj")});
}

void NativeDialogTest::laterSelectionsAreTheUsers()
{
    m_request.start = path("c d.obj");
    DialogPilot pilot;
    pilot.waitUntil("files in the list",
                    [](const DialogWindow& dialog) { return !dialog.files().isEmpty(); });
    pilot.then([](const DialogWindow& dialog) { dialog.selectFiles({QStringLiteral("a.stl")}); });
    pilot.then([](const DialogWindow& dialog) { dialog.selectFiles({QStringLiteral("b.stl")}); });
    pilot.then([](const DialogWindow& dialog) {
        QCOMPARE(dialog.selectedFiles(), QStringList{QStringLiteral("b.stl")});
        dialog.cancel();
    });
    QVERIFY(open().isCancelled());
    QVERIFY(pilot.isDone());
}

void NativeDialogTest::pathsOfEveryKind_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("fileName");
    const QString longName(255, QLatin1Char('n'));
    QTest::newRow("no folder") << QString() << QString();
    QTest::newRow("missing folder") << QStringLiteral("C:\\no such folder") << QString();
    QTest::newRow("no path at all") << QStringLiteral("?:\\<>") << QString();
    QTest::newRow("network that is not there")
        << QStringLiteral("\\\\nowhere.invalid\\share") << QString();
    QTest::newRow("root of a drive") << QDir::toNativeSeparators(QDir::rootPath()) << QString();
    QTest::newRow("more than 260 characters")
        << QStringLiteral("C:\\") + longName + QLatin1Char('\\') + longName << QString();
    QTest::newRow("reserved file name") << QString() << QStringLiteral("NUL");
    QTest::newRow("long file name") << QString() << longName;
    QTest::newRow("file name with quotes") << QString() << QStringLiteral("\"a\" \"b\"");
}

void NativeDialogTest::pathsOfEveryKind()
{
    QFETCH(QString, folder);
    QFETCH(QString, fileName);
    const QString name = fileName.isEmpty() ? QStringLiteral("part.stl") : fileName;
    m_request.start = (folder.isEmpty() ? m_folder->folder() : folder) + QLatin1Char('\\') + name;
    DialogPilot pilot;
    pilot.then([&](const DialogWindow& dialog) { QCOMPARE(dialog.fileName(), name); });
    pilot.then([](const DialogWindow& dialog) { dialog.cancel(); });
    QVERIFY(open().isCancelled());
    QVERIFY(pilot.isDone());
}

void NativeDialogTest::rootOfADriveIsShown()
{
    m_request.filter = QStringLiteral("All Files (*.*)");
    m_request.start = QStringLiteral("C:\\");
    DialogPilot pilot;
    pilot.waitUntil("what lies in the root", [](const DialogWindow& dialog) {
        QStringList shown = dialog.files();
        QStringList present =
            QDir(QStringLiteral("C:/")).entryList(QDir::Dirs | QDir::Files | QDir::NoDotAndDotDot);
        shown.sort(Qt::CaseInsensitive);
        present.sort(Qt::CaseInsensitive);
        return !shown.isEmpty() && shown == present;
    });
    pilot.then([](const DialogWindow& dialog) { dialog.cancel(); });
    QVERIFY(open().isCancelled());
    QVERIFY(pilot.isDone());
}

void NativeDialogTest::forwardSlashesAreFine()
{
    m_request.start = QDir::fromNativeSeparators(m_folder->folder());
    DialogPilot pilot;
    pilot.waitUntil("files of the folder", [](const DialogWindow& dialog) {
        return dialog.files().contains(QStringLiteral("a.stl"));
    });
    pilot.then([](const DialogWindow& dialog) { dialog.cancel(); });
    QVERIFY(open().isCancelled());
    QVERIFY(pilot.isDone());
}

void NativeDialogTest::unicodeNamesComeThrough()
{
    const QByteArray name("T\xC3\xBCr \xF0\x9F\x94\xA7.stl");
    m_folder->addFile(name.constData());
    m_request.caption = QString::fromUtf8("\xC3\x96"
                                          "ffnen \xE2\x80\x93 \xE6\x9D\xBF");
    DialogPilot pilot;
    pilot.then([&](const DialogWindow& dialog) {
        QCOMPARE(dialog.title(), m_request.caption);
        dialog.typeFileName(QString::fromUtf8(name));
    });
    pilot.then([](const DialogWindow& dialog) { dialog.accept(); });
    const FileDialogResult result = open();
    QVERIFY(pilot.isDone());
    QCOMPARE(result.paths, QStringList{path(name.constData())});
}

void NativeDialogTest::defaultSaveConfirmsOverwriting()
{
    // The question is a window of its own over the dialog; "No" goes back to the dialog.
    m_request.filter = QStringLiteral("All Files (*.*)");
    DialogPilot pilot;
    std::optional<DialogPilot> question;
    pilot.then([](const DialogWindow& dialog) { dialog.typeFileName(QStringLiteral("a.stl")); });
    pilot.then([&](const DialogWindow& dialog) {
        question.emplace();
        question->then([](const DialogWindow& box) { box.answer(IDNO); });
        dialog.accept();
    });
    pilot.waitUntil("the question", [&](const DialogWindow&) { return question->isDone(); });
    pilot.then([](const DialogWindow& dialog) { dialog.cancel(); });
    QVERIFY(save().isCancelled());
    QVERIFY(pilot.isDone());
}

void NativeDialogTest::aMissingEntryPointIsAFailure()
{
    CommonItemDialogDriver driver(L"user32.dll");
    QCOMPARE(driver.run(m_request).nativeCode, std::int32_t(E_FAIL));
    QCOMPARE(driver.run(Testing::forSaving(m_request)).nativeCode, std::int32_t(E_FAIL));
    QVERIFY(driver.run(m_request).isFailure());
}

void NativeDialogTest::aMultithreadedApartmentIsRefused()
{
    FileDialogResult opened;
    FileDialogResult saved;
    std::thread([&] {
        CoInitializeEx(nullptr, COINIT_MULTITHREADED);
        opened = open();
        saved = save();
        CoUninitialize();
    }).join();
    QCOMPARE(opened.nativeCode, std::int32_t(RPC_E_CHANGED_MODE));
    QVERIFY(opened.isFailure());
    QCOMPARE(saved.nativeCode, std::int32_t(RPC_E_CHANGED_MODE));
}

void NativeDialogTest::dialogsOpenOneAfterAnother()
{
    for (int i = 0; i < 5; ++i)
        opensOneFile();
}

void NativeDialogTest::ownerThatGoesTakesTheDialogAlong_data()
{
    QTest::addColumn<bool>("isSave");
    QTest::newRow("open") << false;
    QTest::newRow("save") << true;
}

void NativeDialogTest::ownerThatGoesTakesTheDialogAlong()
{
    QFETCH(bool, isSave);
    auto owner = std::make_unique<QWidget>();
    owner->show();
    m_request.owner = owner.get();
    DialogPilot pilot;
    pilot.then([&](const DialogWindow&) { owner.reset(); });
    const FileDialogResult result = isSave ? save() : open();
    QVERIFY(pilot.isDone());
    QVERIFY(result.isCancelled());
    QVERIFY(result.paths.isEmpty());
}

void NativeDialogTest::theFacadeHandsOverOwnerPathAndPlaces()
{
    QWidget mainWindow;
    mainWindow.show();
    const Testing::MainWindowProperty property(&mainWindow);
    Testing::ScriptedPathProvider provider;
    provider.path = path("a.stl");
    provider.places = {m_folder->folder(), path("missing")};
    DialogPilot pilot;
    pilot.then([&](const DialogWindow& dialog) {
        QCOMPARE(FileDialog::getOpenDialogsCount(), 1);
        QCOMPARE(dialog.owner(), reinterpret_cast<HWND>(mainWindow.winId()));
        QCOMPARE(dialog.fileName(), QStringLiteral("a.stl"));
        dialog.typeFileName(QStringLiteral("c d.obj"));
    });
    pilot.then([](const DialogWindow& dialog) { dialog.accept(); });
    QCOMPARE(FileDialog::getOpenFileName(m_request.caption,
                                         QStringLiteral("Meshes (*.stl *.obj);;All (*)"), &provider,
                                         QStringLiteral("Import")),
             path("c d.obj"));
    QVERIFY(pilot.isDone());
    QCOMPARE(provider.calls.last(), QStringLiteral("set Import to '%1'").arg(path("c d.obj")));
    QCOMPARE(FileDialog::getOpenDialogsCount(), 0);
}

ZORVANE_TEST(NativeDialogTest)
#include "NativeDialogTest.moc"
