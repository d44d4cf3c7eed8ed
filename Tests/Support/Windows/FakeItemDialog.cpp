#include "Tests/Support/Windows/FakeItemDialog.h"

#include "Files/Windows/ComObject.h"
#include "Files/Windows/ComPointer.h"
#include "Files/Windows/ShellPath.h"
#include "Tests/Support/Windows/References.h"
#include "Tests/Support/Windows/SpyItemArray.h"
#include "Tests/Support/Windows/SpyShellItem.h"

#include <cstring>

#include <oleidl.h>
#include <servprov.h>

namespace Zorvane::Testing {

namespace {

QString textOf(const wchar_t* text)
{
    return text ? QString::fromWCharArray(text) : QStringLiteral("null");
}

QString textOf(DWORD number)
{
    return QString::number(number);
}

template <typename... Arguments>
QString call(const char* name, const Arguments&... arguments)
{
    return QLatin1String(name) + QLatin1Char('(') +
           QStringList{textOf(arguments)...}.join(QLatin1Char(',')) + QLatin1Char(')');
}

/** The controls of a dialog, which are written down and otherwise forgotten. */
class FakeCustomize : public IFileDialogCustomize
{
public:
    explicit FakeCustomize(CallScript& calls)
        : m_calls(calls)
    {}

    // clang-format off
    HRESULT STDMETHODCALLTYPE AddCheckButton(DWORD id, LPCWSTR label, BOOL isChecked) override { return m_calls.enter(call("AddCheckButton", id, label, DWORD(isChecked))); }
    HRESULT STDMETHODCALLTYPE AddComboBox(DWORD id) override { return m_calls.enter(call("AddComboBox", id)); }
    HRESULT STDMETHODCALLTYPE AddControlItem(DWORD id, DWORD item, LPCWSTR label) override { return m_calls.enter(call("AddControlItem", id, item, label)); }
    HRESULT STDMETHODCALLTYPE SetSelectedControlItem(DWORD id, DWORD item) override { return m_calls.enter(call("SetSelectedControlItem", id, item)); }
    HRESULT STDMETHODCALLTYPE SetControlState(DWORD id, CDCONTROLSTATEF state) override { return m_calls.enter(call("SetControlState", id, DWORD(state))); }
    HRESULT STDMETHODCALLTYPE StartVisualGroup(DWORD id, LPCWSTR label) override { return m_calls.enter(call("StartVisualGroup", id, label)); }
    HRESULT STDMETHODCALLTYPE EndVisualGroup() override { return m_calls.enter(QStringLiteral("EndVisualGroup")); }
    HRESULT STDMETHODCALLTYPE MakeProminent(DWORD id) override { return m_calls.enter(call("MakeProminent", id)); }

