#include "Workbench/Stress/StressRun.h"

#include "TreeModel/ZVTreeItemDataProviderManager.h"

#include <QtCore/QElapsedTimer>

namespace Zorvane::Workbench {

namespace {

using namespace GenericTreeViewModelHandling;

} // namespace

StressRun::StressRun(QObject* parent)
    : QObject(parent)
{
    m_model.setHorizontalHeaderLabels({tr("Row")});
    m_synchronizer.setDataProvider(std::make_shared<ZVTreeItemDataProviderManager>());
    countAnnouncements();
}

void StressRun::countAnnouncements()
{
    const auto structural = [this] { ++m_facts.structural; };
    connect(&m_model, &QAbstractItemModel::rowsInserted, this, structural);
    connect(&m_model, &QAbstractItemModel::rowsRemoved, this, structural);
    connect(&m_model, &QAbstractItemModel::rowsMoved, this, structural);
    connect(&m_model, &QAbstractItemModel::layoutChanged, this, structural);
    connect(&m_model, &QAbstractItemModel::modelReset, this, structural);
    connect(&m_model, &QAbstractItemModel::dataChanged, this, [this] { ++m_facts.values; });
}

void StressRun::fill(StressShape shape, int rowCount, std::uint32_t seed)
{
    // Ids start over with the tree: without this, the new rows would pass for the old ones.
    m_synchronizer.syncronizeViewModel(&m_model, std::make_shared<ModelRoot>());
    m_tree.emplace(shape, rowCount, seed);
    m_synchronizer.syncronizeViewModel(&m_model, m_tree->root());
}

StressFacts StressRun::step(const std::vector<StressEdit>& kinds, int editCount)
{
    if (!m_tree)
        return {};
    m_tree->edit(kinds, editCount);
    const std::shared_ptr<ModelRoot> root = m_tree->root();
    m_facts = {};
    QElapsedTimer timer;
    timer.start();
    m_synchronizer.syncronizeViewModel(&m_model, root);
    m_facts.milliseconds = double(timer.nsecsElapsed()) / 1e6;
    return m_facts;
}

} // namespace Zorvane::Workbench
