#pragma once

#include "TreeModel/LifeToken.h"
#include "TreeModel/ModelRoot.h"
#include "TreeModel/ZVTreeItemDataProviderInterface.h"
#include "UiToolsExport.h"

#include <map>
#include <memory>

namespace Zorvane {
class ZVTreeViewModel;
class ZVTreeViewRefresh;
} // namespace Zorvane

namespace Zorvane::GenericTreeViewModelHandling {

/**
 * Makes a tree view model show a `ModelRoot` with few row changes.
 *
 * The model's order is authoritative: for each position only the rows there and behind are
 * candidates, the first with an equal id wins and is moved into place, a new row is made where
 * there is none, and rows that no item claims are deleted. So a row lives on as long as its id
 * does, and with it its place in every view. Rows found in place get the item's name as text; rows
 * moved keep the text they have.
 *
 * An item that is handed on again, the very object, is not looked into: a refresh costs what has
 * changed. Everything else a row shows is written by one data provider. Views hear of all row
 * changes of one call together, before the provider writes. Several views may be served in turn.
 *
 * A synchronization that is asked for while the model is being refreshed, as a slot or a data
 * provider may do, is put off until that is done; of several, the latest is done. Model, root and
 * data provider have to be there, which is asserted.
 *
 * Rows of derived classes are asked for their id by `data()`, before anything is changed. Trees may
 * be of any depth. If a row or a provider throws, rows stay as they were or are in line already.
 *
 * Not supported: rows whose `data()` inserts, takes or deletes rows; deleting the synchronizer, the
 * model or a row in a slot of a refresh (asserted); use from a thread other than the view's.
 */
class ZORVANE_UITOOLS_EXPORT ModelItemToZVTreeModelSyncronizer
{
public:
    /** Where rows carry their id: column 0, under this role. */
    static constexpr int DefaultIdRole = 3394;

    explicit ModelItemToZVTreeModelSyncronizer(int idRole = DefaultIdRole);
    ModelItemToZVTreeModelSyncronizer(const ModelItemToZVTreeModelSyncronizer&) = delete;
    ModelItemToZVTreeModelSyncronizer& operator=(const ModelItemToZVTreeModelSyncronizer&) = delete;
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
    using RowList = ZVTreeItemDataProviderInterface::RowList;
    struct Request
    {
        std::shared_ptr<ModelRoot> root;
        bool updatesAll;
    };

    void refresh(ZVTreeViewModel* viewModel, const Request& request);
    void putOff(ZVTreeViewModel* viewModel, const Request& request);
    RowList align(ZVTreeViewModel* viewModel, const ModelRoot& root, ZVTreeViewRefresh& refresh);
    RowList identifiedRows(const ZVTreeViewModel* viewModel) const;

    const int m_idColumn = 0;
    const int m_idRole;
    std::shared_ptr<ZVTreeItemDataProviderInterface> m_dataProvider;
    bool m_isRunning = false;
    std::map<ZVTreeViewModel*, std::weak_ptr<Request>> m_putOff;
    LifeToken m_life;
};

} // namespace Zorvane::GenericTreeViewModelHandling
