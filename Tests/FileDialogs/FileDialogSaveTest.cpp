#include "FileDialogs/FileDialog.h"

#include "Tests/FileDialogs/FacadeTestCase.h"

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QWidget>

using namespace Zorvane;
using namespace Zorvane::Testing;

class FileDialogSaveTest : public FacadeTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void saveAsksTheDriver();
    void saveTellsTheProvider();
    void saveProposes_data();
    void saveProposes();
    void cancelGivesNothingAndIsTold();

    void aNameWithoutAnEndingGetsTheFilters_data();
    void aNameWithoutAnEndingGetsTheFilters();
    void theSelectedFilterGivesTheEnding();
    void suffixIsToldToTheProvider();
    void addedEndingsAreKnown_data();
    void addedEndingsAreKnown();

    void nestedDialog_leavesTheOuterOnesEnding();
    void askedResult_isOfThatCallAlone();
    void replacing_isConfirmed_data();
    void replacing_isConfirmed();
    void newFile_needsNoConfirmation();
    void destroyedParent_confirmsNothing();

    void filterIsRememberedByScope();
    void chosenFilterGoesBeforeTheRememberedOne();
    void cancelRemembersTheFilterToo();
    void filterNoLongerOfferedIsRemembered();

    void inDirAsksTheDriver();
    void inDirProposesTheCurrentFolder();
    void inDirPreselectsAFilter();
    void inDirRepeatsUntilTheFolderIsRight();
    void inDirShowsTheMessage_data();
    void inDirShowsTheMessage();
    void inDirCountsTheBox();
    void inDirCancelGivesNothingAndIsTold_data();
    void inDirCancelGivesNothingAndIsTold();
    void inDirComparesFoldersExactly();
    void inDirGivesTheAbsolutePath();

    void theLastFolderIsProposedWithTheName();

private:
    /** Saves in a scope that no other test uses. */
    QString saveIn(const char* scope, const QString& filter, const QString& selected);
};

QString FileDialogSaveTest::saveIn(const char* scope, const QString& filter,
                                   const QString& selected)
{
    return FileDialog::getSaveFileName(s_caption, filter, selected, &m_provider,
                                       QString::fromLatin1(scope), QStringLiteral("part"));
}

void FileDialogSaveTest::saveAsksTheDriver()
{
    m_provider.places = {QStringLiteral("one"), QStringLiteral("two")};
    QWidget parent;
    m_script.answer({QStringLiteral("/b/new.prt")});
    QCOMPARE(FileDialog::getSaveFileName(s_caption, s_filter, s_tables, &m_provider, s_scope,
                                         QStringLiteral("new.prt"), &parent),
             QStringLiteral("/b/new.prt"));
    QVERIFY(m_script.requests.front().purpose == FileDialogPurpose::SaveFile);
    const FileDialogRequest& request = m_script.last();
    QCOMPARE(request.owner.data(), &parent);
    QCOMPARE(request.caption, s_caption);
    QVERIFY(!(request.purpose == FileDialogPurpose::OpenFiles));
    QCOMPARE(filterTypes(request.filter), QStringList({s_parts, s_tables}));
    QCOMPARE(Testing::filtersOf(request).preselectedPattern, QStringLiteral("*.csv"));
    QCOMPARE(dialogStart(request.start).folder, QDir::toNativeSeparators(m_dir->path()));
    QCOMPARE(dialogStart(request.start).fileName, QStringLiteral("new.prt"));
    QCOMPARE(request.places, m_provider.places);
    QVERIFY(!request.configuration);
}

void FileDialogSaveTest::saveTellsTheProvider()
{
    m_script.answer({QStringLiteral("/b/new.prt")});
    FileDialog::getSaveFileName(s_caption, s_filter, &m_provider, s_scope, QString());
    QCOMPARE(m_provider.calls,
             QStringList({QStringLiteral("places of Design"), QStringLiteral("path of Design"),
                          QStringLiteral("set Design to '/b/new.prt'")}));
}

