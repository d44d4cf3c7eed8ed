#include "Files/CopyCollisionDialog.h"
#include "Files/FileTypeDependingFilesHelper.h"
#include "Files/PathText.h"
#include "Host/FileHandling/FileUtilities.h"
#include "Tests/Files/FolderSetup.h"
#include "Tests/Files/ScriptedCopier.h"
#include "Tests/Support/ExpectedModals.h"
#include "Tests/Support/PlatformCopies.h"
#include "Tests/Support/PlatformFacts.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QTranslator>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QPushButton>

#include <cstdio>
#include <type_traits>

using namespace Zorvane;

namespace {

class SavedDesign : public DesignInterface
{
public:
    explicit SavedDesign(const QString& file)
        : m_file(file)
    {}

    FileName getFileName() const override { return m_file; }
    int getModificationCount(int) const override { return 0; }
    bool isNew() const override { return m_file.isEmpty(); }
    bool hasSimulationResults() const override { return false; }
    bool isCurrentVersion() const override { return true; }
    bool hasEvaluationDataChanged() const override { return false; }
    bool hasSimulationInputChanged() const override { return false; }
    bool areResultsLostByConversion() const override { return false; }

private:
    FileName m_file;
};

/** The policy written down, to see what the base class asks it. */
class ScriptedHelper : public DependingFileHelper
{
public:
    FileName designFolder;
    FileName designFile;
    QWidget* view = nullptr;
    mutable std::list<FileName> messageFiles;
    mutable FileName messageFolder;

    FileName getDesignFilePath() const override { return designFolder; }
    FileName getDesignFileName() const override { return designFile; }
    bool isExternalReferenceFile(const FileName& file) const override
    {
        return file.getLeafName().front() == 'x';
    }
    QWidget* getView() const override { return view; }
    void buildExternalFilesUIMessage(const FileName& folder, const std::list<FileName>& files,
                                     QString& title, QString& text) const override
    {
        messageFolder = folder;
        messageFiles = files;
        title = QStringLiteral("scripted title");
        text = QStringLiteral("scripted text");
    }
};

class GermanTitles : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* sourceText, const char*, int) const override
    {
        if (qstrcmp(context, "InnerPartDependingFilesHelper") != 0)
            return {};
        return qstrcmp(sourceText, "Copy Files") == 0 ? QStringLiteral("Dateien kopieren")
                                                      : QStringLiteral("nach %2: %1");
    }
};

std::list<FileName> names(const QStringList& files)
{
    std::list<FileName> list;
    for (const QString& file : files)
        list.emplace_back(pathToBytes(file));
    return list;
}

QStringList texts(const std::list<FileName>& files)
{
    QStringList list;
    for (const FileName& file : files)
        list << QDir::toNativeSeparators(pathFromBytes(file.toString()));
    return list;
}

QByteArray contentOf(const QString& file)
{
    QFile opened(file);
    return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray("cannot be read");
}

const std::set<ZvFileType> s_geometry{ZvFileType::StlAscii, ZvFileType::StepShort};

} // namespace

class DependingFileHelperTest : public Testing::TestCase
{
    Q_OBJECT

private:
    FileTypeDependingFilesHelper helperFor(const QString& designFile) const
    {
        return FileTypeDependingFilesHelper(nullptr, std::make_shared<SavedDesign>(designFile),
                                            s_geometry);
    }

private Q_SLOTS:
    void designFolderIsTheParentOfItsFile();
    void designFolderMayBeOverridden();
    void typesDecideWhatIsAReference();
    void viewMayGoAway();
    void messageOfOneFile();
    void messageOfSeveralFiles();
    void messageIsTranslated();
    void messageShowsNamesThatAreNoText();
    void helpersAreCopyableAndMovable();

