#include "Tests/Support/Windows/FakeFileOperation.h"

#include "Files/Windows/ComObject.h"
#include "Files/Windows/ComPointer.h"
#include "Files/Windows/ShellPath.h"
#include "Tests/Support/Windows/References.h"
#include "Tests/Support/Windows/SpyShellItem.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <algorithm>

namespace Zorvane::Testing {

namespace {

QString freeName(const QString& folder, const QString& fileName)
{
    const QFileInfo name(fileName);
    QString candidate = fileName;
    for (int i = 2; QFileInfo::exists(QDir(folder).filePath(candidate)); ++i)
        candidate =
            QStringLiteral("%1 (%2).%3").arg(name.completeBaseName()).arg(i).arg(name.suffix());
    return candidate;
}

class FakeFileOperation final : public ComObject<IFileOperation>, private Counted
{
public:
    explicit FakeFileOperation(FileOperationScript& script)
        : m_script(script)
    {
        ++m_script.operations;
    }

    // clang-format off
    HRESULT STDMETHODCALLTYPE Advise(IFileOperationProgressSink* sink, DWORD* cookie) override;
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override;
    HRESULT STDMETHODCALLTYPE SetOperationFlags(DWORD flags) override;
    HRESULT STDMETHODCALLTYPE SetProgressMessage(LPCWSTR) override { return unwanted("SetProgressMessage"); }
    HRESULT STDMETHODCALLTYPE SetProgressDialog(IOperationsProgressDialog*) override { return unwanted("SetProgressDialog"); }
    HRESULT STDMETHODCALLTYPE SetProperties(IPropertyChangeArray*) override { return unwanted("SetProperties"); }
    HRESULT STDMETHODCALLTYPE SetOwnerWindow(HWND owner) override;
    HRESULT STDMETHODCALLTYPE ApplyPropertiesToItem(IShellItem*) override { return unwanted("ApplyPropertiesToItem"); }
    HRESULT STDMETHODCALLTYPE ApplyPropertiesToItems(IUnknown*) override { return unwanted("ApplyPropertiesToItems"); }
    HRESULT STDMETHODCALLTYPE RenameItem(IShellItem*, LPCWSTR, IFileOperationProgressSink*) override { return unwanted("RenameItem"); }
    HRESULT STDMETHODCALLTYPE RenameItems(IUnknown*, LPCWSTR) override { return unwanted("RenameItems"); }
    HRESULT STDMETHODCALLTYPE MoveItem(IShellItem*, IShellItem*, LPCWSTR, IFileOperationProgressSink*) override { return unwanted("MoveItem"); }
    HRESULT STDMETHODCALLTYPE MoveItems(IUnknown*, IShellItem*) override { return unwanted("MoveItems"); }
    HRESULT STDMETHODCALLTYPE CopyItem(IShellItem*, IShellItem*, LPCWSTR, IFileOperationProgressSink*) override { return unwanted("CopyItem"); }
    HRESULT STDMETHODCALLTYPE CopyItems(IUnknown* items, IShellItem* folder) override;
    HRESULT STDMETHODCALLTYPE DeleteItem(IShellItem*, IFileOperationProgressSink*) override { return unwanted("DeleteItem"); }
    HRESULT STDMETHODCALLTYPE DeleteItems(IUnknown*) override { return unwanted("DeleteItems"); }
    HRESULT STDMETHODCALLTYPE NewItem(IShellItem*, DWORD, LPCWSTR, LPCWSTR, IFileOperationProgressSink*) override { return unwanted("NewItem"); }
    HRESULT STDMETHODCALLTYPE PerformOperations() override;
    HRESULT STDMETHODCALLTYPE GetAnyOperationsAborted(WINBOOL*) override { return unwanted("GetAnyOperationsAborted"); }
    // clang-format on

protected:
    ~FakeFileOperation() override;

private:
    HRESULT unwanted(const char* name)
    {
        m_script.calls.enter(QLatin1String(name));
        return E_NOTIMPL;
    }
    void process(IShellItem* source);
    void tell(IShellItem* source, HRESULT result, IShellItem* created);
    ComPointer<IShellItem> makeCopy(const QString& source, const CopyBehavior& behavior);

