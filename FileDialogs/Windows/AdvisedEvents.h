#pragma once

#include "Files/Windows/ComPointer.h"

#include <utility>

#include <windows.h>

#include <shobjidl.h>

namespace Zorvane {

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
