#include "FileDialogs/Windows/DpiAwarenessScope.h"

namespace Zorvane {

DpiAwarenessScope::DpiAwarenessScope(SetContext* set)
    : m_set(set)
{
    if (m_set)
        m_previous = m_set(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
}

DpiAwarenessScope::~DpiAwarenessScope()
{
    // Null tells that the change was refused: there is nothing to restore.
    if (m_previous)
        m_set(m_previous);
}

} // namespace Zorvane
