#include "Files/FileCopyService.h"

#include "Files/CopyCheck.h"
#include "Files/PathText.h"
#include "Tests/Files/ScriptedCopier.h"
#include "Tests/Files/ScriptedCopy.h"
#include "Tests/Support/ExpectedModals.h"
#include "Tests/Support/PlatformCopies.h"
#include "Tests/Support/PlatformFacts.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QPointer>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QPushButton>

using namespace Zorvane;
using Info = FileCopyUtility::FileCopyInfo;
using Testing::ExpectedModals;

namespace {

const QString s_title = QStringLiteral("Copy Files");
const QString s_text = QStringLiteral("Really copy?");

} // namespace

class FileCopyServiceTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void checkTellsWhyFilesCannotBeCopied_data();
    void checkTellsWhyFilesCannotBeCopied();
    void aFolderOfManySpellingsIsTheSame();
    void utilityCopiesNothingOnACheckCode();
    void utilityReturnsTheCopiersList();
    void utilityNeedsSources();
    void ownerIsTheParentOrTheMainWindow();
    void utilityCanBeCopied();
    void questionIsAsked();
    void questionIsPlainText();
    void questionThatGoesWithItsParentIsDeclined();
    void declinedQuestionLeavesTheResult();
    void escapeDeclines();
    void filesThatLieThereAreNotAskedAbout();
    void missingTargetFolderIsStillAsked();
    void missingSourceCopiesNothing();
    void outListHoldsCopiedAndRenamed();
    void outListIsReplaced();
    void outListFormIsFalseWhenItFails_data();
    void outListFormIsFalseWhenItFails();
    void fileNameFormConverts();
    void fileNamesKeepTheirBytes();
    void realCopyThroughTheWholeService();
    void relativePaths_areReportedInFull();
    void manyFiles_areCheckedWithAProgress();

private:
    QString addFile(const QString& relativePath);
    QString target() const { return m_root->filePath(QStringLiteral("target")); }

    std::unique_ptr<QTemporaryDir> m_root;
    Testing::PlatformCopies m_copies;
    std::unique_ptr<Testing::ScriptedCopier> m_copier;
};

void FileCopyServiceTest::init()
{
    m_root = std::make_unique<QTemporaryDir>();
    QDir(m_root->path()).mkdir(QStringLiteral("source"));
    QDir(m_root->path()).mkdir(QStringLiteral("target"));
    m_copier = std::make_unique<Testing::ScriptedCopier>();
}

void FileCopyServiceTest::cleanup()
{
    m_copier.reset();
    m_root.reset();
    TestCase::cleanup();
}

QString FileCopyServiceTest::addFile(const QString& relativePath)
{
    const QString path = m_root->filePath(relativePath);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write("content") != 7)
        qFatal("cannot write a test file");
    return path;
}

void FileCopyServiceTest::checkTellsWhyFilesCannotBeCopied_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QStringList>("sources");
    QTest::addColumn<int>("code");
    const auto row = [](const char* name, const char* folder, const QStringList& sources,
                        int code) {
        QTest::newRow(name) << QString::fromLatin1(folder) << sources << code;
    };
    const QString good = QStringLiteral("source/a");
    const QString folder = QStringLiteral("source");
    const QString missing = QStringLiteral("source/missing");
    const QString inTarget = QStringLiteral("target/x");
    row("can go ahead", "target", {good}, 0);
    row("no sources", "target", {}, 0);
    row("target missing", "nowhere", {good}, 2);
    row("target missing, sources not looked at", "nowhere", {missing}, 2);
    row("target is a file", "source/a", {good}, 2);
    row("source missing", "target", {good, missing}, 4);
    row("source is a folder", "target", {good, folder}, 4);
    row("source lies in the target", "target", {good, inTarget}, 3);
    row("first problem ends the walk", "target", {missing, inTarget}, 4);
    row("first problem ends the walk, the other way", "target", {inTarget, missing}, 3);
    row("target through a link", "link", {inTarget}, 3);
    row("target by a roundabout way", "source/../target/.", {inTarget}, 3);
    row("source in the target through a link", "target", {QStringLiteral("link/x")}, 3);
    row("link to a file in the target", "target", {QStringLiteral("source/to-x")}, 3);
    const int otherCase = Testing::doesCaseOfNamesCount() ? 2 : 3;
    row("target in other letter case", "TARGET", {inTarget}, otherCase);
    const QString null = QChar(QChar::Null) + QStringLiteral("b");
    row("null character in a source", "target", {QString(good + null)}, 4);
    QTest::newRow("null character in the target")
        << QString(QStringLiteral("target") + null) << QStringList{good} << 2;
    row("sub-folder of the target is elsewhere", "target", {QStringLiteral("target/sub/y")}, 0);
}

