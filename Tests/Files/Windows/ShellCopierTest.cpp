#include "Files/FileCopier.h"
#include "Files/Windows/ComApartment.h"
#include "Files/Windows/ShellCopy.h"
#include "Files/Windows/ShellPath.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Support/Windows/FakeFileOperation.h"

#include <QtCore/QTemporaryDir>

#include <memory>
#include <optional>
#include <thread>

using namespace Zorvane;
using Info = FileCopyUtility::FileCopyInfo;
using Testing::Counted;
using Testing::FakeFileOperations;

class ShellCopierTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void copiesAndReports();
    void operationIsSetUp();
    void ownerIsTheWidgetsWindow();
    void aCopyRenamedOnCollisionIsToldSo();
    void statusOfEachOutcome_data();
    void statusOfEachOutcome();
    void reportFollowsTheSources();
    void eachMatchingRecordIsReported();
    void abortedWithFailureReportsNothing();
    void abortedHalfwayReportsWhatWasDone();
    void nothingToCopyAsksNobody();
    void pathsOfEveryKind_data();
    void pathsOfEveryKind();
    void relativePathsAreMadeAbsolute();
    void theRootOfADriveIsATarget();
    void pathsForTheShell_data();
    void pathsForTheShell();
    void longPathIsRefusedOrCopied();
    void badSourceStopsEverything();
    void missingFolderStopsEverything();
    void withoutAnEngineNothingIsCopied();
    void anEngineThatRefusesCopiesNothing();
    void missingEntryPointsDoNotSuffice();
    void aMultithreadedApartmentIsRefused();
    void apartmentIsLeft_data();
    void apartmentIsLeft();
    void theUtilityCopiesByTheShell();

private:
    QString addFile(const QString& relativePath);
    QString path(const QString& below) const
    {
        return QDir::toNativeSeparators(m_root->filePath(below));
    }
    QString target() const { return path(QStringLiteral("target")); }
    QList<Info> copy(const QStringList& sources)
    {
        return createFileCopier()->copy(nullptr, sources, target());
    }
    QStringList filesInTarget() const { return QDir(target()).entryList(QDir::Files, QDir::Name); }

    std::unique_ptr<QTemporaryDir> m_root;
    std::optional<ComApartment> m_apartment;
    Testing::FileOperationScript m_script;
    std::unique_ptr<FakeFileOperations> m_engine;
};

void ShellCopierTest::init()
{
    m_root = std::make_unique<QTemporaryDir>();
    QDir(m_root->path()).mkdir(QStringLiteral("source"));
    QDir(m_root->path()).mkdir(QStringLiteral("target"));
    m_apartment.emplace();
    m_script = {};
    m_engine = std::make_unique<FakeFileOperations>(m_script);
}

void ShellCopierTest::cleanup()
{
    QCOMPARE(m_script.leftReferences, 0UL);
    m_engine.reset();
    QCOMPARE(Counted::living(), 0);
    m_apartment.reset();
    m_root.reset();
    TestCase::cleanup();
}

QString ShellCopierTest::addFile(const QString& relativePath)
{
    QFile file(path(relativePath));
    if (!file.open(QIODevice::WriteOnly) || file.write("content") != 7)
        qFatal("cannot write a test file");
    return path(relativePath);
}

void ShellCopierTest::copiesAndReports()
{
    const QString a = addFile(QStringLiteral("source/a.stl"));
    const QString b = addFile(QStringLiteral("source/b.stl"));
    const QList<Info> records = copy({a, b});
    QCOMPARE(records.size(), 2);
    QCOMPARE(records[0].source, a);
    QCOMPARE(records[0].target, path(QStringLiteral("target/a.stl")));
    QCOMPARE(records[0].status, 0);
    QCOMPARE(records[1].source, b);
    QCOMPARE(records[1].target, path(QStringLiteral("target/b.stl")));
    QCOMPARE(records[1].status, 0);
    QCOMPARE(filesInTarget(), QStringList({QStringLiteral("a.stl"), QStringLiteral("b.stl")}));
}