    FileOperationScript& m_script;
    ComPointer<IFileOperationProgressSink> m_sink;
    /** Kept beyond the end of the listening, to see who else still holds the sink. */
    ComPointer<IFileOperationProgressSink> m_everAdvised;
    ComPointer<IShellItemArray> m_sources;
    std::vector<ComPointer<IShellItem>> m_items;
    ComPointer<IShellItem> m_folder;
};

FakeFileOperation::~FakeFileOperation()
{
    m_sink.reset();
    ULONG left = referencesAfter(m_everAdvised) + referencesAfter(m_sources);
    for (ComPointer<IShellItem>& item : m_items)
        left += referencesAfter(item);
    m_script.leftReferences += left + referencesAfter(m_folder);
}

HRESULT FakeFileOperation::Advise(IFileOperationProgressSink* sink, DWORD* cookie)
{
    const HRESULT result = m_script.calls.enter(QStringLiteral("Advise"));
    m_everAdvised = ComPointer(sink);
    if (SUCCEEDED(result)) {
        m_sink = ComPointer(sink);
        *cookie = 17;
    }
    return result;
}

HRESULT FakeFileOperation::Unadvise(DWORD cookie)
{
    m_sink.reset();
    return m_script.calls.enter(QStringLiteral("Unadvise(%1)").arg(cookie));
}

HRESULT FakeFileOperation::SetOperationFlags(DWORD flags)
{
    m_script.flags = flags;
    return m_script.calls.enter(QStringLiteral("SetOperationFlags(%1)").arg(flags));
}

HRESULT FakeFileOperation::SetOwnerWindow(HWND owner)
{
    m_script.owner = owner;
    return m_script.calls.enter(QStringLiteral("SetOwnerWindow"));
}

HRESULT FakeFileOperation::CopyItems(IUnknown* items, IShellItem* folder)
{
    const HRESULT result = m_script.calls.enter(QStringLiteral("CopyItems"));
    if (FAILED(items->QueryInterface(IID_PPV_ARGS(m_sources.put()))))
        return E_INVALIDARG;
    const CallScript::Silence silence(m_script.calls);
    m_folder = ComPointer(folder);
    m_script.folder = nameOfItem(folder, SIGDN_FILESYSPATH);
    DWORD count = 0;
    m_sources->GetCount(&count);
    m_items.resize(count);
    for (DWORD i = 0; i < count; ++i)
        m_sources->GetItemAt(i, m_items[i].put());
    return result;
}

HRESULT FakeFileOperation::PerformOperations()
{
    const HRESULT result = m_script.calls.enter(QStringLiteral("PerformOperations"));
    if (FAILED(result))
        return result;
    const CallScript::Silence silence(m_script.calls);
    std::vector<IShellItem*> items;
    for (const ComPointer<IShellItem>& item : m_items)
        items.push_back(item.get());
    if (m_script.backwards)
        std::reverse(items.begin(), items.end());
    m_sink->StartOperations();
    for (IShellItem* item : items)
        process(item);
    if (m_script.whilePerforming)
        m_script.whilePerforming(m_sink.get());
    m_sink->FinishOperations(m_script.performResult);
    return m_script.performResult;
}

void FakeFileOperation::process(IShellItem* source)
{
    const QString path = nameOfItem(source, SIGDN_FILESYSPATH);
    const CopyBehavior behavior = m_script.behaviors.value(QFileInfo(path).fileName());
    if (behavior.isSilent)
        return;
    // The shell compares items that it made itself with ours: equal, but not the same objects.
    const ComPointer<IShellItem> told = SpyShellItem::ofPath(path);
    m_sink->PreCopyItem(0, told.get(), m_folder.get(), nullptr);
    if (behavior.pendingFirst)
        tell(told.get(), COPYENGINE_S_PENDING, nullptr);
    const ComPointer<IShellItem> created =
        behavior.makesCopy ? makeCopy(path, behavior) : ComPointer<IShellItem>();
    for (int i = 0; i < (m_script.twice ? 2 : 1); ++i)
        tell(told.get(), behavior.result, created.get());
}

void FakeFileOperation::tell(IShellItem* source, HRESULT result, IShellItem* created)
{
    const QString name = nameOfItem(created, SIGDN_NORMALDISPLAY);
    m_sink->PostCopyItem(0, source, m_folder.get(), wide(name), result, created);
}

ComPointer<IShellItem> FakeFileOperation::makeCopy(const QString& source,
                                                   const CopyBehavior& behavior)
{
    const QString folder = nameOfItem(m_folder.get(), SIGDN_FILESYSPATH);
    const QString name = behavior.name.isEmpty() ? QFileInfo(source).fileName() : behavior.name;
    if (behavior.replaces)
        QFile::remove(QDir(folder).filePath(name));
    const QString copy = QDir(folder).filePath(freeName(folder, name));
    if (!QFile::copy(source, copy))
        return {};
    return SpyShellItem::ofPath(copy, m_script.itemsTell ? &m_script.calls : nullptr);
}

} // namespace

FakeFileOperations::FakeFileOperations(FileOperationScript& script)
    : m_class(CLSID_FileOperation, [&script](REFIID iid, void** result) {
        return ComPointer<FakeFileOperation>::adopt(new FakeFileOperation(script))
            ->QueryInterface(iid, result);
    })
{}

} // namespace Zorvane::Testing
