#include "Workbench/Import/FileExchange.h"
#include "Tests/Support/ExpectedModals.h"
#include "Tests/Support/PlatformCopies.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Import/ImportFixture.h"
#include "Workbench/Window/MainWindow.h"
#include "Workbench/Window/MessageBar.h"

#include <QtWidgets/QAction>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QTreeView>

#include <memory>

namespace Zorvane::Workbench {

using Testing::ExpectedModals;
using Testing::objectId;

class FileExchangeTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void importSelectsTheNewPart();
    void importOpensNextToTheDesignThenWhereItWas();
    void importCancelledDoesNothing();
    void importTellsWhatIsWrongAndWhy();
    void importGoesIntoTheSelectedDesign();
    void importNeedsADesign();
    void exportCopiesTheSelection();
    void exportCancelledDoesNothing();
    void exportTellsWhatIsWrongAndWhy();
    void exportNeedsAFile();

private:
    QAction* action(const QString& text) const;
    void openDesign();
    QString message() const { return m_window->messageBar().text(); }

    Testing::PlatformCopies m_copies;
    std::unique_ptr<Testing::ImportFixture> m_files;
    std::unique_ptr<MainWindow> m_window;
    Testing::ScriptedChooser::Script m_script;
};

void FileExchangeTest::init()
{
    m_files = std::make_unique<Testing::ImportFixture>();
    m_window = std::make_unique<MainWindow>();
    m_script = {};
    m_window->fileExchange().setFileChooser(std::make_unique<Testing::ScriptedChooser>(m_script));
    m_window->show();
}

void FileExchangeTest::cleanup()
{
    m_window.reset();
    m_files.reset();
    TestCase::cleanup();
}

QAction* FileExchangeTest::action(const QString& text) const
{
    for (QAction* found : m_window->actions())
        if (found->text().remove(QLatin1Char('&')) == text)
            return found;
    return nullptr;
}

void FileExchangeTest::openDesign()
{
    m_window->open({m_files->designFile()});
    m_window->tree().refreshNow();
}

void FileExchangeTest::importSelectsTheNewPart()
{
    openDesign();
    m_script.files = QStringList{m_files->outsideMesh(QStringLiteral("door.stl"))};
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Copy File"), QMessageBox::Yes);
    action(QStringLiteral("Import…"))->trigger();
    QVERIFY(modals.allMet());
    const GUIdentifier part = m_window->tree().currentId().getCombinedPart();
    QCOMPARE(m_window->session().name(part), QStringLiteral("door"));
    QVERIFY(m_window->isWindowModified());
    QVERIFY(message().isEmpty());
    QCOMPARE(m_window->statusBar()->currentMessage(), QStringLiteral("1 file imported"));
    QVERIFY(m_script.asked.filters.startsWith(QStringLiteral("All files (*);;Meshes (*.")));
    QVERIFY(m_script.asked.filters.contains(QStringLiteral("(*.csv)")));
}

void FileExchangeTest::importOpensNextToTheDesignThenWhereItWas()
{
    // Another design than in the other tests: what one used last is remembered for it.
    QJsonObject own = Testing::smallDesign();
    own[QLatin1String("id")] = QString::fromStdString(GUIdentifier::create().getUUID());
    Testing::writeFile(m_files->designFile(), Testing::toText(own));
    openDesign();
    action(QStringLiteral("Import…"))->trigger();
    QCOMPARE(QDir(m_script.opened), QDir(m_files->folder.path()));
    m_script.files = QStringList{m_files->outside(QStringLiteral("forces.csv"), "1")};
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Copy File"), QMessageBox::No);
    action(QStringLiteral("Import…"))->trigger();
    const QString used = m_script.files.takeFirst();
    action(QStringLiteral("Import…"))->trigger();
    QCOMPARE(m_script.opened, used);
}

void FileExchangeTest::importCancelledDoesNothing()
{
    openDesign();
    ExpectedModals modals;
    action(QStringLiteral("Import…"))->trigger();
    QVERIFY(!m_window->session().isModified());
    QVERIFY(message().isEmpty());
}

