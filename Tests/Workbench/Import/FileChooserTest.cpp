#include "Workbench/Import/FileChooser.h"

#include "Tests/FileDialogs/DialogFixtures.h"
#include "Tests/Support/ExpectedModals.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Commands/Keyboard.h"

#include <QtCore/QTemporaryDir>
#include <QtGui/QWindow>
#include <QtWidgets/QFileDialog>

#include <functional>
#include <memory>

namespace Zorvane::Workbench {

/** Asks by a dialog; empty when that is cancelled. */
using Question = std::function<QString(FileChooser&, QWidget*, const FileChoice&)>;

} // namespace Zorvane::Workbench

Q_DECLARE_METATYPE(Zorvane::Workbench::Question)

namespace Zorvane::Workbench {

using Testing::ExpectedModals;

namespace {

const QString s_elsewhere = QStringLiteral("This file can only be saved at");

QWindow* ownerOf(const QDialog& dialog)
{
    return dialog.windowHandle()->transientParent();
}

void answerWith(QFileDialog& dialog, const QString& name)
{
    Testing::activate(dialog);
    Testing::press(dialog, Qt::Key_A, Qt::ControlModifier);
    Testing::type(dialog, name);
    Testing::press(dialog, Qt::Key_Return);
}

void addQuestions()
{
    QTest::addColumn<Question>("question");
    QTest::newRow("files") << Question(
        [](FileChooser& chooser, QWidget* parent, const FileChoice& choice) {
            return chooser.files(parent, choice).join(QLatin1Char(' '));
        });
    QTest::newRow("folder") << Question(
        [](FileChooser& chooser, QWidget* parent, const FileChoice& choice) {
            return chooser.folder(parent, choice);
        });
    QTest::newRow("save") << Question(
        [](FileChooser& chooser, QWidget* parent, const FileChoice& choice) {
            return chooser.fileToSave(parent, choice, QStringLiteral("part.dsg"));
        });
    QTest::newRow("save beside") << Question(
        [](FileChooser& chooser, QWidget* parent, const FileChoice& choice) {
            return chooser.fileToSaveBeside(
                parent, choice, choice.paths->getPathFromScope({}) + QStringLiteral("/part.dsg"));
        });
}

} // namespace

/** Qt's dialogs, most of which the library shows without an owner, belong to who asks. */
class FileChooserTest : public Testing::TestCase
{
    Q_OBJECT

private:
    FileChoice choice()
    {
        return {QStringLiteral("Choose"), &m_paths, QStringLiteral("Design"),
                QStringLiteral("Designs (*.dsg)")};
    }
    QString askToSaveBeside();

    const NativeFileDialogReplacement m_qtDialogs{[] { return nullptr; }};
    std::unique_ptr<QTemporaryDir> m_folder;
    Testing::ScriptedPathProvider m_paths;
    std::unique_ptr<QWidget> m_window;
    DialogFileChooser m_chooser;

private Q_SLOTS:
    void init();
    void cleanup();
    void dialogsBelongToTheWindow_data() { addQuestions(); }
    void dialogsBelongToTheWindow();
    void dialogsGoWithTheWindow_data() { addQuestions(); }
    void dialogsGoWithTheWindow();
    void withoutAWindowDialogsStandAlone_data() { addQuestions(); }
    void withoutAWindowDialogsStandAlone();
    void theBoxOfAWrongFolderBelongsToTheWindow();
    void nothingIsAskedAgainOnceTheWindowIsGone();
};

void FileChooserTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_paths = Testing::ScriptedPathProvider();
    m_paths.path = m_folder->path();
    m_window = std::make_unique<QWidget>();
    m_window->show();
}

void FileChooserTest::cleanup()
{
    m_window.reset();
    m_folder.reset();
    TestCase::cleanup();
}

QString FileChooserTest::askToSaveBeside()
{
    return m_chooser.fileToSaveBeside(m_window.get(), choice(),
                                      m_folder->filePath(QStringLiteral("part.dsg")));
}

void FileChooserTest::dialogsBelongToTheWindow()
{
    QFETCH(Question, question);
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(QStringLiteral("Choose"), [this](QFileDialog& dialog) {
        QCOMPARE(ownerOf(dialog), m_window->windowHandle());
        dialog.reject();
    });
    QCOMPARE(question(m_chooser, m_window.get(), choice()), QString());
    QVERIFY(modals.allMet());
}

void FileChooserTest::dialogsGoWithTheWindow()
{
    QFETCH(Question, question);
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(QStringLiteral("Choose"),
                                     [this](QFileDialog&) { m_window.reset(); });
    QCOMPARE(question(m_chooser, m_window.get(), choice()), QString());
    QVERIFY(modals.allMet());
}

void FileChooserTest::withoutAWindowDialogsStandAlone()
{
    QFETCH(Question, question);
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(QStringLiteral("Choose"), [](QFileDialog& dialog) {
        QCOMPARE(ownerOf(dialog), nullptr);
        dialog.reject();
    });
    QCOMPARE(question(m_chooser, nullptr, choice()), QString());
    QVERIFY(modals.allMet());
}

void FileChooserTest::theBoxOfAWrongFolderBelongsToTheWindow()
{
    const QTemporaryDir elsewhere;
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(QStringLiteral("Choose"), [&elsewhere](QFileDialog& dialog) {
        answerWith(dialog, elsewhere.filePath(QStringLiteral("part.dsg")));
    });
    modals.expectMessageBox(s_elsewhere, [this](QMessageBox& box) {
        QCOMPARE(ownerOf(box), m_window->windowHandle());
        box.accept();
    });
    modals.expectDialog<QFileDialog>(QStringLiteral("Choose"),
                                     [](QFileDialog& dialog) { dialog.reject(); });
    QCOMPARE(askToSaveBeside(), QString());
    QVERIFY(modals.allMet());
}

void FileChooserTest::nothingIsAskedAgainOnceTheWindowIsGone()
{
    const QTemporaryDir elsewhere;
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(QStringLiteral("Choose"), [&elsewhere](QFileDialog& dialog) {
        answerWith(dialog, elsewhere.filePath(QStringLiteral("part.dsg")));
    });
    // The library shows its dialog once more, which is gone before anybody could answer.
    modals.expectMessageBox(s_elsewhere, [this](QMessageBox&) { m_window.reset(); });
    QCOMPARE(askToSaveBeside(), QString());
    QVERIFY(modals.allMet());
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::FileChooserTest;
ZORVANE_TEST(FileChooserTest)
#include "FileChooserTest.moc"
