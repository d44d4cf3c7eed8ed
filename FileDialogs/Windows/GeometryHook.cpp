#include "FileDialogs/Windows/GeometryHook.h"

#include "FileDialogs/FileDialogConfiguration.h"
#include "FileDialogs/ScreenScale.h"

#include <boost/thread/lock_types.hpp>
#include <boost/thread/shared_mutex.hpp>

#include <map>

namespace Zorvane {

namespace {

/** Whose geometry each hook records. */
class Registry
{
public:
    void add(HWINEVENTHOOK hook, FileDialogConfiguration* configuration)
    {
        const boost::unique_lock<boost::shared_mutex> lock(m_mutex);
        m_configurations[hook] = configuration;
    }

    void remove(HWINEVENTHOOK hook)
    {
        const boost::unique_lock<boost::shared_mutex> lock(m_mutex);
        m_configurations.erase(hook);
    }

    FileDialogConfiguration* find(HWINEVENTHOOK hook)
    {
        const boost::shared_lock<boost::shared_mutex> lock(m_mutex);
        const auto found = m_configurations.find(hook);
        return found == m_configurations.end() ? nullptr : found->second;
    }

private:
    boost::shared_mutex m_mutex;
    std::map<HWINEVENTHOOK, FileDialogConfiguration*> m_configurations;
};

Registry& registry()
{
    static Registry registry;
    return registry;
}

void CALLBACK record(HWINEVENTHOOK hook, DWORD event, HWND window, LONG object, LONG, DWORD, DWORD)
{
    // The lock is free again before the configuration is called: it may open a dialog.
    FileDialogConfiguration* configuration = registry().find(hook);
    const bool isEnd = event == EVENT_SYSTEM_MOVESIZEEND || event == EVENT_SYSTEM_DIALOGEND;
    RECT rect;
    if (!configuration || !isEnd || object != OBJID_WINDOW || !GetWindowRect(window, &rect))
        return;
    configuration->storeFileDialogGeometry(inQtPixels(
        QRect(QPoint(rect.left, rect.top), QPoint(rect.right, rect.bottom)), scaledScreens()));
}

} // namespace

GeometryHook::GeometryHook(FileDialogConfiguration& configuration)
    : m_hook(SetWinEventHook(EVENT_SYSTEM_MOVESIZEEND, EVENT_SYSTEM_DIALOGEND, nullptr, record, 0,
                             0, WINEVENT_OUTOFCONTEXT))
{
    if (m_hook)
        registry().add(m_hook, &configuration);
}

GeometryHook::~GeometryHook()
{
    if (!m_hook)
        return;
    registry().remove(m_hook);
    UnhookWinEvent(m_hook);
}

} // namespace Zorvane
