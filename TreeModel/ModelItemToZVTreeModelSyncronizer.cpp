#include "TreeModel/ModelItemToZVTreeModelSyncronizer.h"

#include "Host/Widgets/ZVTreeViewItem.h"
#include "Host/Widgets/ZVTreeViewModel.h"
#include "Host/Widgets/ZVTreeViewRefresh.h"
#include "TreeModel/PlainRefresh.h"
#include "TreeModel/RefreshPlan.h"
#include "TreeModel/RowBuilder.h"
#include "TreeModel/RowListSorting.h"

#include <QtCore/QScopedValueRollback>

#include <utility>

namespace Zorvane::GenericTreeViewModelHandling {

ModelItemToZVTreeModelSyncronizer::ModelItemToZVTreeModelSyncronizer(int idRole)
    : m_idRole(idRole)
{}

ModelItemToZVTreeModelSyncronizer::~ModelItemToZVTreeModelSyncronizer()
{
    Q_ASSERT_X(!m_isRunning, "ModelItemToZVTreeModelSyncronizer", "deleted during a refresh");
}

void ModelItemToZVTreeModelSyncronizer::setDataProvider(
    std::shared_ptr<ZVTreeItemDataProviderInterface> dataProvider)
{
    m_dataProvider = std::move(dataProvider);
}

void ModelItemToZVTreeModelSyncronizer::syncronizeViewModel(ZVTreeViewModel* viewModel,
                                                            std::shared_ptr<ModelRoot> root)
{
    refresh(viewModel, {std::move(root), false});
}

void ModelItemToZVTreeModelSyncronizer::syncronizeAndUpdateViewModel(
    ZVTreeViewModel* viewModel, std::shared_ptr<ModelRoot> root)
{
    refresh(viewModel, {std::move(root), true});
}

void ModelItemToZVTreeModelSyncronizer::updateViewModelItems(ZVTreeViewModel* viewModel)
{
    Q_ASSERT_X(viewModel && m_dataProvider, "updateViewModelItems", "no model or data provider");
    const auto dataProvider = m_dataProvider;
    if (!isUpdateDue(*dataProvider))
        return;
    const QScopedValueRollback<bool> running(m_isRunning, true);
    const ZVTreeViewRefresh refresh(viewModel);
    dataProvider->updateDataOf(identifiedRows(viewModel));
}

void ModelItemToZVTreeModelSyncronizer::refresh(ZVTreeViewModel* viewModel, const Request& request)
{
    Q_ASSERT_X(viewModel && request.root && m_dataProvider, "syncronizeViewModel",
               "no model, root or data provider");
    if (ZVTreeViewRefresh::isRunning(viewModel)) {
        putOff(viewModel, request);
        return;
    }
    const QScopedValueRollback<bool> running(m_isRunning, true);
    // A slot may set another one.
    const auto dataProvider = m_dataProvider;
    ZVTreeViewRefresh refresh(viewModel);
    RowList rows = align(viewModel, *request.root, refresh);
    if (request.updatesAll)
        rows = identifiedRows(viewModel);
    else
        sortById(rows);
    dataProvider->addDataTo(rows);
}

void ModelItemToZVTreeModelSyncronizer::putOff(ZVTreeViewModel* viewModel, const Request& request)
{
    std::weak_ptr<Request>& known = m_putOff[viewModel];
    if (const std::shared_ptr<Request> waiting = known.lock()) {
        *waiting = {request.root, request.updatesAll || waiting->updatesAll};
        return;
    }
    const auto waiting = std::make_shared<Request>(request);
    known = waiting;
    ZVTreeViewRefresh::whenDone(viewModel, m_life.guarded([this, viewModel, waiting] {
        m_putOff.erase(viewModel);
        refresh(viewModel, *waiting);
    }));
}

/** Returns the rows that were made, in no order. */
ModelItemToZVTreeModelSyncronizer::RowList
ModelItemToZVTreeModelSyncronizer::align(ZVTreeViewModel* viewModel, const ModelRoot& root,
                                         ZVTreeViewRefresh& refresh)
{
    RowBuilder builder(m_idRole, m_dataProvider->getItemFlags());
    const IdPlace place{m_idColumn, m_idRole};
    if (!ZVTreeViewRefresh::appliesPlans) {
        builder.expect(root.totalItemCount());
        PlainRefresh(place, builder).align(viewModel->rootItem(), root.getTopLevelItems());
        return builder.takeList();
    }
    RefreshPlan plan(viewModel->rootItem(), root.getTopLevelItems(), place);
    plan.createRows(builder);
    plan.remember();
    refresh.apply(plan.takeSteps());
    plan.complete();
    return builder.takeList();
}

/** Sorted by id. */
ModelItemToZVTreeModelSyncronizer::RowList
ModelItemToZVTreeModelSyncronizer::identifiedRows(const ZVTreeViewModel* viewModel) const
{
    std::vector<ZVTreeViewItem*> all{viewModel->rootItem()};
    for (std::size_t i = 0; i < all.size(); ++i) {
        const ZVTreeViewItem* parent = all[i];
        for (int child = 0, count = parent->childCount(); child < count; ++child)
            all.push_back(parent->child(child));
    }
    RowList rows;
    rows.reserve(all.size() - 1);
    for (auto row = all.begin() + 1; row != all.end(); ++row) {
        IDCombiner id;
        if (readId(*row, {m_idColumn, m_idRole}, id))
            rows.emplace_back(id, *row);
    }
    sortById(rows);
    return rows;
}

} // namespace Zorvane::GenericTreeViewModelHandling