void FileDialogSaveTest::saveProposes_data()
{
    QTest::addColumn<QString>("scopePath");
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("proposed");
    const auto row = [](const char* rule, const char* scopePath, const char* fileName,
                        const char* folder, const char* proposed) {
        QTest::newRow(rule) << QString::fromUtf8(scopePath) << QString::fromUtf8(fileName)
                            << QString::fromUtf8(folder) << QString::fromUtf8(proposed);
    };
    row("a name in the folder", "", "new.prt", "", "new.prt");
    row("no name in the folder", "", "", "", "");
    row("a name beside a file", "/a.prt", "new.prt", "", "new.prt");
    row("no name at a file", "/a.prt", "", "", "a.prt");
    row("a name in a folder that was deleted", "/gone", "new.prt", "/gone", "new.prt");
    row("a name beside a file that was deleted", "/gone/b.prt", "new.prt", "/gone", "new.prt");
    row("semicolons, brackets and dots", "", "a;b (1) [x].v2.prt", "", "a;b (1) [x].v2.prt");
    row("blanks at the end", "", "new.prt  ", "", "new.prt  ");
}

void FileDialogSaveTest::saveProposes()
{
    QFETCH(QString, scopePath);
    QFETCH(QString, fileName);
    QFETCH(QString, folder);
    m_provider.path = m_dir->path() + scopePath;
    FileDialog::getSaveFileName(s_caption, s_filter, &m_provider, s_scope, fileName);
    QCOMPARE(dialogStart(m_script.last().start).folder,
             QDir::toNativeSeparators(m_dir->path() + folder));
    QTEST(dialogStart(m_script.last().start).fileName, "proposed");
}

void FileDialogSaveTest::cancelGivesNothingAndIsTold()
{
    QCOMPARE(FileDialog::getSaveFileName(s_caption, s_filter, &m_provider, s_scope, QString()),
             QString());
    QCOMPARE(m_provider.calls.last(), QStringLiteral("set Design to ''"));
}

void FileDialogSaveTest::aNameWithoutAnEndingGetsTheFilters_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QString>("result");
    const auto row = [](const char* rule, const char* filter, const char* chosen,
                        const char* result) {
        QTest::newRow(rule) << QString::fromUtf8(filter) << QString::fromUtf8(chosen)
                            << QString::fromUtf8(result);
    };
    row("none was written", "Design (*.dsg)", "C:/parts/part", "C:/parts/part.dsg");
    row("another was written", "Design (*.dsg)", "C:/parts/part.x", "C:/parts/part.x");
    row("the first filter counts", "A (*.a);;B (*.b)", "C:/parts/part", "C:/parts/part.a");
    row("a semicolon in the filter ends it", "A (*.a;*.b)", "C:/parts/part", "C:/parts/part.a");
    row("several patterns are appended whole", "A (*.a *.b)", "C:/parts/part",
        "C:/parts/part.a *.b");
    row("all files", "All Files (*)", "C:/parts/part", "C:/parts/part");
    row("no filter", "", "C:/parts/part", "C:/parts/part");
    row("a filter without a star", "Design", "C:/parts/part", "C:/parts/part");
    row("a dot in the folder is no ending", "Design (*.dsg)", "C:/parts.d/part",
        "C:/parts.d/part.dsg");
    row("native separators", "Design (*.dsg)", "C:\\parts.d\\part", "C:\\parts.d\\part.dsg");
    row("a dot at the end is an ending", "Design (*.dsg)", "C:/parts/part.", "C:/parts/part.");
    row("several dots", "Design (*.dsg)", "C:/parts/part.v1.2", "C:/parts/part.v1.2");
    row("cancel gets none", "Design (*.dsg)", "", "");
}

void FileDialogSaveTest::aNameWithoutAnEndingGetsTheFilters()
{
    QFETCH(QString, filter);
    QFETCH(QString, chosen);
    if (!chosen.isEmpty())
        m_script.answer({chosen});
    // A scope of its own: no filter is remembered from another row.
    QTEST(saveIn(QTest::currentDataTag(), filter, QString()), "result");
}