void FileCopyServiceTest::checkTellsWhyFilesCannotBeCopied()
{
    QFETCH(QString, target);
    QFETCH(QStringList, sources);
    QFETCH(int, code);
    addFile(QStringLiteral("source/a"));
    addFile(QStringLiteral("target/x"));
    QDir(m_root->path()).mkdir(QStringLiteral("target/sub"));
    addFile(QStringLiteral("target/sub/y"));
    const bool areLinks = Testing::makeLink(m_root->filePath(QStringLiteral("target")),
                                            m_root->filePath(QStringLiteral("link"))) &&
                          Testing::makeLink(m_root->filePath(QStringLiteral("target/x")),
                                            m_root->filePath(QStringLiteral("source/to-x")));
    if (!areLinks && QByteArray(QTest::currentDataTag()).contains("link"))
        QSKIP("programs may not make links on this platform");
    for (QString& source : sources)
        source = m_root->filePath(source);
    QCOMPARE(FileCopyUtility::check(sources, m_root->filePath(target)), code);
    QCOMPARE(FileCopyUtility::check(sources, QString()), 2);
}

void FileCopyServiceTest::aFolderOfManySpellingsIsTheSame()
{
    const QString folder = m_root->filePath(QStringLiteral("a folder of a long name"));
    QDir().mkdir(folder);
    const QString source = addFile(QStringLiteral("a folder of a long name/a"));
    const QString other = Testing::shortSpelling(folder);
    QCOMPARE(FileCopyUtility::check({source}, other), 3);
    QCOMPARE(FileCopyUtility::check({other + QStringLiteral("/a")}, folder), 3);
    QCOMPARE(FileCopyUtility::check({source}, folder + QStringLiteral("/")), 3);
}

void FileCopyServiceTest::utilityCopiesNothingOnACheckCode()
{
    int result = -1;
    FileCopyUtility utility(nullptr, {m_root->filePath(QStringLiteral("missing"))}, target());
    QVERIFY(utility.copyFiles(result).isEmpty());
    QCOMPARE(result, 4);
    QCOMPARE(m_copier->calls, 0);
}

void FileCopyServiceTest::utilityReturnsTheCopiersList()
{
    const QString source = addFile(QStringLiteral("source/a"));
    m_copier->records = {{source, QStringLiteral("x"), FileCopyUtility::CopiedUnderOtherName}};
    int result = -1;
    FileCopyUtility utility(nullptr, {source}, target());
    const QList<Info>& list = utility.copyFiles(result);
    QCOMPARE(result, 0);
    QCOMPARE(list.size(), 1);
    QCOMPARE(list[0].target, QStringLiteral("x"));
    QCOMPARE(m_copier->sources, QStringList{source});
    QCOMPARE(m_copier->targetFolder, target());
    QCOMPARE(&utility.copyFiles(result), &list);
    QCOMPARE(list.size(), 1);
}

void FileCopyServiceTest::utilityNeedsSources()
{
    int result = -1;
    QVERIFY(FileCopyUtility(nullptr, {}, target()).copyFiles(result).isEmpty());
    QCOMPARE(result, 0);
    QCOMPARE(m_copier->calls, 0);
}

