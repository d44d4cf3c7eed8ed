#include "FileDialogs/Windows/DialogItems.h"

#include "Files/Windows/ComPointer.h"
#include "Files/Windows/ShellPath.h"
#include "Files/Windows/TaskMemory.h"

namespace Zorvane {

QString fileNameText(IFileDialog* dialog)
{
    wchar_t* text = nullptr;
    if (!dialog || FAILED(dialog->GetFileName(&text)))
        return {};
    const TaskText owned(text);
    return QString::fromWCharArray(owned.get());
}

QStringList selectedPaths(IFileDialog* dialog)
{
    ComPointer<IFileOpenDialog> openDialog;
    ComPointer<IShellItemArray> items;
    DWORD count = 0;
    // With nothing selected there is no array, which the system tells as a failure.
    if (!dialog || FAILED(dialog->QueryInterface(IID_PPV_ARGS(openDialog.put()))) ||
        FAILED(openDialog->GetSelectedItems(items.put())) || FAILED(items->GetCount(&count)))
        return {};
    QStringList paths;
    for (DWORD i = 0; i < count; ++i) {
        ComPointer<IShellItem> item;
        if (SUCCEEDED(items->GetItemAt(i, item.put())))
            appendPath(item.get(), paths);
    }
    return paths;
}

HRESULT appendPath(IShellItem* item, QStringList& paths)
{
    wchar_t* path = nullptr;
    const HRESULT result = item->GetDisplayName(SIGDN_FILESYSPATH, &path);
    if (FAILED(result))
        return result;
    const TaskText owned(path);
    paths.append(QString::fromWCharArray(owned.get()));
    return result;
}

HRESULT appendPaths(IShellItemArray* items, QStringList& paths)
{
    DWORD count = 0;
    HRESULT result = items->GetCount(&count);
    for (DWORD i = 0; i < count && SUCCEEDED(result); ++i) {
        ComPointer<IShellItem> item;
        result = items->GetItemAt(i, item.put());
        if (SUCCEEDED(result))
            result = appendPath(item.get(), paths);
    }
    return result;
}

} // namespace Zorvane
