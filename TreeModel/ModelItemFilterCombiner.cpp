#include "TreeModel/ModelItemFilterCombiner.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace Zorvane::GenericTreeViewModelHandling {

ModelItemFilterCombiner::ModelItemFilterCombiner(Combination combination)
    : m_combination(combination)
    , m_changed(std::make_shared<Signals::Signal<void()>>())
{}

ModelItemFilterCombiner::~ModelItemFilterCombiner() = default;

void ModelItemFilterCombiner::setFilterToCombine(
    const std::vector<std::shared_ptr<ModelItemFilterInterface>>& filters)
{
    setFilterToCombine(std::vector<std::shared_ptr<ModelItemFilterInterface>>(filters));
}

void ModelItemFilterCombiner::setFilterToCombine(
    std::vector<std::shared_ptr<ModelItemFilterInterface>>&& filters)
{
    disconnectFilters();
    m_filters = std::move(filters);
    // A filter that stands in the list twice is asked twice, but announces a change once.
    std::unordered_set<const ModelItemFilterInterface*> known;
    for (const auto& filter : m_filters) {
        if (!known.insert(filter.get()).second)
            continue;
        Signals::Slot<void()> slot([changed = m_changed.get()] { (*changed)(); });
        slot.track(m_changed);
        m_connections.push_back(filter->connectToChanged(slot));
    }
}

bool ModelItemFilterCombiner::accept(const GUIdentifier& id)
{
    return acceptCombined(id);
}

bool ModelItemFilterCombiner::accept(const Identifier& id)
{
    return acceptCombined(id);
}

bool ModelItemFilterCombiner::accept(const IDCombiner& id)
{
    return acceptCombined(id);
}

void ModelItemFilterCombiner::beginFiltering()
{
    for (const auto& filter : m_filters)
        filter->beginFiltering();
}

void ModelItemFilterCombiner::endFiltering()
{
    for (const auto& filter : m_filters)
        filter->endFiltering();
}

Signals::Connection ModelItemFilterCombiner::connectToChanged(const Signals::Slot<void()>& slot)
{
    return m_changed->connect(slot, Signals::ConnectPosition::AtBack);
}

template <typename Id>
bool ModelItemFilterCombiner::acceptCombined(const Id& id)
{
    const auto accepts = [&id](const auto& filter) { return filter->accept(id); };
    return m_combination == AllMustAccept
               ? std::all_of(m_filters.begin(), m_filters.end(), accepts)
               : std::any_of(m_filters.begin(), m_filters.end(), accepts);
}

void ModelItemFilterCombiner::disconnectFilters()
{
    for (const Signals::Connection& connection : m_connections)
        connection.disconnect();
    m_connections.clear();
}

} // namespace Zorvane::GenericTreeViewModelHandling