void ShellCopierTest::operationIsSetUp()
{
    copy({addFile(QStringLiteral("source/a.stl"))});
    QCOMPARE(m_script.operations, 1);
    QCOMPARE(m_script.flags, DWORD(FOF_MULTIDESTFILES));
    QCOMPARE(m_script.flags, 1UL);
    QCOMPARE(m_script.calls.calls(),
             QStringList({QStringLiteral("SetOwnerWindow"), QStringLiteral("SetOperationFlags(1)"),
                          QStringLiteral("CopyItems"), QStringLiteral("Advise"),
                          QStringLiteral("PerformOperations"), QStringLiteral("Unadvise(17)")}));
}

void ShellCopierTest::ownerIsTheWidgetsWindow()
{
    const QString source = addFile(QStringLiteral("source/a.stl"));
    QWidget owner;
    createFileCopier()->copy(&owner, {source}, target());
    QCOMPARE(m_script.owner, reinterpret_cast<HWND>(owner.winId()));
    QVERIFY(m_script.owner);
    createFileCopier()->copy(nullptr, {source}, target());
    QVERIFY(!m_script.owner);
}

void ShellCopierTest::aCopyRenamedOnCollisionIsToldSo()
{
    addFile(QStringLiteral("target/a.stl"));
    const QString a = addFile(QStringLiteral("source/a.stl"));
    const QList<Info> records = copy({a});
    QCOMPARE(records.size(), 1);
    QCOMPARE(records[0].source, a);
    QCOMPARE(records[0].target, path(QStringLiteral("target/a (2).stl")));
    QCOMPARE(records[0].status, 2);
}

void ShellCopierTest::statusOfEachOutcome_data()
{
    QTest::addColumn<qint64>("result");
    QTest::addColumn<bool>("makesCopy");
    QTest::addColumn<bool>("pendingFirst");
    QTest::addColumn<int>("status");
    QTest::newRow("copied") << qint64(S_OK) << true << false << 0;
    QTest::newRow("skipped by the user")
        << qint64(COPYENGINE_S_USER_IGNORED) << false << false << 1;
    QTest::newRow("failed") << qint64(COPYENGINE_E_ACCESS_DENIED_SRC) << false << false << 1;
    QTest::newRow("fine, but no new item") << qint64(S_OK) << false << false << 1;
    QTest::newRow("a new item, but not fine") << qint64(S_FALSE) << true << false << 1;
    QTest::newRow("failed with a new item") << qint64(E_FAIL) << true << false << 1;
    QTest::newRow("pending, then copied") << qint64(S_OK) << true << true << 0;
    QTest::newRow("pending, then failed") << qint64(E_FAIL) << false << true << 1;
}

void ShellCopierTest::statusOfEachOutcome()
{
    QFETCH(qint64, result);
    QFETCH(bool, makesCopy);
    QFETCH(bool, pendingFirst);
    QFETCH(int, status);
    const QString source = addFile(QStringLiteral("source/a.stl"));
    m_script.behaviors[QStringLiteral("a.stl")] = {HRESULT(result), makesCopy, pendingFirst, false};
    const QList<Info> records = copy({source});
    QCOMPARE(records.size(), 1);
    QCOMPARE(records[0].source, source);
    QCOMPARE(records[0].status, status);
    QCOMPARE(records[0].target, makesCopy ? path(QStringLiteral("target/a.stl")) : QString());
}

void ShellCopierTest::reportFollowsTheSources()
{
    const QString b = addFile(QStringLiteral("source/b.stl"));
    const QString a = addFile(QStringLiteral("source/a.stl"));
    const QString c = addFile(QStringLiteral("source/c.stl"));
    m_script.backwards = true;
    const QList<Info> records = copy({b, a, c});
    QCOMPARE(records.size(), 3);
    QCOMPARE(records[0].source, b);
    QCOMPARE(records[1].source, a);
    QCOMPARE(records[2].source, c);
    QCOMPARE(records[2].target, path(QStringLiteral("target/c.stl")));
}

