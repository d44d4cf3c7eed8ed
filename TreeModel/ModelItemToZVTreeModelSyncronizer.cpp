#include "TreeModel/ModelItemToZVTreeModelSyncronizer.h"

#include "Host/Widgets/ZVTreeViewItem.h"
#include "Host/Widgets/ZVTreeViewModel.h"
#include "Host/Widgets/ZVTreeViewModelBatch.h"
#include "TreeModel/RowFinder.h"
#include "TreeModel/RowListSorting.h"

#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtCore/QVector>

#include <algorithm>
#include <typeinfo>
#include <utility>

namespace Zorvane::GenericTreeViewModelHandling {

namespace {

std::size_t countBelow(const ZVTreeViewItem* row)
{
    const int children = row->childCount();
    auto count = static_cast<std::size_t>(children);
    for (int i = 0; i < children; ++i)
        count += countBelow(row->child(i));
    return count;
}

} // namespace

struct ModelItemToZVTreeModelSyncronizer::SearchMemory
{
    RowFinder::SpareIndexes spareIndexes;
};

ModelItemToZVTreeModelSyncronizer::ModelItemToZVTreeModelSyncronizer(int idRole)
    : m_idRole(idRole)
    , m_searchMemory(std::make_unique<SearchMemory>())
{}

ModelItemToZVTreeModelSyncronizer::~ModelItemToZVTreeModelSyncronizer() = default;

void ModelItemToZVTreeModelSyncronizer::setDataProvider(
    std::shared_ptr<ZVTreeItemDataProviderInterface> dataProvider)
{
    m_dataProvider = std::move(dataProvider);
}

void ModelItemToZVTreeModelSyncronizer::syncronizeViewModel(ZVTreeViewModel* viewModel,
                                                            std::shared_ptr<ModelRoot> root)
{
    RowList created = align(viewModel, *root);
    sortById(created);
    m_dataProvider->addDataTo(created);
}

void ModelItemToZVTreeModelSyncronizer::syncronizeAndUpdateViewModel(
    ZVTreeViewModel* viewModel, std::shared_ptr<ModelRoot> root)
{
    align(viewModel, *root);
    m_dataProvider->addDataTo(identifiedRows(viewModel));
}

void ModelItemToZVTreeModelSyncronizer::updateViewModelItems(ZVTreeViewModel* viewModel)
{
    m_dataProvider->updateDataOf(identifiedRows(viewModel));
}

/** Returns the rows that were made, in no order. */
ModelItemToZVTreeModelSyncronizer::RowList
ModelItemToZVTreeModelSyncronizer::align(ZVTreeViewModel* viewModel, const ModelRoot& root)
{
    m_itemList.clear();
    m_itemList.reserve(root.totalItemCount());
    m_viewModel = viewModel;
    m_newItemFlags = m_dataProvider->getItemFlags();
    const ZVTreeViewModelBatch batch(viewModel);
    synchronize(viewModel->rootItem(), root.getTopLevelItems());
    // Out of the way before views are told: a slot of theirs may come back to this synchronizer.
    return std::exchange(m_itemList, {});
}

ModelItemToZVTreeModelSyncronizer::RowList
ModelItemToZVTreeModelSyncronizer::identifiedRows(ZVTreeViewModel* viewModel)
{
    m_itemList.clear();
    m_itemList.reserve(countBelow(viewModel->rootItem()));
    gatherItemsRecursively(viewModel->rootItem());
    sortById(m_itemList);
    return std::exchange(m_itemList, {});
}

void ModelItemToZVTreeModelSyncronizer::synchronize(ZVTreeViewItem* parent, const Items& items)
{
    const int wanted = static_cast<int>(items.size());
    const int placed = placeRows(parent, items);
    if (placed < wanted)
        appendNewRows(parent, items, placed);
    for (int row = parent->childCount() - 1; row >= wanted; --row)
        parent->deleteChild(row);
}

/** Returns how many items have their row: all, or as many as there were rows. */
int ModelItemToZVTreeModelSyncronizer::placeRows(ZVTreeViewItem* parent, const Items& items)
{
    const int wanted = static_cast<int>(items.size());
    int count = parent->childCount();
    RowFinder finder(parent, items, {m_idColumn, m_idRole}, m_searchMemory->spareIndexes);
    int front = 0;
    for (; front < count && front < wanted; ++front) {
        const ModelItem& item = *items[static_cast<std::size_t>(front)];
        ZVTreeViewItem* row = parent->child(front);
        if (finder.hasId(row, item.getId())) {
            writeText(row, item);
            synchronizeChildren(row, item);
            finder.stays();
            continue;
        }
        row = finder.find(front);
        if (!row) {
            parent->insertChild(front, createListedRow(item));
            ++count;
            continue;
        }
        parent->takeChild(row);
        synchronizeChildren(row, item);
        parent->insertChild(front, row);
        finder.moves();
    }
    return front;
}

void ModelItemToZVTreeModelSyncronizer::synchronizeChildren(ZVTreeViewItem* row,
                                                            const ModelItem& item)
{
    if (item.hasChildren() || row->childCount() > 0)
        synchronize(row, item.getChildren());
}

void ModelItemToZVTreeModelSyncronizer::appendNewRows(ZVTreeViewItem* parent, const Items& items,
                                                      int first)
{
    QVector<ZVTreeViewItem*> rows;
    rows.reserve(static_cast<int>(items.size()) - first);
    for (auto item = items.begin() + first; item != items.end(); ++item)
        rows.append(createListedRow(**item));
    parent->appendChildren(rows);
}

ZVTreeViewItem* ModelItemToZVTreeModelSyncronizer::createListedRow(const ModelItem& item)
{
    ZVTreeViewItem* row = createViewItemTree(item);
    m_itemList.emplace_back(item.getId(), row);
    return row;
}

ZVTreeViewItem* ModelItemToZVTreeModelSyncronizer::createViewItemTree(const ModelItem& item)
{
    auto row = std::make_unique<ZVTreeViewItem>();
    row->setText(item.getName());
    row->setId(m_idRole, item.getId());
    row->setFlags(m_newItemFlags | row->flags() | Qt::ItemIsEditable);
    if (item.hasChildren())
        appendNewRows(row.get(), item.getChildren(), 0);
    return row.release();
}

void ModelItemToZVTreeModelSyncronizer::writeText(ZVTreeViewItem* row, const ModelItem& item) const
{
    // A class of its own may want to see the value; our rows compare it without making one.
    if (typeid(*row) == typeid(ZVTreeViewItem))
        row->setText(item.getName());
    else
        row->setData(m_textColumn, Qt::DisplayRole, QString::fromStdString(item.getName()));
}

void ModelItemToZVTreeModelSyncronizer::gatherItemsRecursively(ZVTreeViewItem* parent)
{
    for (int i = 0, count = parent->childCount(); i < count; ++i) {
        ZVTreeViewItem* row = parent->child(i);
        if (row->childCount() > 0)
            gatherItemsRecursively(row);
        IDCombiner id;
        if (RowFinder::readId(row, {m_idColumn, m_idRole}, id))
            m_itemList.emplace_back(id, row);
    }
}

} // namespace Zorvane::GenericTreeViewModelHandling
