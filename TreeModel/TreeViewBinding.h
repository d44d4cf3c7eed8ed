#pragma once

#include "TreeModel/LifeToken.h"
#include "TreeModel/ModelItemToZVTreeModelSyncronizer.h"
#include "TreeModel/ModelProviderInterface.h"
#include "TreeModel/ZVTreeItemDataProviderInterface.h"
#include "UiToolsExport.h"
#include "Utilities/PostEventTask.h"

#include <QtCore/QPointer>

#include <memory>

namespace Zorvane::GenericTreeViewModelHandling {

/**
 * Keeps a view model in step with a model provider and a data provider: the usual case of a tree.
 *
 * Registers itself for the callbacks of both. However often they call, the rows are refreshed once,
 * when the current event has been handled; `refresh` does so at once. A provider without a root is
 * taken for an empty model. What a provider throws in a posted refresh is a warning; from `refresh`
 * it reaches the caller.
 *
 * The model may go first; then nothing happens any more.
 *
 * Not supported: deleting the binding in a slot of its own refresh.
 */
class ZORVANE_UITOOLS_EXPORT TreeViewBinding : private PostEventTask
{
public:
    /** Shows the model at once. Without a data provider, rows show the names of items only. */
    TreeViewBinding(ZVTreeViewModel* viewModel, std::shared_ptr<ModelProviderInterface> models,
                    std::shared_ptr<ZVTreeItemDataProviderInterface> rowData = nullptr);

    /** Brings the rows in line with the model now, and writes row data that has changed. */
    void refresh();

private:
    void run() override;
    void showModel();
    void showRowData();

    const QPointer<ZVTreeViewModel> m_viewModel;
    const std::shared_ptr<ModelProviderInterface> m_models;
    ModelItemToZVTreeModelSyncronizer m_synchronizer;
    bool m_isModelChanged = false;
    LifeToken m_life;
};

} // namespace Zorvane::GenericTreeViewModelHandling