void ShellCopierTest::eachMatchingRecordIsReported()
{
    const QString a = addFile(QStringLiteral("source/a.stl"));
    const QString b = addFile(QStringLiteral("source/b.stl"));
    m_script.twice = true;
    const QList<Info> records = copy({a, b});
    QCOMPARE(records.size(), 4);
    QCOMPARE(records[1].source, a);
    QCOMPARE(records[2].source, b);
}

void ShellCopierTest::abortedWithFailureReportsNothing()
{
    const QString source = addFile(QStringLiteral("source/a.stl"));
    m_script.performResult = COPYENGINE_E_USER_CANCELLED;
    QVERIFY(copy({source}).isEmpty());
    QCOMPARE(m_script.calls.names().last(), QStringLiteral("Unadvise"));
}

void ShellCopierTest::abortedHalfwayReportsWhatWasDone()
{
    const QString a = addFile(QStringLiteral("source/a.stl"));
    const QString b = addFile(QStringLiteral("source/b.stl"));
    const QString c = addFile(QStringLiteral("source/c.stl"));
    m_script.behaviors[QStringLiteral("b.stl")] = {COPYENGINE_E_USER_CANCELLED, false, false,
                                                   false};
    m_script.behaviors[QStringLiteral("c.stl")].isSilent = true;
    const QList<Info> records = copy({a, b, c});
    QCOMPARE(records.size(), 2);
    QCOMPARE(records[0].status, 0);
    QCOMPARE(records[1].source, b);
    QCOMPARE(records[1].status, 1);
    QVERIFY(records[1].target.isEmpty());
}

void ShellCopierTest::nothingToCopyAsksNobody()
{
    QVERIFY(copy({}).isEmpty());
    QVERIFY(createFileCopier()
                ->copy(nullptr, {addFile(QStringLiteral("source/a.stl"))}, QString())
                .isEmpty());
    QCOMPARE(m_script.operations, 0);
}

void ShellCopierTest::pathsOfEveryKind_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << QStringLiteral("a.stl");
    QTest::newRow("blanks") << QStringLiteral("a part of it.stl");
    QTest::newRow("no ending") << QStringLiteral("part");
    QTest::newRow("several dots") << QStringLiteral("a.b.c");
    QTest::newRow("leading dot") << QStringLiteral(".part");
    QTest::newRow("umlauts") << QString::fromUtf8("T\xC3\xBCr-\xC3\x84nderung.stl");
    QTest::newRow("beyond 16 bits") << QString::fromUtf8("\xF0\x9F\x94\xA7.stl");
    QTest::newRow("quotes and brackets") << QStringLiteral("it's (1) [2] {3}.stl");
    QTest::newRow("percent, ampersand, comma") << QStringLiteral("100% a&b,c;d.stl");
    QTest::newRow("like a reserved name") << QStringLiteral("NULL.stl");
    QTest::newRow("a roundabout way") << QStringLiteral("../source/./a.stl");
}

void ShellCopierTest::pathsOfEveryKind()
{
    QFETCH(QString, name);
    const QString source = addFile(QStringLiteral("source/") + name);
    // Qt's own separators: the shell would refuse them.
    const QList<Info> records = createFileCopier()->copy(
        nullptr, {QDir::fromNativeSeparators(source)}, QDir::fromNativeSeparators(target()));
    QCOMPARE(records.size(), 1);
    QCOMPARE(records[0].source, QDir::toNativeSeparators(QDir::cleanPath(source)));
    QCOMPARE(records[0].target, path(QStringLiteral("target/") + QFileInfo(name).fileName()));
    QCOMPARE(records[0].status, 0);
}

