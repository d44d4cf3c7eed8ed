#pragma once

#include "Host/Identifiers/IDCombiner.h"
#include "UiToolsExport.h"

#include <functional>
#include <string>

namespace Zorvane::GenericTreeViewModelHandling {

/**
 * Where a `ZVTreeItemTextProvider` takes the texts of a column from. Held by shared pointer and
 * used from the view's thread.
 *
 * Not supported: one source for several text providers (the last one takes over its callback),
 * telling which texts have changed.
 */
class ZORVANE_UITOOLS_EXPORT ZVTextProviderInterface
{
public:
    virtual ~ZVTextProviderInterface() = default;

    /** The text for the item of this id, in UTF-8. */
    virtual std::string getText(const IDCombiner& id) = 0;
    /** What to call, synchronously, each time texts have changed; replaces the one before. */
    virtual void registerTextChangedCallback(std::function<void()> callback) = 0;
};

} // namespace Zorvane::GenericTreeViewModelHandling
