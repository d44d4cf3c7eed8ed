#include "Files/Windows/ShellCopy.h"

#include "Files/Windows/ShellPath.h"
#include "Files/Windows/TaskMemory.h"

#include <QtCore/QFileInfo>

#include <new>
#include <vector>

#include <sherrors.h>

namespace Zorvane {

namespace {

using Info = FileCopyUtility::FileCopyInfo;

/** Null where the shell knows no such file; nothing at all is the desktop to it. */
TaskIdList idListOf(const ShellFunctions& shell, const QString& path)
{
    ITEMIDLIST* list = nullptr;
    if (path.isEmpty() ||
        FAILED(shell.parseName(wide(shellPath(path)), nullptr, &list, 0, nullptr)))
        return nullptr;
    return TaskIdList(list);
}

bool isSameItem(IShellItem* one, IShellItem* other)
{
    int order = 0;
    return one && other && one->Compare(other, SICHINT_ALLFIELDS, &order) == S_OK && order == 0;
}

/** The name that is shown; that of the path where there is none to show. */
QString shownName(IShellItem* item, const QString& path)
{
    const QString name = nameOfItem(item, SIGDN_NORMALDISPLAY);
    return name.isEmpty() ? QFileInfo(path).fileName() : name;
}

FileCopyUtility::Outcome outcomeOf(HRESULT result)
{
    switch (result) {
    case COPYENGINE_S_USER_IGNORED:
        return FileCopyUtility::Outcome::Skipped;
    case COPYENGINE_E_USER_CANCELLED:
        return FileCopyUtility::Outcome::Cancelled;
    case COPYENGINE_E_SAME_FILE:
        return FileCopyUtility::Outcome::SameFile;
    default:
        return FileCopyUtility::Outcome::Failed;
    }
}

/** A copy without a path to report is none that a host could use. */
Info infoOf(IShellItem* source, const FileOpCopySink::Record& record)
{
    Info info;
    IShellItem* created = record.created.get();
    info.source = nameOfItem(source, SIGDN_DESKTOPABSOLUTEPARSING);
    info.target = nameOfItem(created, SIGDN_DESKTOPABSOLUTEPARSING);
    info.status = FileCopyUtility::NotCopied;
    if (record.result != S_OK || info.source.isEmpty() || info.target.isEmpty()) {
        info.outcome = outcomeOf(record.result);
        if (info.outcome == FileCopyUtility::Outcome::Failed && FAILED(record.result))
            info.reason = qt_error_string(static_cast<int>(record.result));
        return info;
    }
    info.outcome = FileCopyUtility::Outcome::Copied;
    const bool isRenamed = shownName(source, info.source) != shownName(created, info.target);
    info.status = isRenamed ? FileCopyUtility::CopiedUnderOtherName : FileCopyUtility::Copied;
    return info;
}

/** Keeps a sink at the operation for the time of one run. */
class AdvisedSink
{
public:
    AdvisedSink(IFileOperation* operation, FileOpCopySink& sink)
        : m_operation(operation)
        , m_result(operation->Advise(&sink, &m_cookie))
    {}
    ~AdvisedSink()
    {
        if (SUCCEEDED(m_result))
            m_operation->Unadvise(m_cookie);
    }

    AdvisedSink(const AdvisedSink&) = delete;
    AdvisedSink& operator=(const AdvisedSink&) = delete;

    HRESULT result() const { return m_result; }

private:
    IFileOperation* m_operation;
    DWORD m_cookie = 0;
    HRESULT m_result;
};

} // namespace

ShellCopy::ShellCopy(const ShellFunctions& shell, HWND owner)
    : m_shell(shell)
    , m_owner(owner)
{}

HRESULT ShellCopy::run(const QStringList& sources, const QString& targetFolder,
                       QList<Info>& records)
{
    records.clear();
    HRESULT result = createOperation();
    if (SUCCEEDED(result))
        result = createFolder(targetFolder);
    if (SUCCEEDED(result))
        result = createSources(sources);
    if (SUCCEEDED(result))
        result = m_operation->CopyItems(m_sources.get(), m_folder.get());
    if (FAILED(result))
        return result;
    const auto sink = ComPointer<FileOpCopySink>::adopt(new (std::nothrow) FileOpCopySink);
    if (!sink)
        return E_OUTOFMEMORY;
    const AdvisedSink advised(m_operation.get(), *sink.get());
    result = advised.result();
    if (SUCCEEDED(result))
        result = m_operation->PerformOperations();
    sink->rethrow();
    return SUCCEEDED(result) ? collect(*sink.get(), records) : result;
}

HRESULT ShellCopy::createOperation()
{
    HRESULT result =
        CoCreateInstance(CLSID_FileOperation, nullptr, CLSCTX_ALL, IID_PPV_ARGS(m_operation.put()));
    if (SUCCEEDED(result))
        result = m_operation->SetOwnerWindow(m_owner);
    // Nothing that would keep the shell from showing its progress and from asking the user.
    if (SUCCEEDED(result))
        result = m_operation->SetOperationFlags(FOF_MULTIDESTFILES);
    return result;
}

HRESULT ShellCopy::createFolder(const QString& targetFolder)
{
    return m_shell.createItem(wide(shellPath(targetFolder)), nullptr, IID_PPV_ARGS(m_folder.put()));
}

HRESULT ShellCopy::createSources(const QStringList& sources)
{
    std::vector<TaskIdList> owned;
    std::vector<const ITEMIDLIST*> lists;
    for (const QString& source : sources) {
        owned.push_back(idListOf(m_shell, source));
        lists.push_back(owned.back().get());
    }
    return m_shell.createArray(UINT(lists.size()), lists.data(), m_sources.put());
}

HRESULT ShellCopy::collect(const FileOpCopySink& sink, QList<Info>& records)
{
    DWORD count = 0;
    const HRESULT result = m_sources->GetCount(&count);
    if (FAILED(result))
        return result;
    for (DWORD i = 0; i < count; ++i) {
        ComPointer<IShellItem> source;
        if (FAILED(m_sources->GetItemAt(i, source.put())))
            continue;
        for (const FileOpCopySink::Record& record : sink.records()) {
            if (isSameItem(source.get(), record.source.get()))
                records.append(infoOf(source.get(), record));
        }
    }
    return S_OK;
}

} // namespace Zorvane