void FileCopyServiceTest::ownerIsTheParentOrTheMainWindow()
{
    const QString source = addFile(QStringLiteral("source/a"));
    int result = 0;
    FileCopyUtility(nullptr, {source}, target()).copyFiles(result);
    QCOMPARE(m_copier->owner, nullptr);

    QWidget mainWindow;
    qApp->setProperty("MainWindow", QVariant::fromValue<QObject*>(&mainWindow));
    FileCopyUtility(nullptr, {source}, target()).copyFiles(result);
    QCOMPARE(m_copier->owner, &mainWindow);

    QWidget parent;
    FileCopyUtility(&parent, {source}, target()).copyFiles(result);
    QCOMPARE(m_copier->owner, &parent);

    QObject noWidget;
    qApp->setProperty("MainWindow", QVariant::fromValue<QObject*>(&noWidget));
    FileCopyUtility(nullptr, {source}, target()).copyFiles(result);
    QCOMPARE(m_copier->owner, nullptr);
    qApp->setProperty("MainWindow", QVariant());
}

void FileCopyServiceTest::utilityCanBeCopied()
{
    const QString source = addFile(QStringLiteral("source/a"));
    m_copier->records = {{source, QStringLiteral("x"), FileCopyUtility::Copied}};
    int result = -1;
    FileCopyUtility first(nullptr, {source}, target());
    FileCopyUtility second(nullptr, {}, QString());
    second = first;
    QCOMPARE(second.copyFiles(result).size(), 1);
    QCOMPARE(FileCopyUtility(second).copyFiles(result).size(), 1);
}

void FileCopyServiceTest::questionIsAsked()
{
    const QString source = addFile(QStringLiteral("source/a"));
    QWidget parent;
    parent.show();
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Really copy"), [&](QMessageBox& box) {
        QCOMPARE(box.windowTitle(), s_title);
        QCOMPARE(box.text(), s_text);
        QCOMPARE(box.icon(), QMessageBox::Question);
        QCOMPARE(box.parentWidget(), &parent);
        QCOMPARE(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(box.button(QMessageBox::Yes)->text(), QStringLiteral("Copy"));
        QCOMPARE(box.button(QMessageBox::No)->text(), QStringLiteral("Don't Copy"));
        QCOMPARE(box.defaultButton(), box.button(QMessageBox::Yes));
        constexpr int asked = 0x08003800;
        QCOMPARE(int(box.windowFlags()) & asked, asked);
        box.button(QMessageBox::Yes)->click();
    });
    int result = -1;
    FileCopyService::copyFilesToDirectory(&parent, s_title, s_text, {source}, target(), result);
    QCOMPARE(result, 0);
    QCOMPARE(m_copier->calls, 1);
    QCOMPARE(m_copier->owner, &parent);
}

void FileCopyServiceTest::questionIsPlainText()
{
    const QString source = addFile(QStringLiteral("source/a"));
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("door"), [](QMessageBox& box) {
        QCOMPARE(box.textFormat(), Qt::PlainText);
        box.button(QMessageBox::No)->click();
    });
    int result = 0;
    FileCopyService::copyFilesToDirectory(nullptr, s_title, QStringLiteral("<b>door</b>.stl"),
                                          {source}, target(), result);
}

void FileCopyServiceTest::questionThatGoesWithItsParentIsDeclined()
{
    const QString source = addFile(QStringLiteral("source/a"));
    const QPointer<QWidget> parent = new QWidget;
    parent->show();
    QTimer::singleShot(0, parent, [parent] { delete parent; });
    int result = 77;
    QVERIFY(
        FileCopyService::copyFilesToDirectory(parent, s_title, s_text, {source}, target(), result)
            .isEmpty());
    QVERIFY(!parent);
    QCOMPARE(result, 77);
    QCOMPARE(m_copier->calls, 0);
}

void FileCopyServiceTest::declinedQuestionLeavesTheResult()
{
    const QString source = addFile(QStringLiteral("source/a"));
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Really copy"), QMessageBox::No);
    int result = 77;
    QVERIFY(
        FileCopyService::copyFilesToDirectory(nullptr, s_title, s_text, {source}, target(), result)
            .isEmpty());
    QCOMPARE(result, 77);
    QCOMPARE(m_copier->calls, 0);
}

