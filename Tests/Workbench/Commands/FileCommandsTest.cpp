#include "Workbench/Commands/FileCommands.h"

#include "Files/CopyCollisionDialog.h"
#include "Tests/Support/ExpectedModals.h"
#include "Tests/Support/PlatformCopies.h"
#include "Tests/Support/PlatformFacts.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Import/ImportFixture.h"
#include "Workbench/Window/MainWindow.h"
#include "Workbench/Window/MessageBar.h"

#include <QtTest/QSignalSpy>
#include <QtWidgets/QAction>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStatusBar>

#include <memory>

namespace Zorvane::Workbench {

/** The commands of the main window, with a script in the place of dialogs. */
class FileCommandsTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void openFilesOpensWhatWasChosen();
    void openFolderOpensIt();
    void cancelledDialogsChangeNothing_data();
    void cancelledDialogsChangeNothing();
    void dialogsOpenWhereTheLastDesignWas();
    void savingWantsADesign();

    void saveCopyWritesBesideTheDesign();
    void saveCopyTakesUnsavedChangesAlong();
    void saveCopyKeepsTheSession();

    void saveAsBesideTheDesign();
    void saveAsElsewhereTakesTheFilesAlong();
    void saveAsElsewhereTakesDesignsAlong();
    void saveAsLeavesTheFormerDesign();
    void saveAsInTheOrderOfDesigns();

    void otherSpellingsOpenNothingTwice();
    void openDesignsAreNotReplaced_data();
    void openDesignsAreNotReplaced();
    void openDesignsWhoseFilesAreGoneAreNotReplaced();
    void whatIsMadeMeanwhileIsNotReplaced();
    void whatIsClosedMeanwhileIsNotSaved();
    void otherEndingsAreRefused();
    void impossibleNamesAreRefused_data();
    void impossibleNamesAreRefused();
    void whatCannotBeWrittenIsTold();

private:
    QAction* action(const char* text) const;
    void trigger(const char* text) const { action(text)->trigger(); }
    void openDesign() { m_window->open({m_files->designFile()}); }
    GUIdentifier firstPart() const
    {
        return m_window->session().designs().front().parts.front().id;
    }
    QString message() const { return m_window->messageBar().text(); }
    QString status() const { return m_window->statusBar()->currentMessage(); }

    Testing::PlatformCopies m_copies;
    std::unique_ptr<Testing::ImportFixture> m_files;
    std::unique_ptr<MainWindow> m_window;
    Testing::ScriptedChooser::Script m_script;
};

void FileCommandsTest::init()
{
    QSettings().clear();
    m_files = std::make_unique<Testing::ImportFixture>();
    m_window = std::make_unique<MainWindow>();
    m_script = {};
    m_window->fileCommands().setFileChooser(std::make_unique<Testing::ScriptedChooser>(m_script));
    m_window->show();
}

void FileCommandsTest::cleanup()
{
    m_window.reset();
    m_files.reset();
    TestCase::cleanup();
}

QAction* FileCommandsTest::action(const char* text) const
{
    for (QAction* found : m_window->actions())
        if (found->text().remove(QLatin1Char('&')) == QString::fromUtf8(text))
            return found;
    return nullptr;
}

void FileCommandsTest::openFilesOpensWhatWasChosen()
{
    m_script.files =
        QStringList{m_files->designFile(), m_files->outsideMesh(QStringLiteral("a.stl"))};
    trigger("Open...");
    QCOMPARE(int(m_window->session().designs().size()), 1);
    QCOMPARE(int(m_window->session().looseParts().size()), 1);
    QCOMPARE(m_script.asked.filters,
             QStringLiteral("Designs and meshes (*.dsg *.stl *.obj *.ply);;Designs (*.dsg);;"
                            "Meshes (*.stl *.obj *.ply);;All files (*)"));
}

void FileCommandsTest::openFolderOpensIt()
{
    m_script.folder = m_files->folder.path();
    trigger("Open Folder…");
    QCOMPARE(int(m_window->session().designs().size()), 1);
}

void FileCommandsTest::cancelledDialogsChangeNothing_data()
{
    QTest::addColumn<QString>("command");
    for (const char* command : {"Open...", "Open Folder…", "Save As...", "Save a Copy…"})
        QTest::newRow(command) << QString::fromUtf8(command);
}

