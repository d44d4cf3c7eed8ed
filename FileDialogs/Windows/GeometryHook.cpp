#include "FileDialogs/Windows/GeometryHook.h"

#include "FileDialogs/FileDialogConfiguration.h"
#include "FileDialogs/ScreenGeometry.h"
#include "FileDialogs/Windows/DialogGuard.h"

#include <boost/thread/lock_types.hpp>
#include <boost/thread/shared_mutex.hpp>

#include <map>

namespace Zorvane {

namespace {

struct Recording
{
    FileDialogConfiguration* configuration = nullptr;
    DialogGuard* guard = nullptr;
};

/** Whose geometry each hook records. */
class Registry
{
public:
    void add(HWINEVENTHOOK hook, const Recording& recording)
    {
        const boost::unique_lock<boost::shared_mutex> lock(m_mutex);
        m_recordings[hook] = recording;
    }

    void remove(HWINEVENTHOOK hook)
    {
        const boost::unique_lock<boost::shared_mutex> lock(m_mutex);
        m_recordings.erase(hook);
    }

    /** Without a configuration for a hook that is not, or no longer, here. */
    Recording find(HWINEVENTHOOK hook)
    {
        const boost::shared_lock<boost::shared_mutex> lock(m_mutex);
        const auto found = m_recordings.find(hook);
        return found == m_recordings.end() ? Recording() : found->second;
    }

private:
    boost::shared_mutex m_mutex;
    std::map<HWINEVENTHOOK, Recording> m_recordings;
};

Registry& registry()
{
    static Registry registry;
    return registry;
}

void CALLBACK record(HWINEVENTHOOK hook, DWORD event, HWND window, LONG object, LONG, DWORD, DWORD)
{
    // The lock is free again before the configuration is called: it may open a dialog.
    const Recording recording = registry().find(hook);
    const bool isEnd = event == EVENT_SYSTEM_MOVESIZEEND || event == EVENT_SYSTEM_DIALOGEND;
    RECT rect;
    if (!recording.configuration || !isEnd || object != OBJID_WINDOW ||
        !GetWindowRect(window, &rect))
        return;
    const QRect frame =
        inQtPixels(QRect(rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top),
                   currentScreens());
    // Stored with right and bottom as the system gives them, beyond the window, where QRect counts
    // the last pixel: settings have held these since there are any.
    recording.guard->runBetweenMessages([&] {
        recording.configuration->storeFileDialogGeometry(frame.adjusted(0, 0, 1, 1));
        recording.configuration->storeWindowSize(frame.size());
    });
}

} // namespace

GeometryHook::GeometryHook(FileDialogConfiguration& configuration, DialogGuard& guard,
                           const WindowEventFunctions& windowEvents)
    : m_windowEvents(windowEvents)
    , m_hook(m_windowEvents.hook(EVENT_SYSTEM_MOVESIZEEND, EVENT_SYSTEM_DIALOGEND, nullptr, record,
                                 0, 0, WINEVENT_OUTOFCONTEXT))
{
    if (m_hook)
        registry().add(m_hook, {&configuration, &guard});
}

GeometryHook::~GeometryHook()
{
    if (!m_hook)
        return;
    registry().remove(m_hook);
    m_windowEvents.unhook(m_hook);
}

} // namespace Zorvane