void FileCopyServiceTest::escapeDeclines()
{
    const QString source = addFile(QStringLiteral("source/a"));
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Really copy"),
                            [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    int result = 77;
    FileCopyService::copyFilesToDirectory(nullptr, s_title, s_text, {source}, target(), result);
    QCOMPARE(result, 77);
    QCOMPARE(m_copier->calls, 0);
}

void FileCopyServiceTest::filesThatLieThereAreNotAskedAbout()
{
    const QString source = addFile(QStringLiteral("target/a"));
    const ExpectedModals modals;
    int result = 77;
    QVERIFY(
        FileCopyService::copyFilesToDirectory(nullptr, s_title, s_text, {source}, target(), result)
            .isEmpty());
    QCOMPARE(result, 77);
    QVERIFY(modals.allMet());
}

void FileCopyServiceTest::missingTargetFolderIsStillAsked()
{
    const QString source = addFile(QStringLiteral("source/a"));
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Really copy"), QMessageBox::Yes);
    int result = 77;
    QVERIFY(FileCopyService::copyFilesToDirectory(nullptr, s_title, s_text, {source},
                                                  m_root->filePath(QStringLiteral("nowhere")),
                                                  result)
                .isEmpty());
    QCOMPARE(result, 2);
    QCOMPARE(m_copier->calls, 0);
}

void FileCopyServiceTest::missingSourceCopiesNothing()
{
    const QString source = addFile(QStringLiteral("source/a"));
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Really copy"), QMessageBox::Yes);
    int result = 77;
    FileCopyService::copyFilesToDirectory(
        nullptr, s_title, s_text, {source, m_root->filePath(QStringLiteral("source/missing"))},
        target(), result);
    QCOMPARE(result, 4);
    QCOMPARE(m_copier->calls, 0);
}

void FileCopyServiceTest::outListHoldsCopiedAndRenamed()
{
    const QString source = addFile(QStringLiteral("source/a"));
    m_copier->records = {
        {QStringLiteral("1"), QStringLiteral("t1"), FileCopyUtility::Copied},
        {QStringLiteral("2"), QString(), FileCopyUtility::NotCopied},
        {QStringLiteral("3"), QStringLiteral("t3"), FileCopyUtility::CopiedUnderOtherName}};
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Really copy"), QMessageBox::Yes);
    QStringList copied;
    QVERIFY(FileCopyService::copyFilesToDirectory(nullptr, s_title, s_text, {source}, target(),
                                                  copied));
    QCOMPARE(copied, QStringList({QStringLiteral("t1"), QStringLiteral("t3")}));
}

void FileCopyServiceTest::outListIsReplaced()
{
    const QString source = addFile(QStringLiteral("source/a"));
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Really copy"), QMessageBox::No);
    QStringList copied{QStringLiteral("from before")};
    QVERIFY(FileCopyService::copyFilesToDirectory(nullptr, s_title, s_text, {source}, target(),
                                                  copied));
    QVERIFY(copied.isEmpty());
}

void FileCopyServiceTest::outListFormIsFalseWhenItFails_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<bool>("asked");
    QTest::addColumn<bool>("truth");
    QTest::newRow("files lie there")
        << QStringLiteral("target/x") << QStringLiteral("target") << false << true;
    QTest::newRow("no folder") << QStringLiteral("source/a") << QStringLiteral("nowhere") << true
                               << false;
    QTest::newRow("source missing")
        << QStringLiteral("source/missing") << QStringLiteral("target") << true << false;
    QTest::newRow("all well") << QStringLiteral("source/a") << QStringLiteral("target") << true
                              << true;
}

void FileCopyServiceTest::outListFormIsFalseWhenItFails()
{
    QFETCH(QString, source);
    QFETCH(QString, folder);
    QFETCH(bool, asked);
    QFETCH(bool, truth);
    addFile(QStringLiteral("source/a"));
    addFile(QStringLiteral("target/x"));
    ExpectedModals modals;
    if (asked)
        modals.expectMessageBox(QStringLiteral("Really copy"), QMessageBox::Yes);
    QStringList copied;
    QCOMPARE(FileCopyService::copyFilesToDirectory(nullptr, s_title, s_text,
                                                   {m_root->filePath(source)},
                                                   m_root->filePath(folder), copied),
             truth);
}

