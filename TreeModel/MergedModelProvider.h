#pragma once

#include "TreeModel/ModelProviderInterface.h"
#include "UiToolsExport.h"

#include <functional>
#include <memory>
#include <vector>

namespace Zorvane::GenericTreeViewModelHandling {

/**
 * Puts the top-level items of several models one after the other, in the order in which their
 * providers were added.
 *
 * The items are shared, not copied. An id that two models deliver occurs twice; nothing is
 * combined or sorted. A provider that gives no root counts as an empty model.
 *
 * Not supported: null providers, removing a provider.
 */
class ZORVANE_UITOOLS_EXPORT MergedModelProvider : public ModelProviderInterface
{
public:
    MergedModelProvider() = default;

    /** Appends the providers; a callback registered before reaches them too. */
    void addSubModelProvider(const std::vector<std::shared_ptr<ModelProviderInterface>>& providers);

    std::shared_ptr<ModelRoot> provideModel() override;
    /** Hands the callback on to all providers held; an empty one is kept, but not handed on. */
    void registerUpdateCallback(std::function<void()> callback) override;

private:
    std::vector<std::shared_ptr<ModelProviderInterface>> m_subModelProviders;
    std::function<void()> m_updateCallback;
};

} // namespace Zorvane::GenericTreeViewModelHandling