    void importWithoutSavedDesignHandsFilesThrough_data();
    void importWithoutSavedDesignHandsFilesThrough();
    void importAsksOnlyAboutReferencesElsewhere();
    void importCopiesNextToTheDesign();
    void importOfOneFileAsksInTheSingular();
    void importDeclinedIsGivenUp();
    void importAsksAboutANameThatIsTaken_data();
    void importAsksAboutANameThatIsTaken();
    void importOfFilesThatAllFailIsGivenUp();
    void refusedImport_saysWhy_data();
    void refusedImport_saysWhy();
    void importUsesRenamedCopies();
    void importTakesPartOfTheCopies();
    void importFromASubFolderIsOffered();
    void importThroughALinkToTheDesignFolderIsNotOffered();
    void importOfAMissingFileIsNotOffered();
    void importMayWriteIntoItsInput();
    void importKeepsNamesThatAreNoText();
    void importAsksThePolicy();

    void exportWithoutSavedDesignFails_data();
    void exportWithoutSavedDesignFails();
    void exportOfNothingToCopySucceeds();
    void exportCopiesNextToTheDesign();
    void exportDeclinedSucceedsWithNothing();
    void exportLeavesFailedFilesOut();
    void exportUsesTheViewAndTheNativeFolder();

private:
    Testing::PlatformCopies m_copies;
};

void DependingFileHelperTest::designFolderIsTheParentOfItsFile()
{
    const Testing::FolderSetup folders;
    const FileTypeDependingFilesHelper helper = helperFor(folders.path("designs/door.zvd"));
    QCOMPARE(texts({helper.getDesignFilePath()}), QStringList{folders.path("designs")});
    QVERIFY(helperFor(QString()).getDesignFilePath().isEmpty());
    const FileTypeDependingFilesHelper withoutDesign(nullptr, nullptr, s_geometry);
    QVERIFY(withoutDesign.getDesignFileName().isEmpty());
    QVERIFY(withoutDesign.getDesignFilePath().isEmpty());
}

void DependingFileHelperTest::designFolderMayBeOverridden()
{
    const Testing::FolderSetup folders;
    ScriptedHelper helper;
    helper.designFile = FileName(folders.makeFile("designs/door.zvd"));
    helper.designFolder = FileName(folders.makeFolder("elsewhere"));
    const QString file = folders.makeFile("elsewhere/x.stl");
    std::list<FileName> used;
    Testing::ExpectedModals modals;
    QVERIFY(helper.handleExternalFilesForImport(names({file}), used));
    QCOMPARE(texts(used), QStringList{file});
}

void DependingFileHelperTest::typesDecideWhatIsAReference()
{
    const FileTypeDependingFilesHelper several(nullptr, nullptr, s_geometry);
    QVERIFY(several.isExternalReferenceFile(FileName("a.stl")));
    QVERIFY(several.isExternalReferenceFile(FileName("a.STP")));
    QVERIFY(!several.isExternalReferenceFile(FileName("a.step")));
    QVERIFY(!several.isExternalReferenceFile(FileName("a")));
    const FileTypeDependingFilesHelper one(nullptr, nullptr, ZvFileType::Csv);
    QVERIFY(one.isExternalReferenceFile(FileName("a.csv")));
    QVERIFY(!one.isExternalReferenceFile(FileName("a.stl")));
    const FileTypeDependingFilesHelper unknown(nullptr, nullptr, ZvFileType::Unknown);
    QVERIFY(unknown.isExternalReferenceFile(FileName("a.abc")));
}

void DependingFileHelperTest::viewMayGoAway()
{
    auto view = std::make_unique<BaseView>();
    const FileTypeDependingFilesHelper helper(view.get(), nullptr, s_geometry);
    QCOMPARE(helper.getView(), view.get());
    view.reset();
    QVERIFY(!helper.getView());
}

void DependingFileHelperTest::messageOfOneFile()
{
    QString title;
    QString text;
    helperFor(QString()).buildExternalFilesUIMessage(
        FileName("designs"), names({QStringLiteral("100%2/door.stl")}), title, text);
    QCOMPARE(title, QStringLiteral("Copy File"));
    QCOMPARE(text, QStringLiteral("100%2/door.stl is not next to the design file.\n"
                                  "Do you want to copy it to designs?"));
}

