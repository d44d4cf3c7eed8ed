#include "Tests/Support/Windows/FakeShellView.h"

#include "Files/Windows/ComObject.h"
#include "Files/Windows/ShellPath.h"
#include "Files/Windows/TaskMemory.h"
#include "Tests/Support/Windows/SpyShellItem.h"

#include <shlguid.h>
#include <shlobj.h>

namespace Zorvane::Testing {

namespace {

ComPointer<IShellFolder> folderOf(const QString& path)
{
    ComPointer<IShellFolder> folder;
    const ComPointer<IShellItem> item = SpyShellItem::ofPath(path);
    if (!item || FAILED(item->BindToHandler(nullptr, BHID_SFObject, IID_PPV_ARGS(folder.put()))))
        qFatal("no folder for the fake view");
    return folder;
}

/** A view cannot be one object of both interfaces: they have methods of the same name. */
class FakeFolderView final : public ComObject<IFolderView>, private Counted
{
public:
    FakeFolderView(const QString& folder, const QStringList& files, CallScript& calls)
        : m_folder(folderOf(folder))
        , m_files(files)
        , m_calls(calls)
    {}

    HRESULT STDMETHODCALLTYPE GetFolder(REFIID iid, void** result) override
    {
        const HRESULT answer = m_calls.enter(QStringLiteral("GetFolder"));
        return FAILED(answer) ? answer : m_folder->QueryInterface(iid, result);
    }
    HRESULT STDMETHODCALLTYPE ItemCount(UINT, int* count) override
    {
        *count = m_files.size();
        return m_calls.enter(QStringLiteral("ItemCount"));
    }
    HRESULT STDMETHODCALLTYPE Item(int index, PITEMID_CHILD* child) override
    {
        const HRESULT result = m_calls.enter(QStringLiteral("Item(%1)").arg(index));
        QString name = m_files.at(index);
        return FAILED(result)
                   ? result
                   : m_folder->ParseDisplayName(nullptr, nullptr, const_cast<wchar_t*>(wide(name)),
                                                nullptr, child, nullptr);
    }

    /** Of an element of an identifier list. */
    QString nameOf(const ITEMIDLIST* child)
    {
        ComPointer<IShellItem> item;
        SHCreateShellItem(nullptr, m_folder.get(), child, item.put());
        return nameOfItem(item.get(), SIGDN_NORMALDISPLAY);
    }

    // clang-format off
    HRESULT STDMETHODCALLTYPE GetCurrentViewMode(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetCurrentViewMode(UINT) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Items(UINT, REFIID, void**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetSelectionMarkedItem(int*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetFocusedItem(int*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetItemPosition(PCUITEMID_CHILD, POINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetSpacing(POINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetDefaultSpacing(POINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetAutoArrange() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SelectItem(int, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SelectAndPositionItems(UINT, PCUITEMID_CHILD_ARRAY, POINT*, DWORD) override { return E_NOTIMPL; }
    // clang-format on

private:
    ComPointer<IShellFolder> m_folder;
    QStringList m_files;
    CallScript& m_calls;
};

class FakeShellView final : public ComObject<IShellView>, private Counted
{
public:
    FakeShellView(const QString& folder, const QStringList& files, CallScript& calls)
        : m_items(ComPointer<FakeFolderView>::adopt(new FakeFolderView(folder, files, calls)))
        , m_calls(calls)
    {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** result) override
    {
        if (iid != __uuidof(IFolderView))
            return ComObject::QueryInterface(iid, result);
        const HRESULT answer = m_calls.enter(QStringLiteral("QueryFolderView"));
        return FAILED(answer) ? answer : m_items->QueryInterface(iid, result);
    }
    HRESULT STDMETHODCALLTYPE SelectItem(PCUITEMID_CHILD child, SVSIF flags) override
    {
        return m_calls.enter(
            QStringLiteral("SelectItem(%1,%2)").arg(m_items->nameOf(child)).arg(flags));
    }

    // clang-format off
    HRESULT STDMETHODCALLTYPE GetWindow(HWND*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE EnableModeless(BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE UIActivate(UINT) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Refresh() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE CreateViewWindow(IShellView*, LPCFOLDERSETTINGS, IShellBrowser*, RECT*, HWND*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE DestroyViewWindow() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetCurrentInfo(LPFOLDERSETTINGS) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE AddPropertySheetPages(DWORD, LPFNSVADDPROPSHEETPAGE, LPARAM) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SaveViewState() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetItemObject(UINT, REFIID, void**) override { return E_NOTIMPL; }
    // clang-format on

private:
    ComPointer<FakeFolderView> m_items;
    CallScript& m_calls;
};

class FakeShellBrowser final : public ComObject<IServiceProvider, IShellBrowser>, private Counted
{
public:
    FakeShellBrowser(const QString& folder, const QStringList& files, CallScript& calls)
        : m_view(ComPointer<FakeShellView>::adopt(new FakeShellView(folder, files, calls)))
        , m_calls(calls)
    {}

    HRESULT STDMETHODCALLTYPE QueryService(REFGUID service, REFIID iid, void** result) override
    {
        const HRESULT answer = m_calls.enter(QStringLiteral("QueryService"));
        if (FAILED(answer))
            return answer;
        return service == SID_STopLevelBrowser ? QueryInterface(iid, result) : E_NOINTERFACE;
    }
    HRESULT STDMETHODCALLTYPE QueryActiveShellView(IShellView** view) override
    {
        const HRESULT answer = m_calls.enter(QStringLiteral("QueryActiveShellView"));
        return FAILED(answer) ? answer : m_view->QueryInterface(IID_PPV_ARGS(view));
    }

    // clang-format off
    HRESULT STDMETHODCALLTYPE GetWindow(HWND*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE InsertMenusSB(HMENU, LPOLEMENUGROUPWIDTHS) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetMenuSB(HMENU, HOLEMENU, HWND) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE RemoveMenusSB(HMENU) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetStatusTextSB(LPCWSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE EnableModelessSB(BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE TranslateAcceleratorSB(MSG*, WORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE BrowseObject(PCUIDLIST_RELATIVE, UINT) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetViewStateStream(DWORD, IStream**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetControlWindow(UINT, HWND*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SendControlMsg(UINT, UINT, WPARAM, LPARAM, LRESULT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnViewWindowActive(IShellView*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetToolbarItems(LPTBBUTTONSB, UINT, UINT) override { return E_NOTIMPL; }
    // clang-format on

private:
    ComPointer<FakeShellView> m_view;
    CallScript& m_calls;
};

} // namespace

ComPointer<IServiceProvider> fakeShellServices(const QString& folder, const QStringList& files,
                                               CallScript& calls)
{
    return ComPointer<IServiceProvider>::adopt(new FakeShellBrowser(folder, files, calls));
}

} // namespace Zorvane::Testing
