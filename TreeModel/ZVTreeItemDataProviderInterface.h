#pragma once

#include "Host/Identifiers/IDCombiner.h"
#include "UiToolsExport.h"

#include <QtCore/Qt>

#include <functional>
#include <utility>
#include <vector>

namespace Zorvane {
class ZVTreeViewItem;
}

namespace Zorvane::GenericTreeViewModelHandling {

/**
 * Writes what rows of a tree view show beyond their text: further columns, icons, states, flags.
 * Held by shared pointer and used from the view's thread.
 *
 * Rows come as pairs of the id of the item shown and the row, sorted by id. They belong to the
 * view and may only be used during the call.
 *
 * Not supported: several consumers of one provider, telling which rows have changed, taking data
 * out of rows again, inserting or removing rows during a call.
 */
class ZORVANE_UITOOLS_EXPORT ZVTreeItemDataProviderInterface
{
public:
    using RowList = std::vector<std::pair<IDCombiner, ZVTreeViewItem*>>;

    ZVTreeItemDataProviderInterface() = default;
    ZVTreeItemDataProviderInterface(const ZVTreeItemDataProviderInterface&) = default;
    ZVTreeItemDataProviderInterface& operator=(const ZVTreeItemDataProviderInterface&) = default;
    virtual ~ZVTreeItemDataProviderInterface() = default;

    /** The flags this provider wants on every new row. */
    virtual Qt::ItemFlags getItemFlags() = 0;
    /** Writes this provider's data into the rows. */
    virtual void addDataTo(const RowList& rows) = 0;
    /** Writes it anew where it has changed since. */
    virtual void updateDataOf(const RowList& rows) = 0;
    /**
     * What to call, synchronously, each time this provider's data has changed. Replaces the
     * callback registered before; an empty one ends it.
     */
    virtual void registerUpdateCallback(std::function<void()> callback) = 0;
};

/**
 * What a data provider may implement besides, so that no rows are gathered for an `updateDataOf`
 * that would do nothing. A provider that does not is asked to update every time.
 */
class ZORVANE_UITOOLS_EXPORT ZVTreeItemUpdateStateInterface
{
public:
    ZVTreeItemUpdateStateInterface() = default;
    ZVTreeItemUpdateStateInterface(const ZVTreeItemUpdateStateInterface&) = default;
    ZVTreeItemUpdateStateInterface& operator=(const ZVTreeItemUpdateStateInterface&) = default;
    virtual ~ZVTreeItemUpdateStateInterface() = default;

    /** Whether `updateDataOf` would do anything. */
    virtual bool isUpdateDue() const = 0;
};

/** False only if the provider says so. */
ZORVANE_UITOOLS_EXPORT bool isUpdateDue(const ZVTreeItemDataProviderInterface& provider);

} // namespace Zorvane::GenericTreeViewModelHandling