void DependingFileHelperTest::messageOfSeveralFiles()
{
    QString title;
    QString text;
    const QStringList files{QStringLiteral("a.stl"), QStringLiteral("b.stl")};
    helperFor(QString()).buildExternalFilesUIMessage(FileName("designs"), names(files), title,
                                                     text);
    QCOMPARE(title, QStringLiteral("Copy Files"));
    QCOMPARE(text, QStringLiteral("Selected files are not next to the design file.\n"
                                  "Do you want to copy them to designs?"));
    helperFor(QString()).buildExternalFilesUIMessage(FileName("designs"), {}, title, text);
    QCOMPARE(title, QStringLiteral("Copy Files"));
}

void DependingFileHelperTest::messageIsTranslated()
{
    GermanTitles translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QString title;
    QString text;
    helperFor(QString()).buildExternalFilesUIMessage(FileName("designs"),
                                                     names({QStringLiteral("a.stl")}), title, text);
    QCOMPARE(text, QStringLiteral("nach designs: a.stl"));
    helperFor(QString()).buildExternalFilesUIMessage(FileName("designs"), {}, title, text);
    QCOMPARE(title, QStringLiteral("Dateien kopieren"));
}

void DependingFileHelperTest::messageShowsNamesThatAreNoText()
{
    QString title;
    QString text;
    const std::list<FileName> files{FileName("T\xFCr.stl")};
    helperFor(QString()).buildExternalFilesUIMessage(FileName("designs"), files, title, text);
    QVERIFY2(text.startsWith(pathForDisplay(pathFromBytes("T\xFCr.stl"))), qPrintable(text));
}

void DependingFileHelperTest::helpersAreCopyableAndMovable()
{
    QVERIFY(std::is_abstract_v<DependingFileHelper>);
    QVERIFY(std::has_virtual_destructor_v<DependingFileHelper>);
    QVERIFY(std::is_copy_constructible_v<FileTypeDependingFilesHelper>);
    QVERIFY(std::is_copy_assignable_v<FileTypeDependingFilesHelper>);
    QVERIFY(std::is_nothrow_move_constructible_v<FileTypeDependingFilesHelper>);
    QVERIFY(std::is_nothrow_move_assignable_v<FileTypeDependingFilesHelper>);
    FileTypeDependingFilesHelper helper = helperFor(QStringLiteral("designs/door.zvd"));
    const FileTypeDependingFilesHelper copy(helper);
    QCOMPARE(copy.getDesignFileName().toString(), std::string("designs/door.zvd"));
    QVERIFY(copy.isExternalReferenceFile(FileName("a.stl")));
    const FileTypeDependingFilesHelper moved(std::move(helper));
    QCOMPARE(moved.getDesignFileName().toString(), std::string("designs/door.zvd"));
}

void DependingFileHelperTest::importWithoutSavedDesignHandsFilesThrough_data()
{
    QTest::addColumn<bool>("hasFileName");
    QTest::newRow("never saved") << false;
    QTest::newRow("file is gone") << true;
}

void DependingFileHelperTest::importWithoutSavedDesignHandsFilesThrough()
{
    QFETCH(bool, hasFileName);
    const Testing::FolderSetup folders;
    const QStringList files{folders.makeFile("parts/a.stl"), folders.path("missing.stl")};
    std::list<FileName> used;
    Testing::ExpectedModals modals;
    FileTypeDependingFilesHelper helper =
        helperFor(hasFileName ? folders.path("designs/gone.zvd") : QString());
    QVERIFY(helper.handleExternalFilesForImport(names(files), used));
    QCOMPARE(texts(used), files);
}

