#include "TreeModel/TreeViewBinding.h"

#include "Host/Widgets/ZVTreeViewModel.h"
#include "TreeModel/ZVTreeItemDataProviderManager.h"

#include <exception>
#include <utility>

namespace Zorvane::GenericTreeViewModelHandling {

TreeViewBinding::TreeViewBinding(ZVTreeViewModel* viewModel,
                                 std::shared_ptr<ModelProviderInterface> models,
                                 std::shared_ptr<ZVTreeItemDataProviderInterface> rowData)
    : PostEventTask(Priority::FirstQueue, false)
    , m_viewModel(viewModel)
    , m_models(std::move(models))
{
    Q_ASSERT_X(viewModel && m_models, "TreeViewBinding", "no view model or model provider");
    if (!rowData)
        rowData = std::make_shared<ZVTreeItemDataProviderManager>();
    m_synchronizer.setDataProvider(rowData);
    m_models->registerUpdateCallback(m_life.guarded([this] {
        m_isModelChanged = true;
        post();
    }));
    rowData->registerUpdateCallback(m_life.guarded([this] { post(); }));
    showModel();
}

void TreeViewBinding::refresh()
{
    unpost();
    showModel();
    showRowData();
}

void TreeViewBinding::run()
{
    try {
        if (m_isModelChanged)
            showModel();
        showRowData();
    } catch (const std::exception& error) {
        qWarning("A tree could not be refreshed: %s", error.what());
    } catch (...) {
        qWarning("A tree could not be refreshed");
    }
}

void TreeViewBinding::showModel()
{
    // What changes while the model is made is shown by the next refresh.
    m_isModelChanged = false;
    if (!m_viewModel)
        return;
    const std::shared_ptr<ModelRoot> root = m_models->provideModel();
    m_synchronizer.syncronizeViewModel(m_viewModel, root ? root : std::make_shared<ModelRoot>());
}

void TreeViewBinding::showRowData()
{
    if (m_viewModel)
        m_synchronizer.updateViewModelItems(m_viewModel);
}

} // namespace Zorvane::GenericTreeViewModelHandling