void FileExchangeTest::importTellsWhatIsWrongAndWhy()
{
    openDesign();
    for (int number = 0; number < 5; ++number)
        m_script.files << m_files->elsewhere.filePath(QStringLiteral("gone-%1.stl").arg(number));
    ExpectedModals modals;
    action(QStringLiteral("Import…"))->trigger();
    QVERIFY(message().startsWith(QDir::toNativeSeparators(m_script.files.first()) +
                                 QStringLiteral(": doesn't exist\n")));
    QCOMPARE(message().split(QLatin1Char('\n')).size(), 4);
    QVERIFY(!m_window->session().isModified());
}

void FileExchangeTest::importGoesIntoTheSelectedDesign()
{
    openDesign();
    QTemporaryDir folder;
    const QString second = Testing::writeFile(
        folder.filePath(QStringLiteral("second.dsg")),
        Testing::toText(Testing::designWithFiles(100, QStringLiteral("Second"), {})));
    m_window->open({second});
    m_window->tree().refreshNow();
    QVERIFY(m_window->tree().select(objectId(100)));
    m_script.files =
        QStringList{Testing::writeFile(folder.filePath(QStringLiteral("forces.csv")), "1")};
    action(QStringLiteral("Import…"))->trigger();
    QCOMPARE(m_window->session().findDesign(objectId(100))->files.size(), std::size_t(1));
    QVERIFY(!m_window->session().isModified(objectId(40)));
    QCOMPARE(m_window->session().findDesign(objectId(1))->files.size(), std::size_t(2));
}

void FileExchangeTest::importNeedsADesign()
{
    QVERIFY(!action(QStringLiteral("Import…"))->isEnabled());
    m_window->open({m_files->outsideMesh(QStringLiteral("door.stl"))});
    m_window->tree().refreshNow();
    QVERIFY(!action(QStringLiteral("Import…"))->isEnabled());
    openDesign();
    QVERIFY(action(QStringLiteral("Import…"))->isEnabled());
}

void FileExchangeTest::exportCopiesTheSelection()
{
    openDesign();
    m_window->tree().select(objectId(30));
    m_script.folder = m_files->elsewhere.path();
    ExpectedModals modals;
    action(QStringLiteral("Export..."))->trigger();
    QCOMPARE(Testing::readFile(m_files->elsewhere.filePath(QStringLiteral("steel.json"))),
             QByteArray("{}"));
    QVERIFY(m_window->statusBar()->currentMessage().startsWith(QStringLiteral("1 file copied")));
    QVERIFY(!m_window->session().isModified());
}

void FileExchangeTest::exportCancelledDoesNothing()
{
    openDesign();
    ExpectedModals modals;
    action(QStringLiteral("Export..."))->trigger();
    QVERIFY(message().isEmpty());
    QVERIFY(m_window->statusBar()->currentMessage().isEmpty());
}

void FileExchangeTest::exportTellsWhatIsWrongAndWhy()
{
    openDesign();
    m_window->tree().select(objectId(30));
    m_script.folder = m_files->folder.path();
    ExpectedModals modals;
    action(QStringLiteral("Export..."))->trigger();
    QCOMPARE(message(), QDir::toNativeSeparators(m_files->path(QStringLiteral("steel.json"))) +
                            QStringLiteral(": lies in that folder already"));
}

void FileExchangeTest::exportNeedsAFile()
{
    QVERIFY(!action(QStringLiteral("Export..."))->isEnabled());
    openDesign();
    QVERIFY(action(QStringLiteral("Export..."))->isEnabled());
    m_window->tree().select(objectId(22));
    QVERIFY(!action(QStringLiteral("Export..."))->isEnabled());
    m_window->tree().select(objectId(1));
    QVERIFY(!action(QStringLiteral("Export..."))->isEnabled());
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::FileExchangeTest;
ZORVANE_TEST(FileExchangeTest)
#include "FileExchangeTest.moc"
