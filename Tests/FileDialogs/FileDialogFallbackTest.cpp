#include "FileDialogs/FileDialog.h"

#include "Tests/FileDialogs/FacadeTestCase.h"

#include <QtCore/QSettings>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLineEdit>

using namespace Zorvane;
using namespace Zorvane::Testing;

namespace {

const QStringList s_alternative{QStringLiteral("--alternativeFileDialog")};

void accept(QFileDialog& dialog, const QString& name)
{
    auto* edit = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    edit->setText(name);
    QTest::keyClick(edit, Qt::Key_Return);
}

/** Why Qt's dialog comes: nobody has a driver, nobody wants it, or it has failed. */
enum class Reason
{
    NoDriver,
    Unwanted,
    Failure
};

} // namespace

Q_DECLARE_METATYPE(Reason)

class FileDialogFallbackTest : public FacadeTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void openAsksQt_data();
    void openAsksQt();
    void openAtAFile();
    void openAtADeletedFolder();
    void openPassesOptions();
    void openWritesTheFilterBack();
    void openSeveralGivesAllAsQtSpellsThem();
    void saveAsksQt_data();
    void saveAsksQt();
    void saveRemembersTheFilterTheUserPicked();
    void saveInDirRepeats();
    void unwantedDriverIsNotAsked();
    void optionIsLookedAtEveryTime();
    void unwantedMeansPlainDialogs();
    void widgetsAreEnabledBeforeTheFallback();
    void failureUnderAConfiguration_asksWithItsControls();
    void failureWithTheOwner_isACancel();
    void cancelGivesNothingAndIsTold();

    void folderIsAlwaysAskedOfQt();
    void theFolderOfTheStartIsProposedUnlessTheScopesLiesInIt_data();
    void theFolderOfTheStartIsProposedUnlessTheScopesLiesInIt();
    void aFolderNeedsNoProvider();
    void aFolderCancelledTellsTheProviderNothing();

private:
    void setUp(Reason reason);
    static void addReasons();
};

void FileDialogFallbackTest::initTestCase()
{
    FacadeTestCase::initTestCase();
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void FileDialogFallbackTest::addReasons()
{
    QTest::addColumn<Reason>("reason");
    QTest::newRow("the system has no dialog") << Reason::NoDriver;
    QTest::newRow("the user wants none") << Reason::Unwanted;
    QTest::newRow("the system's dialog failed") << Reason::Failure;
}

void FileDialogFallbackTest::setUp(Reason reason)
{
    m_hasDriver = reason != Reason::NoDriver;
    if (reason == Reason::Unwanted)
        giveArguments(s_alternative);
    if (reason == Reason::Failure)
        m_script.fail();
}

void FileDialogFallbackTest::openAsksQt_data()
{
    addReasons();
}

void FileDialogFallbackTest::openAsksQt()
{
    QFETCH(Reason, reason);
    setUp(reason);
    QWidget parent;
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(s_caption, [this](QFileDialog& dialog) {
        QCOMPARE(FileDialog::getOpenDialogsCount(), 1);
        QCOMPARE(dialog.windowTitle(), s_caption);
        QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptOpen);
        QCOMPARE(dialog.fileMode(), QFileDialog::ExistingFile);
        QCOMPARE(dialog.nameFilters(), QStringList({s_parts, s_tables}));
        QCOMPARE(dialog.directory().absolutePath(), QDir(m_dir->path()).absolutePath());
        QVERIFY(!dialog.parentWidget());
        accept(dialog, QStringLiteral("a.prt"));
    });
    QCOMPARE(
        FileDialog::getOpenFileName(s_caption, s_filter, &m_provider, s_scope, nullptr, &parent),
        path(QStringLiteral("a.prt")));
    QCOMPARE(FileDialog::getOpenDialogsCount(), 0);
    QCOMPARE(m_provider.calls.last(),
             QStringLiteral("set Design to '%1'").arg(path(QStringLiteral("a.prt"))));
}

void FileDialogFallbackTest::openAtAFile()
{
    setUp(Reason::NoDriver);
    m_provider.path = path(QStringLiteral("a.prt"));
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(s_caption, [](QFileDialog& dialog) {
        QCOMPARE(dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text(),
                 QStringLiteral("a.prt"));
        dialog.reject();
    });
    FileDialog::getOpenFileName(s_caption, s_filter, &m_provider, s_scope);
}

