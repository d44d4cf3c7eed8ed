#include "Workbench/Tree/KindFilter.h"

#include "Workbench/Tree/DesignCatalog.h"

namespace Zorvane::Workbench {

KindFilter::KindFilter(const DesignCatalog& catalog)
    : m_catalog(catalog)
{}

void KindFilter::setShown(ObjectKind kind, bool shown)
{
    const bool differs = shown ? m_hidden.erase(kind) > 0 : m_hidden.insert(kind).second;
    if (differs)
        m_changed();
}

void KindFilter::setToolSideShown(ToolSide side, bool shown)
{
    const bool differs = shown ? m_hiddenSides.erase(side) > 0 : m_hiddenSides.insert(side).second;
    if (differs)
        m_changed();
}

bool KindFilter::accept(const IDCombiner& id)
{
    if (!isActive())
        return true;
    const CatalogEntry* entry = m_catalog.find(id);
    return entry != nullptr && isShown(entry->kind) && m_hiddenSides.count(entry->toolSide) == 0;
}

Signals::Connection KindFilter::connectToChanged(const Signals::Slot<void()>& slot)
{
    return m_changed.connect(slot);
}

} // namespace Zorvane::Workbench
