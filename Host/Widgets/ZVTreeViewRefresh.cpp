#include "Host/Widgets/ZVTreeViewRefresh.h"

#include "Host/Widgets/ZVTreeViewModelPrivate.h"

#include <utility>

namespace Zorvane {

namespace {

ZVTreeViewModel& required(ZVTreeViewModel* model)
{
    Q_ASSERT_X(model, "ZVTreeViewRefresh", "there is no model");
    return *model;
}

} // namespace

ZVTreeViewRefresh::ZVTreeViewRefresh(ZVTreeViewModel* model)
    : m_model(*required(model).d)
{
    m_model.beginRefresh();
}

ZVTreeViewRefresh::~ZVTreeViewRefresh()
{
    m_model.endRefresh();
}

void ZVTreeViewRefresh::apply(ZVTreeViewPlan plan)
{
    m_model.apply(plan);
}

bool ZVTreeViewRefresh::isRunning(const ZVTreeViewModel* model)
{
    return model->d->isRefreshing();
}

void ZVTreeViewRefresh::whenDone(ZVTreeViewModel* model, std::function<void()> task)
{
    model->d->whenDone(std::move(task));
}

} // namespace Zorvane
