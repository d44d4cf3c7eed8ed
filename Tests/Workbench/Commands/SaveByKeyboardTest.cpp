#include "FileDialogs/FileDialogDriver.h"
#include "Files/DesignPathProvider.h"
#include "Tests/Support/ExpectedModals.h"
#include "Tests/Support/PlatformCopies.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Commands/Keyboard.h"
#include "Tests/Workbench/Import/ImportFixture.h"
#include "Workbench/Commands/FileCommands.h"
#include "Workbench/Commands/WindowCommands.h"
#include "Workbench/Window/MainWindow.h"
#include "Workbench/Window/MessageBar.h"

#include <QtCore/QSettings>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>

#include <functional>
#include <memory>

namespace Zorvane::Workbench {

using Testing::activate;
using Testing::ExpectedModals;
using Testing::isFocused;
using Testing::press;
using Testing::type;

namespace {

const QString s_endingAdded = QStringLiteral("already exists. Is it to be replaced?");
const QString s_elsewhere = QStringLiteral("This file can only be saved at");

QString nameIn(const QFileDialog& dialog)
{
    return dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text();
}

/** In place of what is proposed. */
void answerWith(QFileDialog& dialog, const QString& name)
{
    activate(dialog);
    QVERIFY(isFocused("fileNameEdit"));
    press(dialog, Qt::Key_A, Qt::ControlModifier);
    type(dialog, name);
    QCOMPARE(nameIn(dialog), name);
    press(dialog, Qt::Key_Return);
}

} // namespace

/** Saves under other names, and opens folders, in Qt's dialogs with a keyboard only. */
class SaveByKeyboardTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void saveAsAddsTheEnding();
    void saveAsAsksBeforeTheEndingMeetsAFile();
    void saveAsReplacesOnDemand();
    void saveAsReplacesNothingWhenTheWindowGoes();
    void saveAsAsksOnceAboutAWholeName();
    void saveAsProposesTypableNames();
    void saveAsIsLeftByEscape();

    void saveCopyOfTheProposal();
    void saveCopyAddsTheEnding();
    void saveCopyAsksBeforeTheEndingMeetsAFile();
    void saveCopyStaysInTheFolder();

