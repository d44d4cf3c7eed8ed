#include "Benchmarks/Support/TreeScenes.h"

#include "Host/Widgets/ZVTreeViewItem.h"
#include "TreeModel/TreeItemStaticDataProvider.h"

#include <QtCore/QCoreApplication>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>

namespace Zorvane::Benchmarks {

using namespace GenericTreeViewModelHandling;

namespace {

/** The benchmarks measure rows; nothing is written into them. */
class NoData : public ZVTreeItemDataProviderInterface
{
public:
    Qt::ItemFlags getItemFlags() override { return Qt::NoItemFlags; }
    void addDataTo(const RowList&) override {}
    void updateDataOf(const RowList&) override {}
    void registerUpdateCallback(std::function<void()>) override {}
};

class ItemFactory
{
public:
    std::shared_ptr<ModelItem> make()
    {
        ++m_count;
        // An odd factor scatters the numbers over all 64 bits and keeps them distinct.
        return std::make_shared<ModelItem>(Identifier(m_count * 0x9e3779b97f4a7c15U), name());
    }

private:
    std::string name() const
    {
        const std::string digits = std::to_string(m_count);
        return "Part " + std::string(digits.size() < 6 ? 6 - digits.size() : 0, '0') + digits;
    }

    std::uint64_t m_count = 0;
};

Items makeLevel(ItemFactory& factory, const std::vector<int>& fanOuts, std::size_t level)
{
    Items items;
    if (level == fanOuts.size())
        return items;
    items.reserve(std::size_t(fanOuts[level]));
    for (int i = 0; i < fanOuts[level]; ++i) {
        items.push_back(factory.make());
        items.back()->setChildren(makeLevel(factory, fanOuts, level + 1));
    }
    return items;
}

/** Copies a tree and changes each of its child lists on the way. */
class TreeChange
{
public:
    explicit TreeChange(const std::string& change)
        : m_change(change)
    {}

    Items apply(const Items& before)
    {
        Items after;
        after.reserve(before.size() + before.size() / 50);
        // Made in the new order, as a provider walks through its data.
        for (const auto& item : reordered(before)) {
            if (m_change == "delete1" && !item->hasChildren() && oneInHundred())
                continue;
            if (m_change == "insert1" && oneInHundred())
                after.push_back(std::make_shared<ModelItem>(GUIdentifier::create(), "New part"));
            after.push_back(std::make_shared<ModelItem>(item->getId(), nameOf(*item)));
            if (item->hasChildren())
                after.back()->setChildren(apply(item->getChildren()));
        }
        return after;
    }

private:
    bool oneInHundred() { return m_random() % 100 == 0; }

    std::string nameOf(const ModelItem& item)
    {
        const bool one = m_change == "label" && ++m_visited == 5000;
        return one || m_change == "labels" ? item.getName() + "b" : item.getName();
    }

    Items reordered(Items items)
    {
        if (m_change == "reverse")
            std::reverse(items.begin(), items.end());
        if (m_change == "rotate" && !items.empty())
            std::rotate(items.begin(), items.begin() + 1, items.end());
        if (m_change == "shuffle")
            std::shuffle(items.begin(), items.end(), m_random);
        return items;
    }

    const std::string m_change;
    int m_visited = 0;
    std::minstd_rand m_random;
};

QList<QStandardItem*> standardRows(const Items& items)
{
    QList<QStandardItem*> rows;
    rows.reserve(int(items.size()));
    for (const auto& item : items) {
        auto row = std::make_unique<QStandardItem>(QString::fromStdString(item->getName()));
        row->setData(QVariant::fromValue(item->getId()),
                     ModelItemToZVTreeModelSyncronizer::DefaultIdRole);
        if (item->hasChildren())
            row->appendRows(standardRows(item->getChildren()));
        rows.append(row.release());
    }
    return rows;
}

} // namespace

Items makeTree(const std::vector<int>& fanOuts)
{
    ItemFactory factory;
    return makeLevel(factory, fanOuts, 0);
}

std::pair<Items, Items> makeDuplicates(int count)
{
    const auto twin = std::make_shared<ModelItem>(Identifier(1), "Twin");
    const Items others = makeTree({count / 2});
    const Items twins(std::size_t(count / 2), twin);
    Items before = twins;
    before.insert(before.end(), others.begin(), others.end());
    // A new row first, so that all that follow are searched; then twins that none is left for.
    Items after{std::make_shared<ModelItem>(Identifier(2), "New part")};
    after.insert(after.end(), twins.begin(), twins.end());
    after.insert(after.end(), twins.begin(), twins.end());
    after.insert(after.end(), others.begin(), others.end());
    return {before, after};
}

Items handedOnTree(const Items& before)
{
    Items after = before;
    auto& changed = after[after.size() / 2];
    Items children;
    for (const auto& child : changed->getChildren())
        children.push_back(std::make_shared<ModelItem>(child->getId(), child->getName()));
    children.back() =
        std::make_shared<ModelItem>(children.back()->getId(), children.back()->getName() + "b");
    changed = std::make_shared<ModelItem>(changed->getId(), changed->getName());
    changed->addChildren(std::move(children));
    return after;
}

Items changedTree(const Items& before, const std::string& change)
{
    return TreeChange(change).apply(before);
}

std::shared_ptr<ModelRoot> rootOf(const Items& items)
{
    auto root = std::make_shared<ModelRoot>();
    root->addTopLevelItems(items);
    return root;
}

namespace {

void expandGroups(QTreeView& view, const QModelIndex& parent = {})
{
    const QAbstractItemModel& model = *view.model();
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (!model.hasChildren(index))
            return;
        view.expand(index);
        expandGroups(view, index);
    }
}

} // namespace

