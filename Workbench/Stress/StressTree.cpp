#include "Workbench/Stress/StressTree.h"

#include <algorithm>
#include <string>
#include <utility>

namespace Zorvane::Workbench {

namespace {

constexpr int s_fanOut = 10;

} // namespace

StressTree::StressTree(StressShape shape, int rowCount, std::uint32_t seed)
    : m_shape(shape)
    , m_mostRows(2 * std::max(rowCount, 1))
    , m_random(seed)
    , m_items(createItems(std::max(rowCount, 1)))
{}

std::shared_ptr<GenericTreeViewModelHandling::ModelRoot> StressTree::root() const
{
    auto root = std::make_shared<GenericTreeViewModelHandling::ModelRoot>();
    root->addTopLevelItems(m_items);
    return root;
}

int StressTree::below(std::size_t bound)
{
    return int(m_random() % bound);
}

std::shared_ptr<StressTree::ModelItem> StressTree::createItem(int rowsBelow)
{
    ++m_rowCount;
    const std::string number = std::to_string(++m_lastId);
    auto item = std::make_shared<ModelItem>(Identifier(m_lastId),
                                            (rowsBelow > 0 ? "Group " : "Row ") + number);
    if (rowsBelow > 0)
        item->addChildren(createItems(rowsBelow));
    return item;
}

StressTree::Items StressTree::createItems(int rowCount)
{
    const int siblings = m_shape == StressShape::Flat ? rowCount : std::min(rowCount, s_fanOut);
    const int rest = rowCount - siblings;
    Items items;
    items.reserve(std::size_t(siblings));
    for (int i = 0; i < siblings; ++i)
        items.push_back(createItem(rest / siblings + (i < rest % siblings ? 1 : 0)));
    return items;
}

void StressTree::edit(const std::vector<StressEdit>& kinds, int count)
{
    m_removed.clear();
    for (int i = 0; i < count && !kinds.empty(); ++i)
        editSomewhere(m_items, kinds[std::size_t(below(kinds.size()))]);
    std::sort(m_removed.begin(), m_removed.end());
}

void StressTree::editSomewhere(Items& items, StressEdit kind)
{
    auto& item = items[std::size_t(below(items.size()))];
    if (item->hasChildren() && below(4) != 0)
        editBelow(item, kind);
    else
        editList(items, kind);
}

/** Items that were handed out must not change: the edited child list comes with another item. */
void StressTree::editBelow(std::shared_ptr<ModelItem>& item, StressEdit kind)
{
    Items children = item->getChildren();
    editSomewhere(children, kind);
    auto edited = std::make_shared<ModelItem>(*item);
    edited->setChildren(children);
    item = std::move(edited);
}

void StressTree::editList(Items& items, StressEdit kind)
{
    switch (kind) {
    case StressEdit::Insert:
        return insert(items);
    case StressEdit::Remove:
        return remove(items);
    case StressEdit::Move:
        return move(items);
    case StressEdit::Rename:
        return rename(items[std::size_t(below(items.size()))]);
    case StressEdit::Shuffle:
        return shuffle(items);
    }
}

void StressTree::insert(Items& items)
{
    if (m_rowCount >= m_mostRows)
        return;
    const auto at = items.begin() + below(items.size() + 1);
    const bool amongGroups = items.front()->hasChildren();
    items.insert(at, createItem(amongGroups ? s_fanOut : 0));
}

void StressTree::remove(Items& items)
{
    const auto at = items.begin() + below(items.size());
    const Items& children = (*at)->getChildren();
    const auto isGroup = [](const auto& child) { return child->hasChildren(); };
    // Large groups stay, or the tree would soon be gone: what is inserted is small.
    if (std::any_of(children.begin(), children.end(), isGroup))
        return editBelow(*at, StressEdit::Remove);
    if (items.size() == 1)
        return;
    noteRemoved(**at);
    items.erase(at);
}

void StressTree::move(Items& items)
{
    const auto from = items.begin() + below(items.size());
    const auto to = items.begin() + below(items.size());
    if (from < to)
        std::rotate(from, from + 1, to + 1);
    else
        std::rotate(to, from, from + 1);
}

void StressTree::rename(std::shared_ptr<ModelItem>& item)
{
    const std::string word = item->hasChildren() ? "Group " : "Row ";
    const std::string number = std::to_string(item->getId().getIdentifier().getValue());
    auto renamed = std::make_shared<ModelItem>(item->getId(), word + number + ", name " +
                                                                  std::to_string(++m_lastName));
    renamed->setChildren(item->getChildren());
    item = std::move(renamed);
}

void StressTree::shuffle(Items& items)
{
    for (std::size_t left = items.size(); left > 1; --left)
        std::swap(items[left - 1], items[std::size_t(below(left))]);
}

void StressTree::noteRemoved(const ModelItem& item)
{
    --m_rowCount;
    m_removed.push_back(item.getId());
    for (const auto& child : item.getChildren())
        noteRemoved(*child);
}

} // namespace Zorvane::Workbench
