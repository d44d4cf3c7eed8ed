#include "TreeModel/RowBuilder.h"

#include <QtCore/QVector>

#include <utility>

namespace Zorvane::GenericTreeViewModelHandling {

std::unique_ptr<ZVTreeViewItem> RowBuilder::createRow(const ModelItem& item)
{
    auto row = std::make_unique<ZVTreeViewItem>();
    row->setText(item.getName());
    row->setId(m_idRole, item.getId());
    row->setFlags(m_flags | row->flags() | Qt::ItemIsEditable);
    m_list.emplace_back(item.getId(), row.get());
    // An item without a number could be changed unseen by those above it.
    item.getSerial();
    return row;
}

std::unique_ptr<ZVTreeViewItem> RowBuilder::finished(Level level)
{
    QVector<ZVTreeViewItem*> children;
    children.reserve(static_cast<int>(level.children.size()));
    for (const auto& child : level.children)
        children.append(child.get());
    level.row->appendChildren(children);
    for (auto& child : level.children)
        child.release();
    level.row->setShownSerial(level.item->getSerial());
    return std::move(level.row);
}

std::unique_ptr<ZVTreeViewItem> RowBuilder::create(const ModelItem& item)
{
    if (!item.hasChildren())
        return createRow(item);
    std::vector<Level> levels;
    levels.push_back({&item, createRow(item), {}});
    while (true) {
        auto& [current, row, made] = levels.back();
        const auto& wanted = current->getChildren();
        made.reserve(wanted.size());
        while (made.size() < wanted.size() && !wanted[made.size()]->hasChildren())
            made.push_back(createRow(*wanted[made.size()]));
        if (made.size() < wanted.size()) {
            const ModelItem& next = *wanted[made.size()];
            levels.push_back({&next, createRow(next), {}});
            continue;
        }
        std::unique_ptr<ZVTreeViewItem> whole = finished(std::move(levels.back()));
        levels.pop_back();
        if (levels.empty())
            return whole;
        levels.back().children.push_back(std::move(whole));
    }
}

} // namespace Zorvane::GenericTreeViewModelHandling