void FileDialogFallbackTest::openAtADeletedFolder()
{
    setUp(Reason::NoDriver);
    m_provider.path = path(QStringLiteral("gone/deeper"));
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(s_caption, [](QFileDialog& dialog) {
        QVERIFY(dialog.directory().exists());
        dialog.reject();
    });
    FileDialog::getOpenFileName(s_caption, s_filter, &m_provider, s_scope);
}

void FileDialogFallbackTest::openPassesOptions()
{
    setUp(Reason::Failure);
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(s_caption, [](QFileDialog& dialog) {
        QVERIFY(dialog.testOption(QFileDialog::ReadOnly));
        QVERIFY(dialog.testOption(QFileDialog::HideNameFilterDetails));
        dialog.reject();
    });
    FileDialog::getOpenFileName(s_caption, QString(), s_filter, &m_provider, s_scope, nullptr,
                                QFileDialog::ReadOnly | QFileDialog::HideNameFilterDetails, nullptr,
                                nullptr);
}

void FileDialogFallbackTest::openWritesTheFilterBack()
{
    setUp(Reason::Failure);
    QString selected = s_tables;
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(s_caption, [](QFileDialog& dialog) {
        QCOMPARE(dialog.selectedNameFilter(), s_tables);
        dialog.selectNameFilter(s_parts);
        accept(dialog, QStringLiteral("a.prt"));
    });
    FileDialog::getOpenFileName(s_caption, QString(), s_filter, &m_provider, s_scope, &selected,
                                QFileDialog::Options(), nullptr, nullptr);
    QCOMPARE(selected, s_parts);
}

void FileDialogFallbackTest::openSeveralGivesAllAsQtSpellsThem()
{
    setUp(Reason::Unwanted);
    QVERIFY(writeFile(path(QStringLiteral("b.prt"))));
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(s_caption, [](QFileDialog& dialog) {
        QCOMPARE(dialog.fileMode(), QFileDialog::ExistingFiles);
        accept(dialog, QStringLiteral("\"b.prt\" \"a.prt\""));
    });
    // As the dialog gives them, with Qt's separators.
    QCOMPARE(FileDialog::getOpenFileNames(s_caption, s_filter, &m_provider, s_scope),
             QStringList({m_dir->filePath(QStringLiteral("b.prt")),
                          m_dir->filePath(QStringLiteral("a.prt"))}));
    QCOMPARE(m_provider.calls.last(),
             QStringLiteral("set Design to '%1'").arg(path(QStringLiteral("b.prt"))));
}

void FileDialogFallbackTest::saveAsksQt_data()
{
    addReasons();
}

void FileDialogFallbackTest::saveAsksQt()
{
    QFETCH(Reason, reason);
    setUp(reason);
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(s_caption, [](QFileDialog& dialog) {
        QCOMPARE(FileDialog::getOpenDialogsCount(), 1);
        QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptSave);
        QCOMPARE(dialog.fileMode(), QFileDialog::AnyFile);
        QCOMPARE(dialog.selectedNameFilter(), s_tables);
        QVERIFY(!dialog.parentWidget());
        accept(dialog, QStringLiteral("new"));
    });
    QCOMPARE(FileDialog::getSaveFileName(s_caption, s_filter, s_tables, &m_provider, s_scope,
                                         QStringLiteral("old")),
             m_dir->filePath(QStringLiteral("new.csv")));
}

void FileDialogFallbackTest::saveRemembersTheFilterTheUserPicked()
{
    setUp(Reason::NoDriver);
    const QString scope = QStringLiteral("picked");
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(s_caption, [](QFileDialog& dialog) {
        dialog.selectNameFilter(s_tables);
        accept(dialog, QStringLiteral("new"));
    });
    QCOMPARE(FileDialog::getSaveFileName(s_caption, s_filter, &m_provider, scope, QString()),
             m_dir->filePath(QStringLiteral("new.csv")));
    modals.expectDialog<QFileDialog>(s_caption, [](QFileDialog& dialog) {
        QCOMPARE(dialog.selectedNameFilter(), s_tables);
        dialog.reject();
    });
    FileDialog::getSaveFileName(s_caption, s_filter, &m_provider, scope, QString());
}

