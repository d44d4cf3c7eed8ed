#include "Files/Windows/ShellCopy.h"

#include "Files/Windows/ComApartment.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Support/Windows/FakeFileOperation.h"
#include "Tests/Support/Windows/SpyItemArray.h"
#include "Tests/Support/Windows/TaskMemorySpy.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>

#include <memory>
#include <new>
#include <optional>

#include <sherrors.h>

using namespace Zorvane;
using Info = FileCopyUtility::FileCopyInfo;
using Testing::CallScript;
using Testing::Counted;

namespace {

constexpr HRESULT s_failure = E_ACCESSDENIED;

/** What a run with one source calls, in order. */
const QStringList s_calls{QStringLiteral("SetOwnerWindow"),
                          QStringLiteral("SetOperationFlags(1)"),
                          QStringLiteral("CreateItem"),
                          QStringLiteral("ParseName"),
                          QStringLiteral("CreateArray"),
                          QStringLiteral("CopyItems"),
                          QStringLiteral("Advise"),
                          QStringLiteral("PerformOperations"),
                          QStringLiteral("GetCount"),
                          QStringLiteral("GetItemAt(0)"),
                          QStringLiteral("Compare(2147483648)"),
                          QStringLiteral("GetDisplayName"),
                          QStringLiteral("GetDisplayName"),
                          QStringLiteral("GetDisplayName"),
                          QStringLiteral("GetDisplayName"),
                          QStringLiteral("Unadvise(17)")};
constexpr int s_sourcePath = 11;
constexpr int s_targetPath = 12;

/** Where the shell's functions, which know of no object, write down their calls. */
CallScript* s_script = nullptr;

HRESULT STDAPICALLTYPE createItem(PCWSTR path, IBindCtx* context, REFIID iid, void** result)
{
    const HRESULT answer = s_script->enter(QStringLiteral("CreateItem"));
    return FAILED(answer) ? answer : SHCreateItemFromParsingName(path, context, iid, result);
}

HRESULT STDAPICALLTYPE parseName(PCWSTR name, IBindCtx* context, PIDLIST_ABSOLUTE* list,
                                 SFGAOF asked, SFGAOF* attributes)
{
    const HRESULT answer = s_script->enter(QStringLiteral("ParseName"));
    return FAILED(answer) ? answer : SHParseDisplayName(name, context, list, asked, attributes);
}

/** As the shell's it refuses to make an array with a list missing; its items are spies. */
HRESULT STDAPICALLTYPE createArray(UINT count, PCIDLIST_ABSOLUTE_ARRAY lists,
                                   IShellItemArray** result)
{
    const HRESULT answer = s_script->enter(QStringLiteral("CreateArray"));
    if (FAILED(answer))
        return answer;
    QStringList paths;
    for (UINT i = 0; i < count; ++i) {
        wchar_t path[MAX_PATH];
        if (!lists[i] || !SHGetPathFromIDListW(lists[i], path))
            return E_INVALIDARG;
        paths.append(QString::fromWCharArray(path));
    }
    *result = new Testing::SpyItemArray(paths, *s_script);
    return S_OK;
}

/** Who keeps it needs memory that there isn't. */
class ItemTooMany final : public ComObject<IShellItem>
{
public:
    ULONG STDMETHODCALLTYPE AddRef() override { throw std::bad_alloc(); }
    // clang-format off
    HRESULT STDMETHODCALLTYPE BindToHandler(IBindCtx*, REFGUID, REFIID, void**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetParent(IShellItem**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetDisplayName(SIGDN, LPWSTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetAttributes(SFGAOF, SFGAOF*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Compare(IShellItem*, SICHINTF, int*) override { return E_NOTIMPL; }
    // clang-format on
};

} // namespace

/** The copier's way through the shell, call by call. */
class ShellCopyTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void callsInThisOrder();
    void aFailureAtAnyCallEndsTheCopyInOrder_data();
    void aFailureAtAnyCallEndsTheCopyInOrder();
    void noCopyWithoutAPath();
    void result_decidesTheOutcome_data();
    void result_decidesTheOutcome();
    void filesOfTheSameNameAreToldApart();
    void theSameFileTwiceIsToldOfTwice();
    void onlyTheNamesDecideAboutRenamed_data();
    void onlyTheNamesDecideAboutRenamed();
    void wantOfMemoryStaysOutOfTheSystemsCode();

private:
    QString addFile(const QString& relativePath);
    QString path(const QString& below) const
    {
        return QDir::toNativeSeparators(m_root->filePath(below));
    }
    HRESULT copy(const QStringList& sources)
    {
        return ShellCopy(m_shell, nullptr).run(sources, path(QStringLiteral("target")), m_records);
    }

    int m_taskMemory = 0;
    std::unique_ptr<QTemporaryDir> m_root;
    std::optional<ComApartment> m_apartment;
    ShellFunctions m_shell;
    Testing::FileOperationScript m_script;
    std::unique_ptr<Testing::FakeFileOperations> m_engine;
    QList<Info> m_records;
};

/** What the system keeps for itself from its first use on is not ours. */
void ShellCopyTest::initTestCase()
{
    TestCase::initTestCase();
    m_shell.createItem = createItem;
    m_shell.parseName = parseName;
    m_shell.createArray = createArray;
    s_script = &m_script.calls;
    Testing::livingTaskMemory();
    init();
    copy({addFile(QStringLiteral("source/a.stl"))});
    m_taskMemory = Testing::livingTaskMemory();
    cleanup();
}

void ShellCopyTest::init()
{
    m_root = std::make_unique<QTemporaryDir>();
    for (const char* folder : {"source", "source/other", "target"})
        QDir(m_root->path()).mkdir(QString::fromLatin1(folder));
    m_apartment.emplace();
    m_taskMemory = Testing::livingTaskMemory();
    m_script = {};
    m_script.itemsTell = true;
    m_engine = std::make_unique<Testing::FakeFileOperations>(m_script);
    m_records = {Info()};
}

void ShellCopyTest::cleanup()
{
    QCOMPARE(m_script.leftReferences, 0UL);
    m_engine.reset();
    QCOMPARE(Counted::living(), 0);
    QCOMPARE(Testing::livingTaskMemory(), m_taskMemory);
    m_apartment.reset();
    m_root.reset();
    TestCase::cleanup();
}

QString ShellCopyTest::addFile(const QString& relativePath)
{
    QFile file(path(relativePath));
    if (!file.open(QIODevice::WriteOnly) || file.write("content") != 7)
        qFatal("cannot write a test file");
    return path(relativePath);
}

void ShellCopyTest::callsInThisOrder()
{
    QCOMPARE(copy({addFile(QStringLiteral("source/a.stl"))}), S_OK);
    QCOMPARE(m_script.calls.calls(), s_calls);
    QCOMPARE(m_records.size(), 1);
    QCOMPARE(m_records[0].status, 0);
}

void ShellCopyTest::aFailureAtAnyCallEndsTheCopyInOrder_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<qint64>("result");
    QTest::addColumn<QVector<int>>("statuses");
    auto row = [place = 0](HRESULT result, const QVector<int>& statuses) mutable {
        QTest::addRow("%d, %s", place, qPrintable(s_calls.at(place)))
            << place << qint64(result) << statuses;
        ++place;
    };
    for (int i = 0; i < s_calls.indexOf(QStringLiteral("GetCount")); ++i) {
        // Without its list the shell refuses the array.
        row(s_calls.at(i) == QLatin1String("ParseName") ? E_INVALIDARG : s_failure, {});
    }
    row(s_failure, {});
    row(S_OK, {}); // an item that can't be had
    row(S_OK, {}); // an item that can't be compared
    row(S_OK, {FileCopyUtility::NotCopied});
    row(S_OK, {FileCopyUtility::NotCopied});
    row(S_OK, {FileCopyUtility::Copied}); // the name of the path will do
    row(S_OK, {FileCopyUtility::Copied});
    row(S_OK, {FileCopyUtility::Copied});
}

void ShellCopyTest::aFailureAtAnyCallEndsTheCopyInOrder()
{
    QFETCH(int, place);
    QFETCH(QVector<int>, statuses);
    const QString source = addFile(QStringLiteral("source/a.stl"));
    m_script.calls.failCallAt(place, s_failure);
    const qint64 copied = copy({source});
    QTEST(copied, "result");
    QCOMPARE(m_script.calls.calls().mid(0, place + 1), s_calls.mid(0, place + 1));
    QVector<int> found;
    for (const Info& record : m_records)
        found.append(record.status);
    QCOMPARE(found, statuses);
    const bool isAdvised = place > s_calls.indexOf(QStringLiteral("Advise"));
    QCOMPARE(m_script.calls.calls().last() == s_calls.last(), isAdvised);
    QVERIFY(QFileInfo::exists(source));
}

void ShellCopyTest::noCopyWithoutAPath()
{
    const QString source = addFile(QStringLiteral("source/a.stl"));
    m_script.calls.failCallAt(s_targetPath, s_failure);
    copy({source});
    QCOMPARE(m_records[0].source, source);
    QVERIFY(m_records[0].target.isEmpty());
    QCOMPARE(m_records[0].status, int(FileCopyUtility::NotCopied));
    m_script.calls = {};
    m_script.calls.failCallAt(s_sourcePath, s_failure);
    copy({source});
    QVERIFY(m_records[0].source.isEmpty());
    QCOMPARE(m_records[0].status, int(FileCopyUtility::NotCopied));
}

void ShellCopyTest::result_decidesTheOutcome_data()
{
    using Outcome = FileCopyUtility::Outcome;
    QTest::addColumn<qint64>("result");
    QTest::addColumn<int>("outcome");
    const auto row = [](const char* name, HRESULT result, Outcome outcome) {
        QTest::newRow(name) << qint64(result) << int(outcome);
    };
    row("copied", S_OK, Outcome::Copied);
    row("skipped", COPYENGINE_S_USER_IGNORED, Outcome::Skipped);
    row("cancelled", COPYENGINE_E_USER_CANCELLED, Outcome::Cancelled);
    row("same file", COPYENGINE_E_SAME_FILE, Outcome::SameFile);
    row("failed", HRESULT_FROM_WIN32(ERROR_ACCESS_DENIED), Outcome::Failed);
}

void ShellCopyTest::result_decidesTheOutcome()
{
    QFETCH(qint64, result);
    QFETCH(int, outcome);
    Testing::CopyBehavior behavior;
    behavior.result = static_cast<HRESULT>(result);
    behavior.makesCopy = result == S_OK;
    m_script.behaviors[QStringLiteral("a.stl")] = behavior;
    QCOMPARE(copy({addFile(QStringLiteral("source/a.stl"))}), S_OK);
    QCOMPARE(m_records.size(), 1);
    QCOMPARE(int(m_records[0].outcome), outcome);
    const bool isFailed = m_records[0].outcome == FileCopyUtility::Outcome::Failed;
    QCOMPARE(m_records[0].reason.isEmpty(), !isFailed);
}

void ShellCopyTest::filesOfTheSameNameAreToldApart()
{
    const QString one = addFile(QStringLiteral("source/a.stl"));
    const QString two = addFile(QStringLiteral("source/other/a.stl"));
    QCOMPARE(copy({one, two}), S_OK);
    QCOMPARE(m_records.size(), 2);
    QCOMPARE(m_records[0].source, one);
    QCOMPARE(m_records[0].target, path(QStringLiteral("target/a.stl")));
    QCOMPARE(m_records[0].status, int(FileCopyUtility::Copied));
    QCOMPARE(m_records[1].source, two);
    QCOMPARE(m_records[1].target, path(QStringLiteral("target/a (2).stl")));
    QCOMPARE(m_records[1].status, int(FileCopyUtility::CopiedUnderOtherName));
}

void ShellCopyTest::theSameFileTwiceIsToldOfTwice()
{
    // Each of the two is the other as well, so that each of both copies is told of twice.
    const QString source = addFile(QStringLiteral("source/a.stl"));
    QCOMPARE(copy({source, source}), S_OK);
    const QVector<int> expected{FileCopyUtility::Copied, FileCopyUtility::CopiedUnderOtherName,
                                FileCopyUtility::Copied, FileCopyUtility::CopiedUnderOtherName};
    QVector<int> found;
    for (const Info& record : m_records) {
        found.append(record.status);
        QCOMPARE(record.source, source);
    }
    QCOMPARE(found, expected);
}

void ShellCopyTest::onlyTheNamesDecideAboutRenamed_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("replaces");
    QTest::addColumn<int>("status");
    QTest::newRow("another name") << QStringLiteral("b.stl") << false << 2;
    QTest::newRow("other letters") << QStringLiteral("A.stl") << false << 2;
    QTest::newRow("the same name") << QStringLiteral("a.stl") << false << 0;
    QTest::newRow("the same name, in the place of a file") << QStringLiteral("a.stl") << true << 0;
}

void ShellCopyTest::onlyTheNamesDecideAboutRenamed()
{
    QFETCH(QString, name);
    QFETCH(bool, replaces);
    if (replaces)
        addFile(QStringLiteral("target/a.stl"));
    Testing::CopyBehavior behavior;
    behavior.name = name;
    behavior.replaces = replaces;
    m_script.behaviors[QStringLiteral("a.stl")] = behavior;
    QCOMPARE(copy({addFile(QStringLiteral("source/a.stl"))}), S_OK);
    QCOMPARE(m_records.size(), 1);
    QCOMPARE(m_records[0].target, path(QStringLiteral("target/") + name));
    QTEST(m_records[0].status, "status");
}

void ShellCopyTest::wantOfMemoryStaysOutOfTheSystemsCode()
{
    ItemTooMany item;
    HRESULT told = E_FAIL;
    m_script.whilePerforming = [&](IFileOperationProgressSink* sink) {
        told = sink->PostCopyItem(0, &item, nullptr, nullptr, S_OK, nullptr);
    };
    QVERIFY_EXCEPTION_THROWN(copy({addFile(QStringLiteral("source/a.stl"))}), std::bad_alloc);
    QCOMPARE(told, S_OK);
    QCOMPARE(m_script.calls.calls().last(), s_calls.last());
}

ZORVANE_TEST(ShellCopyTest)
#include "ShellCopyTest.moc"
