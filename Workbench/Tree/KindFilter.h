#pragma once

#include "Host/Signals/Signal.h"
#include "TreeModel/ModelItemFilterInterface.h"
#include "Workbench/Tree/ObjectKind.h"

#include <set>

namespace Zorvane::Workbench {

class DesignCatalog;

/**
 * Accepts objects of the kinds not hidden, and tools of the sides not hidden. At first none is.
 * The catalog must outlive it.
 */
class KindFilter : public GenericTreeViewModelHandling::ModelItemFilterInterface
{
public:
    explicit KindFilter(const DesignCatalog& catalog);

    /** Announced when it makes a difference. */
    void setShown(ObjectKind kind, bool shown);
    void setToolSideShown(ToolSide side, bool shown);
    bool isShown(ObjectKind kind) const { return m_hidden.count(kind) == 0; }
    bool isActive() const { return !m_hidden.empty() || !m_hiddenSides.empty(); }

    using ModelItemFilterInterface::accept;
    bool accept(const IDCombiner& id) override;
    Signals::Connection connectToChanged(const Signals::Slot<void()>& slot) override;

private:
    const DesignCatalog& m_catalog;
    std::set<ObjectKind> m_hidden;
    std::set<ToolSide> m_hiddenSides;
    Signals::Signal<void()> m_changed;
};

} // namespace Zorvane::Workbench