void ShellCopierTest::relativePathsAreMadeAbsolute()
{
    addFile(QStringLiteral("source/a.stl"));
    const QString before = QDir::currentPath();
    QDir::setCurrent(m_root->path());
    const QList<Info> records = createFileCopier()->copy(nullptr, {QStringLiteral("source/a.stl")},
                                                         QStringLiteral("target"));
    QDir::setCurrent(before);
    QCOMPARE(records.size(), 1);
    QCOMPARE(records[0].source, path(QStringLiteral("source/a.stl")));
    QCOMPARE(records[0].target, path(QStringLiteral("target/a.stl")));
}

void ShellCopierTest::theRootOfADriveIsATarget()
{
    // Whoever runs this may not write there, so the engine is told to make no copy.
    const QString source = addFile(QStringLiteral("source/a.stl"));
    m_script.behaviors[QStringLiteral("a.stl")].makesCopy = false;
    const QList<Info> records = createFileCopier()->copy(nullptr, {source}, QDir::rootPath());
    QCOMPARE(records.size(), 1);
    QCOMPARE(m_script.folder, QDir::toNativeSeparators(QDir::rootPath()));
}

void ShellCopierTest::pathsForTheShell_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("shellPath");
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("forward slashes")
        << QStringLiteral("C:/a/b.stl") << QStringLiteral("C:\\a\\b.stl");
    QTest::newRow("root of a drive") << QStringLiteral("C:/") << QStringLiteral("C:\\");
    QTest::newRow("detours") << QStringLiteral("C:\\a\\..\\.\\b") << QStringLiteral("C:\\b");
    QTest::newRow("network") << QStringLiteral("//server/share/a.stl")
                             << QStringLiteral("\\\\server\\share\\a.stl");
    QTest::newRow("network, long form") << QStringLiteral("\\\\?\\UNC\\server\\share\\a.stl")
                                        << QStringLiteral("\\\\server\\share\\a.stl");
    QTest::newRow("long form") << QStringLiteral("\\\\?\\C:\\a.stl") << QStringLiteral("C:\\a.stl");
}

void ShellCopierTest::pathsForTheShell()
{
    QFETCH(QString, path);
    QTEST(shellPath(path), "shellPath");
}

void ShellCopierTest::longPathIsRefusedOrCopied()
{
    // Up to the system whether its shell takes paths of more than 260 characters; it may not lie.
    QString folder = QStringLiteral("source");
    for (int i = 0; i < 5; ++i)
        folder += QLatin1Char('/') + QString(60, QLatin1Char('f'));
    QVERIFY(QDir(m_root->path()).mkpath(folder));
    const QString source = addFile(folder + QStringLiteral("/a.stl"));
    QVERIFY(source.size() > 300);
    const QList<Info> records = copy({source});
    QCOMPARE(records.size(), filesInTarget().size());
    for (const Info& record : records)
        QCOMPARE(record.status, 0);
}

void ShellCopierTest::badSourceStopsEverything()
{
    const QString good = addFile(QStringLiteral("source/a.stl"));
    QVERIFY(copy({good, path(QStringLiteral("source/missing.stl"))}).isEmpty());
    QVERIFY(copy({good, QStringLiteral("\\\\nowhere.invalid\\share\\a.stl")}).isEmpty());
    QVERIFY(copy({good, QString()}).isEmpty());
    QVERIFY(filesInTarget().isEmpty());
    QVERIFY(!m_script.calls.names().contains(QStringLiteral("PerformOperations")));
}

void ShellCopierTest::missingFolderStopsEverything()
{
    const QString source = addFile(QStringLiteral("source/a.stl"));
    const QStringList folders{path(QStringLiteral("nowhere")),
                              QStringLiteral("\\\\nowhere.invalid\\share"), QStringLiteral("?:\\"),
                              QStringLiteral("<>")};
    for (const QString& folder : folders)
        QVERIFY2(createFileCopier()->copy(nullptr, {source}, folder).isEmpty(), qPrintable(folder));
    QVERIFY(!m_script.calls.names().contains(QStringLiteral("CopyItems")));
}

