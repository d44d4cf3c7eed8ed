#include "Host/Widgets/ZVTreeViewModelBatch.h"

#include "Host/Widgets/ZVTreeViewModelPrivate.h"

#include <utility>

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
    // Forgotten first: a slot may close this very batch again.
    const QPointer<ZVTreeViewModel> model = std::exchange(m_model, nullptr);
    if (model)
        model->d->closeBatch();
}

} // namespace Zorvane