    void aTypedFolderIsOpened();
    void openFolderIsLeftByEscape();

private:
    /** By the keys of the menu, as far as the wanted entry. */
    void choose(const char* command);
    /** Runs the command; whatever it shows stands in the list. */
    void run(const char* command, const ExpectedModals& modals);
    static void expectName(ExpectedModals& modals, const char* dialog, const QString& name);
    static void expectKey(ExpectedModals& modals, const QString& box, int key,
                          Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    QString path(const char* name) const { return m_files->path(QString::fromUtf8(name)); }
    QString shownFile() const
    {
        return QFileInfo(m_window->session().designs().front().file).fileName();
    }

    Testing::PlatformCopies m_copies;
    const NativeFileDialogReplacement m_qtDialogs{[] { return nullptr; }};
    std::unique_ptr<Testing::ImportFixture> m_files;
    std::unique_ptr<MainWindow> m_window;
};

void SaveByKeyboardTest::initTestCase()
{
    TestCase::initTestCase();
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void SaveByKeyboardTest::init()
{
    QSettings().clear();
    m_files = std::make_unique<Testing::ImportFixture>();
    m_window = std::make_unique<MainWindow>();
    m_window->show();
    m_window->open({m_files->designFile()});
    // The design of all tests is one, and is remembered where the last of them had it.
    const Design& design = m_window->session().designs().front();
    DesignPathProvider::getInstance(design.id, FileName(design.file))
        ->setPathToScope(design.file, FileCommands::scope());
    QVERIFY(QTest::qWaitForWindowActive(m_window.get(), Zorvane::Testing::patience));
}

void SaveByKeyboardTest::cleanup()
{
    m_window.reset();
    m_files.reset();
    TestCase::cleanup();
}

void SaveByKeyboardTest::choose(const char* command)
{
    activate(*m_window);
    QTest::keyClick(m_window.get(), Qt::Key_F, Qt::AltModifier);
    QTRY_VERIFY(QApplication::activePopupWidget());
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(menu);
    const auto isChosen = [&] {
        return menu->activeAction() &&
               menu->activeAction()->text().remove(QLatin1Char('&')) == QString::fromUtf8(command);
    };
    for (int row = 0; row < menu->actions().size() && !isChosen(); ++row)
        QTest::keyClick(menu, Qt::Key_Down);
    QVERIFY2(isChosen(), command);
    QTest::keyClick(menu, Qt::Key_Return);
}

void SaveByKeyboardTest::run(const char* command, const ExpectedModals& modals)
{
    choose(command);
    QVERIFY2(modals.allMet(), qPrintable(modals.failures().join(QLatin1Char('\n'))));
}

void SaveByKeyboardTest::expectName(ExpectedModals& modals, const char* dialog, const QString& name)
{
    modals.expectDialog<QFileDialog>(QString::fromUtf8(dialog),
                                     [name](QFileDialog& shown) { answerWith(shown, name); });
}

void SaveByKeyboardTest::expectKey(ExpectedModals& modals, const QString& box, int key,
                                   Qt::KeyboardModifiers modifiers)
{
    modals.expectMessageBox(box, [key, modifiers](QMessageBox& shown) {
        press(shown, key, modifiers);
        // Buttons that are pressed by their letter go down first.
        QTRY_VERIFY(shown.isHidden());
    });
}

void SaveByKeyboardTest::saveAsAddsTheEnding()
{
    ExpectedModals modals;
    expectName(modals, "Save Design As", QStringLiteral("part"));
    run("Save As...", modals);
    QCOMPARE(shownFile(), QStringLiteral("part.dsg"));
    QVERIFY(QFile::exists(path("part.dsg")));
    QVERIFY(!QFile::exists(path("part")));
}

void SaveByKeyboardTest::saveAsAsksBeforeTheEndingMeetsAFile()
{
    Testing::writeFile(path("part.dsg"), "closed");
    for (const int key : {Qt::Key_Return, Qt::Key_Escape}) {
        ExpectedModals modals;
        expectName(modals, "Save Design As", QStringLiteral("part"));
        expectKey(modals, s_endingAdded, key);
        run("Save As...", modals);
        QCOMPARE(Testing::readFile(path("part.dsg")), QByteArray("closed"));
        QCOMPARE(shownFile(), QStringLiteral("small.dsg"));
        QVERIFY(m_window->messageBar().text().isEmpty());
    }
}

void SaveByKeyboardTest::saveAsReplacesOnDemand()
{
    Testing::writeFile(path("part.dsg"), "closed");
    ExpectedModals modals;
    expectName(modals, "Save Design As", QStringLiteral("part"));
    expectKey(modals, s_endingAdded, Qt::Key_R, Qt::AltModifier);
    run("Save As...", modals);
    QVERIFY(Testing::readFile(path("part.dsg")) != "closed");
    QCOMPARE(shownFile(), QStringLiteral("part.dsg"));
}

void SaveByKeyboardTest::saveAsReplacesNothingWhenTheWindowGoes()
{
    Testing::writeFile(path("part.dsg"), "closed");
    ExpectedModals modals;
    expectName(modals, "Save Design As", QStringLiteral("part"));
    modals.expectMessageBox(s_endingAdded, [this](QMessageBox&) { m_window.reset(); });
    // A key's release would have no menu to go to.
    m_window->commands()[ZVMainActions::SaveAs]->trigger();
    QVERIFY(modals.allMet());
    QVERIFY(!m_window);
    QCOMPARE(Testing::readFile(path("part.dsg")), QByteArray("closed"));
}

void SaveByKeyboardTest::saveAsAsksOnceAboutAWholeName()
{
    Testing::writeFile(path("part.dsg"), "closed");
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(QStringLiteral("Save Design As"), [&](QFileDialog& dialog) {
        modals.expectMessageBox(QStringLiteral("Do you want to replace it"), QMessageBox::Yes);
        answerWith(dialog, QStringLiteral("part.dsg"));
    });
    run("Save As...", modals);
    QCOMPARE(shownFile(), QStringLiteral("part.dsg"));
}

void SaveByKeyboardTest::saveAsProposesTypableNames()
{
    m_window->session().close();
    if (!QFile::rename(m_files->designFile(), path("12\" blank.dsg")))
        QSKIP("File names hold no double quotes here.");
    m_window->open({path("12\" blank.dsg")});
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(QStringLiteral("Save Design As"), [](QFileDialog& dialog) {
        QCOMPARE(nameIn(dialog), QStringLiteral("12'' blank.dsg"));
        press(dialog, Qt::Key_Return);
    });
    run("Save As...", modals);
    QCOMPARE(shownFile(), QStringLiteral("12'' blank.dsg"));
}

void SaveByKeyboardTest::saveAsIsLeftByEscape()
{
    const QStringList before = m_files->entries();
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(QStringLiteral("Save Design As"), [](QFileDialog& dialog) {
        QCOMPARE(nameIn(dialog), QStringLiteral("small.dsg"));
        press(dialog, Qt::Key_Escape);
    });
    run("Save As...", modals);
    QCOMPARE(m_files->entries(), before);
    QCOMPARE(shownFile(), QStringLiteral("small.dsg"));
}

void SaveByKeyboardTest::saveCopyOfTheProposal()
{
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(QStringLiteral("Save a Copy"), [](QFileDialog& dialog) {
        QCOMPARE(nameIn(dialog), QStringLiteral("small copy.dsg"));
        press(dialog, Qt::Key_Return);
    });
    run("Save a Copy…", modals);
    QVERIFY(QFile::exists(path("small copy.dsg")));
    QCOMPARE(shownFile(), QStringLiteral("small.dsg"));
}

void SaveByKeyboardTest::saveCopyAddsTheEnding()
{
    ExpectedModals modals;
    expectName(modals, "Save a Copy", QStringLiteral("second"));
    run("Save a Copy…", modals);
    QVERIFY(QFile::exists(path("second.dsg")));
    QVERIFY(!QFile::exists(path("second")));
    QVERIFY(m_window->messageBar().text().isEmpty());
}

void SaveByKeyboardTest::saveCopyAsksBeforeTheEndingMeetsAFile()
{
    Testing::writeFile(path("second.dsg"), "closed");
    {
        ExpectedModals modals;
        expectName(modals, "Save a Copy", QStringLiteral("second"));
        expectKey(modals, s_endingAdded, Qt::Key_Return);
        run("Save a Copy…", modals);
        QCOMPARE(Testing::readFile(path("second.dsg")), QByteArray("closed"));
    }
    ExpectedModals modals;
    expectName(modals, "Save a Copy", QStringLiteral("second"));
    expectKey(modals, s_endingAdded, Qt::Key_R, Qt::AltModifier);
    run("Save a Copy…", modals);
    QVERIFY(Testing::readFile(path("second.dsg")) != "closed");
}

void SaveByKeyboardTest::saveCopyStaysInTheFolder()
{
    const QString elsewhere = m_files->elsewhere.filePath(QStringLiteral("second.dsg"));
    ExpectedModals modals;
    for (int attempt = 0; attempt < 2; ++attempt) {
        expectName(modals, "Save a Copy", elsewhere);
        expectKey(modals, s_elsewhere, Qt::Key_Return);
    }
    expectName(modals, "Save a Copy", QStringLiteral("second.dsg"));
    run("Save a Copy…", modals);
    QVERIFY(!QFile::exists(elsewhere));
    QVERIFY(QFile::exists(path("second.dsg")));
}

void SaveByKeyboardTest::aTypedFolderIsOpened()
{
    m_window->session().close();
    ExpectedModals modals;
    expectName(modals, "Open Folder", m_files->folder.path());
    run("Open Folder…", modals);
    QCOMPARE(int(m_window->session().designs().size()), 1);
    QCOMPARE(shownFile(), QStringLiteral("small.dsg"));
}

void SaveByKeyboardTest::openFolderIsLeftByEscape()
{
    m_window->session().close();
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(QStringLiteral("Open Folder"),
                                     [](QFileDialog& dialog) { press(dialog, Qt::Key_Escape); });
    run("Open Folder…", modals);
    QVERIFY(m_window->session().designs().empty());
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::SaveByKeyboardTest;

ZORVANE_TEST(SaveByKeyboardTest)
#include "SaveByKeyboardTest.moc"