void DependingFileHelperTest::importAsksOnlyAboutReferencesElsewhere()
{
    const Testing::FolderSetup folders;
    FileTypeDependingFilesHelper helper = helperFor(folders.makeFile("designs/door.zvd"));
    const QStringList files{folders.makeFile("designs/a.stl"), folders.makeFile("parts/a.csv"),
                            folders.makeFile("parts/a.step")};
    std::list<FileName> used = names({QStringLiteral("old")});
    Testing::ExpectedModals modals;
    QVERIFY(helper.handleExternalFilesForImport(names(files), used));
    QCOMPARE(texts(used), files);
    QVERIFY(helper.handleExternalFilesForImport({}, used));
    QVERIFY(used.empty());
}

void DependingFileHelperTest::importCopiesNextToTheDesign()
{
    const Testing::FolderSetup folders;
    FileTypeDependingFilesHelper helper = helperFor(folders.makeFile("designs/door.zvd"));
    const QStringList files{
        folders.makeFile("parts/a.stl", "content of a"), folders.makeFile("designs/b.stl"),
        folders.makeFile("more parts/c.stp", "content of c"), folders.makeFile("parts/d.csv")};
    Testing::ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("^Copy Files$"), [&folders](QMessageBox& box) {
        QCOMPARE(box.icon(), QMessageBox::Question);
        QVERIFY(box.text().startsWith(QStringLiteral("Selected files are not next")));
        QVERIFY(box.text().contains(QDir::fromNativeSeparators(folders.path("designs")) + u'?'));
        box.button(QMessageBox::Yes)->click();
    });
    std::list<FileName> used;
    QVERIFY(helper.handleExternalFilesForImport(names(files), used));
    const QStringList expected{files.at(1), files.at(3), folders.path("designs/a.stl"),
                               folders.path("designs/c.stp")};
    QCOMPARE(texts(used), expected);
    QCOMPARE(contentOf(folders.path("designs/a.stl")), QByteArray("content of a"));
    QCOMPARE(contentOf(folders.path("designs/c.stp")), QByteArray("content of c"));
    QCOMPARE(contentOf(files.at(0)), QByteArray("content of a"));
}

void DependingFileHelperTest::importOfOneFileAsksInTheSingular()
{
    const Testing::FolderSetup folders;
    FileTypeDependingFilesHelper helper = helperFor(folders.makeFile("designs/door.zvd"));
    const QString file = folders.makeFile("parts/a.stl");
    Testing::ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("^Copy File$"), [&file](QMessageBox& box) {
        QVERIFY(box.text().startsWith(QDir::fromNativeSeparators(file) +
                                      QStringLiteral(" is not next to the design file.\n")));
        box.button(QMessageBox::Yes)->click();
    });
    std::list<FileName> used;
    QVERIFY(helper.handleExternalFilesForImport(names({file}), used));
    QCOMPARE(texts(used), QStringList{folders.path("designs/a.stl")});
}

void DependingFileHelperTest::importDeclinedIsGivenUp()
{
    const Testing::FolderSetup folders;
    FileTypeDependingFilesHelper helper = helperFor(folders.makeFile("designs/door.zvd"));
    const QStringList files{folders.makeFile("parts/a.stl"), folders.makeFile("designs/b.stl")};
    const QStringList old{QStringLiteral("old")};
    std::list<FileName> used = names(old);
    Testing::ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Copy File"), QMessageBox::No);
    QVERIFY(!helper.handleExternalFilesForImport(names(files), used));
    QCOMPARE(texts(used), old);
    QVERIFY(!QFile::exists(folders.path("designs/a.stl")));
}

void DependingFileHelperTest::importAsksAboutANameThatIsTaken_data()
{
    QTest::addColumn<int>("decision");
    QTest::addColumn<bool>("isImported");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("replace") << int(CopyDecision::Replace) << true << QByteArray("new");
    QTest::newRow("keep both") << int(CopyDecision::KeepBoth) << true << QByteArray("old");
    QTest::newRow("skip") << int(CopyDecision::Skip) << false << QByteArray("old");
    QTest::newRow("cancel") << int(CopyDecision::Cancel) << false << QByteArray("old");
}