void FileDialogSaveTest::theSelectedFilterGivesTheEnding()
{
    m_script.answer({QStringLiteral("C:/parts/part")});
    QCOMPARE(saveIn("selected", s_filter, s_tables), QStringLiteral("C:/parts/part.csv"));
}

void FileDialogSaveTest::suffixIsToldToTheProvider()
{
    m_script.answer({QStringLiteral("C:/parts/part")});
    saveIn("told", QStringLiteral("A (*.a)"), QString());
    QCOMPARE(m_provider.calls.last(), QStringLiteral("set told to 'C:/parts/part.a'"));
}

void FileDialogSaveTest::addedEndingsAreKnown_data()
{
    QTest::addColumn<QStringList>("chosen");
    QTest::addColumn<QString>("filter");
    QTest::addColumn<bool>("isAdded");
    const QString file = QStringLiteral("/b/part");
    const QString parts = QStringLiteral("Parts (*.prt)");
    QTest::newRow("without an ending") << QStringList(file) << parts << true;
    QTest::newRow("with one") << QStringList(file + QStringLiteral(".x")) << parts << false;
    QTest::newRow("none to add") << QStringList(file) << QStringLiteral("All (*)") << false;
    QTest::newRow("cancelled") << QStringList() << parts << false;
}

void FileDialogSaveTest::addedEndingsAreKnown()
{
    QFETCH(QStringList, chosen);
    QFETCH(QString, filter);
    // Whatever was before it.
    for (const char* before : {"/b/other", "/b/other.prt"}) {
        m_script.answer({QString::fromLatin1(before)});
        saveIn("added endings, before", QStringLiteral("Parts (*.prt)"), QString());
        if (!chosen.isEmpty())
            m_script.answer(chosen);
        saveIn("added endings", filter, filter);
        QTEST(FileDialog::wasEndingAdded(), "isAdded");
    }
}

void FileDialogSaveTest::nestedDialog_leavesTheOuterOnesEnding()
{
    struct SavingProvider : ScriptedPathProvider
    {
        std::function<void()> atSet;

        void setPathToScope(const QString& chosen, const QString& scope) override
        {
            ScriptedPathProvider::setPathToScope(chosen, scope);
            if (const auto save = std::exchange(atSet, nullptr))
                save();
        }
    };
    SavingProvider provider;
    const QString parts = QStringLiteral("Parts (*.prt)");
    const QString scope = QStringLiteral("nested endings");
    for (const bool isAdded : {true, false}) {
        m_script.answer({isAdded ? QStringLiteral("/b/part") : QStringLiteral("/b/part.prt")});
        provider.atSet = [&] {
            m_script.answer({isAdded ? QStringLiteral("/b/x.prt") : QStringLiteral("/b/x")});
            FileDialog::getSaveFileName(s_caption, parts, &provider, scope, QString());
            QCOMPARE(FileDialog::wasEndingAdded(), !isAdded);
        };
        FileDialog::getSaveFileName(s_caption, parts, &provider, scope, QString());
        QCOMPARE(FileDialog::wasEndingAdded(), isAdded);
    }
}

void FileDialogSaveTest::askedResult_isOfThatCallAlone()
{
    FileDialogRequest request;
    request.purpose = FileDialogPurpose::SaveFile;
    request.filter = QStringLiteral("Parts (*.prt);;Tables (*.csv)");
    request.selectedFilter = s_tables;
    request.addsEnding = true;
    m_script.answer({QStringLiteral("/b/part")});
    m_script.whileOpen = [this](const FileDialogRequest&) {
        m_script.whileOpen = nullptr;
        m_script.results.push_front(FileDialogResult::accepted({QStringLiteral("/b/x.prt")}));
        saveIn("inner", s_filter, QString());
    };
    const FileDialogResult result = FileDialog::ask(request);
    QCOMPARE(result.paths, QStringList(QStringLiteral("/b/part.csv")));
    QVERIFY(result.isEndingAdded);
    request.addsEnding = false;
    m_script.answer({QStringLiteral("/b/part")});
    QCOMPARE(FileDialog::ask(request).path(), QStringLiteral("/b/part"));
}

