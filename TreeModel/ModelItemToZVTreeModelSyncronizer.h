#pragma once

#include "Host/Identifiers/IDCombiner.h"
#include "TreeModel/ModelItem.h"
#include "TreeModel/ModelRoot.h"
#include "TreeModel/ZVTreeItemDataProviderInterface.h"
#include "UiToolsExport.h"

#include <QtCore/Qt>

#include <memory>
#include <vector>

namespace Zorvane {
class ZVTreeViewItem;
class ZVTreeViewModel;
} // namespace Zorvane

namespace Zorvane::GenericTreeViewModelHandling {

/**
 * Makes a tree view model show a `ModelRoot` with few row changes.
 *
 * The model's order is authoritative: for each position only the rows there and behind are
 * candidates, the first with an equal id wins and is moved into place, a new row is made where
 * there is none, and rows that nobody claimed end up behind and are deleted. So a row lives on as
 * long as its id does, and with it its place in every view. Rows found in place get the item's
 * name as text; rows moved keep the text they have.
 *
 * Everything else a row shows is written by one data provider, which has to be set before any of
 * the three operations. Views learn of all row changes of one call together, before the provider
 * writes. Several views may be served in turn.
 *
 * Rows of derived classes are asked for their id by `data()` and should keep it meanwhile: a row is
 * taken for an item only if it carries the item's id when it is looked for, and one that comes by
 * that id only during the call may be replaced by a new row. Other rows are not affected.
 *
 * Not supported: trees deeper than the stack allows (some ten thousand levels), rows whose `data()`
 * or `setData()` insert, take or delete rows, use from a thread other than the view's.
 */
class ZORVANE_UITOOLS_EXPORT ModelItemToZVTreeModelSyncronizer
{
public:
    /** Where rows carry their id: column 0, under this role. */
    static constexpr int DefaultIdRole = 3394;

    explicit ModelItemToZVTreeModelSyncronizer(int idRole = DefaultIdRole);
    ~ModelItemToZVTreeModelSyncronizer();

    /**
     * Replaces the data provider. No callback is registered with it: whoever owns the view
     * registers one and calls `updateViewModelItems` from it.
     */
    void setDataProvider(std::shared_ptr<ZVTreeItemDataProviderInterface> dataProvider);

    /** Brings the rows in line; only the rows made by this call get data from the provider. */
    void syncronizeViewModel(ZVTreeViewModel* viewModel, std::shared_ptr<ModelRoot> root);
    /** Brings the rows in line; then every row that carries an id gets data from the provider. */
    void syncronizeAndUpdateViewModel(ZVTreeViewModel* viewModel, std::shared_ptr<ModelRoot> root);
    /** Leaves the rows as they are and lets the provider refresh those that carry an id. */
    void updateViewModelItems(ZVTreeViewModel* viewModel);

private:
    using Items = std::vector<std::shared_ptr<ModelItem>>;
    struct SearchMemory;
    using RowList = ZVTreeItemDataProviderInterface::RowList;

    RowList align(ZVTreeViewModel* viewModel, const ModelRoot& root);
    RowList identifiedRows(ZVTreeViewModel* viewModel);
    void synchronize(ZVTreeViewItem* parent, const Items& items);
    void synchronizeChildren(ZVTreeViewItem* row, const ModelItem& item);
    int placeRows(ZVTreeViewItem* parent, const Items& items);
    void appendNewRows(ZVTreeViewItem* parent, const Items& items, int first);
    ZVTreeViewItem* createListedRow(const ModelItem& item);
    ZVTreeViewItem* createViewItemTree(const ModelItem& item);
    void writeText(ZVTreeViewItem* row, const ModelItem& item) const;
    void gatherItemsRecursively(ZVTreeViewItem* parent);

    const int m_idColumn = 0;
    const int m_idRole;
    const int m_textColumn = 0;
    ZVTreeViewModel* m_viewModel = nullptr;
    std::shared_ptr<ZVTreeItemDataProviderInterface> m_dataProvider;
    /** Rows for the data provider while they are gathered; empty between calls. */
    RowList m_itemList;
    Qt::ItemFlags m_newItemFlags;
    /** Memory of earlier searches, as much as the longest list needed. */
    std::unique_ptr<SearchMemory> m_searchMemory;
};

} // namespace Zorvane::GenericTreeViewModelHandling