void FileCopyServiceTest::fileNameFormConverts()
{
    const QString source = addFile(QStringLiteral("source/a"));
    m_copier->records = {{source, target() + QStringLiteral("/a"), FileCopyUtility::Copied}};
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Really copy"), QMessageBox::Yes);
    std::list<FileName> copied{FileName("from before")};
    QVERIFY(FileCopyService::copyFilesToDirectory(nullptr, s_title, s_text, {FileName(source)},
                                                  FileName(target()), copied));
    QVERIFY(copied == std::list<FileName>{FileName(target() + QStringLiteral("/a"))});
    QCOMPARE(m_copier->targetFolder, QDir::toNativeSeparators(target()));
}

void FileCopyServiceTest::fileNamesKeepTheirBytes()
{
    const std::list<FileName> files{FileName("a/b.stl"), FileName("T\xFCr"), FileName("\xC3\xBC")};
    const QStringList texts = FileCopyService::toStringList(files);
    QCOMPARE(texts.size(), 3);
    QCOMPARE(texts[0], QDir::toNativeSeparators(QStringLiteral("a/b.stl")));
    QCOMPARE(pathToBytes(texts[1]), std::string("T\xFCr"));
    QCOMPARE(texts[2], QString(QChar(0xFC)));
    QVERIFY(FileCopyService::toStringList({}).isEmpty());
}

void FileCopyServiceTest::realCopyThroughTheWholeService()
{
    m_copier.reset();
    const QString source = addFile(QStringLiteral("source/a"));
    ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Really copy"), QMessageBox::Yes);
    QStringList copied;
    QVERIFY(FileCopyService::copyFilesToDirectory(nullptr, s_title, s_text, {source}, target(),
                                                  copied));
    QCOMPARE(copied, QStringList{QDir::toNativeSeparators(target() + QStringLiteral("/a"))});
    QFile copy(target() + QStringLiteral("/a"));
    QVERIFY(copy.open(QIODevice::ReadOnly));
    QCOMPARE(copy.readAll(), QByteArray("content"));
}

void FileCopyServiceTest::relativePaths_areReportedInFull()
{
    m_copier.reset();
    const QString source = addFile(QStringLiteral("source/a"));
    const QString before = QDir::currentPath();
    QDir::setCurrent(m_root->filePath(QStringLiteral("source")));
    int code = -1;
    FileCopyUtility utility(nullptr, {QStringLiteral("a")}, QStringLiteral("../target"));
    const QList<Info> records = utility.copyFiles(code);
    QDir::setCurrent(before);
    QCOMPARE(code, 0);
    QCOMPARE(records.size(), 1);
    QCOMPARE(QDir::fromNativeSeparators(records[0].source), source);
    QCOMPARE(QDir::fromNativeSeparators(records[0].target), target() + QStringLiteral("/a"));
    QCOMPARE(records[0].outcome, FileCopyUtility::Outcome::Copied);
}

void FileCopyServiceTest::manyFiles_areCheckedWithAProgress()
{
    QStringList sources;
    for (int i = 0; i < 100; ++i)
        sources.append(addFile(QStringLiteral("source/%1").arg(i)));
    Testing::ScriptedProgress progress;
    QCOMPARE(checkCopy(sources, target(), progress), std::optional<int>(0));
    QCOMPARE(int(progress.states.size()), 100);
    QCOMPARE(progress.states[40].stage, CopyProgressState::Stage::Checking);
    QCOMPARE(progress.states[40].filesDone, 40);
    QCOMPARE(progress.states[40].filesTotal, 100);
    QCOMPARE(progress.states[40].fileName, QStringLiteral("40"));
    progress.states.clear();
    progress.cancelAt = 10;
    QVERIFY(!checkCopy(sources, target(), progress));
    QCOMPARE(int(progress.states.size()), 11);
}

ZORVANE_TEST(FileCopyServiceTest)
#include "FileCopyServiceTest.moc"