void FileDialogSaveTest::replacing_isConfirmed_data()
{
    QTest::addColumn<bool>("isReplaced");
    QTest::newRow("replaced") << true;
    QTest::newRow("kept") << false;
}

void FileDialogSaveTest::replacing_isConfirmed()
{
    QFETCH(bool, isReplaced);
    QWidget parent;
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("already exists"), [&](QMessageBox& box) {
        QCOMPARE(FileDialog::getOpenDialogsCount(), 1);
        QCOMPARE(box.parentWidget(), &parent);
        QVERIFY(box.text().contains(path(QStringLiteral("a.prt"))));
        QCOMPARE(box.defaultButton(), box.button(QMessageBox::Cancel));
        for (QAbstractButton* button : box.buttons()) {
            if ((box.buttonRole(button) == QMessageBox::DestructiveRole) == isReplaced)
                button->click();
        }
    });
    QCOMPARE(FileDialog::confirmReplacing(s_caption, path(QStringLiteral("a.prt")), &parent),
             isReplaced);
    QCOMPARE(FileDialog::getOpenDialogsCount(), 0);
}

void FileDialogSaveTest::newFile_needsNoConfirmation()
{
    QVERIFY(FileDialog::confirmReplacing(s_caption, path(QStringLiteral("new.prt"))));
}

void FileDialogSaveTest::destroyedParent_confirmsNothing()
{
    auto parent = std::make_unique<QWidget>();
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("already exists"),
                            [&parent](QMessageBox&) { parent.reset(); });
    QVERIFY(!FileDialog::confirmReplacing(s_caption, path(QStringLiteral("a.prt")), parent.get()));
}

void FileDialogSaveTest::filterIsRememberedByScope()
{
    saveIn("remembers", s_filter, s_tables);
    saveIn("remembers not", s_filter, QString());
    QVERIFY(Testing::filtersOf(m_script.last()).preselectedPattern.isNull());
    saveIn("remembers", s_filter, QString());
    QCOMPARE(Testing::filtersOf(m_script.last()).preselectedPattern, QStringLiteral("*.csv"));
    FileDialog::getSaveFileName(s_caption, s_filter, &m_provider, QStringLiteral("remembers"),
                                QString());
    QCOMPARE(Testing::filtersOf(m_script.last()).preselectedPattern, QStringLiteral("*.csv"));
}

void FileDialogSaveTest::chosenFilterGoesBeforeTheRememberedOne()
{
    saveIn("chosen", s_filter, s_tables);
    saveIn("chosen", s_filter, s_parts);
    QCOMPARE(Testing::filtersOf(m_script.last()).preselectedPattern, QStringLiteral("*.prt;*.dsg"));
    saveIn("chosen", s_filter, QString());
    QCOMPARE(Testing::filtersOf(m_script.last()).preselectedPattern, QStringLiteral("*.prt;*.dsg"));
}

void FileDialogSaveTest::cancelRemembersTheFilterToo()
{
    QCOMPARE(saveIn("cancelled", s_filter, s_tables), QString());
    m_script.answer({QStringLiteral("C:/parts/part")});
    QCOMPARE(saveIn("cancelled", s_filter, QString()), QStringLiteral("C:/parts/part.csv"));
}

void FileDialogSaveTest::filterNoLongerOfferedIsRemembered()
{
    saveIn("gone", s_filter, QStringLiteral("Old (*.old)"));
    m_script.answer({QStringLiteral("C:/parts/part")});
    QCOMPARE(saveIn("gone", s_filter, QString()), QStringLiteral("C:/parts/part.old"));
    QVERIFY(Testing::filtersOf(m_script.last()).preselectedPattern.isNull());
}

