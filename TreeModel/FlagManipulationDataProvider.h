#pragma once

#include "TreeModel/ZVTreeItemDataProviderInterface.h"
#include "UiToolsExport.h"

namespace Zorvane::GenericTreeViewModelHandling {

/**
 * Adds flags to rows and takes flags away from them; a flag told for both is added. Changed wishes
 * apply to rows created or refreshed from then on; nothing is announced.
 *
 * Not supported: flags for one column only (a row's flags are those of all its columns), giving
 * rows back the flags they had.
 */
class ZORVANE_UITOOLS_EXPORT FlagManipulationDataProvider : public ZVTreeItemDataProviderInterface
{
public:
    void setFlagsToAdd(Qt::ItemFlags flags) { m_flagsToAdd = flags; }
    void setFlagsToRemove(Qt::ItemFlags flags) { m_flagsToRemove = flags; }

    /** None: the flags are changed on the rows instead. */
    Qt::ItemFlags getItemFlags() override;
    void addDataTo(const RowList& rows) override;
    /** The same as `addDataTo`, each time. */
    void updateDataOf(const RowList& rows) override;
    /** Drops the callback: there is never anything to tell. */
    void registerUpdateCallback(std::function<void()> callback) override;

private:
    Qt::ItemFlags m_flagsToAdd = Qt::NoItemFlags;
    Qt::ItemFlags m_flagsToRemove = Qt::NoItemFlags;
};

} // namespace Zorvane::GenericTreeViewModelHandling