void FileCommandsTest::cancelledDialogsChangeNothing()
{
    QFETCH(QString, command);
    openDesign();
    const GUIdentifier part = firstPart();
    const QStringList files = m_files->entries();
    trigger(command.toUtf8().constData());
    QVERIFY(!m_script.asked.caption.isEmpty());
    QCOMPARE(int(m_window->session().designs().size()), 1);
    QCOMPARE(firstPart(), part);
    QCOMPARE(m_files->entries(), files);
    QVERIFY(message().isEmpty());
}

void FileCommandsTest::dialogsOpenWhereTheLastDesignWas()
{
    openDesign();
    trigger("Open...");
    QCOMPARE(QDir(m_script.opened), QDir(m_files->folder.path()));
    trigger("Open Folder…");
    QCOMPARE(QDir(m_script.opened), QDir(m_files->folder.path()));
}

void FileCommandsTest::savingWantsADesign()
{
    QVERIFY(!action("Save As...")->isEnabled());
    QVERIFY(!action("Save a Copy…")->isEnabled());
    m_window->open({m_files->outsideMesh(QStringLiteral("a.stl"))});
    QVERIFY(!action("Save As...")->isEnabled());
    openDesign();
    QVERIFY(action("Save As...")->isEnabled());
    QVERIFY(action("Save a Copy…")->isEnabled());
    QVERIFY(!m_window->fileCommands().saveAs(GUIdentifier::create()));
    QVERIFY(!m_window->fileCommands().saveCopy(GUIdentifier()));
}

void FileCommandsTest::saveCopyWritesBesideTheDesign()
{
    openDesign();
    m_script.saved = m_files->path(QStringLiteral("small copy.dsg"));
    trigger("Save a Copy…");
    QCOMPARE(m_script.proposed, m_script.saved);
    QVERIFY(QFile::exists(m_script.saved));
    QVERIFY(status().startsWith(QStringLiteral("A copy is saved as ")));
    QVERIFY(message().isEmpty());
    m_window->open({m_script.saved});
    QCOMPARE(int(m_window->session().designs().size()), 2);
    QVERIFY(m_window->session().problems().empty());
}

void FileCommandsTest::saveCopyTakesUnsavedChangesAlong()
{
    openDesign();
    QCOMPARE(m_window->session().rename(firstPart(), QStringLiteral("Other")), QString());
    m_script.saved = m_files->path(QStringLiteral("b.dsg"));
    trigger("Save a Copy…");
    QVERIFY(Testing::readFile(m_script.saved).contains("\"Other\""));
    QVERIFY(!Testing::readFile(m_files->designFile()).contains("\"Other\""));
}

void FileCommandsTest::saveCopyKeepsTheSession()
{
    openDesign();
    const GUIdentifier part = firstPart();
    m_window->session().rename(part, QStringLiteral("Other"));
    m_script.saved = m_files->path(QStringLiteral("b.dsg"));
    trigger("Save a Copy…");
    QCOMPARE(int(m_window->session().designs().size()), 1);
    QCOMPARE(firstPart(), part);
    QVERIFY(m_window->session().isModified());
}

void FileCommandsTest::saveAsBesideTheDesign()
{
    openDesign();
    const GUIdentifier part = firstPart();
    m_script.saved = m_files->path(QStringLiteral("second.dsg"));
    trigger("Save As...");
    QCOMPARE(m_script.proposed, QStringLiteral("small.dsg"));
    QCOMPARE(int(m_window->session().designs().size()), 1);
    QCOMPARE(QFileInfo(m_window->session().designs().front().file).fileName(),
             QStringLiteral("second.dsg"));
    QVERIFY(firstPart() != part);
    QVERIFY(status().startsWith(QStringLiteral("Saved as ")));
    // What is selected is an object of the new design.
    QVERIFY(m_window->session().findDesign(m_window->tree().currentId().getCombinedPart()));
    m_window->open({m_files->designFile()});
    QVERIFY(m_window->session().problems().empty());
}

void FileCommandsTest::saveAsElsewhereTakesTheFilesAlong()
{
    openDesign();
    m_script.saved = m_files->elsewhere.filePath(QStringLiteral("moved.dsg"));
    trigger("Save As...");
    const Design& design = m_window->session().designs().front();
    QCOMPARE(QDir(design.folder()), QDir(m_files->elsewhere.path()));
    for (const FileReference& file : design.files)
        QCOMPARE(int(file.state), int(FileState::Exists));
    QVERIFY(QFile::exists(m_files->elsewhere.filePath(QStringLiteral("geometry/die.stl"))));
    QVERIFY(message().isEmpty());
}