void DependingFileHelperTest::importAsksAboutANameThatIsTaken()
{
    if (!Testing::PlatformCopies::askByOurDialog())
        QSKIP("the system asks about names that are taken, by windows of its own");
    QFETCH(int, decision);
    QFETCH(bool, isImported);
    QFETCH(QByteArray, content);
    const Testing::FolderSetup folders;
    FileTypeDependingFilesHelper helper = helperFor(folders.makeFile("designs/door.zvd"));
    const QString taken = folders.makeFile("designs/a.stl", "old");
    const QString file = folders.makeFile("parts/a.stl", "new");
    Testing::ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Copy File"), QMessageBox::Yes);
    modals.expectDialog<CopyCollisionDialog>(
        QStringLiteral("collision"), [decision](CopyCollisionDialog& dialog) {
            dialog.button(static_cast<CopyDecision>(decision))->click();
        });
    std::list<FileName> used;
    QCOMPARE(helper.handleExternalFilesForImport(names({file}), used), isImported);
    QCOMPARE(used.size(), std::size_t(isImported ? 1 : 0));
    QCOMPARE(contentOf(taken), content);
    QCOMPARE(contentOf(file), QByteArray("new"));
    if (isImported)
        QCOMPARE(contentOf(texts(used).front()), QByteArray("new"));
}

void DependingFileHelperTest::importOfFilesThatAllFailIsGivenUp()
{
    const Testing::FolderSetup folders;
    FileTypeDependingFilesHelper helper = helperFor(folders.makeFile("designs/door.zvd"));
    const QString file = folders.makeFile("parts/a.stl");
    Testing::ScriptedCopier copier;
    copier.records = {{file, QString(), FileCopyUtility::NotCopied}};
    Testing::ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Copy File"), QMessageBox::Yes);
    std::list<FileName> used;
    QVERIFY(!helper.handleExternalFilesForImport(names({file}), used));
    QVERIFY(used.empty());
    QCOMPARE(copier.sources, QStringList{file});
}

void DependingFileHelperTest::refusedImport_saysWhy_data()
{
    using Refusal = DependingFileHelper::ImportRefusal;
    QTest::addColumn<QString>("situation");
    QTest::addColumn<int>("refusal");
    const auto row = [](const char* situation, Refusal refusal) {
        QTest::newRow(situation) << QString::fromLatin1(situation) << int(refusal);
    };
    row("declined", Refusal::Declined);
    row("file removed meanwhile", Refusal::SourceMissing);
    row("folder removed meanwhile", Refusal::NoDesignFolder);
    row("link into the folder", Refusal::LiesThere);
    row("copy failed", Refusal::NothingCopied);
    row("copied", Refusal::None);
}

void DependingFileHelperTest::refusedImport_saysWhy()
{
    QFETCH(QString, situation);
    QFETCH(int, refusal);
    const Testing::FolderSetup folders;
    const QString design = folders.makeFile("designs/door.zvd");
    FileTypeDependingFilesHelper helper = helperFor(design);
    QString file = folders.makeFile("parts/a.stl");
    if (situation == QLatin1String("link into the folder")) {
        folders.makeFile("designs/b.stl");
        file = folders.path("parts/b.stl");
        if (!Testing::makeLink(folders.path("designs/b.stl"), file))
            QSKIP("programs may not make links on this platform");
    }
    Testing::ScriptedCopier copier;
    const bool isCopied = situation == QLatin1String("copied");
    copier.records = {{file, isCopied ? file : QString(),
                       isCopied ? FileCopyUtility::Copied : FileCopyUtility::NotCopied}};
    Testing::ExpectedModals modals;
    if (situation != QLatin1String("link into the folder"))
        modals.expectMessageBox(QStringLiteral("Copy File"), [&](QMessageBox& box) {
            if (situation == QLatin1String("file removed meanwhile"))
                QVERIFY(QFile::remove(file));
            if (situation == QLatin1String("folder removed meanwhile"))
                QVERIFY(QDir(folders.path("designs")).removeRecursively());
            const bool declines = situation == QLatin1String("declined");
            box.button(declines ? QMessageBox::No : QMessageBox::Yes)->click();
        });
    std::list<FileName> used;
    auto why = DependingFileHelper::ImportRefusal::None;
    QCOMPARE(helper.handleExternalFilesForImport(names({file}), used, why), isCopied);
    QCOMPARE(int(why), refusal);
}