    HRESULT STDMETHODCALLTYPE EnableOpenDropDown(DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE AddMenu(DWORD, LPCWSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE AddPushButton(DWORD, LPCWSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE AddRadioButtonList(DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE AddEditBox(DWORD, LPCWSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE AddSeparator(DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE AddText(DWORD, LPCWSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetControlLabel(DWORD, LPCWSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetControlState(DWORD, CDCONTROLSTATEF*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetEditBoxText(DWORD, WCHAR**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetEditBoxText(DWORD, LPCWSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetCheckButtonState(DWORD, BOOL*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetCheckButtonState(DWORD, BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE RemoveControlItem(DWORD, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE RemoveAllControlItems(DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetControlItemState(DWORD, DWORD, CDCONTROLSTATEF*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetControlItemState(DWORD, DWORD, CDCONTROLSTATEF) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetSelectedControlItem(DWORD, DWORD*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetControlItemText(DWORD, DWORD, LPCWSTR) override { return E_NOTIMPL; }
    // clang-format on

private:
    CallScript& m_calls;
};

/** What open and save dialogs have in common. */
template <typename Dialog>
class FakeItemDialog : public ComObject<Dialog, IOleWindow>, private Counted
{
public:
    explicit FakeItemDialog(ItemDialogScript& script)
        : m_script(script)
        , m_calls(script.calls)
        , m_customize(*this)
    {
        ++m_script.dialogs;
    }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** result) override
    {
        const HRESULT answer = enterQuery(iid);
        if (FAILED(answer))
            return answer;
        if (iid == __uuidof(IFileDialogCustomize))
            return hand(&m_customize, result);
        if (iid == __uuidof(IServiceProvider) && m_script.services)
            return m_script.services->QueryInterface(iid, result);
        return ComObject<Dialog, IOleWindow>::QueryInterface(iid, result);
    }

    HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override
    {
        *window = m_script.window;
        return m_calls.enter(QStringLiteral("GetWindow"));
    }
    HRESULT STDMETHODCALLTYPE Show(HWND owner) override
    {
        m_script.owner = owner;
        if (m_script.atShow)
            m_script.atShow();
        const HRESULT result = m_calls.enter(QStringLiteral("Show"));
        if (FAILED(result))
            return result;
        std::vector<IFileDialogEvents*> listeners;
        for (const Listener& listener : m_listeners)
            listeners.push_back(listener.events.get());
        if (m_script.whileShown)
            m_script.whileShown(this, listeners);
        return m_closeResult == S_OK ? m_script.showResult : m_closeResult;
    }
    HRESULT STDMETHODCALLTYPE Close(HRESULT result) override
    {
        m_closeResult = result;
        return m_calls.enter(QStringLiteral("Close"));
    }

    HRESULT STDMETHODCALLTYPE SetFileTypes(UINT count, const COMDLG_FILTERSPEC* types) override
    {
        QStringList texts;
        for (UINT i = 0; i < count; ++i)
            texts.append(textOf(types[i].pszName) + QLatin1Char('=') + textOf(types[i].pszSpec));
        return m_calls.enter(QStringLiteral("SetFileTypes(") + texts.join(QLatin1Char('|')) +
                             QLatin1Char(')'));
    }
    HRESULT STDMETHODCALLTYPE Advise(IFileDialogEvents* events, DWORD* cookie) override
    {
        const HRESULT result = m_calls.enter(QStringLiteral("Advise"));
        m_everAdvised.emplace_back(events);
        if (FAILED(result))
            return result;
        m_listeners.push_back({++m_lastCookie, ComPointer<IFileDialogEvents>(events)});
        *cookie = m_lastCookie;
        return result;
    }
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override
    {
        for (std::size_t i = m_listeners.size(); i-- > 0;) {
            if (m_listeners[i].cookie == cookie)
                m_listeners.erase(m_listeners.begin() + std::ptrdiff_t(i));
        }
        return m_calls.enter(call("Unadvise", cookie));
    }
    HRESULT STDMETHODCALLTYPE GetOptions(FILEOPENDIALOGOPTIONS* options) override
    {
        *options = m_script.options;
        return m_calls.enter(QStringLiteral("GetOptions"));
    }
    HRESULT STDMETHODCALLTYPE SetFolder(IShellItem* folder) override
    {
        m_given.emplace_back(folder);
        return m_calls.enter(QStringLiteral("SetFolder(") + pathOf(folder) + QLatin1Char(')'));
    }
    HRESULT STDMETHODCALLTYPE AddPlace(IShellItem* place, FDAP where) override
    {
        m_given.emplace_back(place);
        return m_calls.enter(QStringLiteral("AddPlace(%1,%2)").arg(pathOf(place)).arg(int(where)));
    }
    HRESULT STDMETHODCALLTYPE GetFileName(LPWSTR* name) override
    {
        const HRESULT result = m_calls.enter(QStringLiteral("GetFileName"));
        if (SUCCEEDED(result)) {
            const std::size_t size = std::size_t(m_script.fileNameBox.size() + 1) * sizeof(wchar_t);
            *name = static_cast<LPWSTR>(CoTaskMemAlloc(size));
            std::memcpy(*name, wide(m_script.fileNameBox), size);
        }
        return result;
    }
    HRESULT STDMETHODCALLTYPE GetResult(IShellItem** item) override
    {
        const HRESULT result = m_calls.enter(QStringLiteral("GetResult"));
        return FAILED(result) ? result
                              : SpyShellItem::ofPath(m_script.results.value(0), &m_calls)
                                    ->QueryInterface(IID_PPV_ARGS(item));
    }

    // clang-format off
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetFileTypeIndex(UINT index) override { return m_calls.enter(call("SetFileTypeIndex", DWORD(index))); }
    HRESULT STDMETHODCALLTYPE GetFileTypeIndex(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetOptions(FILEOPENDIALOGOPTIONS options) override { return m_calls.enter(call("SetOptions", DWORD(options))); }
    HRESULT STDMETHODCALLTYPE SetDefaultFolder(IShellItem*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetFolder(IShellItem**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetCurrentSelection(IShellItem**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetFileName(LPCWSTR name) override { return m_calls.enter(call("SetFileName", name)); }
    HRESULT STDMETHODCALLTYPE SetTitle(LPCWSTR title) override { return m_calls.enter(call("SetTitle", title)); }
    HRESULT STDMETHODCALLTYPE SetOkButtonLabel(LPCWSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetFileNameLabel(LPCWSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetDefaultExtension(LPCWSTR text) override { return m_calls.enter(call("SetDefaultExtension", text)); }
    HRESULT STDMETHODCALLTYPE SetClientGuid(REFGUID) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE ClearClientData() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetFilter(IShellItemFilter*) override { return E_NOTIMPL; }
    // clang-format on

protected:
    ~FakeItemDialog() override
    {
        ULONG left = ULONG(m_listeners.size());
        m_listeners.clear();
        for (ComPointer<IFileDialogEvents>& events : m_everAdvised)
            left += referencesAfter(events);
        for (ComPointer<IShellItem>& item : m_given)
            left += referencesAfter(item);
        m_script.leftReferences += left;
    }

    ItemDialogScript& script() { return m_script; }

private:
    struct Listener
    {
        DWORD cookie;
        ComPointer<IFileDialogEvents> events;
    };

    /** Counts as a part of its dialog. */
    class Customize final : public FakeCustomize
    {
    public:
        explicit Customize(FakeItemDialog& dialog)
            : FakeCustomize(dialog.m_calls)
            , m_dialog(dialog)
        {}
        HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** result) override
        {
            return m_dialog.QueryInterface(iid, result);
        }
        ULONG STDMETHODCALLTYPE AddRef() override { return m_dialog.AddRef(); }
        ULONG STDMETHODCALLTYPE Release() override { return m_dialog.Release(); }

    private:
        FakeItemDialog& m_dialog;
    };

    /** Only the interfaces that a dialog is asked for once it is there. */
    HRESULT enterQuery(REFIID iid)
    {
        const char* name = nullptr;
        if (iid == __uuidof(IFileDialogCustomize))
            name = "QueryCustomize";
        else if (iid == __uuidof(IOleWindow))
            name = "QueryWindow";
        else if (iid == __uuidof(IServiceProvider) && m_script.services)
            name = "QueryServices";
        else if (iid == __uuidof(IFileOpenDialog) && m_calls.hasCall(QStringLiteral("Show")))
            name = "QueryOpenDialog";
        return name ? m_calls.enter(QLatin1String(name)) : HRESULT(S_OK);
    }
    static QString pathOf(IShellItem* item) { return nameOfItem(item, SIGDN_FILESYSPATH); }
    static HRESULT hand(IUnknown* object, void** result)
    {
        object->AddRef();
        *result = object;
        return S_OK;
    }

    ItemDialogScript& m_script;
    CallScript& m_calls;
    Customize m_customize;
    DWORD m_lastCookie = 0;
    HRESULT m_closeResult = S_OK;
    std::vector<Listener> m_listeners;
    /** Kept beyond the end of the listening, to see who else still holds them. */
    std::vector<ComPointer<IFileDialogEvents>> m_everAdvised;
    std::vector<ComPointer<IShellItem>> m_given;
};

class FakeOpenDialog final : public FakeItemDialog<IFileOpenDialog>
{
public:
    using FakeItemDialog::FakeItemDialog;

    HRESULT STDMETHODCALLTYPE GetResults(IShellItemArray** items) override
    {
        return array("GetResults", script().results, items);
    }
    HRESULT STDMETHODCALLTYPE GetSelectedItems(IShellItemArray** items) override
    {
        // As the system does it with nothing selected.
        return script().selected.isEmpty() ? E_FAIL
                                           : array("GetSelectedItems", script().selected, items);
    }

private:
    HRESULT array(const char* name, const QStringList& paths, IShellItemArray** items)
    {
        const HRESULT result = script().calls.enter(QLatin1String(name));
        if (SUCCEEDED(result))
            *items = new SpyItemArray(paths, script().calls);
        return result;
    }
};

class FakeSaveDialog final : public FakeItemDialog<IFileSaveDialog>
{
public:
    using FakeItemDialog::FakeItemDialog;

    // clang-format off
    HRESULT STDMETHODCALLTYPE SetSaveAsItem(IShellItem*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetProperties(IPropertyStore*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetCollectedProperties(IPropertyDescriptionList*, BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetProperties(IPropertyStore**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE ApplyProperties(IShellItem*, IPropertyStore*, HWND, IFileOperationProgressSink*) override { return E_NOTIMPL; }
    // clang-format on
};

template <typename Dialog>
RegisteredClass::Create creator(ItemDialogScript& script)
{
    return [&script](REFIID iid, void** result) {
        const HRESULT created = script.calls.enter(QStringLiteral("Create"));
        return FAILED(created)
                   ? created
                   : ComPointer<Dialog>::adopt(new Dialog(script))->QueryInterface(iid, result);
    };
}

} // namespace

FakeItemDialogs::FakeItemDialogs(ItemDialogScript& script)
    : m_openClass(CLSID_FileOpenDialog, creator<FakeOpenDialog>(script))
    , m_saveClass(CLSID_FileSaveDialog, creator<FakeSaveDialog>(script))
{}

} // namespace Zorvane::Testing
