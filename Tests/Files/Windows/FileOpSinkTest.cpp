#include "Files/Windows/FileOpSink.h"

#include "Files/Windows/ComApartment.h"
#include "Files/Windows/ComPointer.h"
#include "Files/Windows/FileOpCopySink.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Support/Windows/CallScript.h"
#include "Tests/Support/Windows/SpyShellItem.h"

#include <sherrors.h>

Q_DECLARE_METATYPE(GUID)

using namespace Zorvane;
using Testing::Counted;
using Testing::SpyShellItem;

namespace {

/** Knows when it goes. */
class WatchedSink final : public FileOpSink
{
public:
    explicit WatchedSink(bool& isGone)
        : m_isGone(isGone)
    {}

protected:
    ~WatchedSink() override { m_isGone = true; }

private:
    bool& m_isGone;
};

constexpr GUID s_sinkId = {
    0x04B0F1A7, 0x9490, 0x44BC, {0x96, 0xE1, 0x42, 0x96, 0xA3, 0x12, 0x52, 0xE2}};

} // namespace

class FileOpSinkTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void startsWithOneReference();
    void lastReleaseDeletes();
    void answersForItsInterfaces_data();
    void answersForItsInterfaces();
    void refusesOtherInterfaces();
    void refusesANullResult();
    void everyNotificationIsFine();
    void copySinkKeepsWhatItIsTold();
    void copySinkHoldsItsItems();
    void copySinkIgnoresWhatIsPending();
    void copySinkCanBeUsedAgain();
    void copySinkTakesNulls();
    void copiedRecordsHoldReferencesOfTheirOwn();

private:
    const ComApartment m_apartment;
    static ComPointer<IShellItem> item() { return SpyShellItem::ofPath(QDir::tempPath()); }
};

void FileOpSinkTest::cleanup()
{
    QCOMPARE(Counted::living(), 0);
    TestCase::cleanup();
}

void FileOpSinkTest::startsWithOneReference()
{
    bool isGone = false;
    auto* sink = new WatchedSink(isGone);
    QCOMPARE(sink->AddRef(), 2UL);
    QCOMPARE(sink->Release(), 1UL);
    QVERIFY(!isGone);
    QCOMPARE(sink->Release(), 0UL);
}

void FileOpSinkTest::lastReleaseDeletes()
{
    bool isGone = false;
    auto* sink = new WatchedSink(isGone);
    sink->Release();
    QVERIFY(isGone);
}

void FileOpSinkTest::answersForItsInterfaces_data()
{
    QTest::addColumn<GUID>("iid");
    QTest::newRow("IUnknown") << GUID(IID_IUnknown);
    QTest::newRow("IFileOperationProgressSink") << GUID(s_sinkId);
}

void FileOpSinkTest::answersForItsInterfaces()
{
    QFETCH(GUID, iid);
    const auto sink = ComPointer<FileOpSink>::adopt(new FileOpSink);
    void* result = nullptr;
    QCOMPARE(sink->QueryInterface(iid, &result), S_OK);
    QCOMPARE(result, static_cast<void*>(static_cast<IFileOperationProgressSink*>(sink.get())));
    QCOMPARE(static_cast<IUnknown*>(result)->Release(), 1UL);
}

void FileOpSinkTest::refusesOtherInterfaces()
{
    const auto sink = ComPointer<FileOpSink>::adopt(new FileOpSink);
    void* result = this;
    QCOMPARE(sink->QueryInterface(IID_IFileOperation, &result), HRESULT(0x80004002));
    QCOMPARE(result, nullptr);
    QCOMPARE(sink->AddRef(), 2UL);
    sink->Release();
}

void FileOpSinkTest::refusesANullResult()
{
    const auto sink = ComPointer<FileOpSink>::adopt(new FileOpSink);
    QCOMPARE(sink->QueryInterface(IID_IUnknown, nullptr), HRESULT(0x80070057));
    QCOMPARE(sink->QueryInterface(IID_IFileOperation, nullptr), HRESULT(0x80070057));
}

