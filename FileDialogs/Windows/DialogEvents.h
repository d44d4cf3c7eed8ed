#pragma once

#include "Files/Windows/ComObject.h"
#include "Files/Windows/ComPointer.h"

#include <utility>

#include <windows.h>

#include <shobjidl.h>

namespace Zorvane {

/** Listens to a dialog and leaves everything to it. Subclasses override what they care for. */
template <typename... OtherInterfaces>
class DialogEvents : public ComObject<IFileDialogEvents, OtherInterfaces...>
{
public:
    HRESULT STDMETHODCALLTYPE OnFileOk(IFileDialog*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnFolderChanging(IFileDialog*, IShellItem*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnFolderChange(IFileDialog*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnSelectionChange(IFileDialog*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnTypeChange(IFileDialog*) override { return S_OK; }
    /** The dialog asks the user itself, as about overwriting. */
    HRESULT STDMETHODCALLTYPE OnShareViolation(IFileDialog*, IShellItem*,
                                               FDE_SHAREVIOLATION_RESPONSE*) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE OnOverwrite(IFileDialog*, IShellItem*,
                                          FDE_OVERWRITE_RESPONSE*) override
    {
        return E_NOTIMPL;
    }
};

/** Keeps a listener at a dialog as long as it lives, once there is one. */
class AdvisedEvents
{
public:
    explicit AdvisedEvents(IFileDialog* dialog)
        : m_dialog(dialog)
    {}
    ~AdvisedEvents()
    {
        if (m_events)
            m_dialog->Unadvise(m_cookie);
    }

    AdvisedEvents(const AdvisedEvents&) = delete;
    AdvisedEvents& operator=(const AdvisedEvents&) = delete;

    /** Takes over the reference; null stands for a listener that there was no memory for. */
    HRESULT advise(IFileDialogEvents* newEvents)
    {
        auto events = ComPointer<IFileDialogEvents>::adopt(newEvents);
        if (!events)
            return E_OUTOFMEMORY;
        const HRESULT result = m_dialog->Advise(events.get(), &m_cookie);
        if (SUCCEEDED(result))
            m_events = std::move(events);
        return result;
    }

private:
    ComPointer<IFileDialog> m_dialog;
    ComPointer<IFileDialogEvents> m_events;
    DWORD m_cookie = 0;
};

} // namespace Zorvane
