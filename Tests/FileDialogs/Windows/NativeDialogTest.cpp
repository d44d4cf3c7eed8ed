#include "FileDialogs/NativeFileDialog.h"
#include "Tests/Support/Windows/DialogPilot.h"
#include "Tests/Support/Windows/NativeTest.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QWidget>

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
    void cancelled_data();
    void cancelled();
    void showsWhatWasAskedFor();
    void saveShowsWhatWasAskedFor();
    void presetFileIsShownSelected();
    void laterSelectionsAreTheUsers();

private:
    QString addFile(const char* name) const;
    QString path(const char* below) const
    {
        return QDir::toNativeSeparators(m_root->filePath(QString::fromUtf8(below)));
    }
    NativeFileDialogResult open() { return createNativeFileDialogDriver()->open(m_request); }
    NativeFileDialogResult save() { return createNativeFileDialogDriver()->save(m_request); }

    std::unique_ptr<QTemporaryDir> m_root;
    NativeFileDialogRequest m_request;
};

void NativeDialogTest::init()
{
    m_root = std::make_unique<QTemporaryDir>();
    m_request = {};
    m_request.caption = QStringLiteral("Choose a Part");
    m_request.filters.names =
        QStringList{QStringLiteral("Meshes (*.stl *.obj)"), QStringLiteral("All Files (*.*)")};
    m_request.filters.patterns = QStringList{QStringLiteral("*.stl;*.obj"), QStringLiteral("*.*")};
    m_request.folder = QDir::toNativeSeparators(m_root->path());
    for (const char* name : {"a.stl", "b.stl", "c d.obj", "notes.txt"})
        addFile(name);
}

void NativeDialogTest::cleanup()
{
    QVERIFY(DialogWindow::all().empty());
    m_root.reset();
    TestCase::cleanup();
}

QString NativeDialogTest::addFile(const char* name) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write("content") != 7)
        qFatal("cannot write a test file");
    return path(name);
}

void NativeDialogTest::opensOneFile()
{
    DialogPilot pilot;
    pilot.then([](const DialogWindow& dialog) { dialog.typeFileName(QStringLiteral("b.stl")); });
    pilot.then([](const DialogWindow& dialog) { dialog.accept(); });
    const NativeFileDialogResult result = open();
    QVERIFY(pilot.isDone());
    QCOMPARE(result.code, 0);
    QCOMPARE(result.paths, QStringList{path("b.stl")});
}

void NativeDialogTest::opensSeveralFiles()
{
    m_request.multiSelection = true;
    DialogPilot pilot;
    pilot.then([](const DialogWindow& dialog) {
        dialog.typeFileName(QStringLiteral("\"c d.obj\" \"a.stl\""));
    });
    pilot.then([](const DialogWindow& dialog) { dialog.accept(); });
    const NativeFileDialogResult result = open();
    QVERIFY(pilot.isDone());
    QCOMPARE(result.code, 0);
    QCOMPARE(result.paths, QStringList({path("c d.obj"), path("a.stl")}));
}

void NativeDialogTest::saves()
{
    DialogPilot pilot;
    pilot.then([](const DialogWindow& dialog) { dialog.typeFileName(QStringLiteral("new.stl")); });
    pilot.then([](const DialogWindow& dialog) { dialog.accept(); });
    const NativeFileDialogResult result = save();
    QVERIFY(pilot.isDone());
    QCOMPARE(result.code, 0);
    QCOMPARE(result.paths.size(), 1);
    QVERIFY2(result.paths[0].startsWith(path("new.stl")), qPrintable(result.paths[0]));
}

void NativeDialogTest::cancelled_data()
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

void NativeDialogTest::cancelled()
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
    const NativeFileDialogResult result = isSave ? save() : open();
    QVERIFY(pilot.isDone());
    QCOMPARE(result.code, std::int32_t(0x800704C7));
    QVERIFY(result.isCancelled());
    QVERIFY(result.paths.isEmpty());
}

void NativeDialogTest::showsWhatWasAskedFor()
{
    QWidget owner;
    owner.show();
    m_request.owner = &owner;
    m_request.filters.preselectedPattern = QStringLiteral("*.*");
    m_request.places = {path("missing"), m_root->path()};
    DialogPilot pilot;
    pilot.waitUntil("files in the list",
                    [](const DialogWindow& dialog) { return !dialog.files().isEmpty(); });
    pilot.then([&](const DialogWindow& dialog) {
        QCOMPARE(dialog.title(), m_request.caption);
        QCOMPARE(dialog.owner(), reinterpret_cast<HWND>(owner.winId()));
        QCOMPARE(dialog.fileTypes(), m_request.filters.names);
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
    m_request.fileName = QStringLiteral("part.stl");
    DialogPilot pilot;
    pilot.then([&](const DialogWindow& dialog) {
        QCOMPARE(dialog.title(), m_request.caption);
        QCOMPARE(dialog.owner(), reinterpret_cast<HWND>(owner.winId()));
        QCOMPARE(dialog.fileTypes(), m_request.filters.names);
        QCOMPARE(dialog.fileName(), QStringLiteral("part.stl"));
    });
    pilot.then([](const DialogWindow& dialog) { dialog.cancel(); });
    QVERIFY(save().isCancelled());
    QVERIFY(pilot.isDone());
}

void NativeDialogTest::presetFileIsShownSelected()
{
    m_request.fileName = QStringLiteral("c d.obj");
    DialogPilot pilot;
    pilot.waitUntil("files in the list",
                    [](const DialogWindow& dialog) { return !dialog.files().isEmpty(); });
    pilot.then([](const DialogWindow& dialog) {
        QCOMPARE(dialog.fileName(), QStringLiteral("c d.obj"));
        dialog.selectFiles({QStringLiteral("a.stl")});
    });
    pilot.then([](const DialogWindow& dialog) {
        QCOMPARE(dialog.selectedFiles(), QStringList{QStringLiteral("c d.obj")});
        dialog.accept();
    });
    const NativeFileDialogResult result = open();
    QVERIFY(pilot.isDone());
    QCOMPARE(result.paths, QStringList{path("c d.obj")});
}

void NativeDialogTest::laterSelectionsAreTheUsers()
{
    m_request.fileName = QStringLiteral("c d.obj");
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

ZORVANE_NATIVE_TEST_MAIN(NativeDialogTest)
#include "NativeDialogTest.moc"
