#include "TreeModel/DataProviderBaseWithUpdateFunction.h"

#include <utility>

namespace Zorvane::GenericTreeViewModelHandling {

bool isUpdateDue(const ZVTreeItemDataProviderInterface& provider)
{
    const auto* state = dynamic_cast<const ZVTreeItemUpdateStateInterface*>(&provider);
    return !state || state->isUpdateDue();
}

void DataProviderBaseWithUpdateFunction::updateDataOf(const RowList& rows)
{
    if (!m_updatePending)
        return;
    addDataTo(rows);
    m_updatePending = false;
}

void DataProviderBaseWithUpdateFunction::registerUpdateCallback(std::function<void()> callback)
{
    m_updateFunction = std::move(callback);
}

void DataProviderBaseWithUpdateFunction::callUpdateFunction()
{
    m_updatePending = true;
    // A copy: the callback may register another one or let go of this provider.
    if (const auto updateFunction = m_updateFunction)
        updateFunction();
}

} // namespace Zorvane::GenericTreeViewModelHandling