void DependingFileHelperTest::importUsesRenamedCopies()
{
    const Testing::FolderSetup folders;
    FileTypeDependingFilesHelper helper = helperFor(folders.makeFile("designs/door.zvd"));
    const QString file = folders.makeFile("parts/a.stl");
    Testing::ScriptedCopier copier;
    const QString renamed = folders.path("designs/a (2).stl");
    copier.records = {{file, renamed, FileCopyUtility::CopiedUnderOtherName}};
    Testing::ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Copy File"), QMessageBox::Yes);
    std::list<FileName> used;
    QVERIFY(helper.handleExternalFilesForImport(names({file}), used));
    QCOMPARE(texts(used), QStringList{renamed});
}

void DependingFileHelperTest::importTakesPartOfTheCopies()
{
    const Testing::FolderSetup folders;
    FileTypeDependingFilesHelper helper = helperFor(folders.makeFile("designs/door.zvd"));
    const QStringList files{folders.makeFile("parts/a.stl"), folders.makeFile("parts/b.stl")};
    Testing::ScriptedCopier copier;
    copier.records = {{files.at(0), QString(), FileCopyUtility::NotCopied},
                      {files.at(1), folders.path("designs/b.stl"), FileCopyUtility::Copied}};
    Testing::ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Copy Files"), QMessageBox::Yes);
    std::list<FileName> used;
    QVERIFY(helper.handleExternalFilesForImport(names(files), used));
    QCOMPARE(texts(used), QStringList{folders.path("designs/b.stl")});
}

void DependingFileHelperTest::importFromASubFolderIsOffered()
{
    const Testing::FolderSetup folders;
    FileTypeDependingFilesHelper helper = helperFor(folders.makeFile("designs/door.zvd"));
    const QString file = folders.makeFile("designs/parts/a.stl");
    Testing::ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Copy File"), QMessageBox::Yes);
    std::list<FileName> used;
    QVERIFY(helper.handleExternalFilesForImport(names({file}), used));
    QCOMPARE(texts(used), QStringList{folders.path("designs/a.stl")});
}

void DependingFileHelperTest::importThroughALinkToTheDesignFolderIsNotOffered()
{
    const Testing::FolderSetup folders;
    FileTypeDependingFilesHelper helper = helperFor(folders.makeFile("designs/door.zvd"));
    folders.makeFile("designs/a.stl");
    const QString dotted = folders.path("designs/../designs/a.stl");
    QStringList files{dotted};
    if (Testing::makeLink(folders.path("designs"), folders.path("link")))
        files << folders.path("link/a.stl");
    Testing::ExpectedModals modals;
    std::list<FileName> used;
    QVERIFY(helper.handleExternalFilesForImport(names(files), used));
    QCOMPARE(texts(used), files);
}

void DependingFileHelperTest::importOfAMissingFileIsNotOffered()
{
    const Testing::FolderSetup folders;
    FileTypeDependingFilesHelper helper = helperFor(folders.makeFile("designs/door.zvd"));
    const QStringList files{folders.path("parts/gone.stl"), folders.makeFile("parts/a.stl")};
    Testing::ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Copy File$"), QMessageBox::Yes);
    std::list<FileName> used;
    QVERIFY(helper.handleExternalFilesForImport(names(files), used));
    const QStringList expected{files.at(0), folders.path("designs/a.stl")};
    QCOMPARE(texts(used), expected);
}