void FileDialogSaveTest::inDirAsksTheDriver()
{
    m_provider.places = {QStringLiteral("one")};
    QWidget window;
    const MainWindowProperty property(&window);
    m_script.answer({path(QStringLiteral("new.prt"))});
    QCOMPARE(FileDialog::getSaveFileNameInDir(s_caption, s_filter, path(QStringLiteral("a.prt")),
                                              &m_provider, s_scope, QString(), QString()),
             m_dir->filePath(QStringLiteral("new.prt")));
    const FileDialogRequest& request = m_script.last();
    QVERIFY(m_script.requests.front().purpose == FileDialogPurpose::SaveFile);
    QCOMPARE(request.owner.data(), &window);
    QCOMPARE(request.caption, s_caption);
    QCOMPARE(dialogStart(request.start).folder, QDir::toNativeSeparators(m_dir->path()));
    QCOMPARE(dialogStart(request.start).fileName, QStringLiteral("a.prt"));
    QCOMPARE(request.places, m_provider.places);
    QVERIFY(Testing::filtersOf(request).preselectedPattern.isNull());
    QCOMPARE(m_provider.calls, QStringList({QStringLiteral("places of Design"),
                                            QStringLiteral("set Design to '%1'")
                                                .arg(m_dir->filePath(QStringLiteral("new.prt")))}));
}

void FileDialogSaveTest::inDirProposesTheCurrentFolder()
{
    m_script.answer({QDir::current().filePath(QStringLiteral("new.prt"))});
    QCOMPARE(FileDialog::getSaveFileNameInDir(s_caption, s_filter, QString(), &m_provider, s_scope,
                                              QString(), QString()),
             QDir::current().filePath(QStringLiteral("new.prt")));
    QCOMPARE(dialogStart(m_script.last().start).folder,
             QDir::toNativeSeparators(QDir::currentPath()));
    QCOMPARE(dialogStart(m_script.last().start).fileName, QString());
}

void FileDialogSaveTest::inDirPreselectsAFilter()
{
    FileDialog::getSaveFileNameInDir(s_caption, s_filter, path(QStringLiteral("a.prt")),
                                     &m_provider, s_scope, s_tables, QString());
    QCOMPARE(Testing::filtersOf(m_script.last()).preselectedPattern, QStringLiteral("*.csv"));
}

void FileDialogSaveTest::inDirRepeatsUntilTheFolderIsRight()
{
    m_script.answer({QStringLiteral("/elsewhere/a.prt")});
    m_script.answer({path(QStringLiteral("deeper/a.prt"))});
    m_script.answer({path(QStringLiteral("b.prt"))});
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Wrong"), QMessageBox::Ok);
    modals.expectMessageBox(QStringLiteral("Wrong"), QMessageBox::Ok);
    QCOMPARE(FileDialog::getSaveFileNameInDir(s_caption, s_filter, path(QStringLiteral("a.prt")),
                                              &m_provider, s_scope, QString(),
                                              QStringLiteral("Wrong")),
             m_dir->filePath(QStringLiteral("b.prt")));
    QCOMPARE(m_script.requests.size(), std::size_t(3));
    for (const FileDialogRequest& request : m_script.requests) {
        QVERIFY(request.purpose == FileDialogPurpose::SaveFile);
        QCOMPARE(dialogStart(request.start).fileName, QStringLiteral("a.prt"));
        QCOMPARE(dialogStart(request.start).folder, QDir::toNativeSeparators(m_dir->path()));
    }
    QCOMPARE(m_provider.calls.filter(QStringLiteral("set")).size(), 1);
}

void FileDialogSaveTest::inDirShowsTheMessage_data()
{
    QTest::addColumn<QString>("message");
    QTest::newRow("the caller's") << QStringLiteral("Designs stay in %1 <b>here</b>");
    QTest::newRow("ours") << QString();
}

void FileDialogSaveTest::inDirShowsTheMessage()
{
    QFETCH(QString, message);
    const bool isOurs = message.isEmpty();
    const QString text =
        isOurs ? QStringLiteral("This file can only be saved at '%1'").arg(m_dir->path()) : message;
    m_script.answer({QStringLiteral("/elsewhere/a.prt")});
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("."), [&](QMessageBox& box) {
        QCOMPARE(box.windowTitle(), s_caption);
        QCOMPARE(box.text(), text);
        // A folder's name may look like mark-up; a caller may mean it.
        QCOMPARE(box.textFormat() == Qt::PlainText, isOurs);
        QCOMPARE(box.icon(), QMessageBox::Critical);
        QCOMPARE(box.standardButtons(), QMessageBox::Ok);
        QVERIFY(!box.parentWidget());
        box.button(QMessageBox::Ok)->click();
    });
    FileDialog::getSaveFileNameInDir(s_caption, s_filter, path(QStringLiteral("a.prt")),
                                     &m_provider, s_scope, QString(), message);
}

