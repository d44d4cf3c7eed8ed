#pragma once

#include "Host/Identifiers/IDCombiner.h"
#include "Host/Signals/Signal.h"
#include "UiToolsExport.h"

namespace Zorvane::GenericTreeViewModelHandling {

/**
 * Decides, id by id, what belongs in a model. Leaf providers ask it while they build their tree,
 * between `beginFiltering` and `endFiltering`. Held by shared pointer.
 *
 * A filter that implements only the one `accept` it must writes
 * `using ModelItemFilterInterface::accept;`, so that callers of its own type see all three.
 *
 * Not supported: decisions that need more than the id, such as the item's name or place; telling
 * which ids a change concerns; use from several threads.
 */
class ZORVANE_UITOOLS_EXPORT ModelItemFilterInterface
{
public:
    virtual ~ModelItemFilterInterface() = default;

    /** Asks the combined id's overload unless a filter knows better. */
    virtual bool accept(const GUIdentifier& id);
    /** Asks the combined id's overload unless a filter knows better. */
    virtual bool accept(const Identifier& id);
    virtual bool accept(const IDCombiner& id) = 0;
    /** Before a series of `accept` calls: the place to prepare look-up tables. */
    virtual void beginFiltering();
    /** After the series: the place to drop them. */
    virtual void endFiltering();
    /** The slot is called each time the filter's criteria have changed. */
    virtual Signals::Connection connectToChanged(const Signals::Slot<void()>& slot) = 0;
};

} // namespace Zorvane::GenericTreeViewModelHandling