void ShellCopierTest::withoutAnEngineNothingIsCopied()
{
    const Testing::RegisteredClass none(CLSID_FileOperation,
                                        [](REFIID, void**) { return CLASS_E_CLASSNOTAVAILABLE; });
    m_engine.reset();
    QVERIFY(copy({addFile(QStringLiteral("source/a.stl"))}).isEmpty());
    QCOMPARE(m_script.operations, 0);
}

void ShellCopierTest::anEngineThatRefusesCopiesNothing()
{
    m_engine.reset();
    ComPointer<IFileOperation> engine;
    QCOMPARE(CoCreateInstance(CLSID_FileOperation, nullptr, CLSCTX_ALL, IID_PPV_ARGS(engine.put())),
             S_OK);
    if (engine->SetOperationFlags(FOF_MULTIDESTFILES) != E_NOTIMPL)
        QSKIP("this system's own engine works, and would ask somebody");
    QVERIFY(copy({addFile(QStringLiteral("source/a.stl"))}).isEmpty());
    QVERIFY(filesInTarget().isEmpty());
}

void ShellCopierTest::missingEntryPointsDoNotSuffice()
{
    QVERIFY(ShellFunctions().sufficeForCopying());
    const ShellFunctions wrongLibrary(L"user32.dll");
    QVERIFY(!wrongLibrary.createItem);
    QVERIFY(!wrongLibrary.sufficeForCopying());
    QVERIFY(!ShellFunctions(L"no-such-library.dll").sufficeForCopying());
}

void ShellCopierTest::aMultithreadedApartmentIsRefused()
{
    // An engine could be had on that thread; its windows would hang.
    const QString source = addFile(QStringLiteral("source/a.stl"));
    m_engine.reset();
    QList<Info> records{Info()};
    std::thread([&] {
        CoInitializeEx(nullptr, COINIT_MULTITHREADED);
        m_engine = std::make_unique<FakeFileOperations>(m_script);
        records = copy({source});
        m_engine.reset();
        CoUninitialize();
    }).join();
    QVERIFY(records.isEmpty());
    QCOMPARE(m_script.operations, 0);
    QVERIFY(filesInTarget().isEmpty());
}

void ShellCopierTest::apartmentIsLeft_data()
{
    QTest::addColumn<QString>("failing");
    QTest::addColumn<int>("records");
    QTest::newRow("copied") << QString() << 1;
    QTest::newRow("no owner") << QStringLiteral("SetOwnerWindow") << 0;
    QTest::newRow("not performed") << QStringLiteral("PerformOperations") << 0;
}

void ShellCopierTest::apartmentIsLeft()
{
    QFETCH(QString, failing);
    QFETCH(int, records);
    const QString source = addFile(QStringLiteral("source/a.stl"));
    m_engine.reset();
    m_script.calls.failCalls(failing, E_ACCESSDENIED);
    HRESULT result = S_OK;
    int copied = -1;
    std::thread([&] {
        {
            // The engine of the test stands in an apartment that ends before.
            const ComApartment apartment;
            m_engine = std::make_unique<FakeFileOperations>(m_script);
            copied = copy({source}).size();
            m_engine.reset();
        }
        APTTYPE type = APTTYPE_CURRENT;
        APTTYPEQUALIFIER qualifier = APTTYPEQUALIFIER_NONE;
        result = CoGetApartmentType(&type, &qualifier);
    }).join();
    QCOMPARE(copied, records);
    QCOMPARE(m_script.operations, 1);
    QCOMPARE(result, CO_E_NOTINITIALIZED);
}

void ShellCopierTest::theUtilityCopiesByTheShell()
{
    const QString source = addFile(QStringLiteral("source/a.stl"));
    int result = -1;
    FileCopyUtility utility(nullptr, {source}, target());
    QCOMPARE(utility.copyFiles(result).size(), 1);
    QCOMPARE(result, 0);
    QCOMPARE(filesInTarget(), QStringList{QStringLiteral("a.stl")});
}

ZORVANE_TEST(ShellCopierTest)
#include "ShellCopierTest.moc"