void FileDialogSaveTest::inDirCountsTheBox()
{
    m_script.answer({QStringLiteral("/elsewhere/a.prt")});
    m_script.whileOpen = [](const FileDialogRequest&) {
        QCOMPARE(FileDialog::getOpenDialogsCount(), 1);
    };
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("."), [](QMessageBox& box) {
        QCOMPARE(FileDialog::getOpenDialogsCount(), 1);
        box.close();
    });
    FileDialog::getSaveFileNameInDir(s_caption, s_filter, path(QStringLiteral("a.prt")),
                                     &m_provider, s_scope, QString(), QString());
    QCOMPARE(m_script.requests.size(), std::size_t(2));
    QCOMPARE(FileDialog::getOpenDialogsCount(), 0);
}

void FileDialogSaveTest::inDirCancelGivesNothingAndIsTold_data()
{
    QTest::addColumn<int>("wrongChoices");
    QTest::newRow("at once") << 0;
    QTest::newRow("after a wrong choice") << 1;
}

void FileDialogSaveTest::inDirCancelGivesNothingAndIsTold()
{
    QFETCH(int, wrongChoices);
    ExpectedModals modals;
    for (int i = 0; i < wrongChoices; ++i) {
        m_script.answer({QStringLiteral("/elsewhere/a.prt")});
        modals.expectMessageBox(QStringLiteral("."), QMessageBox::Ok);
    }
    QCOMPARE(FileDialog::getSaveFileNameInDir(s_caption, s_filter, path(QStringLiteral("a.prt")),
                                              &m_provider, s_scope, QString(), QString()),
             QString());
    QCOMPARE(int(m_script.requests.size()), wrongChoices + 1);
    QCOMPARE(m_provider.calls.last(), QStringLiteral("set Design to ''"));
}

void FileDialogSaveTest::inDirComparesFoldersExactly()
{
    m_script.answer({m_dir->path() + QStringLiteral("/../a.prt")});
    m_script.answer({m_dir->path().toUpper() + QStringLiteral("/a.prt")});
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("."), QMessageBox::Ok);
    modals.expectMessageBox(QStringLiteral("."), QMessageBox::Ok);
    FileDialog::getSaveFileNameInDir(s_caption, s_filter, path(QStringLiteral("a.prt")),
                                     &m_provider, s_scope, QString(), QString());
    QCOMPARE(m_script.requests.size(), std::size_t(3));
}

void FileDialogSaveTest::inDirGivesTheAbsolutePath()
{
    m_script.answer({QStringLiteral("new")});
    QCOMPARE(FileDialog::getSaveFileNameInDir(s_caption, s_filter, QString(), &m_provider, s_scope,
                                              QString(), QString()),
             QDir::current().filePath(QStringLiteral("new")));
}

void FileDialogSaveTest::theLastFolderIsProposedWithTheName()
{
    m_provider.path = m_dir->path();
    QCOMPARE(FileDialog::getLastDirectoryOpened(&m_provider, s_scope, QString()), m_dir->path());
    QCOMPARE(FileDialog::getLastDirectoryOpened(&m_provider, s_scope, QStringLiteral("x.prt")),
             m_dir->filePath(QStringLiteral("x.prt")));
    m_provider.path = QStringLiteral("relative");
    QCOMPARE(FileDialog::getLastDirectoryOpened(&m_provider, s_scope, QString()),
             QStringLiteral("relative"));
    QCOMPARE(m_provider.calls.filter(QStringLiteral("path of Design")).size(), 3);
    QCOMPARE(m_provider.calls.size(), 3);
}

ZORVANE_TEST(FileDialogSaveTest)
#include "FileDialogSaveTest.moc"