void FileDialogFallbackTest::saveInDirRepeats()
{
    setUp(Reason::NoDriver);
    QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("below")));
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(
        s_caption, [](QFileDialog& dialog) { accept(dialog, QStringLiteral("below/new.prt")); });
    modals.expectMessageBox(QStringLiteral("can only be saved"), QMessageBox::Ok);
    modals.expectDialog<QFileDialog>(
        s_caption, [](QFileDialog& dialog) { accept(dialog, QStringLiteral("new.prt")); });
    QCOMPARE(FileDialog::getSaveFileNameInDir(s_caption, s_filter, path(QStringLiteral("a.prt")),
                                              &m_provider, s_scope, QString(), QString()),
             m_dir->filePath(QStringLiteral("new.prt")));
}

void FileDialogFallbackTest::unwantedDriverIsNotAsked()
{
    setUp(Reason::Unwanted);
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(s_caption, [](QFileDialog& dialog) { dialog.reject(); });
    FileDialog::getOpenFileName(s_caption, s_filter, &m_provider, s_scope);
    QVERIFY(m_script.requests.empty());
}

void FileDialogFallbackTest::optionIsLookedAtEveryTime()
{
    FileDialog::getOpenFileName(s_caption, s_filter, &m_provider, s_scope);
    QCOMPARE(m_script.requests.size(), std::size_t(1));
    giveArguments(s_alternative);
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(s_caption, [](QFileDialog& dialog) { dialog.reject(); });
    FileDialog::getOpenFileName(s_caption, s_filter, &m_provider, s_scope);
    QCOMPARE(m_script.requests.size(), std::size_t(1));
}

void FileDialogFallbackTest::unwantedMeansPlainDialogs()
{
    setUp(Reason::Unwanted);
    RecordingHandler handler;
    FileDialogConfiguration configuration(QStringLiteral("Plain"));
    configuration.setEventHandler(&handler);
    configuration.addCustomControl({1, FileDialogConfiguration::CheckBox, false, 3, QString(),
                                    QStringLiteral("Repair"), false});
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(s_caption, [](QFileDialog& dialog) {
        QVERIFY(dialog.findChildren<QCheckBox*>().isEmpty());
        accept(dialog, QStringLiteral("a.prt"));
    });
    FileDialog::getOpenFileName(s_caption, s_filter, &m_provider, s_scope, &configuration);
    QCOMPARE(handler.events, QStringList());
    QVERIFY(!QSettings().contains(QStringLiteral("Plain/topLeft")));
}

void FileDialogFallbackTest::widgetsAreEnabledBeforeTheFallback()
{
    QWidget parent;
    m_script.fail();
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(s_caption, [&parent](QFileDialog& dialog) {
        QVERIFY(parent.isEnabled());
        dialog.reject();
    });
    FileDialog::getOpenFileName(s_caption, s_filter, &m_provider, s_scope, nullptr, &parent);
}

void FileDialogFallbackTest::failureUnderAConfiguration_asksWithItsControls()
{
    setUp(Reason::Failure);
    RecordingHandler handler;
    FileDialogConfiguration configuration(QStringLiteral("Failing"));
    configuration.setEventHandler(&handler);
    configuration.addCustomControl({1, FileDialogConfiguration::CheckBox, false, 3, QString(),
                                    QStringLiteral("Repair"), false});
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(s_caption, [](QFileDialog& dialog) {
        dialog.findChild<QCheckBox*>()->click();
        accept(dialog, QStringLiteral("a.prt"));
    });
    QCOMPARE(FileDialog::getOpenFileName(s_caption, s_filter, &m_provider, s_scope, &configuration),
             path(QStringLiteral("a.prt")));
    QVERIFY(handler.events.contains(QStringLiteral("toggled 1 1")));
}

void FileDialogFallbackTest::failureWithTheOwner_isACancel()
{
    setUp(Reason::Failure);
    auto owner = std::make_unique<QWidget>();
    m_script.whileOpen = [&owner](const FileDialogRequest&) { owner.reset(); };
    QCOMPARE(FileDialog::getOpenFileName(s_caption, s_filter, &m_provider, s_scope, nullptr,
                                         owner.get()),
             QString());
}