void DependingFileHelperTest::importMayWriteIntoItsInput()
{
    const Testing::FolderSetup folders;
    FileTypeDependingFilesHelper helper = helperFor(folders.makeFile("designs/door.zvd"));
    std::list<FileName> files =
        names({folders.makeFile("parts/a.stl"), folders.makeFile("designs/b.stl")});
    Testing::ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Copy File"), QMessageBox::Yes);
    QVERIFY(helper.handleExternalFilesForImport(files, files));
    const QStringList expected{folders.path("designs/b.stl"), folders.path("designs/a.stl")};
    QCOMPARE(texts(files), expected);
}

void DependingFileHelperTest::importKeepsNamesThatAreNoText()
{
    const Testing::FolderSetup folders;
    FileTypeDependingFilesHelper helper = helperFor(folders.makeFile("designs/door.zvd"));
    folders.makeFolder("parts");
    const std::string source = pathToBytes(folders.path("parts/")) + "T\xFCr.stl";
    const std::string target = pathToBytes(folders.path("designs/")) + "T\xFCr.stl";
    if (std::FILE* file = std::fopen(source.c_str(), "wb"))
        std::fclose(file);
    if (!FileUtilities::exists(FileName(source)))
        QSKIP("this file system has no names that are not UTF-8");
    Testing::ScriptedCopier copier;
    copier.records = {{pathFromBytes(source), pathFromBytes(target), FileCopyUtility::Copied}};
    Testing::ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Copy File"), QMessageBox::Yes);
    std::list<FileName> used;
    const bool isHandled = helper.handleExternalFilesForImport({FileName(source)}, used);
    // QTemporaryDir cannot remove such names.
    std::remove(source.c_str());
    QVERIFY(isHandled);
    QCOMPARE(copier.sources, QStringList{pathFromBytes(source)});
    QVERIFY(used == std::list<FileName>{FileName(target)});
}

void DependingFileHelperTest::importAsksThePolicy()
{
    const Testing::FolderSetup folders;
    QWidget view;
    ScriptedHelper helper;
    helper.designFile = FileName(folders.makeFile("designs/door.zvd"));
    helper.designFolder = FileName(folders.path("designs"));
    helper.view = &view;
    const QStringList files{folders.makeFile("parts/x1.any"), folders.makeFile("parts/y.stl"),
                            folders.makeFile("parts/x2.any")};
    Testing::ScriptedCopier copier;
    Testing::ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("^scripted text$"), [&view](QMessageBox& box) {
        QCOMPARE(box.windowTitle(), QStringLiteral("scripted title"));
        QCOMPARE(box.parentWidget(), &view);
        box.button(QMessageBox::Yes)->click();
    });
    std::list<FileName> used;
    QVERIFY(!helper.handleExternalFilesForImport(names(files), used));
    const QStringList asked{files.at(0), files.at(2)};
    QCOMPARE(texts(helper.messageFiles), asked);
    QCOMPARE(copier.sources, asked);
    QVERIFY(helper.messageFolder == helper.designFolder);
}

void DependingFileHelperTest::exportWithoutSavedDesignFails_data()
{
    importWithoutSavedDesignHandsFilesThrough_data();
}

void DependingFileHelperTest::exportWithoutSavedDesignFails()
{
    QFETCH(bool, hasFileName);
    const Testing::FolderSetup folders;
    FileTypeDependingFilesHelper helper =
        helperFor(hasFileName ? folders.path("designs/gone.zvd") : QString());
    std::list<DependingFileHelper::ExportedFileName> exported{{FileName("old"), FileName("old")}};
    Testing::ExpectedModals modals;
    QVERIFY(
        !helper.handleExternalFilesForExport(names({folders.makeFile("parts/a.stl")}), exported));
    QVERIFY(exported.empty());
}

void DependingFileHelperTest::exportOfNothingToCopySucceeds()
{
    const Testing::FolderSetup folders;
    FileTypeDependingFilesHelper helper = helperFor(folders.makeFile("designs/door.zvd"));
    const QStringList files{folders.makeFile("designs/a.stl"), folders.makeFile("parts/a.csv")};
    std::list<DependingFileHelper::ExportedFileName> exported{{FileName("old"), FileName("old")}};
    Testing::ExpectedModals modals;
    QVERIFY(helper.handleExternalFilesForExport(names(files), exported));
    QVERIFY(exported.empty());
}