void FileCommandsTest::saveAsElsewhereTakesDesignsAlong()
{
    const QString door = m_files->path(QStringLiteral("door/door.dsg"));
    Testing::writeFile(door,
                       Testing::toText(Testing::designWithFiles(60, QStringLiteral("Door"), {})));
    openDesign();
    DesignSession& session = m_window->session();
    QVERIFY(session.addFiles(session.designs().front().id, {door}).empty());
    m_script.saved = m_files->elsewhere.filePath(QStringLiteral("moved.dsg"));
    m_window->tree().refreshNow();
    trigger("Save As...");
    QVERIFY(message().isEmpty());
    QVERIFY(session.problems().empty());
    QCOMPARE(session.designs().size(), std::size_t(2));
    QCOMPARE(QDir(session.designs().back().folder()),
             QDir(m_files->elsewhere.filePath(QStringLiteral("door"))));
    m_window->open({m_files->designFile(), door});
    QVERIFY(session.problems().empty());
}

void FileCommandsTest::saveAsLeavesTheFormerDesign()
{
    openDesign();
    const QByteArray before = Testing::readFile(m_files->designFile());
    m_window->session().rename(firstPart(), QStringLiteral("Other"));
    m_script.saved = m_files->path(QStringLiteral("second.dsg"));
    trigger("Save As...");
    QCOMPARE(Testing::readFile(m_files->designFile()), before);
    QVERIFY(Testing::readFile(m_script.saved).contains("\"Other\""));
    QVERIFY(!m_window->session().isModified());
    QCOMPARE(m_window->session().name(firstPart()), QStringLiteral("Other"));
}

void FileCommandsTest::saveAsInTheOrderOfDesigns()
{
    openDesign();
    const QString other = m_files->elsewhere.filePath(QStringLiteral("other.dsg"));
    Testing::writeFile(other,
                       Testing::toText(Testing::designWithFiles(500, QStringLiteral("Other"), {})));
    m_window->open({other});
    m_script.saved = m_files->path(QStringLiteral("second.dsg"));
    QVERIFY(m_window->fileCommands().saveAs(m_window->session().designs().front().id));
    QCOMPARE(int(m_window->session().designs().size()), 2);
    QCOMPARE(m_window->session().designs().back().name, QStringLiteral("Other"));
}

void FileCommandsTest::otherSpellingsOpenNothingTwice()
{
    openDesign();
    const QFileInfo design(m_files->designFile());
    m_window->open({design.dir().filePath(design.fileName().toUpper())});
    QCOMPARE(int(m_window->session().designs().size()), 1);
    // Where case counts there is no such file.
    QCOMPARE(m_window->session().problems().empty(), !Testing::doesCaseOfNamesCount());
    QCOMPARE(m_window->session().designs().front().file, design.canonicalFilePath());
}

void FileCommandsTest::openDesignsAreNotReplaced_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<bool>("isInCapitals");
    for (const bool isInCapitals : {false, true}) {
        if (isInCapitals && Testing::doesCaseOfNamesCount())
            continue;
        const char* const name = isInCapitals ? ", spelled otherwise" : "";
        QTest::addRow("as%s", name) << QStringLiteral("Save As...") << isInCapitals;
        QTest::addRow("copy%s", name) << QStringLiteral("Save a Copy…") << isInCapitals;
    }
}

void FileCommandsTest::openDesignsWhoseFilesAreGoneAreNotReplaced()
{
    openDesign();
    m_window->session().rename(firstPart(), QStringLiteral("Other"));
    QVERIFY(QFile::remove(m_files->designFile()));
    for (const char* command : {"Save As...", "Save a Copy…"}) {
        m_script.saved = m_files->designFile();
        trigger(command);
        QVERIFY(message().endsWith(QStringLiteral("is open here and is not replaced")));
        QCOMPARE(int(m_window->session().designs().size()), 1);
        QVERIFY(m_window->session().isModified());
    }
}

void FileCommandsTest::whatIsMadeMeanwhileIsNotReplaced()
{
    if (!Testing::PlatformCopies::askByOurDialog())
        QSKIP("the system asks about names that are taken, by windows of its own");
    openDesign();
    Testing::writeFile(m_files->elsewhere.filePath(QStringLiteral("geometry/die.stl")), "taken");
    m_script.saved = m_files->elsewhere.filePath(QStringLiteral("moved.dsg"));
    Testing::ExpectedModals modals;
    modals.expectDialog<CopyCollisionDialog>(QStringLiteral("collision"),
                                             [this](CopyCollisionDialog& dialog) {
                                                 Testing::writeFile(m_script.saved, "theirs");
                                                 dialog.button(CopyDecision::KeepBoth)->click();
                                             });
    trigger("Save As...");
    QVERIFY(modals.allMet());
    QVERIFY(message().endsWith(QStringLiteral("has been made meanwhile and is not replaced")));
    QCOMPARE(Testing::readFile(m_script.saved), QByteArray("theirs"));
    QCOMPARE(QDir(m_window->session().designs().front().folder()), QDir(m_files->folder.path()));
}

