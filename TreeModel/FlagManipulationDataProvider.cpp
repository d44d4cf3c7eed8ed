#include "TreeModel/FlagManipulationDataProvider.h"

#include "Host/Widgets/ZVTreeViewItem.h"

namespace Zorvane::GenericTreeViewModelHandling {

Qt::ItemFlags FlagManipulationDataProvider::getItemFlags()
{
    return Qt::NoItemFlags;
}

void FlagManipulationDataProvider::addDataTo(const RowList& rows)
{
    for (const auto& [id, row] : rows)
        row->setFlags((row->flags() & ~m_flagsToRemove) | m_flagsToAdd);
}

void FlagManipulationDataProvider::updateDataOf(const RowList& rows)
{
    addDataTo(rows);
}

void FlagManipulationDataProvider::registerUpdateCallback(std::function<void()> /*callback*/) {}

} // namespace Zorvane::GenericTreeViewModelHandling
