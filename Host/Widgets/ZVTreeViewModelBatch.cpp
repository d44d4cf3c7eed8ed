#include "Host/Widgets/ZVTreeViewModelBatch.h"

#include "Host/Widgets/ZVTreeViewModelPrivate.h"

namespace Zorvane {

ZVTreeViewModelBatch::ZVTreeViewModelBatch(ZVTreeViewModel* model)
    : m_model(model)
{
    if (m_model)
        m_model->d->openBatch();
}

ZVTreeViewModelBatch::~ZVTreeViewModelBatch()
{
    close();
}

void ZVTreeViewModelBatch::close()
{
    if (m_model)
        m_model->d->closeBatch();
    m_model.clear();
}

} // namespace Zorvane
