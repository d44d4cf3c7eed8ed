#pragma once

#include "Host/Signals/Signal.h"
#include "TreeModel/ModelItemFilterInterface.h"
#include "UiToolsExport.h"

#include <memory>
#include <vector>

namespace Zorvane::GenericTreeViewModelHandling {

/**
 * Several filters that act as one. It announces a change whenever one of them does, and its
 * subscriptions to them end with it. A filter listed twice is asked twice and heard once.
 *
 * Not supported: null filters, copying, changing the combination.
 */
class ZORVANE_UITOOLS_EXPORT ModelItemFilterCombiner : public ModelItemFilterInterface
{
public:
    /** Every value but `AllMustAccept` means that one acceptance is enough. */
    enum Combination
    {
        AnyMayAccept = 1,
        AllMustAccept = 2
    };

    explicit ModelItemFilterCombiner(Combination combination);
    ModelItemFilterCombiner(const ModelItemFilterCombiner&) = delete;
    ModelItemFilterCombiner& operator=(const ModelItemFilterCombiner&) = delete;
    ~ModelItemFilterCombiner() override;

    /** Replaces the filters and listens to the new ones only; announces nothing by itself. */
    void setFilterToCombine(const std::vector<std::shared_ptr<ModelItemFilterInterface>>& filters);
    void setFilterToCombine(std::vector<std::shared_ptr<ModelItemFilterInterface>>&& filters);

    /**
     * Each overload asks the same one of the filters, in order, until the answer is certain.
     * Without filters, everything is accepted where all must accept, else nothing.
     */
    bool accept(const GUIdentifier& id) override;
    bool accept(const Identifier& id) override;
    bool accept(const IDCombiner& id) override;
    void beginFiltering() override;
    void endFiltering() override;
    Signals::Connection connectToChanged(const Signals::Slot<void()>& slot) override;

private:
    template <typename Id>
    bool acceptCombined(const Id& id);
    void disconnectFilters();

    std::vector<std::shared_ptr<ModelItemFilterInterface>> m_filters;
    int m_combination;
    // Shared to be the tracking object of the subscriptions as well: it outlives an announcement
    // under way even if a listener lets go of the combiner.
    std::shared_ptr<Signals::Signal<void()>> m_changed;
    std::vector<Signals::Connection> m_connections;
};

} // namespace Zorvane::GenericTreeViewModelHandling