void FileCommandsTest::whatIsClosedMeanwhileIsNotSaved()
{
    if (!Testing::PlatformCopies::askByOurDialog())
        QSKIP("the system asks about names that are taken, by windows of its own");
    openDesign();
    Testing::writeFile(m_files->elsewhere.filePath(QStringLiteral("geometry/die.stl")), "taken");
    m_script.saved = m_files->elsewhere.filePath(QStringLiteral("moved.dsg"));
    const QSignalSpy saved(&m_window->fileCommands(), &FileCommands::savedAs);
    Testing::ExpectedModals modals;
    modals.expectDialog<CopyCollisionDialog>(QStringLiteral("collision"),
                                             [this](CopyCollisionDialog& dialog) {
                                                 m_window->session().close();
                                                 dialog.button(CopyDecision::KeepBoth)->click();
                                             });
    trigger("Save As...");
    QVERIFY(modals.allMet());
    QVERIFY(message().endsWith(QStringLiteral("was closed meanwhile and is not saved")));
    QVERIFY(!QFile::exists(m_script.saved));
    QVERIFY(saved.isEmpty());
}

void FileCommandsTest::openDesignsAreNotReplaced()
{
    QFETCH(QString, command);
    QFETCH(bool, isInCapitals);
    openDesign();
    const QByteArray before = Testing::readFile(m_files->designFile());
    m_window->session().rename(firstPart(), QStringLiteral("Other"));
    const QFileInfo design(m_files->designFile());
    m_script.saved =
        isInCapitals ? design.dir().filePath(design.fileName().toUpper()) : design.filePath();
    trigger(command.toUtf8().constData());
    QVERIFY(message().endsWith(QStringLiteral("is open here and is not replaced")));
    QCOMPARE(Testing::readFile(m_files->designFile()), before);
    QVERIFY(m_window->session().isModified());
}

void FileCommandsTest::otherEndingsAreRefused()
{
    openDesign();
    m_script.saved = m_files->path(QStringLiteral("second.txt"));
    trigger("Save As...");
    QVERIFY(message().endsWith(QStringLiteral("it must end with .dsg")));
    QVERIFY(!QFile::exists(m_script.saved));
}

void FileCommandsTest::impossibleNamesAreRefused_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"CON.dsg", "nul.dsg", "Com1.old.dsg", "LPT9 .dsg", "small:part.dsg",
                             "what?.dsg", "a|b.dsg", "<a>.dsg", "CONE.dsg"})
        QTest::newRow(name) << QString::fromLatin1(name);
    QTest::newRow("too long") << QString(252, QLatin1Char('x')) + QStringLiteral(".dsg");
}

void FileCommandsTest::impossibleNamesAreRefused()
{
    QFETCH(QString, name);
    const bool isPossible = Testing::mayBeFileName(name);
    openDesign();
    for (const char* command : {"Save a Copy…", "Save As..."}) {
        m_script.saved = m_files->path(name);
        trigger(command);
        QCOMPARE(message().isEmpty(), isPossible);
        const QStringList files = QDir(m_files->path(QString())).entryList(QDir::Files);
        QCOMPARE(files.contains(name), isPossible);
        QVERIFY(isPossible || message().contains(QStringLiteral(" has ")));
        QVERIFY(QFile::remove(m_script.saved) == isPossible);
    }
}

void FileCommandsTest::whatCannotBeWrittenIsTold()
{
    openDesign();
    const GUIdentifier part = firstPart();
    QVERIFY(QDir().mkpath(m_files->path(QStringLiteral("folder.dsg"))));
    m_script.saved = m_files->path(QStringLiteral("folder.dsg"));
    trigger("Save a Copy…");
    QVERIFY2(message().contains(QStringLiteral("cannot be written")), qPrintable(message()));
    trigger("Save As...");
    QVERIFY2(message().contains(QStringLiteral("cannot be written")), qPrintable(message()));
    QCOMPARE(firstPart(), part);
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::FileCommandsTest;

ZORVANE_TEST(FileCommandsTest)
#include "FileCommandsTest.moc"