void FileDialogFallbackTest::cancelGivesNothingAndIsTold()
{
    setUp(Reason::NoDriver);
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(
        s_caption, [](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    QCOMPARE(FileDialog::getOpenFileName(s_caption, s_filter, &m_provider, s_scope), QString());
    QCOMPARE(m_provider.calls.last(), QStringLiteral("set Design to ''"));
    modals.expectDialog<QFileDialog>(s_caption, [](QFileDialog& dialog) { dialog.close(); });
    QCOMPARE(FileDialog::getSaveFileName(s_caption, s_filter, &m_provider, s_scope, QString()),
             QString());
    modals.expectDialog<QFileDialog>(s_caption, [](QFileDialog& dialog) { dialog.close(); });
    QCOMPARE(FileDialog::getOpenFileNames(s_caption, s_filter, &m_provider, s_scope),
             QStringList());
    QCOMPARE(FileDialog::getOpenDialogsCount(), 0);
}

void FileDialogFallbackTest::folderIsAlwaysAskedOfQt()
{
    QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("below")));
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(s_caption, [](QFileDialog& dialog) {
        QCOMPARE(FileDialog::getOpenDialogsCount(), 1);
        QCOMPARE(dialog.windowTitle(), s_caption);
        QVERIFY(dialog.testOption(QFileDialog::ShowDirsOnly));
        QVERIFY(dialog.testOption(QFileDialog::DontResolveSymlinks));
        QVERIFY(!dialog.parentWidget());
        accept(dialog, QStringLiteral("below"));
    });
    const QString below = m_dir->filePath(QStringLiteral("below"));
    QCOMPARE(FileDialog::getExistingDirectoryName(s_caption, &m_provider, s_scope), below);
    QVERIFY(m_script.requests.empty());
    QCOMPARE(FileDialog::getOpenDialogsCount(), 0);
    QCOMPARE(m_provider.calls.last(), QStringLiteral("set Design to '%1'").arg(below));
}

void FileDialogFallbackTest::theFolderOfTheStartIsProposedUnlessTheScopesLiesInIt_data()
{
    QTest::addColumn<QString>("scopePath");
    QTest::addColumn<QString>("startDir");
    QTest::addColumn<QString>("proposed");
    // Below the test's folder; empty stays empty.
    const auto row = [](const char* rule, const char* scopePath, const char* startDir,
                        const char* proposed) {
        QTest::newRow(rule) << QString::fromUtf8(scopePath) << QString::fromUtf8(startDir)
                            << QString::fromUtf8(proposed);
    };
    row("the scope's path", "/other", "", "/other");
    row("the folder of the start", "/other", "/data/x", "/data");
    row("the start itself, with a separator", "/other", "/data/x/", "/data/x");
    row("a scope's path below the start's folder", "/data/x", "/data/y", "/data/x");
    row("a scope's path that only begins alike", "/data2", "/data/y", "/data2");
    row("a scope's path in other letter case", "/DATA/x", "/data/y", "/data");
    row("a start that is gone", "/other", "/gone/deep/y", "/other");
    row("a scope's path that is gone", "/gone/deep", "/data/y", "/data");
}

void FileDialogFallbackTest::theFolderOfTheStartIsProposedUnlessTheScopesLiesInIt()
{
    QFETCH(QString, scopePath);
    QFETCH(QString, startDir);
    QFETCH(QString, proposed);
    for (const char* folder : {"data/x", "DATA/x", "data2", "other"})
        QVERIFY(QDir(m_dir->path()).mkpath(QString::fromLatin1(folder)));
    m_provider.path = QDir::toNativeSeparators(m_dir->path() + scopePath);
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(s_caption, [&](QFileDialog& dialog) {
        QCOMPARE(dialog.directory().absolutePath(), m_dir->path() + proposed);
        dialog.reject();
    });
    FileDialog::getExistingDirectoryName(s_caption, &m_provider, s_scope,
                                         startDir.isEmpty() ? QString()
                                                            : QString(m_dir->path() + startDir));
}

void FileDialogFallbackTest::aFolderNeedsNoProvider()
{
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(s_caption, [this](QFileDialog& dialog) {
        QCOMPARE(dialog.directory().absolutePath(), m_dir->path());
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    QCOMPARE(FileDialog::getExistingDirectoryName(s_caption, nullptr, s_scope,
                                                  m_dir->path() + QLatin1Char('/')),
             m_dir->path());
}

void FileDialogFallbackTest::aFolderCancelledTellsTheProviderNothing()
{
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(s_caption, [](QFileDialog& dialog) { dialog.reject(); });
    QCOMPARE(FileDialog::getExistingDirectoryName(s_caption, &m_provider, s_scope), QString());
    QCOMPARE(m_provider.calls,
             QStringList({QStringLiteral("path of Design"), QStringLiteral("places of Design")}));
    QCOMPARE(FileDialog::getOpenDialogsCount(), 0);
}

ZORVANE_TEST(FileDialogFallbackTest)
#include "FileDialogFallbackTest.moc"
