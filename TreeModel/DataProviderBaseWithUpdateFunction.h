#pragma once

#include "TreeModel/ZVTreeItemDataProviderInterface.h"
#include "UiToolsExport.h"

#include <functional>

namespace Zorvane::GenericTreeViewModelHandling {

/**
 * Base of data providers whose data changes at run time. A change is announced by
 * `callUpdateFunction`; the refresh that follows writes the data of all rows anew, once.
 *
 * A class that overrides `updateDataOf` to write without an announcement overrides `isUpdateDue`,
 * too.
 *
 * Not supported: refreshing only some rows, gathering announcements, several views (the first one
 * refreshed takes the mark away).
 */
class ZORVANE_UITOOLS_EXPORT DataProviderBaseWithUpdateFunction
    : public ZVTreeItemDataProviderInterface,
      public ZVTreeItemUpdateStateInterface
{
public:
    /** Calls `addDataTo` if a change was announced since the last time, else does nothing. */
    void updateDataOf(const RowList& rows) override;
    void registerUpdateCallback(std::function<void()> callback) override;
    bool isUpdateDue() const override { return m_updatePending; }

protected:
    /** To be called by every setter that changes what is written. */
    void callUpdateFunction();
    bool isUpdatePending() const { return m_updatePending; }

private:
    std::function<void()> m_updateFunction;
    bool m_updatePending = false;
};

} // namespace Zorvane::GenericTreeViewModelHandling
