#pragma once

#include "TreeModel/ModelRoot.h"
#include "UiToolsExport.h"

#include <functional>
#include <memory>

namespace Zorvane::GenericTreeViewModelHandling {

/**
 * Produces, on request, the tree that a view should show, and tells its consumer when that answer
 * has changed. Held by shared pointer and used from the view's thread.
 *
 * An application writes leaf providers over its own data and joins them by the providers of this
 * folder; the consumer talks to the outermost one only.
 *
 * Not supported: several consumers of one provider, telling what has changed, use from several
 * threads.
 */
class ZORVANE_UITOOLS_EXPORT ModelProviderInterface
{
public:
    ModelProviderInterface() = default;
    ModelProviderInterface(const ModelProviderInterface&) = default;
    ModelProviderInterface& operator=(const ModelProviderInterface&) = default;
    virtual ~ModelProviderInterface() = default;

    /** A tree as of now, not to be changed any more by whoever built it. */
    virtual std::shared_ptr<ModelRoot> provideModel() = 0;
    /**
     * What to call, synchronously, each time `provideModel` would give another answer. Replaces the
     * callback registered before. An empty one ends the telling of a leaf; a provider made of
     * others may keep it to itself, and its leaves then go on calling the former one.
     */
    virtual void registerUpdateCallback(std::function<void()> callback) = 0;
};

} // namespace Zorvane::GenericTreeViewModelHandling