void FileOpSinkTest::everyNotificationIsFine()
{
    const auto sink = ComPointer<FileOpSink>::adopt(new FileOpSink);
    QCOMPARE(sink->StartOperations(), S_OK);
    QCOMPARE(sink->PreRenameItem(0, nullptr, nullptr), S_OK);
    QCOMPARE(sink->PostRenameItem(0, nullptr, nullptr, E_FAIL, nullptr), S_OK);
    QCOMPARE(sink->PreMoveItem(0, nullptr, nullptr, nullptr), S_OK);
    QCOMPARE(sink->PostMoveItem(0, nullptr, nullptr, nullptr, E_FAIL, nullptr), S_OK);
    QCOMPARE(sink->PreCopyItem(0, nullptr, nullptr, nullptr), S_OK);
    QCOMPARE(sink->PostCopyItem(0, nullptr, nullptr, nullptr, E_FAIL, nullptr), S_OK);
    QCOMPARE(sink->PreDeleteItem(0, nullptr), S_OK);
    QCOMPARE(sink->PostDeleteItem(0, nullptr, E_FAIL, nullptr), S_OK);
    QCOMPARE(sink->PreNewItem(0, nullptr, nullptr), S_OK);
    QCOMPARE(sink->PostNewItem(0, nullptr, nullptr, nullptr, 0, E_FAIL, nullptr), S_OK);
    QCOMPARE(sink->UpdateProgress(10, 5), S_OK);
    QCOMPARE(sink->ResetTimer(), S_OK);
    QCOMPARE(sink->PauseTimer(), S_OK);
    QCOMPARE(sink->ResumeTimer(), S_OK);
    QCOMPARE(sink->FinishOperations(E_FAIL), S_OK);
}

void FileOpSinkTest::copySinkKeepsWhatItIsTold()
{
    const auto sink = ComPointer<FileOpCopySink>::adopt(new FileOpCopySink);
    const auto source = item();
    const auto folder = item();
    const auto created = item();
    QCOMPARE(sink->PostCopyItem(0x80000001, source.get(), folder.get(), L"b.stl", E_ACCESSDENIED,
                                created.get()),
             S_OK);
    QCOMPARE(sink->records().size(), 1U);
    const FileOpCopySink::Record& record = sink->records().front();
    QCOMPARE(record.flags, DWORD(0x80000001));
    QCOMPARE(record.source.get(), source.get());
    QCOMPARE(record.folder.get(), folder.get());
    QCOMPARE(record.newName, QStringLiteral("b.stl"));
    QCOMPARE(record.result, HRESULT(E_ACCESSDENIED));
    QCOMPARE(record.created.get(), created.get());
}

void FileOpSinkTest::copySinkHoldsItsItems()
{
    auto sink = ComPointer<FileOpCopySink>::adopt(new FileOpCopySink);
    sink->PostCopyItem(0, item().get(), item().get(), nullptr, S_OK, item().get());
    QCOMPARE(Counted::living(), 3);
    sink.reset();
    QCOMPARE(Counted::living(), 0);
}

void FileOpSinkTest::copySinkIgnoresWhatIsPending()
{
    const auto sink = ComPointer<FileOpCopySink>::adopt(new FileOpCopySink);
    const auto source = item();
    QCOMPARE(sink->PostCopyItem(0, source.get(), source.get(), nullptr, HRESULT(0x0027000B),
                                source.get()),
             S_OK);
    QVERIFY(sink->records().empty());
    sink->PostCopyItem(0, source.get(), source.get(), nullptr, COPYENGINE_S_USER_IGNORED, nullptr);
    QCOMPARE(sink->records().size(), 1U);
}

void FileOpSinkTest::copySinkCanBeUsedAgain()
{
    const auto sink = ComPointer<FileOpCopySink>::adopt(new FileOpCopySink);
    sink->PostCopyItem(0, item().get(), item().get(), nullptr, S_OK, item().get());
    QCOMPARE(sink->StartOperations(), S_OK);
    QVERIFY(sink->records().empty());
    QCOMPARE(Counted::living(), 0);
}

void FileOpSinkTest::copySinkTakesNulls()
{
    const auto sink = ComPointer<FileOpCopySink>::adopt(new FileOpCopySink);
    QCOMPARE(sink->PostCopyItem(0, nullptr, nullptr, nullptr, E_FAIL, nullptr), S_OK);
    QCOMPARE(sink->records().size(), 1U);
    QVERIFY(!sink->records().front().created);
    QVERIFY(sink->records().front().newName.isEmpty());
}

void FileOpSinkTest::copiedRecordsHoldReferencesOfTheirOwn()
{
    auto sink = ComPointer<FileOpCopySink>::adopt(new FileOpCopySink);
    sink->PostCopyItem(0, item().get(), nullptr, nullptr, S_OK, nullptr);
    std::vector<FileOpCopySink::Record> copy = sink->records();
    sink.reset();
    QCOMPARE(Counted::living(), 1);
    copy.clear();
    QCOMPARE(Counted::living(), 0);
}

ZORVANE_TEST(FileOpSinkTest)
#include "FileOpSinkTest.moc"
