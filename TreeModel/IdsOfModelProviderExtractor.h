#pragma once

#include "Host/Identifiers/IDCombiner.h"
#include "TreeModel/ModelProviderInterface.h"
#include "UiToolsExport.h"

#include <functional>
#include <memory>
#include <vector>

namespace Zorvane::GenericTreeViewModelHandling {

/**
 * Passes a model through unchanged and records the ids of all its items, sorted, for consumers
 * that need to know what a tree shows.
 *
 * Not supported: telling holders of the collection when it changes; register with the chain.
 */
class ZORVANE_UITOOLS_EXPORT IdsOfModelProviderExtractor : public ModelProviderInterface
{
public:
    IdsOfModelProviderExtractor();
    /** The copy records into a collection of its own. */
    IdsOfModelProviderExtractor(const IdsOfModelProviderExtractor& other);
    IdsOfModelProviderExtractor& operator=(const IdsOfModelProviderExtractor& other);

    /** Replaces the input, null for none; a callback registered before reaches the new one. */
    void setInputModelProvider(std::shared_ptr<ModelProviderInterface> provider);
    /**
     * The ids of the model provided last, ascending, each as often as it occurs. Always the same
     * object: whoever holds it sees the ids of later models in it.
     */
    std::shared_ptr<const std::vector<IDCombiner>> getCollection() const { return m_collection; }

    /** The input's own root; null without an input. */
    std::shared_ptr<ModelRoot> provideModel() override;
    /** Hands the callback on to the input, also an empty one. */
    void registerUpdateCallback(std::function<void()> callback) override;

private:
    std::function<void()> m_updateCallback;
    std::shared_ptr<ModelProviderInterface> m_inputModelProvider;
    std::shared_ptr<std::vector<IDCombiner>> m_collection;
};

} // namespace Zorvane::GenericTreeViewModelHandling