Attachment::Attachment(const std::string& kind, QAbstractItemModel* model)
    : m_kind(kind)
{
    if (kind == "proxy" || kind == "sorted") {
        m_proxy = std::make_unique<QSortFilterProxyModel>();
        m_proxy->setSourceModel(model);
        if (kind == "sorted")
            m_proxy->sort(0);
    } else if (kind != "none") {
        m_view = std::make_unique<QTreeView>();
        m_view->setUniformRowHeights(true);
        m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
        m_view->setModel(model);
        m_view->resize(400, 600);
        m_view->show();
    }
}

Attachment::~Attachment() = default;

void Attachment::prepare()
{
    // What the preparation has freed is put in order here, at the allocator's next large block,
    // not while somebody is being measured.
    benchmark::DoNotOptimize(std::vector<char>(std::size_t(1) << 20U).data());
    if (m_view) {
        const QAbstractItemModel& model = *m_view->model();
        if (m_kind == "deep")
            expandGroups(*m_view);
        if (m_kind == "deep-all")
            m_view->expandAll();
        const int rows = model.rowCount();
        m_view->setCurrentIndex(model.index(rows / 2, 0));
        QItemSelection selection;
        for (int row = 0; row < rows; row += 100)
            selection.select(model.index(row, 0), model.index(row, 0));
        m_view->selectionModel()->select(selection, QItemSelectionModel::Select);
    }
    settle();
}

void Attachment::settle()
{
    if (m_proxy)
        benchmark::DoNotOptimize(m_proxy->mapToSource(m_proxy->index(m_proxy->rowCount() - 1, 0)));
    if (m_view)
        QCoreApplication::processEvents();
}

SyncronizedScene::SyncronizedScene(const std::string& attached, int columns)
    : m_attachment(attached, &m_model)
{
    m_model.setColumnCount(columns);
    m_syncronizer.setDataProvider(std::make_shared<NoData>());
}

void SyncronizedScene::show(const Items& items)
{
    m_syncronizer.syncronizeViewModel(&m_model, rootOf(items));
    m_attachment.settle();
}

void SyncronizedScene::refresh(const Root& root)
{
    m_syncronizer.syncronizeViewModel(&m_model, root);
    m_attachment.settle();
}

void SyncronizedScene::refreshInTurn(const std::vector<Root>& roots)
{
    for (const Root& root : roots)
        m_syncronizer.syncronizeViewModel(&m_model, root);
    m_attachment.settle();
}

void SyncronizedScene::writeAll(const Root& root, const QVariant& value)
{
    m_syncronizer.setDataProvider(std::make_shared<TreeItemStaticDataProvider>(
        std::vector<int>{1, 2, 3}, Qt::DisplayRole, value));
    m_syncronizer.syncronizeAndUpdateViewModel(&m_model, root);
    m_attachment.settle();
}

RebuiltScene::RebuiltScene(const std::string& attached, int columns)
    : m_attachment(attached, &m_model)
    , m_columns(columns)
{}

void RebuiltScene::rebuild(const Items& items)
{
    m_model.clear();
    m_model.setColumnCount(m_columns);
    m_model.invisibleRootItem()->appendRows(standardRows(items));
    m_attachment.settle();
}

void RebuiltScene::writeAll(const QVariant& value)
{
    for (int row = 0; row < m_model.rowCount(); ++row) {
        for (int column = 1; column <= 3; ++column)
            m_model.setData(m_model.index(row, column), value, Qt::DisplayRole);
    }
    m_attachment.settle();
}

} // namespace Zorvane::Benchmarks