void DependingFileHelperTest::exportCopiesNextToTheDesign()
{
    const Testing::FolderSetup folders;
    FileTypeDependingFilesHelper helper = helperFor(folders.makeFile("designs/door.zvd"));
    const QStringList files{folders.makeFile("parts/a.stl", "content of a"),
                            folders.makeFile("designs/b.stl"),
                            folders.makeFile("parts/c.stp", "content of c")};
    Testing::ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("^Copy Files$"), QMessageBox::Yes);
    std::list<DependingFileHelper::ExportedFileName> exported;
    QVERIFY(helper.handleExternalFilesForExport(names(files), exported));
    QCOMPARE(exported.size(), std::size_t(2));
    const QStringList sources{files.at(0), files.at(2)};
    QCOMPARE(texts({exported.front().source, exported.back().source}), sources);
    const QStringList targets{folders.path("designs/a.stl"), folders.path("designs/c.stp")};
    QCOMPARE(texts({exported.front().target, exported.back().target}), targets);
    QCOMPARE(contentOf(targets.at(0)), QByteArray("content of a"));
    QCOMPARE(contentOf(targets.at(1)), QByteArray("content of c"));
}

void DependingFileHelperTest::exportDeclinedSucceedsWithNothing()
{
    const Testing::FolderSetup folders;
    FileTypeDependingFilesHelper helper = helperFor(folders.makeFile("designs/door.zvd"));
    std::list<DependingFileHelper::ExportedFileName> exported;
    Testing::ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Copy File"), QMessageBox::No);
    QVERIFY(
        helper.handleExternalFilesForExport(names({folders.makeFile("parts/a.stl")}), exported));
    QVERIFY(exported.empty());
    QVERIFY(!QFile::exists(folders.path("designs/a.stl")));
}

void DependingFileHelperTest::exportLeavesFailedFilesOut()
{
    const Testing::FolderSetup folders;
    FileTypeDependingFilesHelper helper = helperFor(folders.makeFile("designs/door.zvd"));
    const QStringList files{folders.makeFile("parts/a.stl"), folders.makeFile("parts/b.stl"),
                            folders.makeFile("parts/c.stl")};
    const QString renamed = folders.path("designs/c (2).stl");
    Testing::ScriptedCopier copier;
    copier.records = {{files.at(0), folders.path("designs/a.stl"), FileCopyUtility::Copied},
                      {files.at(1), QString(), FileCopyUtility::NotCopied},
                      {files.at(2), renamed, FileCopyUtility::CopiedUnderOtherName}};
    Testing::ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Copy Files"), QMessageBox::Yes);
    std::list<DependingFileHelper::ExportedFileName> exported;
    QVERIFY(helper.handleExternalFilesForExport(names(files), exported));
    QCOMPARE(exported.size(), std::size_t(2));
    QCOMPARE(texts({exported.back().source, exported.back().target}),
             (QStringList{files.at(2), renamed}));
}

void DependingFileHelperTest::exportUsesTheViewAndTheNativeFolder()
{
    const Testing::FolderSetup folders;
    BaseView view;
    FileTypeDependingFilesHelper helper(
        &view, std::make_shared<SavedDesign>(folders.makeFile("designs/door.zvd")),
        ZvFileType::StlAscii);
    Testing::ScriptedCopier copier;
    Testing::ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Copy File"), [&view](QMessageBox& box) {
        QCOMPARE(box.parentWidget(), &view);
        box.button(QMessageBox::Yes)->click();
    });
    std::list<DependingFileHelper::ExportedFileName> exported;
    QVERIFY(
        helper.handleExternalFilesForExport(names({folders.makeFile("parts/a.stl")}), exported));
    QCOMPARE(copier.owner, &view);
    QCOMPARE(copier.targetFolder, folders.path("designs"));
}

ZORVANE_TEST(DependingFileHelperTest)
#include "DependingFileHelperTest.moc"
